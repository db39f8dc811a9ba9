#include "HxRangeSliderTest.h"

#include "KitReflection.h"

#include <limits>

using namespace KitReflection;

void FHxRangeSliderTest::SetUp()
{
	FKitTest::SetUp();
	Slider = Make<UHxRangeSlider>(TEXT("Slider"));
	Slider->MaxValue = 100.0f;
	Slider->OnRangeChanged.AddDynamic(Recorder.Get(), &UKitTestRecorder::OnRangeChanged);
	Slider->OnRangeCommitted.AddDynamic(Recorder.Get(), &UKitTestRecorder::OnRangeCommitted);
	Place(*Slider, 50.0, 50.0, FVector2D(216.0, 24.0));
}

void FHxRangeSliderTest::ShowSlider(float Lower, float Upper, float StepSize)
{
	Slider->StepSize = StepSize;
	Slider->LowerValue = Lower;
	Slider->UpperValue = Upper;
	Show();
	MoveAway();
	// A press of a test before is no half of a double click.
	Driver.Wait(1.0);
}

void FHxRangeSliderTest::PressAndMove(double From, double To)
{
	Driver.MoveTo(At(From));
	Driver.Press();
	Driver.MoveTo(At(To));
}

std::string FHxRangeSliderTest::GetRange() const
{
	return Host::ToStd(FString::Printf(TEXT("%g-%g"), Slider->GetLowerValue(), Slider->GetUpperValue()));
}

namespace
{
	constexpr float NotANumber = std::numeric_limits<float>::quiet_NaN();
	constexpr float Infinite = std::numeric_limits<float>::infinity();

	// What designers and blueprints see.

	TEST_F(FHxRangeSliderTest, PropertiesStandInTheirOrderInOneCategory)
	{
		const UClass* Class = UHxRangeSlider::StaticClass();
		EXPECT_EQ(Class->GetSuperClass(), UWidget::StaticClass());
		EXPECT_EQ(ListNames(Class), "MinValue MaxValue LowerValue UpperValue StepSize MinimumSpan bLocked BarColor RangeColor HandleColor FocusColor BarThickness HandleSize "
			"OnRangeChanged OnRangeCommitted");
		EXPECT_EQ(ListOutsideCategory(Class, TEXT("HxRangeSlider")), "");
		for (const TCHAR* Name : { TEXT("MinValue"), TEXT("MaxValue"), TEXT("LowerValue"), TEXT("UpperValue"), TEXT("StepSize"), TEXT("MinimumSpan"), TEXT("BarThickness"), TEXT("HandleSize") })
		{
			EXPECT_EQ(GetType(Class, Name), "float");
			EXPECT_TRUE(GetMember(Class, Name).HasAllPropertyFlags(CPF_Edit | CPF_BlueprintVisible)) << TCHAR_TO_UTF8(Name);
		}
		for (const TCHAR* Name : { TEXT("BarColor"), TEXT("RangeColor"), TEXT("HandleColor"), TEXT("FocusColor") })
		{
			EXPECT_EQ(GetType(Class, Name), "FHalvexColorHandler");
		}
	}

	TEST_F(FHxRangeSliderTest, Defaults)
	{
		const UHxRangeSlider* Default = GetDefault<UHxRangeSlider>();
		EXPECT_EQ(Default->MinValue, 0.0f);
		EXPECT_EQ(Default->MaxValue, 1.0f);
		EXPECT_EQ(Default->LowerValue, 0.0f);
		EXPECT_EQ(Default->UpperValue, 1.0f);
		EXPECT_EQ(Default->StepSize, 0.0f);
		EXPECT_EQ(Default->MinimumSpan, 0.0f);
		EXPECT_FALSE(Default->bLocked);
		EXPECT_TRUE(Default->IsWholeRange());
	}

