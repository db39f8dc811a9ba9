#pragma once

#include "CoreMinimal.h"
#include "Types/SlateEnums.h"
#include "UObject/Object.h"
#include "ComboBoxListener.generated.h"

class UComboBoxString;
class UWidget;

/** Writes down what a combo box tells, and makes what it shows. */
UCLASS()
class UMGTESTTYPES_API UComboBoxListener : public UObject
{
	GENERATED_BODY()

public:
	/** What was told, in order. */
	TArray<FString> Events;

	/** What Refill puts in. */
	TArray<FString> OptionsToFill;

	UPROPERTY()
	TObjectPtr<UComboBoxString> Refilled;

	UFUNCTION()
	void OnSelectionChanged(FString SelectedItem, ESelectInfo::Type SelectionType);

	UFUNCTION()
	void OnOpening() { Events.Add(TEXT("Opening")); }

	/** Fills the box anew when something is selected. */
	UFUNCTION()
	void Refill(FString SelectedItem, ESelectInfo::Type SelectionType);

	/** A text in brackets; nothing for "High". */
	UFUNCTION()
	UWidget* MakeOption(FString Item);
};
