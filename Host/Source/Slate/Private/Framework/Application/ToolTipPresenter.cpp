#include "Framework/Application/ToolTipPresenter.h"

#include <limits>

#include "Framework/Application/SPopupLayer.h"
#include "Host/Clock.h"
#include "Styling/CoreStyle.h"
#include "Widgets/Layout/SBorder.h"
#include "Widgets/SWindow.h"
#include "Widgets/Text/STextBlock.h"

namespace Host
{
	namespace
	{
		constexpr int32 ToolTipZOrder = 20000;
		/** Pixels from the cursor's position to where the tool tip begins, below it and above. */
		constexpr float Below = 20.0f;
		constexpr float Above = 8.0f;
		constexpr float WrapAt = 400.0f;

		bool HasToolTip(SWidget& Widget)
		{
			const TSharedPtr<IToolTip> ToolTip = Widget.GetToolTip();
			return ToolTip.IsValid() ? !ToolTip->IsEmpty() : !Widget.GetToolTipText().IsEmpty();
		}
	}

	FToolTipPresenter::~FToolTipPresenter()
	{
		Close();
	}

	void FToolTipPresenter::Update(const FWidgetPath& Hovered, FVector2f Position)
	{
		TSharedPtr<SWidget> NewOwner;
		for (int32 Index = Hovered.Widgets.Num() - 1; Index >= 0 && !NewOwner.IsValid(); --Index)
		{
			if (HasToolTip(Hovered.Widgets[Index].Widget.Get()))
			{
				NewOwner = Hovered.Widgets[Index].Widget;
			}
		}
		const bool bMoved = !(Place == Position);
		Place = Position;
		if (Owner.Pin() != NewOwner)
		{
			Close();
			Owner = NewOwner;
			Window = Hovered.TopLevelWindow;
			RestingSince = FClock::Now();
		}
		else if (bMoved && !Layer.IsValid())
		{
			RestingSince = FClock::Now();
		}
	}

	double FToolTipPresenter::GetShowTime() const
	{
		return Owner.IsValid() && !Layer.IsValid() ? RestingSince + Delay : std::numeric_limits<double>::infinity();
	}

	void FToolTipPresenter::Tick()
	{
		if (!Owner.IsValid())
		{
			Close();
		}
		else if (!Layer.IsValid() && FClock::Now() >= GetShowTime())
		{
			Show();
		}
	}

	TSharedPtr<SWidget> FToolTipPresenter::MakeContent()
	{
		const TSharedPtr<SWidget> Widget = Owner.Pin();
		Shown = Widget->GetToolTip();
		if (Shown.IsValid())
		{
			Shown->OnOpening();
			return Shown->AsWidget();
		}
		const ISlateStyle& Style = FCoreStyle::Get();
		return SNew(SBorder)
			.BorderImage(Style.GetBrush("ToolTip.Background"))
			.Padding(FMargin(8.0f, 5.0f))
			[
				SNew(STextBlock)
				.Text(Widget->GetToolTipText())
				.Font(Style.GetFontStyle("ToolTip.Font"))
				.ColorAndOpacity(FSlateColor(FLinearColor::White))
				.WrapTextAt(WrapAt)
			];
	}

	void FToolTipPresenter::Show()
	{
		const TSharedPtr<SWindow> ParentWindow = Window.Pin();
		if (!ParentWindow.IsValid())
		{
			Owner.Reset();
			return;
		}
		Layer = SNew(SPopupLayer)
			.Visibility(EVisibility::HitTestInvisible)
			.Position(Place)
			.AnchorSize(FVector2f(0.0f, Below))
			.Clearance(Above)
			[
				MakeContent().ToSharedRef()
			];
		ParentWindow->AddOverlaySlot(ToolTipZOrder)
		[
			Layer.ToSharedRef()
		];
	}

	void FToolTipPresenter::Close()
	{
		RestingSince = FClock::Now();
		if (!Layer.IsValid())
		{
			return;
		}
		if (const TSharedPtr<SWindow> ParentWindow = Window.Pin())
		{
			ParentWindow->RemoveOverlaySlot(Layer.ToSharedRef());
		}
		Layer.Reset();
		if (Shown.IsValid())
		{
			Shown->OnClosed();
			Shown.Reset();
		}
	}
}
