#include "Widgets/Input/SCheckBox.h"

#include "Widgets/Images/SImage.h"
#include "Widgets/Input/FocusRing.h"
#include "Widgets/Input/KeyboardUse.h"
#include "Widgets/Input/PointerUse.h"
#include "Widgets/Layout/SBorder.h"
#include "Widgets/SBoxPanel.h"

namespace
{
	/** The brushes of one check state, by what the pointer does. */
	struct FStateImages
	{
		const FSlateBrush& Normal;
		const FSlateBrush& Hovered;
		const FSlateBrush& Pressed;
	};

	FStateImages GetImages(const FCheckBoxStyle& Style, ECheckBoxState State)
	{
		switch (State)
		{
		case ECheckBoxState::Checked:
			return FStateImages{Style.CheckedImage, Style.CheckedHoveredImage, Style.CheckedPressedImage};
		case ECheckBoxState::Undetermined:
			return FStateImages{Style.UndeterminedImage, Style.UndeterminedHoveredImage, Style.UndeterminedPressedImage};
		default:
			return FStateImages{Style.UncheckedImage, Style.UncheckedHoveredImage, Style.UncheckedPressedImage};
		}
	}
}

SCheckBox::SCheckBox()
	: IsCheckedAttribute(*this, ECheckBoxState::Unchecked)
{
}

void SCheckBox::Construct(const FArguments& InArgs)
{
	Style = InArgs._Style ? InArgs._Style : &FCheckBoxStyle::GetDefault();
	OnCheckStateChanged = InArgs._OnCheckStateChanged;
	TypeOverride = InArgs._Type;
	PaddingOverride = InArgs._Padding;
	ClickMethod = InArgs._ClickMethod;
	TouchMethod = InArgs._TouchMethod;
	PressMethod = InArgs._PressMethod;
	bIsFocusable = InArgs._IsFocusable;
	SetForegroundColor(InArgs._ForegroundColor);
	SetIsChecked(InArgs._IsChecked);
	Build(InArgs._HAlign, InArgs._Content.Widget);
	ApplyStyle();
}

void SCheckBox::SetIsChecked(TAttribute<ECheckBoxState> InIsChecked)
{
	if (InIsChecked.IsBound())
	{
		// What the getter answers is shown by other widgets, which must learn of it at the same time.
		IsCheckedAttribute.Assign(*this, TAttribute<ECheckBoxState>::CreateLambda([this, InIsChecked]()
		{
			const ECheckBoxState State = InIsChecked.Get();
			ShowState(State);
			return State;
		}));
		return;
	}
	IsCheckedAttribute.Assign(*this, InIsChecked);
	ShowState(GetCheckedState());
}

void SCheckBox::ToggleCheckedState()
{
	const ECheckBoxState NewState = GetCheckedState() == ECheckBoxState::Unchecked ? ECheckBoxState::Checked : ECheckBoxState::Unchecked;
	if (!IsCheckedAttribute.IsBound(*this))
	{
		SetIsChecked(NewState);
	}
	// By value: the handler may replace itself.
	const FOnCheckStateChanged Handler = OnCheckStateChanged;
	Handler.ExecuteIfBound(NewState);
}

void SCheckBox::SetContent(const TSharedRef<SWidget>& InContent)
{
	ContentFrame->SetContent(InContent);
}

void SCheckBox::SetStyle(const FCheckBoxStyle* InStyle)
{
	Style = InStyle ? InStyle : &FCheckBoxStyle::GetDefault();
	if (IsToggleButton() == Box.IsValid())
	{
		const TSharedRef<SWidget> Content = ContentFrame->GetContent();
		ContentFrame->ClearContent();
		Build(ChildSlot.GetHorizontalAlignment(), Content);
	}
	if (!PaddingOverride.IsSet())
	{
		ContentFrame->SetPadding(Style->Padding);
	}
	ApplyStyle();
}

