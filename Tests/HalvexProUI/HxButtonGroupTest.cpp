#include "HxButtonGroupTestTools.h"

#include "Host/PropertyEdit.h"
#include "KitReflection.h"
#include "KitTestButtonGroup.h"

namespace
{
	using namespace KitReflection;

	constexpr EButtonGroupControlMode Single = EButtonGroupControlMode::EBGM_SingleSelection;
	constexpr EButtonGroupControlMode Multi = EButtonGroupControlMode::EBGM_MultiSelection;

	class FHxButtonGroupTest : public FHxButtonGroupTestBase
	{
	protected:
		/** Edits a property of the group as the designer's details panel does. */
		void Edit(const TCHAR* Path, const TCHAR* Value)
		{
			FString Error;
			EXPECT_TRUE(Host::FPropertyEdit::SetFromText(Group, Path, Value, Error)) << Host::ToStd(Error);
		}
	};

	// What designers and blueprints see.

	TEST_F(FHxButtonGroupTest, ControlModesAreNamedForDesigners)
	{
		const UEnum* Enum = StaticEnum<EButtonGroupControlMode>();
		EXPECT_EQ(Host::ToStd(Enum->GetNameStringByValue(0)), "EBGM_SingleSelection");
		EXPECT_EQ(Host::ToStd(Enum->GetNameStringByValue(1)), "EBGM_MultiSelection");
		EXPECT_EQ(Host::ToStd(Enum->GetDisplayNameTextByValue(0)), "Single Selection");
		EXPECT_EQ(Host::ToStd(Enum->GetDisplayNameTextByValue(1)), "Multi Selection");
		EXPECT_EQ(sizeof(EButtonGroupControlMode), 1u);
	}

	TEST_F(FHxButtonGroupTest, PropertiesStandInTheirOrderWithTheirTypes)
	{
		const UClass* Class = UHxButtonGroup::StaticClass();
		EXPECT_EQ(Class->GetSuperClass(), UWidget::StaticClass());
		EXPECT_EQ(ListNames(Class), "OnClearSelection OnSelectionChange ButtonGroupControlMode bAllowNoneSelection SelectedButtonsIndex ButtonList SelectionButtons");
		EXPECT_EQ(ListOutsideCategory(Class, TEXT("HxButtonGroup")), "");
		EXPECT_EQ(DescribeEvent(Class, TEXT("OnClearSelection")), "");
		EXPECT_EQ(DescribeEvent(Class, TEXT("OnSelectionChange")), "bool bEmptySelection, TArray<int32> ChangeList");
		EXPECT_EQ(GetType(Class, TEXT("ButtonGroupControlMode")), "EButtonGroupControlMode");
		EXPECT_EQ(GetType(Class, TEXT("bAllowNoneSelection")), "bool");
		EXPECT_EQ(GetType(Class, TEXT("SelectedButtonsIndex")), "TArray<int32>");
		EXPECT_EQ(GetType(Class, TEXT("ButtonList")), "TArray<UHxButton*>");
		EXPECT_EQ(GetType(Class, TEXT("SelectionButtons")), "TMap<int32, UHxButton*>");
		EXPECT_TRUE(GetMember(Class, TEXT("OnClearSelection")).HasAnyPropertyFlags(CPF_BlueprintAssignable));
		EXPECT_TRUE(GetMember(Class, TEXT("OnSelectionChange")).HasAnyPropertyFlags(CPF_BlueprintAssignable));
		EXPECT_TRUE(HasMeta(Class, TEXT("ButtonList"), TEXT("EditInline")));
		EXPECT_TRUE(HasMeta(Class, TEXT("SelectionButtons"), TEXT("EditInline")));
	}

	TEST_F(FHxButtonGroupTest, DefaultIsAnEmptySingleSelectionThatMayBeEmpty)
	{
		const UHxButtonGroup* Default = GetDefault<UHxButtonGroup>();
		EXPECT_EQ(Default->ButtonGroupControlMode, Single);
		EXPECT_TRUE(Default->bAllowNoneSelection);
		EXPECT_TRUE(Default->SelectedButtonsIndex.IsEmpty());
		EXPECT_TRUE(Default->ButtonList.IsEmpty());
		EXPECT_TRUE(Default->SelectionButtons.IsEmpty());
		EXPECT_FALSE(Default->OnClearSelection.IsBound());
		EXPECT_FALSE(Default->OnSelectionChange.IsBound());
	}

