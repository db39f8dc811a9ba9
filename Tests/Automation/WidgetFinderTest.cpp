#include "Host/WidgetFinder.h"

#include "AutomationTestTools.h"
#include "Components/Widget.h"
#include "Framework/Application/SlateApplication.h"
#include "Widgets/Text/STextBlock.h"
#include "Widgets/SWindow.h"

namespace
{
	class FWidgetFinderTest : public Host::FAutomationTest
	{
	protected:
		/** The name of the one that is found, or why there is none. */
		static std::string Find(const TCHAR* Locator)
		{
			Host::FFoundWidget Found;
			FString Reason;
			if (!Host::FWidgetFinder::Find(Locator, Found, Reason))
			{
				return Host::ToStd(Reason);
			}
			return Found.Object ? Host::ToStd(Found.Object->GetName()) : "only Slate: " + Host::ToStd(Found.Slate->GetTypeAsString());
		}

		/** Where the widget can be pointed at, or why it cannot. */
		static std::string Point(const TCHAR* Locator)
		{
			Host::FFoundWidget Found;
			FString Reason;
			FVector2D Place;
			if (!Host::FWidgetFinder::Find(Locator, Found, Reason) || !Host::FWidgetFinder::FindPoint(Found, Place, Reason))
			{
				return Host::ToStd(Reason);
			}
			return Host::ToStd(FString::Printf(TEXT("%g %g"), Place.X, Place.Y));
		}

