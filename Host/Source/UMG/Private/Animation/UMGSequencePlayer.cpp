#include "Animation/UMGSequencePlayer.h"

#include "Animation/WidgetAnimation.h"
#include "Blueprint/UserWidget.h"
#include "UMGLog.h"

namespace
{
	TOptional<Host::FAnimatedValue> FindValue(const Host::FWidgetAnimationTrack& Track, UUserWidget& Widget, FString& OutReason)
	{
		UObject* Target = Track.Widget.IsNone() ? &Widget : Widget.GetWidgetFromName(Track.Widget);
		if (!Target)
		{
			OutReason = FString::Printf(TEXT("there is no widget '%s'."), *Track.Widget.ToString());
			return {};
		}
		const TOptional<Host::FAnimatedProperty> Property = Host::FAnimatedProperty::Find(*Target, Track.Property, OutReason);
		if (!Property)
		{
			return {};
		}
		if (Property->GetNumChannels() != Track.Curve.GetNumChannels())
		{
			OutReason = FString::Printf(TEXT("'%s' has %d numbers, the track %d."), *Track.Property, Property->GetNumChannels(), Track.Curve.GetNumChannels());
			return {};
		}
		return Host::FAnimatedValue(*Property);
	}
}

void UUMGSequencePlayer::InitSequencePlayer(UWidgetAnimation& InAnimation, UUserWidget& Widget)
{
	Animation = &InAnimation;
	Values.Reserve(InAnimation.GetTracks().Num());
	for (const Host::FWidgetAnimationTrack& Track : InAnimation.GetTracks())
	{
		FString Reason;
		Values.Add(FindValue(Track, Widget, Reason));
		if (!Values.Last())
		{
			UE_LOG(LogUMG, Warning, TEXT("%s: a track of the animation '%s' cannot be played: %s"), *Widget.GetPathName(), *InAnimation.GetName(), *Reason);
		}
	}
}

void UUMGSequencePlayer::Play(const FSettings& Settings)
{
	Playhead.Start(Animation->GetLength(), Settings.StartAtTime, Settings.EndTime, Settings.NumLoops, Settings.Mode);
	Speed = FMath::Abs(Settings.Speed);
	bPlaying = true;
	bFirstFrame = true;
	bNeedsEvaluation = true;
	for (TOptional<Host::FAnimatedValue>& Value : Values)
	{
		if (Value && Settings.bRestoreState)
		{
			Value->Save();
		}
		else if (Value)
		{
			Value->Forget();
		}
	}
}

void UUMGSequencePlayer::Stop()
{
	bPlaying = false;
	bNeedsEvaluation = false;
	for (TOptional<Host::FAnimatedValue>& Value : Values)
	{
		if (Value)
		{
			Value->Restore();
		}
	}
}

void UUMGSequencePlayer::SetCurrentTime(double Time)
{
	Playhead.SetTime(Time);
	bNeedsEvaluation = true;
}

bool UUMGSequencePlayer::Tick(double DeltaTime)
{
	if (!bPlaying)
	{
		Flush();
		return false;
	}
	const bool bEnded = !bFirstFrame && Playhead.Advance(DeltaTime * Speed);
	bFirstFrame = false;
	Evaluate();
	return bEnded;
}

void UUMGSequencePlayer::Flush()
{
	if (bNeedsEvaluation)
	{
		Evaluate();
	}
}

void UUMGSequencePlayer::Evaluate()
{
	bNeedsEvaluation = false;
	const TArray<Host::FWidgetAnimationTrack>& Tracks = Animation->GetTracks();
	for (int32 Index = 0; Index < Values.Num(); ++Index)
	{
		if (TOptional<Host::FAnimatedValue>& Value = Values[Index])
		{
			double Channels[Host::FAnimatedProperty::MaxChannels];
			const TArrayView<double> Used(Channels, Tracks[Index].Curve.GetNumChannels());
			Tracks[Index].Curve.Evaluate(Playhead.GetTime(), Used);
			Value->Set(Used);
		}
	}
}
