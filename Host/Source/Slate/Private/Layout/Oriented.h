#pragma once

#include "CoreMinimal.h"
#include "Layout/Margin.h"
#include "Types/SlateEnums.h"

/**
 * One spelling for both axes: panels that lay out along an orientation are written once, in "along" (the direction
 * in which children follow each other) and "across" (the other one).
 */
namespace Host
{
	constexpr EOrientation Across(EOrientation Orientation)
	{
		return Orientation == Orient_Horizontal ? Orient_Vertical : Orient_Horizontal;
	}

	/** The component of a vector in the direction of an orientation. */
	inline float Along(const FVector2f& Vector, EOrientation Orientation)
	{
		return Orientation == Orient_Horizontal ? Vector.X : Vector.Y;
	}

	inline float& Along(FVector2f& Vector, EOrientation Orientation)
	{
		return Orientation == Orient_Horizontal ? Vector.X : Vector.Y;
	}

	/** The vector with these components along and across an orientation. */
	inline FVector2f OrientedVector(EOrientation Orientation, float InAlong, float InAcross)
	{
		return Orientation == Orient_Horizontal ? FVector2f(InAlong, InAcross) : FVector2f(InAcross, InAlong);
	}

	/** The margin at the start of an orientation: left or top. */
	inline float MarginBefore(const FMargin& Margin, EOrientation Orientation)
	{
		return Orientation == Orient_Horizontal ? Margin.Left : Margin.Top;
	}

	/** The margin at the end of an orientation: right or bottom. */
	inline float MarginAfter(const FMargin& Margin, EOrientation Orientation)
	{
		return Orientation == Orient_Horizontal ? Margin.Right : Margin.Bottom;
	}

	inline float MarginTotal(const FMargin& Margin, EOrientation Orientation)
	{
		return MarginBefore(Margin, Orientation) + MarginAfter(Margin, Orientation);
	}
}
