#include "Components/TextBlock.h"

#include "Styling/CoreStyle.h"
#include "Widgets/Text/STextBlock.h"

#define LOCTEXT_NAMESPACE "UMG"

UTextBlock::UTextBlock(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
	, Font(FCoreStyle::GetDefaultFontStyle(TEXT("Regular"), 24.0f))
{
	SetVisibility(ESlateVisibility::SelfHitTestInvisible);
}

FText UTextBlock::GetText() const
{
	return Text;
}

void UTextBlock::SetText(FText InText)
{
	Text = InText;
	if (MyTextBlock)
	{
		MyTextBlock->SetText(Text);
	}
}

void UTextBlock::SetColorAndOpacity(FSlateColor InColorAndOpacity)
{
	ColorAndOpacity = InColorAndOpacity;
	if (MyTextBlock)
	{
		MyTextBlock->SetColorAndOpacity(InColorAndOpacity);
	}
}

void UTextBlock::SetOpacity(float InOpacity)
{
	SetColorAndOpacity(FSlateColor(ColorAndOpacity.GetSpecifiedColor().CopyWithNewOpacity(InOpacity)));
}

void UTextBlock::SetFont(FSlateFontInfo InFontInfo)
{
	Font = InFontInfo;
	if (MyTextBlock)
	{
		MyTextBlock->SetFont(Font);
	}
	OnFontChanged();
}

void UTextBlock::SetShadowColorAndOpacity(FLinearColor InShadowColorAndOpacity)
{
	ShadowColorAndOpacity = InShadowColorAndOpacity;
	if (MyTextBlock)
	{
		MyTextBlock->SetShadowColorAndOpacity(InShadowColorAndOpacity);
	}
}

void UTextBlock::SetShadowOffset(FVector2D InShadowOffset)
{
	ShadowOffset = InShadowOffset;
	if (MyTextBlock)
	{
		MyTextBlock->SetShadowOffset(InShadowOffset);
	}
}

void UTextBlock::SetMinDesiredWidth(float InMinDesiredWidth)
{
	MinDesiredWidth = InMinDesiredWidth;
	if (MyTextBlock)
	{
		MyTextBlock->SetMinDesiredWidth(InMinDesiredWidth);
	}
}

void UTextBlock::SetAutoWrapText(bool InAutoTextWrap)
{
	AutoWrapText = InAutoTextWrap;
	if (MyTextBlock)
	{
		MyTextBlock->SetAutoWrapText(InAutoTextWrap);
	}
}

void UTextBlock::SetTextOverflowPolicy(ETextOverflowPolicy InOverflowPolicy)
{
	TextOverflowPolicy = InOverflowPolicy;
	if (MyTextBlock)
	{
		MyTextBlock->SetOverflowPolicy(InOverflowPolicy);
	}
}

void UTextBlock::SetJustification(ETextJustify::Type InJustification)
{
	Super::SetJustification(InJustification);
	if (MyTextBlock)
	{
		MyTextBlock->SetJustification(InJustification);
	}
}

void UTextBlock::SynchronizeProperties()
{
	Super::SynchronizeProperties();
	if (!MyTextBlock)
	{
		return;
	}
	MyTextBlock->SetText(Text);
	MyTextBlock->SetFont(Font);
	MyTextBlock->SetColorAndOpacity(ColorAndOpacity);
	MyTextBlock->SetShadowOffset(ShadowOffset);
	MyTextBlock->SetShadowColorAndOpacity(ShadowColorAndOpacity);
	MyTextBlock->SetMinDesiredWidth(MinDesiredWidth);
	MyTextBlock->SetTransformPolicy(TextTransformPolicy);
	MyTextBlock->SetOverflowPolicy(TextOverflowPolicy);
	MyTextBlock->SetJustification(Justification.GetValue());
	MyTextBlock->SetWrappingPolicy(WrappingPolicy);
	MyTextBlock->SetAutoWrapText(bool(AutoWrapText));
	MyTextBlock->SetWrapTextAt(WrapTextAt);
	MyTextBlock->SetMargin(Margin);
	MyTextBlock->SetLineHeightPercentage(LineHeightPercentage);
}

void UTextBlock::ReleaseSlateResources(bool bReleaseChildren)
{
	Super::ReleaseSlateResources(bReleaseChildren);
	MyTextBlock.Reset();
}

#if WITH_EDITOR
const FText UTextBlock::GetPaletteCategory()
{
	return LOCTEXT("Common", "Common");
}
#endif

TSharedRef<SWidget> UTextBlock::RebuildWidget()
{
	MyTextBlock = SNew(STextBlock);
	return MyTextBlock.ToSharedRef();
}

#undef LOCTEXT_NAMESPACE
