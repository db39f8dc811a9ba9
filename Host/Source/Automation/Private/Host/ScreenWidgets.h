#pragma once

#include "CoreMinimal.h"

class SWidget;
class UWidget;

namespace Host
{
	/** A widget in a window, seen or not. */
	struct FScreenWidget
	{
		TSharedRef<SWidget> Slate;
		/** The designer's widget whose Slate side it is; null for a part of one. */
		UWidget* Object = nullptr;
		/** The outermost widget around it, or itself, that is hidden; null when it shows. */
		const SWidget* HiddenBy = nullptr;
	};

	/** What stands in the windows now, parents before children and what lies below before what lies on it. */
	class FScreenWidgets
	{
	public:
		/** Lays out what changed, and looks. */
		FScreenWidgets();

		const TArray<FScreenWidget>& GetAll() const { return Widgets; }

		/** The designer's widget of a Slate widget, or the nearest one around it; null when there is none. */
		UWidget* FindObject(const SWidget& Slate) const;

		/** What people call it: the name of that designer's widget, or the Slate type where there is none. */
		FString GetNameOf(const SWidget& Slate) const;

		/** Whether any of it is in the picture. */
		bool IsDrawn(const SWidget& Slate) const { return Drawn.Contains(&Slate); }

	private:
		void Add(SWidget& Slate, const SWidget* HiddenBy);
		void AddObjects();

		TArray<FScreenWidget> Widgets;
		/** Where in Widgets each one stands. */
		TMap<const SWidget*, int32> Places;
		TSet<const SWidget*> Drawn;
	};
}
