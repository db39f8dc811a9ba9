#pragma once

#include "CoreMinimal.h"
#include "Blueprint/UserWidget.h"
#include "BindingTestWidget.generated.h"

class UButton;
class UTextBlock;

/** A user widget that asks its blueprint for widgets. */
UCLASS()
class BLUEPRINTTESTTYPES_API UBindingTestWidget : public UUserWidget
{
	GENERATED_BODY()

public:
	UPROPERTY(BlueprintReadOnly, meta = (BindWidget))
	TObjectPtr<UButton> Action;

	UPROPERTY(BlueprintReadOnly, meta = (BindWidgetOptional))
	TObjectPtr<UTextBlock> Caption;

	/** Whether the required one was there when the widget was initialised. */
	bool bBoundOnInitialized = false;

	/** A policy that blueprints may replace; doubles the value by default. */
	UFUNCTION(BlueprintNativeEvent, Category = "Test")
	int32 Decide(int32 Value);

protected:
	virtual void NativeOnInitialized() override;
};
