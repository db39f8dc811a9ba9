// What is active, and what of it is a change.

#include "Configurator/HalvexVariantHandler.h"

#include "Algo/Reverse.h"
#include "Configurator/HalvexCatalogueLookup.h"
#include "HalvexProLog.h"

namespace
{
	using FSubCategory = FHalvexCatalogueIndex::FSubCategory;

	FName FindActive(const TMap<FName, FName>& ChosenOfKey, const FSubCategory& SubCategory)
	{
		const FName* const Chosen = ChosenOfKey.Find(SubCategory.Key);
		return Chosen ? *Chosen : SubCategory.GetDefaultName();
	}

	double FindPriceDifference(const FHalvexCatalogueIndex::FVariantPlace& Place)
	{
		const FCatalogueVariant* const Default = Place.SubCategory->Default;
		return Place.Variant->Product.Price - (Default ? Default->Product.Price : 0.0);
	}

	TArray<FHalvexVariantChoice> GetWithout(const TArray<FHalvexVariantChoice>& Choices, FName Key)
	{
		return Choices.FilterByPredicate([Key](const FHalvexVariantChoice& Choice) { return Choice.Key != Key; });
	}

	bool LookAlike(const TArray<FVariantSurfaceLook>& A, const TArray<FVariantSurfaceLook>& B)
	{
		bool bAlike = A.Num() == B.Num();
		for (int32 Index = 0; bAlike && Index < A.Num(); ++Index)
		{
			bAlike = A[Index].Surface == B[Index].Surface && A[Index].Color == B[Index].Color && A[Index].Roughness == B[Index].Roughness;
		}
		return bAlike;
	}
}

bool UHalvexVariantHandler::SetVariant(const FName& Variant, bool bActive)
{
	const FHalvexCatalogueIndex::FVariantPlace* const Place = HalvexCatalogueLookup::FindVariant(Configurator, Variant);
	if (!Place)
	{
		UE_LOG(LogHalvexPro, Warning, TEXT("Configurator: there is no variant '%s'"), *Variant.ToString());
		return false;
	}
	const FName Asked = Variant;
	const FSubCategory& SubCategory = *Place->SubCategory;
	const FName Category = SubCategory.Category;
	const FName SubCategoryId = SubCategory.Data->SubCategoryId;
	SelectedCategory = Category;
	SelectedSubCategory = SubCategoryId;
	SelectedVariant = bActive ? Asked : FName();

	const bool bIsActive = FindActive(ChosenOfKey, SubCategory) == Asked;
	TArray<FHalvexVariantChoice> NewChoices = Choices;
	if (bIsActive != bActive)
	{
		NewChoices = GetWithout(Choices, SubCategory.Key);
		if (bActive)
		{
			NewChoices.Add(FHalvexVariantChoice{ SubCategory.Key, Asked });
		}
	}
	TArray<FName> NewProductList = GetProductList();
	if (bActive && !NewProductList.Contains(Asked))
	{
		NewProductList.RemoveAll([&](FName Product) { return SubCategory.FindVariant(Product) != INDEX_NONE; });
		NewProductList.Add(Asked);
	}
	else if (!bActive)
	{
		NewProductList.Remove(Asked);
	}
	// From here on the catalogue may be another: listeners can exchange it.
	Change(NewChoices, NewProductList, false);
	return (GetActiveVariant(Category, SubCategoryId) == Asked) == bActive;
}

// Active variants.

bool UHalvexVariantHandler::GetVariantActiveIndex(int32& OutIndex) const
{
	const FSubCategory* const SubCategory = HalvexCatalogueLookup::FindSubCategory(Configurator, SelectedCategory, SelectedSubCategory);
	OutIndex = SubCategory ? SubCategory->FindVariant(FindActive(ChosenOfKey, *SubCategory)) : INDEX_NONE;
	return OutIndex != INDEX_NONE;
}

FName UHalvexVariantHandler::GetVariantActivatedFromSelection() const
{
	return GetActiveVariant(SelectedCategory, SelectedSubCategory);
}

