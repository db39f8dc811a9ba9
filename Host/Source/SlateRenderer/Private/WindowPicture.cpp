#include "Host/WindowPicture.h"

#include "Rendering/SlateRenderer.h"
#include "Widgets/SWindow.h"

namespace Host
{
	FPicture TakeWindowPicture(FSlateRenderer& Renderer, SWindow& Window, FColor Background)
	{
		const FSlateRoot& Root = Window.GetRoot();
		FPicture Picture;
		const TUniquePtr<FWindowSurface> Surface = Renderer.CreateSurface(Root.GetSizePixels(), nullptr);
		if (Surface.IsValid())
		{
			const FPixelRect All = FPixelRect::Make(0, 0, Root.GetSizePixels().X, Root.GetSizePixels().Y);
			const auto Traverse = [&Root](const FPixelRect& Area, FElementVisitor Visitor) { Root.ForEachElement(Area, Visitor); };
			Surface->DrawFrame(FWindowFrame{ Background, MakeArrayView(&All, 1), Traverse });
			Surface->ReadPixels(Picture.Pixels, Picture.Size);
		}
		return Picture;
	}
}
