#include "Widgets/SToolTip.h"

#include "Widgets/Layout/SBorder.h"
#include "Widgets/SNullWidget.h"
#include "Widgets/Text/STextBlock.h"

namespace
{
	/** In slate units; longer text wraps. */
	constexpr float MaxTextWidth = 400.0f;
}

void SToolTip::Construct(const FArguments& InArgs)
{
	Text = InArgs._Text;
	bHasContent = InArgs._Content.Widget != SNullWidget::NullWidget;
	TSharedRef<SWidget> Content = InArgs._Content.Widget;
	if (!bHasContent)
	{
		Content = SNew(STextBlock)
			.Text(InArgs._Text)
			.Font(InArgs._Font)
			.ColorAndOpacity(InArgs._ColorAndOpacity)
			.WrapTextAt(MaxTextWidth);
	}
	ChildSlot
	[
		SNew(SBorder)
		.BorderImage(InArgs._BorderImage)
		.Padding(InArgs._TextMargin)
		[
			Content
		]
	];
}

bool SToolTip::IsEmpty() const
{
	return !bHasContent && Text.Get().IsEmpty();
}

FText SToolTip::GetTextTooltip() const
{
	return bHasContent ? FText::GetEmpty() : Text.Get();
}
