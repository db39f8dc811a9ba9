#include "HxButtonTestTools.h"

#include "Binding/States/WidgetStateRegistration.h"
#include "Host/PropertyEdit.h"
#include "KitReflection.h"

namespace
{
	using namespace KitReflection;

	class FHxButtonTest : public FHxButtonTestBase
	{
	protected:
		void ListenToStates()
		{
			Button->RegisterPostStateListener(FOnWidgetStateBroadcast::FDelegate::CreateLambda([this](UWidget*, const FWidgetStateBitfield& States)
			{
				Recorder->Note(States.HasAnyFlags(UWidgetHoveredStateRegistration::Bit) ? TEXT("state(hovered)") : TEXT("state(-)"));
			}));
		}
	};

	// What designers and blueprints see.

	TEST_F(FHxButtonTest, SelectionModesAreNamedForDesigners)
	{
		const UEnum* Enum = StaticEnum<EButtonSelectionMode>();
		ASSERT_GE(Enum->NumEnums(), 3);
		EXPECT_EQ(Host::ToStd(Enum->GetNameStringByValue(0)), "EBSM_None");
		EXPECT_EQ(Host::ToStd(Enum->GetNameStringByValue(1)), "EBSM_Toggle");
		EXPECT_EQ(Host::ToStd(Enum->GetNameStringByValue(2)), "EBSM_Blocked");
		EXPECT_EQ(Host::ToStd(Enum->GetDisplayNameTextByValue(0)), "None");
		EXPECT_EQ(Host::ToStd(Enum->GetDisplayNameTextByValue(1)), "Toggle");
		EXPECT_EQ(Host::ToStd(Enum->GetDisplayNameTextByValue(2)), "Blocked");
		EXPECT_EQ(Host::ToStd(Enum->GetToolTipTextByIndex(1)), "Toggle the selection status of the button on every click");
		EXPECT_EQ(Host::ToStd(Enum->GetToolTipTextByIndex(2)), "Keep blocked the button's selection until it's unselect via Blueprint");
		EXPECT_EQ(sizeof(EButtonSelectionMode), 1u);
		EXPECT_TRUE(Enum->HasMetaData(TEXT("BlueprintType")));
	}

	TEST_F(FHxButtonTest, ReactivityModesAreTheBitsOfAMask)
	{
		const UEnum* Enum = StaticEnum<EButtonReactivityMode>();
		EXPECT_TRUE(Enum->HasMetaData(TEXT("Bitflags")));
		EXPECT_EQ(Host::ToStd(Enum->GetMetaData(TEXT("UseEnumValuesAsMaskValuesInEditor"))), "true");
		EXPECT_EQ(Enum->GetValueByName(TEXT("EBRM_None")), 0);
		EXPECT_EQ(Enum->GetValueByName(TEXT("EBRM_Toggle")), 1);
		EXPECT_EQ(Enum->GetValueByName(TEXT("EBRM_Hover")), 2);
		EXPECT_TRUE(Enum->HasMetaData(TEXT("Hidden"), 0));
		EXPECT_FALSE(Enum->HasMetaData(TEXT("DisplayName"), 1));
		EXPECT_EQ(Host::ToStd(Enum->GetDisplayNameTextByValue(2)), "Hover");
		EXPECT_EQ(GetType(UHxButton::StaticClass(), TEXT("ReactivityMode")), "int32");
		EXPECT_TRUE(HasMeta(UHxButton::StaticClass(), TEXT("ReactivityMode"), TEXT("Bitmask")));
		EXPECT_EQ(GetMeta(UHxButton::StaticClass(), TEXT("ReactivityMode"), TEXT("BitmaskEnum")), "/Script/HalvexProUI.EButtonReactivityMode");
		EXPECT_EQ(GetMeta(UHxButton::StaticClass(), TEXT("ReactivityMode"), TEXT("Category")), "HalvexButton|Responsive");
	}

	TEST_F(FHxButtonTest, PropertiesStandInTheirOrder)
	{
		EXPECT_EQ(ListNames(UHxButton::StaticClass()),
			"OnClickWithID OnButtonSelectionChange ButtonIndex bSelectedButton ButtonID SelectionMode ReactivityMode ResponsiveText ResponsiveIcons Color CornerStyle SizeOverride");
		EXPECT_EQ(UHxButton::StaticClass()->GetSuperClass(), UButton::StaticClass());
	}

