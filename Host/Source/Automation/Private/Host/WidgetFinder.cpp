#include "Host/WidgetFinder.h"

#include "Components/Widget.h"
#include "Framework/Application/SlateApplication.h"
#include "Host/DumpWidgetTree.h"
#include "Host/NearestText.h"
#include "Host/ScreenWidgets.h"
#include "Host/WidgetLocator.h"
#include "Layout/WidgetPath.h"
#include "UObject/Class.h"
#include "Widgets/SWindow.h"

namespace Host
{
	namespace
	{
		FString GetClassName(const FScreenWidget& Widget)
		{
			return Widget.Object ? Widget.Object->GetClass()->GetName() : Widget.Slate->GetTypeAsString();
		}

		/** What of the widget a locator of that kind looks at; empty when it has none. */
		FString GetSoughtPart(const FScreenWidget& Widget, FWidgetLocator::EKind Kind)
		{
			switch (Kind)
			{
			case FWidgetLocator::EKind::Text:
				return GetWidgetText(Widget.Slate.Get());
			case FWidgetLocator::EKind::Class:
				return GetClassName(Widget);
			default:
				return Widget.Object ? Widget.Object->GetName() : FString();
			}
		}

		bool IsSought(const FScreenWidget& Widget, const FWidgetLocator& Locator)
		{
			const FString Part = GetSoughtPart(Widget, Locator.Kind);
			return Part.Equals(Locator.Sought) || (Locator.Kind == FWidgetLocator::EKind::Class && Part.Equals(Locator.Sought + TEXT("_C")));
		}

		/** Whether the widgets of those names stand around, the last one innermost. */
		bool IsInside(const FScreenWidgets& Screen, const SWidget& Slate, TArray<FString> Outers)
		{
			for (TSharedPtr<SWidget> Parent = Slate.GetParentWidget(); Parent && !Outers.IsEmpty(); Parent = Parent->GetParentWidget())
			{
				if (Screen.GetNameOf(*Parent).Equals(Outers.Last()))
				{
					Outers.Pop();
				}
			}
			return Outers.IsEmpty();
		}

		/** What fits, whether it shows or not. */
		TArray<FScreenWidget> FindFitting(const FScreenWidgets& Screen, const FWidgetLocator& Locator)
		{
			TArray<FScreenWidget> Fitting;
			for (const FScreenWidget& Widget : Screen.GetAll())
			{
				if (IsSought(Widget, Locator) && IsInside(Screen, Widget.Slate.Get(), Locator.Outers))
				{
					Fitting.Add(Widget);
				}
			}
			return Fitting;
		}

		FFoundWidget ToFound(const FScreenWidgets& Screen, const FScreenWidget& Widget)
		{
			return { Widget.Slate, Screen.FindObject(Widget.Slate.Get()) };
		}

		FString DescribeHiding(const FScreenWidgets& Screen, const FString& Locator, const FScreenWidget& Widget)
		{
			const SWidget& Hider = *Widget.HiddenBy;
			const FString How = Hider.GetVisibility().IsVisible() ? FString(TEXT("see-through")) : Hider.GetVisibility().ToString().ToLower();
			if (&Hider == &Widget.Slate.Get())
			{
				return FString::Printf(TEXT("'%s' is there, but it is %s"), *Locator, *How);
			}
			return FString::Printf(TEXT("'%s' is there, but stands in '%s', which is %s"), *Locator, *Screen.GetNameOf(Hider), *How);
		}

		FString DescribeAbsence(const FScreenWidgets& Screen, const FString& Locator, const FWidgetLocator& Parsed)
		{
			TArray<FString> Candidates;
			for (const FScreenWidget& Widget : Screen.GetAll())
			{
				if (Widget.HiddenBy)
				{
					continue;
				}
				if (IsSought(Widget, Parsed))
				{
					return FString::Printf(TEXT("there is no widget '%s': '%s' stands elsewhere"), *Locator, *Parsed.Sought);
				}
				if (const FString Part = GetSoughtPart(Widget, Parsed.Kind); !Part.IsEmpty())
				{
					Candidates.Add(Part);
				}
			}
			const FString Nearest = FindNearest(Parsed.Sought, Candidates, FMath::Max(1, Parsed.Sought.Len() / 2));
			return FString::Printf(TEXT("there is no widget '%s'"), *Locator) + (Nearest.IsEmpty() ? FString() : FString::Printf(TEXT("; the nearest is '%s'"), *Nearest));
		}

		bool IsSameOrIn(const SWidget& Inner, const SWidget& Outer)
		{
			const SWidget* Widget = &Inner;
			while (Widget && Widget != &Outer)
			{
				Widget = Widget->GetParentWidget().Get();
			}
			return Widget != nullptr;
		}

		/** What gets the mouse at a point; null outside of all windows. */
		TSharedPtr<SWidget> FindUnder(FVector2f Point)
		{
			FSlateApplication& Application = FSlateApplication::Get();
			const FWidgetPath Path = Application.LocateWindowUnderMouse(FVector2D(Point), Application.GetTopLevelWindows(), true);
			return Path.IsValid() ? TSharedPtr<SWidget>(Path.GetLastWidget()) : nullptr;
		}