FName UHalvexVariantHandler::GetActiveVariant(FName Category, FName SubCategory) const
{
	const FSubCategory* const Found = HalvexCatalogueLookup::FindSubCategory(Configurator, Category, SubCategory);
	return Found ? FindActive(ChosenOfKey, *Found) : FName();
}

bool UHalvexVariantHandler::IsVariantActive(const FName& Variant) const
{
	const FHalvexCatalogueIndex::FVariantPlace* const Place = HalvexCatalogueLookup::FindVariant(Configurator, Variant);
	return Place && FindActive(ChosenOfKey, *Place->SubCategory) == Variant;
}

TMap<FName, FName> UHalvexVariantHandler::GetActiveVariants() const
{
	TMap<FName, FName> Active;
	if (Configurator)
	{
		for (const FHalvexCatalogueIndex::FCategory& Category : Configurator->GetIndex().GetCategories())
		{
			for (const FSubCategory& SubCategory : Category.SubCategories)
			{
				const FName Variant = FindActive(ChosenOfKey, SubCategory);
				if (!Variant.IsNone())
				{
					Active.Add(SubCategory.Key, Variant);
				}
			}
		}
	}
	return Active;
}

TArray<FVariantSurfaceLook> UHalvexVariantHandler::GetSurfaceLooks() const
{
	TArray<FVariantSurfaceLook> Looks;
	TMap<FName, int32> IndexOfSurface;
	for (const TPair<FName, FName>& Active : GetActiveVariants())
	{
		const FHalvexCatalogueIndex::FVariantPlace* const Place = HalvexCatalogueLookup::FindVariant(Configurator, Active.Value);
		if (!Place)
		{
			// The catalogue was exchanged, and others are told of it ahead of this handler.
			continue;
		}
		for (const FVariantSurfaceLook& Look : Place->Variant->Looks)
		{
			if (const int32* const Index = IndexOfSurface.Find(Look.Surface))
			{
				Looks[*Index] = Look;
			}
			else
			{
				IndexOfSurface.Add(Look.Surface, Looks.Add(Look));
			}
		}
	}
	return Looks;
}

// Changes.

TMap<FName, FHalvexConfigProduct> UHalvexVariantHandler::GetConfigtorChangeList() const
{
	TMap<FName, FHalvexConfigProduct> ChangeList;
	for (const FHalvexVariantChoice& Choice : Choices)
	{
		GetProductDataFromVariant(Choice.Variant, ChangeList.Add(Choice.Key));
	}
	return ChangeList;
}

bool UHalvexVariantHandler::TakeBackChange(const FName& Key)
{
	const FName* const Chosen = ChosenOfKey.Find(Key);
	if (!Chosen)
	{
		return false;
	}
	TArray<FName> NewProductList = GetProductList();
	NewProductList.Remove(*Chosen);
	Change(GetWithout(Choices, Key), NewProductList, false);
	return true;
}

void UHalvexVariantHandler::ResetChanges()
{
	TSet<FName> Chosen;
	for (const FHalvexVariantChoice& Choice : Choices)
	{
		Chosen.Add(Choice.Variant);
	}
	TArray<FName> NewProductList = GetProductList();
	NewProductList.RemoveAll([&Chosen](FName Product) { return Chosen.Contains(Product); });
	Change(TArray<FHalvexVariantChoice>(), NewProductList, false);
}

double UHalvexVariantHandler::GetPriceDifference(const FName& Variant) const
{
	const FHalvexCatalogueIndex::FVariantPlace* const Place = HalvexCatalogueLookup::FindVariant(Configurator, Variant);
	return Place ? FindPriceDifference(*Place) : 0.0;
}

double UHalvexVariantHandler::GetPriceOfChanges() const
{
	double Sum = 0.0;
	for (const FHalvexVariantChoice& Choice : Choices)
	{
		Sum += GetPriceDifference(Choice.Variant);
	}
	return Sum;
}

FHalvexConfiguratorState UHalvexVariantHandler::GetConfiguratorState() const
{
	FHalvexConfiguratorState State;
	State.Choices = Choices;
	State.ProductList = GetProductList();
	return State;
}

