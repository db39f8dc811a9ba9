#include "ProjectSceneTest.h"

#include "Engine/Engine.h"
#include "Engine/GameViewportClient.h"
#include "Filters/UnitAvailabilityFilter.h"
#include "Filters/UnitFilterCollection.h"
#include "Filters/UnitsFilterManager.h"
#include "HalvexProUISettings.h"
#include "Host/SlateLoop.h"
#include "Style/HalvexUIStyleConfiguration.h"
#include "Widgets/Input/SButton.h"
#include "Widgets/Layout/SBox.h"

#include <limits>

using namespace Host;

TEST_F(FProjectSceneTest, EachUnitOfQuaysideHasAVolumeWhereItIs)
{
	const TArray<AUnitVolumeActor*> Units = Manager().GetUnitVolumes();
	ASSERT_EQ(Units.Num(), 262);
	TSet<int32> Volumes;
	for (const AUnitVolumeActor* Unit : Units)
	{
		const int32 Volume = Scene->GetBinding().FindVolume(Unit);
		ASSERT_NE(Volume, INDEX_NONE) << ToStd(Unit->GetUnitData().Name);
		Volumes.Add(Volume);
		const FBox Bounds = Content().GetVolumeBounds(Volume);
		EXPECT_TRUE(Bounds.Min.Equals(Unit->GetVolumeBounds().Min, 0.01) && Bounds.Max.Equals(Unit->GetVolumeBounds().Max, 0.01)) << ToStd(Unit->GetUnitData().Name);
	}
	EXPECT_EQ(Volumes.Num(), Units.Num());
}

TEST_F(FProjectSceneTest, AllUnitsAreInThePictureAtFirst)
{
	for (const AUnitVolumeActor* Unit : Manager().GetUnitVolumes())
	{
		FVector2D Position;
		EXPECT_NE(Scene->GetViewport().Locate(Unit->GetVolumeBounds().Min, Position), ESceneSpot::OutOfView) << ToStd(Unit->GetUnitData().Name);
		EXPECT_NE(Scene->GetViewport().Locate(Unit->GetVolumeBounds().Max, Position), ESceneSpot::OutOfView) << ToStd(Unit->GetUnitData().Name);
	}
}

TEST_F(FProjectSceneTest, AUnitWithoutAVolumeIsAUnitAllTheSame)
{
	FProjectData Project;
	Project.Units = { MakeUnit(TEXT("A"), 0.0), MakeUnit(TEXT("B"), 900.0), MakeUnit(TEXT("C"), 1800.0) };
	Project.Units[1].Volume = FUnitVolumeShape();
	Show(Project);

	AUnitVolumeActor* const Without = Manager().FindUnitVolume(TEXT("B"));
	ASSERT_TRUE(Without);
	EXPECT_EQ(Scene->GetBinding().FindVolume(Without), INDEX_NONE);
	EXPECT_NE(Scene->GetBinding().FindVolume(Manager().FindUnitVolume(TEXT("C"))), INDEX_NONE);

	Manager().SelectUnitVolume(Without, false);
	Manager().SetHighlightedUnitVolume(Without);
	EXPECT_TRUE(Without->IsSelected());
	Manager().SelectUnitVolume(Manager().FindUnitVolume(TEXT("C")), false);
	EXPECT_EQ(GetColour(Manager().FindUnitVolume(TEXT("C"))), GetStyleColour(TEXT("Primary")));
}

TEST_F(FProjectSceneTest, AClickOnAVolumeSelectsItsUnitAndColoursIt)
{
	AUnitVolumeActor* const Unit = FindUnitInSight(EUnitStatus::Sold);
	Driver.SingleClickAt(Locate(Unit));
	EXPECT_EQ(Manager().GetSelectedUnitVolumes(), TArray<AUnitVolumeActor*>{ Unit });
	Driver.MoveTo(Sky);
	EXPECT_EQ(GetColour(Unit), GetStyleColour(TEXT("Primary")));

	AUnitVolumeActor* const Other = FindUnitInSight(EUnitStatus::Sold);
	const FColor OwnColour = GetColour(Other);
	Driver.SingleClickAt(Locate(Other));
	Driver.MoveTo(Sky);
	EXPECT_EQ(Manager().GetSelectedUnitVolumes(), TArray<AUnitVolumeActor*>{ Other });
	EXPECT_EQ(GetColour(Other), GetStyleColour(TEXT("Primary")));
	EXPECT_EQ(GetColour(Unit), OwnColour) << "it is as others of its status again";
}

