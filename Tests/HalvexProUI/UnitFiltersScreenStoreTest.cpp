#include "UnitFiltersScreenTest.h"

#include "Filters/UnitFilterSetFile.h"
#include "Filters/UnitFilterSetLibrary.h"
#include "Misc/FileHelper.h"
#include "Misc/Paths.h"
#include "Project/UnitTableReader.h"

namespace
{
	using Host::FExpectedLog;

	TEST_F(FUnitFiltersScreenTest, SavedFiltersAreThereAfterARestart)
	{
		ShowFilters();
		Enter(TEXT("Price/To"), TEXT("512345"));
		Click(TEXT("Building/text:Lantern Tower"));
		const std::string Count = GetText(TEXT("PassingText"));
		ShowStore();
		EXPECT_EQ(GetText(TEXT("SaveText")), "Save");
		Enter(TEXT("NameField"), TEXT("Tower: ½ million"));
		EXPECT_EQ(GetMessage(), "“Tower: ½ million” is saved.");
		EXPECT_EQ(GetText(TEXT("SaveText")), "Replace");

		ShowScreenAgain();
		EXPECT_EQ(GetChips(TEXT("Chips")), "");
		ShowStore();
		Click(TEXT("Sets/text:Tower: ½ million"));
		EXPECT_EQ(GetMessage(), "“Tower: ½ million” is set.");
		Click(TEXT("Back"));
		EXPECT_EQ(GetChips(TEXT("Chips")), "Price up to 512 345 EUR|Lantern Tower");
		EXPECT_EQ(GetText(TEXT("PassingText")), Count);
	}

	TEST_F(FUnitFiltersScreenTest, LoadedSetTakesThePlaceOfWhatWasSetWithOneResult)
	{
		ShowFilters();
		Enter(TEXT("Level/From"), TEXT("2"));
		ShowStore();
		Enter(TEXT("NameField"), TEXT("High"));
		Click(TEXT("Back"));
		Click(TEXT("Reset"));
		Enter(TEXT("Rooms/From"), TEXT("3"));
		ShowStore();
		Heard();
		Click(TEXT("Sets/text:High"));
		EXPECT_EQ(Heard(), "194 of 262; ");
		Click(TEXT("Back"));
		EXPECT_EQ(GetChips(TEXT("Chips")), "Level from 2");
	}

	TEST_F(FUnitFiltersScreenTest, SetsAreRenamedAndDeletedOnceThatIsConfirmed)
	{
		ShowFilters();
		ShowStore();
		EXPECT_TRUE(Driver.Find(TEXT("NoneText")));
		Enter(TEXT("NameField"), TEXT("One"));
		Enter(TEXT("NameField"), TEXT("Two"));
		EXPECT_FALSE(Driver.Find(TEXT("NoneText")));
		Click(TEXT("Rename#1"));
		Enter(TEXT("NewNameField"), TEXT("two"));
		EXPECT_EQ(GetMessage(), "There is a “two” already.");
		Click(TEXT("Rename#1"));
		Enter(TEXT("NewNameField"), TEXT("Uno/1"));
		EXPECT_EQ(GetMessage(), "“One” is now “Uno/1”.");
		EXPECT_EQ(Host::ToStd(FString::Join(UUnitFilterSetLibrary::ListFilterSets(), TEXT("|"))), "Two|Uno/1");
		Click(TEXT("Rename#1"));
		Click(TEXT("Cancel"));
		Click(TEXT("Delete#1"));
		EXPECT_EQ(GetText(TEXT("DeleteText")), "Two?");
		Click(TEXT("Spare"));
		EXPECT_EQ(Driver.Count(TEXT("Sets/Load")), 2);
		Click(TEXT("Delete#1"));
		Click(TEXT("ReallyDelete"));
		EXPECT_EQ(GetMessage(), "“Two” is deleted.");
		EXPECT_EQ(Host::ToStd(FString::Join(UUnitFilterSetLibrary::ListFilterSets(), TEXT("|"))), "Uno/1");
	}

