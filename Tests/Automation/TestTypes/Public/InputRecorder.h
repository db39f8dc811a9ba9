#pragma once

#include "CoreMinimal.h"
#include "Blueprint/UserWidget.h"
#include "InputRecorder.generated.h"

/** A user widget that writes down the input that it gets, and handles it. */
UCLASS()
class AUTOMATIONTESTTYPES_API UInputRecorder : public UUserWidget
{
	GENERATED_BODY()

public:
	UInputRecorder(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get());

	/** What came, in order: "Down Left", "Move", "KeyDown A Ctrl". */
	TArray<FString> Events;
	/** Where the mouse was at each pointer event, in pixels of the window. */
	TArray<FVector2D> Places;

protected:
	virtual FReply NativeOnMouseButtonDown(const FGeometry& InGeometry, const FPointerEvent& InMouseEvent) override;
	virtual FReply NativeOnMouseButtonUp(const FGeometry& InGeometry, const FPointerEvent& InMouseEvent) override;
	virtual FReply NativeOnMouseMove(const FGeometry& InGeometry, const FPointerEvent& InMouseEvent) override;
	virtual FReply NativeOnMouseWheel(const FGeometry& InGeometry, const FPointerEvent& InMouseEvent) override;
	virtual FReply NativeOnMouseButtonDoubleClick(const FGeometry& InGeometry, const FPointerEvent& InMouseEvent) override;
	virtual FReply NativeOnKeyDown(const FGeometry& InGeometry, const FKeyEvent& InKeyEvent) override;
	virtual FReply NativeOnKeyUp(const FGeometry& InGeometry, const FKeyEvent& InKeyEvent) override;

private:
	FReply Record(const FString& What, const FPointerEvent& Event);
	FReply Record(const FString& What, const FInputEvent& Event);
};
