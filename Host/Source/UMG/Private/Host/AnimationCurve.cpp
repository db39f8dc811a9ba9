#include "Host/AnimationCurve.h"

#include "Algo/BinarySearch.h"

namespace Host
{
	FAnimationCurve::FAnimationCurve(int32 InNumChannels)
		: NumChannels(InNumChannels)
	{
		check(InNumChannels > 0);
	}

	bool FAnimationCurve::AddKey(double Time, TConstArrayView<double> KeyValues, EKeyInterpolation Interpolation)
	{
		check(KeyValues.Num() == NumChannels);
		const bool bInOrder = Times.IsEmpty() ? Time >= 0.0 : Time > Times.Last();
		if (!bInOrder)
		{
			return false;
		}
		Times.Add(Time);
		for (const double Value : KeyValues)
		{
			Values.Add(Value);
		}
		Interpolations.Add(Interpolation);
		return true;
	}

	void FAnimationCurve::Evaluate(double Time, TArrayView<double> OutValues) const
	{
		check(!Times.IsEmpty() && OutValues.Num() == NumChannels);
		const int32 Key = FMath::Max(0, Algo::UpperBound(Times, Time) - 1);
		for (int32 Channel = 0; Channel < NumChannels; ++Channel)
		{
			OutValues[Channel] = Interpolate(Key, Time, Channel);
		}
	}

	double FAnimationCurve::GetSlope(int32 Key, int32 Channel) const
	{
		if (Key == 0 || Key == Times.Num() - 1)
		{
			return 0.0;
		}
		return (GetValue(Key + 1, Channel) - GetValue(Key - 1, Channel)) / (Times[Key + 1] - Times[Key - 1]);
	}

	double FAnimationCurve::Interpolate(int32 Key, double Time, int32 Channel) const
	{
		const double From = GetValue(Key, Channel);
		if (Interpolations[Key] == EKeyInterpolation::Constant || Key == Times.Num() - 1 || Time <= Times[Key])
		{
			return From;
		}
		const double To = GetValue(Key + 1, Channel);
		const double Span = Times[Key + 1] - Times[Key];
		const double Share = (Time - Times[Key]) / Span;
		if (Interpolations[Key] == EKeyInterpolation::Linear)
		{
			return FMath::Lerp(From, To, Share);
		}
		return FMath::CubicInterp(From, GetSlope(Key, Channel) * Span, To, GetSlope(Key + 1, Channel) * Span, Share);
	}
}
