#pragma once

#include "CoreMinimal.h"

class FProperty;

namespace Host
{
	/** Memory with one value of a property. */
	class UMG_API FPropertyValue
	{
	public:
		/** A default value. */
		explicit FPropertyValue(const FProperty& InType);
		~FPropertyValue();
		FPropertyValue(FPropertyValue&& Other);
		FPropertyValue& operator=(FPropertyValue&& Other) = delete;

		void* Get() const { return Memory; }

	private:
		const FProperty* Type;
		void* Memory;
	};
}
