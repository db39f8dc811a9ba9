#include "Host/NearestText.h"

namespace Host
{
	namespace
	{
		/** Longer texts are no names, and comparing them takes its time. */
		constexpr int32 LongestCompared = 64;

		int32 GetEditDistance(const FString& A, const FString& B)
		{
			// One row of the table of distances between the beginnings of both, made from the one before.
			TArray<int32> Row;
			for (int32 Column = 0; Column <= B.Len(); ++Column)
			{
				Row.Add(Column);
			}
			for (int32 Line = 1; Line <= A.Len(); ++Line)
			{
				int32 Diagonal = Row[0];
				Row[0] = Line;
				for (int32 Column = 1; Column <= B.Len(); ++Column)
				{
					const bool bSame = FChar::ToLower(A[Line - 1]) == FChar::ToLower(B[Column - 1]);
					const int32 Replaced = Diagonal + (bSame ? 0 : 1);
					Diagonal = Row[Column];
					Row[Column] = FMath::Min3(Replaced, Row[Column] + 1, Row[Column - 1] + 1);
				}
			}
			return Row.Last();
		}
	}

	FString FindNearest(const FString& Sought, const TArray<FString>& Candidates, int32 MaxChanges)
	{
		FString Nearest;
		int32 Least = MaxChanges + 1;
		for (const FString& Candidate : Candidates)
		{
			// A difference in length is a distance too, and quick to see.
			if (FMath::Max(Sought.Len(), Candidate.Len()) > LongestCompared || FMath::Abs(Candidate.Len() - Sought.Len()) >= Least)
			{
				continue;
			}
			const int32 Distance = GetEditDistance(Sought, Candidate);
			if (Distance < Least)
			{
				Least = Distance;
				Nearest = Candidate;
			}
		}
		return Nearest;
	}
}
