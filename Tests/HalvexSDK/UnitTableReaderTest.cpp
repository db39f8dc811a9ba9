#include "EngineTest.h"

#include "Misc/FileHelper.h"
#include "Project/UnitTableReader.h"

#include <random>

namespace
{
	using Host::ToStd;

	class FUnitTableReaderTest : public testing::Test
	{
	protected:
		bool Read(const std::string& Text)
		{
			Problems = MakeUnique<FReadProblems>(TEXT("list.csv"));
			return FUnitTableReader::ReadBytes(MakeArrayView(reinterpret_cast<const uint8*>(Text.data()), int32(Text.size())), Mapping, Units, *Problems);
		}

		std::string Messages() const
		{
			std::string All;
			for (const FString& Message : Problems->GetMessages())
			{
				All += ToStd(Message) + "\n";
			}
			return All;
		}

		/** Reads a mapping; nothing may be wrong with it. */
		void Map(const TCHAR* Json)
		{
			FReadProblems Wrong(TEXT("map"));
			EXPECT_TRUE(FUnitTableMapping::FromJson(Json, Mapping, Wrong));
			EXPECT_TRUE(Wrong.IsEmpty());
		}

		/** Names of the units, one behind the other, each in brackets. */
		std::string Names() const
		{
			std::string All;
			for (const FProjectUnit& Unit : Units)
			{
				All += "[" + ToStd(Unit.Data.Name) + "]";
			}
			return All;
		}

		FUnitTableMapping Mapping;
		TArray<FProjectUnit> Units;
		TUniquePtr<FReadProblems> Problems;
	};

	TEST_F(FUnitTableReaderTest, HeadersAreMappedToFields)
	{
		Map(TEXT(R"({"columns": {"Flat no.": "id", "Title": "name", "Storey": "level", "Size": "area", "State": {"field": "status", "values": {"free": "Available", "gone": "Sold"}}}})"));
		EXPECT_TRUE(Read("Size,  TITLE ,Flat No.,State,Agent,storey\n64.5,Quay 1,Q1,gone,Smith,3\n70,Quay 2,Q2, FREE ,Jones,-1\n"));
		EXPECT_EQ(Messages(), "");
		ASSERT_EQ(Units.Num(), 2);
		EXPECT_EQ(ToStd(Units[0].Data.UnitId), "Q1");
		EXPECT_EQ(ToStd(Units[0].Data.Name), "Quay 1");
		EXPECT_EQ(Units[0].Data.Area, 64.5f);
		EXPECT_EQ(Units[0].Data.Level, 3);
		EXPECT_EQ(Units[0].Data.Status, EUnitStatus::Sold);
		EXPECT_EQ(Units[1].Data.Status, EUnitStatus::Available);
		EXPECT_EQ(Units[1].Data.Level, -1);
	}

	TEST_F(FUnitTableReaderTest, DefaultMappingKnowsTheNamesOfTheFields)
	{
		Mapping = FUnitTableMapping::MakeDefault();
		EXPECT_TRUE(Read("id,name,building,type,view,image,currency,level,rooms,baths,area,outdoorArea,price,orientation,status,minX,minY,minZ,maxX,maxY,maxZ\n"
			"A,Quay,north,Flat,Water,plan,EUR,2,3,1,70.5,8,\"1,250,000\",NorthEast,Reserved,0,1,2,3,4,5.5\n"));
		EXPECT_EQ(Messages(), "");
		ASSERT_EQ(Units.Num(), 1);
		const FUnitData& Unit = Units[0].Data;
		EXPECT_EQ(ToStd(Unit.Building), "north");
		EXPECT_EQ(ToStd(Unit.Type), "Flat");
		EXPECT_EQ(ToStd(Unit.View), "Water");
		EXPECT_EQ(ToStd(Unit.Image), "plan");
		EXPECT_EQ(ToStd(Unit.Currency), "EUR");
		EXPECT_EQ(Unit.Rooms, 3);
		EXPECT_EQ(Unit.Baths, 1);
		EXPECT_EQ(Unit.OutdoorArea, 8.0f);
		EXPECT_EQ(Unit.Price, 1250000.0);
		EXPECT_EQ(Unit.Orientation, EUnitOrientation::NorthEast);
		EXPECT_EQ(Units[0].Volume.Min, FVector(0.0, 100.0, 200.0));
		EXPECT_EQ(Units[0].Volume.Max, FVector(300.0, 400.0, 550.0));
	}

