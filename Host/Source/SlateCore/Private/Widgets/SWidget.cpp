#include "Widgets/SWidget.h"

#include "Application/SlateApplicationBase.h"
#include "Host/WidgetActivity.h"
#include "Host/WidgetExtras.h"
#include "Host/WidgetPasses.h"
#include "Layout/ArrangedChildren.h"
#include "Layout/Children.h"
#include "Widgets/DeclarativeSyntaxSupport.h"

using Host::FWidgetExtras;
using Host::FWidgetPasses;

namespace
{
	int32 NumWidgetsAlive = 0;
}

SWidget::SWidget()
{
	++NumWidgetsAlive;
}

SWidget::~SWidget()
{
	checkf(!bIsRoot, TEXT("%s is destroyed while it is the top of a tree"), *ToString());
	--NumWidgetsAlive;
}

int32 SWidget::GetNumAlive()
{
	return NumWidgetsAlive;
}

void SWidget::SWidgetConstruct(const FSlateBaseNamedArgs& Args, const ANSICHAR* InTypeName)
{
	TypeName = InTypeName;
	if (Args._Visibility.IsSet())
	{
		SetVisibility(Args._Visibility);
	}
	if (Args._IsEnabled.IsSet())
	{
		SetEnabled(Args._IsEnabled);
	}
	if (Args._RenderTransform.IsSet())
	{
		SetRenderTransform(Args._RenderTransform);
	}
	if (Args._RenderTransformPivot.IsSet())
	{
		SetRenderTransformPivot(Args._RenderTransformPivot);
	}
	if (Args._ToolTip.IsSet())
	{
		SetToolTip(Args._ToolTip);
	}
	if (Args._ToolTipText.IsSet())
	{
		SetToolTipText(Args._ToolTipText);
	}
	if (Args._Cursor.IsSet())
	{
		SetCursor(Args._Cursor);
	}
	if (!Args._Tag.IsNone())
	{
		SetTag(Args._Tag);
	}
	for (const TSharedRef<ISlateMetaData>& MetaData : Args._MetaData)
	{
		AddMetadataInternal(MetaData);
	}
	RenderOpacity = Args._RenderOpacity;
	Clipping = Args._Clipping;
	if (Args._ForceVolatile)
	{
		ForceVolatile(true);
	}
}

FName SWidget::GetType() const
{
	return TypeName ? FName(TypeName) : FName(TEXT("SWidget"));
}

FString SWidget::GetTypeAsString() const
{
	return TypeName ? FString(TypeName) : FString(TEXT("SWidget"));
}

FString SWidget::ToString() const
{
	const FName NameTag = GetTag();
	return NameTag.IsNone() ? GetTypeAsString() : GetTypeAsString() + TEXT(" [") + NameTag.ToString() + TEXT("]");
}

FWidgetExtras& SWidget::GetExtras() const
{
	if (!Extras.IsValid())
	{
		Extras = MakeUnique<FWidgetExtras>(const_cast<SWidget&>(*this));
	}
	return *Extras;
}

void SWidget::Tick(const FGeometry&, const double, const float)
{
}

bool SWidget::CustomPrepass(float)
{
	return true;
}

void SWidget::SlatePrepass(float InLayoutScaleMultiplier)
{
	const bool bChanged = FWidgetPasses::Prepass(*this, InLayoutScaleMultiplier);
	const Host::EWidgetDirt Left = State.Dirt & (Host::EWidgetDirt::AnyArrange | Host::EWidgetDirt::AnyPaint);
	if (Left != Host::EWidgetDirt::None)
	{
		FWidgetPasses::Mark(*this, Left);
	}
	if (bChanged && State.Parent)
	{
		FWidgetPasses::Mark(*State.Parent, Host::EWidgetDirt::Prepass);
	}
}

