#pragma once

#include "CoreMinimal.h"
#include "Gl/GlObjects.h"

namespace Host
{
	struct FSceneCounters;

	/** Where a scene is drawn, perhaps with several samples a pixel, and the picture that it is brought into. */
	class FGlSceneTargets
	{
	public:
		/**
		 * Makes what differs from last time anew.
		 * @param PictureSize	of the result
		 * @param DrawSize	of what is drawn
		 * @param Samples	a pixel; the driver may take more
		 * @return false, with the reason, when the driver cannot
		 */
		bool Resize(FIntPoint PictureSize, FIntPoint DrawSize, int32 Samples, FString& OutError);

		/** Directs drawing to the target. */
		void Begin() const;

		/** Brings what was drawn into the picture, and leaves it bound for reading. */
		void Finish(const FGlObject& ScaleProgram, GLint RatioLocation, FSceneCounters& Counters) const;

		/** Rows from the top. */
		GLuint GetPicture() const { return IsScaled() ? Picture.Get() : Resolved.Get(); }
		FIntPoint GetPictureSize() const { return PictureSize; }
		FIntPoint GetDrawSize() const { return DrawSize; }
		/** As many as the driver took. */
		int32 GetSamples() const { return ActualSamples; }

	private:
		bool IsScaled() const { return DrawSize != PictureSize; }
		bool IsComplete(const FGlObject& Framebuffer, FString& OutError) const;

		FIntPoint PictureSize = FIntPoint(0, 0);
		FIntPoint DrawSize = FIntPoint(0, 0);
		int32 WantedSamples = 0;
		int32 ActualSamples = 1;

		FGlObject ResolvedFramebuffer;
		FGlObject Resolved;
		/** Belongs to whichever framebuffer is drawn into. */
		FGlObject Depth;
		/** Only with several samples. */
		FGlObject SampledFramebuffer;
		FGlObject Sampled;
		/** Only when the size differs. */
		FGlObject PictureFramebuffer;
		FGlObject Picture;
		/** Core profiles draw nothing without one. */
		FGlObject EmptyArray;
	};
}
