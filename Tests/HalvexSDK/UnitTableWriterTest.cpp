#include "EngineTest.h"

#include "HAL/FileManager.h"
#include "Misc/FileHelper.h"
#include "Misc/Paths.h"
#include "Project/ProjectReader.h"
#include "Project/UnitTableReader.h"
#include "Project/UnitTableWriter.h"

namespace
{
	using Host::ToStd;

	class FUnitTableWriterTest : public testing::Test
	{
	protected:
		FUnitTableWriterTest() { IFileManager::Get().DeleteDirectory(*Folder, false, true); }

		static std::string Write(const TArray<FUnitData>& Units)
		{
			return ToStd(FUnitTableWriter::Write(PointTo(Units)));
		}

		static TArray<const FUnitData*> PointTo(const TArray<FUnitData>& Units)
		{
			TArray<const FUnitData*> Pointers;
			for (const FUnitData& Unit : Units)
			{
				Pointers.Add(&Unit);
			}
			return Pointers;
		}

		/** The rows behind the header. */
		static std::string WriteRows(const TArray<FUnitData>& Units)
		{
			const std::string Table = Write(Units);
			return Table.substr(Table.find('\n') + 1);
		}

		static FUnitData MakeUnit(const TCHAR* Id, const TCHAR* Name)
		{
			FUnitData Unit;
			Unit.UnitId = FName(Id);
			Unit.Name = Name;
			return Unit;
		}

		/** Writes the units to a file and reads that. */
		TArray<FProjectUnit> SendThroughAFile(const TArray<FUnitData>& Units) const
		{
			const FString Filename = Folder / TEXT("Deeper/units.csv");
			EXPECT_TRUE(FUnitTableWriter::SaveFile(Filename, PointTo(Units)));
			TArray<FProjectUnit> Read;
			EXPECT_TRUE(FUnitTableReader::LoadFile(Filename, FUnitTableMapping::MakeDefault(), Read));
			return Read;
		}

		static void ExpectSame(const FUnitData& Read, const FUnitData& Written)
		{
			SCOPED_TRACE(ToStd(Written.UnitId));
			EXPECT_EQ(Read.UnitId.ToString(), Written.UnitId.ToString());
			EXPECT_EQ(Read.Name, Written.Name);
			for (FName FUnitData::* Member : { &FUnitData::Building, &FUnitData::Type, &FUnitData::View, &FUnitData::Image, &FUnitData::Currency })
			{
				EXPECT_EQ((Read.*Member).ToString(), (Written.*Member).ToString());
			}
			EXPECT_EQ(Read.Level, Written.Level);
			EXPECT_EQ(Read.Rooms, Written.Rooms);
			EXPECT_EQ(Read.Baths, Written.Baths);
			EXPECT_EQ(Read.Area, Written.Area);
			EXPECT_EQ(Read.OutdoorArea, Written.OutdoorArea);
			EXPECT_EQ(Read.Price, Written.Price);
			EXPECT_EQ(Read.Orientation, Written.Orientation);
			EXPECT_EQ(Read.Status, Written.Status);
		}

		const FString Folder = FPaths::ProjectSavedDir() / TEXT("Tables");
	};

	TEST_F(FUnitTableWriterTest, HeaderNamesTheFieldsAndRowsHoldThem)
	{
		FUnitData Unit = MakeUnit(TEXT("HH-101"), TEXT("Harbour 1.01"));
		Unit.Building = TEXT("harbour");
		Unit.Currency = TEXT("EUR");
		Unit.Level = -1;
		Unit.Rooms = 3;
		Unit.Area = 49.7f;
		Unit.Price = 420000.0;
		Unit.Orientation = EUnitOrientation::SouthWest;
		Unit.Status = EUnitStatus::Reserved;
		EXPECT_EQ(Write({ Unit }),
			"id,name,building,type,view,image,interior,currency,level,rooms,baths,area,outdoorArea,price,orientation,status\r\n"
			"HH-101,Harbour 1.01,harbour,,,,,EUR,-1,3,0,49.7,0,420000,SouthWest,Reserved\r\n");
	}

	TEST_F(FUnitTableWriterTest, CellsWithSeparatorsQuotesAndLineBreaksStandInQuotes)
	{
		EXPECT_EQ(WriteRows({ MakeUnit(TEXT("A"), TEXT("Loft, \"North\"")) }).substr(0, 20), "A,\"Loft, \"\"North\"\"\",");
		const TArray<FUnitData> Units = { MakeUnit(TEXT("A"), TEXT("Two\nlines")), MakeUnit(TEXT("B"), TEXT("Two\r\nlines")), MakeUnit(TEXT("C"), TEXT("\"")) };
		const TArray<FProjectUnit> Read = SendThroughAFile(Units);
		ASSERT_EQ(Read.Num(), 3);
		for (int32 Index = 0; Index < 3; ++Index)
		{
			ExpectSame(Read[Index].Data, Units[Index]);
		}
	}

