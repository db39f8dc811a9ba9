#include "ButtonUserWidgetTestTools.h"

#include "Components/PanelWidget.h"
#include "KitReflection.h"
#include "gmock/gmock.h"

#include <random>

namespace
{
	using namespace KitReflection;

	class FHalvexButtonGroupSelectionUWTest : public FButtonUserWidgetTest
	{
	protected:
		static constexpr int32 NumMembers = 3;

		void MakeMembers()
		{
			Group = MakeOf<UHalvexButtonGroupSelectionUW>(TEXT("Members"), TEXT("Group"));
			for (int32 Index = 0; Index < NumMembers; ++Index)
			{
				Members[Index] = CastChecked<UKitTestButtonUW>(Group->GetWidgetFromName(FName(FString::Printf(TEXT("M%d"), Index))));
				Members[Index]->OnButtonSelectionChange.AddDynamic(Recorder.Get(), &UKitTestRecorder::OnMemberChanged);
			}
			Group->OnClearSelection.AddDynamic(Recorder.Get(), &UKitTestRecorder::OnGroupCleared);
			Group->OnSelectionChange.AddDynamic(Recorder.Get(), &UKitTestRecorder::OnMemberSelected);
			Place(*Group, 100.0, 100.0);
		}

		void ShowMembers()
		{
			MakeMembers();
			Show();
		}

		/** Which members show selected, "101". */
		std::string GetStates() const
		{
			std::string Text;
			for (const UKitTestButtonUW* Member : Members)
			{
				Text += Member->SelectableButton->bSelectedButton ? "1" : "0";
			}
			return Text;
		}

		UHalvexButtonGroupSelectionUW* Group = nullptr;
		UKitTestButtonUW* Members[NumMembers] = {};
	};

	TEST_F(FHalvexButtonGroupSelectionUWTest, PropertiesStandInTheirOrderWithTheirTypes)
	{
		const UClass* Class = UHalvexButtonGroupSelectionUW::StaticClass();
		EXPECT_EQ(Class->GetSuperClass(), UUserWidget::StaticClass());
		EXPECT_EQ(ListNames(Class), "ButtonsContainer ButtonList OnClearSelection OnSelectionChange CurrentSelection");
		EXPECT_EQ(ListOutsideCategory(Class, TEXT("HalvexButtonGroupSelectionUW")), "");
		EXPECT_EQ(GetType(Class, TEXT("ButtonsContainer")), "UPanelWidget*");
		EXPECT_TRUE(HasMeta(Class, TEXT("ButtonsContainer"), TEXT("BindWidget")));
		EXPECT_EQ(GetType(Class, TEXT("ButtonList")), "TArray<UHalvexButtonUW*>");
		EXPECT_TRUE(HasMeta(Class, TEXT("ButtonList"), TEXT("EditInline")));
		EXPECT_EQ(DescribeEvent(Class, TEXT("OnClearSelection")), "");
		EXPECT_EQ(DescribeEvent(Class, TEXT("OnSelectionChange")), "int32 SelectionIndex, FName ButtonSelected");
		EXPECT_EQ(GetType(Class, TEXT("CurrentSelection")), "UHalvexButtonUW*");
		EXPECT_TRUE(GetMember(Class, TEXT("CurrentSelection")).HasAnyPropertyFlags(CPF_Transient));
		EXPECT_TRUE(HasMeta(Class, TEXT("CurrentSelection"), TEXT("EditInline")));
		EXPECT_TRUE(GetMember(Class, TEXT("OnClearSelection")).HasAnyPropertyFlags(CPF_BlueprintAssignable));
		EXPECT_TRUE(GetMember(Class, TEXT("OnSelectionChange")).HasAnyPropertyFlags(CPF_BlueprintAssignable));
	}

