#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"
#include "UObject/WeakObjectPtr.h"
#include "User/LoginInfo.h"
#include "UserListener.generated.h"

class UHalvexUser;

/** Writes down what the user tells. */
UCLASS()
class UUserListener : public UObject
{
	GENERATED_BODY()

public:
	void ListenTo(UHalvexUser& User);

	UFUNCTION()
	void ReceiveResult(bool bSuccess, FLoginInfo LoginInfo);

	UFUNCTION()
	void ReceiveLogged(bool bSuccess, FLoginInfo LoginInfo);

	UFUNCTION()
	void ReceiveLogout();

	/** The events since the last call: "result Ada; logged Ada; result InvalidCredentials; logout; ". */
	FString Take();

	const FString& GetEvents() const { return Events; }

	/** Signs out as soon as somebody is signed in. */
	bool bSignOutAtOnce = false;

	int32 NumResults = 0;
	FLoginInfo LastResult;

private:
	void Write(const TCHAR* Event, bool bSuccess, const FLoginInfo& LoginInfo);

	FString Events;
	TWeakObjectPtr<UHalvexUser> ListenedTo;
};
