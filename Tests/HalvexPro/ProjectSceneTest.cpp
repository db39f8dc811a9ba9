#include "SceneTest.h"

#include "Filters/UnitAvailabilityFilter.h"
#include "Filters/UnitNumberRangeFilter.h"
#include "Filters/UnitTextFilter.h"
#include "Misc/FileHelper.h"
#include "Project/ProjectReader.h"
#include "Project/UnitTableReader.h"

namespace
{
	using Host::ToStd;

	/** From files to the units that pass. */
	class FProjectSceneTest : public FSceneTest
	{
	protected:
		std::string PassingIds()
		{
			std::string Ids;
			for (const AUnitVolumeActor* UnitVolume : Filters->GetCurrentFilterResult().UnitVolumes)
			{
				Ids += ToStd(UnitVolume->GetUnitData().UnitId) + " ";
			}
			return Ids;
		}

		const FString SourceDir = FString(HALVEX_SOURCE_DIR);
	};

	TEST_F(FProjectSceneTest, RoomsOfARealHouseStandInTheSceneAndCanBeFiltered)
	{
		FString Json;
		ASSERT_TRUE(FFileHelper::LoadFileToString(Json, *(SourceDir + TEXT("/Tests/Data/duplex-rooms.map.json"))));
		FUnitTableMapping Mapping;
		FReadProblems Problems(TEXT("duplex-rooms.map.json"));
		ASSERT_TRUE(FUnitTableMapping::FromJson(Json, Mapping, Problems) && Problems.IsEmpty());
		TArray<FProjectUnit> Rooms;
		ASSERT_TRUE(FUnitTableReader::LoadFile(SourceDir + TEXT("/Tests/Data/duplex-rooms.csv"), Mapping, Rooms));
		Manager->SpawnUnits(Rooms);
		EXPECT_EQ(Heard(), "data 21; result 21 of 21; ");

		UUnitFilterCollection* const Collection = AddCollection({ UUnitTextFilter::CreateTextFilter(EUnitTextField::Name, TEXT("bedroom")) });
		EXPECT_EQ(PassingIds(), "A202 A203 B202 B203 ");
		Collection->ReplaceFilters({ UUnitNumberRangeFilter::CreateNumberRangeFilter(EUnitNumberField::Level, 0.0, 0.0), UUnitNumberRangeFilter::CreateNumberRangeFilter(EUnitNumberField::Area, 20.0, 50.0) });
		EXPECT_EQ(PassingIds(), "A102 B102 ");
		const FBox Bounds = Unit(TEXT("A102")).GetVolumeBounds();
		EXPECT_NEAR(Bounds.Max.X, 620.0, 1e-6);
		EXPECT_NEAR(Bounds.Max.Z - Bounds.Min.Z, 258.1, 1e-6);
	}

	TEST_F(FProjectSceneTest, FlatUnderAPriceOnARangeOfLevelsIsFoundInTheSampleProject)
	{
		FProjectData Project;
		ASSERT_TRUE(FProjectReader::LoadFolder(SourceDir + TEXT("/Viewer/Projects/Quayside"), Project));
		Manager->SpawnUnits(Project.Units);
		AddCollection({
			UUnitNumberRangeFilter::CreateNumberRangeFilter(EUnitNumberField::Price, 1.0, 340000.0),
			UUnitNumberRangeFilter::CreateNumberRangeFilter(EUnitNumberField::Level, 2.0, 4.0),
			UUnitAvailabilityFilter::CreateAvailabilityFilter(false) });

		std::string Expected;
		for (const FProjectUnit& Found : Project.Units)
		{
			const FUnitData& Data = Found.Data;
			if (Data.Price <= 340000.0 && Data.Level >= 2 && Data.Level <= 4 && Data.Status == EUnitStatus::Available)
			{
				Expected += ToStd(Data.UnitId) + " ";
			}
		}
		EXPECT_NE(Expected, "");
		EXPECT_EQ(PassingIds(), Expected);
	}
}
