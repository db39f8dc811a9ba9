#include "HxButtonTestTools.h"

#include "Host/SlateCounters.h"
#include "Styling/SlateTypes.h"

namespace
{
	/** How a button looks: its colours, corners and size, and which brush of its style is painted. */
	class FHxButtonStyleTest : public FHxButtonTestBase
	{
	protected:
		/** Shows a button whose paint tells which of its brushes it is. */
		void ShowTellingButton(EButtonSelectionMode Mode)
		{
			MakeButton(Mode);
			Button->SetStyle(MakeTellingStyle());
			Button->Color.ColorMode = EColorHandlerMode::ECHM_ColorCustom;
			Show();
		}

		/** The painted brush once the frames have passed. */
		std::string Look()
		{
			Settle();
			return GetLook(*Button);
		}

		void ExpectSelectionLook()
		{
			EXPECT_EQ(Look(), "normal");
			Button->SetSelectionState(true, false);
			EXPECT_EQ(Look(), "pressed");
			Button->SetSelectionState(false, false);
			EXPECT_EQ(Look(), "normal");
		}

		/** Shows a button that takes the size it asks for, without content. */
		UHxButton* ShowBare(const FHalvexSizeOverride& Size)
		{
			UHxButton* Bare = Make<UHxButton>(TEXT("Bare"));
			Bare->SizeOverride = Size;
			Place(*Bare, 300.0, 300.0);
			Show();
			return Bare;
		}

		static FHalvexSizeOverride MakeSize(double Width, double Height)
		{
			FHalvexSizeOverride Size;
			Size.SizeOverride = FVector2D(Width, Height);
			return Size;
		}

		void ExpectOutlines(const char* Hex)
		{
			const FButtonStyle& Style = Button->GetStyle();
			for (const FSlateBrush* Brush : { &Style.Normal, &Style.Hovered, &Style.Pressed, &Style.Disabled })
			{
				EXPECT_EQ(ToHex(Brush->OutlineSettings.Color.GetSpecifiedColor()), Hex);
			}
		}
	};

	// Colours.

	TEST_F(FHxButtonStyleTest, SelectedShowsTheContrastOfItsColour)
	{
		MakeButton(EButtonSelectionMode::EBSM_Toggle);
		Button->SetStyle(FButtonStyle());
		Show();
		EXPECT_EQ(GetBackground(), "7367F0FF");
		EXPECT_EQ(GetPaintedBoxColour(*Button), "7367F0FF");
		ExpectOutlines("7367F0FF");
		Click(*Button);
		MoveAway();
		EXPECT_EQ(GetBackground(), "FBFBFBFF");
		EXPECT_EQ(GetPaintedBoxColour(*Button), "FBFBFBFF");
		ExpectOutlines("FBFBFBFF");
		Click(*Button);
		MoveAway();
		EXPECT_EQ(GetPaintedBoxColour(*Button), "7367F0FF");
	}

	TEST_F(FHxButtonStyleTest, ContrastOfAContrastColourIsTheRegularOne)
	{
		ShowButton(EButtonSelectionMode::EBSM_Toggle);
		Button->Color.bUseContrast = true;
		Button->UpdateStyle();
		EXPECT_EQ(GetBackground(), "FBFBFBFF");
		Button->SetSelectionState(true, false);
		EXPECT_EQ(GetBackground(), "7367F0FF");
	}

	TEST_F(FHxButtonStyleTest, ColourFollowsTheRecordedStateInNoneMode)
	{
		ShowButton(EButtonSelectionMode::EBSM_None);
		Button->SetSelectionState(true, true);
		EXPECT_EQ(GetBackground(), "FBFBFBFF");
	}

	TEST_F(FHxButtonStyleTest, CustomColourIsTheSameSelectedOrNot)
	{
		ShowButton(EButtonSelectionMode::EBSM_Toggle);
		Button->Color.ColorMode = EColorHandlerMode::ECHM_ColorCustom;
		Button->Color.ColorCustom = FLinearColor(0.25f, 0.5f, 0.75f, 0.5f);
		Button->UpdateStyle();
		EXPECT_EQ(Button->GetBackgroundColor(), Button->Color.ColorCustom);
		Button->SetSelectionState(true, false);
		EXPECT_EQ(Button->GetBackgroundColor(), Button->Color.ColorCustom);
	}

