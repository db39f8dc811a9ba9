#include "ProjectSceneTest.h"

#include "Blueprint/UserWidget.h"
#include "Components/ListView.h"
#include "Engine/Engine.h"
#include "Engine/GameInstance.h"
#include "HalvexProUISettings.h"
#include "Host/SceneRayCaster.h"
#include "Misc/FileHelper.h"
#include "Misc/Paths.h"
#include "Style/HalvexUIStyleConfiguration.h"
#include "UserWidget/Exteriors/HxExteriorUnitListObject.h"
#include "Widgets/SWindow.h"

using namespace Host;

namespace
{
	/** The scene of a project with the list of its units over it, as the viewer shows them. */
	class FProjectListTest : public FProjectSceneTest
	{
	protected:
		virtual void SetUp() override
		{
			Loop.GetWindow()->Resize(FVector2D(1280.0, 800.0));
			FProjectSceneTest::SetUp();
			ShowList();
		}

		virtual void TearDown() override
		{
			List.Reset();
			FProjectSceneTest::TearDown();
			Loop.GetWindow()->Resize(FVector2D(800.0, 600.0));
		}

		void ShowList()
		{
			UClass* const Class = LoadObject<UClass>(nullptr, TEXT("/HalvexPro/Screens/Units.Units_C"));
			List.Reset(CreateWidget<UUserWidget>(GEngine->GetGameInstance(), Class));
			List->AddToViewport();
			Scene->AnnounceUnits();
			Loop.RunUntilIdle();
			Scene->FrameBesideScreens();
			Loop.RunUntilIdle();
		}

		void ShowRooms()
		{
			List->RemoveFromParent();
			FProjectData Rooms;
			ASSERT_TRUE(FProjectScene::Load(TEXT(HALVEX_SOURCE_DIR "/Tests/Data/duplex-rooms.csv"), Rooms));
			ASSERT_EQ(Rooms.Units.Num(), 21);
			Show(Rooms);
			ShowList();
		}

		UListView& GetList() { return *CastChecked<UListView>(Driver.Find(TEXT("ListViewContainer"))); }

		AUnitVolumeActor* GetUnitAt(int32 Row) { return CastChecked<UHxExteriorUnitListObject>(GetList().GetItemAt(Row))->UnitVolumeActorRef; }

		int32 FindRow(const AUnitVolumeActor* Unit)
		{
			for (int32 Row = 0; Row < GetList().GetNumItems(); ++Row)
			{
				if (GetUnitAt(Row) == Unit)
				{
					return Row;
				}
			}
			return INDEX_NONE;
		}

		/** The selected unit of the list; null for none. */
		AUnitVolumeActor* GetSelectedInList()
		{
			const UHxExteriorUnitListObject* const Item = GetList().GetSelectedItem<UHxExteriorUnitListObject>();
			return Item ? Item->UnitVolumeActorRef : nullptr;
		}

		bool IsRowInView(const AUnitVolumeActor* Unit)
		{
			const UUserWidget* const Row = GetList().GetEntryWidgetFromItem(GetList().GetItemAt(FindRow(Unit)));
			const FSlateRect View = GetList().GetCachedGeometry().GetRenderBoundingRect();
			return Row && FSlateRect::DoRectanglesIntersect(Row->GetCachedGeometry().GetRenderBoundingRect(), View);
		}

		/** A unit whose middle is in front, beside the list, from so far on in the list. */
		AUnitVolumeActor* FindClickable(int32 FirstRow)
		{
			for (int32 Row = FirstRow; Row < GetList().GetNumItems(); ++Row)
			{
				AUnitVolumeActor* const Unit = GetUnitAt(Row);
				FSceneHit Hit;
				const FVector2D Place = Locate(Unit);
				if (!Found.Contains(Unit) && Place.X > 420.0 && Scene->GetViewport().Pick(Place, Hit) && Hit.Volume == Scene->GetBinding().FindVolume(Unit))
				{
					Found.Add(Unit);
					return Unit;
				}
			}
			ADD_FAILURE() << "no unit can be clicked";
			return nullptr;
		}

		void ClickUnit(const AUnitVolumeActor* Unit)
		{
			Driver.SingleClickAt(Locate(Unit));
			Loop.RunUntilIdle();
		}

		/** Names of the selected units in the order of selection. */
		std::string GetSelectedNames()
		{
			std::string Names;
			for (const AUnitVolumeActor* Unit : Manager().GetSelectedUnitVolumes())
			{
				Names += ToStd(Unit->GetUnitData().Name) + "; ";
			}
			return Names;
		}

		static std::string GetName(const AUnitVolumeActor* Unit) { return ToStd(Unit->GetUnitData().Name) + "; "; }

