#include "Filters/UnitsFilterManager.h"

#include "Filters/UnitChoiceFilter.h"
#include "Filters/UnitFilterCollection.h"
#include "HalvexProLog.h"
#include "Misc/Paths.h"
#include "Project/UnitTableWriter.h"
#include "Templates/Casts.h"
#include "UObject/Class.h"
#include "UnitVolumes/UnitVolumeActor.h"
#include "UnitVolumes/UnitVolumesManager.h"

namespace
{
	/** Handlers that change the filters at each result would keep each other busy for ever. */
	constexpr int32 MaxResultsInARow = 16;

	/** Where the values are enumerators, their order says more than that of the units. */
	void SortByEnumerator(EUnitChoiceField Field, TArray<FUnitChoiceCount>& Counts)
	{
		const UEnum* const Enum = Field == EUnitChoiceField::Orientation ? StaticEnum<EUnitOrientation>()
			: Field == EUnitChoiceField::Status ? StaticEnum<EUnitStatus>() : nullptr;
		if (Enum)
		{
			Counts.Sort([Enum](const FUnitChoiceCount& A, const FUnitChoiceCount& B)
			{
				return Enum->GetValueByNameString(A.Value.ToString()) < Enum->GetValueByNameString(B.Value.ToString());
			});
		}
	}
}

UUnitsFilterManager::FHoldResults::FHoldResults(UUnitsFilterManager& InManager)
	: Manager(InManager)
{
	++Manager.NumHolds;
}

UUnitsFilterManager::FHoldResults::~FHoldResults()
{
	if (--Manager.NumHolds == 0)
	{
		Manager.RaiseResults();
	}
}

void UUnitsFilterManager::RegisterFilterCollection(UUnitFilterCollection* Collection)
{
	if (Collection && !Collections.Contains(Collection))
	{
		Collections.Add(Collection);
		Collection->OnChange.AddUObject(this, &UUnitsFilterManager::ReceivedCollectionChange);
		if (!Collection->IsOnInitialization())
		{
			ReceivedCollectionChange();
		}
	}
}

void UUnitsFilterManager::UnregisterFilterCollection(UUnitFilterCollection* Collection)
{
	if (Collection && Collections.Remove(Collection) > 0)
	{
		Collection->OnChange.RemoveAll(this);
		ReceivedCollectionChange();
	}
}

const FUnitsFilterResult& UUnitsFilterManager::GetCurrentFilterResult()
{
	TakeOverUnits();
	if (bEvaluationDue)
	{
		Evaluate();
	}
	return CurrentResult;
}

void UUnitsFilterManager::TakeOverUnits()
{
	if (AUnitVolumesManager* const Owner = GetTypedOuter<AUnitVolumesManager>())
	{
		Owner->TakeOverUnits();
	}
}

void UUnitsFilterManager::ClearAllFilters()
{
	const FHoldResults Hold(*this);
	const TArray<TObjectPtr<UUnitFilterCollection>> Cleared = Collections;
	for (UUnitFilterCollection* Collection : Cleared)
	{
		Collection->ReplaceFilters(TArray<UUnitFilter*>());
	}
	OnClearAllFilters.Broadcast();
	ReceivedCollectionChange();
}

void UUnitsFilterManager::RefreshFilterResult()
{
	ReceivedCollectionChange();
}

bool UUnitsFilterManager::GetNumberLimits(EUnitNumberField Field, bool bWithoutZeros, double& OutMinimum, double& OutMaximum)
{
	TakeOverUnits();
	bool bFound = false;
	OutMinimum = 0.0;
	OutMaximum = 0.0;
	for (const double Number : Columns.GetNumbers(Field))
	{
		if (bWithoutZeros && Number == 0.0)
		{
			continue;
		}
		OutMinimum = bFound ? FMath::Min(OutMinimum, Number) : Number;
		OutMaximum = bFound ? FMath::Max(OutMaximum, Number) : Number;
		bFound = true;
	}
	return bFound;
}

