#include "EngineTest.h"

#include "HalvexSDKEngineSubsystem.h"
#include "ProjectUpdateListener.h"
#include "Service/ConfiguratorWrapper.h"
#include "Service/HalvexProjectRequestManager.h"
#include "Service/ProjectWrapper.h"
#include "Service/UnitGroupWrapper.h"
#include "UObject/StrongObjectPtr.h"

namespace
{
	using Host::ToStd;

	FProjectUnit MakeUnit(const TCHAR* Id, const TCHAR* Group)
	{
		FProjectUnit Unit;
		Unit.Data.UnitId = FName(Id);
		Unit.Data.Building = FName(Group);
		Unit.Data.Name = FString(TEXT("Unit ")) + Id;
		return Unit;
	}

	FProjectData MakeProject(bool bCatalogue = false)
	{
		FProjectData Project;
		for (const TCHAR* Id : { TEXT("North"), TEXT("South") })
		{
			FProjectGroup& Group = Project.Groups.AddDefaulted_GetRef();
			Group.GroupId = FName(Id);
			Group.Name = Id;
		}
		Project.Units = { MakeUnit(TEXT("N1"), TEXT("North")), MakeUnit(TEXT("S1"), TEXT("South")), MakeUnit(TEXT("N2"), TEXT("North")) };
		if (bCatalogue)
		{
			Project.Catalogue.Categories.AddDefaulted();
			Project.Interiors.AddDefaulted_GetRef().InteriorId = TEXT("Flat");
			Project.Units[0].Data.Interior = TEXT("Flat");
			Project.Units[1].Data.Interior = TEXT("Flat");
			Project.Units[2].Data.Interior = TEXT("Missing");
		}
		return Project;
	}

	FString JoinIds(const TArray<FUnitData>& Units)
	{
		TArray<FString> Ids;
		for (const FUnitData& Unit : Units)
		{
			Ids.Add(Unit.UnitId.ToString());
		}
		return FString::Join(Ids, TEXT(" "));
	}

	class FProjectRequestManagerTest : public testing::Test
	{
	protected:
		FProjectRequestManagerTest()
			: Manager(UHalvexSDKEngineSubsystem::Get()->GetUserRequestManager())
			, Listener(NewObject<UProjectUpdateListener>())
		{
			Listener->ListenTo(*Manager);
		}

		virtual ~FProjectRequestManagerTest() override
		{
			Manager->OnManagerDataUpdated.RemoveAll(Listener.Get());
			Manager->ClearProject();
		}

		UProjectWrapper& GetProject() const { return *Manager->GetProjectWrapper(); }

		UConfiguratorWrapper& GetConfigurator(const TCHAR* Group) const { return *GetProject().FindUnitGroup(Group)->GetConfiguratorWrapper(); }

		void Receive(FProjectData Project)
		{
			Manager->ReceiveProject(MoveTemp(Project));
			Listener->TakeUpdates();
		}

		UHalvexProjectRequestManager* Manager;
		TStrongObjectPtr<UProjectUpdateListener> Listener;
	};

	TEST_F(FProjectRequestManagerTest, BeginsIdleWithAnEmptyProject)
	{
		EXPECT_EQ(Manager->GetStateProcess(), EPMS_Idle);
		EXPECT_TRUE(GetProject().GetUnitGroups().IsEmpty());
		EXPECT_FALSE(GetProject().HasUnitGroupTarget());
		EXPECT_FALSE(GetProject().HasCatalogue());
	}

	TEST_F(FProjectRequestManagerTest, NumbersThatScreensRelyOnStay)
	{
		EXPECT_EQ(static_cast<int32>(EPMS_Loaded), 2);
		EXPECT_EQ(static_cast<int32>(EUpdateRequestDataType::ConfiguratorTarget), 4);
	}

	TEST_F(FProjectRequestManagerTest, GoesFromLoadingToLoaded)
	{
		Manager->NotifyLoading();
		EXPECT_EQ(Manager->GetStateProcess(), EPMS_Loading);
		EXPECT_EQ(ToStd(Listener->TakeUpdates()), "State Changed");
		Manager->ReceiveProject(MakeProject(true));
		EXPECT_EQ(Manager->GetStateProcess(), EPMS_Loaded);
		EXPECT_EQ(ToStd(Listener->TakeUpdates()), "State Changed, Project Added, Catalogue Added");
		EXPECT_TRUE(GetProject().HasCatalogue());
	}

	TEST_F(FProjectRequestManagerTest, StatesAreToldOnceEach)
	{
		Manager->NotifyLoading();
		Manager->NotifyLoading();
		EXPECT_EQ(ToStd(Listener->TakeUpdates()), "State Changed");
	}

