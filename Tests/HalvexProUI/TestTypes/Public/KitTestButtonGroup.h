#pragma once

#include "CoreMinimal.h"
#include "Widgets/HxButtonGroup.h"
#include "KitTestButtonGroup.generated.h"

/** A group with rules of its own: it writes down what it is told and selects nothing. */
UCLASS()
class HALVEXPROUITESTTYPES_API UKitTestButtonGroup : public UHxButtonGroup
{
	GENERATED_BODY()

public:
	/** What it was told, in order. */
	TArray<FString> Calls;

protected:
	virtual void OnSingleSelectionChange(UHxButton* Button, bool bSelected) override;
	virtual void OnMultiSelectionChange(UHxButton* Button, bool bSelected) override;
};
