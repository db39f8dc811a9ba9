#pragma once

#include "Containers/UnrealString.h"
#include "HAL/Platform.h"

/** A SHA-1 digest. */
struct FSHAHash
{
	uint8 Hash[20] = {};

	/** 40 hexadecimal digits. */
	CORE_API FString ToString() const;

	friend bool operator==(const FSHAHash& A, const FSHAHash& B)
	{
		for (int32 Index = 0; Index < 20; ++Index)
		{
			if (A.Hash[Index] != B.Hash[Index])
			{
				return false;
			}
		}
		return true;
	}
};

/** SHA-1 as of FIPS 180-4. Fit to name and compare data; no protection against who forges it. */
class FSHA1
{
public:
	CORE_API static FSHAHash HashBuffer(const void* Data, uint64 DataSize);
};
