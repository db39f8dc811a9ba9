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
	if (Model->GetText().IsEmpty() && !HintTextAttribute.Get().IsEmpty())
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
	View->Layout.SetStyle(LayoutStyle);
	View->Layout.SetText(GetShownText());
	View->Scale = Scale;
}

void SEditableText::RefreshView() const
{
	UpdateView(View->Scale > 0.0f ? View->Scale : 1.0f);
}

void SEditableText::ScrollToCaret(float ViewWidth) const
{
	const float Caret = GetCaretPixels(View->Scale);
	View->AreaWidth = FMath::Max(ViewWidth, View->Layout.GetSize().X + Caret);
	float Offset = bHasFocus ? View->ScrollOffset : 0.0f;
	if (bHasFocus)
	{
		const float Place = View->Layout.GetCaret(Model->GetCaret(), View->AreaWidth).X;
		Offset = FMath::Max(FMath::Min(Offset, Place), Place + Caret - ViewWidth);
	}
	View->ScrollOffset = FMath::RoundToFloat(FMath::Clamp(Offset, 0.0f, View->AreaWidth - ViewWidth));
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
	if (bHasFocus && Model->HasSelection())
	{
		const FSlateBrush* Brush = SelectionBrushAttribute.Get() ? SelectionBrushAttribute.Get() : &Style->BackgroundImageSelected;
		TArray<Host::FSelectionBox> Boxes;
		View->Layout.GetSelection(Model->GetSelectionBegin(), Model->GetSelectionEnd(), View->AreaWidth, Boxes);
		for (const Host::FSelectionBox& Box : Boxes)
		{
			FSlateDrawElement::MakeBox(OutDrawElements, LayerId,
				PixelBox(AllottedGeometry, Box.Left - View->ScrollOffset, View->Top + Box.Top, Box.Right - Box.Left, Box.Bottom - Box.Top), Brush, Effect,
				Brush->GetTint(InWidgetStyle) * Tint);
		}
	}

	if (Model->GetText().IsEmpty())
	{
		PaintHint(AllottedGeometry, OutDrawElements, LayerId + 1, FLinearColor(Color.R, Color.G, Color.B, Color.A * HintOpacity));
	}
	else
	{
		TArray<Host::FPlacedRun> Runs;
		View->Layout.Place(FVector2f(View->AreaWidth, Pixels.Y), Host::ETextOverflow::Clip, Runs);
		for (const Host::FPlacedRun& Placed : Runs)
		{
			PaintRun(Placed.Run, Placed.Origin + FVector2f(-View->ScrollOffset, View->Top), AllottedGeometry, OutDrawElements, LayerId + 1, Effect, Color);
		}
	}

	if (bHasFocus && bCaretShown && bEnabled && !IsTextReadOnly())
	{
		const FSlateBrush* Brush = CaretBrushAttribute.Get() ? CaretBrushAttribute.Get() : &Style->CaretImage;
		const Host::FCaretPlace Caret = View->Layout.GetCaret(Model->GetCaret(), View->AreaWidth);
		FSlateDrawElement::MakeBox(OutDrawElements, LayerId + 2,
			PixelBox(AllottedGeometry, FMath::RoundToFloat(Caret.X - View->ScrollOffset), View->Top + Caret.Top, GetCaretPixels(View->Scale), Caret.Height), Brush,
			ESlateDrawEffect::None, Brush->GetTint(InWidgetStyle) * Color);
	}
	return LayerId + 2;
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

int32 SEditableText::FindPositionAt(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) const
{
	RefreshView();
	const FVector2f Place = FVector2f(MyGeometry.AbsoluteToLocal(MouseEvent.GetScreenSpacePosition())) * View->Scale;
	return View->Layout.FindIndexAt(FVector2f(Place.X + View->ScrollOffset, 0.0f), View->AreaWidth);
}

int32 SEditableText::FindSelectionEdge(bool bRight) const
{
	RefreshView();
	const int32 Begin = Model->GetSelectionBegin();
	const int32 End = Model->GetSelectionEnd();
	const bool bEndIsRight = View->Layout.GetCaret(End, View->AreaWidth).X >= View->Layout.GetCaret(Begin, View->AreaWidth).X;
	return bEndIsRight == bRight ? End : Begin;
}
