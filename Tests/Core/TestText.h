#pragma once

#include "CoreMinimal.h"

#include <string>

/** A text as gtest compares and prints it: exactly, where FString's == ignores case. */
inline std::string ToUtf8(FStringView Text)
{
	const FTCHARToUTF8 Utf8(Text.GetData(), Text.Len());
	return Utf8.Get() != nullptr ? std::string(Utf8.Get(), SIZE_T(Utf8.Length())) : std::string();
}
