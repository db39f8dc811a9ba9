#include "Widgets/HxRangeModel.h"

#include "gtest/gtest.h"

#include <random>

namespace
{
	/** Numbers that a user, a graph and a broken file may come up with, the same at each run. */
	class FHxRangeModelTest : public testing::Test
	{
	protected:
		float Pick()
		{
			const float Odd[] = { 0.0f, 1.0f, -1.0f, 0.1f, 0.3f, 7.0f, 1.0e6f, -1.0e6f, 3.0e38f, -3.0e38f, 1.0e-30f, NAN, INFINITY, -INFINITY };
			std::uniform_int_distribution<size_t> Choice(0, 3 * std::size(Odd));
			const size_t Index = Choice(Random);
			return Index < std::size(Odd) ? Odd[Index] : std::uniform_real_distribution<float>(-100.0f, 100.0f)(Random);
		}

		EHxRangeHandle PickHandle() { return Random() % 2 == 0 ? EHxRangeHandle::Lower : EHxRangeHandle::Upper; }

		std::mt19937 Random{ 4711 };
	};

	bool IsOnStep(const FHxRangeModel& Model, float Value)
	{
		const double Place = (static_cast<double>(Value) - Model.MinValue) / Model.StepSize;
		return Value == Model.MaxValue || std::fabs(Place - std::round(Place)) < 0.01;
	}

	TEST_F(FHxRangeModelTest, RulesHoldWhateverIsDone)
	{
		for (int32 Run = 0; Run < 2000; ++Run)
		{
			FHxRangeModel Model;
			for (int32 Turn = 0; Turn < 20; ++Turn)
			{
				const FHxRangeModel Before = Model;
				switch (Random() % 7)
				{
				case 0: Model.SetLimits(Pick(), Pick()); break;
				case 1: Model.SetRange(Pick(), Pick()); break;
				case 2: Model.StepSize = Pick(); Model.Settle(); break;
				case 3: Model.MinimumSpan = Pick(); Model.Settle(); break;
				case 4: Model.Move(PickHandle(), Pick()); break;
				case 5: Model.Step(PickHandle(), static_cast<int32>(Random() % 25) - 12); break;
				default: Model.Shift(Before, Pick()); break;
				}
				if (!Model.IsUsable())
				{
					EXPECT_TRUE(Model.IsWhole());
					continue;
				}
				ASSERT_LE(Model.MinValue, Model.LowerValue);
				ASSERT_LE(Model.LowerValue, Model.UpperValue);
				ASSERT_LE(Model.UpperValue, Model.MaxValue);
				const double Room = static_cast<double>(Model.MaxValue) - Model.MinValue;
				const double Span = std::isnan(Model.MinimumSpan) ? 0.0 : std::clamp(static_cast<double>(Model.MinimumSpan), 0.0, Room);
				ASSERT_GE(static_cast<double>(Model.UpperValue) - Model.LowerValue, Span - 2.0e-3 * std::max(1.0, std::isfinite(Model.StepSize) ? std::fabs(Model.StepSize) : 1.0) - 1.0e-6 * Room);
				// With so many steps single precision cannot tell them apart.
				if (std::isfinite(Model.StepSize) && Model.StepSize > 0.0f && Room / Model.StepSize < 10000.0)
				{
					ASSERT_TRUE(IsOnStep(Model, Model.LowerValue)) << Model.LowerValue << " of " << Model.MinValue << " by " << Model.StepSize;
					ASSERT_TRUE(IsOnStep(Model, Model.UpperValue)) << Model.UpperValue << " of " << Model.MinValue << " by " << Model.StepSize;
				}
			}
		}
	}

	TEST_F(FHxRangeModelTest, TenthsAreMetInSinglePrecision)
	{
		FHxRangeModel Model;
		Model.MaxValue = 10.0f;
		Model.StepSize = 0.1f;
		Model.SetRange(0.0f, 10.0f);
		for (int32 Step = 1; Step <= 99; ++Step)
		{
			ASSERT_TRUE(Model.Step(EHxRangeHandle::Lower, 1));
			ASSERT_NEAR(Model.LowerValue, 0.1 * Step, 1.0e-5);
		}
	}

	TEST_F(FHxRangeModelTest, StepThatLeadsNowhereSaysSo)
	{
		FHxRangeModel Model;
		EXPECT_FALSE(Model.Step(EHxRangeHandle::Lower, -1));
		EXPECT_FALSE(Model.Move(EHxRangeHandle::Upper, 2.0));
		EXPECT_FALSE(Model.Shift(Model, 0.5));
		EXPECT_TRUE(Model.Move(EHxRangeHandle::Upper, 0.5));
		EXPECT_FALSE(Model.Move(EHxRangeHandle::Upper, 0.5));
	}
}