	TEST_F(FHxRangeSliderTest, FunctionsAndEventsAreThoseThatBlueprintsUse)
	{
		const UClass* Class = UHxRangeSlider::StaticClass();
		EXPECT_EQ(Describe(Class, TEXT("SetLimits")), "callable void SetLimits(float InMin, float InMax) in HxRangeSlider");
		EXPECT_EQ(Describe(Class, TEXT("SetRange")), "callable void SetRange(float InLower, float InUpper) in HxRangeSlider");
		EXPECT_EQ(Describe(Class, TEXT("SetStepSize")), "callable void SetStepSize(float InStepSize) in HxRangeSlider");
		EXPECT_EQ(Describe(Class, TEXT("SetMinimumSpan")), "callable void SetMinimumSpan(float InMinimumSpan) in HxRangeSlider");
		EXPECT_EQ(Describe(Class, TEXT("SetLocked")), "callable void SetLocked(bool bInLocked) in HxRangeSlider");
		EXPECT_EQ(Describe(Class, TEXT("UpdateStyle")), "callable void UpdateStyle() in HxRangeSlider");
		EXPECT_EQ(Describe(Class, TEXT("GetLowerValue")), "pure const float GetLowerValue() in HxRangeSlider");
		EXPECT_EQ(Describe(Class, TEXT("GetUpperValue")), "pure const float GetUpperValue() in HxRangeSlider");
		EXPECT_EQ(Describe(Class, TEXT("IsWholeRange")), "pure const bool IsWholeRange() in HxRangeSlider");
		for (const TCHAR* Name : { TEXT("OnRangeChanged"), TEXT("OnRangeCommitted") })
		{
			EXPECT_EQ(DescribeEvent(Class, Name), "float Lower, float Upper");
			EXPECT_TRUE(GetMember(Class, Name).HasAnyPropertyFlags(CPF_BlueprintAssignable));
		}
	}

	TEST_F(FHxRangeSliderTest, PaletteListsItUnderTheProductsHeading)
	{
		EXPECT_EQ(DescribeText(Slider->GetPaletteCategory()), "HalvexWidget/HalvexWidget: Halvex Widget");
	}

	// Values from code.

	TEST_F(FHxRangeSliderTest, RangeFromCodeIsOrderedClampedAndOnAStep)
	{
		Slider->SetStepSize(5.0f);
		Slider->SetRange(80.0f, 20.0f);
		EXPECT_EQ(GetRange(), "20-80");
		Slider->SetRange(-10.0f, 41.0f);
		EXPECT_EQ(GetRange(), "0-40");
		Slider->SetRange(-Infinite, Infinite);
		EXPECT_EQ(GetRange(), "0-100");
		Slider->SetRange(200.0f, 300.0f);
		EXPECT_EQ(GetRange(), "100-100");
	}

	TEST_F(FHxRangeSliderTest, CodeRaisesNothing)
	{
		ShowSlider();
		Slider->SetRange(20.0f, 80.0f);
		Slider->SetLimits(0.0f, 50.0f);
		Slider->SetStepSize(7.0f);
		Slider->SetMinimumSpan(10.0f);
		Settle();
		EXPECT_EQ(TakeEvents(), "");
	}

	TEST_F(FHxRangeSliderTest, RangeThatIsNoNumberChangesNothing)
	{
		Slider->SetRange(20.0f, 80.0f);
		Slider->SetRange(NotANumber, 50.0f);
		Slider->SetRange(50.0f, NotANumber);
		EXPECT_EQ(GetRange(), "20-80");
	}

	TEST_F(FHxRangeSliderTest, MaximumBesideTheStepsIsReached)
	{
		Slider->SetLimits(0.0f, 10.0f);
		Slider->SetStepSize(3.0f);
		Slider->SetRange(4.0f, 9.4f);
		EXPECT_EQ(GetRange(), "3-9");
		Slider->SetRange(4.6f, 9.6f);
		EXPECT_EQ(GetRange(), "6-10");
	}

	TEST_F(FHxRangeSliderTest, StepsCountFromTheMinimum)
	{
		Slider->SetLimits(2.5f, 12.5f);
		Slider->SetStepSize(2.0f);
		Slider->SetRange(5.0f, 9.0f);
		EXPECT_EQ(GetRange(), "4.5-8.5");
	}

