#pragma once

#include "CoreMinimal.h"
#include "Host/SceneRenderer.h"

namespace Host
{
	/**
	 * The picture of a scene, as long as there is a way to draw one. When drawing fails it is begun anew once; when that does
	 * not help, or when there is no OpenGL at all, one line in the log says why and there is no picture any more.
	 */
	class FScenePicture
	{
	public:
		/** @param InWindowRenderer	what draws the windows, which must outlive this; null for none */
		explicit FScenePicture(FSlateRenderer* InWindowRenderer)
			: WindowRenderer(InWindowRenderer)
		{
		}

		/** Brings the picture up to date. Null when there is none. */
		TSharedPtr<const FTexture> Update(const FSceneContent& Content, const FSceneView& View, FIntPoint Size, const FSceneQuality& Quality);

		/** Null before the first picture, and when there is none any more. */
		const FSceneRenderer* GetRenderer() const { return Renderer.Get(); }

	private:
		/** Draws, with a new renderer when there is none. */
		bool TryDraw(const FSceneContent& Content, const FSceneView& View, FIntPoint Size, const FSceneQuality& Quality, FString& OutError);

		FSlateRenderer* WindowRenderer;
		TUniquePtr<FSceneRenderer> Renderer;
		bool bGivenUp = false;
	};
}
