#include "Widgets/Input/SButton.h"

#include "Widgets/Input/KeyboardUse.h"
#include "Widgets/Input/PointerUse.h"
#include "Widgets/SNullWidget.h"
#include "Widgets/Text/STextBlock.h"

SButton::SButton()
	: ClickMethod(EButtonClickMethod::DownAndUp)
	, TouchMethod(EButtonTouchMethod::DownAndUp)
	, PressMethod(EButtonPressMethod::DownAndUp)
	, bIsFocusable(true)
	, bIsPressed(false)
	, bContentPaddingBound(false)
{
}

void SButton::Construct(const FArguments& InArgs)
{
	Style = InArgs._ButtonStyle ? InArgs._ButtonStyle : &FButtonStyle::GetDefault();
	OnClicked = InArgs._OnClicked;
	OnPressed = InArgs._OnPressed;
	OnReleased = InArgs._OnReleased;
	OnHovered = InArgs._OnHovered;
	OnUnhovered = InArgs._OnUnhovered;
	ClickMethod = InArgs._ClickMethod;
	TouchMethod = InArgs._TouchMethod;
	PressMethod = InArgs._PressMethod;
	bIsFocusable = InArgs._IsFocusable;

	TSharedRef<SWidget> Content = InArgs._Content.Widget;
	if (Content == SNullWidget::NullWidget && InArgs._Text.IsSet())
	{
		Content = SNew(STextBlock)
			.Text(InArgs._Text)
			.TextStyle(InArgs._TextStyle ? InArgs._TextStyle : &FTextBlockStyle::GetDefault());
	}
	SBorder::Construct(SBorder::FArguments()
		.HAlign(InArgs._HAlign)
		.VAlign(InArgs._VAlign)
		.ContentScale(InArgs._ContentScale)
		.DesiredSizeScale(InArgs._DesiredSizeScale)
		.BorderImage(ChooseBrush())
		.BorderBackgroundColor(InArgs._ButtonColorAndOpacity)
		.ColorAndOpacity(InArgs._ColorAndOpacity)
		.ForegroundColor(InArgs._ForegroundColor)
		[
			Content
		]);
	SetContentPadding(InArgs._ContentPadding);
}

void SButton::SetContent(TSharedRef<SWidget> InContent)
{
	SBorder::SetContent(MoveTemp(InContent));
}

void SButton::SetButtonStyle(const FButtonStyle* InButtonStyle)
{
	Style = InButtonStyle ? InButtonStyle : &FButtonStyle::GetDefault();
	SetBorderImage(ChooseBrush());
	UpdatePadding();
}

void SButton::SetContentPadding(TAttribute<FMargin> InContentPadding)
{
	bContentPaddingBound = InContentPadding.IsBound();
	if (bContentPaddingBound)
	{
		ChildSlot.SetPadding(TAttribute<FMargin>::CreateLambda([this, InContentPadding]() { return InContentPadding.Get() + GetStylePadding(); }));
		return;
	}
	ContentPadding = InContentPadding.Get(ContentPadding);
	UpdatePadding();
}

void SButton::SetOnClicked(FOnClicked InOnClicked)
{
	OnClicked = MoveTemp(InOnClicked);
}

void SButton::SetOnPressed(FSimpleDelegate InOnPressed)
{
	OnPressed = MoveTemp(InOnPressed);
}

void SButton::SetOnReleased(FSimpleDelegate InOnReleased)
{
	OnReleased = MoveTemp(InOnReleased);
}

void SButton::SetOnHovered(FSimpleDelegate InOnHovered)
{
	OnHovered = MoveTemp(InOnHovered);
}

void SButton::SetOnUnhovered(FSimpleDelegate InOnUnhovered)
{
	OnUnhovered = MoveTemp(InOnUnhovered);
}

FSlateColor SButton::GetForegroundColor() const
{
	const FSlateColor Own = SBorder::GetForegroundColor();
	return Own == FSlateColor::UseStyle() ? ChooseForeground() : Own;
}

FSlateColor SButton::GetDisabledForegroundColor() const
{
	const FSlateColor Own = SBorder::GetForegroundColor();
	return Own == FSlateColor::UseStyle() ? Style->DisabledForeground : Own;
}

void SButton::OnFocusLost(const FFocusEvent& InFocusEvent)
{
	SBorder::OnFocusLost(InFocusEvent);
	Release();
}

FReply SButton::OnKeyDown(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent)
{
	if (!IsEnabled() || !Host::IsAcceptKey(InKeyEvent.GetKey()))
	{
		return SBorder::OnKeyDown(MyGeometry, InKeyEvent);
	}
	if (!InKeyEvent.IsRepeat())
	{
		Press();
		if (PressMethod == EButtonPressMethod::ButtonPress)
		{
			return ExecuteOnClick();
		}
	}
	return FReply::Handled();
}

FReply SButton::OnKeyUp(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent)
{
	if (!IsEnabled() || !Host::IsAcceptKey(InKeyEvent.GetKey()))
	{
		return SBorder::OnKeyUp(MyGeometry, InKeyEvent);
	}
	const bool bWasPressed = bIsPressed;
	Release();
	if (PressMethod == EButtonPressMethod::ButtonRelease || (PressMethod == EButtonPressMethod::DownAndUp && bWasPressed))
	{
		return ExecuteOnClick();
	}
	return FReply::Handled();
}

