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
		FMenu(FMenuStack& InStack, const TSharedRef<SWindow>& InWindow, const TSharedRef<SWidget>& InContent, const TSharedRef<SWidget>& InLayer)
			: Stack(&InStack), Window(InWindow), Content(InContent), Layer(InLayer)
		{
		}

		virtual TSharedPtr<SWidget> GetContent() const override { return Content; }
		virtual TSharedPtr<SWindow> GetParentWindow() const override { return Window.Pin(); }
		virtual void Dismiss() override;
		virtual FOnMenuDismissed& GetOnMenuDismissed() override { return OnMenuDismissed; }

	private:
		friend class FMenuStack;

		/** Null when the menu has been taken away. */
		FMenuStack* Stack;
		TWeakPtr<SWindow> Window;
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

		int32 Num() const { return Menus.Num(); }
		TSharedPtr<IMenu> GetTop() const { return Menus.IsEmpty() ? TSharedPtr<IMenu>() : TSharedPtr<IMenu>(Menus.Last()); }

	private:
		void DismissFrom(int32 Index);
		int32 FindContaining(const SWidget& Widget) const;

		FSlateApplication& Application;
		TArray<TSharedRef<FMenu>> Menus;
	};
}
