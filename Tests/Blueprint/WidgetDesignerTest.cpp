#include "Host/WidgetDesigner.h"

#include "Blueprint/UserWidget.h"
#include "Blueprint/WidgetTree.h"
#include "Components/PanelWidget.h"
#include "Components/TextBlock.h"
#include "Components/VerticalBoxSlot.h"
#include "Engine/Engine.h"
#include "Engine/GameInstance.h"
#include "EngineTest.h"
#include "Host/JsonDocument.h"
#include "RecordingWidget.h"
#include "TemporaryContent.h"
#include "UObject/UnrealType.h"
#include "gmock/gmock.h"

namespace
{
	/** A designer with one screen open: a recording widget and a text in a vertical box. */
	class FWidgetDesignerTest : public Host::FEngineTest
	{
	protected:
		FWidgetDesignerTest()
		{
			Write("Screen.widget.json", Screen);
		}

		void Write(const char* Name, const char* Text)
		{
			// Files written within one tick of the file system's clock look alike, so each is younger than the one before.
			const FString File = FString(UTF8_TO_TCHAR(Name));
			Content.Write(*File, Text);
			Content.Age(*File, ++NumWritten);
		}

		void Open(const TCHAR* Name = TEXT("Screen"))
		{
			FString Reason;
			ASSERT_TRUE(Designer.Open(PathOf(Name), Reason)) << Host::ToStd(Reason);
			Designer.Show();
			Loop.RunUntilIdle();
		}

		static FString PathOf(const TCHAR* Name) { return FString::Printf(TEXT("/Design/%s.%s_C"), Name, Name); }

		URecordingWidget& GetRecording() { return *CastChecked<URecordingWidget>(Designer.FindWidget(TEXT("Recording"))); }

		std::string GetTextOf(const TCHAR* Name)
		{
			const UTextBlock* Text = Cast<UTextBlock>(Designer.FindWidget(Name));
			return Text ? Host::ToStd(Text->GetText()) : "(none)";
		}

		std::string Edit(const TCHAR* Widget, const TCHAR* Path, const TCHAR* Text)
		{
			FString Reason;
			const bool bDone = Designer.Edit(Widget, Path, Text, Reason);
			EXPECT_EQ(bDone, Reason.IsEmpty());
			return Host::ToStd(Reason);
		}

		static std::string ListEvents(URecordingWidget& Widget)
		{
			const FString Joined = FString::Join(Widget.Events, TEXT(" "));
			Widget.Events.Empty();
			return Host::ToStd(Joined);
		}

