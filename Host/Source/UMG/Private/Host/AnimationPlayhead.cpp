#include "Host/AnimationPlayhead.h"

namespace Host
{
	void FAnimationPlayhead::Start(double InLength, double StartAtTime, TOptional<double> InEndTime, int32 InNumLoops, EUMGSequencePlayMode::Type InMode)
	{
		Length = InLength;
		EndTime = InEndTime;
		NumLoops = InNumLoops;
		Mode = InMode;
		PassesDone = 0;
		bForward = InMode != EUMGSequencePlayMode::Reverse;
		SetTime(bForward ? StartAtTime : Length - StartAtTime);
	}

	bool FAnimationPlayhead::Advance(double Seconds)
	{
		double Left = Seconds;
		for (;;)
		{
			const double End = GetEndOfPass();
			const double Distance = bForward ? End - Time : Time - End;
			if (Left < Distance)
			{
				Time += bForward ? Left : -Left;
				return false;
			}
			// Passes without length would never use up the time.
			if (IsLastPass() || Length <= 0.0)
			{
				Time = End;
				return true;
			}
			Left -= Distance;
			const int64 Skipped = CountWholePasses(Left);
			BeginPasses(1 + Skipped);
			Left -= static_cast<double>(Skipped) * Length;
		}
	}

	void FAnimationPlayhead::Reverse()
	{
		bForward = !bForward;
		EndTime.Reset();
	}

	double FAnimationPlayhead::GetEndOfPass() const
	{
		if (EndTime && IsLastPass())
		{
			return FMath::Clamp(*EndTime, 0.0, Length);
		}
		return bForward ? Length : 0.0;
	}

	void FAnimationPlayhead::BeginPasses(int64 Count)
	{
		PassesDone += Count;
		if (Mode == EUMGSequencePlayMode::PingPong && Count % 2 != 0)
		{
			bForward = !bForward;
		}
		Time = bForward ? 0.0 : Length;
	}

	int64 FAnimationPlayhead::CountWholePasses(double Seconds) const
	{
		const int64 Whole = static_cast<int64>(FMath::Min(Seconds / Length, 1e15));
		// Without the one that has just ended, and without the last, which may end elsewhere.
		return NumLoops > 0 ? FMath::Clamp<int64>(NumLoops - 2 - PassesDone, 0, Whole) : Whole;
	}
}
