#include "UserListener.h"

#include "UObject/Class.h"
#include "User/HalvexUser.h"

void UUserListener::ListenTo(UHalvexUser& User)
{
	ListenedTo = &User;
	User.OnLoginResult.AddDynamic(this, &UUserListener::ReceiveResult);
	User.OnUserLogged.AddDynamic(this, &UUserListener::ReceiveLogged);
	User.OnUserLogout.AddDynamic(this, &UUserListener::ReceiveLogout);
}

void UUserListener::Write(const TCHAR* Event, bool bSuccess, const FLoginInfo& LoginInfo)
{
	const FString What = bSuccess ? LoginInfo.DisplayName : StaticEnum<EHalvexLoginError>()->GetNameStringByValue(static_cast<int64>(LoginInfo.Error));
	Events += FString::Printf(TEXT("%s %s; "), Event, *What);
}

void UUserListener::ReceiveResult(bool bSuccess, FLoginInfo LoginInfo)
{
	++NumResults;
	LastResult = LoginInfo;
	Write(TEXT("result"), bSuccess, LoginInfo);
	if (bSuccess && bSignOutAtOnce)
	{
		ListenedTo->RequestUserLogout();
	}
}

void UUserListener::ReceiveLogged(bool bSuccess, FLoginInfo LoginInfo)
{
	Write(TEXT("logged"), bSuccess, LoginInfo);
}

void UUserListener::ReceiveLogout()
{
	Events += TEXT("logout; ");
}

FString UUserListener::Take()
{
	FString Taken = MoveTemp(Events);
	Events.Empty();
	return Taken;
}