TArray<FUnitChoiceCount> UUnitsFilterManager::CountChoices(EUnitChoiceField Field)
{
	TakeOverUnits();
	FUnitMask Others;
	Others.Init(Units.Num(), true);
	ForEachFilter([this, Field, &Others](const UUnitFilter& Filter)
	{
		const UUnitChoiceFilter* const Choice = Cast<UUnitChoiceFilter>(&Filter);
		if (!Choice || Choice->Field != Field)
		{
			ApplyFilter(Filter, Others);
		}
	});
	const TArray<FName>& Names = Columns.GetChoiceNames(Field);
	const TArray<int32>& Codes = Columns.GetChoiceCodes(Field);
	TArray<FUnitChoiceCount> Counts;
	Counts.SetNum(Names.Num());
	for (int32 Code = 0; Code < Names.Num(); ++Code)
	{
		Counts[Code].Value = Names[Code];
	}
	for (int32 Index = 0; Index < Codes.Num(); ++Index)
	{
		FUnitChoiceCount& Count = Counts[Codes[Index]];
		++Count.TotalNum;
		Count.PassingNum += Others[Index] ? 1 : 0;
	}
	// A unit that got other data may have been the last one of its value.
	Counts.RemoveAll([](const FUnitChoiceCount& Count) { return Count.TotalNum == 0; });
	SortByEnumerator(Field, Counts);
	return Counts;
}

TArray<FString> UUnitsFilterManager::FindMissingValues(const FUnitFilterSet& Set)
{
	TakeOverUnits();
	const UEnum* const Fields = StaticEnum<EUnitChoiceField>();
	TArray<FString> Missing;
	for (const FUnitFilterRecord& Record : Set.Filters)
	{
		const int64 Field = Fields->GetValueByNameString(Record.Field.ToString());
		if (Record.Kind != EUnitFilterKind::Choice || Field == INDEX_NONE)
		{
			continue;
		}
		for (const FName& Value : Record.Values)
		{
			if (!Columns.GetChoiceNames(EUnitChoiceField(Field)).Contains(Value))
			{
				Missing.Add(FString::Printf(TEXT("%s: %s"), *Record.Field.ToString().ToLower(), *Value.ToString()));
			}
		}
	}
	return Missing;
}

bool UUnitsFilterManager::SavePassingUnits(const FString& Filename)
{
	TArray<const FUnitData*> Data;
	for (const AUnitVolumeActor* UnitVolume : GetCurrentFilterResult().UnitVolumes)
	{
		Data.Add(&UnitVolume->GetUnitData());
	}
	return FUnitTableWriter::SaveFile(FPaths::GetExtension(Filename).IsEmpty() ? Filename + TEXT(".csv") : Filename, Data);
}

void UUnitsFilterManager::SetUnits(const TArray<TObjectPtr<AUnitVolumeActor>>& InUnits)
{
	Units = InUnits;
	KeptAnswers.Empty();
	Columns.Empty(Units.Num());
	Shown.Init(Units.Num(), true);
	for (int32 Index = 0; Index < Units.Num(); ++Index)
	{
		Columns.Add(Units[Index]->GetUnitData());
		if (Units[Index]->IsFilteredOut())
		{
			Shown.Set(Index, false);
		}
	}
	bEvaluationDue = true;
}

void UUnitsFilterManager::RefreshUnit(int32 Index)
{
	Columns.Refresh(Index);
	for (auto Answer = KeptAnswers.CreateIterator(); Answer; ++Answer)
	{
		const UUnitFilter* const Filter = Answer->Value.Filter.Get();
		// A filter that was edited or is gone cannot say what its condition was.
		if (Filter && Filter->GetConditionText().Equals(Answer->Key, ESearchCase::CaseSensitive))
		{
			Answer->Value.Passing.Set(Index, Filter->DoesUnitPass(Columns.GetUnit(Index)));
		}
		else
		{
			Answer.RemoveCurrent();
		}
	}
	bEvaluationDue = true;
}