	TEST_F(FUnitTableReaderTest, CommasSemicolonsAndTabsSeparate)
	{
		Mapping = FUnitTableMapping::MakeDefault();
		for (const char Separator : { ',', ';', '\t' })
		{
			std::string Text = "id|name|level\nA|One|1\nB|Two|2\n";
			std::replace(Text.begin(), Text.end(), '|', Separator);
			EXPECT_TRUE(Read(Text));
			EXPECT_EQ(Names(), "[One][Two]") << Separator;
		}
	}

	TEST_F(FUnitTableReaderTest, QuotesHoldSeparatorsQuotesAndLineBreaks)
	{
		Map(TEXT(R"({"columns": {"id": "id", "name, long": "name"}})"));
		EXPECT_TRUE(Read("id,\"name, long\"\nA,\"One, \"\"big\"\" one\"\nB,\"Two\r\nlines\"\nC,\"\"\nD,x\"y\nE,\"a\"b\n"));
		EXPECT_EQ(Messages(), "");
		EXPECT_EQ(Names(), "[One, \"big\" one][Two\r\nlines][][x\"y][ab]");
	}

	TEST_F(FUnitTableReaderTest, EveryEndOfLineAndAMarkOfTheEncodingAreTaken)
	{
		Mapping = FUnitTableMapping::MakeDefault();
		for (const std::string End : { "\n", "\r\n", "\r" })
		{
			EXPECT_TRUE(Read("\xEF\xBB\xBFid,name" + End + "A,One" + End + End + "  " + End + "B,Two"));
			EXPECT_EQ(Messages(), "");
			EXPECT_EQ(Names(), "[One][Two]");
		}
	}

	TEST_F(FUnitTableReaderTest, UnicodeNamesAreRead)
	{
		Mapping = FUnitTableMapping::MakeDefault();
		EXPECT_TRUE(Read("id;name\nA;Qu\xC3\xA4y \xF0\x9F\x98\x80\n"));
		EXPECT_EQ(Names(), "[Qu\xC3\xA4y \xF0\x9F\x98\x80]");
		const std::string Wide("\xFF\xFEi\0d\0,\0n\0a\0m\0e\0\n\0A\0,\0\xE4\0", 24);
		EXPECT_TRUE(Read(Wide));
		EXPECT_EQ(Names(), "[\xC3\xA4]");
	}

	TEST_F(FUnitTableReaderTest, DecimalCommasAreRecognisedWhereTheyCanBe)
	{
		Mapping = FUnitTableMapping::MakeDefault();
		EXPECT_TRUE(Read("id;area;price\nA;64,5;1.250.000,50 \xE2\x82\xAC\nB;70;450.000\n"));
		EXPECT_EQ(Messages(), "");
		EXPECT_EQ(Units[0].Data.Area, 64.5f);
		EXPECT_EQ(Units[0].Data.Price, 1250000.5);
		EXPECT_EQ(Units[1].Data.Price, 450000.0);
		EXPECT_TRUE(Read("id;area;price\nA;64.5;$1250000.50\n"));
		EXPECT_EQ(Units[0].Data.Area, 64.5f);
		EXPECT_EQ(Units[0].Data.Price, 1250000.5);
	}

	TEST_F(FUnitTableReaderTest, DecimalsCanBeToldByTheMapping)
	{
		Map(TEXT(R"({"decimals": "comma", "columns": {"id": "id", "price": "price"}})"));
		EXPECT_TRUE(Read("id,price\nA,\"1.500,25\"\n"));
		EXPECT_EQ(Units[0].Data.Price, 1500.25);
		Map(TEXT(R"({"decimals": "point", "columns": {"id": "id", "price": "price"}})"));
		EXPECT_TRUE(Read("id;price\nA;1,500\n"));
		EXPECT_EQ(Units[0].Data.Price, 1500.0);
	}

