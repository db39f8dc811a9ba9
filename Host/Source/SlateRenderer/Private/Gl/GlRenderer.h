#pragma once

#include "CoreMinimal.h"
#include "Gl/GlBatches.h"
#include "Gl/GlContext.h"
#include "Gl/GlPipeline.h"
#include "Rendering/SlateRenderer.h"

namespace Host
{
	/**
	 * Draws with OpenGL 3.3 core: one instanced draw call for as many elements as share a picture. Works in a window of the
	 * system, or without any display.
	 */
	class FGlRenderer final : public FSlateRenderer
	{
	public:
		/** What makes the context, once the renderer is initialised. */
		using FContextMaker = TUniquePtr<FGlContext> (*)(FString& OutError);

		explicit FGlRenderer(FContextMaker InMakeContext);
		virtual ~FGlRenderer() override;

		virtual bool Initialize(FString& OutError) override;
		virtual void Destroy() override;
		virtual const TCHAR* GetName() const override;
		virtual TUniquePtr<FWindowSurface> CreateSurface(FIntPoint Size, void* NativeWindow) override;
		virtual bool BeginNativeDrawing() override;
		virtual void TakeFilled(const TSharedRef<const FTexture>& Texture, const FPixelRect& Area) override;

		/** What the driver calls the graphics processor. */
		const FString& GetDeviceName() const { return DeviceName; }

		/** True when the driver computes on the main processor, which the CPU renderer does faster. */
		bool IsSoftware() const;

	private:
		friend class FGlSurface;

		FContextMaker MakeContext;
		TUniquePtr<FGlContext> Context;
		FGlPipeline Pipeline;
		FGlBatches Batches;
		FString DeviceName;
		int32 NumSurfaces = 0;
	};
}