	TEST_F(FHxRangeSliderTest, MinimumSpanPushesTheUpperEndAndAtTheMaximumTheLowerOne)
	{
		Slider->SetMinimumSpan(10.0f);
		Slider->SetRange(50.0f, 52.0f);
		EXPECT_EQ(GetRange(), "50-60");
		Slider->SetRange(95.0f, 96.0f);
		EXPECT_EQ(GetRange(), "90-100");
		Slider->SetMinimumSpan(500.0f);
		EXPECT_EQ(GetRange(), "0-100");
		Slider->SetMinimumSpan(NotANumber);
		Slider->SetRange(50.0f, 50.0f);
		EXPECT_EQ(GetRange(), "50-50");
	}

	TEST_F(FHxRangeSliderTest, EndsOnALimitFollowItAndOthersStay)
	{
		Slider->SetRange(0.0f, 60.0f);
		Slider->SetLimits(-20.0f, 80.0f);
		EXPECT_EQ(GetRange(), "-20-60");
		Slider->SetRange(10.0f, 80.0f);
		Slider->SetLimits(0.0f, 200.0f);
		EXPECT_EQ(GetRange(), "10-200");
		Slider->SetRange(10.0f, 150.0f);
		Slider->SetLimits(20.0f, 120.0f);
		EXPECT_EQ(GetRange(), "20-120") << "brought within";
		EXPECT_TRUE(Slider->IsWholeRange());
	}

	TEST_F(FHxRangeSliderTest, WholeRangeStaysWholeThroughLimitsWithoutRoom)
	{
		Slider->SetLimits(7.0f, 7.0f);
		EXPECT_EQ(GetRange(), "7-7");
		EXPECT_TRUE(Slider->IsWholeRange());
		Slider->SetLimits(NotANumber, NotANumber);
		EXPECT_TRUE(Slider->IsWholeRange());
		Slider->SetLimits(1.0e9f, -1.0e9f);
		EXPECT_TRUE(Slider->IsWholeRange());
		Slider->SetLimits(10.0f, 40.0f);
		EXPECT_EQ(GetRange(), "10-40");
	}

	TEST_F(FHxRangeSliderTest, WholeRangeIsThatOfBothLimits)
	{
		EXPECT_FALSE(Slider->IsWholeRange()) << "0 to 1 of 100";
		Slider->SetRange(0.0f, 100.0f);
		EXPECT_TRUE(Slider->IsWholeRange());
		Slider->SetRange(1.0f, 100.0f);
		EXPECT_FALSE(Slider->IsWholeRange());
	}

	TEST_F(FHxRangeSliderTest, RangeOutlivesTheSlateSide)
	{
		ShowSlider();
		PressAndMove(100.0, 60.0);
		Driver.Release();
		Screen->RemoveFromParent();
		EXPECT_EQ(GetRange(), "0-60");
		Screen->AddToViewport();
		Settle();
		EXPECT_EQ(GetRange(), "0-60");
		PressAndMove(60.0, 70.0);
		Driver.Release();
		EXPECT_EQ(GetRange(), "0-70");
	}

	TEST_F(FHxRangeSliderTest, LimitsWithoutRoomAreInert)
	{
		ShowSlider();
		const float Limits[][2] = { { 5.0f, 5.0f }, { 9.0f, 2.0f }, { NotANumber, 1.0f }, { 0.0f, NotANumber }, { -Infinite, Infinite } };
		for (const auto& [Min, Max] : Limits)
		{
			Slider->SetLimits(Min, Max);
			Settle();
			PressAndMove(20.0, 80.0);
			Driver.PressKey(EKeys::Right);
			Driver.Release();
			Driver.Wheel(1.0f);
			EXPECT_EQ(TakeEvents(), "");
			EXPECT_FALSE(Slider->HasKeyboardFocus());
		}
	}

	TEST_F(FHxRangeSliderTest, SizesThatAreNoneAreDrawnAsNothing)
	{
		Slider->HandleSize = NotANumber;
		Slider->BarThickness = -3.0f;
		ShowSlider(20.0f, 80.0f);
		EXPECT_EQ(Slider->GetDesiredSize().Y, 8.0) << "room for the ring";
		Slider->HandleSize = 1000.0f;
		Slider->SynchronizeProperties();
		Settle();
		PressAndMove(20.0, 80.0);
		Driver.Release();
		EXPECT_EQ(TakeEvents(), "") << "the handles have no way";
	}
}
