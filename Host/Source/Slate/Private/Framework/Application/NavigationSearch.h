#pragma once

#include "CoreMinimal.h"
#include "Templates/SharedPointer.h"
#include "Types/SlateEnums.h"

class SWidget;
class SWindow;

namespace Host
{
	/** Finds where the focus goes from a widget. */
	class FNavigationSearch
	{
	public:
		/** @param InWithin	the widget that the focus stays in; null for the whole window */
		FNavigationSearch(SWindow& Window, const SWidget* InWithin);

		/** Null when there is nothing in that direction. */
		TSharedPtr<SWidget> Find(const SWidget* From, EUINavigation Direction) const;
		/** The one to go on with at the opposite side. */
		TSharedPtr<SWidget> FindWrapped(const SWidget* From, EUINavigation Direction) const;

	private:
		void CollectInOrder(SWidget& Widget, bool bWithin);
		TSharedPtr<SWidget> FindInOrder(const SWidget* From, bool bForward) const;
		TSharedPtr<SWidget> FindByPlace(const SWidget* From, EUINavigation Direction, bool bWrap) const;

		const SWidget* Within;
		/** The widgets that take the focus, in the order of the tree: those that are seen, and also those that are scrolled away. */
		TArray<TSharedRef<SWidget>> Candidates;
		TArray<TSharedRef<SWidget>> InOrder;
	};
}
