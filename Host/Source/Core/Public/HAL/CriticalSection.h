#pragma once

#include "Templates/UnrealTemplate.h"

#include <mutex>

/** A lock that its holder may take again. */
class FCriticalSection : private FNoncopyable
{
public:
	void Lock() { Mutex.lock(); }
	bool TryLock() { return Mutex.try_lock(); }
	void Unlock() { Mutex.unlock(); }

private:
	std::recursive_mutex Mutex;
};