	TEST_F(FHxButtonGroupTest, ToolTipsSpeakToDesigners)
	{
		const UClass* Class = UHxButtonGroup::StaticClass();
		EXPECT_EQ(Host::ToStd(Class->GetToolTipText()), "Represents a UI component that manages a group of buttons, enabling behavior and selection control.");
		EXPECT_EQ(GetMeta(Class, TEXT("OnClearSelection"), TEXT("ToolTip")), "Called when de selection have been cleaned.");
		EXPECT_EQ(GetMeta(Class, TEXT("OnSelectionChange"), TEXT("ToolTip")), "Called when the selection has changed.");
		EXPECT_NE(GetMeta(Class, TEXT("SelectedButtonsIndex"), TEXT("ToolTip")), "");
		EXPECT_EQ(Host::ToStd(Class->FindFunctionByName(TEXT("SetButtonList"))->GetToolTipText()), "Override ButtonList and refresh references bindings");
		EXPECT_EQ(Host::ToStd(Class->FindFunctionByName(TEXT("CleanButtonList"))->GetToolTipText()), "Clean all buttons in ButtonList by removing all event bindings and references");
	}

	TEST_F(FHxButtonGroupTest, FunctionsAreThoseThatBlueprintsCall)
	{
		const UClass* Class = UHxButtonGroup::StaticClass();
		EXPECT_EQ(Describe(Class, TEXT("AddButton")), "callable void AddButton(UHxButton* InButton) in Halvex | Button Group");
		EXPECT_EQ(Describe(Class, TEXT("RemoveButton")), "callable void RemoveButton(UHxButton* InButton) in Halvex | Button Group");
		EXPECT_EQ(Describe(Class, TEXT("SetButtonList")), "callable void SetButtonList(TArray<UHxButton*> InButtonGroup) in Halvex | Button Group");
		EXPECT_EQ(Describe(Class, TEXT("RefreshButtonReferences")), "callable void RefreshButtonReferences() in Halvex | Button Group");
		EXPECT_EQ(Describe(Class, TEXT("CleanButtonList")), "callable void CleanButtonList() in Halvex | Button Group");
		EXPECT_EQ(Describe(Class, TEXT("ClearAllButtonSelection")), "callable void ClearAllButtonSelection() in Halvex | Button Group");
		EXPECT_EQ(Describe(Class, TEXT("SetSelectedIndex")), "callable void SetSelectedIndex(TArray<int32> InSelection) in Halvex | Button Group");
		EXPECT_EQ(Describe(Class, TEXT("SetSelectionByIndex")), "callable void SetSelectionByIndex(int32 ButtonIndex) in Halvex | Button Group");
		EXPECT_EQ(Describe(Class, TEXT("SetSelectionByButton")), "callable void SetSelectionByButton(UHxButton* InButton) in Halvex | Button Group");
		EXPECT_EQ(Describe(Class, TEXT("SetSelectionByButtonID")), "callable void SetSelectionByButtonID(FName ButtonID) in Halvex | Button Group");
		for (const TCHAR* Name : { TEXT("GetButtonList"), TEXT("GetSelectionButtonIndexs"), TEXT("GetSelectionButtonIDs"), TEXT("HasSelection") })
		{
			const UFunction* Function = Class->FindFunctionByName(Name);
			ASSERT_TRUE(Function) << Host::ToStd(FString(Name));
			EXPECT_TRUE(Function->HasAllFunctionFlags(FUNC_BlueprintCallable | FUNC_Const)) << Host::ToStd(FString(Name));
			EXPECT_EQ(Host::ToStd(Function->GetMetaData(TEXT("Category"))), "Halvex | Button Group");
		}
		EXPECT_EQ(GetType(*Class->FindFunctionByName(TEXT("GetButtonList"))->GetReturnProperty()), "TArray<UHxButton*>");
		EXPECT_EQ(GetType(*Class->FindFunctionByName(TEXT("GetSelectionButtonIndexs"))->GetReturnProperty()), "TArray<int32>");
		EXPECT_EQ(GetType(*Class->FindFunctionByName(TEXT("GetSelectionButtonIDs"))->GetReturnProperty()), "TArray<FName>");
		EXPECT_EQ(ListNames(Class->FindFunctionByName(TEXT("ReceivedOnSelectionChange"))), "ButtonChanged bSelected");
	}

	TEST_F(FHxButtonGroupTest, PaletteListsItUnderTheProductsHeading)
	{
		EXPECT_EQ(DescribeText(Make<UHxButtonGroup>()->GetPaletteCategory()), "HalvexUI/HalvexWidget: Halvex Widget");
	}

	// Construction.

