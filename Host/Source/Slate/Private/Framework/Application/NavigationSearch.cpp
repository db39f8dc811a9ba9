#include "Framework/Application/NavigationSearch.h"

#include <limits>

#include "Layout/Children.h"
#include "Widgets/SWidget.h"
#include "Widgets/SWindow.h"

namespace Host
{
	namespace
	{
		bool IsWithin(const SWidget& Widget, const SWidget* Ancestor)
		{
			for (TSharedPtr<SWidget> Parent = Widget.GetParentWidget(); Parent.IsValid(); Parent = Parent->GetParentWidget())
			{
				if (Parent.Get() == Ancestor)
				{
					return true;
				}
			}
			return false;
		}

		/** A box as seen when looking in a direction: how far ahead it begins and ends, and what it covers across. */
		struct FAhead
		{
			FAhead(const FSlateRect& Rect, EUINavigation Direction)
			{
				const bool bAcross = Direction == EUINavigation::Left || Direction == EUINavigation::Right;
				const float Sign = Direction == EUINavigation::Left || Direction == EUINavigation::Up ? -1.0f : 1.0f;
				const float First = bAcross ? Rect.Left : Rect.Top;
				const float Last = bAcross ? Rect.Right : Rect.Bottom;
				Near = FMath::Min(Sign * First, Sign * Last);
				Far = FMath::Max(Sign * First, Sign * Last);
				SideStart = bAcross ? Rect.Top : Rect.Left;
				SideEnd = bAcross ? Rect.Bottom : Rect.Right;
			}

			/** Pixels between the two across the direction; 0 when they overlap there. */
			float GetSideGap(const FAhead& Other) const
			{
				return FMath::Max(FMath::Max(Other.SideStart - SideEnd, SideStart - Other.SideEnd), 0.0f);
			}

			/** Pixels between the middles of the two across the direction. */
			float GetSideOffset(const FAhead& Other) const
			{
				return FMath::Abs(SideStart + SideEnd - Other.SideStart - Other.SideEnd) * 0.5f;
			}

			float Near;
			float Far;
			float SideStart;
			float SideEnd;
		};
	}

	FNavigationSearch::FNavigationSearch(SWindow& Window, const SWidget* InWithin)
		: Within(InWithin)
	{
		Window.GetRoot().ForEachWidget([this, InWithin](SWidget& Widget)
		{
			if (!Widget.IsEnabled())
			{
				return false;
			}
			if (Widget.SupportsKeyboardFocus() && (!InWithin || IsWithin(Widget, InWithin)))
			{
				Candidates.Add(Widget.AsShared());
			}
			return true;
		});
		CollectInOrder(Window, !InWithin);
	}

	void FNavigationSearch::CollectInOrder(SWidget& Widget, bool bWithin)
	{
		Widget.GetChildren()->ForEachWidget([this, bWithin](SWidget& Child)
		{
			if (!Child.IsEnabled() || !Child.GetVisibility().IsVisible())
			{
				return;
			}
			// Whether it is cut off where it lies now does not count: scroll boxes follow the focus.
			if (bWithin && Child.SupportsKeyboardFocus())
			{
				InOrder.Add(Child.AsShared());
			}
			CollectInOrder(Child, bWithin || &Child == Within);
		});
	}

	TSharedPtr<SWidget> FNavigationSearch::Find(const SWidget* From, EUINavigation Direction) const
	{
		const bool bNext = Direction == EUINavigation::Next;
		if (bNext || Direction == EUINavigation::Previous)
		{
			return FindInOrder(From, bNext);
		}
		return FindByPlace(From, Direction, false);
	}

	TSharedPtr<SWidget> FNavigationSearch::FindWrapped(const SWidget* From, EUINavigation Direction) const
	{
		const bool bNext = Direction == EUINavigation::Next;
		if (bNext || Direction == EUINavigation::Previous)
		{
			return FindInOrder(nullptr, bNext);
		}
		return FindByPlace(From, Direction, true);
	}

	TSharedPtr<SWidget> FNavigationSearch::FindInOrder(const SWidget* From, bool bForward) const
	{
		const int32 Index = InOrder.IndexOfByPredicate([From](const TSharedRef<SWidget>& Candidate) { return &Candidate.Get() == From; });
		if (Index == INDEX_NONE)
		{
			return InOrder.IsEmpty() ? TSharedPtr<SWidget>() : TSharedPtr<SWidget>(bForward ? InOrder[0] : InOrder.Last());
		}
		const int32 Other = bForward ? Index + 1 : Index - 1;
		return InOrder.IsValidIndex(Other) ? TSharedPtr<SWidget>(InOrder[Other]) : nullptr;
	}

	TSharedPtr<SWidget> FNavigationSearch::FindByPlace(const SWidget* From, EUINavigation Direction, bool bWrap) const
	{
		if (!From)
		{
			return FindInOrder(nullptr, true);
		}
		const FAhead Start(From->GetCachedGeometry().GetRenderBoundingRect(), Direction);
		float BestCost = std::numeric_limits<float>::max();
		TSharedPtr<SWidget> Best;
		for (const TSharedRef<SWidget>& Candidate : Candidates)
		{
			if (&Candidate.Get() == From || IsWithin(Candidate.Get(), From))
			{
				continue;
			}
			const FAhead Box(Candidate->GetCachedGeometry().GetRenderBoundingRect(), Direction);
			// Rounding may make neighbours overlap a little.
			const bool bIsAhead = Box.Near >= Start.Far - 0.5f;
			if (!bWrap && !bIsAhead)
			{
				continue;
			}
			// Straight ahead counts first, and the better aligned one among neighbours. When wrapping, the farthest behind comes first.
			const float Distance = bWrap ? Box.Near : Box.Near - Start.Far;
			const float Cost = Distance + 4.0f * Start.GetSideGap(Box) + 0.1f * Start.GetSideOffset(Box);
			if (Cost < BestCost)
			{
				BestCost = Cost;
				Best = Candidate;
			}
		}
		return Best;
	}
}
