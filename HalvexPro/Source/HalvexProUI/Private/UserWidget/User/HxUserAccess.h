#pragma once

#include "HalvexSDKEngineSubsystem.h"
#include "User/HalvexUser.h"

namespace HxUserAccess
{
	/** The user of this program; null where there is none. */
	inline UHalvexUser* GetUser()
	{
		const UHalvexSDKEngineSubsystem* Subsystem = UHalvexSDKEngineSubsystem::Get();
		return Subsystem ? Subsystem->GetHalvexUser() : nullptr;
	}
}
