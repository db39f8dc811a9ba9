#include "Framework/Layout/InertialScrollManager.h"

namespace
{
	/** The speed falls to 1/e in this many seconds. */
	constexpr float DecaySeconds = 0.35f;

	/** Slate units a second that no longer show. */
	constexpr float RestingSpeed = 4.0f;
}

FInertialScrollManager::FInertialScrollManager(double InSampleTimeout)
	: SampleTimeout(InSampleTimeout)
{
}

void FInertialScrollManager::AddScrollSample(float Delta, double CurrentTime)
{
	DropSamplesBefore(CurrentTime - SampleTimeout);
	Samples.Add(FScrollSample{CurrentTime, Delta});

	// The first of several samples only starts the clock: its way was covered before it.
	float Distance = 0.0f;
	for (int32 Index = Samples.Num() > 1 ? 1 : 0; Index < Samples.Num(); ++Index)
	{
		Distance += Samples[Index].Delta;
	}
	// Never divided by less than a frame: one quick step must not become a leap.
	const double Duration = FMath::Max(CurrentTime - Samples[0].Time, 1.0 / 60.0);
	ScrollVelocity = static_cast<float>(Distance / Duration);
}

void FInertialScrollManager::UpdateScrollVelocity(float DeltaTime)
{
	Samples.Reset();
	ScrollVelocity *= FMath::Exp(-DeltaTime / DecaySeconds);
	if (FMath::Abs(ScrollVelocity) < RestingSpeed)
	{
		ScrollVelocity = 0.0f;
	}
}

void FInertialScrollManager::ClearScrollVelocity()
{
	Samples.Reset();
	ScrollVelocity = 0.0f;
}

void FInertialScrollManager::DropSamplesBefore(double Time)
{
	int32 Outdated = 0;
	while (Outdated < Samples.Num() && Samples[Outdated].Time < Time)
	{
		++Outdated;
	}
	Samples.RemoveAt(0, Outdated);
}
