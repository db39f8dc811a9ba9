#pragma once

#include "CoreMinimal.h"
#include "Blueprint/UserWidget.h"
#include "AnimationBindings.generated.h"

class UTextBlock;
class UWidgetAnimation;

/** A parent for blueprints that must have an animation and may have another. */
UCLASS()
class BLUEPRINTTESTTYPES_API UBoundAnimationsWidget : public UUserWidget
{
	GENERATED_BODY()

public:
	UPROPERTY(Transient, BlueprintReadOnly, Category = "Test", meta = (BindWidgetAnim))
	TObjectPtr<UWidgetAnimation> Intro;

	UPROPERTY(Transient, BlueprintReadOnly, Category = "Test", meta = (BindWidgetAnimOptional))
	TObjectPtr<UWidgetAnimation> Outro;
};

/** A parent that declares an animation wrongly. */
UCLASS()
class BLUEPRINTTESTTYPES_API UMisboundAnimationWidget : public UUserWidget
{
	GENERATED_BODY()

public:
	UPROPERTY(Transient, meta = (BindWidgetAnim))
	TObjectPtr<UTextBlock> NoAnimation;
};
