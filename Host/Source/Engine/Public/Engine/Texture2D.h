#pragma once

#include "CoreMinimal.h"
#include "Engine/Texture.h"
#include "Texture2D.generated.h"

struct FImage;

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

	/** A texture with the pixels of the image, in the transient package. Null for an image without pixels. */
	static UTexture2D* CreateTransientFromImage(const FImage* InImage, const FName InName = NAME_None);

	/** Makes the texture show the image. An image without pixels leaves it as it is and gives false. */
	bool SetImage(const FImage& Image);
};
