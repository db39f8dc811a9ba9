#pragma once

#include "CoreMinimal.h"
#include "Framework/Application/IMenu.h"
#include "Layout/WidgetPath.h"

class FSlateApplication;
class SWidget;
class SWindow;

namespace Host
{
	class FMenuStack;

	/** A menu in the layer above its window. */
	class FMenu final : public IMenu, public TSharedFromThis<FMenu>
	{
	public:
		/** @param bInIsAnchored	it belongs to the place where its parent is shown */
		FMenu(FMenuStack& InStack, const TSharedRef<SWindow>& InWindow, const TSharedRef<SWidget>& InParent, const TSharedRef<SWidget>& InContent,
			const TSharedRef<SWidget>& InLayer, bool bInIsAnchored);

		virtual TSharedPtr<SWidget> GetContent() const override { return Content; }
		virtual TSharedPtr<SWindow> GetParentWindow() const override { return Window.Pin(); }
		virtual void Dismiss() override;
		virtual FOnMenuDismissed& GetOnMenuDismissed() override { return OnMenuDismissed; }

	private:
		friend class FMenuStack;

		/** False when what the menu was opened from is gone, hidden, disabled or elsewhere, or its window has another size. */
		bool IsStillInPlace() const;

		/** Null when the menu has been taken away. */
		FMenuStack* Stack;
		TWeakPtr<SWindow> Window;
		TWeakPtr<SWidget> Parent;
		/** Pixels, as they were when the menu was opened. */
		FVector2D WindowSize;
		FVector2f ParentPosition;
		bool bIsAnchored;
		TSharedRef<SWidget> Content;
		TSharedRef<SWidget> Layer;
		FOnMenuDismissed OnMenuDismissed;
	};

	/** The open menus, each opened from the one before. */
	class FMenuStack
	{
	public:
		explicit FMenuStack(FSlateApplication& InApplication) : Application(InApplication) {}
		~FMenuStack();

		/** @param Position, AnchorSize	as for SPopupLayer */
		TSharedPtr<IMenu> Push(const TSharedRef<SWidget>& Parent, const TSharedRef<SWidget>& Content, FVector2f Position, FVector2f AnchorSize, bool bFocus);

		void DismissAll() { DismissFrom(0); }
		/** Dismisses the menu and those opened from it. */
		void Dismiss(const IMenu* Menu);
		/** Dismisses the menu that the widget is in. */
		void DismissContaining(const SWidget& Widget);
		/** Dismisses the menus that the path does not lead into. */
		void DismissOutside(const FWidgetPath& Path);
		/** Dismisses the menus above a window that goes. */
		void DismissOf(const SWindow& Window);
		/** Dismisses the menus that the keyboard focus has left. */
		void FocusMoved(const FWidgetPath& From, const FWidgetPath& To);
		/** Dismisses the menus that what they were opened from does not hold any more; false when there are none. */
		bool DismissOutdated();

		int32 Num() const { return Menus.Num(); }
		TSharedPtr<IMenu> GetTop() const { return Menus.IsEmpty() ? TSharedPtr<IMenu>() : TSharedPtr<IMenu>(Menus.Last()); }

	private:
		void DismissFrom(int32 Index);
		int32 FindContaining(const SWidget& Widget) const;
		int32 FindContaining(const FWidgetPath& Path) const;

		FSlateApplication& Application;
		TArray<TSharedRef<FMenu>> Menus;
	};
}
