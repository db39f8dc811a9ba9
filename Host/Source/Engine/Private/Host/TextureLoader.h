#pragma once

#include "Host/AssetLoaders.h"

namespace Host
{
	/** Makes a texture of an image file under a mount. */
	UObject* LoadTexture(const FAssetRequest& Request);
}
