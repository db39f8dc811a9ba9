#pragma once

#include "CoreMinimal.h"
#include "Host/JsonDocument.h"

namespace Host
{
	/** Logs what is wrong at a place of a blueprint, as "file:line:column: text". */
	void ReportBlueprintError(const FJsonNode& Place, const FString& Text);
	void ReportBlueprintError(const FString& Line);
}
