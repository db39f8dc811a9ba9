#pragma once

#include "CoreMinimal.h"
#include "Blueprint/UserWidget.h"
#include "Host/WidgetAnimationTrack.h"
#include "AnimatedUserWidget.generated.h"

class UImage;
class UTextBlock;
class UWidgetAnimation;

/** A user widget with a picture and a text to animate; it writes down the events of its animations. */
UCLASS()
class UMGTESTTYPES_API UAnimatedUserWidget : public UUserWidget
{
	GENERATED_BODY()

public:
	/** What happened, in order. */
	TArray<FString> Events;

	/** Plays each animation again when it has come to its end. */
	bool bPlayAgain = false;

	UPROPERTY()
	TObjectPtr<UImage> Picture;

	UPROPERTY()
	TObjectPtr<UTextBlock> Label;

	virtual bool Initialize() override;

	/** Makes an animation that lives as long as the widget. */
	UWidgetAnimation* MakeAnimation(FName Name, TArray<Host::FWidgetAnimationTrack> Tracks, double Length);

	/** Bound to animations by the tests. */
	UFUNCTION()
	void HandleAnimationEvent();

protected:
	virtual void OnAnimationStarted_Implementation(const UWidgetAnimation* Animation) override;
	virtual void OnAnimationFinished_Implementation(const UWidgetAnimation* Animation) override;

private:
	UPROPERTY()
	TArray<TObjectPtr<UWidgetAnimation>> Animations;
};
