#include "EngineTest.h"

#include "Blueprint/UserWidget.h"
#include "Blueprint/WidgetTree.h"
#include "BindingTestWidget.h"
#include "Components/Border.h"
#include "Components/CheckBox.h"
#include "Components/ComboBoxString.h"
#include "Components/EditableText.h"
#include "Components/ProgressBar.h"
#include "Components/Slider.h"
#include "Components/TextBlock.h"
#include "Engine/Engine.h"
#include "Engine/GameInstance.h"
#include "HAL/PlatformProcess.h"
#include "TemporaryContent.h"
#include "UObject/UnrealType.h"
#include "Widgets/HxButton.h"
#include "Widgets/HxButtonGroup.h"
#include "gmock/gmock.h"

namespace
{
	class FWidgetBlueprintTest : public Host::FEngineTest
	{
	protected:
		/** Writes a blueprint and loads its class. */
		UClass* Load(const TCHAR* Name, const char* Json, const char* Graph = nullptr)
		{
			Content.Write(*(FString(Name) + TEXT(".widget.json")), Json);
			if (Graph)
			{
				Content.Write(*(FString(Name) + TEXT(".lua")), Graph);
			}
			return LoadObject<UClass>(nullptr, *FString::Printf(TEXT("/Blueprints/%s.%s_C"), Name, Name));
		}

		UUserWidget* Show(UClass* Class)
		{
			UUserWidget* Widget = CreateWidget<UUserWidget>(GEngine->GetGameInstance(), Class);
			Widget->AddToViewport();
			Loop.RunUntilIdle();
			return Widget;
		}

		static std::string GetTextOf(const UUserWidget& Widget, const TCHAR* Name)
		{
			const UTextBlock* Text = Cast<UTextBlock>(Widget.GetWidgetFromName(Name));
			return Text ? Host::ToStd(Text->GetText()) : "(none)";
		}

		Host::FTemporaryContent Content{ TEXT("/Blueprints/") };
		int32 NumImports = 0;
	};

	const char* const OneText = R"({ "Root": { "Class": "Border", "Children": [ { "Class": "TextBlock", "Name": "Label", "Properties": { "Text": "Hello" } } ] } })";

	TEST_F(FWidgetBlueprintTest, InstancesGetTheirOwnCopyOfTheTree)
	{
		UClass* Class = Load(TEXT("Copies"), OneText);
		ASSERT_TRUE(Class);
		UUserWidget* First = Show(Class);
		UUserWidget* Second = Show(Class);
		EXPECT_EQ(GetTextOf(*First, TEXT("Label")), "Hello");
		EXPECT_NE(First->GetWidgetFromName(TEXT("Label")), Second->GetWidgetFromName(TEXT("Label")));
		CastChecked<UTextBlock>(First->GetWidgetFromName(TEXT("Label")))->SetText(FText::FromString(TEXT("Changed")));
		EXPECT_EQ(GetTextOf(*Second, TEXT("Label")), "Hello");
	}

	TEST_F(FWidgetBlueprintTest, GraphFunctionsTakeThePlaceOfEvents)
	{
		UClass* Class = Load(TEXT("Events"), OneText, "function Construct(self) self.Label:SetText('Constructed') end");
		EXPECT_EQ(GetTextOf(*Show(Class), TEXT("Label")), "Constructed");
	}

	TEST_F(FWidgetBlueprintTest, VariablesHaveDefaultsAndKeepTheirTypes)
	{
		UClass* Class = Load(TEXT("Variables"), R"({ "Variables": { "Count": { "Type": "int", "Default": 7 }, "Names": { "Type": "[name]", "Default": ["A", "B"] } }, "Root": { "Class": "TextBlock", "Name": "Label" } })",
			"function Construct(self) self.Count = self.Count + #self.Names self.Label:SetText(tostring(self.Count)) end");
		EXPECT_EQ(GetTextOf(*Show(Class), TEXT("Label")), "9");
	}