	TEST_F(FHxButtonTest, PropertiesHaveTheirTypes)
	{
		const UClass* Class = UHxButton::StaticClass();
		EXPECT_EQ(DescribeEvent(Class, TEXT("OnClickWithID")), "FName ButtonID");
		EXPECT_EQ(DescribeEvent(Class, TEXT("OnButtonSelectionChange")), "UHxButton* ButtonChanged, bool bSelected");
		EXPECT_EQ(GetType(Class, TEXT("ButtonIndex")), "int32");
		EXPECT_EQ(GetType(Class, TEXT("bSelectedButton")), "bool");
		EXPECT_EQ(GetType(Class, TEXT("ButtonID")), "FName");
		EXPECT_EQ(GetType(Class, TEXT("SelectionMode")), "EButtonSelectionMode");
		EXPECT_EQ(GetType(Class, TEXT("ResponsiveText")), "TArray<UHxText*>");
		EXPECT_EQ(GetType(Class, TEXT("ResponsiveIcons")), "TArray<UHxFontIcon*>");
		EXPECT_EQ(GetType(Class, TEXT("Color")), "FHalvexColorHandler");
		EXPECT_EQ(GetType(Class, TEXT("CornerStyle")), "FHalvexCornerStyle");
		EXPECT_EQ(GetType(Class, TEXT("SizeOverride")), "FHalvexSizeOverride");
	}

	TEST_F(FHxButtonTest, PropertiesAreOfferedForEditing)
	{
		const UClass* Class = UHxButton::StaticClass();
		for (const TCHAR* Name : { TEXT("OnClickWithID"), TEXT("OnButtonSelectionChange"), TEXT("bSelectedButton"), TEXT("ButtonID"), TEXT("SelectionMode"), TEXT("Color"), TEXT("CornerStyle"), TEXT("SizeOverride") })
		{
			EXPECT_EQ(GetMeta(Class, Name, TEXT("Category")), "HalvexButton") << Host::ToStd(FString(Name));
		}
		for (const TCHAR* Name : { TEXT("bSelectedButton"), TEXT("ButtonID"), TEXT("SelectionMode"), TEXT("ReactivityMode"), TEXT("ResponsiveText"), TEXT("ResponsiveIcons"), TEXT("Color"), TEXT("CornerStyle"), TEXT("SizeOverride") })
		{
			EXPECT_TRUE(GetMember(Class, Name).HasAnyPropertyFlags(CPF_Edit)) << Host::ToStd(FString(Name));
		}
		EXPECT_TRUE(GetMember(Class, TEXT("OnClickWithID")).HasAnyPropertyFlags(CPF_BlueprintAssignable));
		EXPECT_TRUE(GetMember(Class, TEXT("OnButtonSelectionChange")).HasAnyPropertyFlags(CPF_BlueprintAssignable));
		EXPECT_FALSE(GetMember(Class, TEXT("ButtonIndex")).HasAnyPropertyFlags(CPF_Edit));
		EXPECT_TRUE(GetMember(Class, TEXT("ButtonID")).HasAnyPropertyFlags(CPF_ExposeOnSpawn));
		EXPECT_TRUE(GetMember(Class, TEXT("ResponsiveText")).HasAnyPropertyFlags(CPF_InstancedReference | CPF_ContainsInstancedReference));
		EXPECT_TRUE(GetMember(Class, TEXT("ResponsiveIcons")).HasAnyPropertyFlags(CPF_InstancedReference | CPF_ContainsInstancedReference));
	}

