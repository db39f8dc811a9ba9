#pragma once

#include "HAL/CriticalSection.h"

/** Holds a lock for a scope. */
class FScopeLock : private FNoncopyable
{
public:
	[[nodiscard]] explicit FScopeLock(FCriticalSection* InSection)
		: Section(InSection)
	{
		Section->Lock();
	}

	~FScopeLock()
	{
		Unlock();
	}

	/** Lets go before the end of the scope. */
	void Unlock()
	{
		if (Section != nullptr)
		{
			Section->Unlock();
			Section = nullptr;
		}
	}

private:
	FCriticalSection* Section;
};
