#include "VariantListener.h"

#include "Configurator/HalvexVariantHandler.h"
#include "Engine/Texture2D.h"

void UVariantListener::ListenTo(UHalvexVariantHandler& Handler)
{
	Handler.OnVariantChange.AddDynamic(this, &UVariantListener::ReceivedVariantChange);
	Handler.OnChangeListChanged.AddDynamic(this, &UVariantListener::ReceivedChangeList);
	Handler.OnSurfaceLooksChange.AddDynamic(this, &UVariantListener::ReceivedLooks);
	Handler.OnThumbnailReady.AddDynamic(this, &UVariantListener::ReceivedThumbnail);
}

FString UVariantListener::TakeStory()
{
	const FString Told = Story;
	Story.Reset();
	return Told;
}

void UVariantListener::ReceivedVariantChange()
{
	Story += TEXT("variants; ");
	if (InVariantChange)
	{
		InVariantChange();
	}
}

void UVariantListener::ReceivedChangeList()
{
	Story += TEXT("changes; ");
}

void UVariantListener::ReceivedLooks(const TArray<FVariantSurfaceLook>& SurfaceLooks)
{
	Story += TEXT("looks");
	for (const FVariantSurfaceLook& Look : SurfaceLooks)
	{
		Story += FString::Printf(TEXT(" %s %.1f"), *Look.Surface.ToString(), static_cast<double>(Look.Color.R));
	}
	Story += TEXT("; ");
}

void UVariantListener::ReceivedThumbnail(FName Image, UTexture2D* Thumbnail)
{
	Story += TEXT("thumbnail ") + Image.ToString() + (Thumbnail ? FString::Printf(TEXT(" %dx%d; "), Thumbnail->GetSizeX(), Thumbnail->GetSizeY()) : FString(TEXT(" none; ")));
}
