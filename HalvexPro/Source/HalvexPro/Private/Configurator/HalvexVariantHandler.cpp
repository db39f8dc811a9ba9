#include "Configurator/HalvexVariantHandler.h"

#include "Configurator/HalvexCatalogueLookup.h"
#include "Configurator/HalvexThumbnails.h"
#include "HalvexProLog.h"

UHalvexVariantHandler::UHalvexVariantHandler()
{
	Thumbnails = CreateDefaultSubobject<UHalvexThumbnails>(TEXT("Thumbnails"));
	Thumbnails->OnArrived.BindWeakLambda(this, [this](FName Image, UTexture2D* Thumbnail) { OnThumbnailReady.Broadcast(Image, Thumbnail); });
}

void UHalvexVariantHandler::SetVariantConfigurator(UHalvexConfiguratorDataAsset* InConfigurator)
{
	if (Configurator == InConfigurator)
	{
		return;
	}
	if (Configurator)
	{
		Configurator->OnCatalogueChanged.RemoveAll(this);
		Configurator->OnProductListChanged.RemoveAll(this);
	}
	Configurator = InConfigurator;
	if (Configurator)
	{
		Configurator->OnCatalogueChanged.AddUObject(this, &UHalvexVariantHandler::ReceivedCatalogueChange);
		Configurator->OnProductListChanged.AddUObject(this, &UHalvexVariantHandler::ReceivedProductListChange);
	}
	ReceivedCatalogueChange();
}

void UHalvexVariantHandler::ReceivedCatalogueChange()
{
	Thumbnails->Reset();
	Change(Choices, GetProductList(), true);
}

void UHalvexVariantHandler::ReceivedProductListChange()
{
	if (!bExchangingProductList)
	{
		OnVariantChange.Broadcast();
	}
}

// Selection.

void UHalvexVariantHandler::ClearSelections()
{
	SelectedCategory = FName();
	SelectedSubCategory = FName();
	SelectedVariant = FName();
}

void UHalvexVariantHandler::SetCategory(const FName& Category)
{
	const FName Asked = Category;
	ClearSelections();
	if (HalvexCatalogueLookup::FindCategory(Configurator, Asked))
	{
		SelectedCategory = Asked;
	}
	else
	{
		UE_LOG(LogHalvexPro, Warning, TEXT("Configurator: there is no category '%s'"), *Asked.ToString());
	}
}

void UHalvexVariantHandler::SetSubCategory(const FName& SubCategory)
{
	const FName Asked = SubCategory;
	SelectedSubCategory = FName();
	SelectedVariant = FName();
	if (HalvexCatalogueLookup::FindSubCategory(Configurator, SelectedCategory, Asked))
	{
		SelectedSubCategory = Asked;
	}
	else
	{
		UE_LOG(LogHalvexPro, Warning, TEXT("Configurator: the selected category '%s' has no subcategory '%s'"), *SelectedCategory.ToString(), *Asked.ToString());
	}
}

void UHalvexVariantHandler::DropMissingSelection()
{
	if (!SelectedCategory.IsNone() && !HalvexCatalogueLookup::FindCategory(Configurator, SelectedCategory))
	{
		UE_LOG(LogHalvexPro, Warning, TEXT("Configurator: the selected category '%s' is not in the catalogue any longer"), *SelectedCategory.ToString());
		ClearSelections();
	}
	else if (!SelectedSubCategory.IsNone() && !HalvexCatalogueLookup::FindSubCategory(Configurator, SelectedCategory, SelectedSubCategory))
	{
		UE_LOG(LogHalvexPro, Warning, TEXT("Configurator: the selected subcategory '%s.%s' is not in the catalogue any longer"), *SelectedCategory.ToString(), *SelectedSubCategory.ToString());
		SelectedSubCategory = FName();
		SelectedVariant = FName();
	}
}
