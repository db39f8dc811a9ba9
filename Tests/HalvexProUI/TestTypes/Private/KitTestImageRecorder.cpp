#include "KitTestImageRecorder.h"

#include "Engine/Texture2D.h"

void UKitTestImageRecorder::Listen(UHxImage& InImage)
{
	Image = &InImage;
	InImage.OnImageStateChanged.AddDynamic(this, &UKitTestImageRecorder::OnStateChanged);
}

void UKitTestImageRecorder::OnStateChanged(EImageDownloaderState ImageState)
{
	const UTexture2D* Texture = Cast<UTexture2D>(Image->GetBrush().GetResourceObject());
	const FString Shown = Texture ? FString::Printf(TEXT("(%dx%d)"), Texture->GetSizeX(), Texture->GetSizeY()) : FString(TEXT("(nothing)"));
	const FString Name = StaticEnum<EImageDownloaderState>()->GetNameStringByValue(static_cast<int64>(ImageState)).Mid(4);
	States += (States.IsEmpty() ? TEXT("") : TEXT(" ")) + Name + Shown;
}
