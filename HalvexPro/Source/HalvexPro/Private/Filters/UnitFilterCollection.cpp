#include "Filters/UnitFilterCollection.h"

UUnitFilterCollection* UUnitFilterCollection::CreateUnitFilterCollection(TArray<UUnitFilter*> InFilters, bool bStartOnInitialization)
{
	UUnitFilterCollection* const Collection = NewObject<UUnitFilterCollection>();
	Collection->Filters = ObjectPtrWrap(InFilters);
	Collection->bOnInitialization = bStartOnInitialization;
	return Collection;
}

void UUnitFilterCollection::ReplaceFilters(TArray<UUnitFilter*> InFilters)
{
	Filters = ObjectPtrWrap(InFilters);
	if (!bOnInitialization)
	{
		OnChange.Broadcast();
	}
}

void UUnitFilterCollection::FinishInitialization()
{
	if (bOnInitialization)
	{
		bOnInitialization = false;
		OnChange.Broadcast();
	}
}
