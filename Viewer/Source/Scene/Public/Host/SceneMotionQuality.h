#pragma once

#include "Host/SceneRenderer.h"

namespace Host
{
	/**
	 * Decides how well a scene is drawn while its camera moves: where frames take long, as without a graphics processor, in half the
	 * screen percentage and without smooth edges. What was found slow once is so from the first frame of later movements.
	 */
	class FSceneMotionQuality
	{
	public:
		/** Seconds of a frame that is slow. */
		static constexpr double SlowFrame = 0.05;
		/** Slow ones in a row that are needed; a single one may have had other reasons. */
		static constexpr int32 NeededSlowFrames = 2;

		/** A movement begins. @param InNumPixels of the picture: a smaller one may be fast again */
		void Begin(int64 InNumPixels);

		/** A frame of the movement came so many seconds after the one before. */
		void NoteFrame(double Seconds);

		/** The movement has ended. */
		void End() { bMoving = false; }

		/** Forgets what was found, as after another quality was asked for. */
		void Forget() { NumSlow = 0; }

		bool IsReduced() const { return bMoving && NumSlow >= NeededSlowFrames; }

		/** The quality to draw in now. */
		FSceneQuality Apply(const FSceneQuality& Asked) const;

	private:
		bool bMoving = false;
		int32 NumSlow = 0;
		int64 NumPixels = 0;
	};
}
