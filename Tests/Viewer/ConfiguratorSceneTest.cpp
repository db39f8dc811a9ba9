#include "ProjectSceneTest.h"

#include "Configurator/HalvexLevelVariantSetsActor.h"
#include "Configurator/HalvexVariantHandler.h"
#include "Engine/Engine.h"
#include "Engine/GameInstance.h"
#include "Engine/GameViewportClient.h"
#include "Engine/World.h"
#include "HalvexSDKEngineSubsystem.h"
#include "Host/ConfiguratorSceneBinding.h"
#include "Host/SlateLoop.h"
#include "Kismet/GameplayStatics.h"
#include "Service/ConfiguratorWrapper.h"
#include "Service/HalvexProjectRequestManager.h"
#include "Service/ProjectWrapper.h"
#include "Service/UnitGroupWrapper.h"
#include "Widgets/Input/SButton.h"
#include "Widgets/Layout/SBox.h"

using namespace Host;

namespace
{
	class FConfiguratorSceneTest : public FProjectSceneTest
	{
	protected:
		UHalvexProjectRequestManager& Requests() { return *UHalvexSDKEngineSubsystem::Get()->GetUserRequestManager(); }
		UProjectWrapper& Session() { return *Requests().GetProjectWrapper(); }
		UConfiguratorSceneBinding& Configurator() { return Scene->GetConfigurator(); }

		AHalvexLevelVariantSetsActor* FindVariantSets()
		{
			return Cast<AHalvexLevelVariantSetsActor>(UGameplayStatics::GetActorOfClass(GEngine->GetGameInstance()->GetWorld(), AHalvexLevelVariantSetsActor::StaticClass()));
		}

		UHalvexVariantHandler& Handler() { return *FindVariantSets()->GetVariantHandler(); }

		void Select(const TCHAR* UnitId) { Manager().SelectUnitVolume(Manager().FindUnitVolume(UnitId), false); }

		/** Goes into the rooms of a unit. */
		void Configure(const TCHAR* UnitId)
		{
			Select(UnitId);
			ASSERT_TRUE(Session().OpenConfigurator());
			Loop.RunUntilIdle();
		}

		FName GetTarget()
		{
			return Session().HasConfiguratorTarget() ? Session().GetUnitGroupTarget()->GetConfiguratorWrapper()->GetConfiguratorUnitTarget().UnitId : FName();
		}

		const FSceneContent& Rooms() { return *Configurator().GetInterior()->GetContent(); }

		/** The colour that all parts of a surface have. */
		FColor GetSurfaceColour(const TCHAR* Surface)
		{
			const TArray<int32> Volumes = Configurator().GetInterior()->FindVolumes(Surface);
			EXPECT_FALSE(Volumes.IsEmpty());
			const FColor First = Rooms().GetColours()[Volumes[0]];
			for (const int32 Volume : Volumes)
			{
				EXPECT_EQ(Rooms().GetColours()[Volume], First);
			}
			return First;
		}

		int64 CountRoomDraws() { return Configurator().GetViewport()->GetPicture().GetRenderer()->GetCounters().Draws; }

		/** Of these flats the first has two rooms, the second three. */
		const TCHAR* const Small = TEXT("HH-001");
		const TCHAR* const Large = TEXT("HH-002");
	};

	const FColor Chalk(0xEC, 0xEA, 0xE3);
	const FColor Sage(0x93, 0xA4, 0x8D);
}

TEST_F(FConfiguratorSceneTest, TheProjectIsTheUsersWhileItIsShown)
{
	EXPECT_EQ(Requests().GetStateProcess(), EPMS_Loaded);
	EXPECT_EQ(ToStd(Session().GetProject().Name), "Quayside");
	EXPECT_TRUE(FindVariantSets());
	Scene.Reset();
	EXPECT_EQ(Requests().GetStateProcess(), EPMS_Idle);
	EXPECT_FALSE(FindVariantSets());
}

TEST_F(FConfiguratorSceneTest, TheUnitSelectedLastIsTheTarget)
{
	Select(Small);
	EXPECT_EQ(ToStd(GetTarget()), "HH-001");
	Manager().SelectUnitVolume(Manager().FindUnitVolume(TEXT("LT-401")), true);
	EXPECT_EQ(ToStd(GetTarget()), "LT-401");
	EXPECT_EQ(ToStd(Session().GetUnitGroupTarget()->GetGroup().GroupId), "lantern");
	Manager().ClearSelection();
	EXPECT_TRUE(GetTarget().IsNone());
}

TEST_F(FConfiguratorSceneTest, RoomsTakeThePlaceOfTheUnitsWhileTheConfiguratorIsOpen)
{
	EXPECT_FALSE(Configurator().GetViewport());
	Configure(Small);
	ASSERT_TRUE(Configurator().GetViewport());
	EXPECT_FALSE(Scene->GetViewport().GetVisibility().IsVisible());
	EXPECT_GT(Configurator().GetViewport()->GetCachedGeometry().GetLocalSize().X, 0.0f);
	EXPECT_GT(CountRoomDraws(), 0);

	Session().CloseConfigurator();
	Loop.RunUntilIdle();
	EXPECT_FALSE(Configurator().GetViewport());
	EXPECT_TRUE(Scene->GetViewport().GetVisibility().IsVisible());
	EXPECT_EQ(ToStd(GetTarget()), "HH-001");
}

