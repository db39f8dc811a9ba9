#include "ConfiguratorSceneTest.h"

#include "HalvexSDKEngineSubsystem.h"
#include "Service/ConfiguratorWrapper.h"
#include "Service/HalvexProjectRequestManager.h"
#include "Service/ProjectWrapper.h"
#include "Service/UnitGroupWrapper.h"
#include "UserWidget/Configurator/HxConfiguratorTargetUnit.h"
#include "UserWidget/Configurator/HxConfiguratorTargetUnitList.h"

namespace
{
	class FHxConfiguratorTargetUnitTest : public FConfiguratorSceneTest
	{
	protected:
		virtual void TearDown() override
		{
			FConfiguratorSceneTest::TearDown();
			Manager->ClearProject();
		}

		/** A widget whose graph writes down the units that it is given. */
		UHxConfiguratorTargetUnit& ShowTarget()
		{
			Content.Write(TEXT("Target.widget.json"), R"({ "Parent": "/Script/HalvexProUI.HxConfiguratorTargetUnit", "Variables": { "Story": { "Type": "string" } }, "Root": { "Class": "TextBlock" } })");
			Content.Write(TEXT("Target.lua"), "function OnConfiguratorUnitTarget(self, Unit) self.Story = self.Story .. Unit.Name .. '; ' end");
			Target = CastChecked<UHxConfiguratorTargetUnit>(ShowPanel(TEXT("Target")));
			return *Target;
		}

		/** Two buildings with a unit each, "A1" and "B1", and "A2". */
		void LoadProject()
		{
			FProjectData Project;
			for (const TCHAR* Group : { TEXT("A"), TEXT("B") })
			{
				Project.Groups.AddDefaulted_GetRef().GroupId = FName(Group);
			}
			for (const TCHAR* Unit : { TEXT("A1"), TEXT("B1"), TEXT("A2") })
			{
				FUnitData& Data = Project.Units.AddDefaulted_GetRef().Data;
				Data.UnitId = FName(Unit);
				Data.Name = FString(TEXT("Unit ")) + Unit;
				Data.Building = FName(*FString(Unit).Left(1));
			}
			Manager->ReceiveProject(Project);
		}

		void SetTarget(const TCHAR* Unit) { ASSERT_TRUE(Manager->GetProjectWrapper()->SetConfiguratorTarget(FName(Unit))); }

		UHalvexProjectRequestManager* Manager = UHalvexSDKEngineSubsystem::Get()->GetUserRequestManager();
		UHxConfiguratorTargetUnit* Target = nullptr;
	};

	TEST_F(FHxConfiguratorTargetUnitTest, NumbersOfStatesAndUpdatesAreWhatScreensRelyOn)
	{
		EXPECT_EQ(static_cast<int>(EPMS_Loaded), 2);
		EXPECT_EQ(static_cast<int>(EUpdateRequestDataType::ConfiguratorTarget), 4);
	}

	TEST_F(FHxConfiguratorTargetUnitTest, WidgetThatComesBeforeTheProjectIsToldOfTheTarget)
	{
		ShowTarget();
		LoadProject();
		EXPECT_EQ(TakeStory(*Target), "") << "no unit is the target";
		SetTarget(TEXT("B1"));
		EXPECT_EQ(TakeStory(*Target), "Unit B1; ");
		SetTarget(TEXT("A2"));
		EXPECT_EQ(TakeStory(*Target), "Unit A2; ");
	}

	TEST_F(FHxConfiguratorTargetUnitTest, WidgetThatComesLaterStartsWithTheTarget)
	{
		LoadProject();
		SetTarget(TEXT("A1"));
		ShowTarget();
		EXPECT_EQ(TakeStory(*Target), "Unit A1; ");
	}

	TEST_F(FHxConfiguratorTargetUnitTest, TargetIsLookedUpAtOnceOnlyWhenTheProjectIsThere)
	{
		LoadProject();
		SetTarget(TEXT("A1"));
		Manager->NotifyLoading();
		ShowTarget();
		EXPECT_EQ(TakeStory(*Target), "") << "another one is under way";
	}

	TEST_F(FHxConfiguratorTargetUnitTest, OtherUpdatesAreIgnored)
	{
		LoadProject();
		SetTarget(TEXT("A1"));
		ShowTarget();
		TakeStory(*Target);
		for (const EUpdateRequestDataType DataType : { EUpdateRequestDataType::State, EUpdateRequestDataType::Project, EUpdateRequestDataType::Catalogue, EUpdateRequestDataType::UnitGroupTarget })
		{
			Target->Received_ManagerDataUpdated(DataType, EUpdateRequestType::Changed);
		}
		EXPECT_EQ(TakeStory(*Target), "");
		Target->Received_ManagerDataUpdated(EUpdateRequestDataType::ConfiguratorTarget, EUpdateRequestType::Added);
		EXPECT_EQ(TakeStory(*Target), "Unit A1; ");
	}

	TEST_F(FHxConfiguratorTargetUnitTest, TargetThatIsGoneLeavesTheUnitFromBefore)
	{
		LoadProject();
		SetTarget(TEXT("A1"));
		ShowTarget();
		TakeStory(*Target);
		Manager->GetProjectWrapper()->GetUnitGroupTarget()->GetConfiguratorWrapper()->ClearUnitTarget();
		EXPECT_EQ(TakeStory(*Target), "");
		Manager->GetProjectWrapper()->ClearUnitGroupTarget();
		Target->Received_ManagerDataUpdated(EUpdateRequestDataType::ConfiguratorTarget, EUpdateRequestType::Removed);
		EXPECT_EQ(TakeStory(*Target), "");
	}

	TEST_F(FHxConfiguratorTargetUnitTest, WidgetThatWasConstructedAgainIsToldOnce)
	{
		LoadProject();
		ShowTarget();
		Screen->RemoveFromParent();
		Screen->AddToViewport();
		Settle();
		SetTarget(TEXT("A1"));
		EXPECT_EQ(TakeStory(*Target), "Unit A1; ");
	}

	TEST_F(FHxConfiguratorTargetUnitTest, AvailableUnitsAreEmptyWhateverTheProjectHolds)
	{
		LoadProject();
		SetTarget(TEXT("A1"));
		EXPECT_TRUE(NewObject<UHxConfiguratorTargetUnitList>()->GetAvailableUserUnits().IsEmpty());
	}
}
