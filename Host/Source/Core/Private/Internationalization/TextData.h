#pragma once

#include "Containers/UnrealString.h"

namespace Host
{
	/** Where a text came from. */
	enum class ETextOrigin : uint8
	{
		String,
		Invariant,
		Localized,
		Generated
	};

	/** What copies of one text share. */
	struct FTextData
	{
		FTextData(ETextOrigin InOrigin, FString&& InDisplay)
			: Display(MoveTemp(InDisplay))
			, Origin(InOrigin)
		{
		}

		FString Display;
		ETextOrigin Origin;
	};

	/** Of a text with a translation. */
	struct FLocalizedTextData : FTextData
	{
		FLocalizedTextData(const TCHAR* Source, const TCHAR* InNamespace, const TCHAR* InKey)
			: FTextData(ETextOrigin::Localized, FString(Source))
			, Namespace(InNamespace)
			, Key(InKey)
		{
		}

		FString Namespace;
		FString Key;
	};
}
