#include "EngineTest.h"

#include "Filters/UnitAvailabilityFilter.h"
#include "Filters/UnitChoiceFilter.h"
#include "Filters/UnitMask.h"
#include "Filters/UnitNumberRangeFilter.h"
#include "Filters/UnitTextFilter.h"
#include "Filters/UnitTextFolding.h"

#include <random>

namespace
{
	using Host::ToStd;

	/** Places of the units that pass, as a text of digits; the columns and the single question must agree. */
	std::string Passing(const UUnitFilter& Filter, const TArray<FUnitData>& Units)
	{
		FUnitColumns Columns;
		for (const FUnitData& Unit : Units)
		{
			Columns.Add(Unit);
		}
		FUnitMask Mask;
		Mask.Init(Units.Num(), true);
		Filter.FilterUnits(Columns, Mask);
		std::string Places;
		for (int32 Index = 0; Index < Units.Num(); ++Index)
		{
			EXPECT_EQ(Filter.DoesUnitPass(Units[Index]), Mask[Index]) << "unit " << Index;
			if (Mask[Index])
			{
				Places += std::to_string(Index);
			}
		}
		return Places;
	}

	FUnitData Named(const TCHAR* Name)
	{
		FUnitData Unit;
		Unit.Name = Name;
		return Unit;
	}

	FUnitData Priced(double Price)
	{
		FUnitData Unit;
		Unit.Price = Price;
		return Unit;
	}

	FUnitData WithStatus(EUnitStatus Status)
	{
		FUnitData Unit;
		Unit.Status = Status;
		return Unit;
	}

	TEST(FUnitNumberRangeFilterTest, LimitsBelongToTheRange)
	{
		const TArray<FUnitData> Units = { Priced(99.0), Priced(100.0), Priced(150.0), Priced(200.0), Priced(201.0) };
		EXPECT_EQ(Passing(*UUnitNumberRangeFilter::CreateNumberRangeFilter(EUnitNumberField::Price, 100.0, 200.0), Units), "123");
		EXPECT_EQ(Passing(*UUnitNumberRangeFilter::CreateNumberRangeFilter(EUnitNumberField::Price, 150.0, 150.0), Units), "2");
	}

	TEST(FUnitNumberRangeFilterTest, EveryUnitPassesAtFirstAndNoneWhenTheLimitsAreSwapped)
	{
		const TArray<FUnitData> Units = { Priced(-1e300), Priced(0.0), Priced(1e300) };
		EXPECT_EQ(Passing(*NewObject<UUnitNumberRangeFilter>(), Units), "012");
		EXPECT_EQ(Passing(*UUnitNumberRangeFilter::CreateNumberRangeFilter(EUnitNumberField::Price, 1.0, -1.0), Units), "");
	}

	TEST(FUnitNumberRangeFilterTest, EachNumberCanBeFilteredBy)
	{
		FUnitData Unit;
		Unit.Level = -1;
		Unit.Rooms = 2;
		Unit.Baths = 3;
		Unit.Area = 4.5f;
		Unit.OutdoorArea = 5.5f;
		Unit.Price = 6.5;
		const double Values[] = { -1.0, 2.0, 3.0, 4.5, 5.5, 6.5 };
		for (int32 Field = 0; Field < FUnitColumns::NumNumberFields; ++Field)
		{
			const double Value = Values[Field];
			EXPECT_EQ(Passing(*UUnitNumberRangeFilter::CreateNumberRangeFilter(EUnitNumberField(Field), Value, Value), { Unit }), "0") << Field;
			EXPECT_EQ(Passing(*UUnitNumberRangeFilter::CreateNumberRangeFilter(EUnitNumberField(Field), Value + 0.1, Value + 0.2), { Unit }), "") << Field;
		}
	}

	TEST(FUnitChoiceFilterTest, OneOfTheValuesIsEnough)
	{
		TArray<FUnitData> Units;
		for (const TCHAR* Building : { TEXT("North"), TEXT("South"), TEXT("West"), TEXT("south") })
		{
			Units.AddDefaulted_GetRef().Building = FName(Building);
		}
		EXPECT_EQ(Passing(*UUnitChoiceFilter::CreateChoiceFilter(EUnitChoiceField::Building, { FName(TEXT("South")), FName(TEXT("West")) }), Units), "123");
		EXPECT_EQ(Passing(*UUnitChoiceFilter::CreateChoiceFilter(EUnitChoiceField::Building, { FName(TEXT("East")) }), Units), "");
	}

	TEST(FUnitChoiceFilterTest, EmptySetStopsNothing)
	{
		EXPECT_EQ(Passing(*UUnitChoiceFilter::CreateChoiceFilter(EUnitChoiceField::Building, {}), { Priced(1.0), Priced(2.0) }), "01");
	}

