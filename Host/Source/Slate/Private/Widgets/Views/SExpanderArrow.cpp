#include "Widgets/Views/SExpanderArrow.h"

#include "InputCoreTypes.h"
#include "Rendering/DrawElements.h"
#include "Widgets/Views/ITableRow.h"

namespace
{
	/** Room for the arrow, and how far its tips are from the middle of it, in slate units. */
	constexpr float ArrowRoom = 16.0f;
	constexpr float ArrowReach = 3.5f;
}

void SExpanderArrow::Construct(const FArguments& InArgs, const TSharedPtr<ITableRow>& TableRow)
{
	OwnerRowPtr = TableRow;
	IndentAmount = InArgs._IndentAmount;
}

float SExpanderArrow::GetIndent() const
{
	const TSharedPtr<ITableRow> Row = OwnerRowPtr.Pin();
	return Row.IsValid() ? Row->GetIndentLevel() * IndentAmount : 0.0f;
}

FReply SExpanderArrow::OnMouseButtonDown(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	const TSharedPtr<ITableRow> Row = OwnerRowPtr.Pin();
	const bool bOnArrow = FVector2f(MyGeometry.AbsoluteToLocal(MouseEvent.GetScreenSpacePosition())).X >= GetIndent();
	if (!Row.IsValid() || !Row->DoesItemHaveChildren() || !bOnArrow || MouseEvent.GetEffectingButton() != EKeys::LeftMouseButton)
	{
		return FReply::Unhandled();
	}
	Row->ToggleExpansion();
	return FReply::Handled();
}

FReply SExpanderArrow::OnMouseButtonDoubleClick(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	return OnMouseButtonDown(MyGeometry, MouseEvent);
}

FVector2D SExpanderArrow::ComputeDesiredSize(float) const
{
	return FVector2D(GetIndent() + ArrowRoom, ArrowRoom);
}

int32 SExpanderArrow::OnPaint(const FPaintArgs&, const FGeometry& AllottedGeometry, const FSlateRect&, FSlateWindowElementList& OutDrawElements, int32 LayerId,
	const FWidgetStyle& InWidgetStyle, bool) const
{
	const TSharedPtr<ITableRow> Row = OwnerRowPtr.Pin();
	if (!Row.IsValid() || !Row->DoesItemHaveChildren())
	{
		return LayerId;
	}
	const FVector2f Middle(GetIndent() + ArrowRoom * 0.5f, FVector2f(AllottedGeometry.GetLocalSize()).Y * 0.5f);
	// Points down when open, else to what would open.
	const bool bOpen = Row->IsItemExpanded();
	const FVector2f Ahead = bOpen ? FVector2f(0.0f, ArrowReach) : FVector2f(ArrowReach, 0.0f);
	const FVector2f Aside(Ahead.Y, Ahead.X);
	const FVector2f Back = Middle - Ahead * 0.5f;
	const TArray<FVector2f> Points = {Back - Aside, Middle + Ahead * 0.5f, Back + Aside};
	const FLinearColor Color = InWidgetStyle.GetForegroundColor() * InWidgetStyle.GetColorAndOpacityTint();
	FSlateDrawElement::MakeLines(OutDrawElements, LayerId, AllottedGeometry.ToPaintGeometry(), Points, ESlateDrawEffect::None, Color, true, 1.5f);
	return LayerId;
}
