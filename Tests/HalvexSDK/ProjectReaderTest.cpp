#include "ProjectTextTest.h"

#include "Misc/FileHelper.h"

#include <random>

namespace
{
	using Host::ToStd;

	class FProjectReaderTest : public FProjectTextTest
	{
	};

	const char* const Whole = R"({
	"format": 1,
	"id": "quay", "name": "Quay \u00C9lan", "description": "By the water", "currency": "EUR",
	"groups": [{ "id": "north", "name": "North House", "image": "plan" }],
	"images": [{ "id": "plan", "address": "Plans/A.png", "title": "Plan A" }, { "id": "far", "address": "https://example.org/a.png" }],
	"spots": [{ "id": "bar", "title": "Bar", "description": "Open", "image": "far", "location": [1, -2.5, 3e2] }],
	"units": [
		{ "id": "N1", "name": "North 1", "building": "north", "type": "Flat", "view": "Quay", "image": "plan", "currency": "CHF", "level": 3,
			"rooms": 2, "baths": 1, "area": 64.5, "outdoorArea": 8, "price": 420000, "orientation": "SouthWest", "status": "Reserved",
			"volume": { "outline": [0, 0, 800, 0, 800, 600], "bottom": 300, "top": 600 } },
		{ "id": "N2", "volume": { "min": [0, 0, 0], "max": [100, 200, 300] } },
		{ "id": "N3", "interior": "flat" }
	],
	"interiors": [{ "id": "flat", "parts": [{ "surface": "Floor", "volume": { "min": [0, 0, 0], "max": [400, 300, 2] } }] }],
	"catalogue": { "categories": [{ "id": "Kitchen", "subCategories": [{ "id": "Fronts", "default": "oak", "products": [
		{ "id": "oak", "price": 10, "looks": [{ "surface": "Floor", "color": "#C8A070", "roughness": 0.5 }] }] }] }] }
})";

	TEST_F(FProjectReaderTest, EveryFieldOfAProjectIsRead)
	{
		EXPECT_TRUE(Read(Whole));
		EXPECT_EQ(Messages(), "");
		EXPECT_EQ(ToStd(Project.ProjectId), "quay");
		EXPECT_EQ(ToStd(Project.Name), "Quay \xC3\x89lan");
		EXPECT_EQ(ToStd(Project.Description), "By the water");
		ASSERT_EQ(Project.Groups.Num(), 1);
		EXPECT_EQ(ToStd(Project.Groups[0].GroupId), "north");
		EXPECT_EQ(ToStd(Project.Groups[0].Name), "North House");
		EXPECT_EQ(ToStd(Project.Groups[0].Image), "plan");
		ASSERT_EQ(Project.Images.Num(), 2);
		EXPECT_EQ(ToStd(Project.Images[0].Address), "Plans/A.png");
		EXPECT_EQ(ToStd(Project.Images[0].Title), "Plan A");
		EXPECT_EQ(ToStd(Project.Images[1].Address), "https://example.org/a.png");
		ASSERT_EQ(Project.Spots.Num(), 1);
		EXPECT_EQ(ToStd(Project.Spots[0].SpotId), "bar");
		EXPECT_EQ(ToStd(Project.Spots[0].Title), "Bar");
		EXPECT_EQ(ToStd(Project.Spots[0].Description), "Open");
		EXPECT_EQ(Project.Spots[0].Location, FVector(1.0, -2.5, 300.0));

		ASSERT_EQ(Project.Units.Num(), 3);
		const FUnitData& Unit = Project.Units[0].Data;
		EXPECT_EQ(ToStd(Unit.UnitId), "N1");
		EXPECT_EQ(ToStd(Unit.Name), "North 1");
		EXPECT_EQ(ToStd(Unit.Building), "north");
		EXPECT_EQ(ToStd(Unit.Type), "Flat");
		EXPECT_EQ(ToStd(Unit.View), "Quay");
		EXPECT_EQ(ToStd(Unit.Image), "plan");
		EXPECT_EQ(ToStd(Unit.Currency), "CHF");
		EXPECT_EQ(Unit.Level, 3);
		EXPECT_EQ(Unit.Rooms, 2);
		EXPECT_EQ(Unit.Baths, 1);
		EXPECT_EQ(Unit.Area, 64.5f);
		EXPECT_EQ(Unit.OutdoorArea, 8.0f);
		EXPECT_EQ(Unit.Price, 420000.0);
		EXPECT_EQ(Unit.Orientation, EUnitOrientation::SouthWest);
		EXPECT_EQ(Unit.Status, EUnitStatus::Reserved);
		const FUnitVolumeShape& Volume = Project.Units[0].Volume;
		EXPECT_EQ(Volume.Outline.Num(), 3);
		EXPECT_EQ(Volume.Min, FVector(0.0, 0.0, 300.0));
		EXPECT_EQ(Volume.Max, FVector(800.0, 600.0, 600.0));
		EXPECT_TRUE(Project.Units[1].Volume.IsBox());
		EXPECT_EQ(Project.Units[1].Volume.Max, FVector(100.0, 200.0, 300.0));
		EXPECT_FALSE(Project.Units[2].Volume.HasVolume());
		EXPECT_EQ(ToStd(Project.Units[2].Data.Interior), "flat");
	}

	TEST_F(FProjectReaderTest, ProjectsCurrencyIsThatOfUnitsWithoutOne)
	{
		EXPECT_TRUE(Read(R"({"units": [{"id": "A"}, {"id": "B", "currency": "USD"}], "currency": "EUR"})"));
		EXPECT_EQ(ToStd(Project.Units[0].Data.Currency), "EUR");
		EXPECT_EQ(ToStd(Project.Units[1].Data.Currency), "USD");
	}

	TEST_F(FProjectReaderTest, FieldsMayStandInAnyOrderAndAMarkOfTheEncodingAhead)
	{
		EXPECT_TRUE(Read("\xEF\xBB\xBF{\"units\": [{\"status\": \"sold\", \"level\": -1, \"id\": \"A\"}, {\"id\": \"B\", \"level\": 2}]}"));
		EXPECT_EQ(Messages(), "");
		EXPECT_EQ(Project.Units[0].Data.Level, -1);
		EXPECT_EQ(Project.Units[0].Data.Status, EUnitStatus::Sold);
		EXPECT_EQ(Project.Units[1].Data.Level, 2);
	}

	TEST_F(FProjectReaderTest, WrongFieldsAreNamedWithFileLineAndUnitAndKeepTheirDefaults)
	{
		EXPECT_TRUE(Read("{\"units\": [\n{\"id\": \"A\", \"rooms\": 2.5, \"price\": -1, \"level\": \"3\",\n\"orientation\": \"Up\", \"area\": 1e999, \"name\": 5, \"baths\": null, \"colour\": {\"a\": [1]}},\n{\"id\": \"B\", \"level\": 4}]}"));
		EXPECT_EQ(Messages(),
			"project.json:2:22: units[0] (A): rooms: expected a whole number from 0 to 1000, found 2.5\n"
			"project.json:2:36: units[0] (A): price: expected a price from 0 to 1000000000000, found -1\n"
			"project.json:2:49: units[0] (A): level: expected a number, found \"3\"\n"
			"project.json:3:16: units[0] (A): orientation: expected None or a direction from North to NorthWest, found \"Up\"\n"
			"project.json:3:30: units[0] (A): area: expected square metres from 0 to 1000000, found 1e999\n"
			"project.json:3:45: units[0] (A): name: expected a text, found 5\n"
			"project.json:3:57: units[0] (A): baths: expected a number, found null\n"
			"project.json:3:73: units[0] (A): colour: there is no such field\n");
		ASSERT_EQ(Project.Units.Num(), 2);
		EXPECT_EQ(Project.Units[0].Data.Rooms, 0);
		EXPECT_EQ(Project.Units[0].Data.Area, 0.0f);
		EXPECT_EQ(Project.Units[1].Data.Level, 4);
	}

	TEST_F(FProjectReaderTest, UnitOfUnknownStatusIsNotOnOffer)
	{
		EXPECT_TRUE(Read(R"({"units": [{"id": "A", "status": "maybe"}, {"id": "B", "status": 1}, {"id": "C"}]})"));
		EXPECT_EQ(Problems->Num(), 2);
		EXPECT_EQ(Project.Units[0].Data.Status, EUnitStatus::NotForSale);
		EXPECT_EQ(Project.Units[1].Data.Status, EUnitStatus::NotForSale);
		EXPECT_EQ(Project.Units[2].Data.Status, EUnitStatus::Available);
	}

	TEST_F(FProjectReaderTest, UnitsWithoutAnIdOfTheirOwnAreLeftOut)
	{
		EXPECT_TRUE(Read(R"({"units": [{"id": "A"}, {"name": "x"}, {"id": "a", "level": 2}, {"id": ""}, 7, {"id": "B"}]})"));
		EXPECT_EQ(Messages(),
			"project.json:1:37: units[1]: id: a unit needs one: it is left out\n"
			"project.json:1:62: units[2] (a): id: there is a unit of that id already: this one is left out\n"
			"project.json:1:72: units[3]: id: expected a key, found \"\"\n"
			"project.json:1:74: units[3]: id: a unit needs one: it is left out\n"
			"project.json:1:77: units[4]: expected an object, found 7\n");
		ASSERT_EQ(Project.Units.Num(), 2);
		EXPECT_EQ(Project.Units[0].Data.Level, 0);
		EXPECT_EQ(ToStd(Project.Units[1].Data.UnitId), "B");
	}

	TEST_F(FProjectReaderTest, VolumesThatEncloseNothingAreLeftOutAndTheUnitStays)
	{
		const char* const Wrong[] =
		{
			R"({"min": [0, 0, 0], "max": [1, 0, 1]})", R"({"min": [0, 0], "max": [1, 1, 1]})", R"({"outline": [0, 0, 1, 0], "bottom": 0, "top": 1})",
			R"({"outline": [0, 0, 1, 0, 1], "bottom": 0, "top": 1})", R"({"outline": [0, 0, 1, 1, 2, 2], "bottom": 0, "top": 1})",
			R"({"outline": [0, 0, 1, 0, 1, 1], "bottom": 1, "top": 1})", R"({"outline": [0, 0, 1, 0, 1, "x"], "bottom": 0, "top": 1})",
			R"({"outline": [0, 0, 1, 0, 1, 1e9], "bottom": 0, "top": 1})", R"({"outline": 3, "bottom": 0, "top": 1})", R"({})", R"([])", R"("box")",
			R"({"min": [0, 0, 0], "max": [1, 1, 1], "top": "x"})",
		};
		for (const char* Volume : Wrong)
		{
			EXPECT_TRUE(Read(std::string(R"({"units": [{"id": "A", "volume": )") + Volume + R"(, "level": 2}]})")) << Volume;
			EXPECT_EQ(Problems->Num(), 1) << Volume << "\n" << Messages();
			ASSERT_EQ(Project.Units.Num(), 1);
			EXPECT_FALSE(Project.Units[0].Volume.HasVolume()) << Volume;
			EXPECT_EQ(Project.Units[0].Data.Level, 2) << Volume;
		}
	}

	TEST_F(FProjectReaderTest, ReferencesToWhatIsNotThereAreNamed)
	{
		EXPECT_TRUE(Read(R"({"units": [{"id": "A", "building": "north", "image": "plan"}, {"id": "B", "building": "south", "image": "none"}],
"groups": [{"id": "north", "image": "photo"}], "images": [{"id": "plan", "address": "a.png"}]})"));
		EXPECT_EQ(Messages(),
			"project.json:1:87: units[1] (B): building: there is no group 'south'\n"
			"project.json:2:37: groups[0] (north): image: there is no image 'photo'\n");
		EXPECT_EQ(ToStd(Project.Units[1].Data.Building), "south");
	}

	TEST_F(FProjectReaderTest, ImagesDoNotLeaveTheFolder)
	{
		for (const char* Address : { "../a.png", "/etc/a.png", "C:/a.png", "a/../../b.png", "..\\\\a.png", "file:///a.png", "" })
		{
			EXPECT_TRUE(Read(std::string(R"({"images": [{"id": "a", "address": ")") + Address + "\"}]}"));
			EXPECT_EQ(Problems->Num(), 1) << Address;
			EXPECT_TRUE(Project.Images[0].Address.IsEmpty()) << Address;
		}
	}

	TEST_F(FProjectReaderTest, GroupsImagesAndSpotsNeedKeysOfTheirOwn)
	{
		EXPECT_TRUE(Read(R"({"groups": [{"id": "a"}, {"id": "a"}, {}], "images": [{"id": "a"}, {"id": "A"}, {}], "spots": [{"id": "a"}, {"id": "a"}, {}, []]})"));
		EXPECT_EQ(Project.Groups.Num(), 1);
		EXPECT_EQ(Project.Images.Num(), 1);
		EXPECT_EQ(Project.Spots.Num(), 1);
		EXPECT_EQ(Problems->Num(), 7);
	}

	TEST_F(FProjectReaderTest, CutTextKeepsTheWholeUnitsBeforeTheCut)
	{
		EXPECT_FALSE(Read("{\"units\": [{\"id\": \"A\"}, {\"id\": \"B\"},\n{\"id\": \"C\", \"level\": 1"));
		EXPECT_EQ(Messages(), "project.json:2:23: units[2] (C): level: expected ',' or '}' after the member, found the end of the text\n");
		EXPECT_EQ(Project.Units.Num(), 2);
	}

	TEST_F(FProjectReaderTest, AnyCutOfAProjectIsSurvivedAndNamedOnce)
	{
		const std::string Text = Whole;
		for (SIZE_T Length = 0; Length + 1 < Text.size(); ++Length)
		{
			EXPECT_FALSE(Read(Text.substr(0, Length))) << Length;
			EXPECT_NE(Messages().find(Length == 0 ? "the end of the text" : "expected"), std::string::npos) << Length;
			EXPECT_LE(Project.Units.Num(), 3);
		}
	}

	TEST_F(FProjectReaderTest, TextsThatAreNoProjectAreRefused)
	{
		EXPECT_FALSE(Read("[]"));
		EXPECT_EQ(Messages(), "project.json:1:1: expected an object, found an array\n");
		EXPECT_FALSE(Read("PK\x03\x04"));
		EXPECT_EQ(Messages(), "project.json:1:1: expected '{' or '[', found 'P'\n");
		EXPECT_FALSE(Read(R"({"format": 2, "units": [{"id": "A"}]})"));
		EXPECT_EQ(Messages(), "project.json:1:12: format: expected 1, found 2\n");
		EXPECT_FALSE(Read(R"({"units": []} x)"));
	}

	TEST_F(FProjectReaderTest, SectionsOfAnotherKindAreNamedAndTheOthersRead)
	{
		EXPECT_TRUE(Read(R"({"groups": {"a": 1}, "images": 3, "spots": null, "extra": [[{}]], "name": [], "units": [{"id": "A"}]})"));
		EXPECT_EQ(Problems->Num(), 5) << Messages();
		EXPECT_EQ(Project.Units.Num(), 1);
	}

	TEST_F(FProjectReaderTest, DeepNestingIsRefused)
	{
		EXPECT_FALSE(Read("{\"units\": [{\"id\": \"A\"}, {\"id\": \"B\", \"x\": " + std::string(100000, '[')));
		EXPECT_NE(Messages().find("nested more than 64 deep"), std::string::npos);
		EXPECT_EQ(Project.Units.Num(), 1);
	}

	TEST_F(FProjectReaderTest, BytesThatAreNoUtf8AreNamedAndReplaced)
	{
		EXPECT_TRUE(Read("{\"units\": [{\"id\": \"A\", \"name\": \"Qu\xE4y\"}]}"));
		EXPECT_EQ(Messages(), "project.json:1:32: units[0] (A): name: the text has bytes that are no UTF-8\n");
		EXPECT_EQ(ToStd(Project.Units[0].Data.Name), "Qu\xEF\xBF\xBDy");
	}

	TEST_F(FProjectReaderTest, OnlySoManyMessagesAreKept)
	{
		std::string Text = "{\"units\": [";
		for (int32 Index = 0; Index < 60; ++Index)
		{
			Text += "{},";
		}
		EXPECT_TRUE(Read(Text + "{\"id\": \"A\"}]}"));
		EXPECT_EQ(Problems->Num(), 60);
		EXPECT_EQ(Problems->GetMessages().Num(), FReadProblems::MaxMessages);
		const Host::FExpectedLog Kept(TEXT("a unit needs one"), FReadProblems::MaxMessages);
		const Host::FExpectedLog More(TEXT("project.json: and 10 more problems"));
		Problems->Log();
	}

	TEST_F(FProjectReaderTest, FolderIsReadAndProblemsAreLogged)
	{
		const FString Folder = FString(HALVEX_BINARY_DIR) + TEXT("/Tests/ProjectFolder");
		ASSERT_TRUE(FFileHelper::SaveStringToFile(FString(TEXT("{\"units\": [{\"id\": \"A\"}, {}]}")), *(Folder / FProjectReader::FileName)));
		{
			const Host::FExpectedLog Problem(TEXT("ProjectFolder/project.json:1:26: units[1]: id: a unit needs one"));
			EXPECT_TRUE(FProjectReader::LoadFolder(Folder, Project));
			EXPECT_EQ(Project.Units.Num(), 1);
		}
		const Host::FExpectedLog Missing(TEXT("ProjectFolder/none/project.json: the file cannot be read"));
		EXPECT_FALSE(FProjectReader::LoadFolder(Folder / TEXT("none"), Project));
		EXPECT_TRUE(Project.Units.IsEmpty());
	}

	TEST_F(FProjectReaderTest, RandomChangesOfAProjectNeverStopTheReader)
	{
		std::mt19937 Random(5);
		const std::string Bytes = "{}[]\",:\\019eE-.tfn \n\xC3\xFF";
		for (int32 Round = 0; Round < 3000; ++Round)
		{
			std::string Text = Whole;
			for (int32 Change = 0; Change < 3; ++Change)
			{
				Text[Random() % Text.size()] = Bytes[Random() % Bytes.size()];
			}
			const bool bWhole = Read(Text);
			EXPECT_TRUE(bWhole || !Problems->IsEmpty()) << Text;
			TSet<FName> Ids;
			for (const FProjectUnit& Unit : Project.Units)
			{
				bool bAlreadyThere = false;
				Ids.Add(Unit.Data.UnitId, &bAlreadyThere);
				EXPECT_FALSE(bAlreadyThere || Unit.Data.UnitId.IsNone());
			}
		}
	}
}
