#include "ButtonUserWidgetTestTools.h"

#include "Engine/Engine.h"
#include "Engine/GameInstance.h"
#include "KitReflection.h"
#include "gmock/gmock.h"

namespace
{
	using namespace KitReflection;

	class FHalvexButtonUWTest : public FButtonUserWidgetTest
	{
	protected:
		void MakeMember(EButtonSelectionMode Mode, bool bStartSelected = false)
		{
			Member = MakeOf<UKitTestButtonUW>(TEXT("Member"), TEXT("Member"));
			Member->ButtonID = TEXT("ID");
			Member->ButtonSelectionMode = Mode;
			Member->bStartSelected = bStartSelected;
			Listen(*Member);
			Member->OnButtonPressed.AddDynamic(Recorder.Get(), &UKitTestRecorder::OnClickWithID);
			Place(*Member, 100.0, 100.0);
		}

		void ShowMember(EButtonSelectionMode Mode, bool bStartSelected = false)
		{
			MakeMember(Mode, bStartSelected);
			Show();
		}

		UKitTestButtonUW* Member = nullptr;
	};

	TEST_F(FHalvexButtonUWTest, PropertiesStandInTheirOrderWithTheirTypes)
	{
		const UClass* Class = UHalvexButtonUW::StaticClass();
		EXPECT_EQ(Class->GetSuperClass(), UUserWidget::StaticClass());
		EXPECT_EQ(ListNames(Class), "SelectableButton HoverAnimation UnHoverAnimation OnButtonPressed OnButtonSelectionChange ButtonID bStartSelected ButtonSelectionMode");
		EXPECT_EQ(ListOutsideCategory(Class, TEXT("HalvexButtonUW")), "");
		EXPECT_EQ(GetType(Class, TEXT("SelectableButton")), "UHxButton*");
		EXPECT_TRUE(HasMeta(Class, TEXT("SelectableButton"), TEXT("BindWidget")));
		for (const TCHAR* Name : { TEXT("HoverAnimation"), TEXT("UnHoverAnimation") })
		{
			EXPECT_EQ(GetType(Class, Name), "UWidgetAnimation*");
			EXPECT_TRUE(HasMeta(Class, Name, TEXT("BindWidgetAnimOptional")));
		}
		EXPECT_EQ(DescribeEvent(Class, TEXT("OnButtonPressed")), "FName ButtonID");
		EXPECT_EQ(GetMeta(Class, TEXT("OnButtonPressed"), TEXT("ToolTip")), "Events");
		EXPECT_EQ(DescribeEvent(Class, TEXT("OnButtonSelectionChange")), "UHalvexButtonUW* ButtonReference");
		EXPECT_TRUE(GetMember(Class, TEXT("OnButtonPressed")).HasAnyPropertyFlags(CPF_BlueprintAssignable));
		EXPECT_TRUE(GetMember(Class, TEXT("OnButtonSelectionChange")).HasAnyPropertyFlags(CPF_BlueprintAssignable));
		EXPECT_EQ(GetType(Class, TEXT("ButtonID")), "FName");
		EXPECT_TRUE(GetMember(Class, TEXT("ButtonID")).HasAllPropertyFlags(CPF_Edit | CPF_ExposeOnSpawn));
		EXPECT_EQ(GetType(Class, TEXT("bStartSelected")), "bool");
		EXPECT_EQ(GetType(Class, TEXT("ButtonSelectionMode")), "EButtonSelectionMode");
	}

	TEST_F(FHalvexButtonUWTest, DefaultIsAnUnselectedButtonWithoutAMode)
	{
		const UHalvexButtonUW* Default = GetDefault<UHalvexButtonUW>();
		EXPECT_FALSE(Default->SelectableButton);
		EXPECT_TRUE(Default->ButtonID.IsNone());
		EXPECT_FALSE(Default->bStartSelected);
		EXPECT_EQ(Default->ButtonSelectionMode, EButtonSelectionMode::EBSM_None);
	}

	TEST_F(FHalvexButtonUWTest, FunctionsAreThoseThatBlueprintsCall)
	{
		const UClass* Class = UHalvexButtonUW::StaticClass();
		EXPECT_EQ(Describe(Class, TEXT("SelectButton")), "callable void SelectButton() in HalvexButtonUW");
		EXPECT_EQ(Describe(Class, TEXT("UnSelectButton")), "callable void UnSelectButton() in HalvexButtonUW");
		EXPECT_THAT(Describe(Class, TEXT("IsSelectedButton")), testing::StartsWith("pure "));
		EXPECT_THAT(Describe(Class, TEXT("GetButtonID")), testing::StartsWith("pure "));
		EXPECT_EQ(GetType(*Class->FindFunctionByName(TEXT("GetButtonID"))->GetReturnProperty()), "FName");
		EXPECT_THAT(Describe(Class, TEXT("OnSelectionButtonChanged")), testing::StartsWith("event "));
		EXPECT_EQ(ListNames(Class->FindFunctionByName(TEXT("OnSelectionButtonChanged"))), "Selected");
		EXPECT_EQ(ListNames(Class->FindFunctionByName(TEXT("Received_ButtonSelectionChanged"))), "ButtonChanged bSelected");
	}

