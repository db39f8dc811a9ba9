#pragma once

#include "CoreMinimal.h"

namespace Host
{
	/** What a locator asks for, taken apart. */
	struct FWidgetLocator
	{
		enum class EKind : uint8
		{
			Name,
			Text,
			Class,
		};

		/** Reads "Outer/Inner/Name", "Outer/text:What it says", "Outer/class:Button", each with "#2" behind it for the second one. */
		static FWidgetLocator Parse(const FString& Locator);

		EKind Kind = EKind::Name;
		/** The name, the text or the class. */
		FString Sought;
		/** Names of what it stands in, outermost first. */
		TArray<FString> Outers;
		/** Which of several, from 1; 0 when there must be one only. */
		int32 Number = 0;
	};
}