TEST_F(FProjectSceneTest, AClickBesideAllUnitsClearsTheSelection)
{
	AUnitVolumeActor* const Unit = FindUnitInSight(EUnitStatus::Available);
	const FColor OwnColour = GetColour(Unit);
	FVector2D Quay;
	const FBox& Units = Scene->GetBinding().GetUnitBounds();
	Scene->GetViewport().Locate(FVector(Units.Max.X, Units.Max.Y, Units.Min.Z), Quay);
	FSceneHit Hit;
	ASSERT_TRUE(Scene->GetViewport().Pick(Quay, Hit)) << "the quay is a volume too";

	for (const FVector2D& Beside : { Sky, Quay })
	{
		Manager().SelectUnitVolume(Unit, false);
		Driver.SingleClickAt(Beside);
		EXPECT_EQ(Manager().GetSelectedUnitVolumes().Num(), 0);
		EXPECT_EQ(GetColour(Unit), OwnColour);
	}
}

TEST_F(FProjectSceneTest, TheUnitUnderTheCursorIsHighlighted)
{
	AUnitVolumeActor* const Unit = FindUnitInSight(EUnitStatus::Available);
	const FColor OwnColour = GetColour(Unit);
	Driver.MoveTo(Locate(Unit));
	EXPECT_EQ(Manager().GetHighlightedUnitVolume(), Unit);
	EXPECT_NE(GetColour(Unit), OwnColour);

	Driver.MoveTo(Sky);
	EXPECT_EQ(Manager().GetHighlightedUnitVolume(), nullptr);
	EXPECT_EQ(GetColour(Unit), OwnColour);
}

TEST_F(FProjectSceneTest, SelectionsAndHighlightsFromElsewhereChangeTheirVolumesOnly)
{
	AUnitVolumeActor* const Unit = FindUnitInSight(EUnitStatus::Available);
	AUnitVolumeActor* const Other = FindUnitInSight(EUnitStatus::Available);
	const FColor OwnColour = GetColour(Unit);
	uint64 Revision = Content().GetColourRevision();

	Manager().SelectUnitVolume(Unit, false);
	EXPECT_EQ(GetColour(Unit), GetStyleColour(TEXT("Primary")));
	EXPECT_EQ(Content().GetColourRevision() - Revision, 1u);

	Revision = Content().GetColourRevision();
	Manager().SelectUnitVolume(Other, true);
	EXPECT_EQ(GetColour(Other), GetStyleColour(TEXT("Primary")));
	EXPECT_EQ(Content().GetColourRevision() - Revision, 1u) << "the first one stays as it is";

	Revision = Content().GetColourRevision();
	Manager().SetHighlightedUnitVolume(Other);
	EXPECT_EQ(Content().GetColourRevision() - Revision, 1u);
	Manager().SetHighlightedUnitVolume(nullptr);
	Manager().ClearSelection();
	EXPECT_EQ(Content().GetColourRevision() - Revision, 4u);
	EXPECT_EQ(GetColour(Unit), OwnColour);
	EXPECT_EQ(GetColour(Other), OwnColour);
}

