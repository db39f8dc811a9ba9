#pragma once

#include "UObject/UnrealType.h"

namespace Host
{
	/** What a property path leads to. */
	struct FPropertyPlace
	{
		/** One member or element on the way. */
		struct FStep
		{
			FProperty* Property;
			void* Value;
			/** What the property is a member of; null for elements. */
			const UStruct* Struct;
			void* Container;
			/** Element of an array; INDEX_NONE for members and map values. */
			int32 Index;
		};

		/** The object whose member the way begins with: the innermost object on it. */
		UObject* Object = nullptr;
		/** From that object's own member inwards; never empty. */
		TArray<FStep> Steps;

		const FStep& Last() const { return Steps.Last(); }

		/** Follows a path; false with the reason when it leads nowhere. */
		bool Find(UObject* InObject, const FString& Path, FString& OutReason);

	private:
		bool EnterMember(const FString& Name, FString& OutReason);
		bool EnterElement(const FString& Key, FString& OutReason);
		bool EnterArrayElement(const FArrayProperty& Property, const FString& Key, FString& OutReason);
		bool EnterMapValue(const FMapProperty& Property, const FString& Key, FString& OutReason);
	};
}
