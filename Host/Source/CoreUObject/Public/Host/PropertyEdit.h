#pragma once

#include "CoreMinimal.h"
#include "UObject/PropertyChangedEvent.h"

class UObject;

namespace Host
{
	class FJsonNode;

	/**
	 * Changes properties the way a designer's details panel does: by path, with the notifications that an edit raises.
	 *
	 * A path names members from the object inwards: "Style.ColorID"; elements of arrays by index, "Items[2].Name"; values of maps
	 * by key, "Colors[Primary]". It goes on into an object that a member refers to; the notifications are then that object's.
	 *
	 * Each edit calls PreEditChange with the object's own member, changes the value and calls PostEditChangeChainProperty, whose
	 * base goes on to PostEditChangeProperty: Property is the innermost property, which for an element is that of the element,
	 * MemberProperty the object's own, and GetArrayIndex gives the elements on the way. Each function returns false with the reason, and changes nothing, when the path leads
	 * nowhere or the value does not read as one of the property's type.
	 */
	class COREUOBJECT_API FPropertyEdit
	{
	public:
		/** Sets a value from text as properties write it; strings, names and texts also without quotes. */
		static bool SetFromText(
			UObject* Object, const FString& Path, const FString& Text, FString& OutReason, EPropertyChangeType::Type ChangeType = EPropertyChangeType::ValueSet);

		/** Sets a value from JSON in the form that assets have. */
		static bool SetFromJson(
			UObject* Object, const FString& Path, const FJsonNode& Node, FString& OutReason, EPropertyChangeType::Type ChangeType = EPropertyChangeType::ValueSet);

		/** The property that a path leads to, and its value. */
		static bool FindValue(UObject* Object, const FString& Path, const FProperty*& OutProperty, const void*& OutValue, FString& OutReason);

		/** Writes a value as text. */
		static bool GetAsText(UObject* Object, const FString& Path, FString& OutText, FString& OutReason);

		/** Whether a property on the way to the value carries the metadata; false when the path leads nowhere. */
		static bool HasMetaData(UObject* Object, const FString& Path, const TCHAR* Key);

		/** Appends a default element to an array. */
		static bool AddElement(UObject* Object, const FString& ArrayPath, FString& OutReason);

		/** Removes an element of an array, "Items[2]". */
		static bool RemoveElement(UObject* Object, const FString& ElementPath, FString& OutReason);

		/** Gives a property the value that the object's archetype has. */
		static bool ResetToDefault(UObject* Object, const FString& Path, FString& OutReason);

		/**
		 * Whether a details panel lets the value be changed: editable, not read-only, and its EditCondition and those of what
		 * contains it hold.
		 */
		static bool CanEdit(UObject* Object, const FString& Path, FString& OutReason);
	};
}