TEST_F(FProjectSceneTest, WhatTheFiltersStopIsAGhost)
{
	AUnitVolumeActor* const Available = FindUnitInSight(EUnitStatus::Available);
	AUnitVolumeActor* const Sold = FindUnitInSight(EUnitStatus::Sold);
	const FColor AvailableColour = GetColour(Available);
	const FColor SoldColour = GetColour(Sold);
	UUnitsFilterManager* const Filters = Manager().GetUnitFilterManager();
	UUnitFilterCollection* const Collection = UUnitFilterCollection::CreateUnitFilterCollection({ UUnitAvailabilityFilter::CreateAvailabilityFilter(false) }, false);
	const FVector2D SoldPlace = Locate(Sold);
	const uint64 Revision = Content().GetColourRevision();

	Filters->RegisterFilterCollection(Collection);
	const int32 Stopped = Filters->GetCurrentFilterResult().TotalNum - Filters->GetCurrentFilterResult().SelectionNum;
	ASSERT_GT(Stopped, 0);
	EXPECT_EQ(Content().GetNumGhosts(), Stopped);
	EXPECT_EQ(Content().GetColourRevision() - Revision, uint64(Stopped)) << "the others were left alone";
	EXPECT_LT(GetColour(Sold).A, 255);
	EXPECT_EQ(GetColour(Available), AvailableColour);

	Driver.SingleClickAt(SoldPlace);
	EXPECT_FALSE(Sold->IsSelected()) << "ghosts cannot be clicked";

	Filters->UnregisterFilterCollection(Collection);
	Manager().ClearSelection();
	Driver.MoveTo(Sky);
	EXPECT_EQ(Content().GetNumGhosts(), 0);
	EXPECT_EQ(GetColour(Sold), SoldColour);
}

TEST_F(FProjectSceneTest, AnotherStatusIsAnotherColour)
{
	AUnitVolumeActor* const Unit = FindUnitInSight(EUnitStatus::Available);
	AUnitVolumeActor* const Sold = FindUnitInSight(EUnitStatus::Sold);
	FUnitData Data = Unit->GetUnitData();
	Data.Status = EUnitStatus::Sold;
	const uint64 Revision = Content().GetColourRevision();

	Manager().UpdateUnitData({ Data });

	EXPECT_EQ(GetColour(Unit), GetColour(Sold));
	EXPECT_EQ(Content().GetColourRevision() - Revision, 1u);
}

TEST_F(FProjectSceneTest, OtherUnitsAreOtherVolumes)
{
	Manager().SelectUnitVolume(FindUnitInSight(EUnitStatus::Available), false);
	Manager().SpawnUnits({ MakeUnit(TEXT("A"), 0.0), MakeUnit(TEXT("B"), 900.0) });
	Loop.RunUntilIdle();

	EXPECT_EQ(Scene->GetBinding().GetUnitBounds(), FBox(FVector(0.0, 0.0, 0.0), FVector(1700.0, 1000.0, 300.0)));
	AUnitVolumeActor* const Unit = Manager().FindUnitVolume(TEXT("B"));
	Driver.SingleClickAt(Locate(Unit));
	EXPECT_TRUE(Unit->IsSelected());

	Manager().SpawnUnits({});
	Loop.RunUntilIdle();
	EXPECT_EQ(Content().Num(), 0) << "there is no quay without units";
}

TEST_F(FProjectSceneTest, NothingIsDrawnWhenNothingChanged)
{
	AUnitVolumeActor* const Unit = FindUnitInSight(EUnitStatus::Available);
	Manager().SelectUnitVolume(Unit, false);
	Loop.RunUntilIdle();
	const int64 Draws = CountDraws();
	ASSERT_GT(Draws, 0);

	Manager().SelectUnitVolume(Unit, false);
	Scene->AnnounceUnits();
	Scene->RefreshStyle();
	Manager().GetUnitFilterManager()->RefreshFilterResult();
	Loop.RunUntilIdle();
	EXPECT_EQ(CountDraws(), Draws);
	EXPECT_EQ(FSlateLoop::GetNextWakeTime(), std::numeric_limits<double>::infinity());

	Manager().ClearSelection();
	Loop.RunUntilIdle();
	EXPECT_EQ(CountDraws(), Draws + 1);
}

