#pragma once

#include "HAL/Platform.h"

/** Check sums by the CRC-32 of IEEE 802.3. */
struct FCrc
{
	/** Goes on from the sum of what came before. */
	CORE_API static uint32 MemCrc32(const void* Data, int32 Length, uint32 CRC = 0);
	/** Of a terminated text, each character as four bytes. */
	CORE_API static uint32 StrCrc32(const TCHAR* Data, uint32 CRC = 0);
};