	TEST_F(FHalvexButtonGroupSelectionUWTest, FunctionsAreThoseThatBlueprintsCall)
	{
		const UClass* Class = UHalvexButtonGroupSelectionUW::StaticClass();
		EXPECT_EQ(Describe(Class, TEXT("RefreshButtonReferences")), "callable void RefreshButtonReferences(TArray<UHalvexButtonUW*> InButtonList) in HalvexColorHandler");
		EXPECT_EQ(Describe(Class, TEXT("SetSelectionByButton")), "callable void SetSelectionByButton(UHalvexButtonUW* ButtonReference) in HalvexButtonGroupSelectionUW");
		EXPECT_EQ(Describe(Class, TEXT("SetSelectionByButtonID")), "callable void SetSelectionByButtonID(FName ButtonID) in HalvexButtonGroupSelectionUW");
		EXPECT_EQ(Describe(Class, TEXT("SetSelectionByIndex")), "callable void SetSelectionByIndex(int32 ButtonIndex) in HalvexButtonGroupSelectionUW");
		EXPECT_EQ(Describe(Class, TEXT("ClearAllButtonSelection")), "callable void ClearAllButtonSelection() in HalvexButtonGroupSelectionUW");
		for (const TCHAR* Name : { TEXT("GetSelectedButtonIndex"), TEXT("GetSelectedButtonID"), TEXT("HasSelection") })
		{
			EXPECT_THAT(Describe(Class, Name), testing::StartsWith("pure "));
			EXPECT_THAT(Describe(Class, Name), testing::EndsWith(" in HalvexButtonGroupSelectionUW"));
		}
		EXPECT_EQ(ListNames(Class->FindFunctionByName(TEXT("Received_ButtonSelectionChanged"))), "ButtonChangeSelection");
	}

	TEST_F(FHalvexButtonGroupSelectionUWTest, MembersAreThePanelsDirectButtonChildren)
	{
		MakeMembers();
		EXPECT_TRUE(Group->ButtonList.IsEmpty());
		Show();
		EXPECT_EQ(ObjectPtrDecay(Group->ButtonList), TArray<UHalvexButtonUW*>({ Members[0], Members[1], Members[2] }));
		EXPECT_FALSE(Group->HasSelection());
		EXPECT_EQ(Group->GetSelectedButtonIndex(), -1);
		EXPECT_TRUE(Group->GetSelectedButtonID().IsNone());
		EXPECT_EQ(TakeEvents(), "");
	}

	TEST_F(FHalvexButtonGroupSelectionUWTest, NewSelectionIsToldBeforeThePreviousOneGoes)
	{
		ShowMembers();
		Click(*Members[0]);
		EXPECT_EQ(TakeEvents(), "member(M0) selected(0,ID0)");
		Click(*Members[2]);
		EXPECT_EQ(TakeEvents(), "member(M2) selected(2,ID2) member(M0)");
		EXPECT_EQ(GetStates(), "001");
		EXPECT_EQ(Group->CurrentSelection, Members[2]);
		EXPECT_EQ(Group->GetSelectedButtonIndex(), 2);
		EXPECT_EQ(Group->GetSelectedButtonID(), FName(TEXT("ID2")));
		EXPECT_TRUE(Group->HasSelection());
	}

	TEST_F(FHalvexButtonGroupSelectionUWTest, ClickOnTheCurrentMemberClears)
	{
		ShowMembers();
		Click(*Members[1]);
		TakeEvents();
		Click(*Members[1]);
		EXPECT_EQ(TakeEvents(), "member(M1) cleared");
		EXPECT_FALSE(Group->HasSelection());
		EXPECT_EQ(GetStates(), "000");
	}

	TEST_F(FHalvexButtonGroupSelectionUWTest, SelectionByIndexTellsWithoutLightingTheButton)
	{
		ShowMembers();
		Click(*Members[0]);
		TakeEvents();
		Group->SetSelectionByIndex(2);
		EXPECT_EQ(TakeEvents(), "selected(2,ID2) member(M0)");
		EXPECT_EQ(GetStates(), "000");
		EXPECT_EQ(Group->GetSelectedButtonIndex(), 2);
		Group->SetSelectionByIndex(3);
		Group->SetSelectionByIndex(-1);
		EXPECT_EQ(TakeEvents(), "");
	}

	TEST_F(FHalvexButtonGroupSelectionUWTest, SelectionByIdentifierTakesTheFirstOfThatIdentifier)
	{
		ShowMembers();
		Members[2]->SelectableButton->ButtonID = TEXT("ID1");
		Group->SetSelectionByButtonID(TEXT("ID1"));
		EXPECT_EQ(TakeEvents(), "selected(1,ID1)");
		Group->SetSelectionByButtonID(TEXT("NoSuchID"));
		EXPECT_EQ(TakeEvents(), "");
		EXPECT_EQ(Group->GetSelectedButtonIndex(), 1);
	}

