#include "UserWidget/Configurator/HxConfiguratorListElement.h"

#include "Configurator/HalvexConfiguratorDataAsset.h"
#include "Configurator/HalvexVariantHandler.h"
#include "Engine/Texture2D.h"
#include "UObject/Package.h"

bool UHxConfiguratorListElement::IsElementOf(EConfiguratorListElementType Level) const
{
	return VariantHandler && ConfiguratorElementType == Level;
}

void UHxConfiguratorListElement::SetItemHasSelected()
{
	if (!VariantHandler)
	{
		return;
	}
	switch (ConfiguratorElementType)
	{
	case ECLET_Category:
		VariantHandler->SetCategory(ItemData.KeyName);
		break;
	case ECLET_SubCategory:
		VariantHandler->SetSubCategory(ItemData.KeyName);
		break;
	case ECLET_Product:
		VariantHandler->SetVariant(ItemData.KeyName, true);
		break;
	}
}

bool UHxConfiguratorListElement::GetProductDataFromVariant(FHalvexConfigProduct& OutProduct)
{
	return IsElementOf(ECLET_Product) && VariantHandler->GetProductDataFromVariant(ItemData.KeyName, OutProduct);
}

UTexture2D* UHxConfiguratorListElement::GetThumbnailFromVariant()
{
	UTexture2D* Thumbnail = nullptr;
	if (IsElementOf(ECLET_Product))
	{
		VariantHandler->GetVariantThumbnail(Thumbnail, ItemData.KeyName);
	}
	return Thumbnail;
}

UObject* UHxConfiguratorListElement::GetThumbnailFromOverride()
{
	return ItemData.Thumbnail.TryLoad();
}

bool UHxConfiguratorListElement::IsVariantSelected()
{
	return IsElementOf(ECLET_Product) && !VariantActivated.IsNone() && VariantActivated == ItemData.KeyName;
}

bool UHxConfiguratorListElement::IsProductSelected()
{
	const UHalvexConfiguratorDataAsset* const Configurator = VariantHandler ? VariantHandler->GetVariantConfigurator() : nullptr;
	if (!Configurator)
	{
		return false;
	}
	FHalvexConfigProduct Product;
	if (Configurator->IsSelectingByProductList() && Configurator->GetConfiguratorProductByKey(ItemData.KeyName, Product))
	{
		return Configurator->IsProductInList(ItemData.KeyName);
	}
	return IsVariantSelected();
}

UHxConfiguratorListElement* UHxConfiguratorListElement::CheckForSelectedItem(TArray<UHxConfiguratorListElement*> InItems)
{
	UHxConfiguratorListElement* const* const Found = InItems.FindByPredicate([](UHxConfiguratorListElement* Item) { return Item && Item->IsProductSelected(); });
	return Found ? *Found : nullptr;
}

TArray<UHxConfiguratorListElement*> UHxConfiguratorListElement::GenerateProductListElementsFromSubCategory(UHxConfiguratorListElement*& SelectedElement)
{
	TArray<UHxConfiguratorListElement*> Elements;
	if (!IsElementOf(ECLET_SubCategory))
	{
		return Elements;
	}
	VariantHandler->SetSubCategory(ItemData.KeyName);
	const TArray<FHalvexItemOverrideData> Products = VariantHandler->GetProductOverrideData();
	const FName Active = VariantHandler->GetVariantActivatedFromSelection();
	for (const FHalvexItemOverrideData& Product : Products)
	{
		UHxConfiguratorListElement* const Element = NewObject<UHxConfiguratorListElement>(GetTransientPackage());
		Element->ItemData = Product;
		Element->ConfiguratorElementType = ECLET_Product;
		Element->VariantHandler = VariantHandler;
		Element->VariantActivated = Active;
		VariantHandler->OnVariantChange.AddDynamic(Element, &UHxConfiguratorListElement::Received_VariantProductChange);
		if (Element->IsProductSelected())
		{
			// Of several products in the list of chosen ones the last counts; screens rely on it.
			SelectedElement = Element;
		}
		Elements.Add(Element);
	}
	return Elements;
}

void UHxConfiguratorListElement::Received_VariantProductChange()
{
	if (IsElementOf(ECLET_Product))
	{
		int32 Index = INDEX_NONE;
		OnVariantProductChange.Broadcast(VariantHandler->GetVariantActiveIndex(Index) ? Index : INDEX_NONE);
	}
}
