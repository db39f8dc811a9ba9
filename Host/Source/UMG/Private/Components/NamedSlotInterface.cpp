#include "Components/NamedSlotInterface.h"

bool INamedSlotInterface::ContainsContent(UWidget* Content) const
{
	TArray<FName> SlotNames;
	GetSlotNames(SlotNames);
	return SlotNames.ContainsByPredicate([&](const FName& SlotName) { return GetContentForSlot(SlotName) == Content; });
}
