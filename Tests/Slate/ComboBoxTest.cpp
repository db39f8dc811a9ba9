#include "ControlTestTools.h"

#include "Widgets/Input/SComboBox.h"
#include "Widgets/Layout/SBox.h"
#include "Widgets/Text/STextBlock.h"

/** A combo box of 100 x 30 in the corner of the window, with three options. */
class ComboBoxTest : public FControlTest
{
protected:
	using FCombo = SComboBox<TSharedPtr<FString>>;

	ComboBoxTest()
	{
		for (const TCHAR* Text : {TEXT("Low"), TEXT("Medium"), TEXT("High")})
		{
			Options.Add(MakeShared<FString>(Text));
		}
	}

	void ShowBox(float Top = 0.0f, float Scale = 1.0f)
	{
		SAssignNew(Combo, FCombo)
			.OptionsSource(&Options)
			.OnGenerateWidget_Lambda([this](TSharedPtr<FString> Option) -> TSharedRef<SWidget>
			{
				Rows.Add(SNew(STextBlock).Text(FText::FromString(*Option)));
				return Rows.Last();
			})
			.OnSelectionChanged_Lambda([this](TSharedPtr<FString> Option, ESelectInfo::Type Cause)
			{
				Log.Add(FString::Printf(TEXT("%s:%d"), Option.IsValid() ? **Option : TEXT(""), static_cast<int32>(Cause)));
			});
		Window->SetDPIScaleFactor(Scale);
		Show(SNew(SOverlay) + SOverlay::Slot().HAlign(HAlign_Left).VAlign(VAlign_Top).Padding(0.0f, Top, 0.0f, 0.0f)
		[
			SNew(SBox).WidthOverride(100.0f).HeightOverride(30.0f)[Combo.ToSharedRef()]
		]);
	}

	void Open()
	{
		Rows.Reset();
		Click(Combo.ToSharedRef());
		App().Tick();
	}

	TArray<TSharedPtr<FString>> Options;
	TSharedPtr<FCombo> Combo;
	TArray<TSharedRef<SWidget>> Rows;
};

TEST_F(ComboBoxTest, ClickOpensAListBelowAtLeastAsWideAsTheBox)
{
	ShowBox();
	Open();
	EXPECT_TRUE(Combo->IsOpen());
	ASSERT_EQ(Rows.Num(), 3);
	EXPECT_GE(Rows[0]->GetCachedGeometry().GetAbsolutePosition().Y, 30.0f);
	EXPECT_GT(Rows[0]->GetCachedGeometry().GetAbsoluteSize().X, 70.0f);
}

TEST_F(ComboBoxTest, ListOpensAboveWhenThereIsNoRoomBelow)
{
	ShowBox(265.0f);
	Open();
	ASSERT_EQ(Rows.Num(), 3);
	EXPECT_LT(Rows[2]->GetCachedGeometry().GetAbsolutePosition().Y, 265.0f);
}

TEST_F(ComboBoxTest, ListHasTheScaleOfTheBox)
{
	ShowBox();
	Open();
	const float Height = Rows[0]->GetCachedGeometry().GetAbsoluteSize().Y;
	Stroke(EKeys::Escape);
	ShowBox(0.0f, 2.0f);
	Open();
	EXPECT_NEAR(Rows[0]->GetCachedGeometry().GetAbsoluteSize().Y, Height * 2.0f, 2.0f);
}

TEST_F(ComboBoxTest, ClickedRowIsSelectedAndTheListCloses)
{
	ShowBox();
	Open();
	Click(Rows[1]);
	EXPECT_LOG("Medium:2");
	EXPECT_FALSE(Combo->IsOpen());
	Open();
	Click(Rows[1]);
	EXPECT_LOG("");
	EXPECT_FALSE(Combo->IsOpen());
}

TEST_F(ComboBoxTest, ClickOnTheBoxClosesTheListAndTheNextOpensIt)
{
	ShowBox();
	Open();
	Open();
	EXPECT_FALSE(Combo->IsOpen());
	Open();
	EXPECT_TRUE(Combo->IsOpen());
}

TEST_F(ComboBoxTest, ArrowsSelectWhileItIsClosed)
{
	ShowBox();
	Stroke(EKeys::Tab);
	Stroke(EKeys::Down);
	Stroke(EKeys::Down);
	Stroke(EKeys::Down);
	Stroke(EKeys::Down);
	EXPECT_LOG("Low:1 Medium:1 High:1");
	Stroke(EKeys::Up);
	EXPECT_LOG("Medium:1");
}

TEST_F(ComboBoxTest, KeysChooseFromTheOpenList)
{
	ShowBox();
	Stroke(EKeys::Tab);
	Stroke(EKeys::Enter);
	ASSERT_TRUE(Combo->IsOpen());
	Stroke(EKeys::End);
	Stroke(EKeys::Up);
	EXPECT_LOG("");
	Stroke(EKeys::Enter);
	EXPECT_LOG("Medium:0");
	EXPECT_FALSE(Combo->IsOpen());
	Stroke(EKeys::SpaceBar);
	ASSERT_TRUE(Combo->IsOpen());
	Stroke(EKeys::Home);
	Stroke(EKeys::Escape);
	EXPECT_FALSE(Combo->IsOpen());
	EXPECT_LOG("");
	EXPECT_TRUE(Combo->HasFocusedDescendants());
}

TEST_F(ComboBoxTest, SelectionFromCodeIsToldOnce)
{
	ShowBox();
	Combo->SetSelectedItem(Options[2]);
	Combo->SetSelectedItem(Options[2]);
	EXPECT_LOG("High:3");
	Combo->ClearSelection();
	EXPECT_LOG(":3");
}

TEST_F(ComboBoxTest, DisabledBoxOpensNothing)
{
	ShowBox();
	Combo->SetEnabled(false);
	App().Tick();
	Open();
	EXPECT_FALSE(Combo->IsOpen());
}

TEST_F(ComboBoxTest, NoFramesAreNeededWhileNothingHappens)
{
	ShowBox();
	Frame();
	Frame();
	EXPECT_EQ(Work.Visited, 0);
	Open();
	Frame();
	Frame();
	EXPECT_EQ(Work.Visited, 0);
}
