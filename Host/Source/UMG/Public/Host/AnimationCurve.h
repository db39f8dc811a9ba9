#pragma once

#include "CoreMinimal.h"
#include "Containers/ArrayView.h"

namespace Host
{
	/** How a curve goes from a key to the next one. */
	enum class EKeyInterpolation : uint8
	{
		/** Keeps the key's value until the next key. */
		Constant,
		/** Goes straight. */
		Linear,
		/** Goes smoothly: at rest at the ends of the curve, at a key between others with the slope from neighbour to neighbour. */
		Cubic
	};

	/** Numbers over time. Before its first and after its last key a curve keeps the value of that key. */
	class UMG_API FAnimationCurve
	{
	public:
		/** @param InNumChannels how many numbers the curve has at a time, 1 or more */
		explicit FAnimationCurve(int32 InNumChannels);

		int32 GetNumChannels() const { return NumChannels; }
		int32 GetNumKeys() const { return Times.Num(); }

		/** Seconds of the last key; 0 without keys. */
		double GetLastTime() const { return Times.IsEmpty() ? 0.0 : Times.Last(); }

		/** Adds a key behind the others. False, with nothing added, when its time is negative or not after that of the last one. */
		bool AddKey(double Time, TConstArrayView<double> KeyValues, EKeyInterpolation Interpolation);

		/** The numbers at a time in seconds. The curve must have a key. */
		void Evaluate(double Time, TArrayView<double> OutValues) const;

	private:
		double GetValue(int32 Key, int32 Channel) const { return Values[Key * NumChannels + Channel]; }
		double GetSlope(int32 Key, int32 Channel) const;
		double Interpolate(int32 Key, double Time, int32 Channel) const;

		int32 NumChannels;
		TArray<double> Times;
		/** Key by key. */
		TArray<double> Values;
		TArray<EKeyInterpolation> Interpolations;
	};
}