	TEST_F(FHxButtonStyleTest, SimpleColourHasNoContrast)
	{
		ShowButton(EButtonSelectionMode::EBSM_Toggle);
		Button->Color.ColorMode = EColorHandlerMode::ECHM_ColorSimple;
		Button->Color.ColorID = TEXT("Success");
		Button->UpdateStyle();
		EXPECT_EQ(GetBackground(), "28C76FFF");
		Button->SetSelectionState(true, false);
		EXPECT_EQ(GetBackground(), "28C76FFF");
	}

	TEST_F(FHxButtonStyleTest, OpacityOverrideIsTheAlphaOfBothColours)
	{
		ShowButton(EButtonSelectionMode::EBSM_Toggle);
		Button->Color.bOverrideOpacity = true;
		Button->Color.OpacityOverride = 0.5f;
		Button->UpdateStyle();
		EXPECT_EQ(GetBackground(), "7367F080");
		ExpectOutlines("7367F080");
		Button->SetSelectionState(true, false);
		EXPECT_EQ(GetBackground(), "FBFBFB80");
		Button->Color.ColorMode = EColorHandlerMode::ECHM_ColorCustom;
		Button->Color.ColorCustom = FLinearColor(0.0f, 1.0f, 0.0f, 1.0f);
		Button->UpdateStyle();
		EXPECT_EQ(GetBackground(), "00FF0080");
	}

	TEST_F(FHxButtonStyleTest, DisabledColourLeavesColourOutlineAndSizeButNotTheCorners)
	{
		ShowButton(EButtonSelectionMode::EBSM_Toggle);
		Button->SetBackgroundColor(FLinearColor::Green);
		Button->Color.ColorMode = EColorHandlerMode::ECHM_Disable;
		Button->Color.ColorID = TEXT("Danger");
		Button->SizeOverride = MakeSize(50.0, 20.0);
		Button->CornerStyle.UniformCorner = 9.0f;
		Button->UpdateStyle();
		EXPECT_EQ(Button->GetBackgroundColor(), FLinearColor::Green);
		ExpectOutlines("7367F0FF");
		EXPECT_EQ(Button->GetStyle().Normal.OutlineSettings.CornerRadii, FVector4(9.0, 9.0, 9.0, 9.0));
		Button->ForceLayoutPrepass();
		EXPECT_NE(Button->GetDesiredSize(), FVector2D(50.0, 20.0));
		Button->SetSelectionState(true, false);
		EXPECT_EQ(Button->GetBackgroundColor(), FLinearColor::Green);
	}

	TEST_F(FHxButtonStyleTest, DisabledColourStillShowsTheSelectionAsHeldDown)
	{
		ShowTellingButton(EButtonSelectionMode::EBSM_Toggle);
		Button->Color.ColorMode = EColorHandlerMode::ECHM_Disable;
		Button->SetSelectionState(true, false);
		EXPECT_EQ(Look(), "pressed");
	}

	TEST_F(FHxButtonStyleTest, ProjectsNewColourShowsAtTheNextUpdate)
	{
		MakeButton(EButtonSelectionMode::EBSM_None);
		Button->SetStyle(FButtonStyle());
		Show();
		Button->Color.ColorID = TEXT("Third");
		Settle();
		EXPECT_EQ(GetPaintedBoxColour(*Button), "7367F0FF");
		Button->UpdateStyle();
		Settle();
		EXPECT_EQ(GetPaintedBoxColour(*Button), "4B465CFF");
	}

	// Brushes and corners.

	TEST_F(FHxButtonStyleTest, BrushesAreRoundedAndKeepTheirTints)
	{
		ShowTellingButton(EButtonSelectionMode::EBSM_None);
		const FButtonStyle Telling = MakeTellingStyle();
		const FButtonStyle& Style = Button->GetStyle();
		EXPECT_EQ(Style.Normal.TintColor, Telling.Normal.TintColor);
		EXPECT_EQ(Style.Hovered.TintColor, Telling.Hovered.TintColor);
		EXPECT_EQ(Style.Pressed.TintColor, Telling.Pressed.TintColor);
		EXPECT_EQ(Style.Disabled.TintColor, Telling.Disabled.TintColor);
		for (const FSlateBrush* Brush : { &Style.Normal, &Style.Hovered, &Style.Pressed })
		{
			EXPECT_EQ(Brush->DrawAs.GetValue(), ESlateBrushDrawType::RoundedBox);
			EXPECT_EQ(Brush->OutlineSettings.CornerRadii, FVector4(5.0, 5.0, 5.0, 5.0));
			EXPECT_EQ(Brush->OutlineSettings.RoundingType.GetValue(), ESlateBrushRoundingType::FixedRadius);
		}
	}