TEST_F(FConfiguratorSceneTest, UnitsWithoutRoomsOpenNothing)
{
	const TArray<AUnitVolumeActor*> UnitVolumes = Manager().GetUnitVolumes();
	AUnitVolumeActor* const* const Lobby = UnitVolumes.FindByPredicate([](const AUnitVolumeActor* Unit) { return Unit->GetUnitData().Interior.IsNone(); });
	ASSERT_TRUE(Lobby);
	Manager().SelectUnitVolume(*Lobby, false);
	EXPECT_FALSE(Session().OpenConfigurator());
	EXPECT_FALSE(Configurator().GetViewport());
}

TEST_F(FConfiguratorSceneTest, ProjectsWithoutACatalogueHaveUnitsOnly)
{
	FProjectData Project;
	Project.Units = { MakeUnit(TEXT("A"), 0.0) };
	Show(Project);
	EXPECT_FALSE(FindVariantSets());
	Select(TEXT("A"));
	EXPECT_EQ(ToStd(GetTarget()), "A");
	EXPECT_FALSE(Session().OpenConfigurator());
}

TEST_F(FConfiguratorSceneTest, RoomsLookAsTheActiveVariantsSay)
{
	Configure(Small);
	EXPECT_EQ(GetSurfaceColour(TEXT("KitchenFronts")), Chalk);
	EXPECT_TRUE(Handler().SetVariant(TEXT("kitchen-fronts-sage"), true));
	EXPECT_EQ(GetSurfaceColour(TEXT("KitchenFronts")), Sage);
	EXPECT_EQ(GetSurfaceColour(TEXT("KitchenHandles")), FColor(0xB0, 0x8D, 0x57));
	EXPECT_TRUE(Handler().TakeBackChange(TEXT("Kitchen.Fronts")));
	EXPECT_EQ(GetSurfaceColour(TEXT("KitchenFronts")), Chalk);
}

TEST_F(FConfiguratorSceneTest, OnlyWhatChangedIsColouredAndDrawnOnce)
{
	Configure(Small);
	const uint64 Colours = Rooms().GetColourRevision();
	const uint64 Shapes = Rooms().GetShapeRevision();
	const int64 Draws = CountRoomDraws();
	Handler().SetVariant(TEXT("living-walls-oat"), true);
	Loop.RunUntilIdle();
	EXPECT_EQ(Rooms().GetColourRevision() - Colours, static_cast<uint64>(Configurator().GetInterior()->FindVolumes(TEXT("LivingWalls")).Num()));
	EXPECT_EQ(Rooms().GetShapeRevision(), Shapes);
	EXPECT_EQ(CountRoomDraws(), Draws + 1);

	Handler().SetVariant(TEXT("living-walls-oat"), true);
	Loop.RunUntilIdle();
	EXPECT_EQ(CountRoomDraws(), Draws + 1);
}

TEST_F(FConfiguratorSceneTest, WhatWasChosenBeforeShowsWhenRoomsOpen)
{
	Select(Small);
	Handler().SetVariant(TEXT("kitchen-fronts-sage"), true);
	Session().OpenConfigurator();
	EXPECT_EQ(GetSurfaceColour(TEXT("KitchenFronts")), Sage);
}

TEST_F(FConfiguratorSceneTest, EachUnitKeepsWhatWasChosenForIt)
{
	Configure(Small);
	Handler().SetVariant(TEXT("kitchen-fronts-sage"), true);
	const int32 NumParts = Rooms().Num();
	Session().SetConfiguratorTarget(Large);
	EXPECT_NE(Rooms().Num(), NumParts);
	EXPECT_EQ(GetSurfaceColour(TEXT("KitchenFronts")), Chalk);
	EXPECT_TRUE(Handler().GetConfigtorChangeList().IsEmpty());
	Session().SetConfiguratorTarget(Small);
	EXPECT_EQ(Rooms().Num(), NumParts);
	EXPECT_EQ(GetSurfaceColour(TEXT("KitchenFronts")), Sage);
	EXPECT_EQ(Handler().GetConfigtorChangeList().Num(), 1);
}

TEST_F(FConfiguratorSceneTest, RoomsEaseToWhereTheyAreSeenBesideWhatCoversThem)
{
	const TSharedRef<SWidget> Cover = SNew(SBox).HAlign(HAlign_Left)[SNew(SBox).WidthOverride(350.0f)[SNew(SButton)]];
	Cover->SetVisibility(EVisibility::SelfHitTestInvisible);
	GEngine->GameViewport->AddViewportWidgetContent(Cover, 0);
	Configure(Small);
	Scene->FrameBesideScreens();
	SSceneViewport& Viewport = *Configurator().GetViewport();
	EXPECT_TRUE(Viewport.GetCamera().IsMoving());
	Loop.RunUntilIdle();
	EXPECT_FALSE(Viewport.GetCamera().IsMoving());
	const FBox& Bounds = Configurator().GetInterior()->GetBounds();
	for (int32 Corner = 0; Corner < 8; ++Corner)
	{
		FVector2D Position = FVector2D::ZeroVector;
		Viewport.Locate(FVector(Corner & 1 ? Bounds.Max.X : Bounds.Min.X, Corner & 2 ? Bounds.Max.Y : Bounds.Min.Y, Corner & 4 ? Bounds.Max.Z : Bounds.Min.Z), Position);
		EXPECT_GT(Position.X, 350.0);
		EXPECT_LT(Position.X, 800.0);
	}
	GEngine->GameViewport->RemoveViewportWidgetContent(Cover);
}
