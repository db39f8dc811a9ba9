#include "Host/SceneMotionQuality.h"

namespace Host
{
	void FSceneMotionQuality::Begin(int64 InNumPixels)
	{
		bMoving = true;
		if (InNumPixels < NumPixels || NumSlow < NeededSlowFrames)
		{
			NumSlow = 0;
		}
		NumPixels = InNumPixels;
	}

	void FSceneMotionQuality::NoteFrame(double Seconds)
	{
		if (NumSlow < NeededSlowFrames)
		{
			NumSlow = Seconds > SlowFrame ? NumSlow + 1 : 0;
		}
	}

	FSceneQuality FSceneMotionQuality::Apply(const FSceneQuality& Asked) const
	{
		FSceneQuality Quality = Asked;
		if (IsReduced())
		{
			Quality.ScreenPercentage = FMath::Max(FSceneQuality::LowestPercentage, 0.5f * Asked.ScreenPercentage);
			Quality.AntiAliasing = 0;
		}
		return Quality;
	}
}