	TEST_F(FHxButtonTest, DefaultsAreThoseOfAnUnselectedPrimaryButton)
	{
		const UHxButton* Default = GetDefault<UHxButton>();
		EXPECT_FALSE(Default->OnClickWithID.IsBound());
		EXPECT_FALSE(Default->OnButtonSelectionChange.IsBound());
		EXPECT_EQ(Default->ButtonIndex, -1);
		EXPECT_FALSE(Default->bSelectedButton);
		EXPECT_TRUE(Default->ButtonID.IsNone());
		EXPECT_EQ(Default->SelectionMode, EButtonSelectionMode::EBSM_None);
		EXPECT_EQ(Default->ReactivityMode, 1);
		EXPECT_TRUE(Default->ResponsiveText.IsEmpty());
		EXPECT_TRUE(Default->ResponsiveIcons.IsEmpty());
		EXPECT_EQ(Default->Color.ColorMode, EColorHandlerMode::ECHM_ColorStyle);
		EXPECT_EQ(Default->Color.ColorID, FName(TEXT("Primary")));
		EXPECT_FALSE(Default->Color.bUseContrast);
		EXPECT_FALSE(Default->Color.bOverrideOpacity);
		EXPECT_TRUE(Default->CornerStyle.bUseUniformCorner);
		EXPECT_EQ(Default->CornerStyle.UniformCorner, 5.0f);
		EXPECT_EQ(Default->CornerStyle.CornerRadius, FVector4(5.0, 5.0, 5.0, 5.0));
		EXPECT_EQ(Default->CornerStyle.RoundingType.GetValue(), ESlateBrushRoundingType::FixedRadius);
		EXPECT_TRUE(Default->SizeOverride.bUseOverride);
		EXPECT_EQ(Default->SizeOverride.SizeOverride, FVector2D(0.0, 0.0));
		EXPECT_FALSE(Default->SizeOverride.bUseAspectRatio);
		EXPECT_EQ(Default->SizeOverride.AspectRatio, 1.0f);
	}

	TEST_F(FHxButtonTest, FunctionsAreThoseThatBlueprintsCall)
	{
		const UClass* Class = UHxButton::StaticClass();
		EXPECT_EQ(Describe(Class, TEXT("IsButtonSelected")), "pure const bool IsButtonSelected() in HalvexButton");
		EXPECT_EQ(Describe(Class, TEXT("SetButtonID")), "callable void SetButtonID(FName NewButtonID) in HalvexButton");
		EXPECT_EQ(Describe(Class, TEXT("SetButtonSelectionMode")), "callable void SetButtonSelectionMode(EButtonSelectionMode NewMode) in HalvexButton");
		EXPECT_EQ(Describe(Class, TEXT("SetButtonStyle")), "callable void SetButtonStyle(FHalvexButtonStyle InButtonStyle) in HalvexButton");
		EXPECT_EQ(Describe(Class, TEXT("SetSelectionState")), "callable void SetSelectionState(bool bSelected, bool bNotificate = true) in HalvexButton");
		EXPECT_EQ(Describe(Class, TEXT("UpdateStyle")), "callable void UpdateStyle() in HalvexButton");
	}

	TEST_F(FHxButtonTest, PaletteListsItUnderTheProductsHeading)
	{
		EXPECT_EQ(DescribeText(Make<UHxButton>()->GetPaletteCategory()), "HalvexWidget/HalvexWidget: Halvex Widget");
	}

	// Selection from code.

	TEST_F(FHxButtonTest, EqualSelectionStateDoesNothing)
	{
		ShowButton(EButtonSelectionMode::EBSM_Toggle);
		Button->Color = FHalvexColorHandler(TEXT("Danger"), false);
		Button->SetSelectionState(false, true);
		EXPECT_EQ(TakeEvents(), "");
		EXPECT_EQ(GetBackground(), "7367F0FF") << "it was restyled";

		Button->SetSelectionState(true, true);
		TakeEvents();
		Button->Color = FHalvexColorHandler(TEXT("Warning"), false);
		Text->SetContrast(false);
		Button->SetSelectionState(true, true);
		EXPECT_EQ(TakeEvents(), "");
		EXPECT_EQ(GetBackground(), "EA5455FF") << "it was restyled";
		EXPECT_EQ(GetTextColour(), PlainText) << "its text was touched";
	}

	TEST_F(FHxButtonTest, NewSelectionStateRestylesUpdatesTheFollowersAndThenTells)
	{
		ShowButton(EButtonSelectionMode::EBSM_Toggle);
		Recorder->Probe = [this]() { return FString(UTF8_TO_TCHAR((GetBackground() + "," + GetTextColour() + "," + GetIconColour()).c_str())); };
		Button->SetSelectionState(true, true);
		EXPECT_EQ(TakeEvents(), "Button=1|FBFBFBFF," + ContrastText + "," + ContrastIcon);
		Button->SetSelectionState(false, true);
		EXPECT_EQ(TakeEvents(), "Button=0|7367F0FF," + PlainText + "," + PlainIcon);
	}

	TEST_F(FHxButtonTest, SelectionStateIsToldUnlessOtherwiseAsked)
	{
		ShowButton(EButtonSelectionMode::EBSM_Toggle);
		Button->SetSelectionState(true);
		EXPECT_EQ(TakeEvents(), "Button=1");
	}