TEST_F(FProjectSceneTest, TheCameraTurnsToASelectedUnitOnlyWhenThatIsOutOfView)
{
	AUnitVolumeActor* const Unit = FindUnitInSight(EUnitStatus::Available);
	const FSceneCamera::FPose Before = Scene->GetViewport().GetCamera().GetPose();
	Manager().SelectUnitVolume(Unit, false);
	Loop.RunUntilIdle();
	EXPECT_TRUE(Scene->GetViewport().GetCamera().GetPose() == Before);

	Manager().ClearSelection();
	const FBox& Units = Scene->GetBinding().GetUnitBounds();
	const bool bLeft = Unit->GetVolumeBounds().GetCenter().X < Units.GetCenter().X;
	const FVector FarSide(bLeft ? Units.Max.X : Units.Min.X, Units.Min.Y, Units.Min.Z);
	Scene->GetViewport().MoveCamera([&](FSceneCamera& Camera)
	{
		Camera.Focus(FarSide, 500.0, 1.0);
		Camera.Finish();
	});
	Loop.RunUntilIdle();
	FVector2D Position;
	ASSERT_EQ(Scene->GetViewport().Locate(Unit->GetVolumeBounds().GetCenter(), Position), ESceneSpot::OutOfView);

	Manager().SelectUnitVolume(Unit, false);
	EXPECT_TRUE(Scene->GetViewport().GetCamera().IsMoving()) << "it eases there";
	Loop.RunUntilIdle();
	EXPECT_NE(Scene->GetViewport().Locate(Unit->GetVolumeBounds().GetCenter(), Position), ESceneSpot::OutOfView);
}

TEST_F(FProjectSceneTest, ColoursFollowTheStyle)
{
	AUnitVolumeActor* const Unit = FindUnitInSight(EUnitStatus::Available);
	AUnitVolumeActor* const Reserved = FindUnitInSight(EUnitStatus::Reserved);
	const FColor ReservedBefore = GetColour(Reserved);
	Manager().SelectUnitVolume(Unit, false);
	UHalvexUIStyleConfiguration* const Style = GetMutableDefault<UHalvexProUISettings>()->ProjectUIConfiguration.LoadSynchronous();
	ASSERT_TRUE(Style);
	const TMap<FName, FColorKeyValues> StyleColours = Style->ColorStyleMap;
	const TMap<FName, FLinearColor> SimpleColours = Style->ColorSimpleMap;
	Style->ColorStyleMap[TEXT("Primary")].RegularColor = FLinearColor(1.0f, 0.0f, 0.0f);
	Style->ColorSimpleMap[TEXT("Warning")] = FLinearColor(0.0f, 0.0f, 1.0f);

	Scene->RefreshStyle();
	EXPECT_EQ(GetColour(Unit), FColor(255, 0, 0));
	EXPECT_NE(GetColour(Reserved), ReservedBefore);

	Style->ColorStyleMap = StyleColours;
	Style->ColorSimpleMap = SimpleColours;
	Scene->RefreshStyle();
	EXPECT_EQ(GetColour(Unit), GetStyleColour(TEXT("Primary")));
	EXPECT_EQ(GetColour(Reserved), ReservedBefore);
}

TEST_F(FProjectSceneTest, InputOverAPanelNeverReachesTheUnits)
{
	AUnitVolumeActor* const Unit = FindUnitInSight(EUnitStatus::Available);
	const FVector2D Place = Locate(Unit);
	GEngine->GameViewport->AddViewportWidgetContent(SNew(SButton));
	Loop.RunUntilIdle();

	Driver.SingleClickAt(Place);
	EXPECT_EQ(Manager().GetSelectedUnitVolumes().Num(), 0);
	EXPECT_EQ(Manager().GetHighlightedUnitVolume(), nullptr);

	Manager().SelectUnitVolume(Unit, false);
	Driver.SingleClickAt(Sky);
	EXPECT_TRUE(Unit->IsSelected()) << "a click on the panel is none beside the units";
}

