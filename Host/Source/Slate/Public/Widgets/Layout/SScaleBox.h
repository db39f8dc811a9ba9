#pragma once

#include "CoreMinimal.h"
#include "Layout/BasicLayoutWidgetSlot.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SPanel.h"
#include "SScaleBox.generated.h"

/** In which directions a scale box may change the size of its content. */
UENUM(BlueprintType)
namespace EStretchDirection
{
	enum Type : int
	{
		/** Up and down. */
		Both,
		/** Only down: content that fits is left alone. */
		DownOnly,
		/** Only up: content that is too large is left alone. */
		UpOnly,
	};
}

/** How a scale box chooses the scale of its content. */
UENUM(BlueprintType)
namespace EStretch
{
	enum Type : int
	{
		/** No scale. */
		None,
		/** No scale; the content is given the whole area, whatever its alignment. */
		Fill,
		/** The largest scale at which the content is wholly inside; keeps its aspect ratio, as all scales do. */
		ScaleToFit,
		/** As wide as the area; what is higher than the area is clipped. */
		ScaleToFitX,
		/** As high as the area; what is wider than the area is clipped. */
		ScaleToFitY,
		/** The smallest scale at which the content covers the area; the rest is clipped. */
		ScaleToFill,
		/** By the margins that the display needs at its edges; displays without such margins leave a scale of 1. */
		ScaleBySafeZone,
		/** The scale that the user of the box gives. */
		UserSpecified,
		/** As UserSpecified; what goes beyond the area is clipped. */
		UserSpecifiedWithClipping,
	};
}

/** Scales its content. */
class SLATE_API SScaleBox : public SPanel
{
public:
	SLATE_BEGIN_ARGS(SScaleBox)
		: _Content()
		, _HAlign(HAlign_Center)
		, _VAlign(VAlign_Center)
		, _StretchDirection(EStretchDirection::Both)
		, _Stretch(EStretch::None)
		, _UserSpecifiedScale(1.0f)
		, _IgnoreInheritedScale(false)
	{
		_Visibility = EVisibility::SelfHitTestInvisible;
	}
		SLATE_DEFAULT_SLOT(FArguments, Content)
		SLATE_ARGUMENT(EHorizontalAlignment, HAlign)
		SLATE_ARGUMENT(EVerticalAlignment, VAlign)
		SLATE_ATTRIBUTE(EStretchDirection::Type, StretchDirection)
		SLATE_ATTRIBUTE(EStretch::Type, Stretch)
		/** For UserSpecified and UserSpecifiedWithClipping. */
		SLATE_ATTRIBUTE(float, UserSpecifiedScale)
		/** Undoes the scale of the window and of other scale boxes around this one. */
		SLATE_ATTRIBUTE(bool, IgnoreInheritedScale)
	SLATE_END_ARGS()

	SScaleBox();
	void Construct(const FArguments& InArgs);

	void SetContent(TSharedRef<SWidget> InContent);
	void SetHAlign(EHorizontalAlignment HAlign);
	void SetVAlign(EVerticalAlignment VAlign);
	void SetStretchDirection(EStretchDirection::Type InStretchDirection);
	void SetStretch(EStretch::Type InStretch);
	void SetUserSpecifiedScale(float InUserSpecifiedScale);
	void SetIgnoreInheritedScale(bool InIgnoreInheritedScale);

	virtual void Tick(const FGeometry& AllottedGeometry, const double InCurrentTime, const float InDeltaTime) override;
	virtual FChildren* GetChildren() override { return &ChildSlot; }
	virtual float GetRelativeLayoutScale(int32 ChildIndex, float LayoutScaleMultiplier) const override;

	virtual int32 OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect, FSlateWindowElementList& OutDrawElements,
		int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const override;

protected:
	virtual FVector2D ComputeDesiredSize(float LayoutScaleMultiplier) const override;
	virtual void OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const override;

private:
	/** True when the scale does not follow from the area. */
	bool IsScaleGiven() const;
	/** A stretch along one side of the area rules how much room is wanted along the other. */
	bool IsRoomRuledByScale() const;
	void UpdateTicking();
	/** True when the stretch can make the content larger than the area, which must not show. */
	bool IsClippingNeeded() const;
	/** Scale that makes up for what the box stands in. */
	float GetInheritedScaleCorrection(float LayoutScaleMultiplier) const;
	/** Scale of the content within an area. */
	float ComputeContentScale(const FVector2f& Area, float LayoutScaleMultiplier) const;

	FSingleWidgetChildrenWithBasicLayoutSlot ChildSlot;
	/** Of the last area, for stretches that rule the wanted room. */
	float AreaScale = 1.0f;
	TSlateAttribute<EStretchDirection::Type, EInvalidateWidgetReason::Layout> StretchDirectionAttribute;
	TSlateAttribute<EStretch::Type, EInvalidateWidgetReason::Layout> StretchAttribute;
	TSlateAttribute<float, EInvalidateWidgetReason::Layout> UserSpecifiedScaleAttribute;
	TSlateAttribute<bool, EInvalidateWidgetReason::Layout> IgnoreInheritedScaleAttribute;
};
