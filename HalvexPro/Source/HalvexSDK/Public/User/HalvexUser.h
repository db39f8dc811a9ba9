#pragma once

#include "CoreMinimal.h"
#include "Containers/Ticker.h"
#include "UObject/Object.h"
#include "User/HalvexUserInformation.h"
#include "User/LoginInfo.h"
#include "HalvexUser.generated.h"

class FHalvexRememberedUser;
class IHalvexServiceConnection;
class IHalvexServiceExchange;
struct FHalvexServiceReply;
struct FHalvexServiceRequest;
struct FHalvexSessionGrant;

DECLARE_DYNAMIC_MULTICAST_DELEGATE_TwoParams(FHalvexLoginEvent, bool, bSuccess, FLoginInfo, LoginInfo);
DECLARE_DYNAMIC_MULTICAST_DELEGATE(FHalvexLogoutEvent);

/**
 * The user of this program: signs in and out, and keeps the session. The session's token is in memory only; it is renewed before
 * it runs out where the service allows that, and when it has run out the user is signed out. Every request ends in one login
 * result; of two at once the later counts, and the earlier ends as cancelled. On the game thread.
 */
UCLASS(BlueprintType)
class HALVEXSDK_API UHalvexUser : public UObject
{
	GENERATED_BODY()

public:
	UHalvexUser();
	virtual ~UHalvexUser() override;

	/** The result of a request to sign in; without success it tells why. */
	UPROPERTY(BlueprintAssignable, Category = "HalvexUser")
	FHalvexLoginEvent OnLoginResult;

	/**
	 * Comes after each login result, with the same, unless somebody signed out in answer to that; and when the data of the user who
	 * is signed in has changed.
	 */
	UPROPERTY(BlueprintAssignable, Category = "HalvexUser")
	FHalvexLoginEvent OnUserLogged;

	/** Nobody is signed in any more: the user signed out, or the session ran out. */
	UPROPERTY(BlueprintAssignable, Category = "HalvexUser")
	FHalvexLogoutEvent OnUserLogout;

	/**
	 * Asks the service to sign a user in; the result comes later. The name that is remembered with an empty password signs in with
	 * what is remembered. A success without the wish to be remembered forgets what was.
	 */
	UFUNCTION(BlueprintCallable, Category = "HalvexUser")
	void RequestUserLogin(FHalvexUserInformation UserInformation);

	/** Asks the service for a guest's session; the result comes later. What is remembered stays. */
	UFUNCTION(BlueprintCallable, Category = "HalvexUser")
	void RequestGuestUser();

	/** Gives up the request to sign in that is in process; it ends as cancelled. Whoever is signed in stays so. */
	UFUNCTION(BlueprintCallable, Category = "HalvexUser")
	void CancelLogin();

	/**
	 * Signs out at once, and tells the service. A request that is in process ends as cancelled. What is remembered of the user is
	 * forgotten; a guest's sign-out leaves what was remembered before.
	 */
	UFUNCTION(BlueprintCallable, Category = "HalvexUser")
	void RequestUserLogout();

	/** Asks the service for the data of the user who is signed in; a change of it comes as OnUserLogged. */
	UFUNCTION(BlueprintCallable, Category = "HalvexUser")
	void RefreshUserData();

	/** Who is signed in; empty when nobody is. */
	UFUNCTION(BlueprintPure, Category = "HalvexUser")
	FLoginInfo GetUserLoginInfo() const { return LoginInfo; }

	/** Somebody is signed in, guests included, and the session has not run out. */
	UFUNCTION(BlueprintPure, Category = "HalvexUser")
	bool HasValidToken() const;

	UFUNCTION(BlueprintPure, Category = "HalvexUser")
	bool IsGuestUser() const;

	/** Whether a sign-in was remembered that can be repeated without the password. */
	UFUNCTION(BlueprintPure, Category = "HalvexUser")
	virtual bool HasRememberedCredentials() const;

	/** What is remembered: the name, and the flag set; never a password. Empty, with the flag not set, when nothing is. */
	UFUNCTION(BlueprintPure, Category = "HalvexUser")
	virtual FHalvexUserInformation GetUserInfo() const;

	/** Forgets the sign-in that was remembered. */
	UFUNCTION(BlueprintCallable, Category = "HalvexUser")
	void ForgetRememberedCredentials();

	/** A request to sign in has not ended yet. */
	UFUNCTION(BlueprintPure, Category = "HalvexUser")
	bool IsLoginInProcess() const { return LoginExchange.IsValid() || bLoginAwaitsRefresh; }

	/** For requests of the service in the name of the user; empty when nobody is signed in. */
	const FString& GetToken() const { return Token; }

	/** Gives up whatever is on its way and ends the session, without telling the service; what is remembered stays. */
	void Abandon();

private:
	using FReplyHandler = void (UHalvexUser::*)(const FHalvexServiceReply&);

	TSharedPtr<IHalvexServiceExchange> Send(const FHalvexServiceRequest& Request, FReplyHandler Handler);
	FHalvexRememberedUser& GetRemembered() const;
	bool IsRemembered(const FHalvexUserInformation& UserInformation) const;

	bool GiveUpLogin();
	void ReceiveLogin(const FHalvexServiceReply& Reply);
	void EndLogin(EHalvexLoginError Error, int32 RetryAfterSeconds = 0);

	void StartRefresh(const FString& WithToken);
	void ReceiveRefresh(const FHalvexServiceReply& Reply);
	void ReceiveRefreshedToken(const FHalvexSessionGrant& Grant);
	void ReceiveRefusedRefresh(EHalvexLoginError Error, int32 RetryAfterSeconds);

	void ReceiveUserData(const FHalvexServiceReply& Reply);
	void UpdateLoginInfo(const FLoginInfo& NewLoginInfo);

	/** Remembers the sign-in when that was asked for, and forgets what was remembered when not. */
	void Remember(const FHalvexSessionGrant& Grant);
	void Keep(const FString& UserName, const FString& WithToken);

	void BeginSession(const FHalvexSessionGrant& Grant);
	void TakeToken(const FHalvexSessionGrant& Grant);
	void WatchToken(double Seconds);
	bool ReceiveTokenTime(float DeltaSeconds);
	double GetSecondsLeft() const;
	void ClearSession();
	void EndSession();
	void TellSignOut();

	/** In memory only; empty when nobody is signed in. */
	FString Token;
	/** Renews the token; empty where the service gave none. */
	FString RefreshToken;
	/** On the engine's clock. */
	double TokenEnd = 0.0;
	FLoginInfo LoginInfo;
	FTSTicker::FDelegateHandle TokenTimer;

	/** The wish of the request in process. */
	bool bRememberLogin = false;
	/** The request in process waits for the refresh. */
	bool bLoginAwaitsRefresh = false;
	TSharedPtr<IHalvexServiceExchange> LoginExchange;
	TSharedPtr<IHalvexServiceExchange> RefreshExchange;
	TSharedPtr<IHalvexServiceExchange> UserDataExchange;
	/** The sign-outs that the service is being told of. */
	TMap<int32, TSharedPtr<IHalvexServiceExchange>> SignOutExchanges;
	int32 NextSignOut = 0;

	/** Read when it is needed first, and anew for another service. */
	mutable TSharedPtr<FHalvexRememberedUser> Remembered;
};
