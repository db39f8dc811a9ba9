#include "Filters/UnitsFilterManager.h"

#include "Filters/UnitFilter.h"
#include "Filters/UnitFilterCollection.h"
#include "HalvexProLog.h"
#include "UnitVolumes/UnitVolumeActor.h"
#include "UnitVolumes/UnitVolumesManager.h"

namespace
{
	/** Handlers that change the filters at each result would keep each other busy for ever. */
	constexpr int32 MaxResultsInARow = 16;
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
	if (AUnitVolumesManager* const Owner = GetTypedOuter<AUnitVolumesManager>())
	{
		Owner->TakeOverUnits();
	}
	if (bEvaluationDue)
	{
		Evaluate();
	}
	return CurrentResult;
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
	for (UUnitFilterCollection* Collection : Collections)
	{
		if (!Collection || Collection->IsOnInitialization())
		{
			continue;
		}
		for (UUnitFilter* Filter : Collection->GetFilters())
		{
			if (Filter)
			{
				ApplyFilter(*Filter);
			}
		}
	}
	DropUnusedAnswers();
	BuildResult();
	ShowPassing();
}

void UUnitsFilterManager::ApplyFilter(const UUnitFilter& Filter)
{
	const FString Condition = Filter.GetConditionText();
	if (Condition.IsEmpty())
	{
		Filter.FilterUnits(Columns, Passing);
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
	Passing.AndWith(Answer->Passing);
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