	TEST_F(FUnitTableReaderTest, WrongNumbersAreNamedAndNotGuessed)
	{
		Mapping = FUnitTableMapping::MakeDefault();
		for (const char* Number : { "1e5", "12x", "1,23,456", "1,2345", "1234,567", ",5", "1.2.3", "--5", "-", ".", "5,", "0x10", "nan", "9999999999999999999999" })
		{
			EXPECT_TRUE(Read(std::string("id,price\nA,\"") + Number + "\"\n"));
			EXPECT_EQ(Problems->Num(), 1) << Number;
			EXPECT_EQ(Units[0].Data.Price, 0.0) << Number;
		}
		for (const char* Number : { "1,234", "12,345,678", "1 234", "1'234.5", "5.", ".5", "+5", " 5 " })
		{
			EXPECT_TRUE(Read(std::string("id,price\nA,\"") + Number + "\"\n"));
			EXPECT_EQ(Messages(), "") << Number;
		}
	}

	TEST_F(FUnitTableReaderTest, ErrorsSayLineColumnAndHeader)
	{
		Map(TEXT(R"({"columns": {"Nr": "id", "Size": "area", "Floor": "level", "Price": "price", "Dir": "orientation", "State": "status"}})"));
		EXPECT_TRUE(Read("Nr,Size,Floor,Dir,State\nA,\xC3\xA4,1,North,\nB,\"two\nlines\",1.5,Up,perhaps\n,1,1,,\nA,2,,,\nC,3\nD,1,2,East,Sold,more,cells\n"));
		EXPECT_EQ(Messages(),
			"list.csv:1:1: there is no column \"Price\"\n"
			"list.csv:2:3: Size: expected a number, found \"\xC3\xA4\"\n"
			"list.csv:3:3: Size: expected a number, found \"two\nlines\"\n"
			"list.csv:4:8: Floor: expected a whole number from -100 to 1000, found \"1.5\"\n"
			"list.csv:4:12: Dir: expected None or a direction from North to NorthWest, found \"Up\"\n"
			"list.csv:4:15: State: expected Available, Reserved, Sold or NotForSale, found \"perhaps\"\n"
			"list.csv:5:1: id: a unit needs one: this row is left out\n"
			"list.csv:6:1: id: there is a unit A already: this row is left out\n"
			"list.csv:8:17: the row has 7 cells, the header 5\n");
		ASSERT_EQ(Units.Num(), 4);
		EXPECT_EQ(Units[1].Data.Status, EUnitStatus::NotForSale);
		EXPECT_EQ(Units[2].Data.Area, 3.0f);
		EXPECT_EQ(Units[3].Data.Orientation, EUnitOrientation::East);
	}

	TEST_F(FUnitTableReaderTest, QuoteThatDoesNotEndIsNamedAtItsStart)
	{
		Mapping = FUnitTableMapping::MakeDefault();
		EXPECT_FALSE(Read("id,name\nA,One\nB,\"Two\nC,Three\n"));
		EXPECT_EQ(ToStd(Problems->GetMessages().Last()), "list.csv:3:3: expected the closing quote of the cell, found the end of the text");
		EXPECT_EQ(Names(), "[One]");
	}

	TEST_F(FUnitTableReaderTest, EmptyTextsAndHeadersWithoutIdsAreNamed)
	{
		Map(TEXT(R"({"columns": {"name": "name"}})"));
		EXPECT_FALSE(Read(""));
		EXPECT_EQ(Messages(), "list.csv:1:1: expected a header, found the end of the text\n");
		EXPECT_TRUE(Read("name\nOne\n"));
		EXPECT_EQ(Messages(), "list.csv:1:1: no column holds the ids of the units\nlist.csv:2:1: id: a unit needs one: this row is left out\n");
	}

	TEST_F(FUnitTableReaderTest, BoundsMustBeWholeAndTheRightWayRound)
	{
		Map(TEXT(R"({"centimetresPerUnit": 1, "columns": {"id": "id", "a": "minX", "b": "minY", "c": "minZ", "d": "maxX", "e": "maxY", "f": "maxZ"}})"));
		EXPECT_TRUE(Read("id,a,b,c,d,e,f\nA,0,0,0,1,1,1\nB,,,,,,\nC,0,0,0,1,1,\nD,0,0,5,1,1,1\nE,0,0,0,1,1,9999999999\n"));
		EXPECT_EQ(Messages(),
			"list.csv:4:1: C: bounds: expected six of them, each minimum below its maximum\n"
			"list.csv:5:1: D: bounds: expected six of them, each minimum below its maximum\n"
			"list.csv:6:13: f: expected a length, found \"9999999999\"\n"
			"list.csv:6:1: E: bounds: expected six of them, each minimum below its maximum\n");
		ASSERT_EQ(Units.Num(), 5);
		EXPECT_EQ(Units[0].Volume.Max, FVector(1.0, 1.0, 1.0));
		EXPECT_FALSE(Units[1].Volume.HasVolume());
		EXPECT_FALSE(Units[4].Volume.HasVolume());
	}

