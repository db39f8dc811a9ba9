#pragma once

#include "CoreMinimal.h"

/** One end of a range. */
enum class EHxRangeHandle : uint8
{
	Lower,
	Upper
};

/**
 * A range of numbers between two limits, and the rules by which its ends move. Everything is in the unit of the limits.
 *
 * The ends are in order, within the limits, at least the minimum span apart, and on a step or on the upper limit. With limits
 * that have no room between them, or that are no numbers, nothing moves.
 */
struct HALVEXPROUI_API FHxRangeModel
{
	float MinValue = 0.0f;
	float MaxValue = 1.0f;

	/** Distance of the values that the ends can have, counted from the lower limit; 0 or below for any value. */
	float StepSize = 0.0f;

	/** The least that the ends are apart; more than the limits are counts as that. */
	float MinimumSpan = 0.0f;

	float LowerValue = 0.0f;
	float UpperValue = 1.0f;

	bool operator==(const FHxRangeModel& Other) const = default;

	/** Whether there is room between the limits. */
	bool IsUsable() const;

	/** Whether the range leaves nothing out. */
	bool IsWhole() const;

	/** Brings the ends to where the rules allow them. */
	void Settle();

	/** Ends that lay on a limit stay on it; others stay where they are, as far as the new limits allow. */
	void SetLimits(float InMin, float InMax);

	/** Sets both ends, given in either order. Does nothing when one is not a number. */
	void SetRange(float InLower, float InUpper);

	/** Place of a value between the limits, from 0 to 1. Only for usable limits. */
	double GetShare(float Value) const;

	/** The inverse of GetShare(), on no step. */
	double GetValueAt(double Share) const;

	float GetValue(EHxRangeHandle Handle) const { return Handle == EHxRangeHandle::Lower ? LowerValue : UpperValue; }

	/** Moves an end as near to the value as the other end and the limits let it. @return whether it moved */
	bool Move(EHxRangeHandle Handle, double To);

	/** Moves an end by steps, or by hundredths of the limits where there are none. @return whether it moved */
	bool Step(EHxRangeHandle Handle, int32 NumSteps);

	/** Moves both ends from where they were at the start, as far as the limits let them. @return whether they moved */
	bool Shift(const FHxRangeModel& Start, double By);

private:
	double GetStep() const;
	double GetSpan() const;

	/** The nearest values, at or below and at or above, that an end can have. */
	double Floor(double Value) const;
	double Ceil(double Value) const;
	double Snap(double Value) const;

	bool Assign(double Lower, double Upper);
};