	TEST_F(FUnitTableWriterTest, TextsThatSpreadsheetsWouldRunAreGuardedAndComeBack)
	{
		const TCHAR* const Names[] = { TEXT("=1+1"), TEXT("+49 30"), TEXT("-2"), TEXT("@SUM(A1)"), TEXT("'=1"), TEXT("''@x"), TEXT("\uFF1D1"), TEXT("'quoted'"), TEXT("it's = fine") };
		TArray<FUnitData> Units;
		for (const TCHAR* Name : Names)
		{
			Units.Add(MakeUnit(*FString::Printf(TEXT("U%d"), Units.Num()), Name));
			Units.Last().Building = FName(Name);
		}
		const std::string Rows = WriteRows(Units);
		EXPECT_EQ(Rows.substr(0, 16), "U0,'=1+1,'=1+1,,");
		for (const char* Bare : { ",=", ",+", ",-", ",@", ",\"=" })
		{
			EXPECT_EQ(Rows.find(Bare), std::string::npos) << Bare;
		}
		EXPECT_NE(Rows.find(",'quoted',"), std::string::npos) << "what is none stays as it is";
		const TArray<FProjectUnit> Read = SendThroughAFile(Units);
		ASSERT_EQ(Read.Num(), Units.Num());
		for (int32 Index = 0; Index < Units.Num(); ++Index)
		{
			ExpectSame(Read[Index].Data, Units[Index]);
		}
	}

	TEST_F(FUnitTableWriterTest, NumbersComeBackToTheLastBit)
	{
		TArray<FUnitData> Units;
		for (const double Number : { 0.1, 1.0 / 3.0, 999999.94, 1e6, 123456789.125, 0.30000000000000004 })
		{
			Units.Add(MakeUnit(*FString::Printf(TEXT("U%d"), Units.Num()), TEXT("")));
			Units.Last().Price = Number;
			Units.Last().Area = float(FMath::Min(Number, 1e6));
		}
		const TArray<FProjectUnit> Read = SendThroughAFile(Units);
		ASSERT_EQ(Read.Num(), Units.Num());
		for (int32 Index = 0; Index < Units.Num(); ++Index)
		{
			ExpectSame(Read[Index].Data, Units[Index]);
		}
	}

	TEST_F(FUnitTableWriterTest, SampleProjectIsReadBackTheSame)
	{
		FProjectData Project;
		ASSERT_TRUE(FProjectReader::LoadFolder(FString(HALVEX_SOURCE_DIR) + TEXT("/Viewer/Projects/Quayside"), Project));
		TArray<FUnitData> Units;
		for (const FProjectUnit& Unit : Project.Units)
		{
			Units.Add(Unit.Data);
		}
		ASSERT_EQ(Units.Num(), 262);
		const TArray<FProjectUnit> Read = SendThroughAFile(Units);
		ASSERT_EQ(Read.Num(), Units.Num());
		for (int32 Index = 0; Index < Units.Num(); ++Index)
		{
			ExpectSame(Read[Index].Data, Units[Index]);
		}
	}

	TEST_F(FUnitTableWriterTest, FileIsUtf8BehindAMarkAndNothingElseIsLeft)
	{
		SendThroughAFile({ MakeUnit(TEXT("A"), TEXT("Zürich Łódź")) });
		TArray<uint8> Bytes;
		ASSERT_TRUE(FFileHelper::LoadFileToArray(Bytes, *(Folder / TEXT("Deeper/units.csv"))));
		const std::string Text(reinterpret_cast<const char*>(Bytes.GetData()), std::size_t(Bytes.Num()));
		EXPECT_EQ(Text.substr(0, 5), "\xEF\xBB\xBFid");
		EXPECT_NE(Text.find("Zürich Łódź"), std::string::npos);
		TArray<FString> Files;
		IFileManager::Get().FindFilesRecursive(Files, *Folder, TEXT("*"), true, false);
		EXPECT_EQ(Files.Num(), 1);
	}

	TEST_F(FUnitTableWriterTest, WhatCannotBeWrittenIsToldAndLeavesTheOldFile)
	{
		const TArray<FUnitData> Units = { MakeUnit(TEXT("A"), TEXT("A")) };
		// A folder is in the way.
		const FString Taken = Folder / TEXT("taken.csv");
		ASSERT_TRUE(IFileManager::Get().MakeDirectory(*(Taken / TEXT("inside")), true));
		const Host::FExpectedLog Line(TEXT("taken.csv"), 2);
		EXPECT_FALSE(FUnitTableWriter::SaveFile(Taken, PointTo(Units)));
		TArray<FString> Files;
		IFileManager::Get().FindFilesRecursive(Files, *Folder, TEXT("*"), true, false);
		EXPECT_EQ(Files.Num(), 0) << "nothing half written is left";
	}
}
