#pragma once

#include "CoreTypes.h"
#include "Templates/TypeHash.h"

/** Names one binding, for taking it out of a multicast delegate. */
class FDelegateHandle
{
public:
	enum EGenerateNewHandleType
	{
		GenerateNewHandle
	};

	FDelegateHandle() = default;

	/** A handle that no other binding has. */
	CORE_API explicit FDelegateHandle(EGenerateNewHandleType);

	/** True when it named a binding once; the binding may have gone since. */
	bool IsValid() const { return Id != 0; }

	void Reset() { Id = 0; }

	bool operator==(const FDelegateHandle& Other) const { return Id == Other.Id; }

	friend uint32 GetTypeHash(const FDelegateHandle& Key) { return ::GetTypeHash(Key.Id); }

private:
	uint64 Id = 0;
};