	TEST(FUnitChoiceFilterTest, EnumerationsGoByTheNamesOfTheirValues)
	{
		TArray<FUnitData> Units = { WithStatus(EUnitStatus::Sold), WithStatus(EUnitStatus::NotForSale) };
		Units[0].Orientation = EUnitOrientation::SouthWest;
		EXPECT_EQ(Passing(*UUnitChoiceFilter::CreateChoiceFilter(EUnitChoiceField::Status, { FName(TEXT("NotForSale")) }), Units), "1");
		EXPECT_EQ(Passing(*UUnitChoiceFilter::CreateChoiceFilter(EUnitChoiceField::Orientation, { FName(TEXT("SouthWest")) }), Units), "0");
		EXPECT_EQ(Passing(*UUnitChoiceFilter::CreateChoiceFilter(EUnitChoiceField::Orientation, { FName(TEXT("None")) }), Units), "1");
	}

	TEST(FUnitChoiceFilterTest, EachChoiceCanBeFilteredBy)
	{
		FUnitData Unit;
		Unit.Building = FName(TEXT("B"));
		Unit.Type = FName(TEXT("T"));
		Unit.View = FName(TEXT("V"));
		Unit.Orientation = EUnitOrientation::East;
		Unit.Status = EUnitStatus::Reserved;
		Unit.Currency = FName(TEXT("C"));
		const TCHAR* const Values[] = { TEXT("B"), TEXT("T"), TEXT("V"), TEXT("East"), TEXT("Reserved"), TEXT("C") };
		for (int32 Field = 0; Field < FUnitColumns::NumChoiceFields; ++Field)
		{
			EXPECT_EQ(Passing(*UUnitChoiceFilter::CreateChoiceFilter(EUnitChoiceField(Field), { FName(Values[Field]) }), { Unit, FUnitData() }), "0") << Field;
		}
	}

	TEST(FUnitTextFilterTest, TextMayStandAnywhereInTheName)
	{
		const TArray<FUnitData> Units = { Named(TEXT("Quay 12")), Named(TEXT("Quay 2")), Named(TEXT("12 Quay")), Named(TEXT("")) };
		EXPECT_EQ(Passing(*UUnitTextFilter::CreateTextFilter(EUnitTextField::Name, TEXT("12")), Units), "02");
		EXPECT_EQ(Passing(*UUnitTextFilter::CreateTextFilter(EUnitTextField::Name, TEXT("y 2")), Units), "1");
		EXPECT_EQ(Passing(*UUnitTextFilter::CreateTextFilter(EUnitTextField::Name, TEXT("Quay 123")), Units), "");
	}

	TEST(FUnitTextFilterTest, EmptyTextStopsNothing)
	{
		EXPECT_EQ(Passing(*UUnitTextFilter::CreateTextFilter(EUnitTextField::Name, TEXT("")), { Named(TEXT("A")), Named(TEXT("")) }), "01");
	}

	TEST(FUnitTextFilterTest, CaseAndAccentsOfBothSidesAreIgnored)
	{
		const TArray<FUnitData> Units = { Named(TEXT("\u00C9lan")), Named(TEXT("ELAN")), Named(TEXT("e\u0301lan")), Named(TEXT("Elen")) };
		EXPECT_EQ(Passing(*UUnitTextFilter::CreateTextFilter(EUnitTextField::Name, TEXT("elan")), Units), "012");
		EXPECT_EQ(Passing(*UUnitTextFilter::CreateTextFilter(EUnitTextField::Name, TEXT("\u00EAL\u00C4")), Units), "012");
	}

	TEST(FUnitTextFilterTest, UnitsCanBeFoundByTheirKey)
	{
		FUnitData Unit = Named(TEXT("Corner flat"));
		Unit.UnitId = FName(TEXT("N-0304"));
		EXPECT_EQ(Passing(*UUnitTextFilter::CreateTextFilter(EUnitTextField::UnitId, TEXT("n-03")), { Unit }), "0");
		EXPECT_EQ(Passing(*UUnitTextFilter::CreateTextFilter(EUnitTextField::UnitId, TEXT("corner")), { Unit }), "");
	}