	TEST_F(FHxButtonStyleTest, DisabledBrushKeepsItsShapeAndGetsTheOutlineColour)
	{
		MakeButton(EButtonSelectionMode::EBSM_None);
		FButtonStyle Style;
		Style.Disabled.DrawAs = ESlateBrushDrawType::Box;
		Style.Disabled.OutlineSettings.CornerRadii = FVector4(1.0, 2.0, 3.0, 4.0);
		Button->SetStyle(Style);
		Show();
		const FSlateBrush& Disabled = Button->GetStyle().Disabled;
		EXPECT_EQ(Disabled.DrawAs.GetValue(), ESlateBrushDrawType::Box);
		EXPECT_EQ(Disabled.OutlineSettings.CornerRadii, FVector4(1.0, 2.0, 3.0, 4.0));
		EXPECT_EQ(Disabled.OutlineSettings.RoundingType, Style.Disabled.OutlineSettings.RoundingType);
		ExpectOutlines("7367F0FF");
	}

	TEST_F(FHxButtonStyleTest, CornersCanDiffer)
	{
		ShowButton(EButtonSelectionMode::EBSM_None);
		Button->CornerStyle.bUseUniformCorner = false;
		Button->CornerStyle.CornerRadius = FVector4(1.0, 2.0, 3.0, 4.0);
		Button->UpdateStyle();
		Settle();
		const TArray<Host::FDrawElement> Painted = GetPainted(*Button);
		ASSERT_FALSE(Painted.IsEmpty());
		EXPECT_EQ(Painted[0].Radii, (Host::FCornerRadii{ 1.0f, 2.0f, 3.0f, 4.0f }));
	}

	TEST_F(FHxButtonStyleTest, CornersCanBeHalfTheHeight)
	{
		ShowButton(EButtonSelectionMode::EBSM_None);
		Button->CornerStyle.RoundingType = ESlateBrushRoundingType::HalfHeightRadius;
		Button->UpdateStyle();
		Settle();
		const TArray<Host::FDrawElement> Painted = GetPainted(*Button);
		ASSERT_FALSE(Painted.IsEmpty());
		EXPECT_EQ(Painted[0].Radii, (Host::FCornerRadii{ 30.0f, 30.0f, 30.0f, 30.0f }));
	}

	// The selection's held-down look.

	TEST_F(FHxButtonStyleTest, SelectedToggleButtonIsPaintedPressedAndUnselectedNormal)
	{
		ShowTellingButton(EButtonSelectionMode::EBSM_Toggle);
		ExpectSelectionLook();
	}

	TEST_F(FHxButtonStyleTest, SelectedBlockedButtonIsPaintedPressedAndUnselectedNormal)
	{
		ShowTellingButton(EButtonSelectionMode::EBSM_Blocked);
		ExpectSelectionLook();
	}

	TEST_F(FHxButtonStyleTest, InNoneModeTheSelectionHasNoLook)
	{
		ShowTellingButton(EButtonSelectionMode::EBSM_None);
		Button->SetSelectionState(true, false);
		EXPECT_EQ(Look(), "normal");
		MoveTo(*Button);
		EXPECT_EQ(Look(), "hovered");
		Button->UpdateStyle();
		EXPECT_EQ(Look(), "hovered") << "the border is the engine's";
		MoveAway();
		EXPECT_EQ(Look(), "normal");
	}

	TEST_F(FHxButtonStyleTest, UnselectedIsPaintedNormalAtAnUpdateThoughItIsHovered)
	{
		ShowTellingButton(EButtonSelectionMode::EBSM_Toggle);
		MoveTo(*Button);
		EXPECT_EQ(Look(), "hovered");
		Button->UpdateStyle();
		EXPECT_EQ(Look(), "normal");
	}

	TEST_F(FHxButtonStyleTest, ClickedToggleButtonLooksSelectedAndThenNot)
	{
		ShowTellingButton(EButtonSelectionMode::EBSM_Toggle);
		Click(*Button);
		EXPECT_EQ(Look(), "pressed");
		MoveAway();
		EXPECT_EQ(Look(), "pressed");
		Click(*Button);
		EXPECT_EQ(Look(), "normal");
		MoveAway();
		EXPECT_EQ(Look(), "normal");
	}

	TEST_F(FHxButtonStyleTest, HoveringASelectedToggleButtonShowsTheHover)
	{
		ShowTellingButton(EButtonSelectionMode::EBSM_Toggle);
		Button->SetSelectionState(true, false);
		MoveTo(*Button);
		EXPECT_EQ(Look(), "hovered");
		MoveAway();
		EXPECT_EQ(Look(), "pressed");
	}

