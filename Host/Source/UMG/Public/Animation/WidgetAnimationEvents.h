#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"
#include "WidgetAnimationEvents.generated.h"

class UWidgetAnimation;

/** What can be listened for of an animation. */
UENUM(BlueprintType)
enum class EWidgetAnimationEvent : uint8
{
	Started,
	Finished
};

DECLARE_DYNAMIC_DELEGATE(FWidgetAnimationDynamicEvent);

/** Who listens for an event of an animation. */
USTRUCT()
struct UMG_API FAnimationEventBinding
{
	GENERATED_BODY()

	/** The animation that is listened to. */
	UPROPERTY()
	TObjectPtr<UWidgetAnimation> Animation;

	/** What is called. */
	UPROPERTY()
	FWidgetAnimationDynamicEvent Delegate;

	/** The event that is listened for. */
	UPROPERTY()
	EWidgetAnimationEvent AnimationEvent = EWidgetAnimationEvent::Started;

	/** Listens only when this tag was put on the playing animation; none for any. */
	UPROPERTY()
	FName UserTag;
};