	TEST_F(FHalvexButtonGroupSelectionUWTest, SelectingTheCurrentMemberThatShowsSelectedClears)
	{
		ShowMembers();
		Click(*Members[1]);
		TakeEvents();
		Group->SetSelectionByButton(Members[1]);
		EXPECT_EQ(TakeEvents(), "selected(1,ID1) member(M1) cleared");
		EXPECT_FALSE(Group->HasSelection());
		EXPECT_EQ(GetStates(), "000");
	}

	TEST_F(FHalvexButtonGroupSelectionUWTest, SelectingTheCurrentMemberThatDoesNotShowSelectedTellsAgain)
	{
		ShowMembers();
		Group->SetSelectionByIndex(1);
		Group->SetSelectionByIndex(1);
		EXPECT_EQ(TakeEvents(), "selected(1,ID1) selected(1,ID1)");
		EXPECT_TRUE(Group->HasSelection());
	}

	TEST_F(FHalvexButtonGroupSelectionUWTest, SelectingNothingDoesNothing)
	{
		ShowMembers();
		Click(*Members[0]);
		TakeEvents();
		Group->SetSelectionByButton(nullptr);
		EXPECT_EQ(TakeEvents(), "");
		EXPECT_TRUE(Group->HasSelection());
	}

	TEST_F(FHalvexButtonGroupSelectionUWTest, ClearUnselectsEveryMemberAndTellsAtTheEnd)
	{
		ShowMembers();
		Members[1]->SelectableButton->SetSelectionState(true, false);
		Click(*Members[0]);
		TakeEvents();
		Group->ClearAllButtonSelection();
		EXPECT_EQ(TakeEvents(), "member(M0) member(M1) cleared");
		EXPECT_EQ(GetStates(), "000");
		Group->ClearAllButtonSelection();
		EXPECT_EQ(TakeEvents(), "cleared");
	}

	TEST_F(FHalvexButtonGroupSelectionUWTest, StartSelectionComesBeforeTheGroupListens)
	{
		MakeMembers();
		Members[1]->bStartSelected = true;
		Show();
		EXPECT_EQ(TakeEvents(), "member(M1)");
		EXPECT_FALSE(Group->HasSelection());
		EXPECT_EQ(GetStates(), "010");
		Click(*Members[0]);
		EXPECT_EQ(TakeEvents(), "member(M0) selected(0,ID0)");
		EXPECT_EQ(GetStates(), "110");
	}

	TEST_F(FHalvexButtonGroupSelectionUWTest, StartSelectionIsRecordedOnceTheGroupListens)
	{
		MakeMembers();
		Members[1]->bStartSelected = true;
		Show();
		Click(*Members[1]);
		EXPECT_EQ(GetStates(), "000");
		TakeEvents();
		Screen->RemoveFromParent();
		Show();
		EXPECT_EQ(TakeEvents(), "member(M1) selected(1,ID1)");
		EXPECT_EQ(GetStates(), "010");
		EXPECT_EQ(Group->ButtonList.Num(), 3) << "the second scan adds nothing";
	}

	TEST_F(FHalvexButtonGroupSelectionUWTest, NewListReplacesTheMembersAndIsListenedToOnce)
	{
		ShowMembers();
		Group->RefreshButtonReferences({ Members[2], nullptr, Members[0] });
		EXPECT_EQ(Group->ButtonList.Num(), 3);
		Click(*Members[2]);
		EXPECT_EQ(TakeEvents(), "member(M2) selected(0,ID2)");
		Click(*Members[1]);
		EXPECT_EQ(TakeEvents(), "member(M1) selected(-1,ID1) member(M2)") << "it is listened to still";
		EXPECT_EQ(Group->GetSelectedButtonIndex(), -1);
		EXPECT_TRUE(Group->HasSelection());
		EXPECT_EQ(Group->GetSelectedButtonID(), FName(TEXT("ID1")));
	}

	TEST_F(FHalvexButtonGroupSelectionUWTest, MembersWithoutAModeAreNeverSelected)
	{
		MakeMembers();
		Members[1]->ButtonSelectionMode = EButtonSelectionMode::EBSM_None;
		Show();
		Members[1]->SelectButton();
		EXPECT_EQ(TakeEvents(), "member(M1)");
		EXPECT_FALSE(Group->HasSelection());
	}