	TEST_F(FHxButtonTest, SilentSelectionStateRestylesAndUpdatesTheFollowers)
	{
		ShowButton(EButtonSelectionMode::EBSM_Toggle);
		Button->SetSelectionState(true, false);
		EXPECT_EQ(TakeEvents(), "");
		EXPECT_TRUE(Button->IsButtonSelected());
		EXPECT_EQ(GetBackground(), "FBFBFBFF");
		EXPECT_EQ(GetTextColour(), ContrastText);
		EXPECT_EQ(GetIconColour(), ContrastIcon);
	}

	TEST_F(FHxButtonTest, SelectionReachesTheFollowersWhateverTheReactivityMode)
	{
		MakeButton(EButtonSelectionMode::EBSM_Toggle);
		Button->ReactivityMode = static_cast<int32>(EButtonReactivityMode::EBRM_None);
		Show();
		Button->SetSelectionState(true, false);
		EXPECT_EQ(GetTextColour(), ContrastText);
		EXPECT_EQ(GetIconColour(), ContrastIcon);
	}

	TEST_F(FHxButtonTest, InNoneModeTheChangeIsToldAsUnselected)
	{
		ShowButton(EButtonSelectionMode::EBSM_None);
		Button->SetSelectionState(true, true);
		EXPECT_EQ(TakeEvents(), "Button=0");
		EXPECT_TRUE(Button->bSelectedButton) << "the state is recorded all the same";
		EXPECT_FALSE(Button->IsButtonSelected());
		Button->SetSelectionState(true, true);
		EXPECT_EQ(TakeEvents(), "");
		Button->SetSelectionState(false, true);
		EXPECT_EQ(TakeEvents(), "Button=0");
	}

	TEST_F(FHxButtonTest, InNoneModeFollowersGoBackAtTheEventAndStayWithoutIt)
	{
		ShowButton(EButtonSelectionMode::EBSM_None);
		Button->SetSelectionState(true, true);
		EXPECT_EQ(GetTextColour(), PlainText);
		EXPECT_EQ(GetIconColour(), PlainIcon);
		Button->SetSelectionState(false, false);
		Button->SetSelectionState(true, false);
		EXPECT_EQ(GetTextColour(), ContrastText);
		EXPECT_EQ(GetIconColour(), ContrastIcon);
	}

	TEST_F(FHxButtonTest, IsSelectedInEveryModeButNone)
	{
		UHxButton* Plain = Make<UHxButton>();
		for (const EButtonSelectionMode Mode : { EButtonSelectionMode::EBSM_None, EButtonSelectionMode::EBSM_Toggle, EButtonSelectionMode::EBSM_Blocked })
		{
			Plain->SelectionMode = Mode;
			Plain->bSelectedButton = false;
			EXPECT_FALSE(Plain->IsButtonSelected());
			Plain->bSelectedButton = true;
			EXPECT_EQ(Plain->IsButtonSelected(), Mode != EButtonSelectionMode::EBSM_None);
		}
	}

	TEST_F(FHxButtonTest, CanBeSelectedBeforeItIsShown)
	{
		MakeButton(EButtonSelectionMode::EBSM_Toggle);
		Button->SetSelectionState(true, true);
		EXPECT_EQ(TakeEvents(), "Button=1");
		EXPECT_TRUE(Button->IsButtonSelected());
		EXPECT_EQ(Button->GetBackgroundColor(), FLinearColor::White) << "there is nothing to style yet";
		Show();
		EXPECT_EQ(GetBackground(), "FBFBFBFF");
		EXPECT_EQ(TakeEvents(), "");
	}

	TEST_F(FHxButtonTest, NullFollowersAreSkipped)
	{
		MakeButton(EButtonSelectionMode::EBSM_Toggle);
		Button->ResponsiveText.Insert(nullptr, 0);
		Button->ResponsiveIcons.Insert(nullptr, 0);
		Button->ReactivityMode = static_cast<int32>(EButtonReactivityMode::EBRM_Toggle) | static_cast<int32>(EButtonReactivityMode::EBRM_Hover);
		Show();
		Click(*Button);
		MoveAway();
		EXPECT_EQ(TakeEvents(), "Button=1 click(ID)");
	}

