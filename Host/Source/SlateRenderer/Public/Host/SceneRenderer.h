#pragma once

#include "CoreMinimal.h"

class FSlateRenderer;

namespace Host
{
	class FSceneContent;
	class FTexture;
	struct FSceneView;

	/** How much work a scene's picture may make. */
	struct FSceneQuality
	{
		static constexpr float LowestPercentage = 25.0f;
		static constexpr float HighestPercentage = 200.0f;
		static constexpr int32 HighestLevel = 4;

		/** Pixels that are drawn along an axis, in percent of those of the picture, which the result is scaled to. */
		float ScreenPercentage = 100.0f;
		/** Smooth edges: 0 none, then 2, 4, 8 and 16 samples a pixel, or as many as the driver has. */
		int32 AntiAliasing = 3;
		/** Shadows of the sun and where volumes stand on the ground: 0 none, then ever sharper and smoother. */
		int32 Shadows = 3;

		bool operator==(const FSceneQuality&) const = default;
	};

	/** Work of a scene renderer since it was made. */
	struct FSceneCounters
	{
		/** Pictures drawn. */
		int64 Draws = 0;
		/** Pixels of these, before scaling. */
		int64 Pixels = 0;
		/** Samples a pixel of the last picture. */
		int32 Samples = 0;
		/** Side of the map of shadows that the last picture was drawn with, in texels; 0 without shadows. */
		int32 ShadowMapSize = 0;
		/** Maps of shadows drawn. */
		int64 ShadowMaps = 0;
		int64 DrawCalls = 0;
		/** Bytes of shapes and colours handed to the graphics processor. */
		int64 UploadedBytes = 0;
		/** Pictures brought back from the graphics processor. */
		int64 ReadBacks = 0;
	};

	/**
	 * Draws a scene with OpenGL 3.3 into a texture that draw elements can show (FSlateDrawElement::MakeTexture). Where the
	 * windows are drawn with OpenGL it shares their context, and the texture stays on the graphics processor; else it has a
	 * context of its own, without a window, and reads the picture back. On the game thread.
	 */
	class FSceneRenderer
	{
	public:
		/**
		 * @param WindowRenderer	what draws the windows, which must outlive this; null for none
		 * @return null, with the reason, when there is no way to draw with OpenGL 3.3
		 */
		static TUniquePtr<FSceneRenderer> Make(FSlateRenderer* WindowRenderer, FString& OutError);

		virtual ~FSceneRenderer() = default;

		/**
		 * Brings the picture up to date; does nothing when it is.
		 * @param Size	of the picture in pixels, cut to what the driver can do
		 * @return false, with the reason, when OpenGL cannot be used any more: the renderer is then to be thrown away
		 */
		virtual bool Draw(const FSceneContent& Content, const FSceneView& View, FIntPoint Size, const FSceneQuality& Quality, FString& OutError) = 0;

		/** The picture as of the last Draw; null before. The same texture for as long as the size stays. */
		virtual TSharedPtr<const FTexture> GetPicture() const = 0;

		virtual const FSceneCounters& GetCounters() const = 0;
	};
}
