#include "Sdl/SdlWindowBlitter.h"

#include "RendererLog.h"
#include "Sdl/SdlLibrary.h"

namespace Host
{
	void FSdlWindowBlitter::Show(const uint32* Pixels, FIntPoint Size, TConstArrayView<FPixelRect> Areas)
	{
		const FSdl& Sdl = FSdl::Get();
		SDL_Window* const SdlWindow = static_cast<SDL_Window*>(Window);
		SDL_Surface* const Surface = Sdl.GetWindowSurface(SdlWindow);
		if (!Surface)
		{
			if (!bFailed)
			{
				UE_LOG(LogSlateRenderer, Error, TEXT("The window cannot show pictures: %s"), *Sdl.GetErrorText());
				bFailed = true;
			}
			return;
		}
		// While the window is being resized, it can be larger or smaller than the picture.
		const FPixelRect Shared = FPixelRect::Make(0, 0, FMath::Min(Size.X, Surface->w), FMath::Min(Size.Y, Surface->h));
		TArray<SDL_Rect, TInlineAllocator<16>> Rects;
		Sdl.LockSurface(Surface);
		for (const FPixelRect& Requested : Areas)
		{
			const FPixelRect Area = Requested.Intersect(Shared);
			if (Area.IsEmpty())
			{
				continue;
			}
			uint8* const Target = static_cast<uint8*>(Surface->pixels) + static_cast<int64>(Area.Top) * Surface->pitch
				+ static_cast<int64>(Area.Left) * Surface->format->BytesPerPixel;
			const uint32* const Source = Pixels + static_cast<int64>(Area.Top) * Size.X + Area.Left;
			// Copies rows when the formats agree.
			Sdl.ConvertPixels(Area.Width(), Area.Height(), SDL_PIXELFORMAT_RGB888, Source, Size.X * 4, Surface->format->format, Target, Surface->pitch);
			Rects.Add(SDL_Rect{ Area.Left, Area.Top, Area.Width(), Area.Height() });
		}
		Sdl.UnlockSurface(Surface);
		if (Rects.Num() > 0)
		{
			Sdl.UpdateWindowSurfaceRects(SdlWindow, Rects.GetData(), Rects.Num());
		}
	}
}
