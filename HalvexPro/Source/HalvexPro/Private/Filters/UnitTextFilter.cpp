#include "Filters/UnitTextFilter.h"

#include "Filters/UnitMask.h"
#include "Filters/UnitTextFolding.h"

namespace
{
	/** Whether a text contains another one, character by character; the other one is not empty. */
	bool ContainsText(FStringView Text, FStringView Wanted)
	{
		const TCHAR* const Characters = Text.GetData();
		const TCHAR First = Wanted[0];
		const int32 LastStart = Text.Len() - Wanted.Len();
		for (int32 Start = 0; Start <= LastStart; ++Start)
		{
			if (Characters[Start] == First && FMemory::Memcmp(Characters + Start, Wanted.GetData(), Wanted.Len() * sizeof(TCHAR)) == 0)
			{
				return true;
			}
		}
		return false;
	}
}

UUnitTextFilter* UUnitTextFilter::CreateTextFilter(EUnitTextField InField, const FString& InText)
{
	UUnitTextFilter* const Filter = NewObject<UUnitTextFilter>();
	Filter->Field = InField;
	Filter->Text = InText;
	return Filter;
}

bool UUnitTextFilter::DoesUnitPass_Implementation(const FUnitData& UnitData) const
{
	const FString Wanted = FUnitTextFolding::Fold(Text);
	return Wanted.IsEmpty() || ContainsText(FUnitTextFolding::Fold(FUnitFields::GetText(UnitData, Field)), Wanted);
}

void UUnitTextFilter::FilterUnits(const FUnitColumns& Units, FUnitMask& Passing) const
{
	const FString Wanted = FUnitTextFolding::Fold(Text);
	if (!Wanted.IsEmpty())
	{
		Passing.RestrictPassing([this, &Units, &Wanted](int32 Index) { return ContainsText(Units.GetFoldedText(Field, Index), Wanted); });
	}
}

FString UUnitTextFilter::GetConditionText() const
{
	return FString::Printf(TEXT("text %d "), int32(Field)) + FUnitTextFolding::Fold(Text);
}
