#pragma once

#include "CoreMinimal.h"
#include "Gl/GlObjects.h"
#include "Rendering/SlateRenderer.h"

namespace Host
{
	class FGlRenderer;

	/** The picture of one window in a framebuffer of its own, which keeps what did not change. */
	class FGlSurface final : public FWindowSurface
	{
	public:
		FGlSurface(FGlRenderer& InRenderer, FIntPoint InSize, void* InNativeWindow);
		virtual ~FGlSurface() override;

		/** False, with the reason, when the driver cannot draw into it. */
		bool IsComplete(FString& OutError);

		virtual FIntPoint GetSize() const override { return Size; }
		virtual void Resize(FIntPoint NewSize) override;
		virtual void DrawFrame(const FWindowFrame& Frame) override;
		virtual void Present() override;
		virtual void ReadPixels(TArray<FColor>& OutPixels, FIntPoint& OutSize) override;

	private:
		bool MakeCurrent();
		void Clear(const FColor& Colour, TConstArrayView<FPixelRect> Areas);

		FGlRenderer& Renderer;
		FIntPoint Size = FIntPoint(0, 0);
		void* NativeWindow;
		FGlObject Framebuffer;
		FGlObject Colours;
	};
}
