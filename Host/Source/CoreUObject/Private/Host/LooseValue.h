#pragma once

#include "UObject/Property.h"

namespace Host
{
	/** One value of a property outside any container: for keys, which must not change where they are, and for trials. */
	class FLooseValue
	{
	public:
		explicit FLooseValue(const FProperty& InProperty)
			: Property(InProperty), Memory(FMemory::MallocZeroed(static_cast<SIZE_T>(InProperty.GetSize()), static_cast<uint32>(InProperty.GetMinAlignment())))
		{
			Property.InitializeValue(Memory);
		}
		FLooseValue(const FProperty& InProperty, const void* Source) : FLooseValue(InProperty)
		{
			// A value inside a container is a single one, whatever the dimension of the member that describes it.
			Property.CopySingleValue(Memory, Source);
		}
		~FLooseValue()
		{
			Property.DestroyValue(Memory);
			FMemory::Free(Memory);
		}
		FLooseValue(const FLooseValue&) = delete;
		FLooseValue& operator=(const FLooseValue&) = delete;

		void* Get() const { return Memory; }

	private:
		const FProperty& Property;
		void* Memory;
	};
}
