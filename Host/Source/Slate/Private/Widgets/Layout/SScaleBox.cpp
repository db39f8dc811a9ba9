#include "Widgets/Layout/SScaleBox.h"

#include "Layout/ArrangedChildren.h"
#include "Layout/Clipping.h"
#include "Layout/LayoutUtils.h"
#include "Rendering/DrawElements.h"

SScaleBox::SScaleBox()
	: ChildSlot(this)
	, StretchDirectionAttribute(*this, EStretchDirection::Both)
	, StretchAttribute(*this, EStretch::None)
	, UserSpecifiedScaleAttribute(*this, 1.0f)
	, IgnoreInheritedScaleAttribute(*this, false)
{
}

void SScaleBox::Construct(const FArguments& InArgs)
{
	StretchDirectionAttribute.Assign(*this, InArgs._StretchDirection);
	StretchAttribute.Assign(*this, InArgs._Stretch);
	UserSpecifiedScaleAttribute.Assign(*this, InArgs._UserSpecifiedScale);
	IgnoreInheritedScaleAttribute.Assign(*this, InArgs._IgnoreInheritedScale);
	UpdateTicking();

	ChildSlot.HAlign(InArgs._HAlign).VAlign(InArgs._VAlign);
	ChildSlot.AttachWidget(InArgs._Content.Widget);
}

void SScaleBox::SetContent(TSharedRef<SWidget> InContent)
{
	ChildSlot.AttachWidget(InContent);
}

void SScaleBox::SetHAlign(EHorizontalAlignment HAlign)
{
	ChildSlot.SetHorizontalAlignment(HAlign);
}

void SScaleBox::SetVAlign(EVerticalAlignment VAlign)
{
	ChildSlot.SetVerticalAlignment(VAlign);
}

void SScaleBox::SetStretchDirection(EStretchDirection::Type InStretchDirection)
{
	StretchDirectionAttribute.Set(*this, InStretchDirection);
}

void SScaleBox::SetStretch(EStretch::Type InStretch)
{
	if (StretchAttribute.Set(*this, InStretch))
	{
		UpdateTicking();
	}
}

void SScaleBox::SetUserSpecifiedScale(float InUserSpecifiedScale)
{
	UserSpecifiedScaleAttribute.Set(*this, InUserSpecifiedScale);
}

void SScaleBox::SetIgnoreInheritedScale(bool InIgnoreInheritedScale)
{
	IgnoreInheritedScaleAttribute.Set(*this, InIgnoreInheritedScale);
}

float SScaleBox::GetRelativeLayoutScale(int32, float LayoutScaleMultiplier) const
{
	// What follows from the area is not known yet; the content is measured for the scale of the box.
	return IsScaleGiven() ? ComputeContentScale(FVector2f::ZeroVector, LayoutScaleMultiplier) : 1.0f;
}

FVector2D SScaleBox::ComputeDesiredSize(float LayoutScaleMultiplier) const
{
	const TSharedRef<SWidget>& Child = ChildSlot.GetWidget();
	if (Child->GetVisibility() == EVisibility::Collapsed)
	{
		return FVector2D::ZeroVector;
	}
	const FVector2f Desired(Child->GetDesiredSize());
	switch (StretchAttribute.Get())
	{
	case EStretch::ScaleToFitX:
		return FVector2D(Desired.X, Desired.Y * AreaScale);
	case EStretch::ScaleToFitY:
		return FVector2D(Desired.X * AreaScale, Desired.Y);
	default:
		return FVector2D(Desired * GetRelativeLayoutScale(0, LayoutScaleMultiplier));
	}
}

void SScaleBox::Tick(const FGeometry& AllottedGeometry, const double, const float)
{
	const float Scale = IsRoomRuledByScale() ? ComputeContentScale(AllottedGeometry.GetLocalSize(), AllottedGeometry.Scale) : 1.0f;
	if (AreaScale != Scale)
	{
		AreaScale = Scale;
		Invalidate(EInvalidateWidgetReason::Layout);
	}
}

