#include "Layout/WidgetPath.h"

#include "Widgets/SWidget.h"
#include "Widgets/SWindow.h"

int32 FWidgetPath::FindWidget(const SWidget* WidgetToFind) const
{
	return Widgets.IndexOfByPredicate([WidgetToFind](const FArrangedWidget& Arranged) { return Arranged.GetWidgetPtr() == WidgetToFind; });
}

TOptional<FArrangedWidget> FWidgetPath::FindArrangedWidget(const TSharedRef<const SWidget>& WidgetToFind) const
{
	const int32 Index = FindWidget(&WidgetToFind.Get());
	return Index == INDEX_NONE ? TOptional<FArrangedWidget>() : TOptional<FArrangedWidget>(Widgets[Index]);
}

FWidgetPath FWidgetPath::GetPathDownTo(const TSharedRef<const SWidget>& MarkerWidget) const
{
	const int32 Index = FindWidget(&MarkerWidget.Get());
	FWidgetPath Path;
	if (Index != INDEX_NONE)
	{
		Path.TopLevelWindow = TopLevelWindow;
		for (int32 Taken = 0; Taken <= Index; ++Taken)
		{
			Path.Widgets.Add(Widgets[Taken]);
		}
	}
	return Path;
}

bool FWidgetPath::operator==(const FWidgetPath& Other) const
{
	if (Widgets.Num() != Other.Widgets.Num())
	{
		return false;
	}
	for (int32 Index = 0; Index < Widgets.Num(); ++Index)
	{
		if (!(Widgets[Index] == Other.Widgets[Index]))
		{
			return false;
		}
	}
	return true;
}

FString FWidgetPath::ToString() const
{
	FString Text;
	for (const FArrangedWidget& Arranged : Widgets)
	{
		if (!Text.IsEmpty())
		{
			Text += TEXT(" > ");
		}
		Text += Arranged.Widget->ToString();
	}
	return Text;
}

FWeakWidgetPath::FWeakWidgetPath(const FWidgetPath& InWidgetPath) : Window(InWidgetPath.TopLevelWindow)
{
	Widgets.Reserve(InWidgetPath.Widgets.Num());
	for (const FArrangedWidget& Arranged : InWidgetPath.Widgets)
	{
		Widgets.Add(Arranged.Widget);
	}
}

FWidgetPath FWeakWidgetPath::ToWidgetPath() const
{
	FWidgetPath Path;
	Path.TopLevelWindow = Window.Pin();
	for (const TWeakPtr<SWidget>& Weak : Widgets)
	{
		const TSharedPtr<SWidget> Widget = Weak.Pin();
		const bool bFollows = Widget.IsValid() && (Path.Widgets.IsEmpty() || Widget->GetParentWidget() == Path.Widgets.Last().Widget);
		if (!bFollows)
		{
			break;
		}
		Path.Widgets.Add(FArrangedWidget(Widget.ToSharedRef(), Widget->GetCachedGeometry()));
	}
	return Path;
}

bool FWeakWidgetPath::IsValid() const
{
	return !Widgets.IsEmpty() && Widgets.Last().IsValid();
}

bool FWeakWidgetPath::ContainsWidget(const SWidget* SomeWidget) const
{
	return Widgets.ContainsByPredicate([SomeWidget](const TWeakPtr<SWidget>& Weak) { return Weak.HasSameObject(SomeWidget); });
}

TWeakPtr<SWidget> FWeakWidgetPath::GetLastWidget() const
{
	return Widgets.IsEmpty() ? TWeakPtr<SWidget>() : Widgets.Last();
}
