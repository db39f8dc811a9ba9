#include "User/HalvexUser.h"

#include "User/HalvexRememberedUser.h"
#include "User/HalvexUserMessages.h"
#include "User/HalvexUserSupport.h"

UHalvexUser::UHalvexUser() = default;
UHalvexUser::~UHalvexUser()
{
	FTSTicker::RemoveTicker(TokenTimer);
}

TSharedPtr<IHalvexServiceExchange> UHalvexUser::Send(const FHalvexServiceRequest& Request, const FReplyHandler Handler)
{
	const TWeakObjectPtr<UHalvexUser> WeakThis = this;
	return HalvexUserSupport::GetConnection().Send(Request, [WeakThis, Handler](const FHalvexServiceReply& Reply)
	{
		if (UHalvexUser* This = WeakThis.Get())
		{
			(This->*Handler)(Reply);
		}
	});
}

FHalvexRememberedUser& UHalvexUser::GetRemembered() const
{
	const FString ServiceName = HalvexUserSupport::GetConnection().GetServiceName();
	if (!Remembered.IsValid() || Remembered->GetServiceName() != ServiceName)
	{
		Remembered = MakeShared<FHalvexRememberedUser>();
		Remembered->Load(ServiceName);
	}
	return *Remembered;
}

bool UHalvexUser::IsRemembered(const FHalvexUserInformation& UserInformation) const
{
	const FHalvexRememberedUser& Known = GetRemembered();
	return UserInformation.Password.IsEmpty() && Known.IsAny() && UserInformation.UserName.Equals(Known.GetUserName(), ESearchCase::CaseSensitive);
}

void UHalvexUser::RequestUserLogin(FHalvexUserInformation UserInformation)
{
	const bool bGivenUp = GiveUpLogin();
	bRememberLogin = UserInformation.bRememberMe;
	if (IsRemembered(UserInformation))
	{
		bLoginAwaitsRefresh = true;
		StartRefresh(GetRemembered().GetRefreshToken());
	}
	else
	{
		LoginExchange = Send(HalvexUserSupport::MakePost(HalvexUserSupport::SessionPath, HalvexUserMessages::MakeSignIn(UserInformation)), &UHalvexUser::ReceiveLogin);
	}
	if (bGivenUp)
	{
		EndLogin(EHalvexLoginError::Cancelled);
	}
}

void UHalvexUser::RequestGuestUser()
{
	const bool bGivenUp = GiveUpLogin();
	bRememberLogin = false;
	LoginExchange = Send(HalvexUserSupport::MakePost(TEXT("api/session/guest"), TEXT("{}")), &UHalvexUser::ReceiveLogin);
	if (bGivenUp)
	{
		EndLogin(EHalvexLoginError::Cancelled);
	}
}

bool UHalvexUser::GiveUpLogin()
{
	const bool bInProcess = IsLoginInProcess();
	LoginExchange.Reset();
	// A refresh goes on: the service has spent the old token by now, and the new one must not be lost.
	bLoginAwaitsRefresh = false;
	return bInProcess;
}

void UHalvexUser::CancelLogin()
{
	if (GiveUpLogin())
	{
		EndLogin(EHalvexLoginError::Cancelled);
	}
}

void UHalvexUser::ReceiveLogin(const FHalvexServiceReply& Reply)
{
	LoginExchange.Reset();
	FHalvexSessionGrant Grant;
	FString Reason;
	const EHalvexLoginError Error = HalvexUserMessages::ReadGrant(Reply, HalvexUserSupport::GetConnection(), EHalvexLoginError::InvalidCredentials, Grant, Reason);
	HalvexUserSupport::LogReason(TEXT("The sign-in"), Reason);
	if (Error != EHalvexLoginError::None)
	{
		EndLogin(Error, Reply.RetryAfterSeconds);
		return;
	}
	if (!Grant.LoginInfo.bIsGuest)
	{
		// Its answer would be remembered in place of this one.
		RefreshExchange.Reset();
		Remember(Grant);
	}
	if (!Token.IsEmpty() && (RefreshToken.IsEmpty() || RefreshToken != GetRemembered().GetRefreshToken()))
	{
		// Nobody will come back to the session before.
		TellSignOut();
	}
	BeginSession(Grant);
	EndLogin(EHalvexLoginError::None);
}

void UHalvexUser::EndLogin(const EHalvexLoginError Error, const int32 RetryAfterSeconds)
{
	const bool bSuccess = Error == EHalvexLoginError::None;
	FLoginInfo Result;
	if (bSuccess)
	{
		Result = LoginInfo;
	}
	Result.Error = Error;
	Result.RetryAfterSeconds = RetryAfterSeconds;
	const FString ResultToken = Token;
	OnLoginResult.Broadcast(bSuccess, Result);
	// Whoever heard of it may have signed out at once.
	if (Token == ResultToken)
	{
		OnUserLogged.Broadcast(bSuccess, Result);
	}
}

void UHalvexUser::RequestUserLogout()
{
	const bool bGivenUp = GiveUpLogin();
	const bool bSignedIn = !Token.IsEmpty();
	if (bSignedIn)
	{
		TellSignOut();
	}
	if (bSignedIn && !LoginInfo.bIsGuest)
	{
		RefreshExchange.Reset();
		GetRemembered().Forget();
	}
	ClearSession();
	if (bGivenUp)
	{
		EndLogin(EHalvexLoginError::Cancelled);
	}
	if (bSignedIn)
	{
		OnUserLogout.Broadcast();
	}
}

void UHalvexUser::Abandon()
{
	const bool bGivenUp = GiveUpLogin();
	const bool bSignedIn = !Token.IsEmpty();
	RefreshExchange.Reset();
	SignOutExchanges.Empty();
	ClearSession();
	if (bGivenUp)
	{
		EndLogin(EHalvexLoginError::Cancelled);
	}
	if (bSignedIn)
	{
		OnUserLogout.Broadcast();
	}
}

bool UHalvexUser::HasRememberedCredentials() const
{
	return GetRemembered().IsAny();
}

FHalvexUserInformation UHalvexUser::GetUserInfo() const
{
	return FHalvexUserInformation(GetRemembered().IsAny(), GetRemembered().GetUserName(), FString());
}

void UHalvexUser::ForgetRememberedCredentials()
{
	GetRemembered().Forget();
}