void UHalvexVariantHandler::SetConfiguratorState(const FHalvexConfiguratorState& State)
{
	Change(State.Choices, State.ProductList, false);
}

void UHalvexVariantHandler::SetConfiguredUnit(FName UnitId)
{
	if (UnitId == ConfiguredUnit)
	{
		return;
	}
	const bool bFirst = ConfiguredUnit.IsNone() && StateOfUnit.IsEmpty();
	if (!ConfiguredUnit.IsNone())
	{
		StateOfUnit.Add(ConfiguredUnit, GetConfiguratorState());
	}
	ConfiguredUnit = UnitId;
	if (!bFirst)
	{
		FHalvexConfiguratorState Kept;
		StateOfUnit.RemoveAndCopyValue(UnitId, Kept);
		SetConfiguratorState(Kept);
	}
}

void UHalvexVariantHandler::Change(const TArray<FHalvexVariantChoice>& NewChoices, const TArray<FName>& NewProductList, bool bCatalogueChanged)
{
	// Who hears of the list may exchange the catalogue: what is possible is found after it.
	const bool bListChanges = ExchangeProductList(NewProductList);
	TArray<FHalvexVariantChoice> Possible = FindPossible(NewChoices);
	const bool bChoicesChange = Possible != Choices;
	const bool bChangeListChanges = bChoicesChange || (bCatalogueChanged && !Possible.IsEmpty());
	Choices = MoveTemp(Possible);
	ChosenOfKey.Reset();
	for (const FHalvexVariantChoice& Choice : Choices)
	{
		ChosenOfKey.Add(Choice.Key, Choice.Variant);
	}
	if (bChoicesChange || bListChanges || bCatalogueChanged)
	{
		OnVariantChange.Broadcast();
	}
	TArray<FVariantSurfaceLook> Looks = GetSurfaceLooks();
	if (!LookAlike(Looks, LastLooks))
	{
		LastLooks = Looks;
		OnSurfaceLooksChange.Broadcast(Looks);
	}
	if (bChangeListChanges)
	{
		OnChangeListChanged.Broadcast();
	}
}

TArray<FHalvexVariantChoice> UHalvexVariantHandler::FindPossible(const TArray<FHalvexVariantChoice>& Wanted) const
{
	TArray<FHalvexVariantChoice> Possible;
	if (!Configurator)
	{
		return Possible;
	}
	TArray<FString> Missing;
	// Of several choices in one subcategory the last counts.
	TSet<FName> Taken;
	for (int32 Index = Wanted.Num() - 1; Index >= 0; --Index)
	{
		const FHalvexVariantChoice& Choice = Wanted[Index];
		const FHalvexCatalogueIndex::FVariantPlace* const Place = HalvexCatalogueLookup::FindVariant(Configurator, Choice.Variant);
		if (!Place || Place->SubCategory->Key != Choice.Key)
		{
			Missing.Add(FString::Printf(TEXT("'%s' in '%s'"), *Choice.Variant.ToString(), *Choice.Key.ToString()));
			continue;
		}
		bool bTaken = false;
		Taken.Add(Choice.Key, &bTaken);
		if (!bTaken && Place->Variant != Place->SubCategory->Default)
		{
			Possible.Add(Choice);
		}
	}
	Algo::Reverse(Possible);
	if (!Missing.IsEmpty())
	{
		Algo::Reverse(Missing);
		UE_LOG(LogHalvexPro, Warning, TEXT("Configurator: not in the catalogue, and so not chosen: %s"), *FString::Join(Missing, TEXT(", ")));
	}
	return Possible;
}

TArray<FName> UHalvexVariantHandler::GetProductList() const
{
	return Configurator ? Configurator->GetProductList() : TArray<FName>();
}

bool UHalvexVariantHandler::ExchangeProductList(const TArray<FName>& NewProductList)
{
	if (!Configurator || !Configurator->IsSelectingByProductList())
	{
		return false;
	}
	const TGuardValue<bool> Exchanging(bExchangingProductList, true);
	const TArray<FName> Before = Configurator->GetProductList();
	Configurator->SetProductList(NewProductList);
	return Configurator->GetProductList() != Before;
}
