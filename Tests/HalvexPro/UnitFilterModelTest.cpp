#include "SceneTest.h"

#include "Filters/UnitAvailabilityFilter.h"
#include "Filters/UnitChoiceFilter.h"
#include "Filters/UnitNumberRangeFilter.h"
#include "Filters/UnitTextFilter.h"

#include <random>

namespace
{
	/** The filter manager beside a plain loop over all units and all filters, under random changes of both. */
	class FUnitFilterModelTest : public FSceneTest
	{
	protected:
		int32 Below(int32 End) { return int32(Random() % uint32(End)); }

		FUnitData MakeData(const FString& Id)
		{
			static const TCHAR* const Names[] = { TEXT("Quay"), TEXT("qu\u00E4y"), TEXT("Court"), TEXT("\u00C9lan"), TEXT("") };
			FUnitData Data;
			Data.UnitId = FName(*Id);
			Data.Name = FString(Names[Below(5)]) + FString::FromInt(Below(20));
			Data.Level = Below(10) - 1;
			Data.Rooms = Below(5);
			Data.Price = Below(10) * 1000.0;
			Data.Building = FName(*FString::Printf(TEXT("House %d"), Below(4)));
			Data.Orientation = EUnitOrientation(Below(9));
			Data.Status = EUnitStatus(Below(4));
			return Data;
		}

		void SpawnRandomUnits()
		{
			TArray<FProjectUnit> Units;
			const int32 Num = Below(200);
			for (int32 Index = 0; Index < Num; ++Index)
			{
				FProjectUnit Unit = MakeUnit(FString());
				Unit.Data = MakeData(FString::Printf(TEXT("U%d"), Index));
				Units.Add(Unit);
			}
			Manager->SpawnUnits(Units);
		}

		UUnitFilter* MakeFilter()
		{
			static const TCHAR* const Texts[] = { TEXT(""), TEXT("QUAY"), TEXT("1"), TEXT("elan1"), TEXT("zzz") };
			switch (Below(6))
			{
			case 0:
				return UUnitNumberRangeFilter::CreateNumberRangeFilter(EUnitNumberField::Level, Below(6) - 2, Below(10));
			case 1:
				return UUnitNumberRangeFilter::CreateNumberRangeFilter(EUnitNumberField::Price, Below(5) * 1000.0, Below(10) * 1000.0);
			case 2:
				return UUnitChoiceFilter::CreateChoiceFilter(
					EUnitChoiceField::Building, { FName(*FString::Printf(TEXT("House %d"), Below(4))), FName(*FString::Printf(TEXT("House %d"), Below(5))) });
			case 3:
				return UUnitTextFilter::CreateTextFilter(EUnitTextField::Name, Texts[Below(5)]);
			case 4:
				return UUnitAvailabilityFilter::CreateAvailabilityFilter(Below(2) == 0);
			default:
				return nullptr;
			}
		}

		TArray<UUnitFilter*> MakeFilters()
		{
			TArray<UUnitFilter*> Made;
			const int32 Num = Below(4);
			for (int32 Index = 0; Index < Num; ++Index)
			{
				Made.Add(MakeFilter());
			}
			return Made;
		}

		void ChangeSomething()
		{
			const TArray<AUnitVolumeActor*> Units = Manager->GetUnitVolumes();
			const bool bUnit = !Units.IsEmpty();
			AUnitVolumeActor* const Some = bUnit ? Units[Below(Units.Num())] : nullptr;
			switch (Below(12))
			{
			case 0:
				SpawnRandomUnits();
				break;
			case 1:
				Collections.Add(UUnitFilterCollection::CreateUnitFilterCollection(MakeFilters(), Below(3) == 0));
				Filters->RegisterFilterCollection(Collections.Last());
				break;
			case 2:
				if (Collections.Num() > 2)
				{
					Filters->UnregisterFilterCollection(Collections[0]);
					Collections.RemoveAt(0);
				}
				break;
			case 3:
				Filters->ClearAllFilters();
				break;
			case 4:
				if (Some)
				{
					Some->Destroy();
				}
				break;
			case 5:
				World->Tick(0.01f);
				break;
			case 6:
			case 7:
				if (Some)
				{
					Some->SetUnitVolumeSceneData(MakeData(Some->GetUnitData().UnitId.ToString()));
				}
				break;
			default:
				if (!Collections.IsEmpty())
				{
					UUnitFilterCollection* const Collection = Collections[Below(Collections.Num())];
					Below(4) == 0 ? Collection->FinishInitialization() : Collection->ReplaceFilters(MakeFilters());
				}
			}
		}

		bool ShouldPass(const FUnitData& Data) const
		{
			for (const UUnitFilterCollection* Collection : Collections)
			{
				for (const UUnitFilter* Filter : Collection->GetFilters())
				{
					if (!Collection->IsOnInitialization() && Filter && !Filter->DoesUnitPass(Data))
					{
						return false;
					}
				}
			}
			return true;
		}

		void Compare()
		{
			TArray<AUnitVolumeActor*> Expected;
			const FUnitsFilterResult Result = Filters->GetCurrentFilterResult();
			const TArray<AUnitVolumeActor*> Units = Manager->GetUnitVolumes();
			for (AUnitVolumeActor* Unit : Units)
			{
				const bool bPasses = ShouldPass(Unit->GetUnitData());
				ASSERT_EQ(Unit->IsFilteredOut(), !bPasses);
				if (bPasses)
				{
					Expected.Add(Unit);
				}
			}
			ASSERT_EQ(Result.TotalNum, Units.Num());
			ASSERT_EQ(Result.SelectionNum, Expected.Num());
			ASSERT_EQ(ObjectPtrDecay(Result.UnitVolumes), Expected);
		}

		std::mt19937 Random{42};
		TArray<UUnitFilterCollection*> Collections;
	};

	TEST_F(FUnitFilterModelTest, ManagerAgreesWithAPlainLoopUnderRandomChanges)
	{
		SpawnRandomUnits();
		for (int32 Step = 0; Step < 2000 && !HasFailure(); ++Step)
		{
			SCOPED_TRACE(Step);
			ChangeSomething();
			Compare();
			if (Step % 100 == 0)
			{
				Listener->TakeStory();
			}
		}
	}

	TEST_F(FUnitFilterModelTest, ResultsThatWereRaisedAreTheLastOnesAsked)
	{
		SpawnRandomUnits();
		for (int32 Step = 0; Step < 300 && !HasFailure(); ++Step)
		{
			ChangeSomething();
			World->Tick(0.01f);
			ASSERT_EQ(Listener->Result.UnitVolumes, Filters->GetCurrentFilterResult().UnitVolumes);
			Listener->TakeStory();
		}
	}
}
