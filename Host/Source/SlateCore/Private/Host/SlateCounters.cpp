#include "Host/SlateCounters.h"

namespace Host
{
	FSlateCounters& FSlateCounters::Get()
	{
		static FSlateCounters Counters;
		return Counters;
	}

	FSlateCounters FSlateCounters::operator-(const FSlateCounters& Other) const
	{
		FSlateCounters Result;
		Result.Measured = Measured - Other.Measured;
		Result.Arranged = Arranged - Other.Arranged;
		Result.Painted = Painted - Other.Painted;
		Result.Elements = Elements - Other.Elements;
		Result.Visited = Visited - Other.Visited;
		Result.ShapedRuns = ShapedRuns - Other.ShapedRuns;
		Result.PolledAttributes = PolledAttributes - Other.PolledAttributes;
		Result.Ticked = Ticked - Other.Ticked;
		return Result;
	}

	FString FSlateCounters::ToString() const
	{
		return FString::Printf(TEXT("measured %lld, arranged %lld, painted %lld, elements %lld, visited %lld, shaped %lld, polled %lld, ticked %lld"),
			Measured, Arranged, Painted, Elements, Visited, ShapedRuns, PolledAttributes, Ticked);
	}
}
