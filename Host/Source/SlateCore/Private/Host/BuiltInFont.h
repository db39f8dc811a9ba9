#pragma once

#include "CoreMinimal.h"

namespace Host
{
	/** The font file that is part of the program, for when no other can be used. */
	TArray<uint8> ReadBuiltInFont();
}