	TEST_F(FUnitTableReaderTest, MappingsNameWhatIsWrongWithThem)
	{
		FReadProblems Wrong(TEXT("map.json"));
		EXPECT_FALSE(FUnitTableMapping::FromJson(TEXT("{\"columns\": "), Mapping, Wrong));
		EXPECT_FALSE(FUnitTableMapping::FromJson(TEXT("[]"), Mapping, Wrong));
		EXPECT_EQ(Wrong.Num(), 2);
		FReadProblems Inner(TEXT("map.json"));
		EXPECT_TRUE(FUnitTableMapping::FromJson(TEXT(R"({"decimals": "dot", "centimetresPerUnit": 0, "columns": {"A": "colour", "B": 3, "C": {"values": {}}, "D": "id"}})"), Mapping, Inner));
		EXPECT_EQ(Inner.Num(), 5);
		EXPECT_EQ(Mapping.Columns.Num(), 1);
		EXPECT_EQ(Mapping.CentimetresPerUnit, 100.0);
		FReadProblems None(TEXT("map.json"));
		EXPECT_TRUE(FUnitTableMapping::FromJson(TEXT("{}"), Mapping, None));
		EXPECT_EQ(None.Num(), 1);
	}

	TEST_F(FUnitTableReaderTest, RoomsOfARealHouseBecomeUnitsWithVolumes)
	{
		const FString Data = FString(HALVEX_SOURCE_DIR) + TEXT("/Tests/Data/");
		FString Json;
		ASSERT_TRUE(FFileHelper::LoadFileToString(Json, *(Data + TEXT("duplex-rooms.map.json"))));
		Map(*Json);
		ASSERT_TRUE(FUnitTableReader::LoadFile(Data + TEXT("duplex-rooms.csv"), Mapping, Units));
		ASSERT_EQ(Units.Num(), 21);
		EXPECT_EQ(ToStd(Units[1].Data.UnitId), "A102");
		EXPECT_EQ(ToStd(Units[1].Data.Name), "Living Room");
		EXPECT_EQ(Units[5].Data.Level, 1);
		EXPECT_EQ(Units[20].Data.Level, 2);
		for (const FProjectUnit& Unit : Units)
		{
			EXPECT_TRUE(Unit.Volume.HasVolume()) << ToStd(Unit.Data.UnitId);
			EXPECT_GT(Unit.Data.Area, 0.0f) << ToStd(Unit.Data.UnitId);
		}
		EXPECT_NEAR(Units[0].Volume.Min.Y, -1738.3, 1e-6);
	}

	TEST_F(FUnitTableReaderTest, FileThatIsNotThereIsOneLogLine)
	{
		const Host::FExpectedLog Missing(TEXT("none.csv: the file cannot be read"));
		EXPECT_FALSE(FUnitTableReader::LoadFile(TEXT("/none.csv"), Mapping, Units));
	}

	TEST_F(FUnitTableReaderTest, RandomBytesNeverStopTheReader)
	{
		Mapping = FUnitTableMapping::MakeDefault();
		std::mt19937 Random(9);
		const std::string Bytes = "id,;\t\"\n\rA1.-\xC3\xFF name";
		for (int32 Round = 0; Round < 3000; ++Round)
		{
			std::string Text = "id,name,level,price\nA,\"One\",1,2.5\nB,Two,2,\"1,000\"\n";
			for (int32 Change = 0; Change < 6; ++Change)
			{
				Text[Random() % Text.size()] = Bytes[Random() % Bytes.size()];
			}
			const bool bWhole = Read(Text);
			EXPECT_TRUE(bWhole || !Problems->IsEmpty());
		}
	}
}