	TEST_F(FHxButtonGroupTest, TakesNoRoomAndPaintsNothing)
	{
		ShowGroup(Single, true, {});
		EXPECT_EQ(Group->GetCachedWidget()->GetType(), FName(TEXT("SSpacer")));
		EXPECT_EQ(Group->GetDesiredSize(), FVector2D(0.0, 0.0));
		EXPECT_TRUE(GetPainted(*Group).IsEmpty());
	}

	TEST_F(FHxButtonGroupTest, ButtonsAreNumberedAndBoundOnce)
	{
		ShowGroup(Single, true, {});
		Group->RefreshButtonReferences();
		for (int32 Index = 0; Index < 3; ++Index)
		{
			EXPECT_EQ(Buttons[Index]->ButtonIndex, Index);
			EXPECT_EQ(CountBindings(*Buttons[Index]), 1);
		}
	}

	TEST_F(FHxButtonGroupTest, SingleModeSetsTheButtonsModes)
	{
		ShowGroup(Single, true, {});
		EXPECT_EQ(GetModes(), "TTT");
		Group->bAllowNoneSelection = false;
		EXPECT_EQ(GetModes(), "TTT");
		Group->RefreshButtonReferences();
		EXPECT_EQ(GetModes(), "BBB");
	}

	TEST_F(FHxButtonGroupTest, MultiModeLeavesTheButtonsModes)
	{
		MakeGroup(Multi, false, { 1 });
		Buttons[0]->SelectionMode = EButtonSelectionMode::EBSM_None;
		Buttons[2]->SelectionMode = EButtonSelectionMode::EBSM_Blocked;
		Show();
		EXPECT_EQ(GetModes(), "NTB");
	}

	TEST_F(FHxButtonGroupTest, InitialSelectionIsSilent)
	{
		MakeGroup(Multi, true, { 2, 0 });
		Buttons[1]->bSelectedButton = true;
		Show();
		EXPECT_EQ(GetStates(), "101");
		EXPECT_EQ(GetRecord(), "0:B0 2:B2") << "in the order of the buttons";
		EXPECT_EQ(TakeEvents(), "");
	}

	TEST_F(FHxButtonGroupTest, InitialSelectionIgnoresIndexesWithoutAButton)
	{
		ShowGroup(Single, true, { 7, -1 });
		EXPECT_EQ(GetStates(), "000");
		EXPECT_FALSE(Group->HasSelection());
	}

	TEST_F(FHxButtonGroupTest, InitialSelectionIsNotTrimmedInSingleMode)
	{
		ShowGroup(Single, true, { 0, 2 });
		EXPECT_EQ(GetRecord(), "0:B0 2:B2");
	}

	TEST_F(FHxButtonGroupTest, InitialSelectionIsAppliedAgainAtEachRebuild)
	{
		ShowGroup(Single, true, { 1 });
		Click(*Buttons[2]);
		EXPECT_EQ(GetRecord(), "2:B2");
		TakeEvents();
		Screen->RemoveFromParent();
		Show();
		EXPECT_EQ(GetRecord(), "1:B1");
		EXPECT_EQ(GetStates(), "010");
		EXPECT_EQ(TakeEvents(), "");
	}

	TEST_F(FHxButtonGroupTest, NullEntriesAreSkipped)
	{
		MakeGroup(Single, false, { 2 });
		Group->ButtonList.Insert(nullptr, 0);
		Show();
		EXPECT_EQ(Buttons[0]->ButtonIndex, 1);
		EXPECT_EQ(GetRecord(), "2:B1");
		Group->SetSelectionByIndex(0);
		EXPECT_EQ(TakeEvents(), "");
		Click(*Buttons[2]);
		EXPECT_EQ(TakeEvents(), "B2=1 some[3]");
		Group->CleanButtonList();
		EXPECT_EQ(TakeEvents(), "cleared");
	}

	// Single selection.

	TEST_F(FHxButtonGroupTest, SingleModeThatMustNotBeEmptyMovesTheSelection)
	{
		ShowGroup(Single, false, { 1 });
		EXPECT_EQ(GetStates(), "010");
		EXPECT_EQ(GetModes(), "BBB");
		Click(*Buttons[2]);
		EXPECT_EQ(TakeEvents(), "B2=1 some[2]") << "the other one is deselected silently";
		EXPECT_EQ(GetStates(), "001");
		EXPECT_EQ(GetRecord(), "2:B2");
		Click(*Buttons[2]);
		EXPECT_EQ(TakeEvents(), "");
		EXPECT_EQ(GetStates(), "001");
	}