	TEST_F(FHalvexButtonUWTest, ClickIsHeardAtTheUserWidget)
	{
		ShowMember(EButtonSelectionMode::EBSM_Toggle);
		EXPECT_EQ(TakeEvents(), "");
		Click(*Member);
		EXPECT_EQ(TakeEvents(), "hook(1) member(Member) click(ID)");
		Click(*Member);
		EXPECT_EQ(TakeEvents(), "hook(0) member(Member) click(ID)");
	}

	TEST_F(FHalvexButtonUWTest, SettingsReachTheButtonAtConstruction)
	{
		MakeMember(EButtonSelectionMode::EBSM_Blocked);
		EXPECT_TRUE(Member->GetButtonID().IsNone()) << "the identifier is the button's";
		EXPECT_EQ(Member->SelectableButton->SelectionMode, EButtonSelectionMode::EBSM_None);
		Show();
		EXPECT_EQ(Member->GetButtonID(), FName(TEXT("ID")));
		EXPECT_EQ(Member->SelectableButton->SelectionMode, EButtonSelectionMode::EBSM_Blocked);
		EXPECT_FALSE(Member->IsSelectedButton());
	}

	TEST_F(FHalvexButtonUWTest, StartSelectionIsToldWithThePreviousIdentifier)
	{
		MakeMember(EButtonSelectionMode::EBSM_Toggle, true);
		Member->SelectableButton->ButtonID = TEXT("Before");
		Recorder->Probe = [this]() { return Member->GetButtonID().ToString(); };
		Show();
		EXPECT_EQ(TakeEvents(), "hook(1)|Before member(Member)|Before");
		EXPECT_EQ(Member->GetButtonID(), FName(TEXT("ID")));
		EXPECT_TRUE(Member->IsSelectedButton());
	}

	TEST_F(FHalvexButtonUWTest, StartSelectionWithoutAModeIsToldAsUnselected)
	{
		ShowMember(EButtonSelectionMode::EBSM_None, true);
		EXPECT_EQ(TakeEvents(), "hook(0) member(Member)");
		EXPECT_FALSE(Member->IsSelectedButton());
		EXPECT_TRUE(Member->SelectableButton->bSelectedButton);
	}

	TEST_F(FHalvexButtonUWTest, ListenersOfTheButtonsClicksAreReplaced)
	{
		MakeMember(EButtonSelectionMode::EBSM_None);
		Member->SelectableButton->OnClickWithID.AddDynamic(Recorder.Get(), &UKitTestRecorder::OnClickWithID);
		Member->OnButtonPressed.Clear();
		Show();
		Click(*Member);
		EXPECT_EQ(TakeEvents(), "");
	}

	TEST_F(FHalvexButtonUWTest, ListenersThatComeAfterConstructionAreNotHeard)
	{
		MakeMember(EButtonSelectionMode::EBSM_None);
		Member->OnButtonPressed.Clear();
		Show();
		Member->OnButtonPressed.AddDynamic(Recorder.Get(), &UKitTestRecorder::OnClickWithID);
		Click(*Member);
		EXPECT_EQ(TakeEvents(), "");
	}

	TEST_F(FHalvexButtonUWTest, SelectsAndUnselectsFromCode)
	{
		ShowMember(EButtonSelectionMode::EBSM_Blocked);
		Member->SelectButton();
		EXPECT_EQ(TakeEvents(), "hook(1) member(Member)");
		EXPECT_TRUE(Member->IsSelectedButton());
		Member->SelectButton();
		EXPECT_EQ(TakeEvents(), "");
		Member->UnSelectButton();
		EXPECT_EQ(TakeEvents(), "hook(0) member(Member)");
		EXPECT_FALSE(Member->IsSelectedButton());
	}

	TEST_F(FHalvexButtonUWTest, IsConstructedAnewWhenItIsShownAgain)
	{
		ShowMember(EButtonSelectionMode::EBSM_Toggle, true);
		Click(*Member);
		TakeEvents();
		Screen->RemoveFromParent();
		Show();
		EXPECT_EQ(TakeEvents(), "hook(1) member(Member)") << "the start selection comes again, and is heard once";
		Click(*Member);
		EXPECT_EQ(TakeEvents(), "hook(0) member(Member) click(ID)");
	}

	TEST_F(FHalvexButtonUWTest, DesignerPreviewsTheSettingsAndTellsNothing)
	{
		MakeMember(EButtonSelectionMode::EBSM_Toggle, true);
		ShowInDesigner();
		EXPECT_EQ(Member->GetButtonID(), FName(TEXT("ID")));
		EXPECT_EQ(Member->SelectableButton->SelectionMode, EButtonSelectionMode::EBSM_Toggle);
		EXPECT_TRUE(Member->IsSelectedButton());
		EXPECT_FALSE(Member->SelectableButton->OnClickWithID.IsBound());
		EXPECT_FALSE(Member->SelectableButton->OnButtonSelectionChange.IsBound());
		EXPECT_EQ(TakeEvents(), "");
	}

	TEST_F(FHalvexButtonUWTest, WithoutItsButtonItIsInert)
	{
		UHalvexButtonUW* Bare = CreateWidget<UHalvexButtonUW>(GEngine->GetGameInstance());
		Bare->AddToViewport();
		Settle();
		Bare->UnSelectButton();
		EXPECT_FALSE(Bare->SelectableButton);
	}
}