	TEST_F(FHxButtonTest, SettersStoreAndNothingElse)
	{
		ShowButton(EButtonSelectionMode::EBSM_None);
		Button->Color = FHalvexColorHandler(TEXT("Danger"), false);
		Button->SetButtonID(TEXT("Other"));
		Button->SetButtonSelectionMode(EButtonSelectionMode::EBSM_Blocked);
		EXPECT_EQ(Button->ButtonID, FName(TEXT("Other")));
		EXPECT_EQ(Button->SelectionMode, EButtonSelectionMode::EBSM_Blocked);
		EXPECT_EQ(GetBackground(), "7367F0FF") << "it was restyled";
		EXPECT_EQ(TakeEvents(), "");
	}

	// Clicks.

	TEST_F(FHxButtonTest, ClickInNoneModeOnlyCarriesTheIdentifier)
	{
		ShowButton(EButtonSelectionMode::EBSM_None);
		Click(*Button);
		EXPECT_EQ(TakeEvents(), "click(ID)");
		EXPECT_FALSE(Button->bSelectedButton);
	}

	TEST_F(FHxButtonTest, ClickInToggleModeChangesTheSelectionAndThenCarriesTheIdentifier)
	{
		ShowButton(EButtonSelectionMode::EBSM_Toggle);
		Recorder->Probe = [this]() { return FString(UTF8_TO_TCHAR(GetTextColour().c_str())); };
		Click(*Button);
		EXPECT_EQ(TakeEvents(), "Button=1|" + ContrastText + " click(ID)|" + ContrastText);
		Click(*Button);
		EXPECT_EQ(TakeEvents(), "Button=0|" + PlainText + " click(ID)|" + PlainText);
	}

	TEST_F(FHxButtonTest, BlockedButtonIsSelectedOnceAndThenSwallowsClicks)
	{
		ShowButton(EButtonSelectionMode::EBSM_Blocked);
		Click(*Button);
		EXPECT_EQ(TakeEvents(), "Button=1 click(ID)");
		Click(*Button);
		Click(*Button);
		EXPECT_EQ(TakeEvents(), "");
		EXPECT_TRUE(Button->IsButtonSelected());
	}

	TEST_F(FHxButtonTest, BlockedButtonIsReleasedFromOutside)
	{
		ShowButton(EButtonSelectionMode::EBSM_Blocked);
		Click(*Button);
		TakeEvents();
		Button->SetSelectionState(false, true);
		EXPECT_EQ(TakeEvents(), "Button=0");
		Click(*Button);
		EXPECT_EQ(TakeEvents(), "Button=1 click(ID)");
	}

	TEST_F(FHxButtonTest, BlockedButtonSwallowsClicksWhileWhatIsBelowGetsNoneEither)
	{
		MakeButton(EButtonSelectionMode::EBSM_Blocked);
		UButton* Below = Make<UButton>(TEXT("Below"));
		Place(*Below, 50.0, 50.0, FVector2D(400.0, 200.0));
		Below->OnClicked.AddDynamic(Recorder.Get(), &UKitTestRecorder::OnClicked);
		CastChecked<UCanvasPanelSlot>(Button->Slot)->SetZOrder(1);
		Button->bSelectedButton = true;
		Show();
		Click(*Button);
		EXPECT_EQ(TakeEvents(), "");
	}

	TEST_F(FHxButtonTest, ModeSetFromCodeRulesTheNextClick)
	{
		ShowButton(EButtonSelectionMode::EBSM_None);
		Button->SetButtonSelectionMode(EButtonSelectionMode::EBSM_Toggle);
		Click(*Button);
		Button->SetButtonSelectionMode(EButtonSelectionMode::EBSM_Blocked);
		Click(*Button);
		EXPECT_EQ(TakeEvents(), "Button=1 click(ID)");
	}

	TEST_F(FHxButtonTest, ClickWithoutListenersChangesTheSelection)
	{
		ShowButton(EButtonSelectionMode::EBSM_Toggle);
		Button->OnButtonSelectionChange.Clear();
		Button->OnClickWithID.Clear();
		Click(*Button);
		EXPECT_TRUE(Button->IsButtonSelected());
		EXPECT_EQ(TakeEvents(), "");
	}

	TEST_F(FHxButtonTest, EnginesOwnClickEventIsReplaced)
	{
		ShowButton(EButtonSelectionMode::EBSM_Toggle);
		Button->OnClicked.AddDynamic(Recorder.Get(), &UKitTestRecorder::OnClicked);
		Click(*Button);
		EXPECT_EQ(TakeEvents(), "Button=1 click(ID)");
	}

