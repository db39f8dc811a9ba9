#pragma once

#include "CoreMinimal.h"
#include "UObject/ObjectMacros.h"
#include "Types/SlateEnums.h"
#include "TextLayout.generated.h"

/** Where lines of text stand within the width of the widget. */
UENUM(BlueprintType)
namespace ETextJustify
{
	enum Type : int
	{
		/** At the start of the reading direction. */
		Left,
		Center,
		/** At the end of the reading direction. */
		Right,
	};
}

/** Where lines may be broken to fit a width. */
UENUM(BlueprintType)
enum class ETextWrappingPolicy : uint8
{
	/** Only between words; a word that is too wide sticks out. */
	DefaultWrapping = 0,
	/** A word that is too wide is broken between characters. */
	AllowPerCharacterWrapping,
};
