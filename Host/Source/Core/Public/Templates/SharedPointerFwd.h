#pragma once

#include "CoreTypes.h"

/** Whether pointers to one object may be copied and released on several threads at once. */
enum class ESPMode : uint8
{
	NotThreadSafe = 0,
	ThreadSafe = 1
};

template <class ObjectType, ESPMode Mode = ESPMode::ThreadSafe>
class TSharedRef;
template <class ObjectType, ESPMode Mode = ESPMode::ThreadSafe>
class TSharedPtr;
template <class ObjectType, ESPMode Mode = ESPMode::ThreadSafe>
class TWeakPtr;
template <class ObjectType, ESPMode Mode = ESPMode::ThreadSafe>
class TSharedFromThis;