	TEST_F(FHxButtonTest, EnginesPressAndReleaseEventsStay)
	{
		ShowButton(EButtonSelectionMode::EBSM_None);
		Button->OnClickWithID.Clear();
		Button->OnPressed.AddDynamic(Recorder.Get(), &UKitTestRecorder::OnPressed);
		Button->OnReleased.AddDynamic(Recorder.Get(), &UKitTestRecorder::OnReleased);
		Click(*Button);
		EXPECT_EQ(TakeEvents(), "pressed released");
	}

	TEST_F(FHxButtonTest, ReleaseElsewhereIsNoClick)
	{
		ShowButton(EButtonSelectionMode::EBSM_Toggle);
		MoveTo(*Button);
		Driver.Press();
		MoveAway();
		Driver.Release();
		EXPECT_EQ(TakeEvents(), "");
		EXPECT_FALSE(Button->bSelectedButton);
	}

	TEST_F(FHxButtonTest, RightButtonIsNoClick)
	{
		ShowButton(EButtonSelectionMode::EBSM_Toggle);
		Driver.ClickAt(Driver.GetMiddle(*Button), EKeys::RightMouseButton);
		EXPECT_EQ(TakeEvents(), "");
	}

	TEST_F(FHxButtonTest, KeysClickLikeTheMouse)
	{
		ShowButton(EButtonSelectionMode::EBSM_Toggle);
		// A press gives the keyboard to the button.
		MoveTo(*Button);
		Driver.Press();
		MoveAway();
		Driver.Release();
		EXPECT_EQ(TakeEvents(), "");
		Driver.PressKey(EKeys::Enter);
		EXPECT_EQ(TakeEvents(), "Button=1 click(ID)");
		Driver.PressKey(EKeys::SpaceBar);
		EXPECT_EQ(TakeEvents(), "Button=0 click(ID)");
	}

	TEST_F(FHxButtonTest, DisabledButtonIgnoresClicks)
	{
		ShowButton(EButtonSelectionMode::EBSM_Toggle);
		Button->SetIsEnabled(false);
		Settle();
		Click(*Button);
		EXPECT_EQ(TakeEvents(), "");
		Button->SetIsEnabled(true);
		Settle();
		Click(*Button);
		EXPECT_EQ(TakeEvents(), "Button=1 click(ID)");
	}

	TEST_F(FHxButtonTest, ListenerMayChangeTheSelectionBack)
	{
		ShowButton(EButtonSelectionMode::EBSM_Toggle);
		Recorder->Probe = [this]()
		{
			Button->SetSelectionState(false, false);
			return FString(Button->bSelectedButton ? TEXT("on") : TEXT("off"));
		};
		Click(*Button);
		EXPECT_EQ(TakeEvents(), "Button=1|off click(ID)|off");
		EXPECT_EQ(GetBackground(), "7367F0FF");
	}

	// Hover.

	TEST_F(FHxButtonTest, HoverEventsAreThoseOfTheEngine)
	{
		ShowButton(EButtonSelectionMode::EBSM_Toggle);
		ListenToHover(*Button);
		MoveTo(*Button);
		EXPECT_EQ(TakeEvents(), "hovered");
		MoveAway();
		EXPECT_EQ(TakeEvents(), "unhovered");
	}

	TEST_F(FHxButtonTest, HoveringABlockedSelectedButtonTellsNothingAndUnhoveringDoes)
	{
		ShowButton(EButtonSelectionMode::EBSM_Blocked);
		Button->SetSelectionState(true, false);
		ListenToHover(*Button);
		MoveTo(*Button);
		EXPECT_EQ(TakeEvents(), "");
		MoveAway();
		EXPECT_EQ(TakeEvents(), "unhovered");
	}

	TEST_F(FHxButtonTest, HoveringASelectedToggleButtonTells)
	{
		ShowButton(EButtonSelectionMode::EBSM_Toggle);
		Button->SetSelectionState(true, false);
		ListenToHover(*Button);
		MoveTo(*Button);
		MoveAway();
		EXPECT_EQ(TakeEvents(), "hovered unhovered");
	}

	TEST_F(FHxButtonTest, HoverIsReportedToTheStateListenersAfterItsEvent)
	{
		ShowButton(EButtonSelectionMode::EBSM_Toggle);
		ListenToHover(*Button);
		ListenToStates();
		TakeEvents();
		MoveTo(*Button);
		EXPECT_EQ(TakeEvents(), "hovered state(hovered)");
		MoveAway();
		EXPECT_EQ(TakeEvents(), "unhovered state(-)");
	}

