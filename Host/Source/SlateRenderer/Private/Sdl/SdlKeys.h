#pragma once

#include "CoreMinimal.h"
#include "GenericPlatform/GenericApplication.h"
#include "InputCoreTypes.h"

namespace Host::SdlKeys
{
	/**
	 * The key for what the keyboard says. Letters and signs go by what the layout writes there, all else by its place.
	 * Invalid for keys without a name.
	 */
	FKey ToKey(int32 KeyCode);

	/** Invalid for buttons beyond the fifth. */
	FKey ToMouseButton(uint8 Button);

	FModifierKeysState ToModifiers(uint16 ModState);
}