	TEST(FUnitTextFoldingTest, LettersFoldToWhatPeopleTypeForThem)
	{
		EXPECT_EQ(ToStd(FUnitTextFolding::Fold(TEXT("\u00C6r\u00F8sk\u00F8bing STRA\u00DFE"))), "aeroskobing strasse");
		EXPECT_EQ(ToStd(FUnitTextFolding::Fold(TEXT("\u0141\u00F3d\u017A \u1EC7"))), "lodz e");
		EXPECT_EQ(ToStd(FUnitTextFolding::Fold(TEXT("\u0391\u0384\u03AC\u03C2"))), ToStd(FString(TEXT("\u03B1\u0384\u03B1\u03C3"))));
		EXPECT_EQ(ToStd(FUnitTextFolding::Fold(TEXT("\u0401\u0416"))), ToStd(FString(TEXT("\u0435\u0436"))));
		EXPECT_EQ(ToStd(FUnitTextFolding::Fold(TEXT(""))), "");
	}

	TEST(FUnitAvailabilityFilterTest, AvailableUnitsPassAndReservedOnesOnRequest)
	{
		const TArray<FUnitData> Units = { WithStatus(EUnitStatus::Available), WithStatus(EUnitStatus::Reserved), WithStatus(EUnitStatus::Sold), WithStatus(EUnitStatus::NotForSale) };
		EXPECT_EQ(Passing(*UUnitAvailabilityFilter::CreateAvailabilityFilter(false), Units), "0");
		EXPECT_EQ(Passing(*UUnitAvailabilityFilter::CreateAvailabilityFilter(true), Units), "01");
		EXPECT_EQ(Passing(*UUnitAvailabilityFilter::CreateAvailabilityFilter(true), { Units[2] }), "");
	}

	TEST(FUnitFilterTest, ConditionsAreToldApart)
	{
		TSet<FString> Conditions;
		const TArray<UUnitFilter*> Filters =
		{
			UUnitNumberRangeFilter::CreateNumberRangeFilter(EUnitNumberField::Price, 0.0, 1.0),
			UUnitNumberRangeFilter::CreateNumberRangeFilter(EUnitNumberField::Price, 0.0, 1.0000000000000002),
			UUnitNumberRangeFilter::CreateNumberRangeFilter(EUnitNumberField::Area, 0.0, 1.0),
			UUnitChoiceFilter::CreateChoiceFilter(EUnitChoiceField::Type, { FName(TEXT("a")), FName(TEXT("b")) }),
			UUnitChoiceFilter::CreateChoiceFilter(EUnitChoiceField::Type, { FName(TEXT("a\t1:b")) }),
			UUnitChoiceFilter::CreateChoiceFilter(EUnitChoiceField::View, { FName(TEXT("a")), FName(TEXT("b")) }),
			UUnitTextFilter::CreateTextFilter(EUnitTextField::Name, TEXT("a")),
			UUnitTextFilter::CreateTextFilter(EUnitTextField::UnitId, TEXT("a")),
			UUnitAvailabilityFilter::CreateAvailabilityFilter(false),
			UUnitAvailabilityFilter::CreateAvailabilityFilter(true),
		};
		for (const UUnitFilter* Filter : Filters)
		{
			Conditions.Add(Filter->GetConditionText());
		}
		EXPECT_EQ(Conditions.Num(), Filters.Num());
		EXPECT_EQ(ToStd(UUnitChoiceFilter::CreateChoiceFilter(EUnitChoiceField::Type, { FName(TEXT("b")), FName(TEXT("a")) })->GetConditionText()), ToStd(Filters[3]->GetConditionText()));
	}

	TEST(FUnitMaskTest, CountsAndJoinsTheUnitsOfManyWords)
	{
		for (const int32 Num : { 0, 1, 63, 64, 65, 200 })
		{
			FUnitMask Mask;
			Mask.Init(Num, true);
			EXPECT_EQ(Mask.Count(), Num);
			FUnitMask Thirds;
			Thirds.Init(Num, true);
			Thirds.Restrict([](int32 Index) { return Index % 3 == 0; });
			Mask.Restrict([](int32 Index) { return Index % 2 == 0; });
			Mask.AndWith(Thirds);
			EXPECT_EQ(Mask.Count(), (Num + 5) / 6);
		}
	}

	TEST(FUnitColumnsTest, TextsThatChangeOftenDoNotPileUp)
	{
		std::mt19937 Random(7);
		TArray<FUnitData> Units;
		Units.SetNum(50);
		FUnitColumns Columns;
		for (const FUnitData& Unit : Units)
		{
			Columns.Add(Unit);
		}
		for (int32 Round = 0; Round < 5000; ++Round)
		{
			const int32 Index = int32(Random() % Units.Num());
			Units[Index].Name = FString::Printf(TEXT("Unit \u00C9 %u"), Random() % 100000);
			Columns.Refresh(Index);
		}
		for (int32 Index = 0; Index < Units.Num(); ++Index)
		{
			EXPECT_EQ(ToStd(FString(Columns.GetFoldedText(EUnitTextField::Name, Index))), ToStd(FUnitTextFolding::Fold(Units[Index].Name)));
		}
	}
}
