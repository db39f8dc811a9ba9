#pragma once

#include "CoreMinimal.h"
#include "Layout/ArrangedWidget.h"
#include "Templates/SharedPointer.h"

class SWindow;

/** A widget, its ancestors, and where they are: the window first. */
class SLATECORE_API FWidgetPath
{
public:
	FWidgetPath() = default;
	FWidgetPath(TSharedPtr<SWindow> InTopLevelWindow, TArray<FArrangedWidget> InWidgets) : Widgets(MoveTemp(InWidgets)), TopLevelWindow(MoveTemp(InTopLevelWindow)) {}

	bool IsValid() const { return !Widgets.IsEmpty(); }

	bool ContainsWidget(const SWidget* WidgetToFind) const { return FindWidget(WidgetToFind) != INDEX_NONE; }
	/** Index in Widgets, or INDEX_NONE. */
	int32 FindWidget(const SWidget* WidgetToFind) const;
	TOptional<FArrangedWidget> FindArrangedWidget(const TSharedRef<const SWidget>& WidgetToFind) const;

	/** The part of the path down to the widget, which must be in it. */
	FWidgetPath GetPathDownTo(const TSharedRef<const SWidget>& MarkerWidget) const;

	TSharedPtr<SWindow> GetWindow() const { return TopLevelWindow; }
	const FArrangedWidget& GetLastArranged() const { return Widgets.Last(); }
	TSharedRef<SWidget> GetLastWidget() const { return Widgets.Last().Widget; }

	bool operator==(const FWidgetPath& Other) const;

	FString ToString() const;

	TArray<FArrangedWidget> Widgets;
	TSharedPtr<SWindow> TopLevelWindow;
};

/** A path that keeps no widget alive. */
class SLATECORE_API FWeakWidgetPath
{
public:
	FWeakWidgetPath() = default;
	explicit FWeakWidgetPath(const FWidgetPath& InWidgetPath);

	/** The widgets up to the first one that is gone or is no longer a child of the one before. */
	FWidgetPath ToWidgetPath() const;

	bool IsValid() const;
	bool ContainsWidget(const SWidget* SomeWidget) const;
	/** The lowest widget; null when it is gone. */
	TWeakPtr<SWidget> GetLastWidget() const;

	TArray<TWeakPtr<SWidget>> Widgets;
	TWeakPtr<SWindow> Window;
};
