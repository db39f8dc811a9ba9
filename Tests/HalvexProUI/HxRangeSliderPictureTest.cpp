#include "HxRangeSliderTest.h"

#include "GoldenPicture.h"
#include "Host/PictureCompare.h"
#include "InputCoreTypes.h"
#include "ProjectStyle.h"
#include "Widgets/HxBorder.h"
#include "Widgets/SWindow.h"

namespace
{
	/** The slider on a panel of the style, in the hands of a user. */
	class FHxRangeSliderPictureTest : public FHxRangeSliderTest, public testing::WithParamInterface<const TCHAR*>
	{
	protected:
		virtual void SetUp() override
		{
			FHxRangeSliderTest::SetUp();
			UseShippedStyle(GetParam());
			Slider->RemoveFromParent();
			Panel = Make<UHxBorder>(TEXT("Panel"));
			Panel->CornerStyle.UniformCorner = 0.0f;
			// On whole pixels at all scales, which the slider is not.
			Place(*Panel, 32.0, 32.0, FVector2D(252.0, 60.0));
			Place(*Slider, 50.0, 50.0, FVector2D(216.0, 24.0));
		}

		virtual void TearDown() override
		{
			Loop.GetWindow()->SetDPIScaleFactor(1.0f);
			UseShippedStyle(TEXT("UIStyle_Hx_Light"));
			FHxRangeSliderTest::TearDown();
		}

		void ExpectPictureOf(const TCHAR* State)
		{
			Host::FPicture Picture;
			ASSERT_TRUE(Driver.TakePictureOf(TEXT("Panel"), Picture)) << Host::ToStd(Driver.GetError());
			Host::ExpectGolden(FString::Printf(TEXT("RangeSlider%s-%s"), State, GetParam()), Picture);
		}

		UHxBorder* Panel = nullptr;
	};

	TEST_P(FHxRangeSliderPictureTest, AtRest)
	{
		ShowSlider(20.0f, 70.0f);
		ExpectPictureOf(TEXT("AtRest"));
	}

	TEST_P(FHxRangeSliderPictureTest, Hovered)
	{
		ShowSlider(20.0f, 70.0f);
		Driver.MoveTo(At(20.0));
		ExpectPictureOf(TEXT("Hovered"));
	}

	TEST_P(FHxRangeSliderPictureTest, Dragged)
	{
		ShowSlider(20.0f, 70.0f);
		PressAndMove(70.0, 60.0);
		ExpectPictureOf(TEXT("Dragged"));
		Driver.Release();
	}

	TEST_P(FHxRangeSliderPictureTest, Focused)
	{
		ShowSlider(20.0f, 70.0f);
		Driver.PressKey(EKeys::Tab);
		ExpectPictureOf(TEXT("Focused"));
	}

	TEST_P(FHxRangeSliderPictureTest, Disabled)
	{
		Slider->SetIsEnabled(false);
		ShowSlider(20.0f, 70.0f);
		ExpectPictureOf(TEXT("Disabled"));
	}

	TEST_P(FHxRangeSliderPictureTest, ZeroWidth)
	{
		ShowSlider();
		Slider->SetLimits(5.0f, 5.0f);
		Settle();
		ExpectPictureOf(TEXT("ZeroWidth"));
	}

	TEST_P(FHxRangeSliderPictureTest, OnOnePlace)
	{
		ShowSlider(40.0f, 40.0f);
		ExpectPictureOf(TEXT("OnOnePlace"));
	}

	TEST_P(FHxRangeSliderPictureTest, AtScales)
	{
		ShowSlider(20.0f, 70.0f);
		for (const auto& [Scale, Name] : { std::pair(1.25f, TEXT("At125")), std::pair(1.5f, TEXT("At150")), std::pair(2.0f, TEXT("At200")) })
		{
			Loop.GetWindow()->SetDPIScaleFactor(Scale);
			Settle();
			ExpectPictureOf(Name);
		}
	}

	INSTANTIATE_TEST_SUITE_P(Styles, FHxRangeSliderPictureTest, testing::Values(TEXT("UIStyle_Hx_Light"), TEXT("UIStyle_Hx_Dark")),
		[](const testing::TestParamInfo<const TCHAR*>& Info) { return Host::ToStd(FString(Info.param)); });
}
