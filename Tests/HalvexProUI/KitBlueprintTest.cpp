#include "KitTest.h"

#include "Components/TextBlock.h"
#include "TemporaryContent.h"
#include "Widgets/HxButton.h"
#include "Widgets/HxButtonGroup.h"
#include "Widgets/HxText.h"

namespace
{
	/** The kit as designers use it: placed in a widget blueprint, wired by name and by its graph. */
	class FKitBlueprintTest : public FKitTest
	{
	protected:
		static constexpr const char* Tabs = R"({ "Root": { "Class": "VerticalBox", "Children": [
			{ "Class": "HxButtonGroup", "Name": "Group", "Properties": { "ButtonList": ["First", "Second"], "SelectedButtonsIndex": [0], "bAllowNoneSelection": false } },
			{ "Class": "HxButton", "Name": "First", "Properties": { "ButtonID": "one", "ResponsiveText": ["FirstLabel"] }, "Children": [
				{ "Class": "HxText", "Name": "FirstLabel", "Properties": { "Text": "First" } } ] },
			{ "Class": "HxButton", "Name": "Second", "Properties": { "ButtonID": "two", "ResponsiveText": ["SecondLabel"] }, "Children": [
				{ "Class": "HxText", "Name": "SecondLabel", "Properties": { "Text": "Second" } } ] },
			{ "Class": "TextBlock", "Name": "Heard", "Properties": { "Text": "nothing" } } ] } })";

		static constexpr const char* TabsGraph = R"(
			function OnInitialized(self)
				self.Group.OnSelectionChange:Add(function(Empty, List)
					self.Heard:SetText(tostring(Empty) .. ' ' .. table.concat(List, ',') .. ' ' .. table.concat(self.Group:GetSelectionButtonIDs(), ','))
				end)
			end)";

		virtual void SetUp() override
		{
			FKitTest::SetUp();
			Content.Write(TEXT("Tabs.widget.json"), Tabs);
			Content.Write(TEXT("Tabs.lua"), TabsGraph);
		}

		UUserWidget* MakeTabs(double X)
		{
			UClass* Class = LoadObject<UClass>(nullptr, TEXT("/KitBlueprints/Tabs.Tabs_C"));
			UUserWidget* Widget = CreateWidget<UUserWidget>(Screen->WidgetTree, Class);
			Place(*Widget, X, 100.0);
			return Widget;
		}

		static UWidget& Get(const UUserWidget& Widget, const TCHAR* Name) { return *Widget.GetWidgetFromName(Name); }

		Host::FTemporaryContent Content{ TEXT("/KitBlueprints/") };
	};

	TEST_F(FKitBlueprintTest, TabsAreSelectedAndTheirLabelsFollow)
	{
		const UUserWidget* Widget = MakeTabs(100.0);
		Show();
		Click(Get(*Widget, TEXT("Second")));
		EXPECT_EQ(GetPaintedText(Get(*Widget, TEXT("Heard"))), "false 1 two");
		EXPECT_EQ(GetPaintedTextColour(Get(*Widget, TEXT("SecondLabel"))), "FBFBFBFF");
		Click(Get(*Widget, TEXT("First")));
		EXPECT_EQ(GetPaintedText(Get(*Widget, TEXT("Heard"))), "false 0 one");
		EXPECT_EQ(GetPaintedTextColour(Get(*Widget, TEXT("FirstLabel"))), "FBFBFBFF");
		EXPECT_EQ(GetPaintedTextColour(Get(*Widget, TEXT("SecondLabel"))), "4B465CFF");
	}

	TEST_F(FKitBlueprintTest, InstancesOfOneBlueprintDoNotMeddle)
	{
		const UUserWidget* Left = MakeTabs(100.0);
		const UUserWidget* Right = MakeTabs(400.0);
		Show();
		Click(Get(*Left, TEXT("Second")));
		EXPECT_EQ(GetPaintedText(Get(*Left, TEXT("Heard"))), "false 1 two");
		EXPECT_EQ(GetPaintedText(Get(*Right, TEXT("Heard"))), "nothing");
		EXPECT_FALSE(CastChecked<UHxButton>(&Get(*Right, TEXT("Second")))->bSelectedButton);
		EXPECT_EQ(GetPaintedTextColour(Get(*Right, TEXT("SecondLabel"))), "4B465CFF");
		Click(Get(*Right, TEXT("Second")));
		EXPECT_EQ(GetPaintedTextColour(Get(*Right, TEXT("SecondLabel"))), "FBFBFBFF");
	}
}
