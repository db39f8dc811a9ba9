#include "Animation/WidgetAnimation.h"

float UWidgetAnimation::GetStartTime() const
{
	return 0.0f;
}

float UWidgetAnimation::GetEndTime() const
{
	return static_cast<float>(Length);
}

void UWidgetAnimation::SetTracks(TArray<Host::FWidgetAnimationTrack> InTracks, double InLength)
{
	check(InLength >= 0.0);
	Tracks = MoveTemp(InTracks);
	Length = InLength;
}
