#include "User/HalvexUser.h"

#include "HalvexSDKEngineSubsystem.h"
#include "HalvexSDKLog.h"
#include "Images/HalvexImageAddress.h"
#include "Misc/App.h"
#include "Service/HalvexServiceConnection.h"
#include "User/HalvexRememberedUser.h"
#include "User/HalvexUserMessages.h"

namespace
{
	const TCHAR* const SessionPath = TEXT("api/session");

	/** Seconds before its end at which a token is renewed at the latest; short ones are renewed after four fifths of their time. */
	constexpr double RefreshMargin = 60.0;
	/** Seconds before a refresh that got no answer is tried again. */
	constexpr double RefreshRetryDelay = 5.0;
	/** The same when the token ends before that. */
	constexpr double MinRefreshRetryDelay = 1.0;

	FHalvexServiceRequest MakePost(const TCHAR* Path, const FString& Body)
	{
		FHalvexServiceRequest Request;
		Request.Verb = TEXT("POST");
		Request.Path = Path;
		Request.Body = Body;
		return Request;
	}

	IHalvexServiceConnection& GetConnection()
	{
		return *UHalvexSDKEngineSubsystem::Get()->GetServiceConnection();
	}

	/** Tells of an answer that makes no sense; what is an ordinary refusal has no reason. */
	void LogReason(const TCHAR* What, const FString& Reason)
	{
		if (!Reason.IsEmpty())
		{
			UE_LOG(LogHalvexSDK, Warning, TEXT("%s at the service %s failed: %s."), What, *HalvexImageAddress::ForLog(GetConnection().GetServiceName()), *Reason);
		}
	}
}

UHalvexUser::UHalvexUser() = default;
UHalvexUser::~UHalvexUser()
{
	FTSTicker::RemoveTicker(TokenTimer);
}

TSharedPtr<IHalvexServiceExchange> UHalvexUser::Send(const FHalvexServiceRequest& Request, const FReplyHandler Handler)
{
	const TWeakObjectPtr<UHalvexUser> WeakThis = this;
	return GetConnection().Send(Request, [WeakThis, Handler](const FHalvexServiceReply& Reply)
	{
		if (UHalvexUser* This = WeakThis.Get())
		{
			(This->*Handler)(Reply);
		}
	});
}

FHalvexRememberedUser& UHalvexUser::GetRemembered() const
{
	const FString ServiceName = GetConnection().GetServiceName();
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
		LoginExchange = Send(MakePost(SessionPath, HalvexUserMessages::MakeSignIn(UserInformation)), &UHalvexUser::ReceiveLogin);
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
	LoginExchange = Send(MakePost(TEXT("api/session/guest"), TEXT("{}")), &UHalvexUser::ReceiveLogin);
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
	const EHalvexLoginError Error = HalvexUserMessages::ReadGrant(Reply, GetConnection(), EHalvexLoginError::InvalidCredentials, Grant, Reason);
	LogReason(TEXT("The sign-in"), Reason);
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
	OnLoginResult.Broadcast(bSuccess, Result);
	OnUserLogged.Broadcast(bSuccess, Result);
}

void UHalvexUser::StartRefresh(const FString& WithToken)
{
	// A refresh token is good once: whoever needs one while one is on its way waits for that.
	if (!RefreshExchange.IsValid())
	{
		RefreshExchange = Send(MakePost(TEXT("api/session/refresh"), HalvexUserMessages::MakeRefresh(WithToken)), &UHalvexUser::ReceiveRefresh);
	}
}

void UHalvexUser::ReceiveRefresh(const FHalvexServiceReply& Reply)
{
	RefreshExchange.Reset();
	FHalvexSessionGrant Grant;
	FString Reason;
	const EHalvexLoginError Error = HalvexUserMessages::ReadGrant(Reply, GetConnection(), EHalvexLoginError::SessionEnded, Grant, Reason);
	LogReason(TEXT("The renewal of the session"), Reason);
	if (Error == EHalvexLoginError::None)
	{
		ReceiveRefreshedToken(Grant);
	}
	else
	{
		ReceiveRefusedRefresh(Error, Reply.RetryAfterSeconds);
	}
}

void UHalvexUser::ReceiveRefreshedToken(const FHalvexSessionGrant& Grant)
{
	if (bLoginAwaitsRefresh)
	{
		bLoginAwaitsRefresh = false;
		Remember(Grant);
		BeginSession(Grant);
		EndLogin(EHalvexLoginError::None);
		return;
	}
	FHalvexRememberedUser& Known = GetRemembered();
	if (Known.IsAny())
	{
		Keep(Known.GetUserName(), Grant.RefreshToken);
	}
	// Without a refresh token of the session there is nobody signed in whom the refresh was for.
	if (!RefreshToken.IsEmpty())
	{
		TakeToken(Grant);
		UpdateLoginInfo(Grant.LoginInfo);
	}
}

void UHalvexUser::ReceiveRefusedRefresh(const EHalvexLoginError Error, const int32 RetryAfterSeconds)
{
	const bool bLogin = bLoginAwaitsRefresh;
	bLoginAwaitsRefresh = false;
	const bool bEnded = Error == EHalvexLoginError::SessionEnded;
	if (bEnded)
	{
		GetRemembered().Forget();
	}
	if (!RefreshToken.IsEmpty())
	{
		if (bEnded || GetSecondsLeft() <= 0.0)
		{
			EndSession();
		}
		else
		{
			const double Delay = FMath::Min(FMath::Max(RefreshRetryDelay, static_cast<double>(RetryAfterSeconds)), GetSecondsLeft());
			WatchToken(FMath::Max(Delay, MinRefreshRetryDelay));
		}
	}
	if (bLogin)
	{
		EndLogin(Error, RetryAfterSeconds);
	}
}

