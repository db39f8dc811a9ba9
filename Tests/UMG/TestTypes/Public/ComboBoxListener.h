#pragma once

#include "CoreMinimal.h"
#include "Types/SlateEnums.h"
#include "UObject/Object.h"
#include "ComboBoxListener.generated.h"

/** Writes down what a combo box tells. */
UCLASS()
class UMGTESTTYPES_API UComboBoxListener : public UObject
{
	GENERATED_BODY()

public:
	/** What was told, in order. */
	TArray<FString> Events;

	UFUNCTION()
	void OnSelectionChanged(FString SelectedItem, ESelectInfo::Type SelectionType);

	UFUNCTION()
	void OnOpening() { Events.Add(TEXT("Opening")); }
};