void UUnitsFilterManager::ReceivedCollectionChange()
{
	bEvaluationDue = true;
	bResultDue = true;
	RaiseResults();
}

void UUnitsFilterManager::RaiseResults()
{
	if (NumHolds > 0 || bRaisingResults)
	{
		return;
	}
	bRaisingResults = true;
	for (int32 Round = 0; bResultDue; ++Round)
	{
		bResultDue = false;
		if (Round == MaxResultsInARow)
		{
			UE_LOG(LogHalvexPro, Warning, TEXT("Filters: handlers of the filter result change the filters at every result; stopped after %d"), Round);
			break;
		}
		OnFilterResult.Broadcast(GetCurrentFilterResult());
	}
	bRaisingResults = false;
}

void UUnitsFilterManager::Evaluate()
{
	bEvaluationDue = false;
	Passing.Init(Units.Num(), true);
	ForEachFilter([this](const UUnitFilter& Filter) { ApplyFilter(Filter, Passing); });
	DropUnusedAnswers();
	BuildResult();
	ShowPassing();
}

template <typename VisitType>
void UUnitsFilterManager::ForEachFilter(VisitType Visit) const
{
	for (const UUnitFilterCollection* Collection : Collections)
	{
		if (!Collection || Collection->IsOnInitialization())
		{
			continue;
		}
		for (const UUnitFilter* Filter : Collection->GetFilters())
		{
			if (Filter)
			{
				Visit(*Filter);
			}
		}
	}
}

void UUnitsFilterManager::ApplyFilter(const UUnitFilter& Filter, FUnitMask& InOutPassing)
{
	const FString Condition = Filter.GetConditionText();
	if (Condition.IsEmpty())
	{
		Filter.FilterUnits(Columns, InOutPassing);
		return;
	}
	FKeptAnswer* Answer = KeptAnswers.Find(Condition);
	if (!Answer)
	{
		Answer = &KeptAnswers.Add(Condition);
		Answer->Passing.Init(Units.Num(), true);
		Filter.FilterUnits(Columns, Answer->Passing);
	}
	Answer->Filter = &Filter;
	Answer->bUsed = true;
	InOutPassing.AndWith(Answer->Passing);
}

void UUnitsFilterManager::DropUnusedAnswers()
{
	for (auto Answer = KeptAnswers.CreateIterator(); Answer; ++Answer)
	{
		if (!Answer->Value.bUsed)
		{
			Answer.RemoveCurrent();
			continue;
		}
		Answer->Value.bUsed = false;
	}
}

void UUnitsFilterManager::BuildResult()
{
	CurrentResult.TotalNum = Units.Num();
	CurrentResult.SelectionNum = Passing.Count();
	CurrentResult.UnitVolumes.SetNumUninitialized(CurrentResult.SelectionNum);
	int32 Place = 0;
	for (int32 Word = 0; Word < Passing.NumWords(); ++Word)
	{
		for (uint64 Rest = Passing.GetWord(Word); Rest != 0; Rest &= Rest - 1)
		{
			CurrentResult.UnitVolumes[Place++] = Units[Word * FUnitMask::UnitsPerWord + int32(FMath::CountTrailingZeros64(Rest))];
		}
	}
}

void UUnitsFilterManager::ShowPassing()
{
	const FUnitMask Before = Shown;
	Shown = Passing;
	for (int32 Word = 0; Word < Passing.NumWords(); ++Word)
	{
		for (uint64 Rest = Before.GetWord(Word) ^ Passing.GetWord(Word); Rest != 0; Rest &= Rest - 1)
		{
			const int32 Index = Word * FUnitMask::UnitsPerWord + int32(FMath::CountTrailingZeros64(Rest));
			Units[Index]->SetFilteredOut(!Passing[Index]);
		}
	}
}