	TEST_F(FProjectRequestManagerTest, FailureKeepsTheProjectFromBefore)
	{
		Receive(MakeProject());
		Manager->NotifyLoading();
		Manager->NotifyFailed();
		EXPECT_EQ(Manager->GetStateProcess(), EPMS_Failed);
		EXPECT_EQ(ToStd(Listener->TakeUpdates()), "State Changed, State Changed");
		EXPECT_EQ(GetProject().GetUnitGroups().Num(), 2);
	}

	TEST_F(FProjectRequestManagerTest, AnotherProjectForgetsTheTargets)
	{
		Receive(MakeProject(true));
		GetProject().SetConfiguratorTarget(TEXT("S1"));
		Listener->TakeUpdates();
		Manager->ReceiveProject(MakeProject());
		EXPECT_EQ(ToStd(Listener->TakeUpdates()), "Project Changed, Catalogue Removed, UnitGroupTarget Removed, ConfiguratorTarget Removed");
		EXPECT_FALSE(GetProject().HasUnitGroupTarget());
	}

	TEST_F(FProjectRequestManagerTest, AProjectThatIsNoLongerThereTellsNothing)
	{
		Receive(MakeProject());
		const TStrongObjectPtr<UProjectWrapper> Before(&GetProject());
		Receive(MakeProject());
		EXPECT_TRUE(Before->SetConfiguratorTarget(TEXT("N1")));
		EXPECT_EQ(ToStd(Listener->TakeUpdates()), "");
	}

	TEST_F(FProjectRequestManagerTest, LettingGoOfTheProjectLeadsBackToTheBeginning)
	{
		Receive(MakeProject(true));
		Manager->ClearProject();
		EXPECT_EQ(ToStd(Listener->TakeUpdates()), "State Changed, Project Removed, Catalogue Removed");
		EXPECT_EQ(Manager->GetStateProcess(), EPMS_Idle);
		EXPECT_TRUE(GetProject().GetUnitGroups().IsEmpty());
	}

	TEST_F(FProjectRequestManagerTest, UnitsAreDividedIntoGroupsInTheirOrder)
	{
		Receive(MakeProject());
		ASSERT_EQ(GetProject().GetUnitGroups().Num(), 2);
		EXPECT_EQ(ToStd(JoinIds(GetProject().GetUnitGroups()[0]->GetUnits())), "N1 N2");
		EXPECT_EQ(ToStd(JoinIds(GetProject().FindUnitGroup(TEXT("South"))->GetUnits())), "S1");
		EXPECT_EQ(GetProject().FindUnitGroup(TEXT("West")), nullptr);
	}

	TEST_F(FProjectRequestManagerTest, UnitsOfNoGroupAreInOneWithoutAKey)
	{
		FProjectData Project = MakeProject();
		Project.Units.Add(MakeUnit(TEXT("X1"), TEXT("Nowhere")));
		FProjectUnit Alone = MakeUnit(TEXT("X2"), TEXT(""));
		Alone.Data.Building = FName();
		Project.Units.Add(Alone);
		Receive(Project);
		ASSERT_EQ(GetProject().GetUnitGroups().Num(), 3);
		EXPECT_EQ(GetProject().GetUnitGroups()[2], GetProject().FindUnitGroup(NAME_None));
		EXPECT_EQ(ToStd(JoinIds(GetProject().GetUnitGroups()[2]->GetUnits())), "X1 X2");
	}

	TEST_F(FProjectRequestManagerTest, AConfiguratorTargetMakesItsGroupTheTarget)
	{
		Receive(MakeProject());
		EXPECT_TRUE(GetProject().SetConfiguratorTarget(TEXT("N2")));
		EXPECT_EQ(ToStd(Listener->TakeUpdates()), "UnitGroupTarget Added [N2], ConfiguratorTarget Added [N2]");
		EXPECT_EQ(GetProject().GetUnitGroupTarget(), GetProject().FindUnitGroup(TEXT("North")));
		EXPECT_EQ(ToStd(GetConfigurator(TEXT("North")).GetConfiguratorUnitTarget().Name), "Unit N2");
	}

