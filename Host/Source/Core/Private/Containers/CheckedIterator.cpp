#include "Containers/CheckedIterator.h"

#include "Containers/UnrealString.h"
#include "Misc/AssertionMacros.h"

void Host::ReportChangeDuringIteration()
{
	ensureAlwaysMsgf(false, TEXT("Container has changed during ranged-for iteration!"));
}

void Host::ReportBadIndex(int64 Index, int64 Num)
{
	checkf(false, TEXT("Array index out of bounds: %lld into an array of size %lld"), Index, Num);
	checkNoEntry();
}
