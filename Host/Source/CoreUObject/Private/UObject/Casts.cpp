#include "Templates/Casts.h"

#include "UObject/Class.h"

void CastLogError(const UObject* From, const UClass* To)
{
	checkf(false, TEXT("Cast of %s to %s failed"), *GetFullNameSafe(From), *To->GetName());
	std::abort();
}

void CastLogNullError(const UClass* To)
{
	checkf(false, TEXT("Cast of null to %s failed"), *To->GetName());
	std::abort();
}