	TEST_F(FUnitFiltersScreenTest, WhatTheProjectLacksIsToldAndTheRestIsSet)
	{
		const char* const Text = R"({ "format": "unit-filters", "version": 1, "name": "From elsewhere", "filters": [
			{ "kind": "number", "field": "level", "minimum": 3 },
			{ "kind": "number", "field": "price", "minimum": 9000000 },
			{ "kind": "number", "field": "baths", "minimum": 1 },
			{ "kind": "number", "field": "garages", "minimum": 1 },
			{ "kind": "choice", "field": "building", "values": ["tower", "wharf"] } ] })";
		ASSERT_TRUE(FFileHelper::SaveStringToFile(UTF8_TO_TCHAR(Text), *GetPath(TEXT("foreign.json"))));
		ShowFilters();
		ShowStore();
		const FExpectedLog Gone(TEXT("filters[3]: field: units have no number \"garages\""));
		Click(TEXT("FileField"));
		Driver.PressKey(EKeys::A, TEXT("Ctrl"));
		Driver.Type(GetPath(TEXT("foreign.json")));
		Click(TEXT("OpenFile"));
		EXPECT_EQ(GetMessage(), "“From elsewhere” is set, but for what this project lacks: building: tower, price in that range, baths.");
		EXPECT_EQ(GetText(TEXT("NameField")), "From elsewhere");
		Click(TEXT("Back"));
		EXPECT_EQ(GetChips(TEXT("Chips")), "Level from 3|Wharf Terraces");
	}

	TEST_F(FUnitFiltersScreenTest, FiltersAreSharedAsAFile)
	{
		ShowFilters();
		Enter(TEXT("Rooms/From"), TEXT("3"));
		ShowStore();
		Click(TEXT("FileField"));
		Driver.PressKey(EKeys::A, TEXT("Ctrl"));
		Driver.Type(GetPath(TEXT("for you")));
		Click(TEXT("WriteFile"));
		EXPECT_EQ(GetMessage(), "The filters are written to " + Host::ToStd(GetPath(TEXT("for you"))));
		ASSERT_TRUE(FPaths::FileExists(GetPath(TEXT("for you.json"))));
		Click(TEXT("Back"));
		Click(TEXT("Reset"));
		ShowStore();
		Click(TEXT("FileField"));
		Driver.PressKey(EKeys::A, TEXT("Ctrl"));
		Driver.Type(GetPath(TEXT("for you.json")));
		Click(TEXT("OpenFile"));
		EXPECT_EQ(GetMessage(), "“for you” is set.");
		Click(TEXT("Back"));
		EXPECT_EQ(GetChips(TEXT("Chips")), "Rooms from 3");
	}

	TEST_F(FUnitFiltersScreenTest, FileThatHoldsNoFiltersIsToldAndChangesNothing)
	{
		ShowFilters();
		Enter(TEXT("Rooms/From"), TEXT("3"));
		ShowStore();
		Click(TEXT("FileField"));
		Driver.PressKey(EKeys::A, TEXT("Ctrl"));
		Driver.Type(TEXT("/nonexistent/x.json"));
		const FExpectedLog Line(TEXT("/nonexistent/x.json: the file cannot be read"));
		Click(TEXT("OpenFile"));
		EXPECT_EQ(GetMessage(), "There are no filters in /nonexistent/x.json");
		Click(TEXT("Back"));
		EXPECT_EQ(GetChips(TEXT("Chips")), "Rooms from 3");
	}

	TEST_F(FUnitFiltersScreenTest, UnitsThatPassAreExportedAndReadBack)
	{
		ShowFilters();
		Enter(TEXT("Price/To"), TEXT("400000"));
		const TArray<FUnitData> Listed = GetListed();
		ShowStore();
		Click(TEXT("TableField"));
		Driver.PressKey(EKeys::A, TEXT("Ctrl"));
		Driver.Type(GetPath(TEXT("cheap.csv")));
		Click(TEXT("Export"));
		EXPECT_EQ(GetMessage(), std::to_string(Listed.Num()) + " units are written to " + Host::ToStd(GetPath(TEXT("cheap.csv"))));
		TArray<FProjectUnit> Read;
		ASSERT_TRUE(FUnitTableReader::LoadFile(GetPath(TEXT("cheap.csv")), FUnitTableMapping::MakeDefault(), Read));
		ASSERT_EQ(Read.Num(), Listed.Num());
		for (int32 Index = 0; Index < Read.Num(); ++Index)
		{
			EXPECT_EQ(Read[Index].Data.Name, Listed[Index].Name);
			EXPECT_EQ(Read[Index].Data.Price, Listed[Index].Price);
		}
	}
}
