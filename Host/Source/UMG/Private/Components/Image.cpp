#include "Components/Image.h"

#include "Engine/Texture2D.h"
#include "Widgets/Images/SImage.h"

#define LOCTEXT_NAMESPACE "UMG"

UImage::UImage(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
{
}

void UImage::SetColorAndOpacity(FLinearColor InColorAndOpacity)
{
	ColorAndOpacity = InColorAndOpacity;
	if (MyImage)
	{
		MyImage->SetColorAndOpacity(FSlateColor(InColorAndOpacity));
	}
}

void UImage::SetOpacity(float InOpacity)
{
	SetColorAndOpacity(ColorAndOpacity.CopyWithNewOpacity(InOpacity));
}

void UImage::SetDesiredSizeOverride(FVector2D DesiredSize)
{
	if (MyImage)
	{
		MyImage->SetDesiredSizeOverride(DesiredSize);
	}
}

void UImage::SetBrush(const FSlateBrush& InBrush)
{
	Brush = InBrush;
	if (MyImage)
	{
		MyImage->SetImage(&Brush);
		// The address is the same as before: only this tells that the content is not.
		MyImage->Invalidate(EInvalidateWidgetReason::Layout);
	}
}

void UImage::SetBrushFromTexture(UTexture2D* Texture, bool bMatchSize)
{
	if (Brush.GetResourceObject() == Texture)
	{
		return;
	}
	FSlateBrush NewBrush = Brush;
	NewBrush.SetResourceObject(Texture);
	if (bMatchSize)
	{
		NewBrush.SetImageSize(Texture ? FVector2D(Texture->GetSizeX(), Texture->GetSizeY()) : FVector2D(0.0, 0.0));
	}
	UImage::SetBrush(NewBrush);
}

void UImage::SynchronizeProperties()
{
	Super::SynchronizeProperties();
	SetColorAndOpacity(ColorAndOpacity);
	if (MyImage)
	{
		MyImage->SetImage(&Brush);
		MyImage->Invalidate(EInvalidateWidgetReason::Layout);
	}
}

void UImage::ReleaseSlateResources(bool bReleaseChildren)
{
	Super::ReleaseSlateResources(bReleaseChildren);
	MyImage.Reset();
}

#if WITH_EDITOR
const FText UImage::GetPaletteCategory()
{
	return LOCTEXT("Common", "Common");
}
#endif

TSharedRef<SWidget> UImage::RebuildWidget()
{
	MyImage = SNew(SImage);
	return MyImage.ToSharedRef();
}

#undef LOCTEXT_NAMESPACE
