#pragma once

#include "CoreMinimal.h"
#include "Layout/BasicLayoutWidgetSlot.h"
#include "Types/SlateStructs.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SPanel.h"

/**
 * Rules the size of its content: overrides it, bounds it, or holds it to a range of aspect ratios. With collapsed
 * content it wants no room at all.
 */
class SLATE_API SBox : public SPanel
{
public:
	SLATE_BEGIN_ARGS(SBox)
		: _HAlign(HAlign_Fill)
		, _VAlign(VAlign_Fill)
		, _Padding(FMargin(0.0f))
		, _Content()
	{
		_Visibility = EVisibility::SelfHitTestInvisible;
	}
		SLATE_ARGUMENT(EHorizontalAlignment, HAlign)
		SLATE_ARGUMENT(EVerticalAlignment, VAlign)
		/** Around the content. */
		SLATE_ATTRIBUTE(FMargin, Padding)
		SLATE_DEFAULT_SLOT(FArguments, Content)

		/** Wanted width, whatever the content wants; in slate units, as all sizes here. */
		SLATE_ATTRIBUTE(FOptionalSize, WidthOverride)
		SLATE_ATTRIBUTE(FOptionalSize, HeightOverride)
		/** Least wanted width. */
		SLATE_ATTRIBUTE(FOptionalSize, MinDesiredWidth)
		SLATE_ATTRIBUTE(FOptionalSize, MinDesiredHeight)
		/** Greatest wanted width; it prevails over the least one. */
		SLATE_ATTRIBUTE(FOptionalSize, MaxDesiredWidth)
		SLATE_ATTRIBUTE(FOptionalSize, MaxDesiredHeight)
		/** Least and greatest width divided by height that the content is arranged with. */
		SLATE_ATTRIBUTE(FOptionalSize, MinAspectRatio)
		SLATE_ATTRIBUTE(FOptionalSize, MaxAspectRatio)
	SLATE_END_ARGS()

	SBox();
	void Construct(const FArguments& InArgs);

	void SetContent(const TSharedRef<SWidget>& InContent);
	void SetHAlign(EHorizontalAlignment HAlign);
	void SetVAlign(EVerticalAlignment VAlign);
	void SetPadding(TAttribute<FMargin> InPadding);

	/** The setters of sizes take a default FOptionalSize to unset. */
	void SetWidthOverride(TAttribute<FOptionalSize> InWidthOverride);
	void SetHeightOverride(TAttribute<FOptionalSize> InHeightOverride);
	void SetMinDesiredWidth(TAttribute<FOptionalSize> InMinDesiredWidth);
	void SetMinDesiredHeight(TAttribute<FOptionalSize> InMinDesiredHeight);
	void SetMaxDesiredWidth(TAttribute<FOptionalSize> InMaxDesiredWidth);
	void SetMaxDesiredHeight(TAttribute<FOptionalSize> InMaxDesiredHeight);
	void SetMinAspectRatio(TAttribute<FOptionalSize> InMinAspectRatio);
	void SetMaxAspectRatio(TAttribute<FOptionalSize> InMaxAspectRatio);

	virtual FChildren* GetChildren() override { return &ChildSlot; }

protected:
	virtual FVector2D ComputeDesiredSize(float LayoutScaleMultiplier) const override;
	virtual void OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const override;

	FSingleWidgetChildrenWithBasicLayoutSlot ChildSlot;

private:
	using FSizeAttribute = TSlateAttribute<FOptionalSize, EInvalidateWidgetReason::Layout>;

	/** The largest size within Size whose aspect ratio is allowed. */
	FVector2f FitAspectRatio(const FVector2f& Size) const;

	FSizeAttribute WidthOverrideAttribute;
	FSizeAttribute HeightOverrideAttribute;
	FSizeAttribute MinDesiredWidthAttribute;
	FSizeAttribute MinDesiredHeightAttribute;
	FSizeAttribute MaxDesiredWidthAttribute;
	FSizeAttribute MaxDesiredHeightAttribute;
	FSizeAttribute MinAspectRatioAttribute;
	FSizeAttribute MaxAspectRatioAttribute;
};