	TEST_F(FHxButtonGroupTest, SingleModeTellsTheChangeBeforeTheClear)
	{
		ShowGroup(Single, true, {});
		Click(*Buttons[1]);
		EXPECT_EQ(TakeEvents(), "B1=1 some[1]");
		Click(*Buttons[1]);
		EXPECT_EQ(TakeEvents(), "B1=0 empty[] cleared");
		EXPECT_EQ(GetStates(), "000");
		EXPECT_EQ(GetRecord(), "");
	}

	TEST_F(FHxButtonGroupTest, SingleModeThatMustNotBeEmptyCanBeEmptiedFromCode)
	{
		ShowGroup(Single, false, { 1 });
		Buttons[1]->SetSelectionState(false, true);
		EXPECT_EQ(TakeEvents(), "B1=0 empty[] cleared");
		EXPECT_EQ(GetRecord(), "");
	}

	TEST_F(FHxButtonGroupTest, SelectingARecordedButtonAgainKeepsItsEntry)
	{
		ShowGroup(Single, true, { 0, 2 });
		Buttons[2]->SetSelectionState(false, false);
		Click(*Buttons[2]);
		EXPECT_EQ(TakeEvents(), "B2=1 some[0,2]");
		EXPECT_EQ(GetStates(), "101");
	}

	TEST_F(FHxButtonGroupTest, NewSelectionTakesThePlaceOfTheFirstOne)
	{
		ShowGroup(Single, true, { 0, 2 });
		Click(*Buttons[1]);
		EXPECT_EQ(TakeEvents(), "B1=1 some[1,2]");
		EXPECT_EQ(GetRecord(), "1:B1 2:B2");
		EXPECT_EQ(GetStates(), "011");
	}

	TEST_F(FHxButtonGroupTest, DeselectingOneOfTwoInSingleModeForgetsTheFirstAndTellsNothing)
	{
		ShowGroup(Single, true, { 0, 2 });
		Click(*Buttons[2]);
		EXPECT_EQ(TakeEvents(), "B2=0");
		EXPECT_EQ(GetRecord(), "2:B2");
		EXPECT_EQ(GetStates(), "000");
	}

	TEST_F(FHxButtonGroupTest, SilentChangesAreInvisibleToTheGroup)
	{
		ShowGroup(Single, true, { 0 });
		Buttons[1]->SetSelectionState(true, false);
		EXPECT_EQ(GetRecord(), "0:B0");
		EXPECT_EQ(TakeEvents(), "");
		Group->RefreshButtonReferences();
		EXPECT_EQ(GetStates(), "100");
	}

	// Multiple selection.

	TEST_F(FHxButtonGroupTest, MultiModeTellsTheClearBeforeTheChange)
	{
		ShowGroup(Multi, true, {});
		Click(*Buttons[1]);
		EXPECT_EQ(TakeEvents(), "B1=1 some[1]");
		Click(*Buttons[0]);
		EXPECT_EQ(TakeEvents(), "B0=1 some[1,0]") << "in the order of the record";
		Click(*Buttons[1]);
		EXPECT_EQ(TakeEvents(), "B1=0 some[0]");
		Click(*Buttons[0]);
		EXPECT_EQ(TakeEvents(), "B0=0 cleared empty[]");
	}

	TEST_F(FHxButtonGroupTest, MultiModeThatMustNotBeEmptyBlocksTheLastOne)
	{
		ShowGroup(Multi, false, { 0, 2 });
		EXPECT_EQ(GetModes(), "TTT");
		Click(*Buttons[2]);
		EXPECT_EQ(TakeEvents(), "B2=0 some[0]");
		EXPECT_EQ(GetModes(), "BTT");
		Click(*Buttons[0]);
		EXPECT_EQ(TakeEvents(), "");
		Click(*Buttons[1]);
		EXPECT_EQ(TakeEvents(), "B1=1 some[0,1]");
		EXPECT_EQ(GetModes(), "TTT");
	}

	TEST_F(FHxButtonGroupTest, ChangesAreListedInTheOrderOfTheRecord)
	{
		ShowGroup(Multi, false, { 0, 2 });
		Click(*Buttons[0]);
		Click(*Buttons[1]);
		TakeEvents();
		EXPECT_EQ(GetRecord(), "1:B1 2:B2");
		Click(*Buttons[0]);
		EXPECT_EQ(TakeEvents(), "B0=1 some[1,2,0]");
		EXPECT_EQ(Group->GetSelectionButtonIDs(), TArray<FName>({ TEXT("ID1"), TEXT("ID2"), TEXT("ID0") }));
	}

