#pragma once

#include "Containers/UnrealString.h"
#include "Templates/SharedPointer.h"

class FCulture;
using FCultureRef = TSharedRef<FCulture>;
using FCulturePtr = TSharedPtr<FCulture>;

/** The conventions of a language and region: how numbers are written and texts are ordered. */
class FCulture
{
public:
	explicit FCulture(const FString& InName) : Name(InName) {}

	/** Name in the form of IETF BCP 47, such as "en-US". */
	const FString& GetName() const { return Name; }
	/** Name in the culture's own language. */
	CORE_API FString GetNativeName() const;
	/** "en" of "en-US". */
	CORE_API FString GetTwoLetterISOLanguageName() const;
	CORE_API bool IsRightToLeft() const;

private:
	FString Name;
};
