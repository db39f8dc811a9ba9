#include "UserWidget/Configurator/HxConfiguratorResume.h"

#include "Configurator/HalvexLevelVariantSetsActor.h"
#include "Configurator/HalvexVariantHandler.h"
#include "Engine/World.h"
#include "Kismet/GameplayStatics.h"

void UHxConfiguratorResume::GetKeySplit(const FName& InKey, FName& OutCat, FName& OutSubCat)
{
	FString Category;
	FString SubCategory;
	InKey.ToString().Split(TEXT("."), &Category, &SubCategory, ESearchCase::IgnoreCase, ESearchDir::FromStart);
	OutCat = FName(*Category);
	OutSubCat = FName(*SubCategory);
}

TMap<FName, FConfiguratorFilterValues> UHxConfiguratorResume::FilterCatValues(const TMap<FName, FHalvexConfigProduct>& ChangeList)
{
	TMap<FName, FConfiguratorFilterValues> Values;
	for (const TPair<FName, FHalvexConfigProduct>& Change : ChangeList)
	{
		FName Category;
		FConfiguratorFilterValues Value;
		GetKeySplit(Change.Key, Category, Value.SubCat);
		Value.Product = Change.Value;
		// One entry a category, the last one; screens rely on it. The change list itself has them all.
		Values.Add(Category, Value);
	}
	return Values;
}

void UHxConfiguratorResume::Received_ConfigurationListChanged()
{
	if (VariantHandler)
	{
		OnConfiguratorChangesListUpdate(VariantHandler->GetConfigtorChangeList());
	}
}

void UHxConfiguratorResume::NativeOnInitialized()
{
	Super::NativeOnInitialized();
	const AHalvexLevelVariantSetsActor* const Actor = Cast<AHalvexLevelVariantSetsActor>(UGameplayStatics::GetActorOfClass(GetWorld(), AHalvexLevelVariantSetsActor::StaticClass()));
	VariantHandler = Actor ? Actor->GetVariantHandler() : nullptr;
	if (!VariantHandler)
	{
		return;
	}
	VariantHandler->OnChangeListChanged.AddDynamic(this, &UHxConfiguratorResume::Received_ConfigurationListChanged);
	if (!VariantHandler->GetConfigtorChangeList().IsEmpty())
	{
		Received_ConfigurationListChanged();
	}
}
