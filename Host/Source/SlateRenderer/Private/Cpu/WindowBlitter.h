#pragma once

#include "CoreMinimal.h"
#include "Host/PixelRect.h"

namespace Host
{
	/** Brings pixels that were drawn in memory into a visible window. */
	class FWindowBlitter
	{
	public:
		virtual ~FWindowBlitter() = default;

		/** Shows the parts of the picture. Rows from the top, without gaps; alpha is ignored. */
		virtual void Show(const uint32* Pixels, FIntPoint Size, TConstArrayView<FPixelRect> Areas) = 0;
	};
}
