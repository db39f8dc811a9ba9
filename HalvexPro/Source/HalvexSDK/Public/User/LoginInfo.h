#pragma once

#include "CoreMinimal.h"
#include "Images/HalvexImageModels.h"
#include "LoginInfo.generated.h"

/** Why a request of the user had no success. */
UENUM(BlueprintType)
enum class EHalvexLoginError : uint8
{
	/** It had success. */
	None,
	/** The user name or the password is wrong. */
	InvalidCredentials,
	/** The sign-in that was remembered, or the current one, is not accepted any more; the password is needed. */
	SessionEnded,
	/** The service wants to be left in peace for a while. */
	TooManyAttempts,
	/** The service was not reached, or did not answer in time. */
	NoAnswer,
	/** What answered makes no sense: it is not the service, or not one that this program understands. */
	BadAnswer,
	/** The service reports a fault of its own. */
	ServerFault,
	/** The request was given up: a later one took its place, or the user signed out. */
	Cancelled
};

/** Who is signed in. */
USTRUCT(BlueprintType)
struct HALVEXSDK_API FLoginInfo
{
	GENERATED_BODY()

	/** Key of the user at the service; empty means that there is no user. */
	UPROPERTY(BlueprintReadWrite, Category = "HalvexUser")
	FString UserId;

	/** What the user signs in with. */
	UPROPERTY(BlueprintReadWrite, Category = "HalvexUser")
	FString UserName;

	/** How the user is to be called; the user name when the service knows none. */
	UPROPERTY(BlueprintReadWrite, Category = "HalvexUser")
	FString DisplayName;

	/** May be empty. */
	UPROPERTY(BlueprintReadWrite, Category = "HalvexUser")
	FString Email;

	/** Signed in as a guest. */
	UPROPERTY(BlueprintReadWrite, Category = "HalvexUser")
	bool bIsGuest = false;

	/** Picture of the user; without an address there is none. */
	UPROPERTY(BlueprintReadWrite, Category = "HalvexUser")
	FImageObjectData UserImage;

	/** Why nobody was signed in, for the result of a request that had no success. */
	UPROPERTY(BlueprintReadWrite, Category = "HalvexUser")
	EHalvexLoginError Error = EHalvexLoginError::None;

	/** With too many attempts: seconds until the service may be asked again; 0 when it does not tell. */
	UPROPERTY(BlueprintReadWrite, Category = "HalvexUser")
	int32 RetryAfterSeconds = 0;

	/** Whether they tell the same of a user. */
	bool IsSameUserData(const FLoginInfo& Other) const;
};
