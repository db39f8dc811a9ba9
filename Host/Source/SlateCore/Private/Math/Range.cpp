#include "Math/Range.h"

FInt32RangeBound FInt32RangeBound::Exclusive(int32 InValue)
{
	FInt32RangeBound Bound;
	Bound.Type = ERangeBoundTypes::Exclusive;
	Bound.Value = InValue;
	return Bound;
}

FInt32RangeBound FInt32RangeBound::Inclusive(int32 InValue)
{
	return FInt32RangeBound(InValue);
}

FInt32RangeBound FInt32RangeBound::Open()
{
	FInt32RangeBound Bound;
	Bound.Type = ERangeBoundTypes::Open;
	return Bound;
}

bool FInt32RangeBound::operator==(const FInt32RangeBound& Other) const
{
	return Type == Other.Type && (IsOpen() || Value == Other.Value);
}

FInt32Range FInt32Range::Inclusive(int32 Min, int32 Max)
{
	return FInt32Range(FInt32RangeBound::Inclusive(Min), FInt32RangeBound::Inclusive(Max));
}

FInt32Range FInt32Range::All()
{
	return FInt32Range(FInt32RangeBound::Open(), FInt32RangeBound::Open());
}

bool FInt32Range::Contains(int32 Element) const
{
	const bool bAboveLower = LowerBound.IsOpen() || Element > LowerBound.Value || (LowerBound.IsInclusive() && Element == LowerBound.Value);
	const bool bBelowUpper = UpperBound.IsOpen() || Element < UpperBound.Value || (UpperBound.IsInclusive() && Element == UpperBound.Value);
	return bAboveLower && bBelowUpper;
}

bool FInt32Range::operator==(const FInt32Range& Other) const
{
	return LowerBound == Other.LowerBound && UpperBound == Other.UpperBound;
}
