#pragma once

#include "CoreMinimal.h"

struct FCatalogueCategory;
struct FCatalogueSubCategory;
struct FCatalogueVariant;
struct FConfiguratorCatalogue;

/** Where things stand in a catalogue, by their keys. It refers to the catalogue, which is to live longer and stay as it is. */
class FHalvexCatalogueIndex
{
public:
	struct FSubCategory
	{
		const FCatalogueSubCategory* Data = nullptr;
		FName Category;
		/** "Category.SubCategory". */
		FName Key;
		/** Null when nothing is active until it is chosen. */
		const FCatalogueVariant* Default = nullptr;
		TArray<const FCatalogueVariant*> Variants;

		FName GetDefaultName() const;
		/** INDEX_NONE when there is no such variant. */
		int32 FindVariant(FName Variant) const;
	};

	struct FCategory
	{
		const FCatalogueCategory* Data = nullptr;
		TArray<FSubCategory> SubCategories;
	};

	struct FVariantPlace
	{
		const FSubCategory* SubCategory = nullptr;
		const FCatalogueVariant* Variant = nullptr;
	};

	/** @param OutProblems	what is left out and why, a sentence each */
	FHalvexCatalogueIndex(const FConfiguratorCatalogue& Catalogue, TArray<FString>& OutProblems);

	const TArray<FCategory>& GetCategories() const { return Categories; }

	/** Null when there is none. */
	const FCategory* FindCategory(FName Category) const;
	const FSubCategory* FindSubCategory(FName Category, FName SubCategory) const;
	const FSubCategory* FindSubCategory(FName Key) const;
	const FVariantPlace* FindVariant(FName ProductKey) const { return VariantOfKey.Find(ProductKey); }

private:
	void AddCategory(const FCatalogueCategory& Data, TArray<FString>& OutProblems);
	void AddSubCategory(FCategory& Category, const FCatalogueSubCategory& Data, TArray<FString>& OutProblems);
	void AddVariants(FSubCategory& SubCategory, TSet<FName>& Taken, TArray<FString>& OutProblems);

	TArray<FCategory> Categories;
	TMap<FName, const FSubCategory*> SubCategoryOfKey;
	TMap<FName, FVariantPlace> VariantOfKey;
};
