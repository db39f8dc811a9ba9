#pragma once

#include "CoreMinimal.h"
#include "Input/Events.h"
#include "Layout/WidgetPath.h"
#include "Misc/Optional.h"

class FSlateApplication;

namespace Host
{
	/** Which widget has the keyboard. */
	class FFocusTracker
	{
	public:
		explicit FFocusTracker(FSlateApplication& InApplication) : Application(InApplication) {}

		/** Focuses the lowest widget of the path that takes the focus. False when there is none, or it has the focus already. */
		bool Set(const FWidgetPath& Path, EFocusCause Cause);
		void Clear(EFocusCause Cause);

		/** When the focused widget left its window, its nearest ancestor gets the focus. */
		void Validate();

		TSharedPtr<SWidget> GetWidget() const { return FocusPath.GetLastWidget().Pin(); }
		/** Empty when nothing has the focus. */
		FWidgetPath GetPath() const;
		bool Contains(const SWidget* Widget) const { return FocusPath.ContainsWidget(Widget); }
		EFocusCause GetCause() const { return Cause; }

	private:
		void Change(const FWidgetPath& NewPath, EFocusCause NewCause);
		void TellChanging(const FWidgetPath& OldPath, const FWidgetPath& NewPath, const FFocusEvent& Event) const;

		FSlateApplication& Application;
		FWeakWidgetPath FocusPath;
		EFocusCause Cause = EFocusCause::Cleared;
	};
}