	TEST_F(FHxButtonGroupTest, SlotsOfDeselectedButtonsAreUsedAgainLastOneFirst)
	{
		ShowGroup(Multi, true, { 0, 1, 2, 3 }, 5);
		Click(*Buttons[0]);
		Click(*Buttons[2]);
		EXPECT_EQ(GetRecord(), "1:B1 3:B3");
		TakeEvents();
		Click(*Buttons[4]);
		EXPECT_EQ(TakeEvents(), "B4=1 some[1,4,3]");
		Click(*Buttons[2]);
		EXPECT_EQ(TakeEvents(), "B2=1 some[2,1,4,3]");
	}

	TEST_F(FHxButtonGroupTest, MultiModeDoesNotBlockASingleInitialSelection)
	{
		ShowGroup(Multi, false, { 1 });
		Click(*Buttons[1]);
		EXPECT_EQ(TakeEvents(), "B1=0 cleared empty[]");
	}

	TEST_F(FHxButtonGroupTest, ButtonInNoneModeReportsAsDeselected)
	{
		MakeGroup(Multi, true, { 0 });
		Buttons[1]->SelectionMode = EButtonSelectionMode::EBSM_None;
		Show();
		Group->SetSelectionByIndex(1);
		EXPECT_EQ(TakeEvents(), "B1=0 some[0]");
		EXPECT_EQ(GetRecord(), "0:B0");
	}

	TEST_F(FHxButtonGroupTest, MultiModePrunesEntriesWithoutALiveButton)
	{
		ShowGroup(Multi, true, { 0, 1, 2 });
		Group->SelectionButtons.Add(9, nullptr);
		Group->ButtonList.Remove(Buttons[1]);
		Buttons[1]->RemoveFromParent();
		Buttons[1]->MarkAsGarbage();
		Click(*Buttons[2]);
		EXPECT_EQ(TakeEvents(), "B2=0 some[0]");
		EXPECT_EQ(GetRecord(), "0:B0");
	}

	// Another control mode.

	TEST_F(FHxButtonGroupTest, UnknownControlModeDoesNothing)
	{
		MakeGroup(static_cast<EButtonGroupControlMode>(7), true, { 0 });
		Buttons[1]->SelectionMode = EButtonSelectionMode::EBSM_Toggle;
		Show();
		EXPECT_EQ(GetModes(), "NTN");
		EXPECT_EQ(GetRecord(), "0:B0");
		Click(*Buttons[1]);
		EXPECT_EQ(TakeEvents(), "B1=1");
		EXPECT_EQ(GetRecord(), "0:B0");
	}

	// Clearing.

	TEST_F(FHxButtonGroupTest, ClearThatIsNotAllowedIsToldAllTheSame)
	{
		ShowGroup(Single, false, { 1 });
		Group->ClearAllButtonSelection();
		EXPECT_EQ(TakeEvents(), "cleared");
		EXPECT_EQ(GetStates(), "010");
		EXPECT_EQ(GetRecord(), "1:B1");
	}

	TEST_F(FHxButtonGroupTest, ClearOfNothingIsTold)
	{
		ShowGroup(Single, true, {});
		Group->ClearAllButtonSelection();
		EXPECT_EQ(TakeEvents(), "cleared");
	}

	TEST_F(FHxButtonGroupTest, ClearInSingleModeIsToldTwice)
	{
		ShowGroup(Single, true, { 1 });
		Group->ClearAllButtonSelection();
		EXPECT_EQ(TakeEvents(), "B1=0 empty[] cleared cleared");
		EXPECT_EQ(GetStates(), "000");
	}

	TEST_F(FHxButtonGroupTest, ClearInMultiModeTellsEachStepAndTheClearTwice)
	{
		ShowGroup(Multi, true, { 0, 2 });
		Group->ClearAllButtonSelection();
		EXPECT_EQ(TakeEvents(), "B0=0 some[2] B2=0 cleared empty[] cleared");
		EXPECT_EQ(GetStates(), "000");
		EXPECT_EQ(GetRecord(), "");
	}

	TEST_F(FHxButtonGroupTest, ClearForgetsButtonsThatWereDeselectedSilently)
	{
		ShowGroup(Multi, true, { 0, 2 });
		Buttons[0]->SetSelectionState(false, false);
		Group->ClearAllButtonSelection();
		EXPECT_EQ(TakeEvents(), "B2=0 some[0] cleared");
		EXPECT_EQ(GetRecord(), "");
	}

