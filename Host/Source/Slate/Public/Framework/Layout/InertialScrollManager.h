#pragma once

#include "CoreMinimal.h"

/**
 * Keeps a scrolled view moving after the finger or the mouse that dragged it has let go: measures the speed of the
 * drag from its last samples, then lets it fade. The result does not depend on the frame rate.
 */
class SLATE_API FInertialScrollManager
{
public:
	/** @param SampleTimeout Seconds after which a sample of the drag no longer counts. */
	explicit FInertialScrollManager(double SampleTimeout = 0.1);

	/**
	 * Notes one step of a drag.
	 * @param Delta Distance scrolled since the last sample, in slate units.
	 * @param CurrentTime Time of the step, in seconds.
	 */
	void AddScrollSample(float Delta, double CurrentTime);

	/** Slows the motion down by the passing of DeltaTime seconds. */
	void UpdateScrollVelocity(float DeltaTime);

	/** Stands still, and forgets the samples. */
	void ClearScrollVelocity();

	/** Slate units a second; exactly 0 once the motion has come to rest. */
	float GetScrollVelocity() const { return ScrollVelocity; }

private:
	struct FScrollSample
	{
		double Time;
		float Delta;
	};

	void DropSamplesBefore(double Time);

	TArray<FScrollSample> Samples;
	double SampleTimeout;
	float ScrollVelocity = 0.0f;
};