		static constexpr const char* Screen = R"({ "Root": { "Class": "VerticalBox", "Name": "Box", "Children": [
			{ "Class": "RecordingWidget", "Name": "Recording", "Properties": { "Partner": "Label", "Items": [ { "Size": 1 }, { "Size": 2 } ] } },
			{ "Class": "TextBlock", "Name": "Label", "Properties": { "Text": "Hello" } } ] } })";

		Host::FTemporaryContent Content{ TEXT("/Design/") };
		Host::FWidgetDesigner Designer;
		int NumWritten = 0;
	};

	TEST_F(FWidgetDesignerTest, EverythingInAPreviewIsAtDesignTime)
	{
		Write("Outer.widget.json", R"({ "Root": { "Class": "Border", "Children": [ { "Class": "/Design/Screen.Screen", "Name": "Inner" } ] } })");
		Open(TEXT("Outer"));
		int32 NumWidgets = 0;
		Designer.GetPreview()->WidgetTree->ForEachWidgetAndDescendants([&NumWidgets](UWidget* Widget)
		{
			++NumWidgets;
			EXPECT_TRUE(Widget->IsDesignTime()) << Host::ToStd(Widget->GetName());
		});
		EXPECT_EQ(NumWidgets, 5);
		EXPECT_TRUE(Designer.GetPreview()->IsDesignTime());
	}

	TEST_F(FWidgetDesignerTest, GraphRunsPreConstructAndNothingElse)
	{
		Write("Screen.lua", R"(
			Events = ""
			local function Add(self, Name) Events = Events .. Name .. " " self.Label:SetText(Events) end
			function OnInitialized(self) Add(self, "OnInitialized") end
			function PreConstruct(self, IsDesignTime) Add(self, "PreConstruct " .. tostring(IsDesignTime)) end
			function Construct(self) Add(self, "Construct") end
			function Tick(self) Add(self, "Tick") end
			function Destruct(self) print("Destruct") end)");
		Open();
		Driver.Wait(0.5);
		EXPECT_EQ(GetTextOf(TEXT("Label")), "PreConstruct true ");
	}

	TEST_F(FWidgetDesignerTest, WhatPreConstructMakesIsAtDesignTimeToo)
	{
		Write("Part.widget.json", R"({ "Root": { "Class": "TextBlock", "Name": "PartLabel" } })");
		Write("Part.lua", "function PreConstruct(self, IsDesignTime) self.PartLabel:SetText('part ' .. tostring(IsDesignTime)) end");
		Write("Screen.lua", "function PreConstruct(self) self.Box:AddChild(CreateWidget(self, '/Design/Part.Part')) end");
		Open();
		UUserWidget* Part = Cast<UUserWidget>(CastChecked<UPanelWidget>(Designer.FindWidget(TEXT("Box")))->GetChildAt(2));
		ASSERT_TRUE(Part);
		EXPECT_TRUE(Part->IsDesignTime());
		EXPECT_EQ(Host::ToStd(CastChecked<UTextBlock>(Part->GetWidgetFromName(TEXT("PartLabel")))->GetText()), "part true");
	}

	TEST_F(FWidgetDesignerTest, NoTimePassesInThePreviewsWorld)
	{
		Write("Screen.lua", "function PreConstruct(self) Delay(self, 0.1, function() self.Label:SetText('later') end) end");
		Open();
		Driver.Wait(1.0);
		EXPECT_EQ(GetTextOf(TEXT("Label")), "Hello");
	}

	TEST_F(FWidgetDesignerTest, EditIsAnnouncedAndTheWidgetSynchronisedAfterIt)
	{
		Open();
		ListEvents(GetRecording());
		EXPECT_EQ(Edit(TEXT("Recording"), TEXT("Number"), TEXT("7")), "");
		EXPECT_EQ(GetRecording().Number, 7);
		EXPECT_EQ(ListEvents(GetRecording()), "Pre:Number Chain:Number:-1:Number Synchronize Post:Number.Number Synchronize");
	}

	TEST_F(FWidgetDesignerTest, ChainNamesTheWayToAMemberOfAnElement)
	{
		Open();
		ListEvents(GetRecording());
		EXPECT_EQ(Edit(TEXT("Recording"), TEXT("Items[1].Size"), TEXT("9")), "");
		EXPECT_EQ(GetRecording().Items[1].Size, 9);
		EXPECT_EQ(ListEvents(GetRecording()), "Pre:Items Chain:Items/Items/Size:1:Size Synchronize Post:Items.Size Synchronize");
	}

	TEST_F(FWidgetDesignerTest, ElementsComeAndGoUnderTheirIndex)
	{
		Open();
		ListEvents(GetRecording());
		FString Reason;
		EXPECT_TRUE(Designer.AddElement(TEXT("Recording"), TEXT("Items"), Reason)) << Host::ToStd(Reason);
		EXPECT_EQ(ListEvents(GetRecording()), "Pre:Items Chain:Items:2:Items Synchronize Post:Items.Items Synchronize");
		EXPECT_TRUE(Designer.RemoveElement(TEXT("Recording"), TEXT("Items[0]"), Reason)) << Host::ToStd(Reason);
		EXPECT_EQ(ListEvents(GetRecording()), "Pre:Items Chain:Items:0:Items Synchronize Post:Items.Items Synchronize");
		EXPECT_EQ(GetRecording().Items.Num(), 2);
		EXPECT_EQ(GetRecording().Items[0].Size, 2);
	}

	TEST_F(FWidgetDesignerTest, ValuesMayBeJson)
	{
		Open();
		Host::FJsonDocument Document;
		ASSERT_TRUE(Document.Parse(FString(TEXT(R"([{ "Size": 4 }])")), TEXT("edit")));
		FString Reason;
		EXPECT_TRUE(Designer.EditJson(TEXT("Recording"), TEXT("Items"), Document.GetRoot(), Reason)) << Host::ToStd(Reason);
		ASSERT_EQ(GetRecording().Items.Num(), 1);
		EXPECT_EQ(GetRecording().Items[0].Size, 4);
	}

	TEST_F(FWidgetDesignerTest, PropertyMarkedForItRebuildsThePreview)
	{
		Open();
		ListEvents(GetRecording());
		EXPECT_EQ(Edit(TEXT("Recording"), TEXT("Shape.Size"), TEXT("3")), "");
		EXPECT_EQ(ListEvents(GetRecording()), "Pre:Shape Chain:Shape/Size:-1:Size Synchronize Post:Shape.Size Rebuild Synchronize");
	}

	TEST_F(FWidgetDesignerTest, EditOfAUserWidgetPreConstructsItAgain)
	{
		Write("Part.widget.json", R"({ "Variables": { "Title": { "Type": "string", "Default": "first" } }, "Root": { "Class": "TextBlock", "Name": "PartLabel" } })");
		Write("Part.lua", "function PreConstruct(self) self.PartLabel:SetText(self.Title) end");
		Write("Outer.widget.json", R"({ "Root": { "Class": "Border", "Children": [ { "Class": "/Design/Part.Part", "Name": "Inner" } ] } })");
		Open(TEXT("Outer"));
		const UUserWidget* Inner = CastChecked<UUserWidget>(Designer.FindWidget(TEXT("Inner")));
		const UTextBlock* Label = CastChecked<UTextBlock>(Inner->GetWidgetFromName(TEXT("PartLabel")));
		EXPECT_EQ(Host::ToStd(Label->GetText()), "first");
		EXPECT_EQ(Edit(TEXT("Inner"), TEXT("Title"), TEXT("second")), "");
		EXPECT_EQ(Host::ToStd(Label->GetText()), "second");
	}

	TEST_F(FWidgetDesignerTest, PictureFollowsTheEdit)
	{
		Write("Fill.widget.json", R"({ "Root": { "Class": "Border", "Name": "Fill", "Properties": { "BrushColor": "#FFFFFF" } } })");
		Open(TEXT("Fill"));
		EXPECT_EQ(Edit(TEXT("Fill"), TEXT("BrushColor"), TEXT("(R=1,G=0,B=0,A=1)")), "");
		Loop.RunUntilIdle();
		Host::FPicture Picture;
		ASSERT_TRUE(Loop.TakePicture(Picture));
		EXPECT_EQ(Picture.Pixels[Picture.Pixels.Num() / 2], FColor(255, 0, 0, 255));
	}

	TEST_F(FWidgetDesignerTest, PlaceOfAWidgetIsEditedThroughItsSlot)
	{
		Open();
		EXPECT_EQ(Edit(TEXT("Label"), TEXT("Slot.Padding.Top"), TEXT("30")), "");
		Loop.RunUntilIdle();
		EXPECT_EQ(CastChecked<UVerticalBoxSlot>(Designer.FindWidget(TEXT("Label"))->Slot)->GetPadding().Top, 30.0f);
		EXPECT_EQ(Designer.FindWidget(TEXT("Label"))->GetCachedGeometry().GetAbsolutePosition().Y, 30.0f);
	}

	TEST_F(FWidgetDesignerTest, WhatADetailsPanelWouldNotEditIsRefusedWithTheReason)
	{
		Open();
		ListEvents(GetRecording());
		EXPECT_EQ(Edit(TEXT("Nobody"), TEXT("Number"), TEXT("1")), "'Screen_C' has no widget 'Nobody'.");
		EXPECT_EQ(Edit(TEXT("Recording"), TEXT("Nothing"), TEXT("1")), "RecordingWidget has no property 'Nothing'");
		EXPECT_EQ(Edit(TEXT("Recording"), TEXT("bIsVariable"), TEXT("false")), "bIsVariable is not editable here");
		EXPECT_EQ(Edit(TEXT("Recording"), TEXT("Conditional"), TEXT("1")), "Conditional is editable only while Number > 0");
		EXPECT_THAT(Edit(TEXT("Recording"), TEXT("Number"), TEXT("many")), testing::HasSubstr("found 'many'"));
		EXPECT_EQ(GetRecording().Number, 0);
		EXPECT_EQ(ListEvents(GetRecording()), "");
		Designer.Close();
		EXPECT_EQ(Edit(TEXT("Recording"), TEXT("Number"), TEXT("1")), "no preview is open.");
	}

	TEST_F(FWidgetDesignerTest, WidgetsOfTheTreeGoByTheirNames)
	{
		Open();
		EXPECT_EQ(GetRecording().Partner, Designer.FindWidget(TEXT("Label")));
		EXPECT_EQ(Edit(TEXT("Recording"), TEXT("Partner"), TEXT("Box")), "");
		EXPECT_EQ(GetRecording().Partner, Designer.FindWidget(TEXT("Box")));
	}

	TEST_F(FWidgetDesignerTest, ClassThatIsNoneKeepsThePreview)
	{
		Open();
		const UUserWidget* Before = Designer.GetPreview();
		FString Reason;
		EXPECT_FALSE(Designer.Open(TEXT("/Script/UMG.TextBlock"), Reason));
		EXPECT_EQ(Host::ToStd(Reason), "'/Script/UMG.TextBlock' is no class of user widgets.");
		EXPECT_FALSE(Designer.Open(TEXT("/Script/UMG.UserWidget"), Reason));
		EXPECT_THAT(Host::ToStd(Reason), testing::HasSubstr("is abstract"));
		EXPECT_EQ(Designer.GetPreview(), Before);
	}

	TEST_F(FWidgetDesignerTest, MouseAndKeysDoNotReachThePreview)
	{
		Write("Buttons.widget.json", R"({ "Root": { "Class": "Button", "Name": "Push", "Children": [ { "Class": "TextBlock", "Name": "Label" } ] } })");
		Write("Buttons.lua", "function PreConstruct(self) self.Push.OnClicked:Add(function() self.Label:SetText('clicked') end) end");
		Open(TEXT("Buttons"));
		Driver.ClickAt(FVector2D(400.0, 300.0));
		Driver.PressKey(EKeys::Tab);
		Driver.PressKey(EKeys::Enter);
		EXPECT_EQ(GetTextOf(TEXT("Label")), "");
	}

	TEST_F(FWidgetDesignerTest, PreviewIsMadeAnewWhenItsFileIsWritten)
	{
		Open();
		EXPECT_FALSE(Designer.ReloadIfChanged());
		EXPECT_EQ(Edit(TEXT("Label"), TEXT("Text"), TEXT("edited")), "");
		Write("Screen.widget.json", R"({ "Root": { "Class": "TextBlock", "Name": "Label", "Properties": { "Text": "from the file" } } })");
		EXPECT_TRUE(Designer.ReloadIfChanged());
		EXPECT_EQ(GetTextOf(TEXT("Label")), "from the file");
		EXPECT_TRUE(Designer.GetPreview()->IsDesignTime());
		EXPECT_FALSE(Designer.ReloadIfChanged());
	}

	TEST_F(FWidgetDesignerTest, ScriptsAndPartsCountAsTheirScreens)
	{
		Write("Words.lua", "function Say() return 'one' end");
		Write("Part.widget.json", R"({ "Root": { "Class": "TextBlock", "Name": "PartLabel" } })");
		Write("Part.lua", "local Words = Import('/Design/Words') function PreConstruct(self) self.PartLabel:SetText(Words.Say()) end");
		Write("Outer.widget.json", R"({ "Root": { "Class": "Border", "Children": [ { "Class": "/Design/Part.Part", "Name": "Inner" } ] } })");
		Open(TEXT("Outer"));
		const auto Said = [this] { return Host::ToStd(CastChecked<UTextBlock>(CastChecked<UUserWidget>(Designer.FindWidget(TEXT("Inner")))->GetWidgetFromName(TEXT("PartLabel")))->GetText()); };
		EXPECT_EQ(Said(), "one");
		Write("Words.lua", "function Say() return 'two' end");
		EXPECT_TRUE(Designer.ReloadIfChanged());
		EXPECT_EQ(Said(), "two");
	}

	TEST_F(FWidgetDesignerTest, BrokenFileKeepsThePreviewUntilItIsMended)
	{
		Open();
		{
			const Host::FExpectedLog Broken(TEXT("Screen.widget.json:1:"));
			const Host::FExpectedLog Failed(TEXT("/Design/Screen.Screen_C"), Host::FExpectedLog::AnyCount);
			Write("Screen.widget.json", "{ \"Root\": }");
			EXPECT_FALSE(Designer.ReloadIfChanged());
			EXPECT_FALSE(Designer.ReloadIfChanged());
		}
		EXPECT_EQ(GetTextOf(TEXT("Label")), "Hello");
		EXPECT_EQ(Edit(TEXT("Label"), TEXT("Text"), TEXT("still edited")), "");
		Write("Screen.widget.json", R"({ "Root": { "Class": "TextBlock", "Name": "Label", "Properties": { "Text": "mended" } } })");
		EXPECT_TRUE(Designer.ReloadIfChanged());
		EXPECT_EQ(GetTextOf(TEXT("Label")), "mended");
	}

	TEST_F(FWidgetDesignerTest, ScreensInPlayKeepTheirClass)
	{
		Write("Screen.lua", "function Construct(self) self.Label:SetText('played') end");
		UUserWidget* Played = CreateWidget<UUserWidget>(GEngine->GetGameInstance(), LoadObject<UClass>(nullptr, *PathOf(TEXT("Screen"))));
		Played->AddToViewport();
		Open();
		Write("Screen.lua", "function Construct(self) self.Label:SetText('another') end");
		EXPECT_TRUE(Designer.ReloadIfChanged());
		CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
		EXPECT_NE(Played->GetClass(), Designer.GetPreview()->GetClass());
		Played->RemoveFromParent();
		Played->AddToViewport();
		EXPECT_EQ(Host::ToStd(CastChecked<UTextBlock>(Played->GetWidgetFromName(TEXT("Label")))->GetText()), "played");
		EXPECT_FALSE(Played->IsDesignTime());
	}

	TEST_F(FWidgetDesignerTest, ReplacedClassesAreCollected)
	{
		Open();
		const TWeakObjectPtr<UClass> Before = Designer.GetPreview()->GetClass();
		Write("Screen.widget.json", Screen);
		EXPECT_TRUE(Designer.ReloadIfChanged());
		CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
		EXPECT_FALSE(Before.IsValid());
	}
}