	TEST_F(FHalvexButtonGroupSelectionUWTest, DesignerFindsTheMembersAndDoesNotListen)
	{
		MakeMembers();
		ShowInDesigner();
		EXPECT_EQ(Group->ButtonList.Num(), 3);
		Members[0]->SelectableButton->SetSelectionState(true, true);
		EXPECT_FALSE(Group->HasSelection());
		EXPECT_EQ(TakeEvents(), "");
	}

	/** What the group does, step by step as it is described. */
	struct FMembersModel
	{
		struct FMember
		{
			bool bSelected = false;
			EButtonSelectionMode Mode = EButtonSelectionMode::EBSM_None;
		};

		FMember Members[3];
		int Current = -1;
		std::string Events;

		void Tell(const std::string& Event) { Events += (Events.empty() ? "" : " ") + Event; }
		bool IsSelected(int Member) const { return Members[Member].Mode != EButtonSelectionMode::EBSM_None && Members[Member].bSelected; }

		void Click(int Member)
		{
			const EButtonSelectionMode Mode = Members[Member].Mode;
			if (Mode == EButtonSelectionMode::EBSM_Toggle || (Mode == EButtonSelectionMode::EBSM_Blocked && !Members[Member].bSelected))
			{
				SetState(Member, !Members[Member].bSelected);
			}
		}

		void SetState(int Member, bool bSelected)
		{
			if (Members[Member].bSelected != bSelected)
			{
				Members[Member].bSelected = bSelected;
				Tell("member(M" + std::to_string(Member) + ")");
				Receive(Member);
			}
		}

		void Receive(int Member)
		{
			if (Current == Member)
			{
				if (!IsSelected(Member))
				{
					Clear();
				}
			}
			else if (IsSelected(Member))
			{
				Select(Member);
			}
		}

		void Select(int Member)
		{
			const int Previous = Current;
			Current = Member;
			Tell("selected(" + std::to_string(Member) + ",ID" + std::to_string(Member) + ")");
			if (Previous >= 0)
			{
				SetState(Previous, false);
			}
		}

		void Clear()
		{
			Current = -1;
			for (int Member = 0; Member < 3; ++Member)
			{
				SetState(Member, false);
			}
			Tell("cleared");
		}
	};

	TEST_F(FHalvexButtonGroupSelectionUWTest, AgreesWithItsDescription)
	{
		std::mt19937 Random(7);
		for (int32 Round = 0; Round < 12; ++Round)
		{
			StartScreen();
			MakeMembers();
			FMembersModel Model;
			for (int32 Index = 0; Index < NumMembers; ++Index)
			{
				Model.Members[Index].Mode = static_cast<EButtonSelectionMode>(Random() % 3);
				Members[Index]->ButtonSelectionMode = Model.Members[Index].Mode;
			}
			Show();
			std::string History;
			for (int32 Step = 0; Step < 40; ++Step)
			{
				const int32 Member = static_cast<int32>(Random() % NumMembers);
				const uint32 Kind = Random() % 9;
				History += " " + std::to_string(Kind) + "/" + std::to_string(Member);
				switch (Kind)
				{
				case 0:
					Model.Select(Member);
					Group->SetSelectionByIndex(Member);
					break;
				case 1:
					Model.Select(Member);
					Group->SetSelectionByButtonID(Members[Member]->GetButtonID());
					break;
				case 2:
					Model.Clear();
					Group->ClearAllButtonSelection();
					break;
				case 3:
					Model.SetState(Member, true);
					Members[Member]->SelectButton();
					break;
				case 4:
					Model.SetState(Member, false);
					Members[Member]->UnSelectButton();
					break;
				default:
					Model.Click(Member);
					Click(*Members[Member]);
					break;
				}
				std::string States;
				for (const FMembersModel::FMember& State : Model.Members)
				{
					States += State.bSelected ? "1" : "0";
				}
				ASSERT_EQ(TakeEvents(), Model.Events) << "round " << Round << ":" << History;
				ASSERT_EQ(GetStates(), States) << "round " << Round << ":" << History;
				ASSERT_EQ(Group->GetSelectedButtonIndex(), Model.Current) << "round " << Round << ":" << History;
				Model.Events.clear();
			}
		}
	}
}