void SWidget::ArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const
{
	if (!FWidgetPasses::GetArrangedFromCache(*this, AllottedGeometry, ArrangedChildren))
	{
		OnArrangeChildren(AllottedGeometry, ArrangedChildren);
	}
}

int32 SWidget::Paint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect, FSlateWindowElementList& OutDrawElements, int32 LayerId,
	const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const
{
	return FWidgetPasses::Paint(*this, Args, AllottedGeometry, MyCullingRect, OutDrawElements, LayerId, InWidgetStyle, bParentEnabled);
}

int32 SWidget::PaintArrangedChildren(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect, FSlateWindowElementList& OutDrawElements,
	int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const
{
	const FPaintArgs ChildArgs = Args.WithNewParent(this);
	int32 TopLayer = LayerId;
	if (AllottedGeometry == State.Geometry)
	{
		for (const SWidget* Child = State.FirstArranged; Child; Child = Child->State.NextArranged)
		{
			const FGeometry& Geometry = Child->State.Geometry;
			if (FSlateRect::DoRectanglesIntersect(MyCullingRect, Geometry.GetRenderBoundingRect()))
			{
				TopLayer = FMath::Max(TopLayer, Child->Paint(ChildArgs, Geometry, MyCullingRect, OutDrawElements, LayerId, InWidgetStyle, bParentEnabled));
			}
		}
		return TopLayer;
	}
	FArrangedChildren Children(EVisibility::Visible);
	ArrangeChildren(AllottedGeometry, Children);
	for (const FArrangedWidget& Child : Children.GetInternalArray())
	{
		if (!IsChildWidgetCulled(MyCullingRect, Child))
		{
			TopLayer = FMath::Max(TopLayer, Child.Widget->Paint(ChildArgs, Child.Geometry, MyCullingRect, OutDrawElements, LayerId, InWidgetStyle, bParentEnabled));
		}
	}
	return TopLayer;
}

bool SWidget::IsChildWidgetCulled(const FSlateRect& MyCullingRect, const FArrangedWidget& ArrangedChild) const
{
	return !FSlateRect::DoRectanglesIntersect(MyCullingRect, ArrangedChild.Geometry.GetRenderBoundingRect());
}

float SWidget::GetRelativeLayoutScale(int32, float) const
{
	return 1.0f;
}

void SWidget::Invalidate(EInvalidateWidgetReason InvalidateReason)
{
	FWidgetPasses::Invalidate(*this, InvalidateReason);
	if (bAppliedEnabled != bEnabled)
	{
		bAppliedEnabled = bEnabled;
		OnEnabledChanged();
	}
}

TSharedPtr<SWidget> SWidget::GetParentWidget() const
{
	return State.Parent ? TSharedPtr<SWidget>(State.Parent->AsShared()) : nullptr;
}

TSharedRef<FActiveTimerHandle> SWidget::RegisterActiveTimer(float TickPeriod, FWidgetActiveTimerDelegate TickFunction)
{
	const TSharedRef<FActiveTimerHandle> Timer = MakeShared<FActiveTimerHandle>(TickPeriod, MoveTemp(TickFunction), Host::FWidgetActivity::GetCurrentTime());
	FWidgetExtras& Rare = GetExtras();
	Rare.Timers.Add(Timer);
	Host::FWidgetRegistry::WithTimers().Add(*this, Rare.TimersIndex);
	return Timer;
}

void SWidget::UnRegisterActiveTimer(const TSharedRef<FActiveTimerHandle>& ActiveTimerHandle)
{
	ActiveTimerHandle->Stop();
	if (!Extras.IsValid())
	{
		return;
	}
	Extras->Timers.Remove(ActiveTimerHandle);
	if (Extras->Timers.IsEmpty())
	{
		Host::FWidgetRegistry::WithTimers().Remove(Extras->TimersIndex);
	}
}

bool SWidget::HasActiveTimers() const
{
	return Extras.IsValid() && !Extras->Timers.IsEmpty();
}
