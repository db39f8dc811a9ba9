#include "ConfiguratorTest.h"

#include "Configurator/HalvexLevelVariantSetsActor.h"
#include "Engine/World.h"

namespace
{
	class FLevelVariantSetsActorTest : public FConfiguratorTest
	{
	protected:
		FLevelVariantSetsActorTest() : World(NewObject<UWorld>()) { World->BeginPlay(); }

		TStrongObjectPtr<UWorld> World;
	};

	TEST_F(FLevelVariantSetsActorTest, HandlerIsMadeWithTheFirstCatalogueAndStays)
	{
		AHalvexLevelVariantSetsActor* const Actor = World->SpawnActor<AHalvexLevelVariantSetsActor>();
		EXPECT_EQ(Actor->GetVariantHandler(), nullptr);
		Actor->SetCatalogue(nullptr);
		EXPECT_EQ(Actor->GetVariantHandler(), nullptr);
		Actor->SetCatalogue(Asset.Get());
		UHalvexVariantHandler* const Made = Actor->GetVariantHandler();
		ASSERT_TRUE(Made);
		EXPECT_EQ(Made->GetVariantConfigurator(), Asset.Get());
		Actor->SetCatalogue(nullptr);
		EXPECT_EQ(Actor->GetVariantHandler(), Made);
		EXPECT_EQ(Made->GetVariantConfigurator(), nullptr);
	}

	TEST_F(FLevelVariantSetsActorTest, LevelMayBeginWithACatalogue)
	{
		AHalvexLevelVariantSetsActor* const Actor = World->SpawnActorDeferred<AHalvexLevelVariantSetsActor>(AHalvexLevelVariantSetsActor::StaticClass(), FTransform::Identity);
		Actor->StartCatalogue = Asset.Get();
		Actor->FinishSpawning(FTransform::Identity);
		ASSERT_TRUE(Actor->GetVariantHandler());
		EXPECT_EQ(Join(Actor->GetVariantHandler()->GetAllCategoryValues()), "Kitchen Bath");
	}
}