		void CheckThatTheListAndTheSceneAreInStep()
		{
			AUnitVolumeActor* const Unit = FindClickable(GetList().GetNumItems() / 2);
			EXPECT_FALSE(IsRowInView(Unit));
			ClickUnit(Unit);
			EXPECT_EQ(GetSelectedNames(), GetName(Unit));
			EXPECT_EQ(GetSelectedInList(), Unit);
			EXPECT_TRUE(IsRowInView(Unit)) << "the list has scrolled to it";

			Driver.MoveTo(FVector2D(200.0, 300.0));
			Loop.RunUntilIdle();
			const uint64 Revision = Content().GetColourRevision();
			Driver.SingleClickAt(FVector2D(200.0, 300.0));
			Loop.RunUntilIdle();
			AUnitVolumeActor* const Chosen = GetSelectedInList();
			ASSERT_TRUE(Chosen);
			EXPECT_NE(Chosen, Unit);
			EXPECT_EQ(GetSelectedNames(), GetName(Chosen));
			EXPECT_EQ(GetColour(Chosen), GetStyleColour(TEXT("Primary")));
			EXPECT_EQ(Content().GetColourRevision() - Revision, 2u) << "once: one is unselected, one selected, and the echo stops";
		}

		TStrongObjectPtr<UUserWidget> List;
		/** Of the window, in the sky. */
		const FVector2D Corner = FVector2D(1270.0, 8.0);
	};
}

TEST_F(FProjectListTest, SceneAndListSelectEachOtherOnce)
{
	CheckThatTheListAndTheSceneAreInStep();
}

TEST_F(FProjectListTest, RoomsOfARealHouseFromASalesListAreInTheSceneAndInTheList)
{
	ShowRooms();
	EXPECT_TRUE(Driver.Find(TEXT("text:21 units")));
	CheckThatTheListAndTheSceneAreInStep();
}

TEST_F(FProjectListTest, CtrlAddsToTheSelectionAndTakesFromIt)
{
	AUnitVolumeActor* const First = FindClickable(0);
	AUnitVolumeActor* const Second = FindClickable(0);
	AUnitVolumeActor* const Third = FindClickable(0);
	ClickUnit(First);
	Driver.Hold(TEXT("Ctrl"));
	ClickUnit(Second);
	ClickUnit(Third);
	EXPECT_EQ(GetSelectedNames(), GetName(First) + GetName(Second) + GetName(Third));
	EXPECT_EQ(GetSelectedInList(), First) << "of several only the first one is selected in the list";
	EXPECT_EQ(GetList().GetNumItemsSelected(), 1);

	ClickUnit(Second);
	EXPECT_EQ(GetSelectedNames(), GetName(First) + GetName(Third));
	Driver.SingleClickAt(Corner);
	EXPECT_EQ(Manager().GetSelectedUnitVolumes().Num(), 2) << "beside all of them there is nothing to add";
	Driver.Hold(TEXT(""));
	ClickUnit(Second);
	EXPECT_EQ(GetSelectedNames(), GetName(Second));
	EXPECT_EQ(GetSelectedInList(), Second);
}

TEST_F(FProjectListTest, AUnitBehindOthersIsBroughtIntoView)
{
	const auto IsSeen = [this](const AUnitVolumeActor* Unit)
	{
		const FBox Bounds = Unit->GetVolumeBounds();
		for (int32 Corner = 0; Corner < 27; ++Corner)
		{
			const FVector Share(0.05 + 0.45 * (Corner % 3), 0.05 + 0.45 * (Corner / 3 % 3), 0.05 + 0.45 * (Corner / 9));
			FVector2D Position;
			FSceneHit Hit;
			Scene->GetViewport().Locate(Bounds.Min + Bounds.GetSize() * Share, Position);
			if (Scene->GetViewport().Pick(Position, Hit) && Hit.Volume == Scene->GetBinding().FindVolume(Unit))
			{
				return true;
			}
		}
		return false;
	};
	const FSceneCamera::FPose Start = Scene->GetViewport().GetCamera().GetPose();
	int32 NumRevealed = 0;
	int32 NumHidden = 0;
	const TArray<AUnitVolumeActor*> Units = Manager().GetUnitVolumes();
	// Some of all of them.
	for (int32 Index = 0; Index < Units.Num(); Index += 7)
	{
		AUnitVolumeActor* const Unit = Units[Index];
		FVector2D Position;
		if (NumHidden == 5)
		{
			break;
		}
		if (Scene->GetViewport().Locate(Unit->GetVolumeBounds().GetCenter(), Position) == ESceneSpot::OutOfView || IsSeen(Unit))
		{
			continue;
		}
		++NumHidden;
		Manager().SelectUnitVolume(Unit, false);
		EXPECT_TRUE(Scene->GetViewport().GetCamera().IsMoving()) << "it eases there";
		Scene->GetViewport().MoveCamera([](FSceneCamera& Camera) { Camera.Finish(); });
		Loop.RunFrame(0.1);
		NumRevealed += IsSeen(Unit);
		Scene->GetViewport().MoveCamera([&](FSceneCamera& Camera) { Camera.JumpTo(Start); });
		Loop.RunUntilIdle();
	}
	EXPECT_EQ(NumHidden, 5);
	EXPECT_EQ(NumRevealed, NumHidden);
}