	TEST_F(FHxButtonTest, HoverOfABlockedSelectedButtonIsNotReportedToTheStateListeners)
	{
		ShowButton(EButtonSelectionMode::EBSM_Blocked);
		Button->SetSelectionState(true, false);
		ListenToStates();
		TakeEvents();
		MoveTo(*Button);
		EXPECT_EQ(TakeEvents(), "");
	}

	TEST_F(FHxButtonTest, HoverReachesTheFollowersOnlyWhenAskedFor)
	{
		ShowButton(EButtonSelectionMode::EBSM_None);
		MoveTo(*Button);
		EXPECT_EQ(GetTextColour(), PlainText);
		EXPECT_EQ(GetIconColour(), PlainIcon);
		MoveAway();

		Button->ReactivityMode = static_cast<int32>(EButtonReactivityMode::EBRM_Hover);
		MoveTo(*Button);
		EXPECT_EQ(GetTextColour(), ContrastText);
		EXPECT_EQ(GetIconColour(), HoverIcon);
		MoveAway();
		EXPECT_EQ(GetTextColour(), PlainText);
		EXPECT_EQ(GetIconColour(), PlainIcon);
	}

	TEST_F(FHxButtonTest, FollowersAreUpdatedBeforeTheHoverIsTold)
	{
		ShowButton(EButtonSelectionMode::EBSM_None);
		Button->ReactivityMode = static_cast<int32>(EButtonReactivityMode::EBRM_Hover);
		ListenToHover(*Button);
		Recorder->Probe = [this]() { return FString(UTF8_TO_TCHAR(GetIconColour().c_str())); };
		MoveTo(*Button);
		MoveAway();
		EXPECT_EQ(TakeEvents(), "hovered|" + HoverIcon + " unhovered|" + PlainIcon);
	}

	TEST_F(FHxButtonTest, HoverReachesTheFollowersOfABlockedSelectedButtonToo)
	{
		ShowButton(EButtonSelectionMode::EBSM_Blocked);
		Button->ReactivityMode = static_cast<int32>(EButtonReactivityMode::EBRM_Hover);
		Button->SetSelectionState(true, false);
		MoveTo(*Button);
		EXPECT_EQ(GetIconColour(), HoverIcon);
		MoveAway();
		EXPECT_EQ(GetIconColour(), ContrastIcon);
	}

	TEST_F(FHxButtonTest, UnhoveringASelectedButtonTakesTheContrastOfItsTexts)
	{
		ShowButton(EButtonSelectionMode::EBSM_Toggle);
		Button->ReactivityMode = static_cast<int32>(EButtonReactivityMode::EBRM_Hover);
		Button->SetSelectionState(true, false);
		EXPECT_EQ(GetTextColour(), ContrastText);
		MoveTo(*Button);
		EXPECT_EQ(GetTextColour(), ContrastText);
		MoveAway();
		EXPECT_EQ(GetTextColour(), PlainText);
		EXPECT_EQ(GetIconColour(), ContrastIcon) << "icons have a flag of their own for the hover";
	}

	TEST_F(FHxButtonTest, ReactivitySetsTheContrastOfTextsAndIcons)
	{
		ShowButton(EButtonSelectionMode::EBSM_None);
		Button->SetReactivity(true);
		EXPECT_EQ(GetTextColour(), ContrastText);
		EXPECT_TRUE(Icon->bUseContrast);
		EXPECT_EQ(GetIconColour(), ContrastIcon);
		Button->SetReactivity(false);
		EXPECT_EQ(GetTextColour(), PlainText);
		EXPECT_EQ(GetIconColour(), PlainIcon);
	}

	TEST_F(FHxButtonTest, HoverReactivitySetsTheContrastOfTextsAndTheHoverOfIcons)
	{
		ShowButton(EButtonSelectionMode::EBSM_None);
		Button->SetReactivityHover(true);
		EXPECT_EQ(GetTextColour(), ContrastText);
		EXPECT_FALSE(Icon->bUseContrast);
		EXPECT_EQ(GetIconColour(), HoverIcon);
		Button->SetReactivityHover(false);
		EXPECT_EQ(GetTextColour(), PlainText);
		EXPECT_EQ(GetIconColour(), PlainIcon);
	}

	// Synchronisation.

