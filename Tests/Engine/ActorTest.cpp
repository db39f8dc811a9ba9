#include "EngineTest.h"

#include "Engine/Engine.h"
#include "Engine/GameInstance.h"
#include "Engine/World.h"
#include "EngineUtils.h"
#include "GameFramework/PlayerController.h"
#include "Kismet/GameplayStatics.h"
#include "UObject/GarbageCollection.h"
#include "UObject/StrongObjectPtr.h"
#include "WatchedActor.h"

namespace
{
	using Host::ToStd;

	class FActorTest : public testing::Test
	{
	protected:
		FActorTest()
			: World(NewObject<UWorld>())
		{
			AWatchedActor::Story.Reset();
		}

		template <typename T>
		TArray<T*> Collect()
		{
			TArray<T*> Found;
			for (TActorIterator<T> Actor(World.Get()); Actor; ++Actor)
			{
				Found.Add(*Actor);
			}
			return Found;
		}

		TStrongObjectPtr<UWorld> World;
	};

	TEST_F(FActorTest, SpawnedActorsStandInTheirWorldWhereTheyWereSpawned)
	{
		const FTransform Place(FRotator(0.0, 90.0, 0.0), FVector(100.0, 200.0, 300.0));
		AWatchedActor* const Actor = World->SpawnActor<AWatchedActor>(AWatchedActor::StaticClass(), Place);
		ASSERT_NE(Actor, nullptr);
		EXPECT_EQ(Actor->GetWorld(), World.Get());
		EXPECT_EQ(Actor->GetActorLocation(), FVector(100.0, 200.0, 300.0));
		EXPECT_NEAR(Actor->GetActorRotation().Yaw, 90.0, 1e-9);
		EXPECT_TRUE(Actor->SetActorLocation(FVector(1.0, 2.0, 3.0)));
		EXPECT_EQ(Actor->GetRootComponent()->GetComponentLocation(), FVector(1.0, 2.0, 3.0));
		EXPECT_EQ(Actor->GetRootComponent()->GetOwner(), Actor);
	}

	TEST_F(FActorTest, ActorWithoutRootHasNoPlace)
	{
		APlacelessActor* const Actor = World->SpawnActor<APlacelessActor>(APlacelessActor::StaticClass(), FTransform(FVector(5.0, 0.0, 0.0)));
		EXPECT_EQ(Actor->GetActorLocation(), FVector::ZeroVector);
		EXPECT_FALSE(Actor->SetActorLocation(FVector(1.0, 0.0, 0.0)));
		AWatchedActor* const Other = World->SpawnActor<AWatchedActor>();
		EXPECT_FALSE(Actor->SetRootComponent(Other->GetRootComponent()));
	}

	TEST_F(FActorTest, ActorsBeginToPlayWithTheirWorldOrWhenTheyJoinIt)
	{
		World->SpawnActor<AWatchedActor>()->Label = TEXT("first");
		EXPECT_EQ(ToStd(AWatchedActor::Story), "");
		World->BeginPlay();
		World->BeginPlay();
		EXPECT_EQ(ToStd(AWatchedActor::Story), "begin first ");
		AWatchedActor* const Late = World->SpawnActor<AWatchedActor>();
		EXPECT_TRUE(Late->HasActorBegunPlay());
	}

	TEST_F(FActorTest, DeferredActorBeginsWhenItsSpawningIsFinished)
	{
		World->BeginPlay();
		const FTransform Place(FVector(7.0, 0.0, 0.0));
		AWatchedActor* const Actor = World->SpawnActorDeferred<AWatchedActor>(AWatchedActor::StaticClass(), Place);
		EXPECT_FALSE(Actor->HasActorBegunPlay());
		Actor->Label = TEXT("late");
		Actor->FinishSpawning(Place);
		Actor->FinishSpawning(FTransform::Identity);
		EXPECT_EQ(ToStd(AWatchedActor::Story), "begin late ");
		EXPECT_EQ(Actor->GetActorLocation(), FVector(7.0, 0.0, 0.0));
	}

	TEST_F(FActorTest, DestroyedActorEndsItsPlayAndLeavesTheWorld)
	{
		World->BeginPlay();
		AWatchedActor* const Actor = World->SpawnActor<AWatchedActor>();
		Actor->Label = TEXT("one");
		AWatchedActor::Story.Reset();
		EXPECT_TRUE(Actor->Destroy());
		EXPECT_EQ(ToStd(AWatchedActor::Story), "destroyed one end one 0 ");
		EXPECT_TRUE(Actor->IsActorBeingDestroyed());
		EXPECT_FALSE(IsValid(Actor));
		EXPECT_FALSE(Actor->Destroy());
		EXPECT_TRUE(Collect<AActor>().IsEmpty());
	}

	TEST_F(FActorTest, ActorThatNeverPlayedIsToldOfItsEndAsWell)
	{
		AWatchedActor* const Actor = World->SpawnActor<AWatchedActor>();
		Actor->Label = TEXT("one");
		EXPECT_TRUE(Actor->Destroy());
		EXPECT_EQ(ToStd(AWatchedActor::Story), "destroyed one ");
	}

