#include "Widgets/Text/STextBlock.h"

#include "Host/DumpWidgetTree.h"
#include "Host/TextLayout.h"

static bool ReadText(const SWidget& Widget, FString& OutText)
{
	OutText = static_cast<const STextBlock&>(Widget).GetText().ToString();
	return true;
}

/** Lets dumps and searches see the text of text blocks. */
static bool RegisterTextReader()
{
	Host::RegisterWidgetTextReader("STextBlock", &ReadText);
	return true;
}

STextBlock::STextBlock()
	: Text(*this)
	, Font(*this)
	, ColorAndOpacity(*this, FSlateColor::UseForeground())
	, ShadowOffset(*this, FVector2D(0.0, 0.0))
	, ShadowColorAndOpacity(*this, FLinearColor(0.0f, 0.0f, 0.0f, 1.0f))
	, Margin(*this)
	, WrapTextAt(*this, 0.0f)
	, LineHeightPercentage(*this, 1.0f)
	, MinDesiredWidth(*this, 0.0f)
	, Justification(*this, ETextJustify::Left)
	, WrappingPolicy(*this, ETextWrappingPolicy::DefaultWrapping)
	, TransformPolicy(*this, ETextTransformPolicy::None)
	, bAutoWrapText(*this, false)
{
}

STextBlock::~STextBlock() = default;

void STextBlock::Construct(const FArguments& InArgs)
{
	[[maybe_unused]] static const bool bRegistered = RegisterTextReader();
	SetTextStyle(InArgs._TextStyle);
	Font.Assign(*this, InArgs._Font);
	ColorAndOpacity.Assign(*this, InArgs._ColorAndOpacity);
	ShadowOffset.Assign(*this, InArgs._ShadowOffset);
	ShadowColorAndOpacity.Assign(*this, InArgs._ShadowColorAndOpacity);
	Text.Assign(*this, InArgs._Text);
	Margin.Assign(*this, InArgs._Margin);
	WrapTextAt.Assign(*this, InArgs._WrapTextAt);
	LineHeightPercentage.Assign(*this, InArgs._LineHeightPercentage);
	MinDesiredWidth.Assign(*this, InArgs._MinDesiredWidth);
	Justification.Assign(*this, InArgs._Justification);
	WrappingPolicy.Assign(*this, InArgs._WrappingPolicy);
	TransformPolicy.Assign(*this, InArgs._TransformPolicy);
	bAutoWrapText.Assign(*this, InArgs._AutoWrapText);
	SetOverflowPolicy(InArgs._OverflowPolicy);
	if (InArgs._OnDoubleClicked.IsBound())
	{
		SetOnMouseDoubleClick(InArgs._OnDoubleClicked);
	}
}

void STextBlock::SetText(TAttribute<FText> InText)
{
	Text.Assign(*this, InText, FText::GetEmpty());
}

void STextBlock::SetFont(TAttribute<FSlateFontInfo> InFont)
{
	Font.Assign(*this, InFont, FTextBlockStyle::GetDefault().Font);
}

void STextBlock::SetColorAndOpacity(TAttribute<FSlateColor> InColorAndOpacity)
{
	ColorAndOpacity.Assign(*this, InColorAndOpacity, FTextBlockStyle::GetDefault().ColorAndOpacity);
}

void STextBlock::SetTextStyle(const FTextBlockStyle* InTextStyle)
{
	const FTextBlockStyle& Style = InTextStyle ? *InTextStyle : FTextBlockStyle::GetDefault();
	Font.Set(*this, Style.Font);
	ColorAndOpacity.Set(*this, Style.ColorAndOpacity);
	ShadowOffset.Set(*this, FVector2D(Style.ShadowOffset));
	ShadowColorAndOpacity.Set(*this, Style.ShadowColorAndOpacity);
}

void STextBlock::SetShadowOffset(TAttribute<FVector2D> InShadowOffset)
{
	ShadowOffset.Assign(*this, InShadowOffset, FVector2D(0.0, 0.0));
}

void STextBlock::SetShadowColorAndOpacity(TAttribute<FLinearColor> InShadowColorAndOpacity)
{
	ShadowColorAndOpacity.Assign(*this, InShadowColorAndOpacity, FLinearColor(0.0f, 0.0f, 0.0f, 1.0f));
}

void STextBlock::SetWrapTextAt(TAttribute<float> InWrapTextAt)
{
	WrapTextAt.Assign(*this, InWrapTextAt, 0.0f);
}

void STextBlock::SetAutoWrapText(TAttribute<bool> InAutoWrapText)
{
	bAutoWrapText.Assign(*this, InAutoWrapText, false);
}

void STextBlock::SetWrappingPolicy(TAttribute<ETextWrappingPolicy> InWrappingPolicy)
{
	WrappingPolicy.Assign(*this, InWrappingPolicy, ETextWrappingPolicy::DefaultWrapping);
}

void STextBlock::SetTransformPolicy(TAttribute<ETextTransformPolicy> InTransformPolicy)
{
	TransformPolicy.Assign(*this, InTransformPolicy, ETextTransformPolicy::None);
}

void STextBlock::SetOverflowPolicy(TOptional<ETextOverflowPolicy> InOverflowPolicy)
{
	const ETextOverflowPolicy NewPolicy = InOverflowPolicy.Get(ETextOverflowPolicy::Clip);
	if (OverflowPolicy == NewPolicy)
	{
		return;
	}
	OverflowPolicy = NewPolicy;
	Invalidate(EInvalidateWidgetReason::Layout);
}

void STextBlock::SetMargin(TAttribute<FMargin> InMargin)
{
	Margin.Assign(*this, InMargin, FMargin());
}

void STextBlock::SetLineHeightPercentage(TAttribute<float> InLineHeightPercentage)
{
	LineHeightPercentage.Assign(*this, InLineHeightPercentage, 1.0f);
}

void STextBlock::SetJustification(TAttribute<ETextJustify::Type> InJustification)
{
	Justification.Assign(*this, InJustification, ETextJustify::Left);
}

void STextBlock::SetMinDesiredWidth(TAttribute<float> InMinDesiredWidth)
{
	MinDesiredWidth.Assign(*this, InMinDesiredWidth, 0.0f);
}

FStringView STextBlock::GetShownText(FString& Buffer) const
{
	switch (TransformPolicy.Get())
	{
	case ETextTransformPolicy::ToLower:
		Buffer = Text.Get().ToLower().ToString();
		return Buffer;
	case ETextTransformPolicy::ToUpper:
		Buffer = Text.Get().ToUpper().ToString();
		return Buffer;
	default:
		return Text.Get().ToString();
	}
}
