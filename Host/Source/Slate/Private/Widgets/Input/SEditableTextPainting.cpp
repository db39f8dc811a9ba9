#include "Framework/Application/TextInput.h"
#include "Host/FontServices.h"
#include "Rendering/DrawElements.h"
#include "Widgets/Input/EditableTextView.h"
#include "Widgets/Input/SEditableText.h"
#include "Widgets/Input/TextEditModel.h"

namespace
{
	/** Of the caret, in slate units; a pixel at least. */
	constexpr float CaretWidth = 1.0f;

	/** Opacity of the hint, as a share of that of the text. */
	constexpr float HintOpacity = 0.5f;

	float GetCaretPixels(float Scale)
	{
		return FMath::Max(FMath::RoundToFloat(CaretWidth * Scale), 1.0f);
	}

	Host::ETextAlign ToAlign(ETextJustify::Type Justification)
	{
		switch (Justification)
		{
		case ETextJustify::Center:
			return Host::ETextAlign::Center;
		case ETextJustify::Right:
			return Host::ETextAlign::End;
		default:
			return Host::ETextAlign::Start;
		}
	}

	/** A box given in pixels of the geometry. */
	FPaintGeometry PixelBox(const FGeometry& Geometry, float Left, float Top, float Width, float Height)
	{
		const float Units = 1.0f / Geometry.Scale;
		return Geometry.ToPaintGeometry(FVector2f(Width, Height) * Units, FSlateLayoutTransform(FVector2f(Left, Top) * Units));
	}

	void PaintRun(const Host::FShapedRunRef& Run, const FVector2f& Baseline, const FGeometry& Geometry, FSlateWindowElementList& List, int32 Layer,
		ESlateDrawEffect Effect, const FLinearColor& Color)
	{
		const Host::FFontMetrics& Metrics = Run->GetFont().GetMetrics();
		FSlateDrawElement::MakeShapedText(
			List, Layer, PixelBox(Geometry, Baseline.X, Baseline.Y - Metrics.Baseline, Run->GetWidth(), Metrics.LineHeight), Run, Effect, Color);
	}
}

FVector2D SEditableText::ComputeDesiredSize(float LayoutScaleMultiplier) const
{
	const float Scale = LayoutScaleMultiplier > 0.0f ? LayoutScaleMultiplier : 1.0f;
	UpdateView(Scale);
	FVector2f Size = View->Layout.GetSize();
	if (View->Shown.GetText().IsEmpty() && !HintTextAttribute.Get().IsEmpty())
	{
		Host::FFontServices& Services = Host::FFontServices::Get();
		Size.X = FMath::CeilToFloat(Services.Shape(Services.GetFont(GetFont(), Scale), HintTextAttribute.Get().ToString())->GetWidth());
	}
	const float Width = (Size.X + GetCaretPixels(Scale)) / Scale;
	return FVector2D(FMath::Max(Width, MinDesiredWidthAttribute.Get()), Size.Y / Scale);
}

void SEditableText::UpdateView(float Scale) const
{
	Host::FTextLayoutStyle LayoutStyle;
	LayoutStyle.Font = Host::FFontServices::Get().GetFont(GetFont(), Scale);
	LayoutStyle.Align = ToAlign(JustificationAttribute.Get());
	View->Shown.Set(*Model, IsTextPassword(), *Composition);
	View->Layout.SetStyle(LayoutStyle);
	View->Layout.SetText(View->Shown.GetText());
	View->Scale = Scale;
}

void SEditableText::RefreshView() const
{
	UpdateView(View->Scale > 0.0f ? View->Scale : 1.0f);
}

Host::FCaretPlace SEditableText::GetCaret() const
{
	const Host::FTextPlace& Place = Model->GetCaretPlace();
	Host::FCaretPlace Caret = View->Shown.IsComposing() ? View->Layout.GetCaret(View->Shown.GetCompositionCaret(), View->AreaWidth, true)
		: View->Layout.GetCaret(View->Shown.ToShown(Place.Index), View->AreaWidth, Place.bAfter);
	// Text that ends at the right edge has the caret on its last pixel: beyond it nothing is seen.
	Caret.X = FMath::Min(Caret.X, View->AreaWidth - GetCaretPixels(View->Scale));
	return Caret;
}

void SEditableText::ScrollToCaret(float ViewWidth) const
{
	const float Caret = GetCaretPixels(View->Scale);
	View->AreaWidth = FMath::Max(ViewWidth, View->Layout.GetSize().X + Caret);
	const float Hidden = View->AreaWidth - ViewWidth;
	if (Hidden <= 0.0f)
	{
		View->ScrollOffset = 0.0f;
		return;
	}
	// Otherwise it shows the beginning.
	float Offset = View->Layout.IsRightToLeft(0) ? Hidden : 0.0f;
	if (bEditing)
	{
		const float Place = GetCaret().X;
		Offset = FMath::Max(FMath::Min(View->ScrollOffset, Place), Place + Caret - ViewWidth);
	}
	View->ScrollOffset = FMath::RoundToFloat(FMath::Clamp(Offset, 0.0f, Hidden));
}

