#pragma once

#include "CoreMinimal.h"
#include "Configurator/HalvexCatalogueIndex.h"
#include "Configurator/HalvexConfiguratorDataAsset.h"

/** Places of an asset's catalogue by their keys: null where there is nothing of the kind, or no asset at all. */
namespace HalvexCatalogueLookup
{
	inline const FHalvexCatalogueIndex::FCategory* FindCategory(const UHalvexConfiguratorDataAsset* Asset, FName Category)
	{
		return Asset ? Asset->GetIndex().FindCategory(Category) : nullptr;
	}

	inline const FHalvexCatalogueIndex::FSubCategory* FindSubCategory(const UHalvexConfiguratorDataAsset* Asset, FName Category, FName SubCategory)
	{
		return Asset ? Asset->GetIndex().FindSubCategory(Category, SubCategory) : nullptr;
	}

	inline const FHalvexCatalogueIndex::FVariantPlace* FindVariant(const UHalvexConfiguratorDataAsset* Asset, FName Variant)
	{
		return Asset ? Asset->GetIndex().FindVariant(Variant) : nullptr;
	}
}
