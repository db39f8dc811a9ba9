#include "EngineTest.h"

#include "Filters/UnitColumns.h"
#include "Filters/UnitFilterSetFile.h"
#include "Filters/UnitFilterSetLibrary.h"
#include "HAL/FileManager.h"
#include "Misc/FileHelper.h"
#include "Misc/Paths.h"

namespace
{
	using Host::FExpectedLog;
	using Host::ToStd;

	class FUnitFilterSetTest : public testing::Test
	{
	protected:
		FUnitFilterSetTest() { IFileManager::Get().DeleteDirectory(*Folder, false, true); }
		virtual ~FUnitFilterSetTest() override { IFileManager::Get().DeleteDirectory(*Folder, false, true); }

		/** A set with a filter of each kind. */
		static FUnitFilterSet MakeSet(const TCHAR* Name)
		{
			FUnitFilterSet Set;
			Set.Name = Name;
			FUnitFilterRecord Price;
			Price.Field = TEXT("Price");
			Price.Maximum = 650000.5;
			FUnitFilterRecord Building;
			Building.Kind = EUnitFilterKind::Choice;
			Building.Field = TEXT("Building");
			Building.Values = { TEXT("harbour"), TEXT("Wharf \"7\"") };
			FUnitFilterRecord Words;
			Words.Kind = EUnitFilterKind::Text;
			Words.Field = TEXT("Name");
			Words.Text = TEXT("Zürich 🏠");
			FUnitFilterRecord Free;
			Free.Kind = EUnitFilterKind::Availability;
			Free.bIncludeReserved = true;
			Set.Filters = { Price, Building, Words, Free };
			return Set;
		}

		static void ExpectSame(const FUnitFilterSet& A, const FUnitFilterSet& B)
		{
			EXPECT_EQ(A.Name, B.Name);
			ASSERT_EQ(A.Filters.Num(), B.Filters.Num());
			for (int32 Index = 0; Index < A.Filters.Num(); ++Index)
			{
				const FUnitFilterRecord& RecordA = A.Filters[Index];
				const FUnitFilterRecord& RecordB = B.Filters[Index];
				EXPECT_EQ(RecordA.Kind, RecordB.Kind);
				EXPECT_EQ(RecordA.Field, RecordB.Field);
				EXPECT_EQ(RecordA.Minimum, RecordB.Minimum);
				EXPECT_EQ(RecordA.Maximum, RecordB.Maximum);
				EXPECT_EQ(RecordA.Values, RecordB.Values);
				EXPECT_EQ(RecordA.Text, RecordB.Text);
				EXPECT_EQ(RecordA.bIncludeReserved, RecordB.bIncludeReserved);
			}
		}

		void WriteFile(const TCHAR* Name, const TCHAR* Text) const
		{
			ASSERT_TRUE(FFileHelper::SaveStringToFile(Text, *(Folder / Name), FFileHelper::EEncodingOptions::ForceUTF8WithoutBOM));
		}

		static std::string List()
		{
			return ToStd(FString::Join(UUnitFilterSetLibrary::ListFilterSets(), TEXT("|")));
		}

		TArray<FString> ListFiles() const
		{
			TArray<FString> Files;
			IFileManager::Get().FindFiles(Files, *(Folder / TEXT("*")), true, false);
			return Files;
		}

		/** Reads a text and gives what is wrong with it, a line each. */
		static std::string GetProblems(const TCHAR* Text, int32 NumFilters, bool bRead = true)
		{
			FReadProblems Problems(TEXT("set.json"));
			FUnitFilterSet Set;
			EXPECT_EQ(FUnitFilterSetFile::FromJson(Text, Set, Problems), bRead);
			EXPECT_EQ(Set.Filters.Num(), NumFilters);
			return ToStd(FString::Join(Problems.GetMessages(), TEXT("\n")));
		}

		const FString Folder = FPaths::ProjectSavedDir() / TEXT("Filters");
	};