	TEST_F(FHxButtonGroupTest, ClearSkipsDestroyedButtons)
	{
		ShowGroup(Multi, true, { 0, 1 });
		Group->ButtonList.Remove(Buttons[0]);
		Buttons[0]->RemoveFromParent();
		Buttons[0]->MarkAsGarbage();
		Group->SelectionButtons.Add(9, nullptr);
		Group->ClearAllButtonSelection();
		EXPECT_EQ(TakeEvents(), "B1=0 cleared empty[] cleared");
		EXPECT_FALSE(Group->HasSelection());
	}

	TEST_F(FHxButtonGroupTest, CleaningLetsTheButtonsGo)
	{
		ShowGroup(Single, true, { 1 });
		Group->CleanButtonList();
		EXPECT_EQ(TakeEvents(), "B1=0 empty[] cleared cleared");
		EXPECT_TRUE(Group->ButtonList.IsEmpty());
		EXPECT_TRUE(Group->SelectionButtons.IsEmpty());
		EXPECT_TRUE(Group->SelectedButtonsIndex.IsEmpty());
		for (const UHxButton* Button : Buttons)
		{
			EXPECT_EQ(CountBindings(*Button), 0);
		}
		Click(*Buttons[0]);
		EXPECT_EQ(TakeEvents(), "B0=1") << "other listeners stay";
	}

	TEST_F(FHxButtonGroupTest, CleaningAGroupThatMustNotBeEmptyKeepsTheButtonsStates)
	{
		ShowGroup(Single, false, { 1 });
		Group->CleanButtonList();
		EXPECT_EQ(TakeEvents(), "cleared");
		EXPECT_EQ(GetStates(), "010");
		EXPECT_FALSE(Group->HasSelection());
	}

	// The list.

	TEST_F(FHxButtonGroupTest, AddedButtonTakesPartFromTheNextRefreshOn)
	{
		ShowGroup(Single, true, { 0 });
		UHxButton* Added = MakeMember(3);
		Added->SelectionMode = EButtonSelectionMode::EBSM_Toggle;
		Settle();
		Group->AddButton(Added);
		EXPECT_EQ(Group->ButtonList.Num(), 4);
		EXPECT_EQ(Added->ButtonIndex, -1);
		Click(*Added);
		EXPECT_EQ(TakeEvents(), "B3=1");
		EXPECT_EQ(GetRecord(), "0:B0");
		Group->RefreshButtonReferences();
		EXPECT_EQ(Added->ButtonIndex, 3);
		EXPECT_EQ(GetStates(), "1000");
		Click(*Added);
		EXPECT_EQ(TakeEvents(), "B3=1 some[3]");
	}

	TEST_F(FHxButtonGroupTest, NullAndDuplicateButtonsCanBeAdded)
	{
		ShowGroup(Single, true, {});
		Group->AddButton(nullptr);
		Group->AddButton(Buttons[0]);
		EXPECT_EQ(Group->GetButtonList(), TArray<UHxButton*>({ Buttons[0], Buttons[1], Buttons[2], nullptr, Buttons[0] }));
		Group->RefreshButtonReferences();
		EXPECT_EQ(Buttons[0]->ButtonIndex, 4) << "the last place counts";
		EXPECT_EQ(CountBindings(*Buttons[0]), 1);
		Click(*Buttons[0]);
		EXPECT_EQ(GetRecord(), "4:B0");
		EXPECT_EQ(TakeEvents(), "B0=1 some[0]") << "the first place is listed";
	}

	TEST_F(FHxButtonGroupTest, RemovingTakesEveryOccurrenceAndKeepsTheOrder)
	{
		ShowGroup(Single, true, {});
		Group->AddButton(Buttons[0]);
		Group->AddButton(Buttons[1]);
		Group->RemoveButton(Buttons[0]);
		EXPECT_EQ(Group->GetButtonList(), TArray<UHxButton*>({ Buttons[1], Buttons[2], Buttons[1] }));
		Group->RemoveButton(nullptr);
		EXPECT_EQ(Group->GetButtonList().Num(), 3);
	}

	TEST_F(FHxButtonGroupTest, RemovedSelectedButtonStaysInTheRecord)
	{
		ShowGroup(Multi, true, { 0, 1 });
		Group->RemoveButton(Buttons[0]);
		EXPECT_TRUE(Group->HasSelection());
		EXPECT_EQ(Group->GetSelectionButtonIndexs(), TArray<int32>({ 0 })) << "B1 moved up, B0 is omitted";
		EXPECT_EQ(Group->GetSelectionButtonIDs(), TArray<FName>({ TEXT("ID0"), TEXT("ID1") }));
		EXPECT_EQ(Buttons[1]->ButtonIndex, 1) << "nothing is renumbered";
		EXPECT_EQ(CountBindings(*Buttons[0]), 1) << "nothing is unbound";
		EXPECT_EQ(TakeEvents(), "");
	}

