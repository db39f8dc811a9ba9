#include "Framework/Application/MenuStack.h"

#include "Framework/Application/SlateApplication.h"
#include "Framework/Application/SPopupLayer.h"
#include "Widgets/SWindow.h"

namespace Host
{
	namespace
	{
		/** Above what a program puts into layers itself. */
		constexpr int32 MenuZOrder = 10000;
	}

	void FMenu::Dismiss()
	{
		if (Stack)
		{
			Stack->Dismiss(this);
		}
	}

	FMenuStack::~FMenuStack()
	{
		DismissAll();
	}

	TSharedPtr<IMenu> FMenuStack::Push(const TSharedRef<SWidget>& Parent, const TSharedRef<SWidget>& Content, FVector2f Position, FVector2f AnchorSize, bool bFocus)
	{
		const TSharedPtr<SWindow> Window = Application.FindWidgetWindow(Parent);
		if (!Window.IsValid())
		{
			return nullptr;
		}
		DismissFrom(FindContaining(Parent.Get()) + 1);
		const TSharedRef<SWidget> Layer = SNew(SPopupLayer)
			.Visibility(EVisibility::SelfHitTestInvisible)
			.Position(Position)
			.AnchorSize(AnchorSize)
			[
				Content
			];
		Window->AddOverlaySlot(MenuZOrder + Menus.Num())
		[
			Layer
		];
		const TSharedRef<FMenu> Menu = MakeShared<FMenu>(*this, Window.ToSharedRef(), Content, Layer);
		Menus.Add(Menu);
		if (bFocus)
		{
			Application.SetUserFocus(0, Content, EFocusCause::SetDirectly);
		}
		return Menu;
	}

	int32 FMenuStack::FindContaining(const SWidget& Widget) const
	{
		for (const SWidget* Ancestor = &Widget; Ancestor; Ancestor = Ancestor->GetParentWidget().Get())
		{
			const int32 Index = Menus.IndexOfByPredicate([Ancestor](const TSharedRef<FMenu>& Menu) { return &Menu->Layer.Get() == Ancestor; });
			if (Index != INDEX_NONE)
			{
				return Index;
			}
		}
		return INDEX_NONE;
	}

	void FMenuStack::Dismiss(const IMenu* Menu)
	{
		const int32 Index = Menus.IndexOfByPredicate([Menu](const TSharedRef<FMenu>& Open) { return &Open.Get() == Menu; });
		if (Index != INDEX_NONE)
		{
			DismissFrom(Index);
		}
	}

	void FMenuStack::DismissContaining(const SWidget& Widget)
	{
		const int32 Index = FindContaining(Widget);
		if (Index != INDEX_NONE)
		{
			DismissFrom(Index);
		}
	}

	void FMenuStack::DismissOutside(const FWidgetPath& Path)
	{
		if (!Menus.IsEmpty())
		{
			DismissFrom(Path.IsValid() ? FindContaining(Path.GetLastWidget().Get()) + 1 : 0);
		}
	}

	void FMenuStack::DismissOf(const SWindow& Window)
	{
		const int32 Index = Menus.IndexOfByPredicate([&Window](const TSharedRef<FMenu>& Menu) { return Menu->Window.HasSameObject(&Window); });
		if (Index != INDEX_NONE)
		{
			DismissFrom(Index);
		}
	}

	void FMenuStack::DismissFrom(int32 Index)
	{
		while (Menus.Num() > Index)
		{
			const TSharedRef<FMenu> Menu = Menus.Pop();
			Menu->Stack = nullptr;
			if (const TSharedPtr<SWindow> Window = Menu->Window.Pin())
			{
				Window->RemoveOverlaySlot(Menu->Layer);
			}
			Menu->OnMenuDismissed.Broadcast(Menu);
		}
	}
}
