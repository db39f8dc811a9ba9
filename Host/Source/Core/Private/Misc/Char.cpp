#include "Misc/Char.h"

#include <unicode/uchar.h>

TCHAR Host::ToUpperNonAscii(TCHAR Char)
{
	return (TCHAR)u_toupper(Char);
}

TCHAR Host::ToLowerNonAscii(TCHAR Char)
{
	return (TCHAR)u_tolower(Char);
}

bool Host::IsUpperNonAscii(TCHAR Char)
{
	return u_isUUppercase(Char);
}

bool Host::IsLowerNonAscii(TCHAR Char)
{
	return u_isULowercase(Char);
}

bool Host::IsAlphaNonAscii(TCHAR Char)
{
	return u_isUAlphabetic(Char);
}

bool Host::IsDigitNonAscii(TCHAR Char)
{
	return u_isdigit(Char);
}

bool Host::IsPunctNonAscii(TCHAR Char)
{
	return u_ispunct(Char);
}

bool Host::IsWhitespaceNonAscii(TCHAR Char)
{
	return u_isUWhiteSpace(Char);
}
