#include "Widgets/Layout/SSpacer.h"

SSpacer::SSpacer()
	: SizeAttribute(*this, FVector2D::ZeroVector)
{
}

void SSpacer::Construct(const FArguments& InArgs)
{
	SizeAttribute.Assign(*this, InArgs._Size);
}

void SSpacer::SetSize(TAttribute<FVector2D> InSpacerSize)
{
	SizeAttribute.Assign(*this, InSpacerSize);
}

int32 SSpacer::OnPaint(const FPaintArgs&, const FGeometry&, const FSlateRect&, FSlateWindowElementList&, int32 LayerId, const FWidgetStyle&, bool) const
{
	return LayerId;
}

FVector2D SSpacer::ComputeDesiredSize(float) const
{
	return SizeAttribute.Get();
}
