#pragma once

#include "CoreMinimal.h"
#include "Types/SlateEnums.h"
#include "UObject/Object.h"
#include "EditableTextListener.generated.h"

/** Writes down what an editable text tells. */
UCLASS()
class UMGTESTTYPES_API UEditableTextListener : public UObject
{
	GENERATED_BODY()

public:
	/** What was told, in order. */
	TArray<FString> Events;

	UFUNCTION()
	void OnChanged(const FText& Text);

	UFUNCTION()
	void OnCommitted(const FText& Text, ETextCommit::Type CommitMethod);
};
