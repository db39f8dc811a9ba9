#include "Application/SlateApplicationBase.h"
#include "Host/WidgetExtras.h"
#include "Host/WidgetPasses.h"
#include "Styling/CoreStyle.h"
#include "Widgets/SWidget.h"

using Host::FWidgetExtras;

void SWidget::SetVisibility(TAttribute<EVisibility> InVisibility)
{
	Host::AssignAttribute(*this, Visibility, InVisibility, EInvalidateWidgetReason::Visibility);
}

void SWidget::SetEnabled(const TAttribute<bool>& InEnabledState)
{
	Host::AssignAttribute(*this, bEnabled, InEnabledState, EInvalidateWidgetReason::Paint);
}

void SWidget::SetClipping(EWidgetClipping InClipping)
{
	if (Clipping == InClipping)
	{
		return;
	}
	if (Clipping == EWidgetClipping::ClipToBoundsAlways || InClipping == EWidgetClipping::ClipToBoundsAlways)
	{
		// Descendants that escape the clipping of their parents ask for this one themselves.
		Host::FWidgetPasses::MarkAllForPaint(*this);
	}
	Clipping = InClipping;
	Invalidate(EInvalidateWidgetReason::Paint);
}

void SWidget::SetRenderOpacity(float InRenderOpacity)
{
	if (RenderOpacity != InRenderOpacity)
	{
		RenderOpacity = InRenderOpacity;
		Invalidate(EInvalidateWidgetReason::Paint);
	}
}

void SWidget::SetRenderTransform(TAttribute<TOptional<FSlateRenderTransform>> InTransform)
{
	if (Extras.IsValid() || (InTransform.IsSet() && (InTransform.IsBound() || InTransform.Get().IsSet())))
	{
		Host::AssignAttribute(*this, GetExtras().RenderTransform, InTransform, EInvalidateWidgetReason::RenderTransform);
	}
}

const TOptional<FSlateRenderTransform>& SWidget::GetRenderTransform() const
{
	static const TOptional<FSlateRenderTransform> None;
	return Extras.IsValid() ? Extras->RenderTransform : None;
}

void SWidget::SetRenderTransformPivot(TAttribute<FVector2D> InTransformPivot)
{
	if (Extras.IsValid() || (InTransformPivot.IsSet() && (InTransformPivot.IsBound() || !InTransformPivot.Get().IsZero())))
	{
		Host::AssignAttribute(*this, GetExtras().RenderTransformPivot, InTransformPivot, EInvalidateWidgetReason::RenderTransform);
	}
}

FVector2D SWidget::GetRenderTransformPivot() const
{
	return Extras.IsValid() ? Extras->RenderTransformPivot : FVector2D(0.0, 0.0);
}

void SWidget::SetCursor(const TAttribute<TOptional<EMouseCursor::Type>>& InCursor)
{
	GetExtras().Cursor = InCursor;
}

TOptional<EMouseCursor::Type> SWidget::GetCursor() const
{
	return Extras.IsValid() ? Extras->Cursor.Get() : TOptional<EMouseCursor::Type>();
}

void SWidget::SetToolTipText(const TAttribute<FText>& ToolTipText)
{
	GetExtras().ToolTipText = ToolTipText;
}

void SWidget::SetToolTip(const TAttribute<TSharedPtr<IToolTip>>& InToolTip)
{
	GetExtras().ToolTip = InToolTip;
}

FText SWidget::GetToolTipText() const
{
	return Extras.IsValid() && Extras->ToolTipText.IsSet() ? Extras->ToolTipText.Get() : FText::GetEmpty();
}

TSharedPtr<IToolTip> SWidget::GetToolTip()
{
	return Extras.IsValid() ? Extras->ToolTip.Get() : nullptr;
}

void SWidget::SetTag(FName InTag)
{
	if (Extras.IsValid() || !InTag.IsNone())
	{
		GetExtras().Tag = InTag;
	}
}

FName SWidget::GetTag() const
{
	if (!Extras.IsValid())
	{
		return NAME_None;
	}
	if (!Extras->Tag.IsNone())
	{
		return Extras->Tag;
	}
	const TSharedPtr<FTagMetaData> MetaData = GetMetaData<FTagMetaData>();
	return MetaData.IsValid() ? MetaData->Tag : FName(NAME_None);
}

void SWidget::AddMetadataInternal(const TSharedRef<ISlateMetaData>& AddMe)
{
	GetExtras().MetaData.AddUnique(AddMe);
}

int32 SWidget::RemoveMetaData(const TSharedRef<ISlateMetaData>& RemoveMe)
{
	return Extras.IsValid() ? Extras->MetaData.Remove(RemoveMe) : 0;
}

const TArray<TSharedRef<ISlateMetaData>>& SWidget::GetAllMetaData() const
{
	static const TArray<TSharedRef<ISlateMetaData>> None;
	return Extras.IsValid() ? Extras->MetaData : None;
}

void SWidget::ForceVolatile(bool bForce)
{
	if (bVolatile == bForce)
	{
		return;
	}
	bVolatile = bForce;
	if (bForce)
	{
		Host::FWidgetRegistry::Volatile().Add(*this, GetExtras().VolatileIndex);
	}
	else
	{
		Host::FWidgetRegistry::Volatile().Remove(GetExtras().VolatileIndex);
	}
	Invalidate(EInvalidateWidgetReason::PaintAndVolatility);
}

void SWidget::SetCanTick(bool bInCanTick)
{
	if (bCanTick == bInCanTick)
	{
		return;
	}
	bCanTick = bInCanTick;
	if (bInCanTick)
	{
		Host::FWidgetRegistry::Ticking().Add(*this, GetExtras().TickIndex);
	}
	else
	{
		Host::FWidgetRegistry::Ticking().Remove(GetExtras().TickIndex);
	}
}

bool SWidget::IsDirectlyHovered() const
{
	return FSlateApplicationBase::IsInitialized() && FSlateApplicationBase::Get().IsWidgetDirectlyHovered(AsShared());
}

bool SWidget::HasMouseCapture() const
{
	return FSlateApplicationBase::IsInitialized() && FSlateApplicationBase::Get().DoesWidgetHaveMouseCapture(AsShared());
}

bool SWidget::HasMouseCaptureByUser(int32 UserIndex, TOptional<int32> PointerIndex) const
{
	return FSlateApplicationBase::IsInitialized() && FSlateApplicationBase::Get().DoesWidgetHaveMouseCaptureByUser(AsShared(), UserIndex, PointerIndex);
}

TOptional<EFocusCause> SWidget::HasUserFocus(int32 UserIndex) const
{
	return FSlateApplicationBase::IsInitialized() ? FSlateApplicationBase::Get().HasUserFocus(AsShared(), UserIndex) : TOptional<EFocusCause>();
}

TOptional<EFocusCause> SWidget::HasAnyUserFocus() const
{
	return HasUserFocus(0);
}

bool SWidget::HasFocusedDescendants() const
{
	return HasUserFocusedDescendants(0);
}

bool SWidget::HasUserFocusedDescendants(int32 UserIndex) const
{
	return FSlateApplicationBase::IsInitialized() && FSlateApplicationBase::Get().HasUserFocusedDescendants(AsShared(), UserIndex);
}

const FSlateBrush* SWidget::GetFocusBrush() const
{
	return FCoreStyle::Get().GetBrush("FocusRectangle");
}