FSlateColor SCheckBox::GetForegroundColor() const
{
	const FSlateColor Own = SCompoundWidget::GetForegroundColor();
	if (Own != FSlateColor::UseStyle())
	{
		return Own;
	}
	switch (ShownState)
	{
	case ECheckBoxState::Checked:
		return bIsPressed ? Style->CheckedPressedForeground : IsHovered() ? Style->CheckedHoveredForeground : Style->CheckedForeground;
	case ECheckBoxState::Undetermined:
		return Style->UndeterminedForeground;
	default:
		return bIsPressed ? Style->PressedForeground : IsHovered() ? Style->HoveredForeground : Style->ForegroundColor;
	}
}

const FSlateBrush* SCheckBox::GetFocusBrush() const
{
	return Box.IsValid() ? nullptr : SCompoundWidget::GetFocusBrush();
}

int32 SCheckBox::OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect, FSlateWindowElementList& OutDrawElements,
	int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const
{
	const int32 TopLayer = SCompoundWidget::OnPaint(Args, AllottedGeometry, MyCullingRect, OutDrawElements, LayerId, InWidgetStyle, bParentEnabled);
	if (!Box.IsValid())
	{
		return TopLayer;
	}
	Host::PaintFocusRing(*this, Box->GetCachedGeometry(), ESlateBrushRoundingType::FixedRadius, OutDrawElements, TopLayer + 1);
	return TopLayer + 1;
}

void SCheckBox::OnFocusLost(const FFocusEvent& InFocusEvent)
{
	SCompoundWidget::OnFocusLost(InFocusEvent);
	SetPressed(false);
}

FReply SCheckBox::OnKeyDown(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent)
{
	if (!Host::IsAcceptKey(InKeyEvent.GetKey()))
	{
		return SCompoundWidget::OnKeyDown(MyGeometry, InKeyEvent);
	}
	if (!InKeyEvent.IsRepeat())
	{
		SetPressed(true);
		if (PressMethod == EButtonPressMethod::ButtonPress)
		{
			ToggleCheckedState();
		}
	}
	return FReply::Handled();
}

FReply SCheckBox::OnKeyUp(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent)
{
	if (!Host::IsAcceptKey(InKeyEvent.GetKey()))
	{
		return SCompoundWidget::OnKeyUp(MyGeometry, InKeyEvent);
	}
	const bool bWasPressed = bIsPressed;
	SetPressed(false);
	if (PressMethod == EButtonPressMethod::ButtonRelease || (PressMethod == EButtonPressMethod::DownAndUp && bWasPressed))
	{
		ToggleCheckedState();
	}
	return FReply::Handled();
}

FReply SCheckBox::OnMouseButtonDown(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	if (MouseEvent.GetEffectingButton() != EKeys::LeftMouseButton)
	{
		return SCompoundWidget::OnMouseButtonDown(MyGeometry, MouseEvent);
	}
	SetPressed(true);
	FReply Reply = FReply::Handled();
	Reply.CaptureMouse(AsShared());
	switch (Host::GetClickMethodFor(MouseEvent, ClickMethod, TouchMethod))
	{
	case EButtonClickMethod::MouseDown:
		ToggleCheckedState();
		break;
	case EButtonClickMethod::PreciseClick:
		Reply.DetectDrag(AsShared(), EKeys::LeftMouseButton);
		break;
	default:
		break;
	}
	return Reply;
}

FReply SCheckBox::OnMouseButtonDoubleClick(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	return OnMouseButtonDown(MyGeometry, MouseEvent);
}

FReply SCheckBox::OnMouseButtonUp(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	if (MouseEvent.GetEffectingButton() != EKeys::LeftMouseButton)
	{
		return SCompoundWidget::OnMouseButtonUp(MyGeometry, MouseEvent);
	}
	const EButtonClickMethod::Type Method = Host::GetClickMethodFor(MouseEvent, ClickMethod, TouchMethod);
	const bool bToggles = IsHovered() && Method != EButtonClickMethod::MouseDown && (bIsPressed || Method == EButtonClickMethod::MouseUp);
	FReply Reply = FReply::Handled();
	if (HasMouseCapture())
	{
		Reply.ReleaseMouseCapture();
	}
	SetPressed(false);
	if (bToggles)
	{
		ToggleCheckedState();
	}
	return Reply;
}