void UHalvexUser::Remember(const FHalvexSessionGrant& Grant)
{
	Keep(Grant.LoginInfo.UserName, bRememberLogin ? Grant.RefreshToken : FString());
}

void UHalvexUser::Keep(const FString& UserName, const FString& WithToken)
{
	FHalvexRememberedUser& Known = GetRemembered();
	if (WithToken.IsEmpty())
	{
		Known.Forget();
	}
	else if (!Known.Save(UserName, WithToken))
	{
		UE_LOG(LogHalvexSDK, Warning, TEXT("The sign-in is not remembered: it cannot be stored."));
	}
}

void UHalvexUser::BeginSession(const FHalvexSessionGrant& Grant)
{
	TakeToken(Grant);
	LoginInfo = Grant.LoginInfo;
}

void UHalvexUser::TakeToken(const FHalvexSessionGrant& Grant)
{
	Token = Grant.Token;
	RefreshToken = Grant.RefreshToken;
	TokenEnd = FApp::GetCurrentTime() + Grant.ExpiresIn;
	const double RenewedBefore = RefreshToken.IsEmpty() ? 0.0 : FMath::Min(RefreshMargin, Grant.ExpiresIn * 0.2);
	WatchToken(Grant.ExpiresIn - RenewedBefore);
}

double UHalvexUser::GetSecondsLeft() const
{
	return Token.IsEmpty() ? 0.0 : TokenEnd - FApp::GetCurrentTime();
}

bool UHalvexUser::HasValidToken() const
{
	return GetSecondsLeft() > 0.0;
}

bool UHalvexUser::IsGuestUser() const
{
	return HasValidToken() && LoginInfo.bIsGuest;
}

void UHalvexUser::WatchToken(const double Seconds)
{
	FTSTicker::RemoveTicker(TokenTimer);
	TokenTimer = FTSTicker::GetCoreTicker().AddTicker(FTickerDelegate::CreateUObject(this, &UHalvexUser::ReceiveTokenTime), static_cast<float>(Seconds));
}

bool UHalvexUser::ReceiveTokenTime(float)
{
	if (!RefreshToken.IsEmpty())
	{
		StartRefresh(RefreshToken);
	}
	else if (!HasValidToken())
	{
		EndSession();
	}
	else
	{
		// The ticker counts in less exact seconds.
		WatchToken(GetSecondsLeft());
	}
	return false;
}

void UHalvexUser::RefreshUserData()
{
	if (HasValidToken())
	{
		FHalvexServiceRequest Request;
		Request.Verb = TEXT("GET");
		Request.Path = TEXT("api/user");
		Request.Bearer = Token;
		UserDataExchange = Send(Request, &UHalvexUser::ReceiveUserData);
	}
}

void UHalvexUser::ReceiveUserData(const FHalvexServiceReply& Reply)
{
	UserDataExchange.Reset();
	FLoginInfo NewLoginInfo;
	FString Reason;
	const EHalvexLoginError Error = HalvexUserMessages::ReadUser(Reply, GetConnection(), NewLoginInfo, Reason);
	LogReason(TEXT("The request for the user's data"), Reason);
	if (Error == EHalvexLoginError::None)
	{
		UpdateLoginInfo(NewLoginInfo);
	}
	else if (Error == EHalvexLoginError::SessionEnded && !RefreshToken.IsEmpty())
	{
		StartRefresh(RefreshToken);
	}
	else if (Error == EHalvexLoginError::SessionEnded)
	{
		EndSession();
	}
}

void UHalvexUser::UpdateLoginInfo(const FLoginInfo& NewLoginInfo)
{
	const bool bChanged = !LoginInfo.IsSameUserData(NewLoginInfo);
	LoginInfo = NewLoginInfo;
	if (bChanged)
	{
		OnUserLogged.Broadcast(true, NewLoginInfo);
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

void UHalvexUser::TellSignOut()
{
	FHalvexServiceRequest Request;
	Request.Verb = TEXT("DELETE");
	Request.Path = SessionPath;
	Request.Bearer = Token;
	if (!RefreshToken.IsEmpty())
	{
		Request.Body = HalvexUserMessages::MakeRefresh(RefreshToken);
	}
	const int32 Number = NextSignOut++;
	const TWeakObjectPtr<UHalvexUser> WeakThis = this;
	SignOutExchanges.Add(Number, GetConnection().Send(Request, [WeakThis, Number](const FHalvexServiceReply&)
	{
		// The user has gone, whatever the service says to that; at the latest it forgets the session when its time is up.
		if (UHalvexUser* This = WeakThis.Get())
		{
			This->SignOutExchanges.Remove(Number);
		}
	}));
}

void UHalvexUser::ClearSession()
{
	FTSTicker::RemoveTicker(TokenTimer);
	UserDataExchange.Reset();
	Token.Empty();
	RefreshToken.Empty();
	LoginInfo = FLoginInfo();
}

void UHalvexUser::EndSession()
{
	ClearSession();
	OnUserLogout.Broadcast();
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