	TEST_F(FProjectRequestManagerTest, ATargetIsToldWhenItChanges)
	{
		Receive(MakeProject());
		GetProject().SetConfiguratorTarget(TEXT("N2"));
		Listener->TakeUpdates();
		EXPECT_TRUE(GetConfigurator(TEXT("North")).SetUnitTarget(TEXT("N1")));
		EXPECT_EQ(ToStd(Listener->TakeUpdates()), "ConfiguratorTarget Changed [N1]");
		EXPECT_TRUE(GetConfigurator(TEXT("North")).SetUnitTarget(TEXT("N1")));
		EXPECT_EQ(ToStd(Listener->TakeUpdates()), "");
		GetConfigurator(TEXT("North")).ClearUnitTarget();
		EXPECT_EQ(ToStd(Listener->TakeUpdates()), "ConfiguratorTarget Removed");
		EXPECT_FALSE(GetConfigurator(TEXT("North")).HasUnitTarget());
	}

	TEST_F(FProjectRequestManagerTest, ATargetOfAnotherGroupIsToldWhenThatBecomesTheTarget)
	{
		Receive(MakeProject());
		GetProject().SetConfiguratorTarget(TEXT("N1"));
		Listener->TakeUpdates();
		EXPECT_TRUE(GetConfigurator(TEXT("South")).SetUnitTarget(TEXT("S1")));
		EXPECT_EQ(ToStd(Listener->TakeUpdates()), "");
		EXPECT_TRUE(GetProject().SetUnitGroupTarget(TEXT("South")));
		EXPECT_EQ(ToStd(Listener->TakeUpdates()), "UnitGroupTarget Changed [S1], ConfiguratorTarget Changed [S1]");
		GetProject().ClearUnitGroupTarget();
		EXPECT_EQ(ToStd(Listener->TakeUpdates()), "UnitGroupTarget Removed, ConfiguratorTarget Removed");
	}

	TEST_F(FProjectRequestManagerTest, WhatIsNotThereIsRefused)
	{
		Receive(MakeProject());
		EXPECT_FALSE(GetProject().SetConfiguratorTarget(TEXT("Q7")));
		EXPECT_FALSE(GetProject().SetUnitGroupTarget(TEXT("West")));
		EXPECT_FALSE(GetConfigurator(TEXT("North")).SetUnitTarget(TEXT("S1")));
		EXPECT_EQ(ToStd(Listener->TakeUpdates()), "");
		EXPECT_FALSE(GetProject().HasUnitGroupTarget());
	}

	TEST_F(FProjectRequestManagerTest, ConfiguratorOpensForATargetWithRoomsAndACatalogue)
	{
		Receive(MakeProject(true));
		EXPECT_FALSE(GetProject().OpenConfigurator());
		GetProject().SetConfiguratorTarget(TEXT("N2"));
		EXPECT_FALSE(GetProject().OpenConfigurator());
		GetProject().SetConfiguratorTarget(TEXT("N1"));
		Listener->TakeUpdates();
		EXPECT_TRUE(GetProject().CanConfigureTarget());
		EXPECT_TRUE(GetProject().OpenConfigurator());
		EXPECT_TRUE(GetProject().OpenConfigurator());
		EXPECT_TRUE(GetProject().IsConfiguratorOpen());
		EXPECT_EQ(ToStd(Listener->TakeUpdates()), "OpenConfigurator Added [N1]");
		GetProject().CloseConfigurator();
		GetProject().CloseConfigurator();
		EXPECT_EQ(ToStd(Listener->TakeUpdates()), "OpenConfigurator Removed [N1]");
	}

	TEST_F(FProjectRequestManagerTest, WithoutACatalogueNothingCanBeConfigured)
	{
		FProjectData Project = MakeProject(true);
		Project.Catalogue = FConfiguratorCatalogue();
		Receive(Project);
		GetProject().SetConfiguratorTarget(TEXT("N1"));
		EXPECT_FALSE(GetProject().OpenConfigurator());
	}

	TEST_F(FProjectRequestManagerTest, ConfiguratorStaysOpenForAnotherUnitAndClosesWithoutOne)
	{
		Receive(MakeProject(true));
		GetProject().SetConfiguratorTarget(TEXT("N1"));
		GetProject().OpenConfigurator();
		Listener->TakeUpdates();
		GetProject().SetConfiguratorTarget(TEXT("S1"));
		EXPECT_TRUE(GetProject().IsConfiguratorOpen());
		EXPECT_EQ(ToStd(Listener->TakeUpdates()), "UnitGroupTarget Changed [S1], ConfiguratorTarget Changed [S1]");
		GetProject().ClearUnitGroupTarget();
		EXPECT_FALSE(GetProject().IsConfiguratorOpen());
		EXPECT_EQ(ToStd(Listener->TakeUpdates()), "UnitGroupTarget Removed, OpenConfigurator Removed, ConfiguratorTarget Removed");
	}
}