	TEST_F(FUnitFilterSetTest, KeptSetIsReadBackTheSame)
	{
		const FUnitFilterSet Set = MakeSet(TEXT("For the Müllers"));
		ASSERT_TRUE(UUnitFilterSetLibrary::SaveFilterSet(Set));
		FUnitFilterSet Read;
		ASSERT_TRUE(UUnitFilterSetLibrary::LoadFilterSet(TEXT("For the Müllers"), Read));
		ExpectSame(Read, Set);
		EXPECT_FALSE(Read.Filters[0].HasMinimum());
		EXPECT_TRUE(Read.Filters[0].HasMaximum());
	}

	TEST_F(FUnitFilterSetTest, FileNamesItsFormatAndItsFieldsAsProjectsDo)
	{
		const std::string Text = ToStd(FUnitFilterSetFile::ToJson(MakeSet(TEXT("A"))));
		for (const char* Part : { "\"format\": \"unit-filters\"", "\"version\": 1", "\"field\": \"price\"", "\"maximum\": 650000.5", "\"kind\": \"choice\"", "\"includeReserved\": true" })
		{
			EXPECT_NE(Text.find(Part), std::string::npos) << Part << " in " << Text;
		}
		EXPECT_EQ(Text.find("minimum"), std::string::npos) << "a limit that is none is left out";
	}

	TEST_F(FUnitFilterSetTest, SetsAreListedByNameWhateverTheirFilesAreCalled)
	{
		for (const TCHAR* Name : { TEXT("zebra"), TEXT("Attic"), TEXT("../../etc/passwd"), TEXT("a/b"), TEXT("a:b"), TEXT("CON"), TEXT("."), TEXT("Łódź") })
		{
			EXPECT_TRUE(UUnitFilterSetLibrary::SaveFilterSet(MakeSet(Name))) << ToStd(FString(Name));
		}
		EXPECT_EQ(List(), ".|../../etc/passwd|a/b|a:b|Attic|CON|zebra|Łódź");
		for (const FString& File : ListFiles())
		{
			for (const TCHAR Char : FPaths::GetBaseFilename(File))
			{
				EXPECT_TRUE(Char < 0x80 && (FChar::IsAlnum(Char) || Char == ' ' || Char == '-' || Char == '_')) << ToStd(File);
			}
			EXPECT_NE(ToStd(File), "con.json");
		}
		EXPECT_EQ(ListFiles().Num(), 8);
	}

	TEST_F(FUnitFilterSetTest, LongNamesDifferToTheirEnds)
	{
		const FString Long = FString::ChrN(300, TEXT('x'));
		EXPECT_TRUE(UUnitFilterSetLibrary::SaveFilterSet(MakeSet(*(Long + TEXT("1")))));
		EXPECT_TRUE(UUnitFilterSetLibrary::SaveFilterSet(MakeSet(*(Long + TEXT("2")))));
		EXPECT_EQ(UUnitFilterSetLibrary::ListFilterSets().Num(), 2);
		for (const FString& File : ListFiles())
		{
			EXPECT_LT(File.Len(), 100);
		}
	}

	TEST_F(FUnitFilterSetTest, SavingAgainReplacesTheSetWhateverTheCaseOfItsName)
	{
		UUnitFilterSetLibrary::SaveFilterSet(MakeSet(TEXT("family")));
		FUnitFilterSet Other = MakeSet(TEXT("  Family "));
		Other.Filters.SetNum(1);
		EXPECT_TRUE(UUnitFilterSetLibrary::SaveFilterSet(Other));
		EXPECT_EQ(List(), "Family");
		FUnitFilterSet Read;
		ASSERT_TRUE(UUnitFilterSetLibrary::LoadFilterSet(TEXT("FAMILY"), Read));
		EXPECT_EQ(Read.Filters.Num(), 1);
	}

