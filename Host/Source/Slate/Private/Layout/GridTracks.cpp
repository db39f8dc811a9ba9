#include "Layout/GridTracks.h"

namespace Host
{
	void FGridTracks::Reset(int32 Count)
	{
		DesiredSizes.Reset();
		DesiredSizes.SetNumZeroed(Count);
	}

	void FGridTracks::Require(int32 Track, float Size)
	{
		DesiredSizes[Track] = FMath::Max(DesiredSizes[Track], Size);
	}

	void FGridTracks::RequireSpan(int32 FirstTrack, int32 Span, float Size)
	{
		float Missing = Size;
		int32 FillCount = 0;
		for (int32 Track = FirstTrack; Track < FirstTrack + Span; ++Track)
		{
			Missing -= DesiredSizes[Track];
			FillCount += GetFill(Track) > 0.0f ? 1 : 0;
		}
		if (Missing <= 0.0f)
		{
			return;
		}
		const float Share = Missing / (FillCount > 0 ? FillCount : Span);
		for (int32 Track = FirstTrack; Track < FirstTrack + Span; ++Track)
		{
			if (FillCount == 0 || GetFill(Track) > 0.0f)
			{
				DesiredSizes[Track] += Share;
			}
		}
	}

	float FGridTracks::GetDesiredTotal() const
	{
		float Total = 0.0f;
		for (const float Size : DesiredSizes)
		{
			Total += Size;
		}
		return Total;
	}

	void FGridTracks::Arrange(float Allotted)
	{
		float FillTotal = 0.0f;
		float Rest = Allotted;
		for (int32 Track = 0; Track < DesiredSizes.Num(); ++Track)
		{
			const float Fill = GetFill(Track);
			FillTotal += Fill;
			Rest -= Fill > 0.0f ? 0.0f : DesiredSizes[Track];
		}
		Rest = FMath::Max(Rest, 0.0f);

		Offsets.SetNumUninitialized(DesiredSizes.Num() + 1);
		float Offset = 0.0f;
		for (int32 Track = 0; Track < DesiredSizes.Num(); ++Track)
		{
			const float Fill = GetFill(Track);
			Offsets[Track] = Offset;
			Offset += Fill > 0.0f ? Rest * Fill / FillTotal : DesiredSizes[Track];
		}
		Offsets[DesiredSizes.Num()] = Offset;
	}

	float FGridTracks::GetOffset(int32 Track) const
	{
		return Offsets[Track];
	}

	float FGridTracks::GetExtent(int32 FirstTrack, int32 Span) const
	{
		return Offsets[FirstTrack + Span] - Offsets[FirstTrack];
	}

	float FGridTracks::GetFill(int32 Track) const
	{
		return FillCoefficients.IsValidIndex(Track) ? FillCoefficients[Track] : 0.0f;
	}
}
