#pragma once

#include "HAL/Platform.h"

/** How the pixels of a texture are stored. */
enum EPixelFormat : uint8
{
	PF_Unknown = 0,
	/** Four bytes: blue, green, red, alpha; FColor. */
	PF_B8G8R8A8 = 2,
};