	TEST_F(FUnitFilterSetTest, SetNeedsAName)
	{
		const FExpectedLog Line(TEXT("needs a name"));
		EXPECT_FALSE(UUnitFilterSetLibrary::SaveFilterSet(MakeSet(TEXT("  "))));
		EXPECT_EQ(List(), "");
	}

	TEST_F(FUnitFilterSetTest, DeletedSetIsGone)
	{
		UUnitFilterSetLibrary::SaveFilterSet(MakeSet(TEXT("A")));
		EXPECT_TRUE(UUnitFilterSetLibrary::DeleteFilterSet(TEXT("A")));
		EXPECT_EQ(List(), "");
		const FExpectedLog Line(TEXT("there is no set of that name"), 2);
		EXPECT_FALSE(UUnitFilterSetLibrary::DeleteFilterSet(TEXT("A")));
		FUnitFilterSet Read = MakeSet(TEXT("left"));
		EXPECT_FALSE(UUnitFilterSetLibrary::LoadFilterSet(TEXT("A"), Read));
		EXPECT_EQ(Read.Filters.Num(), 0);
	}

	TEST_F(FUnitFilterSetTest, RenamedSetKeepsItsFiltersAndTakesNobodysName)
	{
		UUnitFilterSetLibrary::SaveFilterSet(MakeSet(TEXT("A")));
		UUnitFilterSetLibrary::SaveFilterSet(MakeSet(TEXT("B")));
		EXPECT_TRUE(UUnitFilterSetLibrary::RenameFilterSet(TEXT("A"), TEXT("C: new")));
		EXPECT_EQ(List(), "B|C: new");
		EXPECT_EQ(ListFiles().Num(), 2);
		FUnitFilterSet Read;
		ASSERT_TRUE(UUnitFilterSetLibrary::LoadFilterSet(TEXT("C: new"), Read));
		ExpectSame(Read, MakeSet(TEXT("C: new")));
		const FExpectedLog Line(TEXT("there is a set of the new name"));
		EXPECT_FALSE(UUnitFilterSetLibrary::RenameFilterSet(TEXT("B"), TEXT("c: NEW")));
		EXPECT_TRUE(UUnitFilterSetLibrary::RenameFilterSet(TEXT("B"), TEXT("b"))) << "its own name in another case is its own";
		EXPECT_EQ(List(), "b|C: new");
	}

	TEST_F(FUnitFilterSetTest, DamagedNewerAndForeignFilesAreALineEachAndTheOthersAreListed)
	{
		UUnitFilterSetLibrary::SaveFilterSet(MakeSet(TEXT("Good")));
		WriteFile(TEXT("cut.json"), TEXT("{ \"format\": \"unit-filters\", "));
		WriteFile(TEXT("newer.json"), TEXT("{ \"format\": \"unit-filters\", \"version\": 2 }"));
		WriteFile(TEXT("foreign.json"), TEXT("{ \"format\": 1, \"units\": [] }"));
		WriteFile(TEXT("list.json"), TEXT("[]"));
		const FExpectedLog Cut(TEXT("cut.json:1:"));
		const FExpectedLog Newer(TEXT("newer.json: version: expected 1, found 2"));
		const FExpectedLog Foreign(TEXT("foreign.json: this is no set of filters"));
		const FExpectedLog NoObject(TEXT("list.json"));
		EXPECT_EQ(List(), "Good");
		EXPECT_EQ(List(), "Good") << "once is enough";
	}

	TEST_F(FUnitFilterSetTest, FileThatIsFarTooLargeIsNotRead)
	{
		WriteFile(TEXT("large.json"), *FString::ChrN(2 * 1024 * 1024, TEXT(' ')));
		const FExpectedLog Line(TEXT("too large"));
		EXPECT_EQ(List(), "");
	}

