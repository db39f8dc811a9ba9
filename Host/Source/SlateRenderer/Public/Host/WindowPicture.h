#pragma once

#include "CoreMinimal.h"
#include "Host/PictureCompare.h"

class FSlateRenderer;
class SWindow;

namespace Host
{
	/**
	 * A picture of what the window showed after its last frame, drawn anew by the renderer into memory. The window itself is
	 * neither laid out nor painted, nor does its surface change.
	 */
	FPicture TakeWindowPicture(FSlateRenderer& Renderer, SWindow& Window, FColor Background = FColor(0, 0, 0, 255));
}
