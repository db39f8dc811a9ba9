#pragma once

#include "CoreMinimal.h"
#include "Host/WidgetAnimationTrack.h"
#include "UObject/Object.h"
#include "WidgetAnimation.generated.h"

/**
 * What happens over time to the widgets of a user widget. An animation belongs to the blueprint's class: all its instances play
 * the same one, each on its own widgets.
 */
UCLASS(BlueprintType, MinimalAPI)
class UWidgetAnimation : public UObject
{
	GENERATED_BODY()

public:
	/** Seconds where the animation starts: 0. */
	UFUNCTION(BlueprintCallable, BlueprintPure, Category = "Animation")
	UMG_API float GetStartTime() const;

	/** Seconds where the animation ends. */
	UFUNCTION(BlueprintCallable, BlueprintPure, Category = "Animation")
	UMG_API float GetEndTime() const;

	/** As GetEndTime, unrounded. */
	double GetLength() const { return Length; }

	/** What the animation changes. */
	const TArray<Host::FWidgetAnimationTrack>& GetTracks() const { return Tracks; }

	/**
	 * Gives the animation its content. Not while it plays.
	 * @param InLength seconds; what tracks do later is not played
	 */
	UMG_API void SetTracks(TArray<Host::FWidgetAnimationTrack> InTracks, double InLength);

private:
	TArray<Host::FWidgetAnimationTrack> Tracks;
	double Length = 0.0;
};