FReply SCheckBox::OnDragDetected(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	// Only precise clicks ask for it: the press has become a drag, and is no click any more.
	if (bIsPressed)
	{
		SetPressed(false);
		return FReply::Handled().ReleaseMouseCapture();
	}
	return SCompoundWidget::OnDragDetected(MyGeometry, MouseEvent);
}

void SCheckBox::OnMouseEnter(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	SCompoundWidget::OnMouseEnter(MyGeometry, MouseEvent);
	UpdateLook();
}

void SCheckBox::OnMouseLeave(const FPointerEvent& MouseEvent)
{
	SCompoundWidget::OnMouseLeave(MouseEvent);
	UpdateLook();
}

void SCheckBox::OnMouseCaptureLost(const FCaptureLostEvent& CaptureLostEvent)
{
	SCompoundWidget::OnMouseCaptureLost(CaptureLostEvent);
	SetPressed(false);
}

bool SCheckBox::IsToggleButton() const
{
	return TypeOverride.Get(Style->CheckBoxType) == ESlateCheckBoxType::ToggleButton;
}

void SCheckBox::Build(EHorizontalAlignment HAlign, const TSharedRef<SWidget>& Content)
{
	const TAttribute<FMargin> Padding = PaddingOverride.IsSet() ? PaddingOverride : TAttribute<FMargin>(Style->Padding);
	SAssignNew(ContentFrame, SBorder)
		.BorderImage(FCoreStyle::Get().GetBrush("NoBorder"))
		.HAlign(HAlign)
		.VAlign(VAlign_Center)
		.Padding(Padding)
		[
			Content
		];
	TSharedPtr<SWidget> Inside = ContentFrame;
	Box.Reset();
	if (!IsToggleButton())
	{
		Inside = SNew(SHorizontalBox)
			+ SHorizontalBox::Slot()
			.AutoWidth()
			.VAlign(VAlign_Center)
			[
				SAssignNew(Box, SImage)
			]
			+ SHorizontalBox::Slot()
			.FillWidth(1.0f)
			[
				ContentFrame.ToSharedRef()
			];
	}
	ChildSlot.HAlign(HAlign);
	ChildSlot
	[
		SAssignNew(Background, SBorder)
		.BorderImage(ChooseBackground())
		.Padding(FMargin(0.0f))
		[
			Inside.ToSharedRef()
		]
	];
}

void SCheckBox::SetPressed(bool bInIsPressed)
{
	if (bIsPressed != bInIsPressed)
	{
		bIsPressed = bInIsPressed;
		UpdateLook();
	}
}

void SCheckBox::UpdateLook()
{
	if (Background->GetBorderImage() != ChooseBackground())
	{
		Background->SetBorderImage(ChooseBackground());
	}
	if (Box.IsValid() && Box->GetImage() != ChooseImage())
	{
		Box->SetImage(ChooseImage());
	}
	else if (!Box.IsValid() && ContentFrame->GetBorderImage() != ChooseImage())
	{
		ContentFrame->SetBorderImage(ChooseImage());
	}
	// The foreground of the content follows the state too.
	Invalidate(EInvalidateWidgetReason::Paint);
}

void SCheckBox::ApplyStyle()
{
	Background->SetBorderImage(ChooseBackground());
	if (Box.IsValid())
	{
		Box->SetImage(ChooseImage());
		Box->SetColorAndOpacity(Style->BorderBackgroundColor);
	}
	else
	{
		ContentFrame->SetBorderImage(ChooseImage());
		ContentFrame->SetBorderBackgroundColor(Style->BorderBackgroundColor);
	}
	Invalidate(EInvalidateWidgetReason::Paint);
}

void SCheckBox::ShowState(ECheckBoxState State)
{
	if (ShownState != State)
	{
		ShownState = State;
		if (Background.IsValid())
		{
			UpdateLook();
		}
	}
}

const FSlateBrush* SCheckBox::ChooseImage() const
{
	const FStateImages Images = GetImages(*Style, ShownState);
	return bIsPressed ? &Images.Pressed : IsHovered() ? &Images.Hovered : &Images.Normal;
}

const FSlateBrush* SCheckBox::ChooseBackground() const
{
	return bIsPressed ? &Style->BackgroundPressedImage : IsHovered() ? &Style->BackgroundHoveredImage : &Style->BackgroundImage;
}