	TEST_F(FHxButtonStyleTest, HoveringABlockedSelectedButtonKeepsThePressedLook)
	{
		ShowTellingButton(EButtonSelectionMode::EBSM_Blocked);
		Button->SetSelectionState(true, false);
		MoveTo(*Button);
		EXPECT_EQ(Look(), "pressed");
		MoveAway();
		EXPECT_EQ(Look(), "pressed");
	}

	TEST_F(FHxButtonStyleTest, SwallowedClickKeepsThePressedLook)
	{
		ShowTellingButton(EButtonSelectionMode::EBSM_Blocked);
		Button->SetSelectionState(true, false);
		Click(*Button);
		EXPECT_EQ(Look(), "pressed");
		MoveAway();
		EXPECT_EQ(Look(), "pressed");
	}

	TEST_F(FHxButtonStyleTest, NewSelectionModeShowsAtTheNextUpdate)
	{
		ShowTellingButton(EButtonSelectionMode::EBSM_None);
		Button->SetSelectionState(true, false);
		Button->SetButtonSelectionMode(EButtonSelectionMode::EBSM_Toggle);
		EXPECT_EQ(Look(), "normal");
		Button->UpdateStyle();
		EXPECT_EQ(Look(), "pressed");
	}

	// Size.

	TEST_F(FHxButtonStyleTest, SizeOfZeroLeavesTheSizeToTheContent)
	{
		UHxButton* Plain = Make<UHxButton>();
		UButton* Engines = Make<UButton>();
		Place(*Plain, 10.0, 10.0);
		Place(*Engines, 300.0, 10.0);
		Show();
		EXPECT_EQ(Plain->GetDesiredSize(), Engines->GetDesiredSize());
	}

	TEST_F(FHxButtonStyleTest, SizeOfOneDimensionFixesThatOne)
	{
		const UHxButton* Bare = ShowBare(MakeSize(0.0, 120.0));
		EXPECT_EQ(Bare->GetDesiredSize().Y, 120.0);
		EXPECT_LT(Bare->GetDesiredSize().X, 100.0);
		EXPECT_EQ(GetPaintedBoxSize(*Bare).Y, 120.0);
	}

	TEST_F(FHxButtonStyleTest, SizeOfTwoDimensionsFixesBoth)
	{
		const UHxButton* Bare = ShowBare(MakeSize(150.0, 40.0));
		EXPECT_EQ(GetPaintedBoxSize(*Bare), FVector2D(150.0, 40.0));
	}

	TEST_F(FHxButtonStyleTest, NegativeSizeFixesNothing)
	{
		UButton* Engines = Make<UButton>();
		Place(*Engines, 10.0, 10.0);
		const UHxButton* Bare = ShowBare(MakeSize(-150.0, 40.0));
		EXPECT_GT(Engines->GetDesiredSize().X, 0.0);
		EXPECT_EQ(Bare->GetDesiredSize(), FVector2D(Engines->GetDesiredSize().X, 40.0));
	}

	TEST_F(FHxButtonStyleTest, SizeCountsOnlyWhenItIsUsed)
	{
		UHxButton* Bare = ShowBare(MakeSize(150.0, 40.0));
		Bare->SizeOverride.bUseOverride = false;
		Bare->UpdateStyle();
		Settle();
		EXPECT_NE(Bare->GetDesiredSize().X, 150.0);
		EXPECT_NE(Bare->GetDesiredSize().Y, 40.0);
		Bare->SizeOverride.bUseOverride = true;
		Bare->UpdateStyle();
		Settle();
		EXPECT_EQ(Bare->GetDesiredSize(), FVector2D(150.0, 40.0));
	}

	TEST_F(FHxButtonStyleTest, AspectRatioHoldsTheButton)
	{
		FHalvexSizeOverride Size;
		Size.bUseAspectRatio = true;
		Size.AspectRatio = 2.0f;
		MakeButton(EButtonSelectionMode::EBSM_None);
		Button->SizeOverride = Size;
		CastChecked<UCanvasPanelSlot>(Button->Slot)->SetSize(FVector2D(100.0, 100.0));
		Show();
		EXPECT_EQ(GetPaintedBoxSize(*Button), FVector2D(100.0, 50.0));
	}

