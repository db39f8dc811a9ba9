#include "PluralForms.h"

#include "Containers/StringConv.h"
#include "Misc/AssertionMacros.h"

#include <unicode/upluralrules.h>

FString Host::GetPluralForm(const FString& CultureName, double Number, bool bOrdinal)
{
	UErrorCode Error = U_ZERO_ERROR;
	UPluralRules* Rules = uplrules_openForType(FTCHARToANSI(*CultureName).Get(), bOrdinal ? UPLURAL_TYPE_ORDINAL : UPLURAL_TYPE_CARDINAL, &Error);
	check(U_SUCCESS(Error));
	UChar Keyword[16];
	const int32 Len = uplrules_select(Rules, Number, Keyword, UE_ARRAY_COUNT(Keyword), &Error);
	uplrules_close(Rules);
	check(U_SUCCESS(Error));
	return FString(Len, Keyword);
}
