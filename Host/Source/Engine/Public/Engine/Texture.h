#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"
#include "Texture.generated.h"

namespace Host
{
	class FTexture;
}

/** Base of pictures. */
UCLASS(Abstract, BlueprintType)
class ENGINE_API UTexture : public UObject
{
	GENERATED_BODY()

public:
	/** The picture that draw elements show; null when there is none yet. */
	const TSharedPtr<const Host::FTexture>& GetSlateTexture() const { return SlateTexture; }

	/** Makes what draws the texture ready for it. */
	virtual void UpdateResource();

	virtual float GetSurfaceWidth() const;
	virtual float GetSurfaceHeight() const;

protected:
	TSharedPtr<const Host::FTexture> SlateTexture;
};
