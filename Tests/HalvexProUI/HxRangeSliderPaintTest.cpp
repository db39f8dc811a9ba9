#include "HxRangeSliderTest.h"

#include "Host/SlateCounters.h"
#include "InputCoreTypes.h"
#include "Widgets/SWindow.h"

namespace
{
	/** Boxes of the slider as they are painted: the bar, the range if it has any length, halos, handles and the ring. */
	class FHxRangeSliderPaintTest : public FHxRangeSliderTest
	{
	protected:
		virtual void SetUp() override
		{
			FHxRangeSliderTest::SetUp();
			Slider->BarColor = Colour(FLinearColor::Black);
			Slider->RangeColor = Colour(FLinearColor::Green);
			Slider->HandleColor = Colour(FLinearColor::Blue);
			Slider->FocusColor = Colour(FLinearColor::Red);
		}

		virtual void TearDown() override
		{
			Loop.GetWindow()->SetDPIScaleFactor(1.0f);
			FHxRangeSliderTest::TearDown();
		}

		static FHalvexColorHandler Colour(const FLinearColor& Custom)
		{
			FHalvexColorHandler Handler;
			Handler.ColorMode = EColorHandlerMode::ECHM_ColorCustom;
			Handler.ColorCustom = Custom;
			return Handler;
		}

		/** What is painted, box by box: colour and place in pixels of the window. */
		std::string ListBoxes() const
		{
			std::string List;
			for (const Host::FDrawElement& Element : GetPainted(*Slider))
			{
				const FColor Shown = Element.OutlineWidth > 0.0f ? Element.OutlineColour : Element.Colour;
				const char* Name = Shown.R > 128 ? "ring" : Shown.G > 128 ? "range" : Shown.B > 128 ? Shown.A < 255 ? "halo" : "handle" : "bar";
				const FVector2f TopLeft = Element.LocalToPixel.Apply(0.0f, 0.0f);
				List += Host::ToStd(FString::Printf(TEXT("%s%s %g+%g %g+%g"), List.empty() ? TEXT("") : TEXT(", "), UTF8_TO_TCHAR(Name), TopLeft.X, Element.LocalSize.X, TopLeft.Y, Element.LocalSize.Y));
			}
			return List;
		}

		uint8 FindHaloOpacity() const
		{
			for (const Host::FDrawElement& Element : GetPainted(*Slider))
			{
				if (Element.Colour.B > 128 && Element.Colour.A < 255)
				{
					return Element.Colour.A;
				}
			}
			return 0;
		}

		/** The work of a frame after something was done. */
		template <typename ActionType>
		Host::FSlateCounters Measure(ActionType&& Action)
		{
			const Host::FSlateCounters Before = Host::FSlateCounters::Get();
			Action();
			Loop.RunFrame(0.016);
			return Host::FSlateCounters::Get() - Before;
		}
	};

	TEST_F(FHxRangeSliderPaintTest, BarRangeAndHandlesHaveTheirPlacesAndColours)
	{
		ShowSlider(20.0f, 80.0f);
		EXPECT_EQ(ListBoxes(), "bar 58+200 60+4, range 105+106 60+4, handle 90+16 54+16, handle 210+16 54+16");
		Slider->SetRange(50.0f, 50.0f);
		Settle();
		EXPECT_EQ(ListBoxes(), "bar 58+200 60+4, handle 150+16 54+16");
		Driver.MoveTo(At(50.0));
		EXPECT_EQ(ListBoxes(), "bar 58+200 60+4, halo 146+24 50+24, handle 150+16 54+16");
	}

	TEST_F(FHxRangeSliderPaintTest, WhatAPressWouldTakeHasAHalo)
	{
		ShowSlider(20.0f, 80.0f);
		Driver.MoveTo(At(20.0));
		EXPECT_EQ(ListBoxes(), "bar 58+200 60+4, range 105+106 60+4, halo 86+24 50+24, handle 90+16 54+16, handle 210+16 54+16");
		Driver.MoveTo(At(95.0));
		EXPECT_EQ(ListBoxes(), "bar 58+200 60+4, range 105+106 60+4, halo 206+24 50+24, handle 90+16 54+16, handle 210+16 54+16");
		Driver.MoveTo(At(50.0));
		EXPECT_EQ(ListBoxes(), "bar 58+200 60+4, range 105+106 60+4, halo 86+24 50+24, halo 206+24 50+24, handle 90+16 54+16, handle 210+16 54+16");
		Slider->SetLocked(true);
		Settle();
		EXPECT_EQ(FindHaloOpacity(), 0) << "nothing would be taken";
		Slider->SetLocked(false);
		MoveAway();
		EXPECT_EQ(FindHaloOpacity(), 0);
	}

	TEST_F(FHxRangeSliderPaintTest, DraggedHandleHasAStrongerHaloWhereverThePointerIs)
	{
		ShowSlider(20.0f, 80.0f);
		Driver.MoveTo(At(20.0));
		const uint8 Hovered = FindHaloOpacity();
		Driver.Press();
		EXPECT_GT(FindHaloOpacity(), Hovered);
		Driver.MoveTo(FVector2D(700.0, 500.0));
		EXPECT_GT(FindHaloOpacity(), Hovered);
		Driver.Release();
		EXPECT_EQ(FindHaloOpacity(), 0);
	}