		/** Whether something else gets the mouse there; what the widget stands in gets it where the widget itself lets it through. */
		bool IsCovered(const SWidget& Widget, const TSharedPtr<SWidget>& Under)
		{
			return Under && !IsSameOrIn(*Under, Widget) && !IsSameOrIn(Widget, *Under);
		}
	}

	TArray<FFoundWidget> FWidgetFinder::FindAll(const FString& Locator)
	{
		const FScreenWidgets Screen;
		const FWidgetLocator Parsed = FWidgetLocator::Parse(Locator);
		TArray<FFoundWidget> Found;
		for (const FScreenWidget& Widget : FindFitting(Screen, Parsed))
		{
			if (!Widget.HiddenBy)
			{
				Found.Add(ToFound(Screen, Widget));
			}
		}
		if (Parsed.Number > 0)
		{
			return Found.IsValidIndex(Parsed.Number - 1) ? TArray<FFoundWidget>({ Found[Parsed.Number - 1] }) : TArray<FFoundWidget>();
		}
		return Found;
	}

	bool FWidgetFinder::Find(const FString& Locator, FFoundWidget& OutFound, FString& OutReason)
	{
		const FScreenWidgets Screen;
		const FWidgetLocator Parsed = FWidgetLocator::Parse(Locator);
		const TArray<FScreenWidget> Fitting = FindFitting(Screen, Parsed);
		const TArray<FScreenWidget> Shown = Fitting.FilterByPredicate([](const FScreenWidget& Widget) { return !Widget.HiddenBy; });
		const int32 Index = FMath::Max(Parsed.Number - 1, 0);
		if (Shown.IsEmpty())
		{
			OutReason = Fitting.IsEmpty() ? DescribeAbsence(Screen, Locator, Parsed) : DescribeHiding(Screen, Locator, Fitting[0]);
			return false;
		}
		if (Parsed.Number == 0 && Shown.Num() > 1)
		{
			OutReason = FString::Printf(TEXT("'%s' are %d widgets: put the name of what it stands in before it, or '#1' to '#%d' behind it"), *Locator, Shown.Num(), Shown.Num());
			return false;
		}
		if (!Shown.IsValidIndex(Index))
		{
			OutReason = FString::Printf(TEXT("there is no widget '%s': there are %d"), *Locator, Shown.Num());
			return false;
		}
		OutFound = ToFound(Screen, Shown[Index]);
		return true;
	}

	bool FWidgetFinder::FindViewRect(const FFoundWidget& Found, FSlateRect& OutRect, FString& OutReason)
	{
		const FScreenWidgets Screen;
		// Where the widget is not drawn, its place is an old one or none.
		const bool bDrawn = Screen.IsDrawn(*Found.Slate);
		OutRect = Found.Slate->GetCachedGeometry().GetRenderBoundingRect();
		if (OutRect.IsEmpty() && (bDrawn || FVector2f(Found.Slate->GetDesiredSize()).IsNearlyZero()))
		{
			OutReason = FString::Printf(TEXT("'%s' has no size"), *Screen.GetNameOf(*Found.Slate));
			return false;
		}
		for (TSharedPtr<SWidget> Parent = Found.Slate->GetParentWidget(); Parent; Parent = Parent->GetParentWidget())
		{
			const bool bCuts = Parent->GetClipping() != EWidgetClipping::Inherit || !Parent->GetParentWidget();
			if (bCuts)
			{
				OutRect = OutRect.IntersectionWith(Parent->GetCachedGeometry().GetRenderBoundingRect());
			}
			if (bCuts && (OutRect.IsEmpty() || !bDrawn))
			{
				OutReason = FString::Printf(TEXT("'%s' is out of view: it lies outside of '%s'"), *Screen.GetNameOf(*Found.Slate), *Screen.GetNameOf(*Parent));
				return false;
			}
		}
		return true;
	}

	bool FWidgetFinder::FindPoint(const FFoundWidget& Found, FVector2D& OutPoint, FString& OutReason)
	{
		FSlateRect Rect;
		if (!FindViewRect(Found, Rect, OutReason))
		{
			return false;
		}
		// Where to point: the middle first, then places around it.
		static constexpr float Shares[] = { 0.5f, 0.25f, 0.75f, 0.1f, 0.9f };
		for (const float Down : Shares)
		{
			for (const float Across : Shares)
			{
				const FVector2f Point(FMath::Lerp(Rect.Left, Rect.Right, Across), FMath::Lerp(Rect.Top, Rect.Bottom, Down));
				if (!IsCovered(*Found.Slate, FindUnder(Point)))
				{
					OutPoint = FVector2D(Point);
					return true;
				}
			}
		}
		const FScreenWidgets Screen;
		OutReason = FString::Printf(TEXT("'%s' is covered by '%s'"), *Screen.GetNameOf(*Found.Slate), *Screen.GetNameOf(*FindUnder(FVector2f(Rect.GetCenter()))));
		return false;
	}
}
