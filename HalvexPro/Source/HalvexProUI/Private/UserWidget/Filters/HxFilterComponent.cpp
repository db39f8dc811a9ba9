#include "UserWidget/Filters/HxFilterComponent.h"

void UHxFilterComponent::FilterValueHasChange()
{
	if (OnFiltersChanged.IsBound())
	{
		OnFiltersChanged.Broadcast();
	}
}
