#pragma once

#include "CoreMinimal.h"
#include "Host/Reflection/MetaData.h"

namespace Host
{
	/** The name as words: "bUseContrast" (a bool) reads "Use Contrast", "HTTPPort" reads "HTTP Port". */
	FString MakeDisplayName(const FString& Name, bool bIsBool);

	/** Metadata as the documented functions yield it. */
	const FString& GetMetaDataOrEmpty(const FString* Value);
	bool IsTrueMetaData(const FString* Value);
	FText MakeDisplayNameText(FMetaDataMap& MetaData, const FString& Name, bool bIsBool);
	FText MakeToolTipText(FMetaDataMap& MetaData, const FText& DisplayName, bool bShort);
} // namespace Host
