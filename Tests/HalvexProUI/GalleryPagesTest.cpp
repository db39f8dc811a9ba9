#include "EngineTest.h"

#include "Blueprint/UserWidget.h"
#include "Components/TextBlock.h"
#include "Engine/Engine.h"
#include "Engine/GameInstance.h"
#include "Widgets/SWindow.h"
#include "gmock/gmock.h"

using testing::HasSubstr;
using testing::StartsWith;

namespace
{
	/** The gallery's pages as a user finds them. */
	class FGalleryPagesTest : public Host::FEngineTest
	{
	protected:
		void ShowScreen(const TCHAR* Name)
		{
			Loop.GetWindow()->Resize(FVector2D(1280.0, 1000.0));
			UClass* Class = LoadObject<UClass>(nullptr, *FString::Printf(TEXT("/HalvexPro/Screens/%s.%s_C"), Name, Name));
			CreateWidget<UUserWidget>(GEngine->GetGameInstance(), Class)->AddToViewport();
			Loop.RunUntilIdle();
		}

		virtual void TearDown() override
		{
			Loop.GetWindow()->Resize(FVector2D(800.0, 600.0));
			Host::FEngineTest::TearDown();
		}

		void Click(const TCHAR* Locator)
		{
			const UWidget* Widget = Driver.Find(Locator);
			ASSERT_TRUE(Widget) << TCHAR_TO_UTF8(Locator);
			Driver.ClickAt(Driver.GetMiddle(*Widget));
		}

		std::string GetTextOf(const TCHAR* Locator) const
		{
			const UTextBlock* Text = Cast<UTextBlock>(Driver.Find(Locator));
			return Text ? Host::ToStd(Text->GetText()) : "(none)";
		}
	};

	TEST_F(FGalleryPagesTest, NavigationShowsThePageAndStaysOnIt)
	{
		ShowScreen(TEXT("Gallery"));
		Click(TEXT("NavButtons/SelectableButton"));
		EXPECT_TRUE(Driver.Find(TEXT("ModeToggle")));
		Click(TEXT("NavButtons/SelectableButton"));
		EXPECT_TRUE(Driver.Find(TEXT("ModeToggle")));
		Click(TEXT("NavGroups/SelectableButton"));
		EXPECT_FALSE(Driver.Find(TEXT("ModeToggle")));
		EXPECT_TRUE(Driver.Find(TEXT("AnyOne")));
	}

	TEST_F(FGalleryPagesTest, ButtonsTellTheirSelectionAndClicks)
	{
		ShowScreen(TEXT("Buttons"));
		Click(TEXT("ModeNone/SelectableButton"));
		EXPECT_EQ(GetTextOf(TEXT("ModeNone/NoteText")), "not selected, 1 click");
		Click(TEXT("ModeToggle/SelectableButton"));
		Click(TEXT("ModeToggle/SelectableButton"));
		EXPECT_EQ(GetTextOf(TEXT("ModeToggle/NoteText")), "not selected, 2 clicks");
		Click(TEXT("ModeBlocked/SelectableButton"));
		Click(TEXT("ModeBlocked/SelectableButton"));
		EXPECT_EQ(GetTextOf(TEXT("ModeBlocked/NoteText")), "selected, 1 click") << "a blocked button swallows further clicks";
		Click(TEXT("Release/SelectableButton"));
		EXPECT_EQ(GetTextOf(TEXT("ModeBlocked/NoteText")), "not selected, 1 click");
	}

	TEST_F(FGalleryPagesTest, GroupsLogTheirEvents)
	{
		ShowScreen(TEXT("Groups"));
		Click(TEXT("AnyOne/C"));
		EXPECT_EQ(GetTextOf(TEXT("AnyOne/State")), "Selected: Second");
		EXPECT_EQ(GetTextOf(TEXT("Log")), "One or none: OnSelectionChange (false, [2])");
		Click(TEXT("AnyOne/C"));
		EXPECT_EQ(GetTextOf(TEXT("AnyOne/State")), "Nothing is selected");
		EXPECT_THAT(GetTextOf(TEXT("Log")), StartsWith("One or none: OnClearSelection\nOne or none: OnSelectionChange (true, [])"));
		Click(TEXT("JustOne/A"));
		EXPECT_EQ(GetTextOf(TEXT("JustOne/State")), "Selected: Ground");
		Click(TEXT("AnySome/B"));
		EXPECT_EQ(GetTextOf(TEXT("AnySome/State")), "Selected: Balcony, Garage, Garden") << "in the order of the record";
		Click(TEXT("AnySome/Clear"));
		EXPECT_EQ(GetTextOf(TEXT("AnySome/State")), "Nothing is selected");
		Click(TEXT("SomeOne/Clear"));
		EXPECT_EQ(GetTextOf(TEXT("SomeOne/State")), "Selected: Lift");
		EXPECT_THAT(GetTextOf(TEXT("Log")), StartsWith("Several, at least one: OnClearSelection"));
	}

	TEST_F(FGalleryPagesTest, TilesKeepOneSelected)
	{
		ShowScreen(TEXT("Tiles"));
		Click(TEXT("Studio/SelectableButton"));
		Click(TEXT("Loft/SelectableButton"));
		EXPECT_EQ(GetTextOf(TEXT("State")), "Selected: Loft");
		Click(TEXT("Loft/SelectableButton"));
		EXPECT_EQ(GetTextOf(TEXT("State")), "Nothing is selected.");
		EXPECT_EQ(GetTextOf(TEXT("Log")), "OnClearSelection\nOnSelectionChange (2, Loft)\nOnSelectionChange (0, Studio)");
	}

	TEST_F(FGalleryPagesTest, TileGrowsItsIconUnderThePointer)
	{
		ShowScreen(TEXT("Tiles"));
		const UWidget* Icon = Driver.Find(TEXT("Loft/Icon"));
		Driver.MoveTo(Driver.GetMiddle(*Driver.Find(TEXT("Loft/SelectableButton"))));
		Driver.Wait(0.3);
		EXPECT_EQ(Icon->GetRenderTransform().Scale, FVector2D(1.15, 1.15));
		Driver.MoveTo(FVector2D(1000.0, 60.0));
		Driver.Wait(0.3);
		EXPECT_EQ(Icon->GetRenderTransform().Scale, FVector2D(1.0, 1.0));
	}

	TEST_F(FGalleryPagesTest, FieldsLogTheirEvents)
	{
		ShowScreen(TEXT("Fields"));
		EXPECT_EQ(GetTextOf(TEXT("Log")), "Nothing has happened yet.");
		Click(TEXT("FullName/Field"));
		Driver.Type(TEXT("Zoë"));
		EXPECT_THAT(GetTextOf(TEXT("Log")), StartsWith("Name: OnTextChanged (Zoë)"));
		Driver.PressKey(EKeys::Enter);
		EXPECT_THAT(GetTextOf(TEXT("Log")), StartsWith("Name: OnTextCommitted (Zoë, OnEnter)"));
		Click(TEXT("Secret/Field"));
		Driver.PressKey(EKeys::End);
		Driver.Type(TEXT("s"));
		EXPECT_THAT(GetTextOf(TEXT("Log")), StartsWith("Password: OnTextChanged (•••••••••)"));
		Click(TEXT("Fixed/Field"));
		Driver.Type(TEXT("x"));
		EXPECT_THAT(GetTextOf(TEXT("Log")), testing::Not(HasSubstr("Read only")));
	}
}
