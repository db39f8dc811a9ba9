#pragma once

#include "CoreMinimal.h"
#include "Blueprint/UserWidget.h"
#include "User/HalvexUserInformation.h"
#include "User/LoginInfo.h"
#include "HxUserLogin.generated.h"

DECLARE_DYNAMIC_MULTICAST_DELEGATE_TwoParams(FOnHxLoginResult, bool, bSuccessful, FLoginInfo, UserLogInfo);

/** Base of the screens that people sign in with, by name and password or as a guest. */
UCLASS()
class HALVEXPROUI_API UHxUserLogin : public UUserWidget
{
	GENERATED_BODY()

public:
	/** The result of a request to sign in, after the graph was told. */
	UPROPERTY(BlueprintAssignable, Category = "HxUserLogin")
	FOnHxLoginResult OnLoginResult;

	/** Asks to sign in by name and password. */
	UFUNCTION(BlueprintCallable, Category = "HxUserLogin")
	void RequestUserLogin(FString InUserName, FString InUserPassword);

	/** Asks to go on as a guest. */
	UFUNCTION(BlueprintCallable, Category = "HxUserLogin")
	void RequestGuestLogin();

	/** Whether requests by name ask to be remembered for the next start. */
	UFUNCTION(BlueprintCallable, Category = "HxUserLogin")
	void SetRememberMeOption(bool InChecked);

	/** A sign-in was remembered: show its name. Comes when the screen is shown; the password is never among it. */
	UFUNCTION(BlueprintImplementableEvent, Category = "HxUserLogin")
	void OnLoadRememberOptions(const FHalvexUserInformation& LoginUser);

	/** A request has begun or ended: show progress, or take it away. */
	UFUNCTION(BlueprintImplementableEvent, Category = "HxUserLogin")
	void OnLoginInProcess(bool bInProgress);

	/** The result of a request: close the screen, or say what is wrong. */
	UFUNCTION(BlueprintImplementableEvent, Category = "HxUserLogin")
	void OnReceivedLoginResult(bool bSuccessful, FLoginInfo UserLogInfo);

protected:
	virtual void NativeConstruct() override;

	/** Hands what is remembered to the graph. */
	void LoadUserDataSaved();

	/** The wish to be remembered, sent with each request by name. */
	UPROPERTY(BlueprintReadOnly, Category = "HxUserLogin")
	bool bRememberMe = false;

private:
	UFUNCTION()
	void Received_LoginResult(bool bSuccessful, FLoginInfo UserLogInfo);
};
