#include "Filters/UnitTextFolding.h"

namespace
{
	struct FFolding
	{
		TCHAR Letter;
		const TCHAR* Folded;
	};

	const FFolding Foldings[] =
	{
#include "UnitTextFoldingTable.inl"
	};

	/** What a letter is taken for; null when only its case counts. */
	const TCHAR* FindFolding(TCHAR Letter)
	{
		int32 First = 0;
		int32 Last = int32(UE_ARRAY_COUNT(Foldings)) - 1;
		while (First <= Last)
		{
			const int32 Middle = (First + Last) / 2;
			if (Foldings[Middle].Letter == Letter)
			{
				return Foldings[Middle].Folded;
			}
			(Foldings[Middle].Letter < Letter ? First : Last) = Foldings[Middle].Letter < Letter ? Middle + 1 : Middle - 1;
		}
		return nullptr;
	}

	bool IsCombiningMark(TCHAR Letter)
	{
		return Letter >= 0x0300 && Letter <= 0x036F;
	}

	void AppendNonAscii(TArray<TCHAR>& Out, TCHAR Letter)
	{
		if (IsCombiningMark(Letter))
		{
			return;
		}
		const TCHAR* Folded = FindFolding(Letter);
		if (!Folded)
		{
			Out.Add(FChar::ToLower(Letter));
			return;
		}
		for (; *Folded; ++Folded)
		{
			Out.Add(*Folded);
		}
	}
}

FString FUnitTextFolding::Fold(FStringView Text)
{
	TArray<TCHAR> Folded;
	Append(Folded, Text);
	return FString(Folded.Num(), Folded.GetData());
}

void FUnitTextFolding::Append(TArray<TCHAR>& Out, FStringView Text)
{
	Out.Reserve(Out.Num() + Text.Len());
	for (const TCHAR Letter : Text)
	{
		if (Letter >= 0x80)
		{
			AppendNonAscii(Out, Letter);
		}
		else
		{
			Out.Add(Letter >= 'A' && Letter <= 'Z' ? TCHAR(Letter + 32) : Letter);
		}
	}
}
