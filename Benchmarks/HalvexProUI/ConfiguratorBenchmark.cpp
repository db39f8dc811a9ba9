#include "Components/ListView.h"
#include "Configurator/HalvexConfiguratorDataAsset.h"
#include "Configurator/HalvexLevelVariantSetsActor.h"
#include "Configurator/HalvexVariantHandler.h"
#include "Engine/Engine.h"
#include "Engine/GameInstance.h"
#include "Engine/World.h"
#include "EngineBenchmark.h"
#include "Host/Clock.h"
#include "Host/SlateLoop.h"
#include "Host/WidgetActivity.h"
#include "Images/HalvexImageSubsystem.h"
#include "LoopbackServer.h"
#include "UObject/GarbageCollection.h"
#include "UObject/StrongObjectPtr.h"
#include "UserWidget/Configurator/HxConfiguratorList.h"
#include "Widgets/SWindow.h"

#include <benchmark/benchmark.h>

namespace
{
	/** The shipped configurator over a level with one subcategory of so many products, whose pictures are on their way. */
	class FShownConfigurator
	{
	public:
		explicit FShownConfigurator(int64 NumProducts)
		{
			Server.Hold();
			UWorld* const World = GEngine->GetGameInstance()->GetWorld();
			Actor.Reset(World->SpawnActor<AHalvexLevelVariantSetsActor>());
			FConfiguratorCatalogue Catalogue;
			TArray<FProjectImage> Images;
			Fill(NumProducts, Catalogue, Images);
			Actor->SetCatalogue(UHalvexConfiguratorDataAsset::CreateFromCatalogue(Catalogue, Images));
			UClass* const Class = LoadObject<UClass>(nullptr, TEXT("/HalvexPro/Configurator/Configurator.Configurator_C"));
			List.Reset(CreateWidget<UHxConfiguratorList>(GEngine->GetGameInstance(), Class));
			List->AddToViewport();
			Frame();
			Actor->GetVariantHandler()->SetCategory(Category);
			ShowSubCategories();
			SubCategory.Reset(CastChecked<UHxConfiguratorListElement>(List->ListDisplay->GetItemAt(0)));
		}

		~FShownConfigurator()
		{
			List->RemoveFromParent();
			List.Reset();
			SubCategory.Reset();
			Actor->SetCatalogue(nullptr);
			Actor->Destroy();
			Actor.Reset();
			CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
			Server.Release();
			GetBenchmarkLoop().RunUntilIdle();
			UHalvexImageSubsystem::Get()->ClearMemoryCache();
		}

		void ShowSubCategories()
		{
			List->SetElementType(ECLET_SubCategory);
			Frame();
		}

		/** What a click on the subcategory does, up to the draw elements. */
		void ShowProducts()
		{
			List->OnConfiguratorElementSelected(SubCategory.Get());
			Frame();
		}

		int32 GetNumItems() const { return List->ListDisplay->GetNumItems(); }

	private:
		void Fill(int64 NumProducts, FConfiguratorCatalogue& OutCatalogue, TArray<FProjectImage>& OutImages) const
		{
			FCatalogueCategory& Kitchen = OutCatalogue.Categories.AddDefaulted_GetRef();
			Kitchen.CategoryId = Category;
			FCatalogueSubCategory& Worktops = Kitchen.SubCategories.AddDefaulted_GetRef();
			Worktops.SubCategoryId = FName(TEXT("Worktops"));
			for (int32 Index = 0; Index < static_cast<int32>(NumProducts); ++Index)
			{
				FHalvexConfigProduct& Product = Worktops.Variants.AddDefaulted_GetRef().Product;
				Product.ProductKey = FName(TEXT("Worktop"), Index + 1);
				Product.Name = FString::Printf(TEXT("Worktop %d"), Index);
				Product.Maker = TEXT("Harbour Works");
				Product.Currency = FName(TEXT("EUR"));
				Product.Price = 10.0 * Index;
				Product.Image = Product.ProductKey;
				FProjectImage& Image = OutImages.AddDefaulted_GetRef();
				Image.ImageId = Product.ProductKey;
				Image.Address = Server.GetUrl("/" + std::to_string(Index) + ".png");
			}
			Worktops.DefaultProduct = Worktops.Variants.Last().Product.ProductKey;
		}

		/** A frame up to its draw elements. */
		static void Frame()
		{
			Host::FWidgetActivity::BeginFrame(Host::FClock::Now(), 0.0f);
			Host::FSlateLoop::Refresh();
			GetBenchmarkLoop().GetWindow()->GetRoot().ClearDamage();
		}

		Host::FLoopbackServer Server;
		const FName Category{ TEXT("Kitchen") };
		TStrongObjectPtr<AHalvexLevelVariantSetsActor> Actor;
		TStrongObjectPtr<UHxConfiguratorList> List;
		TStrongObjectPtr<UHxConfiguratorListElement> SubCategory;
	};

	/** From the subcategories to the products of one, up to the first picture of them; the active one is the last and is scrolled to. */
	void LevelOfProducts(benchmark::State& State)
	{
		FShownConfigurator Shown(State.range(0));
		for (auto _ : State)
		{
			State.PauseTiming();
			Shown.ShowSubCategories();
			CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
			State.ResumeTiming();
			Shown.ShowProducts();
		}
		State.counters["products"] = Shown.GetNumItems();
	}
}

BENCHMARK(LevelOfProducts)->Arg(100)->Arg(1000)->Arg(10000)->Unit(benchmark::kMicrosecond);
