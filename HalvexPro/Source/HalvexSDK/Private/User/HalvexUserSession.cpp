#include "User/HalvexUser.h"

#include "Misc/App.h"
#include "User/HalvexRememberedUser.h"
#include "User/HalvexUserMessages.h"
#include "User/HalvexUserSupport.h"

namespace
{
	/** Seconds before its end at which a token is renewed at the latest; short ones are renewed after four fifths of their time. */
	constexpr double RefreshMargin = 60.0;
	/** Seconds before a refresh that got no answer is tried again. */
	constexpr double RefreshRetryDelay = 5.0;
	/** The same when the token ends before that. */
	constexpr double MinRefreshRetryDelay = 1.0;
}

void UHalvexUser::StartRefresh(const FString& WithToken)
{
	// A refresh token is good once: whoever needs one while one is on its way waits for that.
	if (!RefreshExchange.IsValid())
	{
		RefreshExchange = Send(HalvexUserSupport::MakePost(TEXT("api/session/refresh"), HalvexUserMessages::MakeRefresh(WithToken)), &UHalvexUser::ReceiveRefresh);
	}
}

void UHalvexUser::ReceiveRefresh(const FHalvexServiceReply& Reply)
{
	RefreshExchange.Reset();
	FHalvexSessionGrant Grant;
	FString Reason;
	const EHalvexLoginError Error = HalvexUserMessages::ReadGrant(Reply, HalvexUserSupport::GetConnection(), EHalvexLoginError::SessionEnded, Grant, Reason);
	HalvexUserSupport::LogReason(TEXT("The renewal of the session"), Reason);
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
	const EHalvexLoginError Error = HalvexUserMessages::ReadUser(Reply, HalvexUserSupport::GetConnection(), NewLoginInfo, Reason);
	HalvexUserSupport::LogReason(TEXT("The request for the user's data"), Reason);
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

void UHalvexUser::TellSignOut()
{
	FHalvexServiceRequest Request;
	Request.Verb = TEXT("DELETE");
	Request.Path = HalvexUserSupport::SessionPath;
	Request.Bearer = Token;
	if (!RefreshToken.IsEmpty())
	{
		Request.Body = HalvexUserMessages::MakeRefresh(RefreshToken);
	}
	const int32 Number = NextSignOut++;
	const TWeakObjectPtr<UHalvexUser> WeakThis = this;
	SignOutExchanges.Add(Number, HalvexUserSupport::GetConnection().Send(Request, [WeakThis, Number](const FHalvexServiceReply&)
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
