#pragma once

#include "CoreMinimal.h"
#include "Input/Reply.h"
#include "Layout/WidgetPath.h"

namespace Host
{
	/** Where an event ended. */
	struct FRoutedReply
	{
		FReply Reply = FReply::Unhandled();
		/** Down to the widget that handled it; the whole path when none did. */
		FWidgetPath Path;
	};

	/** Asks the widgets of a path from the lowest up, until one handles the event. */
	template <typename AskType>
	FRoutedReply Bubble(const FWidgetPath& Path, AskType&& Ask)
	{
		for (int32 Index = Path.Widgets.Num() - 1; Index >= 0; --Index)
		{
			const FReply Reply = Ask(Path.Widgets[Index]);
			if (Reply.IsEventHandled())
			{
				return FRoutedReply{ Reply, Path.GetPathDownTo(Path.Widgets[Index].Widget) };
			}
		}
		return FRoutedReply{ FReply::Unhandled(), Path };
	}

	/** Asks from the top down. */
	template <typename AskType>
	FRoutedReply Tunnel(const FWidgetPath& Path, AskType&& Ask)
	{
		for (const FArrangedWidget& Arranged : Path.Widgets)
		{
			const FReply Reply = Ask(Arranged);
			if (Reply.IsEventHandled())
			{
				return FRoutedReply{ Reply, Path.GetPathDownTo(Arranged.Widget) };
			}
		}
		return FRoutedReply{ FReply::Unhandled(), Path };
	}

	/** Asks the lowest widget only. */
	template <typename AskType>
	FRoutedReply ToLeaf(const FWidgetPath& Path, AskType&& Ask)
	{
		return FRoutedReply{ Path.IsValid() ? Ask(Path.Widgets.Last()) : FReply::Unhandled(), Path };
	}
}