TEST_F(FProjectListTest, AUnitThatIsSeenLeavesTheCameraAlone)
{
	const FSceneCamera::FPose Start = Scene->GetViewport().GetCamera().GetPose();
	Manager().SelectUnitVolume(FindClickable(0), false);
	Loop.RunUntilIdle();
	EXPECT_TRUE(Scene->GetViewport().GetCamera().GetPose() == Start);
}

TEST_F(FProjectListTest, InputOverTheListNeverReachesTheScene)
{
	AUnitVolumeActor* const Unit = FindClickable(0);
	Manager().SelectUnitVolume(Unit, false);
	Loop.RunUntilIdle();
	const FSceneCamera::FPose Start = Scene->GetViewport().GetCamera().GetGoal();
	// Over rows, and beside them where nothing answers.
	for (const FVector2D& Place : { FVector2D(200.0, 400.0), FVector2D(8.0, 400.0), FVector2D(60.0, 40.0) })
	{
		Driver.MoveTo(Place);
		Driver.Wheel(-2.0f);
		Driver.Wheel(2.0f);
		Driver.DragTo(Place, Place + FVector2D(600.0, 60.0), FAutomationDriver::DragSteps, EKeys::RightMouseButton);
		Loop.RunUntilIdle();
		EXPECT_TRUE(Scene->GetViewport().GetCamera().GetGoal() == Start) << Place.X << " " << Place.Y;
	}
	EXPECT_TRUE(Unit->IsSelected());
	Driver.SingleClickAt(FVector2D(8.0, 400.0));
	EXPECT_TRUE(Unit->IsSelected()) << "a click on the panel is none beside the units";
}

TEST_F(FProjectListTest, SceneColoursFollowAStyleThatIsSwitched)
{
	AUnitVolumeActor* const Unit = FindClickable(0);
	ClickUnit(Unit);
	Driver.MoveTo(Corner);
	const FColor Light = GetColour(Unit);
	UHalvexProUISettings& Settings = *GetMutableDefault<UHalvexProUISettings>();
	const TSoftObjectPtr<UHalvexUIStyleConfiguration> Before = Settings.ProjectUIConfiguration;
	Settings.ProjectUIConfiguration = LoadObject<UHalvexUIStyleConfiguration>(nullptr, TEXT("/HalvexPro/Widgets/UIStyle_Hx_Dark.UIStyle_Hx_Dark"));
	UHalvexUISubsystem::Get()->RefreshSettingsReferences();
	EXPECT_NE(GetColour(Unit), Light);
	EXPECT_EQ(GetColour(Unit), GetStyleColour(TEXT("Primary")));
	Settings.ProjectUIConfiguration = Before;
	UHalvexUISubsystem::Get()->RefreshSettingsReferences();
	EXPECT_EQ(GetColour(Unit), Light);
}

TEST_F(FProjectListTest, ASalesListNeedsNoMappingWhenItsHeadersAreTheFields)
{
	const FString Folder = FPaths::Combine(FPaths::ProjectSavedDir(), TEXT("Lists"));
	const FString File = FPaths::Combine(Folder, TEXT("flats.csv"));
	ASSERT_TRUE(FFileHelper::SaveStringToFile(TEXT("id,name,price,colour\nA,Flat A,100,red\nB,Flat B,200,blue\n"), *File));
	FProjectData Project;
	EXPECT_TRUE(FProjectScene::Load(File, Project));
	EXPECT_EQ(ToStd(Project.Name), "flats");
	ASSERT_EQ(Project.Units.Num(), 2);
	EXPECT_EQ(Project.Units[1].Data.Price, 200.0);

	ASSERT_TRUE(FFileHelper::SaveStringToFile(TEXT("{ \"columns\": { \"id\": \"id\", \"price\": \"area\" } }"), *FPaths::Combine(Folder, TEXT("other.json"))));
	EXPECT_TRUE(FProjectScene::Load(File, Project, FPaths::Combine(Folder, TEXT("other.json"))));
	EXPECT_EQ(Project.Units[1].Data.Area, 200.0f);

	const FExpectedLog Line(TEXT("none.json: the file cannot be read"));
	EXPECT_FALSE(FProjectScene::Load(File, Project, TEXT("none.json")));
}
