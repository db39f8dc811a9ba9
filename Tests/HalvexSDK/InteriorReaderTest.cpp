#include "ProjectTextTest.h"

namespace
{
	using Host::ToStd;

	class FInteriorReaderTest : public FProjectTextTest
	{
	};

	TEST_F(FInteriorReaderTest, EveryFieldOfAnInteriorIsRead)
	{
		EXPECT_TRUE(Read(R"({"interiors": [{ "id": "flat", "name": "Flat of two rooms",
	"camera": { "target": [300, 200, 90], "yaw": -45, "pitch": -50.5, "distance": 1200 },
	"parts": [{ "surface": "Floor", "color": "#FF0080", "volume": { "outline": [0, 0, 600, 0, 600, 400], "bottom": -2, "top": 0 } },
		{ "volume": { "min": [0, 0, 0], "max": [10, 400, 260] } }] }],
	"units": [{ "id": "A", "interior": "flat" }]})"));
		EXPECT_EQ(Messages(), "");
		ASSERT_EQ(Project.Interiors.Num(), 1);
		const FProjectInterior& Interior = Project.Interiors[0];
		EXPECT_EQ(ToStd(Interior.InteriorId), "flat");
		EXPECT_EQ(ToStd(Interior.Name), "Flat of two rooms");
		EXPECT_EQ(Interior.Camera.Target, FVector(300.0, 200.0, 90.0));
		EXPECT_EQ(Interior.Camera.Yaw, -45.0);
		EXPECT_EQ(Interior.Camera.Pitch, -50.5);
		EXPECT_EQ(Interior.Camera.Distance, 1200.0);
		ASSERT_EQ(Interior.Parts.Num(), 2);
		EXPECT_EQ(ToStd(Interior.Parts[0].Surface), "Floor");
		EXPECT_EQ(Interior.Parts[0].Color, FLinearColor(FColor(0xFF, 0x00, 0x80)));
		EXPECT_EQ(Interior.Parts[0].Shape.Outline.Num(), 3);
		EXPECT_TRUE(Interior.Parts[1].Surface.IsNone());
		EXPECT_EQ(Interior.Parts[1].Color, FInteriorPart().Color);
		EXPECT_TRUE(Interior.Parts[1].Shape.IsBox());
		EXPECT_EQ(ToStd(Project.Units[0].Data.Interior), "flat");
	}

	TEST_F(FInteriorReaderTest, WrongPartsAreLeftOutAndTheOthersStay)
	{
		EXPECT_TRUE(Read(R"({"interiors": [{"id": "flat", "parts": [{"surface": "Floor"},
{"surface": "Wall", "volume": {"min": [0, 0, 0], "max": [1, 0, 1]}}, 7,
{"surface": "Door", "colour": 1, "color": "blue", "volume": {"min": [0, 0, 0], "max": [1, 1, 1]}}]}]})"));
		EXPECT_EQ(Messages(),
			"project.json:1:60: interiors[0] (flat): parts[0] (Floor): a part needs a volume: it is left out\n"
			"project.json:2:66: interiors[0] (flat): parts[1] (Wall): volume: it encloses nothing: expected min below max, or an outline with bottom below top\n"
			"project.json:2:70: interiors[0] (flat): parts[2]: expected an object, found 7\n"
			"project.json:3:31: interiors[0] (flat): parts[3] (Door): colour: there is no such field\n"
			"project.json:3:43: interiors[0] (flat): parts[3] (Door): color: expected a colour as #RRGGBB, found \"blue\"\n");
		ASSERT_EQ(Project.Interiors[0].Parts.Num(), 1);
		EXPECT_EQ(ToStd(Project.Interiors[0].Parts[0].Surface), "Door");
		EXPECT_EQ(Project.Interiors[0].Parts[0].Color, FInteriorPart().Color);
	}

	TEST_F(FInteriorReaderTest, WrongFieldsOfACameraKeepTheirDefaults)
	{
		EXPECT_TRUE(Read(R"({"interiors": [{"id": "flat", "camera": {"target": [1, 2], "yaw": 400, "pitch": 10, "distance": -1, "roll": 0}}, {"id": "b", "camera": 3}]})"));
		EXPECT_EQ(Messages(),
			"project.json:1:57: interiors[0] (flat): camera: target: expected x, y and z, found 2 numbers\n"
			"project.json:1:67: interiors[0] (flat): camera: yaw: expected degrees from -360 to 360, found 400\n"
			"project.json:1:81: interiors[0] (flat): camera: pitch: expected degrees from -89 to -2, found 10\n"
			"project.json:1:97: interiors[0] (flat): camera: distance: expected centimetres from 0 to 1000000, found -1\n"
			"project.json:1:109: interiors[0] (flat): camera: roll: there is no such field\n"
			"project.json:1:136: interiors[1] (b): camera: expected an object, found 3\n");
		EXPECT_EQ(Project.Interiors[0].Camera.Yaw, FInteriorCamera().Yaw);
		EXPECT_EQ(Project.Interiors[0].Camera.Distance, 0.0);
	}

	TEST_F(FInteriorReaderTest, InteriorsNeedKeysOfTheirOwnAndUnitsOneThatIsThere)
	{
		EXPECT_TRUE(Read(R"({"units": [{"id": "A", "interior": "Flat"}, {"id": "B", "interior": "loft"}], "interiors": [{"id": "flat"}, {"id": "FLAT"}, {}]})"));
		EXPECT_EQ(Messages(),
			"project.json:1:122: interiors[1] (FLAT): id: expected a key that no other interior has: this one is left out\n"
			"project.json:1:126: interiors[2]: id: expected a key that no other interior has: this one is left out\n"
			"project.json:1:69: units[1] (B): interior: there is no interior 'loft'\n");
		EXPECT_EQ(Project.Interiors.Num(), 1);
		EXPECT_EQ(ToStd(Project.Units[1].Data.Interior), "loft");
	}
}