	TEST_F(FActorTest, EndOfTheWorldsPlayEndsThatOfItsActors)
	{
		World->BeginPlay();
		World->SpawnActor<AWatchedActor>()->Label = TEXT("one");
		AWatchedActor::Story.Reset();
		World->EndPlay(EEndPlayReason::Quit);
		World->EndPlay(EEndPlayReason::Quit);
		EXPECT_EQ(ToStd(AWatchedActor::Story), "end one 4 ");
	}

	TEST_F(FActorTest, WorldKeepsItsActorsAliveUntilTheyAreDestroyed)
	{
		TWeakObjectPtr<AWatchedActor> Kept = World->SpawnActor<AWatchedActor>();
		TWeakObjectPtr<AWatchedActor> Gone = World->SpawnActor<AWatchedActor>();
		TWeakObjectPtr<AWatchedActor> Dead = World->SpawnActor<AWatchedActor>();
		Gone->Destroy();
		Dead->MarkAsGarbage();
		CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
		EXPECT_TRUE(Kept.IsValid());
		EXPECT_FALSE(Gone.IsValid(true));
		EXPECT_EQ(Collect<AWatchedActor>().Num(), 1);
	}

	TEST_F(FActorTest, IteratorVisitsTheClassAndThoseDerivedFromIt)
	{
		AWatchedActor* const First = World->SpawnActor<AWatchedActor>();
		World->SpawnActor<APlacelessActor>();
		ADerivedWatchedActor* const Derived = World->SpawnActor<ADerivedWatchedActor>();
		AWatchedActor* const Second = World->SpawnActor<AWatchedActor>();
		const TArray<AWatchedActor*> Found = Collect<AWatchedActor>();
		EXPECT_EQ(Found.Num(), 3);
		EXPECT_TRUE(Found.Contains(Derived));
		EXPECT_LT(Found.Find(First), Found.Find(Second));
		EXPECT_EQ(Collect<AActor>().Num(), 4);
		EXPECT_FALSE(bool(TActorIterator<AActor>(nullptr)));
	}

	TEST_F(FActorTest, IteratorPassesOverWhatIsDestroyedOnTheWay)
	{
		World->SpawnActor<AWatchedActor>();
		AWatchedActor* const Second = World->SpawnActor<AWatchedActor>();
		int32 Visits = 0;
		for (TActorIterator<AWatchedActor> Actor(World.Get()); Actor; ++Actor)
		{
			++Visits;
			Second->Destroy();
			World->SpawnActor<AWatchedActor>();
		}
		EXPECT_EQ(Visits, 1);
	}

	TEST_F(FActorTest, GameplayStaticsFindsActorsOfTheContextsWorld)
	{
		EXPECT_EQ(UGameplayStatics::GetActorOfClass(World.Get(), AWatchedActor::StaticClass()), nullptr);
		ADerivedWatchedActor* const Derived = World->SpawnActor<ADerivedWatchedActor>();
		EXPECT_EQ(UGameplayStatics::GetActorOfClass(World.Get(), AWatchedActor::StaticClass()), Derived);
		EXPECT_EQ(UGameplayStatics::GetActorOfClass(Derived, ADerivedWatchedActor::StaticClass()), Derived);
		EXPECT_EQ(UGameplayStatics::GetActorOfClass(nullptr, AWatchedActor::StaticClass()), nullptr);
		EXPECT_EQ(UGameplayStatics::GetActorOfClass(World.Get(), nullptr), nullptr);
		EXPECT_EQ(UGameplayStatics::GetActorOfClass(World.Get(), APlacelessActor::StaticClass()), nullptr);

		World->SpawnActor<AWatchedActor>();
		TArray<AActor*> Found = { nullptr };
		UGameplayStatics::GetAllActorsOfClass(World.Get(), AWatchedActor::StaticClass(), Found);
		EXPECT_EQ(Found.Num(), 2);
		UGameplayStatics::GetAllActorsOfClass(nullptr, AWatchedActor::StaticClass(), Found);
		EXPECT_TRUE(Found.IsEmpty());
	}

	TEST_F(FActorTest, AbstractClassCannotBeSpawned)
	{
		const Host::FExpectedLog Refused(TEXT("SpawnActor: AbstractActor is no class that actors can be made of"));
		EXPECT_EQ(World->SpawnActor<AActor>(AAbstractActor::StaticClass()), nullptr);
	}

	TEST_F(FActorTest, GamePlaysInItsWorldWithTheControllerInIt)
	{
		UWorld* const Game = GEngine->GetGameInstance()->GetWorld();
		EXPECT_TRUE(Game->HasBegunPlay());
		EXPECT_EQ(UGameplayStatics::GetActorOfClass(Game, APlayerController::StaticClass()), Game->GetFirstPlayerController());
	}
}
