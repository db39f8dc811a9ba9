#pragma once

#include "CoreMinimal.h"
#include "Blueprint/UserWidget.h"
#include "User/LoginInfo.h"
#include "HxUserDataDisplay.generated.h"

class UTexture2D;

DECLARE_DYNAMIC_DELEGATE_TwoParams(FOnUserImageRequestFinished, bool, bSuccess, UTexture2D*, Texture);

/** User Widget to display the user data once the user is logged, or when you want to pick a specific data to display */
UCLASS()
class HALVEXPROUI_API UHxUserDataDisplay : public UUserWidget
{
	GENERATED_BODY()

public:
	/** Gets the data of the user who signed in last, also after the sign-out; false when nobody has. */
	UFUNCTION(BlueprintCallable, Category = "HxUserDataDisplay")
	bool GetUserData(FLoginInfo& OutUserData);

	/**
	 * Fetches the user's picture. The callback gets it, or false and nothing; for a user without a picture it gets that at once
	 * and once more when the request has ended. Of several requests only the last one's callback is called.
	 */
	UFUNCTION(BlueprintCallable, Category = "HxUserDataDisplay")
	void GetUserImage(FOnUserImageRequestFinished ReceivedUserImage);

	/** Signed in as a guest. */
	UFUNCTION(BlueprintCallable, Category = "HxUserDataDisplay")
	bool IsGuestUser() const;

	/** Signed in, guests included. */
	UFUNCTION(BlueprintCallable, Category = "HxUserDataDisplay")
	bool IsUserLogged() const;

	/** Somebody has signed in, or was when this widget was made: show the data. */
	UFUNCTION(BlueprintImplementableEvent, Category = "HxUserDataDisplay")
	void OnUserLogged(const FLoginInfo& UserInfo);

	/** Nobody is signed in any more. */
	UFUNCTION(BlueprintImplementableEvent, Category = "HxUserDataDisplay")
	void OnUserLogout();

protected:
	virtual void NativeOnInitialized() override;

	/** The user who signed in last. */
	UPROPERTY(BlueprintReadOnly, Category = "HxUserDataDisplay")
	FLoginInfo UserLoginInfo;

private:
	UFUNCTION()
	void Received_UserLogged(bool bSuccess, FLoginInfo LoginInfo);

	UFUNCTION()
	void Received_UserLogout();

	UFUNCTION()
	void Received_ImageUserSolver(const TArray<UTexture2D*>& Texture2Ds);

	/** Of the last request for the picture. */
	UPROPERTY()
	FOnUserImageRequestFinished PendingImageCallback;
};
