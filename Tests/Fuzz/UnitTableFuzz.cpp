// Feeds any bytes to the reader of sales lists. The first one says how numbers are written.

#include "CoreMinimal.h"
#include "Misc/FileHelper.h"
#include "Project/UnitTableReader.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8* Data, std::size_t Size)
{
	if (Size == 0)
	{
		return 0;
	}
	FUnitTableMapping Mapping = FUnitTableMapping::MakeDefault();
	Mapping.Decimals = EUnitTableDecimals(Data[0] % 3);
	TArray<FProjectUnit> Units;
	FReadProblems Problems(TEXT("Fuzz"));
	const bool bWhole = FUnitTableReader::ReadBytes(MakeArrayView(Data + 1, int32(Size - 1)), Mapping, Units, Problems);
	check(bWhole || !Problems.IsEmpty());

	TSet<FName> Ids;
	for (const FProjectUnit& Unit : Units)
	{
		bool bAlreadyThere = false;
		Ids.Add(Unit.Data.UnitId, &bAlreadyThere);
		check(!bAlreadyThere && !Unit.Data.UnitId.IsNone());
		check(Unit.Data.Area >= 0.0f && Unit.Data.Price >= 0.0);
	}

	// The same bytes as a mapping.
	FString Json;
	FFileHelper::BufferToString(Json, Data, int32(Size));
	FUnitTableMapping Read;
	FReadProblems Wrong(TEXT("Fuzz"));
	check(FUnitTableMapping::FromJson(Json, Read, Wrong) || !Wrong.IsEmpty());
	return 0;
}
