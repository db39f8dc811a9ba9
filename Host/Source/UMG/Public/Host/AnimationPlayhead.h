#pragma once

#include "CoreMinimal.h"
#include "Animation/UMGSequencePlayMode.h"
#include "Misc/Optional.h"

namespace Host
{
	/** Where in an animation playing stands, and where it goes from there. All times are seconds from the animation's start. */
	class UMG_API FAnimationPlayhead
	{
	public:
		/**
		 * Goes to where playing starts.
		 * @param StartAtTime	counted from where the first pass begins, which in reverse is the end
		 * @param InEndTime		where the last pass ends, when that is not where passes end
		 * @param InNumLoops	number of passes, of which ping-pong makes one each way; 0 for no end
		 */
		void Start(double InLength, double StartAtTime, TOptional<double> InEndTime, int32 InNumLoops, EUMGSequencePlayMode::Type InMode);

		/** Plays on for some seconds of the animation, none or more. True when the end is reached. */
		bool Advance(double Seconds);

		double GetTime() const { return Time; }
		void SetTime(double InTime) { Time = FMath::Clamp(InTime, 0.0, Length); }
		void SetNumLoops(int32 InNumLoops) { NumLoops = InNumLoops; }

		bool IsForward() const { return bForward; }
		/** Turns round: this pass and those to come end at the other end. */
		void Reverse();

	private:
		bool IsLastPass() const { return NumLoops > 0 && PassesDone >= NumLoops - 1; }
		double GetEndOfPass() const;
		/** Goes to the start of the pass that is so many later than the present one. */
		void BeginPasses(int64 Count);
		/** How many of the passes after the present one lie wholly within the seconds. */
		int64 CountWholePasses(double Seconds) const;

		double Length = 0.0;
		double Time = 0.0;
		TOptional<double> EndTime;
		int64 PassesDone = 0;
		int32 NumLoops = 1;
		EUMGSequencePlayMode::Type Mode = EUMGSequencePlayMode::Forward;
		bool bForward = true;
	};
}
