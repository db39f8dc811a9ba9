#include "Configurator/HalvexConfiguratorDataAsset.h"

#include "Configurator/HalvexCatalogueIndex.h"
#include "HalvexProLog.h"

namespace
{
	/** A catalogue that is wrong throughout does not fill the log. */
	constexpr int32 MaxProblems = 20;

	void LogProblems(const UHalvexConfiguratorDataAsset& Asset, const TArray<FString>& Problems)
	{
		for (int32 Index = 0; Index < FMath::Min(Problems.Num(), MaxProblems); ++Index)
		{
			UE_LOG(LogHalvexPro, Warning, TEXT("Configurator %s: %s"), *Asset.GetName(), *Problems[Index]);
		}
		if (Problems.Num() > MaxProblems)
		{
			UE_LOG(LogHalvexPro, Warning, TEXT("Configurator %s: %d more of the kind"), *Asset.GetName(), Problems.Num() - MaxProblems);
		}
	}

	FString MakeAddress(const FString& Text)
	{
		const bool bAddress = Text.StartsWith(TEXT("http:")) || Text.StartsWith(TEXT("https:")) || Text.StartsWith(TEXT("file:"));
		// In a path a percent sign is nothing but itself.
		return bAddress ? Text : TEXT("file:") + Text.Replace(TEXT("%"), TEXT("%25"));
	}
}

UHalvexConfiguratorDataAsset* UHalvexConfiguratorDataAsset::CreateFromCatalogue(const FConfiguratorCatalogue& InCatalogue, const TArray<FProjectImage>& InImages)
{
	UHalvexConfiguratorDataAsset* const Asset = NewObject<UHalvexConfiguratorDataAsset>();
	Asset->Catalogue = InCatalogue;
	for (const FProjectImage& Image : InImages)
	{
		FImageObjectData& Picture = Asset->Images.Add(Image.ImageId);
		Picture.ImageName = Image.Title;
		Picture.Address = MakeAddress(Image.Address);
	}
	return Asset;
}

void UHalvexConfiguratorDataAsset::SetCatalogue(const FConfiguratorCatalogue& InCatalogue)
{
	Catalogue = InCatalogue;
	ReceivedCatalogueChange();
}

bool UHalvexConfiguratorDataAsset::GetConfiguratorProductByKey(const FName& ProductKey, FHalvexConfigProduct& OutProduct) const
{
	const FHalvexCatalogueIndex::FVariantPlace* const Place = GetIndex().FindVariant(ProductKey);
	if (Place)
	{
		OutProduct = Place->Variant->Product;
	}
	return Place != nullptr;
}

void UHalvexConfiguratorDataAsset::AddProductToList(const FName& ProductKey)
{
	if (!IsProductInList(ProductKey))
	{
		TArray<FName> Longer = ProductList;
		Longer.Add(ProductKey);
		SetProductList(Longer);
	}
}

void UHalvexConfiguratorDataAsset::RemoveProductFromList(const FName& ProductKey)
{
	if (ProductList.Remove(ProductKey) > 0)
	{
		OnProductListChanged.Broadcast();
	}
}

void UHalvexConfiguratorDataAsset::SetProductList(const TArray<FName>& ProductKeys)
{
	TArray<FName> NewList;
	TArray<FString> Unknown;
	for (const FName& ProductKey : ProductKeys)
	{
		if (GetIndex().FindVariant(ProductKey))
		{
			NewList.AddUnique(ProductKey);
		}
		else
		{
			Unknown.Add(ProductKey.ToString());
		}
	}
	if (!Unknown.IsEmpty())
	{
		UE_LOG(LogHalvexPro, Warning, TEXT("Configurator %s: not in the catalogue, and so not in the list of products: %s"), *GetName(), *FString::Join(Unknown, TEXT(", ")));
	}
	if (NewList != ProductList)
	{
		ProductList = MoveTemp(NewList);
		OnProductListChanged.Broadcast();
	}
}

const FHalvexCatalogueIndex& UHalvexConfiguratorDataAsset::GetIndex() const
{
	if (!Index)
	{
		TArray<FString> Problems;
		Index = MakeShared<FHalvexCatalogueIndex>(Catalogue, Problems);
		LogProblems(*this, Problems);
	}
	return *Index;
}

#if WITH_EDITOR
void UHalvexConfiguratorDataAsset::PostEditChangeProperty(FPropertyChangedEvent& PropertyChangedEvent)
{
	Super::PostEditChangeProperty(PropertyChangedEvent);
	ReceivedCatalogueChange();
}
#endif

void UHalvexConfiguratorDataAsset::ReceivedCatalogueChange()
{
	Index.Reset();
	OnCatalogueChanged.Broadcast();
}
