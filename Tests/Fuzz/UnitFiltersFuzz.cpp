// Feeds any bytes to the reader of sets of filters. What was read is written and read again: nothing gets lost on the way.

#include "CoreMinimal.h"
#include "Filters/UnitFilterSetFile.h"
#include "Misc/FileHelper.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8* Data, std::size_t Size)
{
	FString Text;
	FFileHelper::BufferToString(Text, Data, int32(Size));
	FUnitFilterSet Set;
	FReadProblems Problems(TEXT("Fuzz"));
	if (!FUnitFilterSetFile::FromJson(Text, Set, Problems))
	{
		check(!Problems.IsEmpty() && Set.Filters.IsEmpty());
		return 0;
	}
	FUnitFilterSet Again;
	FReadProblems None(TEXT("Fuzz"));
	check(FUnitFilterSetFile::FromJson(FUnitFilterSetFile::ToJson(Set), Again, None));
	check(None.IsEmpty() && Again.Filters.Num() == Set.Filters.Num());
	return 0;
}
