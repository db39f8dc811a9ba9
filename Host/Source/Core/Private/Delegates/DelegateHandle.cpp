#include "Delegates/IDelegateInstance.h"

#include <atomic>

FDelegateHandle::FDelegateHandle(EGenerateNewHandleType)
{
	static std::atomic<uint64> LastId{0};
	Id = ++LastId;
}