int32 SEditableText::OnPaint(const FPaintArgs&, const FGeometry& AllottedGeometry, const FSlateRect&, FSlateWindowElementList& OutDrawElements, int32 LayerId,
	const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const
{
	if (AllottedGeometry.Scale <= 0.0f)
	{
		return LayerId;
	}
	UpdateView(AllottedGeometry.Scale);
	const FVector2f Pixels = FVector2f(AllottedGeometry.GetLocalSize()) * AllottedGeometry.Scale;
	ScrollToCaret(Pixels.X);
	View->Top = FMath::RoundToFloat(FMath::Max((Pixels.Y - View->Layout.GetSize().Y) * 0.5f, 0.0f));

	const bool bEnabled = ShouldBeEnabled(bParentEnabled);
	const ESlateDrawEffect Effect = bEnabled ? ESlateDrawEffect::None : ESlateDrawEffect::DisabledEffect;
	const FLinearColor Tint = InWidgetStyle.GetColorAndOpacityTint();
	const FLinearColor Color = (bColorIsOwn ? ColorAttribute.Get() : Style->ColorAndOpacity).GetColor(InWidgetStyle) * Tint;
	PaintBackground(AllottedGeometry, OutDrawElements, LayerId, InWidgetStyle, Effect);
	if (View->Shown.GetText().IsEmpty())
	{
		PaintHint(AllottedGeometry, OutDrawElements, LayerId + 1, FLinearColor(Color.R, Color.G, Color.B, Color.A * HintOpacity));
	}
	else
	{
		PaintText(AllottedGeometry, OutDrawElements, LayerId + 1, Effect, Color);
		PaintCompositionLine(AllottedGeometry, OutDrawElements, LayerId + 1, Color);
	}
	if (CanShowCaret() && bEnabled)
	{
		PaintCaret(AllottedGeometry, OutDrawElements, LayerId + 2, InWidgetStyle, Color);
	}
	return LayerId + 2;
}

void SEditableText::PaintBackground(const FGeometry& AllottedGeometry, FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle,
	ESlateDrawEffect Effect) const
{
	const FLinearColor Tint = InWidgetStyle.GetColorAndOpacityTint();
	const Host::FShownText& Shown = View->Shown;
	if (Shown.IsComposing())
	{
		const FSlateBrush& Brush = CompositionBrushAttribute.Get() ? *CompositionBrushAttribute.Get() : Style->BackgroundImageComposing;
		PaintRange(AllottedGeometry, OutDrawElements, LayerId, Shown.GetCompositionBegin(), Shown.GetCompositionEnd(), Brush, Effect, Brush.GetTint(InWidgetStyle) * Tint);
	}
	else if (bEditing && Model->HasSelection())
	{
		const FSlateBrush& Brush = SelectionBrushAttribute.Get() ? *SelectionBrushAttribute.Get() : Style->BackgroundImageSelected;
		PaintRange(AllottedGeometry, OutDrawElements, LayerId, Shown.ToShown(Model->GetSelectionBegin()), Shown.ToShown(Model->GetSelectionEnd()), Brush, Effect,
			Brush.GetTint(InWidgetStyle) * Tint);
	}
}

void SEditableText::PaintRange(const FGeometry& AllottedGeometry, FSlateWindowElementList& OutDrawElements, int32 LayerId, int32 Begin, int32 End, const FSlateBrush& Brush,
	ESlateDrawEffect Effect, const FLinearColor& Color) const
{
	TArray<Host::FSelectionBox> Boxes;
	View->Layout.GetSelection(Begin, End, View->AreaWidth, Boxes);
	for (const Host::FSelectionBox& Box : Boxes)
	{
		const FPaintGeometry Place = PixelBox(AllottedGeometry, Box.Left - View->ScrollOffset, View->Top + Box.Top, Box.Right - Box.Left, Box.Bottom - Box.Top);
		FSlateDrawElement::MakeBox(OutDrawElements, LayerId, Place, &Brush, Effect, Color);
	}
}

void SEditableText::PaintText(const FGeometry& AllottedGeometry, FSlateWindowElementList& OutDrawElements, int32 LayerId, ESlateDrawEffect Effect, const FLinearColor& Color) const
{
	const FVector2f Pixels = FVector2f(AllottedGeometry.GetLocalSize()) * AllottedGeometry.Scale;
	const bool bShortened = !bEditing && OverflowPolicy != ETextOverflowPolicy::Clip;
	TArray<Host::FPlacedRun> Runs;
	View->Layout.Place(FVector2f(bShortened ? Pixels.X : View->AreaWidth, Pixels.Y), bShortened ? Host::ETextOverflow::Ellipsis : Host::ETextOverflow::Clip, Runs);
	for (const Host::FPlacedRun& Placed : Runs)
	{
		const FVector2f Scroll(bShortened ? 0.0f : -View->ScrollOffset, View->Top);
		PaintRun(Placed.Run, Placed.Origin + Scroll, AllottedGeometry, OutDrawElements, LayerId, Effect, Color);
	}
}

void SEditableText::PaintCompositionLine(const FGeometry& AllottedGeometry, FSlateWindowElementList& OutDrawElements, int32 LayerId, const FLinearColor& Color) const
{
	if (!View->Shown.IsComposing())
	{
		return;
	}
	const float Thickness = GetCaretPixels(View->Scale);
	const float Baseline = View->Layout.GetStyle().Font->GetMetrics().Baseline;
	TArray<Host::FSelectionBox> Boxes;
	View->Layout.GetSelection(View->Shown.GetCompositionBegin(), View->Shown.GetCompositionEnd(), View->AreaWidth, Boxes);
	for (const Host::FSelectionBox& Box : Boxes)
	{
		// Whole pixels, a line's thickness below the text.
		const float Left = FMath::RoundToFloat(Box.Left - View->ScrollOffset);
		const float Right = FMath::RoundToFloat(Box.Right - View->ScrollOffset);
		const float Top = FMath::RoundToFloat(View->Top + Box.Top + Baseline) + Thickness;
		FSlateDrawElement::MakeBox(OutDrawElements, LayerId, PixelBox(AllottedGeometry, Left, Top, Right - Left, Thickness), FCoreStyle::Get().GetBrush("WhiteBrush"),
			ESlateDrawEffect::None, Color);
	}
}

void SEditableText::PaintCaret(const FGeometry& AllottedGeometry, FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle,
	const FLinearColor& Color) const
{
	const Host::FCaretPlace Caret = GetCaret();
	const FPaintGeometry Place = PixelBox(
		AllottedGeometry, FMath::RoundToFloat(Caret.X - View->ScrollOffset), View->Top + Caret.Top, GetCaretPixels(View->Scale), Caret.Height);
	TellCaretArea(AllottedGeometry, Caret);
	if (bCaretShown)
	{
		const FSlateBrush* Brush = CaretBrushAttribute.Get() ? CaretBrushAttribute.Get() : &Style->CaretImage;
		FSlateDrawElement::MakeBox(OutDrawElements, LayerId, Place, Brush, ESlateDrawEffect::None, Brush->GetTint(InWidgetStyle) * Color);
	}
}

void SEditableText::TellCaretArea(const FGeometry& AllottedGeometry, const Host::FCaretPlace& Caret) const
{
	const FVector2f TopLeft = FVector2f(Caret.X - View->ScrollOffset, View->Top + Caret.Top) / View->Scale;
	const FVector2f Size = FVector2f(GetCaretPixels(View->Scale), Caret.Height) / View->Scale;
	const FSlateRect Pixels = AllottedGeometry.GetRenderBoundingRect(FSlateRect(TopLeft, TopLeft + Size));
	const FIntPoint Min(FMath::RoundToInt32(Pixels.Left), FMath::RoundToInt32(Pixels.Top));
	Host::FTextInput::Get().SetCaretArea(*this, FIntRect(Min, FIntPoint(FMath::RoundToInt32(Pixels.Right), FMath::RoundToInt32(Pixels.Bottom))));
}

void SEditableText::PaintHint(const FGeometry& AllottedGeometry, FSlateWindowElementList& OutDrawElements, int32 LayerId, const FLinearColor& Color) const
{
	const FText& Hint = HintTextAttribute.Get();
	if (Hint.IsEmpty())
	{
		return;
	}
	Host::FFontServices& Services = Host::FFontServices::Get();
	const Host::FShapedRunRef Run = Services.Shape(Services.GetFont(GetFont(), AllottedGeometry.Scale), Hint.ToString());
	const float Rest = FMath::Max(AllottedGeometry.GetLocalSize().X * AllottedGeometry.Scale - Run->GetWidth(), 0.0f);
	const Host::ETextAlign Align = ToAlign(JustificationAttribute.Get());
	const bool bAtRight = (Align == Host::ETextAlign::End) != Run->IsRightToLeft();
	const float Left = Align == Host::ETextAlign::Center ? FMath::RoundToFloat(Rest * 0.5f) : bAtRight ? Rest : 0.0f;
	PaintRun(Run, FVector2f(Left, View->Top + Run->GetFont().GetMetrics().Baseline), AllottedGeometry, OutDrawElements, LayerId, ESlateDrawEffect::None, Color);
}
