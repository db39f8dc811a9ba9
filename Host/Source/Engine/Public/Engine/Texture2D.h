#pragma once

#include "CoreMinimal.h"
#include "Engine/Texture.h"
#include "PixelFormat.h"
#include "Texture2D.generated.h"

struct FImage;
struct FUpdateTextureRegion2D;

/** A picture with width and height. */
UCLASS(BlueprintType)
class ENGINE_API UTexture2D : public UTexture
{
	GENERATED_BODY()

public:
	/** Width in pixels; 0 for a texture without a picture. */
	int32 GetSizeX() const;

	/** Height in pixels; 0 for a texture without a picture. */
	int32 GetSizeY() const;

	/**
	 * A texture to be filled with UpdateTextureRegions after a call of UpdateResource, in the transient package; its pixels are
	 * undefined until then. Null, with a line in the log, for a size that textures cannot have.
	 */
	static UTexture2D* CreateTransient(int32 InSizeX, int32 InSizeY, EPixelFormat InFormat = PF_B8G8R8A8, const FName InName = NAME_None);

	virtual void UpdateResource() override;

	/**
	 * Replaces parts of the pixels of a transient texture; nothing happens before UpdateResource.
	 * @param MipIndex	0
	 * @param Regions	must stay as they are until DataCleanupFunc is called, and so must SrcData
	 * @param SrcPitch	bytes from the start of one row of SrcData to the next
	 * @param SrcBpp	bytes of a pixel: 4
	 */
	void UpdateTextureRegions(int32 MipIndex, uint32 NumRegions, const FUpdateTextureRegion2D* Regions, uint32 SrcPitch, uint32 SrcBpp, uint8* SrcData,
		TFunction<void(uint8* SrcData, const FUpdateTextureRegion2D* Regions)> DataCleanupFunc = [](uint8*, const FUpdateTextureRegion2D*) {});

	/** A texture with the pixels of the image, in the transient package. Null for an image without pixels. */
	static UTexture2D* CreateTransientFromImage(const FImage* InImage, const FName InName = NAME_None);

	/** Makes the texture show the image. An image without pixels leaves it as it is and gives false. */
	bool SetImage(const FImage& Image);

private:
	/** Of a transient texture. */
	FIntPoint TransientSize = FIntPoint(0, 0);
	/** The picture as it can be changed; null for one that cannot. */
	TSharedPtr<Host::FTexture> Updatable;
};
