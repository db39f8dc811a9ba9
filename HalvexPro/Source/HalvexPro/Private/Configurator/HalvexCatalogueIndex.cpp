#include "Configurator/HalvexCatalogueIndex.h"

#include "Project/ConfiguratorCatalogue.h"

FName FHalvexCatalogueIndex::FSubCategory::GetDefaultName() const
{
	return Default ? Default->Product.ProductKey : FName();
}

int32 FHalvexCatalogueIndex::FSubCategory::FindVariant(FName Variant) const
{
	return Variants.IndexOfByPredicate([Variant](const FCatalogueVariant* Candidate) { return Candidate->Product.ProductKey == Variant; });
}

FHalvexCatalogueIndex::FHalvexCatalogueIndex(const FConfiguratorCatalogue& Catalogue, TArray<FString>& OutProblems)
{
	for (const FCatalogueCategory& Data : Catalogue.Categories)
	{
		AddCategory(Data, OutProblems);
	}
	TSet<FName> Taken;
	for (FCategory& Category : Categories)
	{
		for (FSubCategory& SubCategory : Category.SubCategories)
		{
			AddVariants(SubCategory, Taken, OutProblems);
			// From here on nothing is added to the arrays: what stands in them stays where it is.
			SubCategoryOfKey.Add(SubCategory.Key, &SubCategory);
			for (const FCatalogueVariant* Variant : SubCategory.Variants)
			{
				VariantOfKey.Add(Variant->Product.ProductKey, FVariantPlace{ &SubCategory, Variant });
			}
		}
	}
}

void FHalvexCatalogueIndex::AddCategory(const FCatalogueCategory& Data, TArray<FString>& OutProblems)
{
	const FString Id = Data.CategoryId.ToString();
	if (Data.CategoryId.IsNone())
	{
		OutProblems.Add(FString::Printf(TEXT("the category '%s' has no key and is left out"), *Data.Name));
	}
	else if (Id.Contains(TEXT(".")))
	{
		OutProblems.Add(FString::Printf(TEXT("the category '%s' has a full stop in its key and is left out"), *Id));
	}
	else if (FindCategory(Data.CategoryId))
	{
		OutProblems.Add(FString::Printf(TEXT("the category '%s' is there already and is left out"), *Id));
	}
	else
	{
		FCategory& Category = Categories.AddDefaulted_GetRef();
		Category.Data = &Data;
		for (const FCatalogueSubCategory& SubCategory : Data.SubCategories)
		{
			AddSubCategory(Category, SubCategory, OutProblems);
		}
	}
}

void FHalvexCatalogueIndex::AddSubCategory(FCategory& Category, const FCatalogueSubCategory& Data, TArray<FString>& OutProblems)
{
	const FString CategoryId = Category.Data->CategoryId.ToString();
	if (Data.SubCategoryId.IsNone())
	{
		OutProblems.Add(FString::Printf(TEXT("the subcategory '%s' of '%s' has no key and is left out"), *Data.Name, *CategoryId));
		return;
	}
	const FString Key = CategoryId + TEXT(".") + Data.SubCategoryId.ToString();
	if (FindSubCategory(Category.Data->CategoryId, Data.SubCategoryId))
	{
		OutProblems.Add(FString::Printf(TEXT("the subcategory '%s' is there already and is left out"), *Key));
		return;
	}
	FSubCategory& SubCategory = Category.SubCategories.AddDefaulted_GetRef();
	SubCategory.Data = &Data;
	SubCategory.Category = Category.Data->CategoryId;
	SubCategory.Key = FName(*Key);
}

void FHalvexCatalogueIndex::AddVariants(FSubCategory& SubCategory, TSet<FName>& Taken, TArray<FString>& OutProblems)
{
	SubCategory.Variants.Reserve(SubCategory.Data->Variants.Num());
	for (const FCatalogueVariant& Variant : SubCategory.Data->Variants)
	{
		const FName ProductKey = Variant.Product.ProductKey;
		if (ProductKey.IsNone())
		{
			OutProblems.Add(FString::Printf(TEXT("the product '%s' of '%s' has no key and is left out"), *Variant.Product.Name, *SubCategory.Key.ToString()));
			continue;
		}
		bool bTaken = false;
		Taken.Add(ProductKey, &bTaken);
		if (bTaken)
		{
			OutProblems.Add(FString::Printf(TEXT("the product '%s' is there already and is left out of '%s'"), *ProductKey.ToString(), *SubCategory.Key.ToString()));
			continue;
		}
		SubCategory.Variants.Add(&Variant);
	}
	const FName Default = SubCategory.Data->DefaultProduct;
	const int32 DefaultIndex = SubCategory.FindVariant(Default);
	if (DefaultIndex != INDEX_NONE)
	{
		SubCategory.Default = SubCategory.Variants[DefaultIndex];
	}
	else if (!Default.IsNone())
	{
		OutProblems.Add(FString::Printf(TEXT("'%s' has no product '%s' to come with"), *SubCategory.Key.ToString(), *Default.ToString()));
	}
}

const FHalvexCatalogueIndex::FCategory* FHalvexCatalogueIndex::FindCategory(FName Category) const
{
	return Categories.FindByPredicate([Category](const FCategory& Candidate) { return Candidate.Data->CategoryId == Category; });
}

const FHalvexCatalogueIndex::FSubCategory* FHalvexCatalogueIndex::FindSubCategory(FName Category, FName SubCategory) const
{
	const FCategory* const Found = FindCategory(Category);
	return Found ? Found->SubCategories.FindByPredicate([SubCategory](const FSubCategory& Candidate) { return Candidate.Data->SubCategoryId == SubCategory; }) : nullptr;
}

const FHalvexCatalogueIndex::FSubCategory* FHalvexCatalogueIndex::FindSubCategory(FName Key) const
{
	const FSubCategory* const* const Found = SubCategoryOfKey.Find(Key);
	return Found ? *Found : nullptr;
}
