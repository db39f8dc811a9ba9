#include "UserWidget/User/HxUserLogin.h"

#include "UserWidget/User/HxUserAccess.h"

namespace
{
	const FName ReceivedLoginResultName = TEXT("Received_LoginResult");

	/**
	 * Binds the handler once more with every request: after a failed one it is bound already, the engine reports that, and the
	 * next result is delivered once for each binding. Screens rely on being told that often.
	 */
	void BindToResult(UHalvexUser& User, UHxUserLogin& Login)
	{
		FScriptDelegate Handler;
		Handler.BindUFunction(&Login, ReceivedLoginResultName);
		User.OnLoginResult.Add(Handler);
	}
}

void UHxUserLogin::NativeConstruct()
{
	Super::NativeConstruct();
	const UHalvexUser* User = HxUserAccess::GetUser();
	if (User && User->HasRememberedCredentials())
	{
		LoadUserDataSaved();
	}
}

void UHxUserLogin::LoadUserDataSaved()
{
	const FHalvexUserInformation Remembered = HxUserAccess::GetUser()->GetUserInfo();
	OnLoadRememberOptions(Remembered);
}

void UHxUserLogin::RequestUserLogin(FString InUserName, FString InUserPassword)
{
	if (UHalvexUser* User = HxUserAccess::GetUser())
	{
		BindToResult(*User, *this);
		User->RequestUserLogin(FHalvexUserInformation(bRememberMe, InUserName, InUserPassword));
		OnLoginInProcess(true);
	}
}

void UHxUserLogin::RequestGuestLogin()
{
	if (UHalvexUser* User = HxUserAccess::GetUser())
	{
		BindToResult(*User, *this);
		User->RequestGuestUser();
		OnLoginInProcess(true);
	}
}

void UHxUserLogin::SetRememberMeOption(const bool InChecked)
{
	bRememberMe = InChecked;
}

void UHxUserLogin::Received_LoginResult(const bool bSuccessful, const FLoginInfo UserLogInfo)
{
	OnLoginInProcess(false);
	OnReceivedLoginResult(bSuccessful, UserLogInfo);
	OnLoginResult.Broadcast(bSuccessful, UserLogInfo);
	UHalvexUser* User = HxUserAccess::GetUser();
	// After a failure it stays bound.
	if (bSuccessful && User)
	{
		User->OnLoginResult.Remove(this, ReceivedLoginResultName);
	}
}
