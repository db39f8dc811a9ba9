#pragma once

#include "CoreTypes.h"

/** Whether a removal may give memory back. */
enum class EAllowShrinking : uint8
{
	No,
	Yes,
	Default = Yes
};
