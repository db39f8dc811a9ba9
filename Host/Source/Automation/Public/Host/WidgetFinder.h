#pragma once

#include "CoreMinimal.h"
#include "Layout/SlateRect.h"

class SWidget;
class UWidget;

namespace Host
{
	/** A widget that shows. */
	struct FFoundWidget
	{
		TSharedPtr<SWidget> Slate;
		/** The designer's widget that it is or is part of; null for what only Slate knows, such as a menu. */
		UWidget* Object = nullptr;
	};

	/**
	 * Finds what a person can see in the windows, by locators:
	 *
	 *   "Name"                   a widget of that name
	 *   "text:What it says"      what shows exactly this text
	 *   "class:Button"           a widget of a class, or of a Slate type; for a blueprint with or without "_C"
	 *   "Outer/Inner/Name"       the same, inside others by name; any number of widgets may stand between
	 *   "class:Button#2"         the second one of several, in the order in which they are drawn
	 *
	 * Case counts. What is hidden, or stands in something that is, is not found; what is scrolled out of view is.
	 */
	class FWidgetFinder
	{
	public:
		/** Everything that shows and fits, in the order in which it is drawn. */
		static TArray<FFoundWidget> FindAll(const FString& Locator);

		/**
		 * The one that shows and fits. False with one line that says why there is not one: nothing fits, and what comes nearest;
		 * several do, and how many; or it is hidden, and by what.
		 */
		static bool Find(const FString& Locator, FFoundWidget& OutFound, FString& OutReason);

		/**
		 * Where the widget can be pointed at, in pixels of its window: the middle of what is in view of it, or another place in
		 * it when that one is covered. False with one line that says what is in the way.
		 */
		static bool FindPoint(const FFoundWidget& Found, FVector2D& OutPoint, FString& OutReason);

		/** The part of the widget that is in view, in pixels of its window. False with one line that says what cuts it off. */
		static bool FindViewRect(const FFoundWidget& Found, FSlateRect& OutRect, FString& OutReason);
	};
}
