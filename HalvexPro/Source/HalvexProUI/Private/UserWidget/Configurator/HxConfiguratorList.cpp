#include "UserWidget/Configurator/HxConfiguratorList.h"

#include "Components/ListView.h"
#include "Configurator/HalvexLevelVariantSetsActor.h"
#include "Configurator/HalvexVariantHandler.h"
#include "Engine/World.h"
#include "Kismet/GameplayStatics.h"
#include "TimerManager.h"
#include "UObject/Package.h"

namespace
{
	/** Seconds until a handler that is not there yet is looked for again. */
	constexpr float HandlerRetryRate = 0.1f;

	TArray<FHalvexItemOverrideData> FetchItems(UHalvexVariantHandler& Handler, EConfiguratorListElementType Level)
	{
		// The names are fetched for their effect alone: the handler forgets what it has selected that is there no longer.
		switch (Level)
		{
		case ECLET_SubCategory:
			Handler.GetSubCatsFromSelectedCat(true);
			return Handler.GetSubCategoryOverrideData();
		case ECLET_Product:
			Handler.GetVariantsFromSelectedSubCat(true);
			return Handler.GetProductOverrideData();
		case ECLET_Category:
			break;
		}
		Handler.GetAllCategoryValues();
		return Handler.GetAllCategoryOverrideData();
	}
}

void UHxConfiguratorList::ResetToFirstLevel()
{
	if (!HxLevelVariantSetRef)
	{
		return;
	}
	UHalvexVariantHandler* const Handler = HxLevelVariantSetRef->GetVariantHandler();
	if (!Handler)
	{
		// Each wait is a timer of its own and leads to the next one; nothing ends it but the handler, or the end of the widget.
		if (UWorld* const World = GetWorld())
		{
			FTimerHandle Retry;
			World->GetTimerManager().SetTimer(Retry, this, &UHxConfiguratorList::ResetToFirstLevel, HandlerRetryRate, false);
		}
		return;
	}
	Handler->ClearSelections();
	CurrentElementType = ECLET_Category;
	RefreshDisplayList();
}

void UHxConfiguratorList::SetElementType(TEnumAsByte<EConfiguratorListElementType> ElementType)
{
	CurrentElementType = ElementType;
	RefreshDisplayList();
}

void UHxConfiguratorList::SetHalvexLevelVariantActor(AHalvexLevelVariantSetsActor* LevelVariantSetsActor)
{
	HxLevelVariantSetRef = LevelVariantSetsActor;
	ResetToFirstLevel();
}

void UHxConfiguratorList::CheckForLevelVariantActor()
{
	if (AHalvexLevelVariantSetsActor* const Found = Cast<AHalvexLevelVariantSetsActor>(UGameplayStatics::GetActorOfClass(GetWorld(), AHalvexLevelVariantSetsActor::StaticClass())))
	{
		HxLevelVariantSetRef = Found;
		ResetToFirstLevel();
	}
}

void UHxConfiguratorList::ReceivedItemClick(UObject* Item)
{
	UHxConfiguratorListElement* const Element = CastChecked<UHxConfiguratorListElement>(Item);
	UHalvexVariantHandler* const Handler = HxLevelVariantSetRef ? HxLevelVariantSetRef->GetVariantHandler() : nullptr;
	if (Handler && Element->ConfiguratorElementType == ECLET_Category)
	{
		Handler->SetCategory(Element->ItemData.KeyName);
		CurrentElementType = ECLET_SubCategory;
		RefreshDisplayList();
	}
	OnConfiguratorElementSelected(Element);
	if (OnElementSelected.IsBound())
	{
		OnElementSelected.Broadcast(Element);
	}
}

void UHxConfiguratorList::RefreshDisplayList() const
{
	UHalvexVariantHandler* const Handler = HxLevelVariantSetRef ? HxLevelVariantSetRef->GetVariantHandler() : nullptr;
	if (!Handler)
	{
		return;
	}
	const TArray<FHalvexItemOverrideData> Items = FetchItems(*Handler, CurrentElementType);
	TArray<UHxConfiguratorListElement*> Elements;
	Elements.Reserve(Items.Num());
	for (const FHalvexItemOverrideData& Item : Items)
	{
		UHxConfiguratorListElement* const Element = NewObject<UHxConfiguratorListElement>(GetTransientPackage());
		Element->ItemData = Item;
		Element->ConfiguratorElementType = CurrentElementType;
		Element->VariantHandler = Handler;
		Elements.Add(Element);
	}
	if (!ListDisplay)
	{
		return;
	}
	ListDisplay->SetListItems(Elements);
	int32 ActiveIndex = INDEX_NONE;
	if (CurrentElementType == ECLET_Product && Handler->GetVariantActiveIndex(ActiveIndex))
	{
		ListDisplay->SetSelectedIndex(ActiveIndex);
	}
}

void UHxConfiguratorList::NativeOnInitialized()
{
	Super::NativeOnInitialized();
	CheckForLevelVariantActor();
}

void UHxConfiguratorList::NativeConstruct()
{
	Super::NativeConstruct();
	if (ListDisplay)
	{
		// Once more with each construction: a widget that comes back takes each click once for each time; screens rely on it.
		ListDisplay->OnItemClicked().AddUObject(this, &UHxConfiguratorList::ReceivedItemClick);
	}
}
