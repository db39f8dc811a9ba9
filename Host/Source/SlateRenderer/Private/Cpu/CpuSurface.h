#pragma once

#include "CoreMinimal.h"
#include "Cpu/WindowBlitter.h"
#include "Rendering/SlateRenderer.h"

namespace Host
{
	class FCpuRenderer;
	class FGlyphAtlas;

	/** The pixels of one window, and what draws into them. */
	class FCpuSurface final : public FWindowSurface
	{
	public:
		FCpuSurface(FCpuRenderer& InRenderer, FIntPoint InSize, TUniquePtr<FWindowBlitter> InBlitter);
		virtual ~FCpuSurface() override;

		virtual FIntPoint GetSize() const override { return Size; }
		virtual void Resize(FIntPoint NewSize) override;
		virtual void DrawFrame(const FWindowFrame& Frame) override;
		virtual void Present() override;
		virtual void ReadPixels(TArray<FColor>& OutPixels, FIntPoint& OutSize) override;

	private:
		FPixelRect GetArea() const { return FPixelRect::Make(0, 0, Size.X, Size.Y); }
		void DrawArea(const FWindowFrame& Frame, const FPixelRect& Area, FGlyphAtlas& Atlas);
		void DrawElement(const FDrawElement& Element, const FPixelRect& Area, FGlyphAtlas& Atlas);

		FCpuRenderer& Renderer;
		FIntPoint Size;
		/** Premultiplied, rows from the top. */
		TArray<uint32> Pixels;
		/** Brings the pixels to a visible window; null without one. */
		TUniquePtr<FWindowBlitter> Blitter;
	};
}
