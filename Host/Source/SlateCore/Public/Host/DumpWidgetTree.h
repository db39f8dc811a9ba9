#pragma once

#include "CoreMinimal.h"
#include "Templates/SharedPointer.h"

class SWidget;

namespace Host
{
	/**
	 * The widget and everything in it as text, a line each, indented by depth: type, [tag], position in the root and size in
	 * slate units as "(x, y) w x h", the visibility unless Visible, "disabled", and the text it shows in quotes.
	 */
	SLATECORE_API FString DumpWidgetTree(const TSharedRef<SWidget>& Root);

	/** Gives the text that a widget shows, for dumps and for finding widgets by text. Returns false when it shows none. */
	using FWidgetTextReader = bool (*)(const SWidget& Widget, FString& OutText);

	/** Adds a reader for the widgets of one type, by the name written in SNew. */
	SLATECORE_API void RegisterWidgetTextReader(FName TypeName, FWidgetTextReader Reader);

	/** The text that the widget itself shows; empty when none. */
	SLATECORE_API FString GetWidgetText(const SWidget& Widget);
}
