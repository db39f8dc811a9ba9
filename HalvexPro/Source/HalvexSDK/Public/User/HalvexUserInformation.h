#pragma once

#include "CoreMinimal.h"
#include "HalvexUserInformation.generated.h"

/** What a sign-in is asked for with; also what is remembered of one, then without the password. */
USTRUCT(BlueprintType)
struct HALVEXSDK_API FHalvexUserInformation
{
	GENERATED_BODY()

	FHalvexUserInformation() = default;
	FHalvexUserInformation(bool bInRememberMe, const FString& InUserName, const FString& InPassword)
		: bRememberMe(bInRememberMe)
		, UserName(InUserName)
		, Password(InPassword)
	{
	}

	/** The sign-in is to be remembered for the next start. */
	UPROPERTY(BlueprintReadWrite, Category = "HalvexUser")
	bool bRememberMe = false;

	UPROPERTY(BlueprintReadWrite, Category = "HalvexUser")
	FString UserName;

	/** Goes to the service and nowhere else. Empty together with the name that is remembered: sign in with what is remembered. */
	UPROPERTY(BlueprintReadWrite, Category = "HalvexUser")
	FString Password;
};
