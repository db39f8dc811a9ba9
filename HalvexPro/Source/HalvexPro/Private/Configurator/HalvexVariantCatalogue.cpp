// The handler's walk through the catalogue.

#include "Configurator/HalvexVariantHandler.h"

#include "Configurator/HalvexCatalogueLookup.h"
#include "Configurator/HalvexThumbnails.h"
#include "Engine/Texture2D.h"

namespace
{
	using FSubCategory = FHalvexCatalogueIndex::FSubCategory;

	FHalvexItemOverrideData MakeItem(FName Key, const FString& Name, FName Image, const FHalvexItemOverrideData* Override)
	{
		FHalvexItemOverrideData Item;
		Item.KeyName = Key;
		Item.DisplayText = FText::FromString(Name.IsEmpty() ? Key.ToString() : Name);
		Item.Image = Image;
		if (Override)
		{
			Item.DisplayText = Override->DisplayText.IsEmpty() ? Item.DisplayText : Override->DisplayText;
			Item.Thumbnail = Override->Thumbnail;
			Item.Image = Override->Image.IsNone() ? Image : Override->Image;
		}
		return Item;
	}

	FHalvexItemOverrideData MakeCategoryItem(const UHalvexConfiguratorDataAsset& Asset, const FCatalogueCategory& Category)
	{
		return MakeItem(Category.CategoryId, Category.Name, Category.Image, Asset.CategoryOverrides.Find(Category.CategoryId));
	}

	FHalvexItemOverrideData MakeSubCategoryItem(const UHalvexConfiguratorDataAsset& Asset, const FSubCategory& SubCategory)
	{
		const FCatalogueSubCategory& Data = *SubCategory.Data;
		return MakeItem(Data.SubCategoryId, Data.Name, Data.Image, Asset.SubCategoryOverrides.Find(SubCategory.Key));
	}

	FHalvexItemOverrideData MakeProductItem(const UHalvexConfiguratorDataAsset& Asset, const FHalvexConfigProduct& Product)
	{
		return MakeItem(Product.ProductKey, Product.Name, Product.Image, Asset.ProductOverrides.Find(Product.ProductKey));
	}
}

TArray<FName> UHalvexVariantHandler::GetAllCategoryValues() const
{
	TArray<FName> Values;
	if (Configurator)
	{
		for (const FHalvexCatalogueIndex::FCategory& Category : Configurator->GetIndex().GetCategories())
		{
			Values.Add(Category.Data->CategoryId);
		}
	}
	return Values;
}

TArray<FName> UHalvexVariantHandler::GetSubCatsFromSelectedCat(bool bDropMissing)
{
	if (bDropMissing)
	{
		DropMissingSelection();
	}
	TArray<FName> Values;
	if (const FHalvexCatalogueIndex::FCategory* const Category = HalvexCatalogueLookup::FindCategory(Configurator, SelectedCategory))
	{
		for (const FSubCategory& SubCategory : Category->SubCategories)
		{
			Values.Add(SubCategory.Data->SubCategoryId);
		}
	}
	return Values;
}

TArray<FName> UHalvexVariantHandler::GetVariantsFromSelectedSubCat(bool bDropMissing)
{
	if (bDropMissing)
	{
		DropMissingSelection();
	}
	TArray<FName> Values;
	if (const FSubCategory* const SubCategory = HalvexCatalogueLookup::FindSubCategory(Configurator, SelectedCategory, SelectedSubCategory))
	{
		Values.Reserve(SubCategory->Variants.Num());
		for (const FCatalogueVariant* const Variant : SubCategory->Variants)
		{
			Values.Add(Variant->Product.ProductKey);
		}
	}
	return Values;
}

TArray<FHalvexItemOverrideData> UHalvexVariantHandler::GetAllCategoryOverrideData() const
{
	TArray<FHalvexItemOverrideData> Items;
	if (Configurator)
	{
		for (const FHalvexCatalogueIndex::FCategory& Category : Configurator->GetIndex().GetCategories())
		{
			Items.Add(MakeCategoryItem(*Configurator, *Category.Data));
		}
	}
	return Items;
}

TArray<FHalvexItemOverrideData> UHalvexVariantHandler::GetSubCategoryOverrideData() const
{
	TArray<FHalvexItemOverrideData> Items;
	if (const FHalvexCatalogueIndex::FCategory* const Category = HalvexCatalogueLookup::FindCategory(Configurator, SelectedCategory))
	{
		for (const FSubCategory& SubCategory : Category->SubCategories)
		{
			Items.Add(MakeSubCategoryItem(*Configurator, SubCategory));
		}
	}
	return Items;
}

TArray<FHalvexItemOverrideData> UHalvexVariantHandler::GetProductOverrideData() const
{
	TArray<FHalvexItemOverrideData> Items;
	if (const FSubCategory* const SubCategory = HalvexCatalogueLookup::FindSubCategory(Configurator, SelectedCategory, SelectedSubCategory))
	{
		Items.Reserve(SubCategory->Variants.Num());
		for (const FCatalogueVariant* const Variant : SubCategory->Variants)
		{
			Items.Add(MakeProductItem(*Configurator, Variant->Product));
		}
	}
	return Items;
}

bool UHalvexVariantHandler::GetDisplayTexts(const FName& Key, FText& OutCategory, FText& OutSubCategory) const
{
	const FSubCategory* const SubCategory = Configurator ? Configurator->GetIndex().FindSubCategory(Key) : nullptr;
	if (SubCategory)
	{
		OutCategory = MakeCategoryItem(*Configurator, *HalvexCatalogueLookup::FindCategory(Configurator, SubCategory->Category)->Data).DisplayText;
		OutSubCategory = MakeSubCategoryItem(*Configurator, *SubCategory).DisplayText;
	}
	return SubCategory != nullptr;
}

bool UHalvexVariantHandler::GetProductDataFromVariant(const FName& Variant, FHalvexConfigProduct& OutProduct) const
{
	return Configurator && Configurator->GetConfiguratorProductByKey(Variant, OutProduct);
}

// Pictures.

bool UHalvexVariantHandler::GetVariantThumbnail(UTexture2D*& OutThumbnail, FName Variant)
{
	const FHalvexCatalogueIndex::FVariantPlace* const Place = HalvexCatalogueLookup::FindVariant(Configurator, Variant);
	return GetThumbnail(Place ? MakeProductItem(*Configurator, Place->Variant->Product).Image : FName(), OutThumbnail);
}

bool UHalvexVariantHandler::GetThumbnail(FName Image, UTexture2D*& OutThumbnail)
{
	OutThumbnail = Configurator ? Thumbnails->Get(Image, Configurator->Images) : nullptr;
	return OutThumbnail != nullptr;
}
