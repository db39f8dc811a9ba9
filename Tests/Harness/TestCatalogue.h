#pragma once

#include "Project/ConfiguratorCatalogue.h"

/** A small catalogue for tests. */
namespace Host::TestCatalogue
{
	inline FVariantSurfaceLook MakeLook(const TCHAR* Surface, FLinearColor Color)
	{
		FVariantSurfaceLook Look;
		Look.Surface = FName(Surface);
		Look.Color = Color;
		return Look;
	}

	/** A product whose name is "The <Key>", and whose image has the product's key. */
	inline FCatalogueVariant MakeVariant(const TCHAR* Key, double Price, TArray<FVariantSurfaceLook> Looks = {})
	{
		FCatalogueVariant Variant;
		Variant.Product.ProductKey = FName(Key);
		Variant.Product.Name = FString(TEXT("The ")) + Key;
		Variant.Product.Maker = TEXT("Harbour Works");
		Variant.Product.Image = FName(Key);
		Variant.Product.Currency = FName(TEXT("EUR"));
		Variant.Product.Price = Price;
		Variant.Looks = MoveTemp(Looks);
		return Variant;
	}

	inline FCatalogueSubCategory MakeSubCategory(const TCHAR* Id, const TCHAR* DefaultProduct, TArray<FCatalogueVariant> Variants)
	{
		FCatalogueSubCategory SubCategory;
		SubCategory.SubCategoryId = FName(Id);
		SubCategory.Name = FString(TEXT("All ")) + Id;
		SubCategory.DefaultProduct = FName(DefaultProduct);
		SubCategory.Variants = MoveTemp(Variants);
		return SubCategory;
	}

	inline FCatalogueCategory MakeCategory(const TCHAR* Id, TArray<FCatalogueSubCategory> SubCategories)
	{
		FCatalogueCategory Category;
		Category.CategoryId = FName(Id);
		Category.Name = FString(TEXT("The ")) + Id;
		Category.SubCategories = MoveTemp(SubCategories);
		return Category;
	}

	/**
	 * Kitchen: Worktop (Oak, which units come with, Marble 900, Slate 1200), Fronts (White, Navy 400), Tap (Steel 100, Brass 250;
	 * none to come with). Bath: Tiles (Grey, Green 300), Basin.Round (Small, Large 150), a key with a full stop.
	 */
	inline FConfiguratorCatalogue Make()
	{
		const FLinearColor Brown(0.3f, 0.2f, 0.1f);
		const FLinearColor Pale(0.9f, 0.9f, 0.8f);
		const FLinearColor Dark(0.1f, 0.1f, 0.1f);
		FConfiguratorCatalogue Catalogue;
		Catalogue.Categories = {
			MakeCategory(TEXT("Kitchen"), {
				MakeSubCategory(TEXT("Worktop"), TEXT("Oak"), {
					MakeVariant(TEXT("Oak"), 0.0, { MakeLook(TEXT("Top"), Brown) }),
					MakeVariant(TEXT("Marble"), 900.0, { MakeLook(TEXT("Top"), Pale), MakeLook(TEXT("Splashback"), Pale) }),
					MakeVariant(TEXT("Slate"), 1200.0, { MakeLook(TEXT("Top"), Dark) }) }),
				MakeSubCategory(TEXT("Fronts"), TEXT("White"), {
					MakeVariant(TEXT("White"), 0.0, { MakeLook(TEXT("Doors"), Pale) }),
					MakeVariant(TEXT("Navy"), 400.0, { MakeLook(TEXT("Doors"), Dark), MakeLook(TEXT("Top"), Dark) }) }),
				MakeSubCategory(TEXT("Tap"), TEXT(""), {
					MakeVariant(TEXT("Steel"), 100.0),
					MakeVariant(TEXT("Brass"), 250.0) }) }),
			MakeCategory(TEXT("Bath"), {
				MakeSubCategory(TEXT("Tiles"), TEXT("Grey"), {
					MakeVariant(TEXT("Grey"), 0.0),
					MakeVariant(TEXT("Green"), 300.0) }),
				MakeSubCategory(TEXT("Basin.Round"), TEXT("Small"), {
					MakeVariant(TEXT("Small"), 0.0),
					MakeVariant(TEXT("Large"), 150.0) }) }) };
		return Catalogue;
	}
}
