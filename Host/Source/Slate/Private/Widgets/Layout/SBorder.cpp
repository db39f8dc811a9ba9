#include "Widgets/Layout/SBorder.h"

#include "Rendering/DrawElements.h"

SBorder::SBorder()
	: BorderImageAttribute(*this, nullptr)
	, BorderBackgroundColorAttribute(*this, FSlateColor(FLinearColor(1.0f, 1.0f, 1.0f, 1.0f)))
	, ShowDisabledEffectAttribute(*this, true)
{
}

void SBorder::Construct(const FArguments& InArgs)
{
	SetContentScale(InArgs._ContentScale);
	SetDesiredSizeScale(InArgs._DesiredSizeScale);
	SetColorAndOpacity(InArgs._ColorAndOpacity);
	SetForegroundColor(InArgs._ForegroundColor);
	SetBorderBackgroundColor(InArgs._BorderBackgroundColor);
	SetShowEffectWhenDisabled(InArgs._ShowEffectWhenDisabled);
	if (InArgs._BorderImage.IsSet())
	{
		SetBorderImage(InArgs._BorderImage);
	}
	else
	{
		ChangeBorderImage(FCoreStyle::Get().GetBrush("Border"));
	}

	if (InArgs._OnMouseButtonDown.IsBound())
	{
		SetOnMouseButtonDown(InArgs._OnMouseButtonDown);
	}
	if (InArgs._OnMouseButtonUp.IsBound())
	{
		SetOnMouseButtonUp(InArgs._OnMouseButtonUp);
	}
	if (InArgs._OnMouseMove.IsBound())
	{
		SetOnMouseMove(InArgs._OnMouseMove);
	}
	if (InArgs._OnMouseDoubleClick.IsBound())
	{
		SetOnMouseDoubleClick(InArgs._OnMouseDoubleClick);
	}

	ChildSlot.HAlign(InArgs._HAlign).VAlign(InArgs._VAlign).Padding(InArgs._Padding);
	ChildSlot.AttachWidget(InArgs._Content.Widget);
}

void SBorder::SetContent(TSharedRef<SWidget> InContent)
{
	ChildSlot.AttachWidget(InContent);
}

void SBorder::ClearContent()
{
	ChildSlot.DetachWidget();
}

void SBorder::SetBorderBackgroundColor(TAttribute<FSlateColor> InColorAndOpacity)
{
	BorderBackgroundColorAttribute.Assign(*this, InColorAndOpacity);
}

void SBorder::SetHAlign(EHorizontalAlignment HAlign)
{
	ChildSlot.SetHorizontalAlignment(HAlign);
}

void SBorder::SetVAlign(EVerticalAlignment VAlign)
{
	ChildSlot.SetVerticalAlignment(VAlign);
}

void SBorder::SetPadding(TAttribute<FMargin> InPadding)
{
	ChildSlot.SetPadding(MoveTemp(InPadding));
}

void SBorder::SetShowEffectWhenDisabled(TAttribute<bool> InShowEffectWhenDisabled)
{
	ShowDisabledEffectAttribute.Assign(*this, InShowEffectWhenDisabled);
}

void SBorder::SetBorderImage(TAttribute<const FSlateBrush*> InBorderImage)
{
	if (!BorderImageAttribute.Assign(*this, InBorderImage))
	{
		// The same address may hold another brush by now.
		Invalidate(EInvalidateWidgetReason::Paint);
	}
}

void SBorder::ChangeBorderImage(const FSlateBrush* InBorderImage)
{
	BorderImageAttribute.Set(*this, InBorderImage);
}

int32 SBorder::OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect, FSlateWindowElementList& OutDrawElements,
	int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const
{
	const FSlateBrush* Image = BorderImageAttribute.Get();
	if (Image && Image->DrawAs != ESlateBrushDrawType::NoDrawType)
	{
		const bool bPale = ShowDisabledEffectAttribute.Get() && !ShouldBeEnabled(bParentEnabled);
		const FLinearColor Tint =
			InWidgetStyle.GetColorAndOpacityTint() * BorderBackgroundColorAttribute.Get().GetColor(InWidgetStyle) * Image->GetTint(InWidgetStyle);
		FSlateDrawElement::MakeBox(OutDrawElements, LayerId, AllottedGeometry.ToPaintGeometry(), Image,
			bPale ? ESlateDrawEffect::DisabledEffect : ESlateDrawEffect::None, Tint);
	}
	return SCompoundWidget::OnPaint(Args, AllottedGeometry, MyCullingRect, OutDrawElements, LayerId, InWidgetStyle, bParentEnabled);
}
