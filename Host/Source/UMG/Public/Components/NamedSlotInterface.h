#pragma once

#include "CoreMinimal.h"
#include "UObject/Interface.h"
#include "NamedSlotInterface.generated.h"

class UWidget;

UINTERFACE(MinimalAPI, meta = (CannotImplementInterfaceInBlueprint))
class UNamedSlotInterface : public UInterface
{
	GENERATED_BODY()
};

/** A widget with holes that whoever uses it fills, by name. */
class UMG_API INamedSlotInterface
{
	GENERATED_BODY()

public:
	virtual void GetSlotNames(TArray<FName>& SlotNames) const = 0;

	/** What fills the hole; null when it is empty or there is none of that name. */
	virtual UWidget* GetContentForSlot(FName SlotName) const = 0;

	/** Fills the hole; null empties it. */
	virtual void SetContentForSlot(FName SlotName, UWidget* Content) = 0;

	bool ContainsContent(UWidget* Content) const;
};
