#include "Filters/UnitChoiceFilter.h"

#include "Filters/UnitMask.h"

UUnitChoiceFilter* UUnitChoiceFilter::CreateChoiceFilter(EUnitChoiceField InField, const TArray<FName>& InValues)
{
	UUnitChoiceFilter* const Filter = NewObject<UUnitChoiceFilter>();
	Filter->Field = InField;
	Filter->Values.Append(InValues);
	return Filter;
}

bool UUnitChoiceFilter::DoesUnitPass_Implementation(const FUnitData& UnitData) const
{
	return Values.IsEmpty() || Values.Contains(FUnitFields::GetChoice(UnitData, Field));
}

void UUnitChoiceFilter::FilterUnits(const FUnitColumns& Units, FUnitMask& Passing) const
{
	if (Values.IsEmpty())
	{
		return;
	}
	TArray<bool> CodePasses;
	for (const FName Name : Units.GetChoiceNames(Field))
	{
		CodePasses.Add(Values.Contains(Name));
	}
	const int32* const Codes = Units.GetChoiceCodes(Field).GetData();
	const bool* const Passes = CodePasses.GetData();
	Passing.Restrict([Codes, Passes](int32 Index) { return Passes[Codes[Index]]; });
}

FString UUnitChoiceFilter::GetConditionText() const
{
	TArray<FName> Sorted = Values.Array();
	Sorted.Sort([](FName A, FName B) { return A.LexicalLess(B); });
	FString Text = FString::Printf(TEXT("choice %d"), int32(Field));
	for (const FName Value : Sorted)
	{
		// With its length, as a name may hold any character.
		const FString Name = Value.ToString();
		Text += FString::Printf(TEXT("\t%d:"), Name.Len()) + Name;
	}
	return Text;
}
