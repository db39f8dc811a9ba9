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

	FMenu::FMenu(FMenuStack& InStack, const TSharedRef<SWindow>& InWindow, const TSharedRef<SWidget>& InParent, const TSharedRef<SWidget>& InContent,
		const TSharedRef<SWidget>& InLayer, bool bInIsAnchored)
		: Stack(&InStack), Window(InWindow), Parent(InParent), WindowSize(InWindow->GetClientSizeInScreen())
		, ParentPosition(InParent->GetCachedGeometry().GetAbsolutePosition()), bIsAnchored(bInIsAnchored), Content(InContent), Layer(InLayer)
	{
	}

	bool FMenu::IsStillInPlace() const
	{
		const TSharedPtr<SWindow> OfWindow = Window.Pin();
		const TSharedPtr<SWidget> OfParent = Parent.Pin();
		FWidgetPath Path;
		if (!OfWindow.IsValid() || OfWindow->GetClientSizeInScreen() != WindowSize || !OfParent.IsValid()
			|| !FSlateApplication::Get().FindPathToWidget(OfParent.ToSharedRef(), Path)
			|| Path.Widgets.ContainsByPredicate([](const FArrangedWidget& Arranged) { return !Arranged.Widget->IsEnabled(); }))
		{
			return false;
		}
		constexpr float Tolerance = 0.5f;
		return !bIsAnchored || FVector2f::Distance(FVector2f(OfParent->GetCachedGeometry().GetAbsolutePosition()), ParentPosition) <= Tolerance;
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
		const TSharedRef<FMenu> Menu = MakeShared<FMenu>(*this, Window.ToSharedRef(), Parent, Content, Layer, AnchorSize.Y > 0.0f);
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

	int32 FMenuStack::FindContaining(const FWidgetPath& Path) const
	{
		return Path.IsValid() ? FindContaining(Path.GetLastWidget().Get()) : INDEX_NONE;
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
			DismissFrom(FindContaining(Path) + 1);
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

	void FMenuStack::FocusMoved(const FWidgetPath& From, const FWidgetPath& To)
	{
		const int32 Kept = Menus.IsEmpty() ? INDEX_NONE : FindContaining(To);
		if (!Menus.IsEmpty() && FindContaining(From) > Kept)
		{
			DismissFrom(Kept + 1);
		}
	}

	bool FMenuStack::DismissOutdated()
	{
		const int32 Index = Menus.IndexOfByPredicate([](const TSharedRef<FMenu>& Menu) { return !Menu->IsStillInPlace(); });
		if (Index == INDEX_NONE)
		{
			return false;
		}
		DismissFrom(Index);
		return true;
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
