#include "MadeUpProject.h"

#include "Project/ProjectReader.h"

#include <cstdio>

namespace
{
	const char* const Statuses[] = { "Available", "Sold", "Reserved", "Available", "Sold" };
	const char* const Orientations[] = { "South", "North", "SouthWest", "East" };

	/** What a unit of that number is like. */
	struct FMadeUpUnit
	{
		int32 Block;
		int32 Level;
		int32 Number;
		int32 Rooms;
		double Area;
		int32 Price;
		const char* Status;
		const char* Orientation;

		explicit FMadeUpUnit(int32 Index)
			: Block(Index / 128)
			, Level(Index / 16 % 8)
			, Number(Index % 16)
			, Rooms(1 + Index * 7 % 5)
			, Area(30.0 + Index * 37 % 900 / 10.0)
			, Price(150000 + Index * 7919 % 800 * 1000)
			, Status(Statuses[Index * 13 % 5])
			, Orientation(Orientations[Index * 11 % 4])
		{
		}
	};
}

std::string MakeProjectText(int32 NumUnits)
{
	std::string Text = "{\n\t\"format\": 1,\n\t\"id\": \"town\",\n\t\"currency\": \"EUR\",\n\t\"groups\": [";
	char Line[1024];
	for (int32 Block = 0; Block * 128 < NumUnits; ++Block)
	{
		std::snprintf(Line, sizeof(Line), "%s\n\t\t{\"id\":\"block-%d\",\"name\":\"Block %d\"}", Block > 0 ? "," : "", Block, Block);
		Text += Line;
	}
	Text += "\n\t],\n\t\"units\": [";
	for (int32 Index = 0; Index < NumUnits; ++Index)
	{
		const FMadeUpUnit Unit(Index);
		const int32 X = Unit.Number % 8 * 800;
		const int32 Y = Unit.Number / 8 * 1100;
		std::snprintf(Line, sizeof(Line),
			"%s\n\t\t{\"id\":\"B%d-%d%02d\",\"name\":\"Block %d %d.%02d\",\"building\":\"block-%d\",\"type\":\"Flat\",\"view\":\"Court\",\"level\":%d,\"rooms\":%d,\"baths\":1,"
			"\"area\":%.1f,\"outdoorArea\":8.5,\"price\":%d,\"orientation\":\"%s\",\"status\":\"%s\","
			"\"volume\":{\"outline\":[%d,%d,%d,%d,%d,%d,%d,%d,%d,%d],\"bottom\":%d,\"top\":%d}}",
			Index > 0 ? "," : "", Unit.Block, Unit.Level, Unit.Number, Unit.Block, Unit.Level, Unit.Number, Unit.Block, Unit.Level, Unit.Rooms, Unit.Area,
			Unit.Price, Unit.Orientation, Unit.Status, X, Y, X + 800, Y, X + 800, Y + 900, X + 500, Y + 1000, X, Y + 1000, Unit.Level * 310, Unit.Level * 310 + 310);
		Text += Line;
	}
	return Text + "\n\t]\n}\n";
}

std::string MakeTableText(int32 NumUnits)
{
	std::string Text = "id;name;building;level;rooms;area;price;orientation;status\n";
	char Line[512];
	for (int32 Index = 0; Index < NumUnits; ++Index)
	{
		const FMadeUpUnit Unit(Index);
		std::snprintf(Line, sizeof(Line), "B%d-%d%02d;\"Block %d %d.%02d\";block-%d;%d;%d;%d,%d;%d.000;%s;%s\n", Unit.Block, Unit.Level, Unit.Number,
			Unit.Block, Unit.Level, Unit.Number, Unit.Block, Unit.Level, Unit.Rooms, int32(Unit.Area), int32(Unit.Area * 10.0) % 10, Unit.Price / 1000,
			Unit.Orientation, Unit.Status);
		Text += Line;
	}
	return Text;
}

TArray<FProjectUnit> MakeProjectUnits(int32 NumUnits)
{
	const std::string Text = MakeProjectText(NumUnits);
	FProjectData Project;
	FReadProblems Problems(TEXT("made up"));
	verify(FProjectReader::ReadBytes(MakeArrayView(reinterpret_cast<const uint8*>(Text.data()), int32(Text.size())), Project, Problems));
	check(Problems.IsEmpty() && Project.Units.Num() == NumUnits);
	return MoveTemp(Project.Units);
}