void SScaleBox::OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const
{
	const TSharedRef<SWidget>& Child = ChildSlot.GetWidget();
	if (!ArrangedChildren.Accepts(Child->GetVisibility()))
	{
		return;
	}
	using namespace Host;
	const FVector2f Area(AllottedGeometry.GetLocalSize());
	const float Scale = ComputeContentScale(Area, AllottedGeometry.Scale);
	if (Scale <= 0.0f)
	{
		return;
	}
	const bool bFill = StretchAttribute.Get() == EStretch::Fill;
	const EAxisAlignment AlignmentX = bFill ? EAxisAlignment::Fill : GetAxisAlignment<Orient_Horizontal>(EFlowDirection::LeftToRight, ChildSlot);
	const EAxisAlignment AlignmentY = bFill ? EAxisAlignment::Fill : GetAxisAlignment<Orient_Vertical>(EFlowDirection::LeftToRight, ChildSlot);
	const FVector2f Scaled = FVector2f(Child->GetDesiredSize()) * Scale;
	const AlignmentArrangeResult X = AlignSpan(AlignmentX, Area.X, Scaled.X, 0.0f, 0.0f, false);
	const AlignmentArrangeResult Y = AlignSpan(AlignmentY, Area.Y, Scaled.Y, 0.0f, 0.0f, false);
	ArrangedChildren.AddWidget(AllottedGeometry.MakeChild(Child, FVector2f(X.Offset, Y.Offset), FVector2f(X.Size, Y.Size) / Scale, Scale));
}

int32 SScaleBox::OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect, FSlateWindowElementList& OutDrawElements,
	int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const
{
	if (GetClipping() != EWidgetClipping::Inherit || !IsClippingNeeded())
	{
		return SPanel::OnPaint(Args, AllottedGeometry, MyCullingRect, OutDrawElements, LayerId, InWidgetStyle, bParentEnabled);
	}
	OutDrawElements.PushClip(FSlateClippingZone(AllottedGeometry));
	const int32 TopLayer = SPanel::OnPaint(Args, AllottedGeometry, MyCullingRect, OutDrawElements, LayerId, InWidgetStyle, bParentEnabled);
	OutDrawElements.PopClip();
	return TopLayer;
}

bool SScaleBox::IsScaleGiven() const
{
	switch (StretchAttribute.Get())
	{
	case EStretch::ScaleToFit:
	case EStretch::ScaleToFitX:
	case EStretch::ScaleToFitY:
	case EStretch::ScaleToFill:
		return false;
	default:
		return true;
	}
}

bool SScaleBox::IsRoomRuledByScale() const
{
	return StretchAttribute.Get() == EStretch::ScaleToFitX || StretchAttribute.Get() == EStretch::ScaleToFitY;
}

void SScaleBox::UpdateTicking()
{
	// A getter may give any stretch at any time.
	SetCanTick(IsRoomRuledByScale() || StretchAttribute.IsBound(*this));
}

bool SScaleBox::IsClippingNeeded() const
{
	switch (StretchAttribute.Get())
	{
	case EStretch::ScaleToFitX:
	case EStretch::ScaleToFitY:
	case EStretch::ScaleToFill:
	case EStretch::UserSpecifiedWithClipping:
		return true;
	default:
		return false;
	}
}

float SScaleBox::GetInheritedScaleCorrection(float LayoutScaleMultiplier) const
{
	return IgnoreInheritedScaleAttribute.Get() && LayoutScaleMultiplier > 0.0f ? 1.0f / LayoutScaleMultiplier : 1.0f;
}

float SScaleBox::ComputeContentScale(const FVector2f& Area, float LayoutScaleMultiplier) const
{
	const EStretch::Type Stretch = StretchAttribute.Get();
	if (Stretch == EStretch::UserSpecified || Stretch == EStretch::UserSpecifiedWithClipping)
	{
		return UserSpecifiedScaleAttribute.Get() * GetInheritedScaleCorrection(LayoutScaleMultiplier);
	}
	if (IsScaleGiven())
	{
		return GetInheritedScaleCorrection(LayoutScaleMultiplier);
	}

	const FVector2f Desired(ChildSlot.GetWidget()->GetDesiredSize());
	if (Desired.X <= 0.0f || Desired.Y <= 0.0f)
	{
		return 1.0f;
	}
	const FVector2f Ratio = Area / Desired;
	float Scale = 1.0f;
	switch (Stretch)
	{
	case EStretch::ScaleToFitX:
		Scale = Ratio.X;
		break;
	case EStretch::ScaleToFitY:
		Scale = Ratio.Y;
		break;
	case EStretch::ScaleToFill:
		Scale = FMath::Max(Ratio.X, Ratio.Y);
		break;
	default:
		Scale = FMath::Min(Ratio.X, Ratio.Y);
		break;
	}
	switch (StretchDirectionAttribute.Get())
	{
	case EStretchDirection::DownOnly:
		return FMath::Min(Scale, 1.0f);
	case EStretchDirection::UpOnly:
		return FMath::Max(Scale, 1.0f);
	default:
		return Scale;
	}
}