FReply SButton::OnMouseButtonDown(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	SBorder::OnMouseButtonDown(MyGeometry, MouseEvent);
	if (!IsEnabled() || MouseEvent.GetEffectingButton() != EKeys::LeftMouseButton)
	{
		return FReply::Unhandled();
	}
	Press();
	FReply Reply = FReply::Handled();
	switch (Host::GetClickMethodFor(MouseEvent, ClickMethod, TouchMethod))
	{
	case EButtonClickMethod::MouseDown:
		Reply = ExecuteOnClick();
		break;
	case EButtonClickMethod::PreciseClick:
		Reply.DetectDrag(AsShared(), EKeys::LeftMouseButton);
		break;
	default:
		break;
	}
	if (!Reply.GetMouseCaptor().IsValid() && !Reply.ShouldReleaseMouse())
	{
		Reply.CaptureMouse(AsShared());
	}
	return Reply;
}

FReply SButton::OnMouseButtonDoubleClick(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	const FReply Reply = SBorder::OnMouseButtonDoubleClick(MyGeometry, MouseEvent);
	return Reply.IsEventHandled() ? Reply : OnMouseButtonDown(MyGeometry, MouseEvent);
}

FReply SButton::OnMouseButtonUp(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	SBorder::OnMouseButtonUp(MyGeometry, MouseEvent);
	if (!IsEnabled() || MouseEvent.GetEffectingButton() != EKeys::LeftMouseButton)
	{
		return FReply::Unhandled();
	}
	const EButtonClickMethod::Type Method = Host::GetClickMethodFor(MouseEvent, ClickMethod, TouchMethod);
	const bool bPressedHere = bIsPressed;
	const bool bOverButton = IsHovered();
	FReply Reply = FReply::Handled();
	if (HasMouseCapture())
	{
		Reply.ReleaseMouseCapture();
	}
	Release();
	const bool bClicked = bOverButton && Method != EButtonClickMethod::MouseDown && (bPressedHere || Method == EButtonClickMethod::MouseUp);
	if (bClicked)
	{
		FReply ClickReply = ExecuteOnClick();
		if (Reply.ShouldReleaseMouse() && !ClickReply.GetMouseCaptor().IsValid())
		{
			ClickReply.ReleaseMouseCapture();
		}
		return ClickReply;
	}
	return Reply;
}

FReply SButton::OnDragDetected(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	// Only precise clicks ask for it: the press has become a drag, and is no click any more.
	if (bIsPressed)
	{
		Release();
		return FReply::Handled().ReleaseMouseCapture();
	}
	return SBorder::OnDragDetected(MyGeometry, MouseEvent);
}

void SButton::OnMouseEnter(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	const bool bWasHovered = IsHovered();
	SBorder::OnMouseEnter(MyGeometry, MouseEvent);
	UpdateLook();
	if (!bWasHovered && IsHovered())
	{
		const FSimpleDelegate Handler = OnHovered;
		Handler.ExecuteIfBound();
	}
}

void SButton::OnMouseLeave(const FPointerEvent& MouseEvent)
{
	const bool bWasHovered = IsHovered();
	SBorder::OnMouseLeave(MouseEvent);
	UpdateLook();
	if (bWasHovered && !IsHovered())
	{
		const FSimpleDelegate Handler = OnUnhovered;
		Handler.ExecuteIfBound();
	}
}

void SButton::OnMouseCaptureLost(const FCaptureLostEvent& CaptureLostEvent)
{
	SBorder::OnMouseCaptureLost(CaptureLostEvent);
	Release();
}

void SButton::OnEnabledChanged()
{
	SBorder::OnEnabledChanged();
	if (Style)
	{
		UpdateLook();
	}
}

void SButton::Press()
{
	if (!bIsPressed)
	{
		bIsPressed = true;
		UpdateLook();
		const FSimpleDelegate Handler = OnPressed;
		Handler.ExecuteIfBound();
	}
}

void SButton::Release()
{
	if (bIsPressed)
	{
		bIsPressed = false;
		UpdateLook();
		const FSimpleDelegate Handler = OnReleased;
		Handler.ExecuteIfBound();
	}
}

FReply SButton::ExecuteOnClick()
{
	if (!OnClicked.IsBound())
	{
		return FReply::Handled();
	}
	// By value: the handler may replace itself.
	const FOnClicked Handler = OnClicked;
	const FReply Reply = Handler.Execute();
	return Reply.IsEventHandled() ? Reply : FReply::Handled();
}

void SButton::UpdateLook()
{
	ChangeBorderImage(ChooseBrush());
	// The foreground of the content follows the state too.
	Invalidate(EInvalidateWidgetReason::Paint);
	UpdatePadding();
}

const FSlateBrush* SButton::ChooseBrush() const
{
	if (!IsEnabled())
	{
		return &Style->Disabled;
	}
	return bIsPressed ? &Style->Pressed : IsHovered() ? &Style->Hovered : &Style->Normal;
}

const FSlateColor& SButton::ChooseForeground() const
{
	if (!IsEnabled())
	{
		return Style->DisabledForeground;
	}
	return bIsPressed ? Style->PressedForeground : IsHovered() ? Style->HoveredForeground : Style->NormalForeground;
}

void SButton::UpdatePadding()
{
	if (!bContentPaddingBound)
	{
		ChildSlot.SetPadding(ContentPadding + GetStylePadding());
	}
}
