#include "Widgets/HxRangeModel.h"

namespace
{
	/** How far, in steps, a value may lie beside a step and still be on it: single precision seldom meets it. */
	constexpr double StepTolerance = 1.0e-3;

	/** Steps from one limit to the other for ranges without steps. */
	constexpr double NumStepsWithoutSize = 100.0;
}

bool FHxRangeModel::IsUsable() const
{
	return FMath::IsFinite(MinValue) && FMath::IsFinite(MaxValue) && MinValue < MaxValue;
}

bool FHxRangeModel::IsWhole() const
{
	return !IsUsable() || (LowerValue <= MinValue && UpperValue >= MaxValue);
}

void FHxRangeModel::Settle()
{
	if (FMath::IsFinite(MinValue) && MinValue == MaxValue)
	{
		LowerValue = MinValue;
		UpperValue = MaxValue;
	}
	if (!IsUsable())
	{
		return;
	}
	LowerValue = FMath::IsNaN(LowerValue) ? MinValue : LowerValue;
	UpperValue = FMath::IsNaN(UpperValue) ? MaxValue : UpperValue;
	const double Lower = Snap(FMath::Min(LowerValue, UpperValue));
	const double Upper = FMath::Max(Snap(FMath::Max(LowerValue, UpperValue)), Ceil(Lower + GetSpan()));
	Assign(FMath::Min(Lower, Floor(Upper - GetSpan())), Upper);
}

void FHxRangeModel::SetLimits(float InMin, float InMax)
{
	const bool bWasUsable = IsUsable();
	const auto Follow = [&](float Value, bool bOnMin, bool bOnMax) { return bOnMin ? InMin : bOnMax ? InMax : Value; };
	LowerValue = Follow(LowerValue, !bWasUsable || LowerValue <= MinValue, LowerValue >= MaxValue);
	UpperValue = Follow(UpperValue, bWasUsable && UpperValue <= MinValue, !bWasUsable || UpperValue >= MaxValue);
	MinValue = InMin;
	MaxValue = InMax;
	Settle();
}

void FHxRangeModel::SetRange(float InLower, float InUpper)
{
	if (FMath::IsNaN(InLower) || FMath::IsNaN(InUpper))
	{
		return;
	}
	LowerValue = FMath::Min(InLower, InUpper);
	UpperValue = FMath::Max(InLower, InUpper);
	Settle();
}

double FHxRangeModel::GetShare(float Value) const
{
	return FMath::Clamp((static_cast<double>(Value) - MinValue) / (static_cast<double>(MaxValue) - MinValue), 0.0, 1.0);
}

double FHxRangeModel::GetValueAt(double Share) const
{
	return MinValue + Share * (static_cast<double>(MaxValue) - MinValue);
}

bool FHxRangeModel::Move(EHxRangeHandle Handle, double To)
{
	if (!IsUsable() || !FMath::IsFinite(To))
	{
		return false;
	}
	if (Handle == EHxRangeHandle::Lower)
	{
		return Assign(FMath::Min(Snap(To), Floor(UpperValue - GetSpan())), UpperValue);
	}
	return Assign(LowerValue, FMath::Max(Snap(To), Ceil(LowerValue + GetSpan())));
}

bool FHxRangeModel::Step(EHxRangeHandle Handle, int32 NumSteps)
{
	if (!IsUsable())
	{
		return false;
	}
	const double Value = GetValue(Handle);
	const double Size = GetStep();
	if (Size <= 0.0)
	{
		return Move(Handle, Value + NumSteps * (static_cast<double>(MaxValue) - MinValue) / NumStepsWithoutSize);
	}
	// From the upper limit, which may lie beside the steps, the first one back goes to the last of them.
	const double Place = (Value - MinValue) / Size;
	const double Index = NumSteps > 0 ? FMath::FloorToDouble(Place + StepTolerance) : FMath::CeilToDouble(Place - StepTolerance);
	return Move(Handle, MinValue + (Index + NumSteps) * Size);
}

bool FHxRangeModel::Shift(const FHxRangeModel& Start, double By)
{
	if (!IsUsable() || !FMath::IsFinite(By))
	{
		return false;
	}
	const double Width = static_cast<double>(Start.UpperValue) - Start.LowerValue;
	double Lower = Snap(Start.LowerValue + By);
	double Upper = Snap(Lower + Width);
	if (Start.UpperValue + By >= MaxValue)
	{
		Upper = MaxValue;
		Lower = Snap(Upper - Width);
	}
	return Assign(FMath::Min(Lower, Floor(Upper - GetSpan())), Upper);
}

double FHxRangeModel::GetStep() const
{
	return FMath::IsFinite(StepSize) ? FMath::Max(StepSize, 0.0f) : 0.0;
}

double FHxRangeModel::GetSpan() const
{
	return FMath::IsNaN(MinimumSpan) ? 0.0 : FMath::Clamp(static_cast<double>(MinimumSpan), 0.0, static_cast<double>(MaxValue) - MinValue);
}

double FHxRangeModel::Floor(double Value) const
{
	const double Size = GetStep();
	if (Size <= 0.0 || Value >= MaxValue)
	{
		return FMath::Clamp<double>(Value, MinValue, MaxValue);
	}
	const double Index = FMath::FloorToDouble((Value - MinValue) / Size + StepTolerance);
	return FMath::Clamp<double>(MinValue + Index * Size, MinValue, MaxValue);
}

double FHxRangeModel::Ceil(double Value) const
{
	const double Size = GetStep();
	if (Size <= 0.0 || Value >= MaxValue)
	{
		return FMath::Clamp<double>(Value, MinValue, MaxValue);
	}
	const double Index = FMath::CeilToDouble((Value - MinValue) / Size - StepTolerance);
	return FMath::Clamp<double>(MinValue + Index * Size, MinValue, MaxValue);
}

double FHxRangeModel::Snap(double Value) const
{
	const double Below = Floor(Value);
	const double Above = Ceil(Value);
	return Value - Below < Above - Value ? Below : Above;
}

bool FHxRangeModel::Assign(double Lower, double Upper)
{
	const float LowerBefore = LowerValue;
	const float UpperBefore = UpperValue;
	LowerValue = static_cast<float>(Lower);
	UpperValue = static_cast<float>(Upper);
	return LowerValue != LowerBefore || UpperValue != UpperBefore;
}