	TEST_F(FWidgetBlueprintTest, VariablesThatTheParentHasAreOneLineEach)
	{
		const Host::FExpectedLog Taken(TEXT("there is a property 'WidgetTree' already."));
		UClass* Class = Load(TEXT("TakenVariable"), R"({ "Variables": { "WidgetTree": { "Type": "int" } }, "Root": { "Class": "TextBlock", "Name": "Label", "Properties": { "Text": "there" } } })");
		EXPECT_EQ(GetTextOf(*Show(Class), TEXT("Label")), "there");
	}

	TEST_F(FWidgetBlueprintTest, ColoursOfWidgetsAreWrittenAsAnyOther)
	{
		UClass* Class = Load(TEXT("SlateColour"), R"({ "Root": { "Class": "TextBlock", "Name": "Label", "Properties": { "ColorAndOpacity": "#FF0000" } } })");
		EXPECT_EQ(CastChecked<UTextBlock>(Show(Class)->GetWidgetFromName(TEXT("Label")))->GetColorAndOpacity(), FSlateColor(FLinearColor(1.0f, 0.0f, 0.0f, 1.0f)));
	}

	TEST_F(FWidgetBlueprintTest, ButtonsCallTheFunctionsBoundToThem)
	{
		UClass* Class = Load(TEXT("Buttons"), R"({ "Root": { "Class": "Button", "Name": "Push", "Children": [ { "Class": "TextBlock", "Name": "Label", "Properties": { "Text": "0" } } ] } })",
			"function OnInitialized(self) self.Push.OnClicked:Add(function() self.Label:SetText('clicked') end) end");
		UUserWidget* Widget = Show(Class);
		Driver.ClickAt(Driver.GetMiddle(*Widget->GetWidgetFromName(TEXT("Push"))));
		EXPECT_EQ(GetTextOf(*Widget, TEXT("Label")), "clicked");
	}

	TEST_F(FWidgetBlueprintTest, EditableTextsTellTheFunctionsBoundToThem)
	{
		UClass* Class = Load(TEXT("Entries"), R"({ "Root": { "Class": "VerticalBox", "Children": [
			{ "Class": "EditableText", "Name": "Entry", "Properties": { "Text": "a", "HintText": "Search", "IsPassword": false, "MinimumDesiredWidth": 100, "ClearKeyboardFocusOnCommit": false,
				"WidgetStyle": { "ColorAndOpacity": { "SpecifiedColor": "#FF0000" } } } },
			{ "Class": "TextBlock", "Name": "Label" } ] } })",
			"function OnInitialized(self)\n"
			"  self.Entry.OnTextChanged:Add(function(text) self.Label:SetText('changed ' .. text) end)\n"
			"  self.Entry.OnTextCommitted:Add(function(text, method) self.Label:SetText(method .. ' ' .. self.Entry:GetText()) end)\n"
			"end");
		UUserWidget* Widget = Show(Class);
		const UEditableText* Entry = Cast<UEditableText>(Widget->GetWidgetFromName(TEXT("Entry")));
		ASSERT_TRUE(Entry);
		EXPECT_EQ(Entry->GetWidgetStyle().ColorAndOpacity.GetSpecifiedColor(), FLinearColor::Red);
		Driver.ClickAt(Driver.GetMiddle(*Entry));
		Driver.PressKey(EKeys::End);
		Driver.Type(TEXT("b"));
		EXPECT_EQ(GetTextOf(*Widget, TEXT("Label")), "changed ab");
		Driver.PressKey(EKeys::Enter);
		EXPECT_EQ(GetTextOf(*Widget, TEXT("Label")), "OnEnter ab");
	}

	TEST_F(FWidgetBlueprintTest, CheckBoxesTellTheFunctionsBoundToThem)
	{
		UClass* Class = Load(TEXT("Options"), R"({ "Root": { "Class": "VerticalBox", "Children": [
			{ "Class": "CheckBox", "Name": "Option", "Properties": { "CheckedState": "Checked", "HorizontalAlignment": "HAlign_Left", "IsFocusable": false,
				"WidgetStyle": { "Padding": { "Left": 9 } } },
				"Children": [ { "Class": "TextBlock", "Properties": { "Text": "Option" } } ] },
			{ "Class": "TextBlock", "Name": "Label" } ] } })",
			"function OnInitialized(self)\n"
			"  self.Option.OnCheckStateChanged:Add(function(checked) self.Label:SetText(tostring(checked) .. ' ' .. self.Option:GetCheckedState()) end)\n"
			"end");
		UUserWidget* Widget = Show(Class);
		const UCheckBox* Option = Cast<UCheckBox>(Widget->GetWidgetFromName(TEXT("Option")));
		ASSERT_TRUE(Option);
		EXPECT_TRUE(Option->IsChecked());
		EXPECT_EQ(Option->GetWidgetStyle().Padding.Left, 9.0f);
		EXPECT_EQ(Option->HorizontalAlignment, HAlign_Left);
		EXPECT_FALSE(Option->GetIsFocusable());
		EXPECT_TRUE(Driver.Click(TEXT("Option"))) << Host::ToStd(Driver.GetError());
		EXPECT_EQ(GetTextOf(*Widget, TEXT("Label")), "false Unchecked");
	}

	TEST_F(FWidgetBlueprintTest, SlidersTellTheFunctionsBoundToThem)
	{
		UClass* Class = Load(TEXT("Sliders"), R"({ "Root": { "Class": "VerticalBox", "Children": [
			{ "Class": "Slider", "Name": "Volume", "Properties": { "MinValue": 0, "MaxValue": 10, "Value": 2, "StepSize": 2, "MouseUsesStep": true, "SliderHandleColor": "#FF0000" } },
			{ "Class": "TextBlock", "Name": "Label" }, { "Class": "TextBlock", "Name": "Held" } ] } })",
			"function OnInitialized(self)\n"
			"  self.Volume.OnValueChanged:Add(function(value) self.Label:SetText(value .. ' ' .. self.Volume:GetNormalizedValue()) end)\n"
			"  self.Volume.OnMouseCaptureBegin:Add(function() self.Held:SetText('held') end)\n"
			"  self.Volume.OnMouseCaptureEnd:Add(function() self.Held:SetText('let go') end)\n"
			"end");
		UUserWidget* Widget = Show(Class);
		const USlider* Volume = Cast<USlider>(Widget->GetWidgetFromName(TEXT("Volume")));
		ASSERT_TRUE(Volume);
		EXPECT_EQ(Volume->GetValue(), 2.0f);
		EXPECT_EQ(Volume->GetSliderHandleColor(), FLinearColor::Red);
		const FVector2D Middle = Driver.GetMiddle(*Volume);
		Driver.MoveTo(Middle + FVector2D(20.0, 0.0));
		Driver.Press();
		EXPECT_EQ(GetTextOf(*Widget, TEXT("Label")), "6.0 0.60000002384186");
		EXPECT_EQ(GetTextOf(*Widget, TEXT("Held")), "held");
		Driver.Release();
		EXPECT_EQ(GetTextOf(*Widget, TEXT("Held")), "let go");
	}

	TEST_F(FWidgetBlueprintTest, ProgressBarsFollowTheGraph)
	{
		UClass* Class = Load(TEXT("Progress"), R"({ "Root": { "Class": "VerticalBox", "Children": [
			{ "Class": "ProgressBar", "Name": "Bar", "Properties": { "Percent": 0.25, "BarFillType": "BottomToTop", "BarFillStyle": "Scale", "bIsMarquee": true,
				"BorderPadding": { "X": 1, "Y": 2 }, "FillColorAndOpacity": "#00FF00" } },
			{ "Class": "Button", "Name": "Step" } ] } })",
			"function OnInitialized(self)\n"
			"  self.Step.OnClicked:Add(function() self.Bar:SetIsMarquee(false) self.Bar:SetPercent(0.75) end)\n"
			"end");
		UUserWidget* Widget = Show(Class);
		const UProgressBar* Bar = Cast<UProgressBar>(Widget->GetWidgetFromName(TEXT("Bar")));
		ASSERT_TRUE(Bar);
		EXPECT_EQ(Bar->GetPercent(), 0.25f);
		EXPECT_EQ(Bar->GetBarFillType(), EProgressBarFillType::BottomToTop);
		EXPECT_EQ(Bar->GetBarFillStyle(), EProgressBarFillStyle::Scale);
		EXPECT_EQ(Bar->GetBorderPadding(), FVector2D(1.0, 2.0));
		EXPECT_EQ(Bar->GetFillColorAndOpacity(), FLinearColor::Green);
		EXPECT_TRUE(Bar->UseMarquee());
		Driver.SingleClickAt(Driver.GetMiddle(*Widget->GetWidgetFromName(TEXT("Step"))));
		EXPECT_FALSE(Bar->UseMarquee());
		EXPECT_EQ(Bar->GetPercent(), 0.75f);
	}

	TEST_F(FWidgetBlueprintTest, ComboBoxesTellTheFunctionsBoundToThem)
	{
		UClass* Class = Load(TEXT("Combos"), R"({ "Root": { "Class": "VerticalBox", "Children": [
			{ "Class": "ComboBoxString", "Name": "Quality", "Properties": { "DefaultOptions": ["Low", "High"], "SelectedOption": "Low" } },
			{ "Class": "TextBlock", "Name": "Label" } ] } })",
			"function OnInitialized(self) self.Quality.OnSelectionChanged:Add(function(item, cause) self.Label:SetText(cause .. ' ' .. item) end) end");
		UUserWidget* Widget = Show(Class);
		const UComboBoxString* Quality = Cast<UComboBoxString>(Widget->GetWidgetFromName(TEXT("Quality")));
		ASSERT_TRUE(Quality);
		EXPECT_EQ(Host::ToStd(Quality->GetSelectedOption()), "Low");
		Driver.ClickAt(Driver.GetMiddle(*Quality));
		Driver.PressKey(EKeys::Down);
		Driver.PressKey(EKeys::Enter);
		EXPECT_EQ(GetTextOf(*Widget, TEXT("Label")), "OnKeyPress High");
	}

	TEST_F(FWidgetBlueprintTest, ComboBoxesHaveTheirOptionsBeforeTheGraphStarts)
	{
		UClass* Class = Load(TEXT("Options"), R"({ "Root": { "Class": "VerticalBox", "Children": [
			{ "Class": "ComboBoxString", "Name": "Quality", "Properties": { "DefaultOptions": ["Low", "High"], "SelectedOption": "High" } },
			{ "Class": "TextBlock", "Name": "Label" } ] } })",
			"function OnInitialized(self) local q = self.Quality self.Label:SetText(q:GetOptionCount() .. q:GetOptionAtIndex(0) .. q:GetSelectedIndex()) q:SetSelectedIndex(0) end");
		UUserWidget* Widget = Show(Class);
		EXPECT_EQ(GetTextOf(*Widget, TEXT("Label")), "2Low1");
		EXPECT_EQ(Cast<UComboBoxString>(Widget->GetWidgetFromName(TEXT("Quality")))->GetSelectedIndex(), 0);
	}

	TEST_F(FWidgetBlueprintTest, BlueprintsDeriveFromBlueprints)
	{
		Load(TEXT("Base"), OneText, "function Construct(self) self.Label:SetText(self:Say()) end function Say(self) return 'base' end");
		UClass* Derived = Load(TEXT("Derived"), R"({ "Parent": "/Blueprints/Base.Base" })");
		ASSERT_TRUE(Derived);
		EXPECT_NE(GetTextOf(*Show(Derived), TEXT("Label")), "(none)");
	}

	TEST_F(FWidgetBlueprintTest, GraphCallsTheNativeFunctionThatItsOwnTookThePlaceOf)
	{
		UClass* Class = Load(TEXT("SuperNative"), R"({ "Parent": "/Script/BlueprintTestTypes.BindingTestWidget", "Root": { "Class": "Button", "Name": "Action" } })",
			"function Decide(self, Value) return Super.Decide(self, Value) + 1 end");
		EXPECT_EQ(CastChecked<UBindingTestWidget>(Show(Class))->Decide(20), 41) << "doubled by the parent, then one more";
	}

	TEST_F(FWidgetBlueprintTest, GraphCallsTheGraphOfItsParent)
	{
		Load(TEXT("SuperBase"), OneText, "function Construct(self) self.Label:SetText('base') end");
		UClass* Derived = Load(TEXT("SuperDerived"), R"({ "Parent": "/Blueprints/SuperBase.SuperBase" })",
			"function Construct(self) Super.Construct(self) self.Label:SetText(self.Label:GetText() .. ' and derived') end");
		UClass* Further = Load(TEXT("SuperFurther"), R"({ "Parent": "/Blueprints/SuperDerived.SuperDerived" })",
			"function Construct(self) Super.Construct(self) self.Label:SetText(self.Label:GetText() .. ' and further') end");
		EXPECT_EQ(GetTextOf(*Show(Derived), TEXT("Label")), "base and derived");
		EXPECT_EQ(GetTextOf(*Show(Further), TEXT("Label")), "base and derived and further");
	}

	TEST_F(FWidgetBlueprintTest, FunctionThatTheParentLacksIsAnErrorInTheScript)
	{
		const Host::FExpectedLog Error(TEXT("the parent UserWidget has no function 'Consturct'"));
		Show(Load(TEXT("SuperTypo"), OneText, "function Construct(self) Super.Consturct(self) end"));
	}

	TEST_F(FWidgetBlueprintTest, NoScriptKeepsAScreenAlive)
	{
		UClass* Class = Load(TEXT("Lifetime"), OneText, "local Kept function Construct(self) Kept = function() return self end self.Label:SetText('x') end");
		TWeakObjectPtr<UUserWidget> Widget = Show(Class);
		Widget->RemoveFromParent();
		Loop.RunUntilIdle();
		CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
		EXPECT_FALSE(Widget.IsValid());
	}

	TEST_F(FWidgetBlueprintTest, UnknownClassIsOneLineAndTheRestIsMade)
	{
		const Host::FExpectedLog Unknown(TEXT("there is no class 'NoSuchWidget'"));
		UClass* Class = Load(TEXT("UnknownClass"), "{ \"Root\": { \"Class\": \"VerticalBox\", \"Children\": [\n { \"Class\": \"NoSuchWidget\" },\n { \"Class\": \"TextBlock\", \"Name\": \"Label\", \"Properties\": { \"Text\": \"there\" } } ] } }");
		EXPECT_EQ(GetTextOf(*Show(Class), TEXT("Label")), "there");
		EXPECT_THAT(Host::ToStd(Unknown.GetLastLine()), testing::HasSubstr("UnknownClass.widget.json:2:"));
	}

	TEST_F(FWidgetBlueprintTest, PropertiesReferToWidgetsByName)
	{
		UClass* Class = Load(TEXT("References"), R"({ "Root": { "Class": "VerticalBox", "Children": [
			{ "Class": "HxButtonGroup", "Name": "Group", "Properties": { "ButtonList": [ "Second", "First" ] } },
			{ "Class": "HxButton", "Name": "First" },
			{ "Class": "HxButton", "Name": "Second" } ] } })");
		const UUserWidget* Widget = Show(Class);
		const UHxButtonGroup* Group = CastChecked<UHxButtonGroup>(Widget->GetWidgetFromName(TEXT("Group")));
		const TArray<UHxButton*> Buttons = Group->GetButtonList();
		ASSERT_EQ(Buttons.Num(), 2);
		EXPECT_EQ(Buttons[0], Widget->GetWidgetFromName(TEXT("Second"))) << "each instance has widgets of its own";
		EXPECT_EQ(Buttons[1], Widget->GetWidgetFromName(TEXT("First")));
	}

	TEST_F(FWidgetBlueprintTest, ReferenceToNoWidgetIsOneLine)
	{
		const Host::FExpectedLog Unknown(TEXT("there is no object NoSuchButton"));
		UClass* Class = Load(TEXT("NoReference"), "{ \"Root\": { \"Class\": \"HxButtonGroup\", \"Name\": \"Group\",\n \"Properties\": { \"ButtonList\": [ \"NoSuchButton\" ] } } }");
		Show(Class);
		EXPECT_THAT(Host::ToStd(Unknown.GetLastLine()), testing::HasSubstr("NoReference.widget.json:2:"));
	}

	TEST_F(FWidgetBlueprintTest, UnknownPropertyIsOneLineAndTheRestIsRead)
	{
		const Host::FExpectedLog Unknown(TEXT("'NoSuchProperty'"));
		UClass* Class = Load(TEXT("UnknownProperty"), R"({ "Root": { "Class": "TextBlock", "Name": "Label", "Properties": { "NoSuchProperty": 1, "Text": "there" } } })");
		EXPECT_EQ(GetTextOf(*Show(Class), TEXT("Label")), "there");
	}

	TEST_F(FWidgetBlueprintTest, BrokenFileIsOneLineThatNamesThePlace)
	{
		const Host::FExpectedLog Broken(TEXT("Broken.widget.json:1:"));
		EXPECT_EQ(Load(TEXT("Broken"), "{ \"Root\": }"), nullptr);
	}

	TEST_F(FWidgetBlueprintTest, MissingFileIsOneLine)
	{
		const Host::FExpectedLog Missing(TEXT("Failed to find object 'Class /Blueprints/Nowhere.Nowhere_C': there is no file for /Blueprints/Nowhere"));
		EXPECT_EQ(LoadObject<UClass>(nullptr, TEXT("/Blueprints/Nowhere.Nowhere_C")), nullptr);
	}

	TEST_F(FWidgetBlueprintTest, UnknownParentIsOneLineAndTheRestIsMade)
	{
		const Host::FExpectedLog Unknown(TEXT("NoParent.widget.json:1:"));
		UClass* Class = Load(TEXT("NoParent"), R"({ "Parent": "/Script/UMG.NoSuchWidget", "Root": { "Class": "TextBlock", "Name": "Label", "Properties": { "Text": "there" } } })");
		EXPECT_EQ(GetTextOf(*Show(Class), TEXT("Label")), "there");
	}

	TEST_F(FWidgetBlueprintTest, UnknownClassInAGraphIsOneLine)
	{
		const Host::FExpectedLog Unknown(TEXT("/Blueprints/GraphClass.lua:2: there is no class '/Blueprints/Nowhere3.Nowhere3_C'"));
		UClass* Class = Load(TEXT("GraphClass"), OneText, "function Construct(self)\n Class('/Blueprints/Nowhere3.Nowhere3_C')\nend");
		EXPECT_EQ(GetTextOf(*Show(Class), TEXT("Label")), "Hello");
	}

	TEST_F(FWidgetBlueprintTest, MissingInnerBlueprintIsOneLineAndTheRestIsMade)
	{
		const Host::FExpectedLog Unknown(TEXT("there is no class '/Blueprints/Nowhere2.Nowhere2"));
		UClass* Class = Load(TEXT("NoInner"), "{ \"Root\": { \"Class\": \"VerticalBox\", \"Children\": [\n { \"Class\": \"/Blueprints/Nowhere2.Nowhere2_C\" },\n { \"Class\": \"TextBlock\", \"Name\": \"Label\", \"Properties\": { \"Text\": \"there\" } } ] } }");
		EXPECT_EQ(GetTextOf(*Show(Class), TEXT("Label")), "there");
		EXPECT_THAT(Host::ToStd(Unknown.GetLastLine()), testing::HasSubstr("NoInner.widget.json:2:"));
	}

	TEST_F(FWidgetBlueprintTest, ImportDoesNotLeaveTheMount)
	{
		for (const char* Path : { "/Blueprints/../Secret", "/Elsewhere/Secret", "Secret" })
		{
			const FString Name = FString::Printf(TEXT("Import%d"), NumImports++);
			const std::string Graph = std::string("local Kit = Import('") + Path + "')";
			const Host::FExpectedLog Refused(TEXT(".lua"));
			EXPECT_EQ(GetTextOf(*Show(Load(*Name, OneText, Graph.c_str())), TEXT("Label")), "Hello");
			EXPECT_THAT(Host::ToStd(Refused.GetLastLine()), testing::HasSubstr(Path));
		}
	}

	TEST_F(FWidgetBlueprintTest, ScriptErrorNamesFileAndLineAndTheScreenGoesOn)
	{
		const Host::FExpectedLog Error(TEXT("/Blueprints/ScriptError.lua:2:"));
		UClass* Class = Load(TEXT("ScriptError"), OneText, "function Construct(self)\n self.NoSuchThing:SetText('x')\nend");
		EXPECT_EQ(GetTextOf(*Show(Class), TEXT("Label")), "Hello");
	}

	TEST_F(FWidgetBlueprintTest, ScriptThatCannotBeReadIsOneLine)
	{
		const Host::FExpectedLog Error(TEXT("/Blueprints/Syntax.lua:1:"));
		UClass* Class = Load(TEXT("Syntax"), OneText, "function Construct(self");
		EXPECT_EQ(GetTextOf(*Show(Class), TEXT("Label")), "Hello");
	}

	TEST_F(FWidgetBlueprintTest, EndlessScriptIsEnded)
	{
		const Host::FExpectedLog Ended(TEXT("was ended"));
		UClass* Class = Load(TEXT("Endless"), OneText, "function Construct(self) while true do end end");
		EXPECT_EQ(GetTextOf(*Show(Class), TEXT("Label")), "Hello");
	}

	TEST_F(FWidgetBlueprintTest, EndlessScriptIsEndedThoughTheWatchSlept)
	{
		// The watch falls asleep once no script has run for its time; a short call then wakes it and is over before it looks.
		UClass* Class = Load(TEXT("Quiet"), OneText, "function Construct(self) end");
		Show(Class);
		FPlatformProcess::Sleep(2.2f);
		Show(Class);
		FPlatformProcess::Sleep(0.05f);

		const Host::FExpectedLog Ended(TEXT("was ended"));
		Show(Load(TEXT("EndlessLater"), OneText, "function Construct(self) while true do end end"));
	}

	TEST_F(FWidgetBlueprintTest, GreedyScriptIsRefusedMemory)
	{
		const Host::FExpectedLog Refused(TEXT("memory"));
		UClass* Class = Load(TEXT("Greedy"), OneText, "function Construct(self) local Text = 'x' while true do Text = Text .. Text end end");
		EXPECT_EQ(GetTextOf(*Show(Class), TEXT("Label")), "Hello");
	}

	TEST_F(FWidgetBlueprintTest, ScriptsReachNoFilesAndNoCode)
	{
		for (const char* Name : { "io", "os", "debug", "package", "require", "load", "loadfile", "dofile", "collectgarbage" })
		{
			const FString Class = FString(TEXT("Reach_")) + UTF8_TO_TCHAR(Name);
			const std::string Graph = std::string("function Construct(self) self.Label:SetText(tostring(") + Name + ")) end";
			EXPECT_EQ(GetTextOf(*Show(Load(*Class, OneText, Graph.c_str())), TEXT("Label")), "nil") << Name;
		}
	}

	TEST_F(FWidgetBlueprintTest, ArgumentOfTheWrongTypeIsAnErrorInTheScript)
	{
		const Host::FExpectedLog Error(TEXT("a number expected, got string"));
		UClass* Class = Load(TEXT("WrongType"), OneText, "function Construct(self) self.Label:SetMinDesiredWidth('wide') end");
		Show(Class);
	}

	TEST_F(FWidgetBlueprintTest, FunctionsOfTheParentThatAreNoEventsStay)
	{
		const Host::FExpectedLog Error(TEXT("'AddToViewport' is a function of UserWidget that cannot be replaced"));
		EXPECT_TRUE(Load(TEXT("Replaced"), OneText, "function AddToViewport(self) end"));
	}
}
