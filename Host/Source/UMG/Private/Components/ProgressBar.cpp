#include "Components/ProgressBar.h"

#include "Styling/CoreStyle.h"

#define LOCTEXT_NAMESPACE "UMG"

UProgressBar::UProgressBar(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
	, WidgetStyle(FCoreStyle::Get().GetWidgetStyle<FProgressBarStyle>("ProgressBar"))
{
}

void UProgressBar::SetWidgetStyle(const FProgressBarStyle& InStyle)
{
	WidgetStyle = InStyle;
	if (MyProgressBar)
	{
		MyProgressBar->SetStyle(&WidgetStyle);
	}
}

void UProgressBar::SetPercent(float InPercent)
{
	Percent = InPercent;
	PushPercent();
}

void UProgressBar::SetBarFillType(EProgressBarFillType::Type InBarFillType)
{
	BarFillType = InBarFillType;
	if (MyProgressBar)
	{
		MyProgressBar->SetBarFillType(InBarFillType);
	}
}

void UProgressBar::SetBarFillStyle(EProgressBarFillStyle::Type InBarFillStyle)
{
	BarFillStyle = InBarFillStyle;
	if (MyProgressBar)
	{
		MyProgressBar->SetBarFillStyle(InBarFillStyle);
	}
}

void UProgressBar::SetIsMarquee(bool InbIsMarquee)
{
	bIsMarquee = InbIsMarquee;
	PushPercent();
}

void UProgressBar::SetBorderPadding(FVector2D InBorderPadding)
{
	BorderPadding = InBorderPadding;
	if (MyProgressBar)
	{
		MyProgressBar->SetBorderPadding(InBorderPadding);
	}
}

void UProgressBar::SetFillColorAndOpacity(FLinearColor InColor)
{
	FillColorAndOpacity = InColor;
	if (MyProgressBar)
	{
		MyProgressBar->SetFillColorAndOpacity(FSlateColor(InColor));
	}
}

void UProgressBar::PushPercent()
{
	if (MyProgressBar)
	{
		MyProgressBar->SetPercent(bIsMarquee ? TOptional<float>() : TOptional<float>(Percent));
	}
}

void UProgressBar::SynchronizeProperties()
{
	Super::SynchronizeProperties();
	if (!MyProgressBar)
	{
		return;
	}
	MyProgressBar->SetStyle(&WidgetStyle);
	MyProgressBar->SetBarFillType(BarFillType);
	MyProgressBar->SetBarFillStyle(BarFillStyle);
	MyProgressBar->SetBorderPadding(BorderPadding);
	MyProgressBar->SetFillColorAndOpacity(FSlateColor(FillColorAndOpacity));
	PushPercent();
}

void UProgressBar::ReleaseSlateResources(bool bReleaseChildren)
{
	Super::ReleaseSlateResources(bReleaseChildren);
	MyProgressBar.Reset();
}

#if WITH_EDITOR
const FText UProgressBar::GetPaletteCategory()
{
	return LOCTEXT("Common", "Common");
}
#endif

TSharedRef<SWidget> UProgressBar::RebuildWidget()
{
	MyProgressBar = SNew(SProgressBar).Style(&WidgetStyle);
	return MyProgressBar.ToSharedRef();
}

#undef LOCTEXT_NAMESPACE
