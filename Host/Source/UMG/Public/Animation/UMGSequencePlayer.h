#pragma once

#include "CoreMinimal.h"
#include "Animation/UMGSequencePlayMode.h"
#include "Host/AnimatedValue.h"
#include "Host/AnimationPlayhead.h"
#include "UObject/Object.h"
#include "UMGSequencePlayer.generated.h"

class UUserWidget;
class UWidgetAnimation;

/** An animation that a user widget plays. */
UCLASS(Transient, BlueprintType, MinimalAPI)
class UUMGSequencePlayer : public UObject
{
	GENERATED_BODY()

public:
	const UWidgetAnimation* GetAnimation() const { return Animation; }

	/** The tag that tells this playing from others of the same animation, for those who listen for its events. */
	UFUNCTION(BlueprintCallable, Category = "Animation")
	UMG_API FName GetUserTag() const { return UserTag; }

	UFUNCTION(BlueprintCallable, Category = "Animation")
	UMG_API void SetUserTag(FName InUserTag) { UserTag = InUserTag; }

	bool IsPlayingForward() const { return Playhead.IsForward(); }

private:
	friend class UUserWidget;

	/** How to play; the meaning of the times is that of the playhead. */
	struct FSettings
	{
		double StartAtTime = 0.0;
		TOptional<double> EndTime;
		int32 NumLoops = 1;
		EUMGSequencePlayMode::Type Mode = EUMGSequencePlayMode::Forward;
		double Speed = 1.0;
		bool bRestoreState = false;
	};

	void InitSequencePlayer(UWidgetAnimation& InAnimation, UUserWidget& Widget);
	void Play(const FSettings& Settings);
	void Pause() { bPlaying = false; }
	/** Ends playing, and restores what was changed when that was asked for. */
	void Stop();
	void SetCurrentTime(double Time);

	bool IsPlaying() const { return bPlaying; }
	/** Whether something changes in the next frame. */
	bool NeedsTick() const { return bNeedsEvaluation || (bPlaying && Speed > 0.0); }
	/** A frame, some seconds after the last one. True when the animation came to its end. */
	bool Tick(double DeltaTime);
	/** Hands the values of the present time to the widgets, if they were not yet. */
	void Flush();
	void Evaluate();

	UPROPERTY()
	TObjectPtr<UWidgetAnimation> Animation;

	/** Values of the animation's tracks; unset where the widget does not have it. */
	TArray<TOptional<Host::FAnimatedValue>> Values;
	Host::FAnimationPlayhead Playhead;
	double Speed = 1.0;
	FName UserTag;
	bool bPlaying = false;
	/** The first frame shows where playing starts, however long ago the last frame was. */
	bool bFirstFrame = false;
	bool bNeedsEvaluation = false;
};
