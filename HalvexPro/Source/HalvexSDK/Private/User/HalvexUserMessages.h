#pragma once

#include "CoreMinimal.h"
#include "User/LoginInfo.h"

class IHalvexServiceConnection;
struct FHalvexServiceReply;
struct FHalvexUserInformation;

/** What the service says when it has signed somebody in. */
struct FHalvexSessionGrant
{
	FString Token;
	/** Seconds that the token is good for. */
	double ExpiresIn = 0.0;
	/** Gets a new token when this one has run out, once; empty where nothing is to be remembered. */
	FString RefreshToken;
	FLoginInfo LoginInfo;
};

/** The messages about the user: what is sent, and the sense of what comes. */
namespace HalvexUserMessages
{
	FString MakeSignIn(const FHalvexUserInformation& UserInformation);
	FString MakeRefresh(const FString& RefreshToken);

	/**
	 * Reads the answer to a sign-in or a refresh.
	 * @param Refused	what it means when the service refuses what it was shown
	 * @param OutReason	what is wrong with an answer that makes no sense, for the log; empty for an error that the service tells
	 */
	EHalvexLoginError ReadGrant(const FHalvexServiceReply& Reply, const IHalvexServiceConnection& Connection, EHalvexLoginError Refused, FHalvexSessionGrant& OutGrant, FString& OutReason);

	/** Reads the answer to the question who the user is. */
	EHalvexLoginError ReadUser(const FHalvexServiceReply& Reply, const IHalvexServiceConnection& Connection, FLoginInfo& OutLoginInfo, FString& OutReason);
}
