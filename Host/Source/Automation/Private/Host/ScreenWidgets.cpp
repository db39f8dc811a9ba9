#include "Host/ScreenWidgets.h"

#include "Components/Widget.h"
#include "Framework/Application/SlateApplication.h"
#include "Host/SlateLoop.h"
#include "Layout/Children.h"
#include "UObject/UObjectIterator.h"
#include "Widgets/SNullWidget.h"
#include "Widgets/SWindow.h"

namespace Host
{
	FScreenWidgets::FScreenWidgets()
	{
		FSlateLoop::Refresh();
		for (const TSharedRef<SWindow>& Window : FSlateApplication::Get().GetTopLevelWindows())
		{
			Add(Window.Get(), nullptr);
			Window->GetRoot().ForEachWidget([this](SWidget& Slate)
			{
				Drawn.Add(&Slate);
				return true;
			});
		}
		AddObjects();
	}

	void FScreenWidgets::Add(SWidget& Slate, const SWidget* HiddenBy)
	{
		const bool bShows = Slate.GetVisibility().IsVisible() && Slate.GetRenderOpacity() > 0.0f;
		const SWidget* const Hider = HiddenBy || bShows ? HiddenBy : &Slate;
		Places.Add(&Slate, Widgets.Num());
		Widgets.Add({ Slate.AsShared(), nullptr, Hider });
		Slate.GetChildren()->ForEachWidget([this, Hider](SWidget& Child)
		{
			if (&Child != &SNullWidget::NullWidget.Get())
			{
				Add(Child, Hider);
			}
		});
	}

	void FScreenWidgets::AddObjects()
	{
		for (TObjectIterator<UWidget> It; It; ++It)
		{
			const TSharedPtr<SWidget> Slate = It->GetCachedWidget();
			if (const int32* Place = Slate ? Places.Find(Slate.Get()) : nullptr)
			{
				Widgets[*Place].Object = *It;
			}
		}
	}

	UWidget* FScreenWidgets::FindObject(const SWidget& Slate) const
	{
		const int32* Place = Places.Find(&Slate);
		UWidget* Object = Place ? Widgets[*Place].Object : nullptr;
		for (TSharedPtr<SWidget> Parent = Slate.GetParentWidget(); Parent && !Object; Parent = Parent->GetParentWidget())
		{
			const int32* ParentPlace = Places.Find(Parent.Get());
			Object = ParentPlace ? Widgets[*ParentPlace].Object : nullptr;
		}
		return Object;
	}

	FString FScreenWidgets::GetNameOf(const SWidget& Slate) const
	{
		const UWidget* Object = FindObject(Slate);
		return Object ? Object->GetName() : Slate.GetTypeAsString();
	}
}
