#pragma once

#include "CoreMinimal.h"
#include "HalvexSDKEngineSubsystem.h"
#include "HalvexSDKLog.h"
#include "Images/HalvexImageAddress.h"
#include "Service/HalvexServiceConnection.h"

/** What the requests of the user have in common. */
namespace HalvexUserSupport
{
	inline const TCHAR* const SessionPath = TEXT("api/session");

	inline FHalvexServiceRequest MakePost(const TCHAR* Path, const FString& Body)
	{
		FHalvexServiceRequest Request;
		Request.Verb = TEXT("POST");
		Request.Path = Path;
		Request.Body = Body;
		return Request;
	}

	inline IHalvexServiceConnection& GetConnection()
	{
		return *UHalvexSDKEngineSubsystem::Get()->GetServiceConnection();
	}

	/** Tells of an answer that makes no sense; what is an ordinary refusal has no reason. */
	inline void LogReason(const TCHAR* What, const FString& Reason)
	{
		if (!Reason.IsEmpty())
		{
			UE_LOG(LogHalvexSDK, Warning, TEXT("%s at the service %s failed: %s."), What, *HalvexImageAddress::ForLog(GetConnection().GetServiceName()), *Reason);
		}
	}
}