TEST_F(FProjectSceneTest, ADoubleClickOnTheQuayShowsAllUnits)
{
	const FBox& Units = Scene->GetBinding().GetUnitBounds();
	Scene->GetViewport().MoveCamera([&](FSceneCamera& Camera) { Camera.Pan(FVector2D(-100.0, -50.0), 600.0); });
	Loop.RunUntilIdle();
	ASSERT_FALSE(Scene->GetViewport().GetCamera().GetPose().Target.Equals(Units.GetCenter(), 1.0));
	FVector2D Quay;
	ASSERT_NE(Scene->GetViewport().Locate(FVector(Units.Max.X, Units.Max.Y, Units.Min.Z), Quay), ESceneSpot::OutOfView);

	Driver.DoubleClickAt(Quay);
	Loop.RunUntilIdle();
	EXPECT_TRUE(Scene->GetViewport().GetCamera().GetPose().Target.Equals(Units.GetCenter(), 1.0));
}

TEST_F(FProjectSceneTest, UnitsAreShownBesideWhatCoversTheSides)
{
	GEngine->GameViewport->AddViewportWidgetContent(SNew(SBox)
		.HAlign(HAlign_Left)
		.Visibility(EVisibility::SelfHitTestInvisible)
		[
			SNew(SButton)
			[
				SNew(SBox).WidthOverride(350.0f)
			]
		]);
	Loop.RunUntilIdle();
	Scene->FrameBesideScreens();
	EXPECT_FALSE(Scene->GetViewport().GetCamera().IsMoving());
	Loop.RunUntilIdle();

	for (const AUnitVolumeActor* Unit : Manager().GetUnitVolumes())
	{
		EXPECT_GT(Locate(Unit).X, 350.0) << ToStd(Unit->GetUnitData().Name);
		EXPECT_LT(Locate(Unit).X, 800.0) << ToStd(Unit->GetUnitData().Name);
	}
}

/** A panel that covers the right side of the window. */
static TSharedRef<SWidget> MakeRightPanel()
{
	return SNew(SBox)
		.HAlign(HAlign_Right)
		.Visibility(EVisibility::SelfHitTestInvisible)
		[
			SNew(SButton)
			[
				SNew(SBox).WidthOverride(350.0f)
			]
		];
}

TEST_F(FProjectSceneTest, TheCameraFollowsPanelsThatComeAndGo)
{
	Scene->FrameBesideScreens();
	const FSceneCamera::FPose Whole = Scene->GetViewport().GetCamera().GetGoal();
	const TSharedRef<SWidget> Panel = MakeRightPanel();
	GEngine->GameViewport->AddViewportWidgetContent(Panel);
	Manager().AnnouncePanelChange();
	Loop.RunUntilIdle();
	for (const AUnitVolumeActor* Unit : Manager().GetUnitVolumes())
	{
		EXPECT_LT(Locate(Unit).X, 450.0) << ToStd(Unit->GetUnitData().Name);
	}

	GEngine->GameViewport->RemoveViewportWidgetContent(Panel);
	Manager().AnnouncePanelChange();
	Loop.RunUntilIdle();
	EXPECT_TRUE(Scene->GetViewport().GetCamera().GetGoal() == Whole);
}

TEST_F(FProjectSceneTest, PanelsLeaveACameraAloneThatSomeoneMoved)
{
	Scene->FrameBesideScreens();
	Scene->GetViewport().MoveCamera([](FSceneCamera& Camera) { Camera.Orbit(20.0, 0.0); });
	Loop.RunUntilIdle();
	const FSceneCamera::FPose Moved = Scene->GetViewport().GetCamera().GetGoal();
	GEngine->GameViewport->AddViewportWidgetContent(MakeRightPanel());
	Manager().AnnouncePanelChange();
	Loop.RunUntilIdle();
	EXPECT_TRUE(Scene->GetViewport().GetCamera().GetGoal() == Moved);
	Scene->GetViewport().FrameAll();
	Loop.RunUntilIdle();
	for (const AUnitVolumeActor* Unit : Manager().GetUnitVolumes())
	{
		EXPECT_LT(Locate(Unit).X, 450.0) << "but when all is framed again, the panel counts";
	}
}

TEST_F(FProjectSceneTest, AProjectThatCannotBeReadIsOneLine)
{
	FProjectData Project;
	const FExpectedLog Line(TEXT("/nonexistent/project.json: the file cannot be read"));
	EXPECT_FALSE(FProjectScene::Load(TEXT("/nonexistent"), Project));
}