		static constexpr const char* TwoBoxes = R"({ "Class": "VerticalBox", "Name": "All", "Children": [
			{ "Class": "HorizontalBox", "Name": "Upper", "Children": [
				{ "Class": "Button", "Name": "Save", "Children": [ { "Class": "TextBlock", "Name": "SaveLabel", "Properties": { "Text": "Save" } } ] },
				{ "Class": "TextBlock", "Name": "Note", "Properties": { "Text": "Ready" } } ] },
			{ "Class": "HorizontalBox", "Name": "Lower", "Children": [
				{ "Class": "Button", "Name": "Send", "Children": [ { "Class": "TextBlock", "Name": "SendLabel", "Properties": { "Text": "and/or" } } ] },
				{ "Class": "TextBlock", "Name": "Status", "Properties": { "Text": "Ready" } } ] } ] })";
	};

	TEST_F(FWidgetFinderTest, NamesTextsAndClassesAreFound)
	{
		Show(TwoBoxes);
		EXPECT_EQ(Find(TEXT("Save")), "Save");
		EXPECT_EQ(Find(TEXT("Upper/Save")), "Save");
		EXPECT_EQ(Find(TEXT("All/Save")), "Save");
		EXPECT_EQ(Find(TEXT("text:Save")), "SaveLabel");
		EXPECT_EQ(Find(TEXT("class:VerticalBox")), "All");
		EXPECT_EQ(Find(TEXT("Lower/class:Button")), "Send");
		EXPECT_EQ(Find(TEXT("Lower/text:Ready")), "Status");
	}

	TEST_F(FWidgetFinderTest, TextsMayHaveSlashes)
	{
		Show(TwoBoxes);
		EXPECT_EQ(Find(TEXT("text:and/or")), "SendLabel");
		EXPECT_EQ(Find(TEXT("All/Lower/text:and/or")), "SendLabel");
	}

	TEST_F(FWidgetFinderTest, OutersStandInOrder)
	{
		Show(TwoBoxes);
		EXPECT_EQ(Find(TEXT("All/Upper/Save")), "Save");
		EXPECT_EQ(Find(TEXT("Upper/All/Save")), "there is no widget 'Upper/All/Save': 'Save' stands elsewhere");
	}

	TEST_F(FWidgetFinderTest, CaseCounts)
	{
		Show(TwoBoxes);
		EXPECT_EQ(Find(TEXT("save")), "there is no widget 'save'; the nearest is 'Save'");
	}

	TEST_F(FWidgetFinderTest, WhatIsMissingNamesTheNearest)
	{
		Show(TwoBoxes);
		EXPECT_EQ(Find(TEXT("Statsu")), "there is no widget 'Statsu'; the nearest is 'Status'");
		EXPECT_EQ(Find(TEXT("text:Saved")), "there is no widget 'text:Saved'; the nearest is 'Save'");
		EXPECT_EQ(Find(TEXT("class:Buton")), "there is no widget 'class:Buton'; the nearest is 'Button'");
		EXPECT_EQ(Find(TEXT("Wholly different")), "there is no widget 'Wholly different'");
	}

	TEST_F(FWidgetFinderTest, SeveralAreCountedAndGoByNumber)
	{
		Show(TwoBoxes);
		EXPECT_EQ(Find(TEXT("text:Ready")), "'text:Ready' are 2 widgets: put the name of what it stands in before it, or '#1' to '#2' behind it");
		EXPECT_EQ(Find(TEXT("text:Ready#1")), "Note");
		EXPECT_EQ(Find(TEXT("text:Ready#2")), "Status");
		EXPECT_EQ(Find(TEXT("text:Ready#3")), "there is no widget 'text:Ready#3': there are 2");
		EXPECT_EQ(Host::FWidgetFinder::FindAll(TEXT("class:Button")).Num(), 2);
		EXPECT_EQ(Host::FWidgetFinder::FindAll(TEXT("class:Button#2")).Num(), 1);
	}

	TEST_F(FWidgetFinderTest, HiddenWidgetsAreNotFoundAndSayWhatHidesThem)
	{
		UUserWidget* Screen = Show(TwoBoxes);
		Screen->GetWidgetFromName(TEXT("Upper"))->SetVisibility(ESlateVisibility::Collapsed);
		Screen->GetWidgetFromName(TEXT("Send"))->SetVisibility(ESlateVisibility::Hidden);
		EXPECT_EQ(Find(TEXT("Save")), "'Save' is there, but stands in 'Upper', which is collapsed");
		EXPECT_EQ(Find(TEXT("Send")), "'Send' is there, but it is hidden");
		EXPECT_EQ(Find(TEXT("text:Ready")), "Status");
		EXPECT_EQ(Host::FWidgetFinder::FindAll(TEXT("class:Button")).Num(), 0);
		Screen->GetWidgetFromName(TEXT("Status"))->SetRenderOpacity(0.0f);
		EXPECT_EQ(Find(TEXT("Status")), "'Status' is there, but it is see-through");
	}

	TEST_F(FWidgetFinderTest, BlueprintsGoByTheirNames)
	{
		Show(R"({ "Class": "TextBlock", "Name": "Inner" })");
		EXPECT_EQ(Find(TEXT("class:Screen1")), Find(TEXT("class:Screen1_C")));
	}

	TEST_F(FWidgetFinderTest, MenusAreFoundThoughOnlySlateKnowsThem)
	{
		const TSharedRef<SWidget> Content = SNew(STextBlock).Text(FText::FromString(TEXT("Menu entry")));
		const TSharedPtr<IMenu> Menu = FSlateApplication::Get().PushMenu(Loop.GetWindow().ToSharedRef(), FWidgetPath(), Content, FVector2f(100.0f, 100.0f), FPopupTransitionEffect::ContextMenu);
		ASSERT_TRUE(Menu);
		EXPECT_EQ(Find(TEXT("text:Menu entry")), "only Slate: STextBlock");
		FString Text;
		EXPECT_FALSE(Driver.Read(TEXT("text:Menu entry"), TEXT("Text"), Text));
		EXPECT_EQ(Host::ToStd(Driver.GetError()), "'text:Menu entry' has no properties: only Slate knows it");
		FSlateApplication::Get().DismissAllMenus();
	}

	TEST_F(FWidgetFinderTest, PointLiesInTheMiddle)
	{
		Show(R"({ "Class": "CanvasPanel", "Children": [ { "Class": "SizeBox", "Name": "Pad", "Properties": { "bOverride_WidthOverride": true, "WidthOverride": 100, "bOverride_HeightOverride": true, "HeightOverride": 40 },
			"Slot": { "bAutoSize": true }, "Children": [ { "Class": "Border", "Name": "Face" } ] } ] })");
		EXPECT_EQ(Point(TEXT("Face")), "50 20");
	}

	TEST_F(FWidgetFinderTest, TextInAButtonIsPointedAtThroughIt)
	{
		UUserWidget* Screen = Show(TwoBoxes);
		Screen->GetWidgetFromName(TEXT("SaveLabel"))->SetVisibility(ESlateVisibility::HitTestInvisible);
		Host::FFoundWidget Found;
		FString Reason;
		FVector2D Place;
		ASSERT_TRUE(Host::FWidgetFinder::Find(TEXT("SaveLabel"), Found, Reason));
		EXPECT_TRUE(Host::FWidgetFinder::FindPoint(Found, Place, Reason)) << Host::ToStd(Reason);
	}

	TEST_F(FWidgetFinderTest, ScrolledOutOfViewIsFoundButCannotBePointedAt)
	{
		Show(R"({ "Class": "ScrollBox", "Name": "Scroll", "Children": [
			{ "Class": "SizeBox", "Name": "Tall", "Properties": { "bOverride_HeightOverride": true, "HeightOverride": 2000 } },
			{ "Class": "Button", "Name": "Low", "Children": [ { "Class": "TextBlock", "Name": "LowLabel" } ] } ] })");
		EXPECT_EQ(Find(TEXT("Low")), "Low");
		EXPECT_EQ(Point(TEXT("Low")), "'Low' is out of view: it lies outside of 'Scroll'");
		Driver.WheelOver(TEXT("Scroll"), -100.0f);
		Driver.Wait(1.0);
		EXPECT_EQ(Point(TEXT("Low")).find("out of view"), std::string::npos);
	}

	TEST_F(FWidgetFinderTest, PartInViewIsPointedAt)
	{
		Show(R"({ "Class": "CanvasPanel", "Children": [ { "Class": "Border", "Name": "Wide", "Slot": { "LayoutData": { "Offsets": { "Left": -100, "Top": 0, "Right": 300, "Bottom": 100 } } } } ] })");
		EXPECT_EQ(Point(TEXT("Wide")), "100 50");
	}

	TEST_F(FWidgetFinderTest, CoveredNamesWhatCoversIt)
	{
		UUserWidget* Screen = Show(R"({ "Class": "Overlay", "Children": [
			{ "Class": "Button", "Name": "Below", "Slot": { "HorizontalAlignment": "HAlign_Fill", "VerticalAlignment": "VAlign_Fill" } },
			{ "Class": "Border", "Name": "Above", "Slot": { "HorizontalAlignment": "HAlign_Fill", "VerticalAlignment": "VAlign_Fill" } } ] })");
		EXPECT_EQ(Point(TEXT("Below")), "'Below' is covered by 'Above'");
		Screen->GetWidgetFromName(TEXT("Above"))->SetVisibility(ESlateVisibility::HitTestInvisible);
		EXPECT_EQ(Point(TEXT("Below")), "400 300");
	}

	TEST_F(FWidgetFinderTest, UncoveredPlaceIsTakenWhereTheMiddleIsCovered)
	{
		Show(R"({ "Class": "Overlay", "Children": [
			{ "Class": "Button", "Name": "Below", "Slot": { "HorizontalAlignment": "HAlign_Fill", "VerticalAlignment": "VAlign_Fill" } },
			{ "Class": "SizeBox", "Name": "Middle", "Properties": { "bOverride_WidthOverride": true, "WidthOverride": 100, "bOverride_HeightOverride": true, "HeightOverride": 100 },
				"Slot": { "HorizontalAlignment": "HAlign_Center", "VerticalAlignment": "VAlign_Center" }, "Children": [ { "Class": "Border", "Name": "Above" } ] } ] })");
		EXPECT_EQ(Point(TEXT("Below")), "200 300");
	}

	TEST_F(FWidgetFinderTest, ScreensOnTopCoverThoseBelow)
	{
		Show(TwoBoxes);
		Show(R"({ "Class": "Border", "Name": "Curtain" })");
		EXPECT_EQ(Point(TEXT("Save")), "'Save' is covered by 'Curtain'");
	}
}