	TEST_F(FHxButtonTest, FollowersAreBoundOnceHoweverOftenItIsSynchronised)
	{
		ShowButton(EButtonSelectionMode::EBSM_Toggle);
		Button->SynchronizeProperties();
		Button->SynchronizeProperties();
		const TArray<UObject*> Bound = Button->OnButtonSelectionChange.GetAllObjects();
		EXPECT_EQ(Bound.FilterByPredicate([this](const UObject* Object) { return Object == Text; }).Num(), 1);
		EXPECT_EQ(Bound.FilterByPredicate([this](const UObject* Object) { return Object == Icon; }).Num(), 1);
	}

	TEST_F(FHxButtonTest, SynchronisingAtRunTimeLeavesTheFollowersAsTheyAre)
	{
		MakeButton(EButtonSelectionMode::EBSM_Toggle);
		Button->bSelectedButton = true;
		Show();
		EXPECT_EQ(GetTextColour(), PlainText);
		EXPECT_EQ(GetIconColour(), PlainIcon);
	}

	TEST_F(FHxButtonTest, DesignerShowsTheFollowersInTheSelectedLookAndBindsNothing)
	{
		MakeButton(EButtonSelectionMode::EBSM_Toggle);
		Button->bSelectedButton = true;
		Button->OnButtonSelectionChange.Clear();
		ShowInDesigner();
		EXPECT_EQ(GetTextColour(), ContrastText);
		EXPECT_EQ(GetIconColour(), ContrastIcon);
		EXPECT_FALSE(Button->OnButtonSelectionChange.IsBound());
	}

	TEST_F(FHxButtonTest, EditingTheSelectionInTheDesignerRestylesAndTellsNothing)
	{
		MakeButton(EButtonSelectionMode::EBSM_Toggle);
		ShowInDesigner();
		FString Error;
		ASSERT_TRUE(Host::FPropertyEdit::SetFromText(Button, TEXT("bSelectedButton"), TEXT("True"), Error)) << Host::ToStd(Error);
		EXPECT_EQ(TakeEvents(), "");
		EXPECT_EQ(GetBackground(), "FBFBFBFF");
		EXPECT_EQ(GetTextColour(), ContrastText);
		ASSERT_TRUE(Host::FPropertyEdit::SetFromText(Button, TEXT("bSelectedButton"), TEXT("False"), Error)) << Host::ToStd(Error);
		EXPECT_EQ(GetBackground(), "7367F0FF");
		EXPECT_EQ(GetTextColour(), PlainText);
	}

	TEST_F(FHxButtonTest, EditingAColourInTheDesignerRestyles)
	{
		MakeButton(EButtonSelectionMode::EBSM_Toggle);
		ShowInDesigner();
		FString Error;
		ASSERT_TRUE(Host::FPropertyEdit::SetFromText(Button, TEXT("Color.ColorID"), TEXT("Danger"), Error)) << Host::ToStd(Error);
		EXPECT_EQ(GetBackground(), "EA5455FF");
	}

	TEST_F(FHxButtonTest, BoxOfTheSizeIsTheRootAndHoldsTheButton)
	{
		ShowButton(EButtonSelectionMode::EBSM_None);
		const TSharedPtr<SWidget> Root = Button->GetCachedWidget();
		ASSERT_TRUE(Root);
		EXPECT_EQ(Root->GetType(), FName(TEXT("SBox")));
		ASSERT_EQ(Root->GetChildren()->Num(), 1);
		EXPECT_EQ(Root->GetChildren()->GetChildAt(0)->GetType(), FName(TEXT("SButton")));
	}

	TEST_F(FHxButtonTest, SlateSideGoesWhenItIsReleased)
	{
		ShowButton(EButtonSelectionMode::EBSM_Toggle);
		const TWeakPtr<SWidget> Root = Button->GetCachedWidget();
		Button->RemoveFromParent();
		Settle();
		EXPECT_FALSE(Root.IsValid());
		Button->SetSelectionState(true, true);
		EXPECT_EQ(TakeEvents(), "Button=1");
	}

	TEST_F(FHxButtonTest, WorksAgainWhenItIsShownAgain)
	{
		ShowButton(EButtonSelectionMode::EBSM_Toggle);
		Screen->RemoveFromParent();
		Show();
		Click(*Button);
		EXPECT_EQ(TakeEvents(), "Button=1 click(ID)");
		EXPECT_EQ(GetTextColour(), ContrastText);
	}
}