	TEST_F(FUnitFilterSetTest, FiltersThatAreNotUnderstoodAreNamedAndTheOthersStay)
	{
		EXPECT_EQ(GetProblems(TEXT(R"({ "format": "unit-filters", "version": 1, "filters": [
			{ "kind": "number", "field": "price", "minimum": 1, "maximum": 2 },
			{ "kind": "number", "field": "garages" },
			{ "kind": "colour" },
			{ "kind": "number", "field": "area", "maximum": "small" },
			{ "kind": "choice", "field": "status", "values": "Sold" },
			{ "kind": "text", "field": "name" },
			{ "kind": "availability" },
			7,
			{ "kind": "text", "field": "unitId", "text": "HH" } ] })"), 2),
			"set.json: filters[1]: field: units have no number \"garages\": it is left out\n"
			"set.json: filters[2]: kind: expected \"number\", \"choice\", \"text\" or \"availability\", found \"colour\": it is left out\n"
			"set.json: filters[3]: minimum and maximum: expected numbers: it is left out\n"
			"set.json: filters[4]: values: expected a list of texts: it is left out\n"
			"set.json: filters[5]: text: expected a text: it is left out\n"
			"set.json: filters[6]: includeReserved: expected true or false: it is left out\n"
			"set.json: filters[7]: expected an object with a kind: it is left out");
		EXPECT_EQ(GetProblems(TEXT(R"({ "format": "unit-filters", "version": 1 })"), 0), "set.json: filters: expected a list of filters");
	}

	TEST_F(FUnitFilterSetTest, TextThatIsCutAnywhereIsOneProblem)
	{
		const FString Whole = FUnitFilterSetFile::ToJson(MakeSet(TEXT("A")));
		for (int32 Length = 0; Length < Whole.Len(); ++Length)
		{
			FReadProblems Problems(TEXT("cut.json"));
			FUnitFilterSet Set;
			EXPECT_FALSE(FUnitFilterSetFile::FromJson(Whole.Left(Length), Set, Problems)) << Length;
			EXPECT_EQ(Problems.Num(), 1) << Length;
			EXPECT_TRUE(Set.Filters.IsEmpty());
		}
	}

	TEST_F(FUnitFilterSetTest, SetsGoOutAndComeInAsFiles)
	{
		const FString Path = FPaths::ProjectSavedDir() / TEXT("Shared/for you");
		ASSERT_TRUE(UUnitFilterSetLibrary::ExportFilterSet(MakeSet(TEXT("Mine")), Path));
		EXPECT_TRUE(FPaths::FileExists(Path + TEXT(".json")));
		FUnitFilterSet Read;
		ASSERT_TRUE(UUnitFilterSetLibrary::ImportFilterSet(Path, Read));
		ExpectSame(Read, MakeSet(TEXT("Mine")));
		EXPECT_EQ(List(), "") << "what comes in is not kept by itself";
		UUnitFilterSetLibrary::ExportFilterSet(MakeSet(TEXT("")), Path);
		ASSERT_TRUE(UUnitFilterSetLibrary::ImportFilterSet(Path, Read));
		EXPECT_EQ(Read.Name, TEXT("for you"));
		const FExpectedLog Line(TEXT("the file cannot be read"));
		EXPECT_FALSE(UUnitFilterSetLibrary::ImportFilterSet(TEXT("/nonexistent/set.json"), Read));
	}

	TEST_F(FUnitFilterSetTest, FilesForOthersAreSuggestedInTheUsersFolder)
	{
		const FString Path = UUnitFilterSetLibrary::SuggestFilename(TEXT("a/b"), TEXT("csv"));
		EXPECT_EQ(FPaths::GetPath(Path), FPaths::ConvertRelativePathToFull(FPaths::ProjectSavedDir() / TEXT("Shared")));
		EXPECT_EQ(FPaths::GetExtension(Path), TEXT("csv"));
		EXPECT_EQ(FPaths::GetBaseFilename(UUnitFilterSetLibrary::SuggestFilename(TEXT(""), TEXT("json"))), TEXT("filters"));
	}
}