	TEST_F(FHxButtonGroupTest, RemovedButtonStillReports)
	{
		ShowGroup(Single, true, { 1 });
		Group->RemoveButton(Buttons[0]);
		Click(*Buttons[0]);
		EXPECT_EQ(TakeEvents(), "B0=1 some[]");
		EXPECT_EQ(GetRecord(), "0:B0");
		EXPECT_EQ(GetStates(), "100");
	}

	TEST_F(FHxButtonGroupTest, NewListIsRefreshedAtOnce)
	{
		ShowGroup(Single, false, { 0 });
		Group->SetButtonList({ Buttons[2], Buttons[1] });
		EXPECT_EQ(Group->GetButtonList(), TArray<UHxButton*>({ Buttons[2], Buttons[1] }));
		EXPECT_EQ(Buttons[2]->ButtonIndex, 0);
		EXPECT_EQ(GetRecord(), "0:B2");
		EXPECT_EQ(GetStates(), "101") << "a button that left the list keeps its state";
		EXPECT_EQ(TakeEvents(), "");
	}

	TEST_F(FHxButtonGroupTest, ListIsGivenAsACopy)
	{
		ShowGroup(Single, true, {});
		Group->GetButtonList().Empty();
		EXPECT_EQ(Group->GetButtonList().Num(), 3);
	}

	// Selecting from code.

	TEST_F(FHxButtonGroupTest, SelectionByIndexGoesTheWayOfAClick)
	{
		ShowGroup(Single, false, { 1 });
		Group->SetSelectionByIndex(2);
		EXPECT_EQ(TakeEvents(), "B2=1 some[2]");
		EXPECT_EQ(GetStates(), "001");
		Group->SetSelectionByIndex(2);
		EXPECT_EQ(TakeEvents(), "") << "it is selected already";
		Group->SetSelectionByIndex(3);
		Group->SetSelectionByIndex(-1);
		EXPECT_EQ(TakeEvents(), "");
	}

	TEST_F(FHxButtonGroupTest, SelectionByButtonGoesTheWayOfAClick)
	{
		ShowGroup(Multi, true, { 1 });
		Group->SetSelectionByButton(Buttons[0]);
		EXPECT_EQ(TakeEvents(), "B0=1 some[1,0]");
		Group->SetSelectionByButton(nullptr);
		EXPECT_EQ(TakeEvents(), "");
	}

	TEST_F(FHxButtonGroupTest, SelectionByIdentifierTakesTheFirstOfThatIdentifier)
	{
		MakeGroup(Single, true, {});
		Buttons[2]->ButtonID = TEXT("ID1");
		Show();
		Group->SetSelectionByButtonID(TEXT("ID1"));
		EXPECT_EQ(TakeEvents(), "B1=1 some[1]");
		Group->SetSelectionByButtonID(TEXT("NoSuchID"));
		Group->SetSelectionByButtonID(NAME_None);
		EXPECT_EQ(TakeEvents(), "");
	}

	TEST_F(FHxButtonGroupTest, NoneIdentifierSelectsNothingThoughAButtonHasIt)
	{
		MakeGroup(Single, true, {});
		Buttons[0]->ButtonID = NAME_None;
		Show();
		Group->SetSelectionByButtonID(NAME_None);
		EXPECT_EQ(TakeEvents(), "");
	}

	TEST_F(FHxButtonGroupTest, SelectionInAnEmptyGroupDoesNothing)
	{
		ShowGroup(Single, true, {}, 0);
		Group->SetSelectionByIndex(0);
		Group->SetSelectionByButtonID(TEXT("ID0"));
		EXPECT_EQ(TakeEvents(), "");
		EXPECT_TRUE(Group->GetSelectionButtonIndexs().IsEmpty());
		EXPECT_TRUE(Group->GetSelectionButtonIDs().IsEmpty());
	}

	TEST_F(FHxButtonGroupTest, SelectedIndexesAreTakenWholeAndToldOnce)
	{
		ShowGroup(Single, true, { 1 });
		Group->SetSelectedIndex({ 0, 2 });
		EXPECT_EQ(TakeEvents(), "some[0,2]");
		EXPECT_EQ(GetStates(), "101");
		EXPECT_EQ(Group->SelectedButtonsIndex, TArray<int32>({ 0, 2 }));
		Group->SetSelectedIndex({});
		EXPECT_EQ(TakeEvents(), "empty[]");
		EXPECT_EQ(GetStates(), "000");
	}

