#include "Widgets/SNullWidget.h"

#include "Widgets/SLeafWidget.h"

namespace
{
	class SNullWidgetContent : public SLeafWidget
	{
	public:
		virtual FVector2D ComputeDesiredSize(float) const override { return FVector2D(0.0, 0.0); }

		virtual int32 OnPaint(const FPaintArgs&, const FGeometry&, const FSlateRect&, FSlateWindowElementList&, int32 LayerId, const FWidgetStyle&, bool) const override
		{
			return LayerId;
		}
	};
}

TSharedRef<SWidget> SNullWidget::NullWidget = MakeShared<SNullWidgetContent>();
