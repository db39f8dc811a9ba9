#include "Widgets/HxButton.h"

#include "UObject/UnrealType.h"
#include "Widgets/HxFontIcon.h"
#include "Widgets/HxText.h"
#include "Widgets/HxWidgetSupport.h"
#include "Widgets/Input/SButton.h"
#include "Widgets/Layout/SBox.h"

bool UHxButton::IsButtonSelected() const
{
	return SelectionMode != EButtonSelectionMode::EBSM_None && bSelectedButton;
}

void UHxButton::SetButtonID(FName NewButtonID)
{
	ButtonID = NewButtonID;
}

void UHxButton::SetButtonSelectionMode(EButtonSelectionMode NewMode)
{
	SelectionMode = NewMode;
}

void UHxButton::SetButtonStyle(const FHalvexButtonStyle& InButtonStyle)
{
	Color = InButtonStyle.ColorStyle;
	CornerStyle = InButtonStyle.CornerStyle;
	SizeOverride = InButtonStyle.SizeOverride;
	SetRenderOpacity(InButtonStyle.Opacity);
	UpdateStyle();
}

void UHxButton::SetSelectionState(bool bSelected, bool bNotificate)
{
	if (bSelected == bSelectedButton)
	{
		return;
	}
	bSelectedButton = bSelected;
	if (MyButton.IsValid())
	{
		UpdateStyle();
	}
	SetReactivity(bSelectedButton);
	if (bNotificate && OnButtonSelectionChange.IsBound())
	{
		// A button without a selection mode never reports itself selected, though it keeps the state: followers rely on it.
		OnButtonSelectionChange.Broadcast(this, SelectionMode != EButtonSelectionMode::EBSM_None && bSelectedButton);
	}
}

void UHxButton::UpdateStyle()
{
	FButtonStyle ButtonStyle = GetStyle();
	if (Color.ColorMode != EColorHandlerMode::ECHM_Disable)
	{
		const FLinearColor FaceColor = bSelectedButton ? Color.GetContrastColor() : Color.GetColor();
		SetBackgroundColor(FaceColor);
		for (FSlateBrush* Brush : { &ButtonStyle.Normal, &ButtonStyle.Hovered, &ButtonStyle.Pressed, &ButtonStyle.Disabled })
		{
			Brush->OutlineSettings.Color = FSlateColor(FaceColor);
		}
		HxWidgetSupport::ApplySizeOverride(*SizeBox.ToSharedRef(), SizeOverride);
	}
	CornerStyle.SetCornerBrushButton(ButtonStyle);
	SetStyle(ButtonStyle);
	if (SelectionMode != EButtonSelectionMode::EBSM_None)
	{
		PaintSelection(bSelectedButton);
	}
}

void UHxButton::SetReactivity(bool bReactive)
{
	for (UHxText* Text : ResponsiveText)
	{
		if (Text)
		{
			Text->SetContrast(bReactive);
		}
	}
	for (UHxFontIcon* Icon : ResponsiveIcons)
	{
		if (Icon)
		{
			Icon->SetContrast(bReactive);
		}
	}
}

void UHxButton::SetReactivityHover(bool bReactive)
{
	for (UHxText* Text : ResponsiveText)
	{
		if (Text)
		{
			Text->SetContrast(bReactive);
		}
	}
	for (UHxFontIcon* Icon : ResponsiveIcons)
	{
		if (Icon)
		{
			Icon->SetHover(bReactive);
		}
	}
}

void UHxButton::SynchronizeProperties()
{
	UpdateStyle();
	Super::SynchronizeProperties();
	if (IsDesignTime())
	{
		SetReactivity(bSelectedButton);
		return;
	}
	for (UHxText* Text : ResponsiveText)
	{
		if (Text)
		{
			Text->BindOnButtonSelectionContras(this);
		}
	}
	for (UHxFontIcon* Icon : ResponsiveIcons)
	{
		if (Icon)
		{
			Icon->BindOnButtonSelectionContras(this);
		}
	}
}

void UHxButton::ReleaseSlateResources(bool bReleaseChildren)
{
	Super::ReleaseSlateResources(bReleaseChildren);
	SizeBox.Reset();
}

#if WITH_EDITOR
void UHxButton::PostEditChangeProperty(FPropertyChangedEvent& PropertyChangedEvent)
{
	Super::PostEditChangeProperty(PropertyChangedEvent);
	if (PropertyChangedEvent.GetPropertyName() == GET_MEMBER_NAME_CHECKED(UHxButton, bSelectedButton))
	{
		// The value is stored already, so this changes nothing: the preview follows with the synchronisation after the edit.
		SetSelectionState(bSelectedButton, false);
	}
}

const FText UHxButton::GetPaletteCategory()
{
	return HxWidgetSupport::GetPaletteCategory();
}
#endif

TSharedRef<SWidget> UHxButton::RebuildWidget()
{
	const TSharedRef<SWidget> Button = Super::RebuildWidget();
	MyButton->SetOnClicked(BIND_UOBJECT_DELEGATE(FOnClicked, OnClickedReceived));
	MyButton->SetOnHovered(BIND_UOBJECT_DELEGATE(FSimpleDelegate, OnHoverReceived));
	MyButton->SetOnUnhovered(BIND_UOBJECT_DELEGATE(FSimpleDelegate, OnUnHoverReceived));
	SizeBox = SNew(SBox)
		[
			Button
		];
	return SizeBox.ToSharedRef();
}

FReply UHxButton::OnClickedReceived()
{
	switch (SelectionMode)
	{
	case EButtonSelectionMode::EBSM_Blocked:
		if (bSelectedButton)
		{
			PaintSelection(true);
			return FReply::Handled();
		}
		SetSelectionState(true, true);
		break;
	case EButtonSelectionMode::EBSM_Toggle:
		SetSelectionState(!bSelectedButton, true);
		break;
	case EButtonSelectionMode::EBSM_None:
		break;
	}
	if (OnClickWithID.IsBound())
	{
		OnClickWithID.Broadcast(ButtonID);
	}
	return FReply::Handled();
}

// Hover and unhover are unlike on purpose: only a blocked, selected button keeps its hover to itself, while any selected one
// is painted held down when the pointer leaves, and always says so. Screens rely on both.

void UHxButton::OnHoverReceived()
{
	if (EnumHasAnyFlags(static_cast<EButtonReactivityMode>(ReactivityMode), EButtonReactivityMode::EBRM_Hover))
	{
		SetReactivityHover(true);
	}
	if (SelectionMode == EButtonSelectionMode::EBSM_Blocked && bSelectedButton)
	{
		PaintSelection(true);
		return;
	}
	SlateHandleHovered();
}

void UHxButton::OnUnHoverReceived()
{
	if (EnumHasAnyFlags(static_cast<EButtonReactivityMode>(ReactivityMode), EButtonReactivityMode::EBRM_Hover))
	{
		SetReactivityHover(false);
	}
	if (SelectionMode != EButtonSelectionMode::EBSM_None && bSelectedButton)
	{
		PaintSelection(true);
	}
	SlateHandleUnhovered();
}

void UHxButton::PaintSelection(bool bHeldDown)
{
	if (MyButton.IsValid())
	{
		MyButton->SetBorderImage(bHeldDown ? &GetStyle().Pressed : &GetStyle().Normal);
	}
}
