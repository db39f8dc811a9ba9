#include "Host/SceneVolumeStates.h"

#include <gtest/gtest.h>

using namespace Host;

namespace
{
	const FLinearColor Own(0.5f, 0.4f, 0.3f);

	class FVolumeStatesTest : public testing::Test
	{
	protected:
		FVolumeStatesTest()
		{
			for (int32 Index = 0; Index < 4; ++Index)
			{
				FSceneBox Box;
				Box.Colour = Own;
				Content->AddBox(Box);
			}
			Palette.Selected = FLinearColor(0.0f, 0.2f, 0.9f);
			Palette.FilteredOut = FLinearColor(0.7f, 0.7f, 0.7f, 0.1f);
			Palette.Hovered = FLinearColor::White;
			Palette.Statuses = { FLinearColor(0.0f, 0.6f, 0.1f), FLinearColor(0.7f, 0.1f, 0.0f) };
			States.SetPalette(Palette);
		}

		FColor GetColour(int32 Volume) const { return Content->GetColours()[Volume]; }

		TSharedRef<FSceneContent> Content = MakeShared<FSceneContent>();
		FSceneVolumePalette Palette;
		FSceneVolumeStates States{ Content };
	};
}

TEST_F(FVolumeStatesTest, EachStateHasItsColourAndGivesItBack)
{
	States.SetVolumeState(1, ESceneVolumeState::Selected);
	EXPECT_EQ(GetColour(1), Palette.Selected.ToFColorSRGB());
	States.SetVolumeState(1, ESceneVolumeState::FilteredOut);
	EXPECT_EQ(GetColour(1), Palette.FilteredOut.ToFColorSRGB());
	States.SetVolumeState(1, ESceneVolumeState::Hidden);
	EXPECT_EQ(GetColour(1).A, 0);
	States.SetVolumeState(1, ESceneVolumeState::Hovered);
	EXPECT_GT(GetColour(1).G, Own.ToFColorSRGB().G + 20);
	EXPECT_EQ(GetColour(1).A, 255);
	States.SetVolumeState(1, ESceneVolumeState::None);
	EXPECT_EQ(GetColour(1), Own.ToFColorSRGB());
	EXPECT_EQ(GetColour(0), Own.ToFColorSRGB()) << "the others stay";
}

TEST_F(FVolumeStatesTest, StatusesColourWhatHasNoState)
{
	States.SetVolumeStatus(2, 1);
	EXPECT_EQ(GetColour(2), Palette.Statuses[1].ToFColorSRGB());
	States.SetVolumeState(2, ESceneVolumeState::Selected);
	EXPECT_EQ(GetColour(2), Palette.Selected.ToFColorSRGB());
	States.SetVolumeState(2, ESceneVolumeState::None);
	EXPECT_EQ(GetColour(2), Palette.Statuses[1].ToFColorSRGB());
	States.SetVolumeStatus(2, INDEX_NONE);
	EXPECT_EQ(GetColour(2), Own.ToFColorSRGB());
	States.SetVolumeStatus(2, 17);
	EXPECT_EQ(GetColour(2), Own.ToFColorSRGB()) << "the palette has no such status";
}

TEST_F(FVolumeStatesTest, FlagsAddUp)
{
	States.SetVolumeFlag(0, ESceneVolumeState::Selected, true);
	States.SetVolumeFlag(0, ESceneVolumeState::Hovered, true);
	EXPECT_EQ(States.GetVolumeState(0), ESceneVolumeState::Selected | ESceneVolumeState::Hovered);
	const FColor Both = GetColour(0);
	EXPECT_NE(Both, Palette.Selected.ToFColorSRGB());

	States.SetVolumeFlag(0, ESceneVolumeState::Hovered, false);
	EXPECT_EQ(GetColour(0), Palette.Selected.ToFColorSRGB());
}

TEST_F(FVolumeStatesTest, ASelectedVolumeThatIsFilteredOutIsAGhostInTheColourOfSelection)
{
	States.SetVolumeState(0, ESceneVolumeState::Selected | ESceneVolumeState::FilteredOut);
	EXPECT_GT(GetColour(0).A, Palette.FilteredOut.ToFColorSRGB().A);
	EXPECT_LT(GetColour(0).A, 255);
	EXPECT_EQ(GetColour(0).B, Palette.Selected.ToFColorSRGB().B);
}

TEST_F(FVolumeStatesTest, TellingTheSameAgainChangesNothing)
{
	States.SetVolumeState(3, ESceneVolumeState::FilteredOut);
	States.SetVolumeStatus(3, 0);
	const uint64 Revision = Content->GetRevision();

	States.SetVolumeState(3, ESceneVolumeState::FilteredOut);
	States.SetVolumeStatus(3, 0);
	States.SetVolumeState(2, ESceneVolumeState::None);

	EXPECT_EQ(Content->GetRevision(), Revision);
	EXPECT_EQ(Content->GetNumGhosts(), 1);
}

TEST_F(FVolumeStatesTest, AnotherPaletteColoursWhatIsThere)
{
	States.SetVolumeState(0, ESceneVolumeState::Selected);
	States.SetVolumeStatus(1, 0);
	Palette.Selected = FLinearColor(0.8f, 0.5f, 0.0f);
	Palette.Statuses[0] = FLinearColor(0.1f, 0.1f, 0.1f);

	States.SetPalette(Palette);

	EXPECT_EQ(GetColour(0), Palette.Selected.ToFColorSRGB());
	EXPECT_EQ(GetColour(1), Palette.Statuses[0].ToFColorSRGB());
	EXPECT_EQ(GetColour(2), Own.ToFColorSRGB());
}

TEST_F(FVolumeStatesTest, VolumesThatComeLaterAreColouredToo)
{
	States.SetVolumeState(0, ESceneVolumeState::Selected);
	const int32 Late = Content->AddBox(FSceneBox());

	States.SetVolumeState(Late, ESceneVolumeState::FilteredOut);

	EXPECT_EQ(GetColour(Late), Palette.FilteredOut.ToFColorSRGB());
	EXPECT_EQ(States.GetVolumeState(Late + 5), ESceneVolumeState::None);
}

TEST_F(FVolumeStatesTest, AfterAResetItKnowsNothing)
{
	States.SetVolumeState(0, ESceneVolumeState::Selected);
	Content->Empty();
	States.Reset();
	FSceneBox Box;
	Box.Colour = FLinearColor::Red;
	Content->AddBox(Box);

	EXPECT_EQ(States.GetVolumeState(0), ESceneVolumeState::None);
	States.SetVolumeState(0, ESceneVolumeState::Selected);
	States.SetVolumeState(0, ESceneVolumeState::None);
	EXPECT_EQ(GetColour(0), FLinearColor::Red.ToFColorSRGB());
}