	TEST_F(FHxButtonStyleTest, AspectRatioStaysWhenItIsNoLongerUsed)
	{
		FHalvexSizeOverride Size;
		Size.bUseAspectRatio = true;
		Size.AspectRatio = 2.0f;
		MakeButton(EButtonSelectionMode::EBSM_None);
		Button->SizeOverride = Size;
		CastChecked<UCanvasPanelSlot>(Button->Slot)->SetSize(FVector2D(100.0, 100.0));
		Show();
		Button->SizeOverride.bUseAspectRatio = false;
		Button->UpdateStyle();
		Settle();
		EXPECT_EQ(GetPaintedBoxSize(*Button), FVector2D(100.0, 50.0));
	}

	// Styles.

	TEST_F(FHxButtonStyleTest, ButtonStyleIsTakenOver)
	{
		ShowButton(EButtonSelectionMode::EBSM_Toggle);
		FHalvexButtonStyle Style;
		Style.ColorStyle = FHalvexColorHandler(TEXT("Third"), true);
		Style.CornerStyle.UniformCorner = 12.0f;
		Style.SizeOverride.SizeOverride = FVector2D(80.0, 30.0);
		Style.Opacity = 0.25f;
		Button->SetButtonStyle(Style);
		EXPECT_EQ(Button->Color.ColorID, FName(TEXT("Third")));
		EXPECT_TRUE(Button->Color.bUseContrast);
		EXPECT_EQ(Button->CornerStyle.UniformCorner, 12.0f);
		EXPECT_EQ(Button->SizeOverride.SizeOverride, FVector2D(80.0, 30.0));
		EXPECT_EQ(Button->GetRenderOpacity(), 0.25f);
		EXPECT_EQ(GetBackground(), "7367F0FF");
		EXPECT_EQ(Button->GetStyle().Normal.OutlineSettings.CornerRadii, FVector4(12.0, 12.0, 12.0, 12.0));
		Settle();
		EXPECT_EQ(Button->GetDesiredSize(), FVector2D(80.0, 30.0));
		EXPECT_EQ(TakeEvents(), "");
	}

	TEST_F(FHxButtonStyleTest, ButtonLooksItsPartOnTheFirstFrame)
	{
		ShowButton(EButtonSelectionMode::EBSM_None);
		const TArray<Host::FDrawElement> Painted = GetPainted(*Button);
		ASSERT_FALSE(Painted.IsEmpty());
		EXPECT_EQ(Painted[0].Kind, Host::EDrawElementKind::Box);
		EXPECT_EQ(Painted[0].Radii, (Host::FCornerRadii{ 5.0f, 5.0f, 5.0f, 5.0f }));
		EXPECT_EQ(Painted[0].LocalSize, FVector2f(200.0f, 60.0f));
	}

	TEST_F(FHxButtonStyleTest, FollowersArePaintedInTheirContrastWhileItIsSelected)
	{
		ShowButton(EButtonSelectionMode::EBSM_Toggle);
		EXPECT_EQ(GetPaintedTextColour(*Text), PlainText);
		EXPECT_EQ(GetPaintedTextColour(*Icon), PlainIcon);
		Click(*Button);
		EXPECT_EQ(GetPaintedTextColour(*Text), ContrastText);
		EXPECT_EQ(GetPaintedTextColour(*Icon), ContrastIcon);
		Click(*Button);
		EXPECT_EQ(GetPaintedTextColour(*Text), PlainText);
		EXPECT_EQ(GetPaintedTextColour(*Icon), PlainIcon);
	}

	TEST_F(FHxButtonStyleTest, NothingIsPaintedAnewWhileNothingChanges)
	{
		ShowButton(EButtonSelectionMode::EBSM_Toggle);
		const Host::FSlateCounters Before = Host::FSlateCounters::Get();
		Button->SetSelectionState(false, true);
		Settle();
		EXPECT_EQ((Host::FSlateCounters::Get() - Before).Painted, 0);
	}

	TEST_F(FHxButtonStyleTest, RestylingBeforeItIsBuiltIsFatal)
	{
		MakeButton(EButtonSelectionMode::EBSM_None);
		EXPECT_DEATH(Button->UpdateStyle(), "Assertion failed");
	}

	TEST_F(FHxButtonStyleTest, WithoutAColourItCanBeRestyledBeforeItIsBuilt)
	{
		MakeButton(EButtonSelectionMode::EBSM_Toggle);
		Button->Color.ColorMode = EColorHandlerMode::ECHM_Disable;
		Button->CornerStyle.UniformCorner = 9.0f;
		Button->UpdateStyle();
		EXPECT_EQ(Button->GetStyle().Normal.OutlineSettings.CornerRadii, FVector4(9.0, 9.0, 9.0, 9.0));
	}
}