	TEST_F(FHxRangeSliderPaintTest, RingShowsTheHandleThatKeysMove)
	{
		ShowSlider(20.0f, 80.0f);
		Driver.PressKey(EKeys::Tab);
		EXPECT_EQ(ListBoxes(), "bar 58+200 60+4, range 105+106 60+4, handle 90+16 54+16, handle 210+16 54+16, ring 86+24 50+24");
		Driver.PressKey(EKeys::Tab);
		EXPECT_EQ(ListBoxes(), "bar 58+200 60+4, range 105+106 60+4, handle 90+16 54+16, handle 210+16 54+16, ring 206+24 50+24");
		Driver.PressKey(EKeys::Left);
		EXPECT_EQ(ListBoxes(), "bar 58+200 60+4, range 105+104 60+4, handle 90+16 54+16, handle 208+16 54+16, ring 204+24 50+24");
		Slider->SetIsEnabled(false);
		Settle();
		EXPECT_EQ(GetPainted(*Slider).Num(), 4) << "keys move nothing";
	}

	TEST_F(FHxRangeSliderPaintTest, RingComesAfterAPressOnlyWithAKey)
	{
		ShowSlider(20.0f, 80.0f);
		ClickAt(20.0);
		MoveAway();
		EXPECT_EQ(ListBoxes().find("ring"), std::string::npos);
		Driver.PressKey(EKeys::Home);
		Slider->SetRange(20.0f, 80.0f);
		Settle();
		EXPECT_NE(ListBoxes().find("ring 86+24 50+24"), std::string::npos);
	}

	TEST_F(FHxRangeSliderPaintTest, DisabledAndInertOnesArePale)
	{
		ShowSlider(20.0f, 80.0f);
		const auto GetBarOpacity = [this] { return GetPainted(*Slider)[0].Colour.A; };
		EXPECT_EQ(GetBarOpacity(), 255);
		Slider->SetIsEnabled(false);
		Settle();
		const uint8 Disabled = GetBarOpacity();
		EXPECT_LT(Disabled, 200);
		Slider->SetIsEnabled(true);
		Slider->SetLimits(5.0f, 5.0f);
		Settle();
		EXPECT_EQ(GetBarOpacity(), Disabled);
		EXPECT_EQ(GetPainted(*Slider).Num(), 4) << "the whole range, from end to end";
	}

	TEST_F(FHxRangeSliderPaintTest, MovesPaintTheSliderAndNothingElse)
	{
		ShowSlider(20.0f, 80.0f);
		Driver.MoveTo(At(20.0));
		Driver.Press();
		const Host::FSlateCounters Moved = Measure([this] { Driver.MoveTo(At(30.0)); });
		EXPECT_EQ(Moved.Painted, 1);
		EXPECT_EQ(Moved.Measured, 0);
		EXPECT_EQ(Moved.Arranged, 0);
		const Host::FSlateCounters Still = Measure([this] { Driver.MoveTo(At(30.2)); });
		EXPECT_EQ(Still.Painted, 0) << "the same step";
		Driver.Release();
		const Host::FSlateCounters Set = Measure([this] { Slider->SetRange(40.0f, 60.0f); });
		EXPECT_EQ(Set.Painted, 1);
		EXPECT_EQ(Set.Measured, 0);
	}

	TEST_F(FHxRangeSliderPaintTest, WhatDoesNotChangeCostsNothing)
	{
		ShowSlider(20.0f, 80.0f);
		Driver.MoveTo(At(48.0));
		const Host::FSlateCounters Work = Measure([this]
		{
			Driver.MoveTo(At(52.0));
			Slider->UpdateStyle();
			Slider->SetRange(20.0f, 80.0f);
			Slider->SetLimits(0.0f, 100.0f);
			Slider->SetLocked(false);
		});
		EXPECT_EQ(Work.Painted, 0);
		EXPECT_EQ(Work.Measured, 0);
		EXPECT_EQ(Work.PolledAttributes, 0);
	}

	TEST_F(FHxRangeSliderPaintTest, ColoursPaintAndSizesMeasure)
	{
		ShowSlider(20.0f, 80.0f);
		Slider->RangeColor = Colour(FLinearColor::Black);
		const Host::FSlateCounters Coloured = Measure([this] { Slider->UpdateStyle(); });
		EXPECT_EQ(Coloured.Painted, 1);
		EXPECT_EQ(Coloured.Measured, 0);
		Slider->HandleSize = 20.0f;
		const Host::FSlateCounters Sized = Measure([this] { Slider->UpdateStyle(); });
		EXPECT_GT(Sized.Measured, 0);
		EXPECT_EQ(Slider->GetDesiredSize(), FVector2D(40.0, 28.0));
	}

	TEST_F(FHxRangeSliderPaintTest, EdgesLieOnPixelsAroundOneMiddleAtAllScales)
	{
		Slider->SetRange(33.3f, 71.7f);
		Show();
		for (const float Scale : { 1.0f, 1.25f, 1.5f, 2.0f })
		{
			Loop.GetWindow()->SetDPIScaleFactor(Scale);
			Settle();
			Driver.MoveTo(At(50.0) * Scale);
			float Middle = -1.0f;
			const TArray<Host::FDrawElement> Boxes = GetPainted(*Slider);
			EXPECT_EQ(Boxes.Num(), 6) << Scale;
			for (const Host::FDrawElement& Box : Boxes)
			{
				EXPECT_TRUE(Box.HasFlag(Host::EDrawElementFlags::PixelAligned)) << Scale;
				const float BoxMiddle = Box.LocalToPixel.Y + Box.LocalSize.Y * 0.5f;
				Middle = Middle < 0.0f ? BoxMiddle : Middle;
				EXPECT_EQ(BoxMiddle, Middle) << Scale;
				EXPECT_TRUE(Box.Colour.B <= 128 || Box.LocalSize.X == Box.LocalSize.Y) << "handles are round";
			}
		}
	}
}
