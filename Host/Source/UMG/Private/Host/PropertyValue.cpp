#include "Host/PropertyValue.h"

#include "HAL/UnrealMemory.h"
#include "UObject/UnrealType.h"

namespace Host
{
	FPropertyValue::FPropertyValue(const FProperty& InType)
		: Type(&InType)
		, Memory(FMemory::Malloc(static_cast<SIZE_T>(InType.GetSize()), 16))
	{
		Type->InitializeValue(Memory);
	}

	FPropertyValue::FPropertyValue(FPropertyValue&& Other)
		: Type(Other.Type)
		, Memory(Other.Memory)
	{
		Other.Memory = nullptr;
	}

	FPropertyValue::~FPropertyValue()
	{
		if (Memory)
		{
			Type->DestroyValue(Memory);
			FMemory::Free(Memory);
		}
	}
}
