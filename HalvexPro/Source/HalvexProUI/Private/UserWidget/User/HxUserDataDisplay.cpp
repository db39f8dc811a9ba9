#include "UserWidget/User/HxUserDataDisplay.h"

#include "Engine/Texture2D.h"
#include "Images/ImageSolver.h"
#include "UserWidget/User/HxUserAccess.h"

void UHxUserDataDisplay::NativeOnInitialized()
{
	Super::NativeOnInitialized();
	UHalvexUser* User = HxUserAccess::GetUser();
	if (!User)
	{
		return;
	}
	FScriptDelegate Logged;
	Logged.BindUFunction(this, TEXT("Received_UserLogged"));
	User->OnUserLogged.AddUnique(Logged);
	FScriptDelegate Logout;
	Logout.BindUFunction(this, TEXT("Received_UserLogout"));
	User->OnUserLogout.AddUnique(Logout);
	if (User->HasValidToken())
	{
		UserLoginInfo = User->GetUserLoginInfo();
		OnUserLogged(UserLoginInfo);
	}
}

bool UHxUserDataDisplay::GetUserData(FLoginInfo& OutUserData)
{
	OutUserData = UserLoginInfo;
	return !OutUserData.UserId.IsEmpty();
}

void UHxUserDataDisplay::GetUserImage(FOnUserImageRequestFinished ReceivedUserImage)
{
	UImageSolver* Solver = UImageSolver::CreateImagesSolver();
	if (UserLoginInfo.UserImage.Address.IsEmpty())
	{
		// The request goes on, and calls back a second time. Blueprints rely on the answer that comes at once, and bind always.
		ReceivedUserImage.Execute(false, nullptr);
	}
	PendingImageCallback = ReceivedUserImage;
	Solver->RunImageSolverWithDelegate({ UserLoginInfo.UserImage }, EIRS_Small, FImagesSolvedDelegate::CreateUObject(this, &UHxUserDataDisplay::Received_ImageUserSolver));
}

bool UHxUserDataDisplay::IsGuestUser() const
{
	const UHalvexUser* User = HxUserAccess::GetUser();
	return User && User->IsGuestUser();
}

bool UHxUserDataDisplay::IsUserLogged() const
{
	const UHalvexUser* User = HxUserAccess::GetUser();
	return User && User->HasValidToken();
}

void UHxUserDataDisplay::Received_UserLogged(const bool bSuccess, const FLoginInfo LoginInfo)
{
	if (bSuccess)
	{
		UserLoginInfo = LoginInfo;
		OnUserLogged(UserLoginInfo);
	}
}

void UHxUserDataDisplay::Received_UserLogout()
{
	// The data stays as it was: a screen may still say who has left.
	OnUserLogout();
}

void UHxUserDataDisplay::Received_ImageUserSolver(const TArray<UTexture2D*>& Texture2Ds)
{
	if (PendingImageCallback.IsBound())
	{
		PendingImageCallback.Execute(!Texture2Ds.IsEmpty(), Texture2Ds.IsEmpty() ? nullptr : Texture2Ds[0]);
	}
}
