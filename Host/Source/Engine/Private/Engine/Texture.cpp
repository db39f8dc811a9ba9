#include "Engine/Texture.h"

#include "Host/Texture.h"

void UTexture::UpdateResource()
{
}

float UTexture::GetSurfaceWidth() const
{
	return SlateTexture ? static_cast<float>(SlateTexture->GetSize().X) : 0.0f;
}

float UTexture::GetSurfaceHeight() const
{
	return SlateTexture ? static_cast<float>(SlateTexture->GetSize().Y) : 0.0f;
}
