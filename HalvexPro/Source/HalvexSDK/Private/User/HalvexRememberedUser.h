#pragma once

#include "CoreMinimal.h"

/**
 * The sign-in that is remembered from start to start: the user's name and a refresh token, never the password. They are kept by
 * the platform's store of values, under the name of the service that gave them.
 */
class FHalvexRememberedUser
{
public:
	/** What is remembered for a service. */
	void Load(const FString& InServiceName);

	/** Remembers another sign-in in its place; false when that cannot be stored: then nothing is remembered. */
	bool Save(const FString& InUserName, const FString& InRefreshToken);

	void Forget();

	bool IsAny() const { return !RefreshToken.IsEmpty(); }
	const FString& GetServiceName() const { return ServiceName; }
	const FString& GetUserName() const { return UserName; }
	const FString& GetRefreshToken() const { return RefreshToken; }

private:
	FString ServiceName;
	FString UserName;
	FString RefreshToken;
};