	// The designer.

	TEST_F(FHxButtonGroupTest, DesignerIgnoresWhatTheButtonsReport)
	{
		MakeGroup(Single, true, { 0 });
		ShowInDesigner();
		Buttons[1]->SetSelectionState(true, true);
		EXPECT_EQ(TakeEvents(), "B1=1");
		EXPECT_EQ(GetStates(), "110");
		EXPECT_EQ(GetRecord(), "0:B0");
	}

	TEST_F(FHxButtonGroupTest, EditedSelectionIsTrimmedToOneInSingleMode)
	{
		MakeGroup(Single, true, {}, 4);
		ShowInDesigner();
		Edit(TEXT("SelectedButtonsIndex"), TEXT("(3,1)"));
		EXPECT_EQ(Group->SelectedButtonsIndex, TArray<int32>({ 3 }));
		EXPECT_EQ(GetStates(), "0001");
		EXPECT_EQ(GetRecord(), "3:B3");
		EXPECT_EQ(TakeEvents(), "");
	}

	TEST_F(FHxButtonGroupTest, EditedSelectionLosesOneIndexInMultiModeWhenThereAreMoreThanButtons)
	{
		MakeGroup(Multi, true, {});
		ShowInDesigner();
		Edit(TEXT("SelectedButtonsIndex"), TEXT("(0,1,2)"));
		EXPECT_EQ(Group->SelectedButtonsIndex, TArray<int32>({ 0, 1, 2 }));
		Edit(TEXT("SelectedButtonsIndex"), TEXT("(0,1,1,0,0)"));
		EXPECT_EQ(Group->SelectedButtonsIndex, TArray<int32>({ 0, 1, 1, 0 })) << "one an edit";
		EXPECT_EQ(GetStates(), "110");
	}

	TEST_F(FHxButtonGroupTest, EditedSelectionLeavesEntriesOfTheRecord)
	{
		MakeGroup(Single, true, { 0 });
		ShowInDesigner();
		Edit(TEXT("SelectedButtonsIndex"), TEXT("(2)"));
		EXPECT_EQ(GetStates(), "001");
		EXPECT_EQ(GetRecord(), "0:B0 2:B2") << "entries of buttons that are deselected stay";
	}

	TEST_F(FHxButtonGroupTest, EditedRuleRefreshesTheButtons)
	{
		MakeGroup(Single, true, { 0 });
		ShowInDesigner();
		EXPECT_EQ(GetModes(), "TTT");
		Edit(TEXT("bAllowNoneSelection"), TEXT("False"));
		EXPECT_EQ(GetModes(), "BBB");
		EXPECT_EQ(GetRecord(), "0:B0");
	}

	TEST_F(FHxButtonGroupTest, EditedListRefreshesTheButtons)
	{
		MakeGroup(Single, true, { 0 });
		ShowInDesigner();
		FString Error;
		ASSERT_TRUE(Host::FPropertyEdit::RemoveElement(Group, TEXT("ButtonList[0]"), Error)) << Host::ToStd(Error);
		EXPECT_EQ(Buttons[1]->ButtonIndex, 0);
		EXPECT_EQ(GetRecord(), "0:B1");
	}

	TEST_F(FHxButtonGroupTest, EditedControlModeAloneRefreshesNothing)
	{
		MakeGroup(Multi, true, { 0 });
		ShowInDesigner();
		Buttons[2]->SelectionMode = EButtonSelectionMode::EBSM_None;
		Buttons[2]->bSelectedButton = true;
		Edit(TEXT("ButtonGroupControlMode"), TEXT("EBGM_SingleSelection"));
		EXPECT_EQ(Group->ButtonGroupControlMode, Single);
		EXPECT_EQ(GetModes(), "TTN");
		EXPECT_EQ(GetStates(), "101");
	}

	// Derived groups.

	TEST_F(FHxButtonGroupTest, DerivedGroupsChangeTheRules)
	{
		UKitTestButtonGroup* Derived = Make<UKitTestButtonGroup>(TEXT("Derived"));
		UHxButton* Button = MakeMember(0);
		Derived->ButtonList.Add(Button);
		Place(*Derived, 10.0, 10.0);
		Show();
		Click(*Button);
		Derived->ButtonGroupControlMode = Multi;
		Click(*Button);
		EXPECT_EQ(Host::ToStd(FString::Join(Derived->Calls, TEXT(" "))), "single(B0,1) multi(B0,0)");
		EXPECT_FALSE(Derived->HasSelection());
	}
}
