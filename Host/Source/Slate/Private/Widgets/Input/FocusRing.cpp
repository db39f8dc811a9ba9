#include "Widgets/Input/FocusRing.h"

#include "Rendering/DrawElements.h"
#include "Styling/CoreStyle.h"
#include "Widgets/SWidget.h"

namespace Host
{
	void PaintFocusRing(const SWidget& Control, const FGeometry& Part, ESlateBrushRoundingType::Type Rounding, FSlateWindowElementList& Elements, int32 Layer)
	{
		/** Slate units from the part to the outside of the ring. */
		constexpr float Distance = 3.0f;
		if (Control.HasAnyUserFocus() != EFocusCause::Navigation)
		{
			return;
		}
		FSlateBrush Ring = *FCoreStyle::Get().GetBrush("FocusRectangle");
		Ring.OutlineSettings.RoundingType = Rounding;
		const FVector2f Size = FVector2f(Part.GetLocalSize()) + FVector2f(2.0f * Distance, 2.0f * Distance);
		const FGeometry Around = Part.MakeChild(Size, FSlateLayoutTransform(FVector2f(-Distance, -Distance)));
		FSlateDrawElement::MakeBox(Elements, Layer, Around.ToPaintGeometry(), &Ring, ESlateDrawEffect::None, Ring.GetTint(FWidgetStyle()));
	}
}
