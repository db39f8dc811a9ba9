#pragma once

#include "Host/JsonDocument.h"

class UClass;

namespace Host
{
	struct FAssetRequest;

	/** Reads the file of a blueprint. An empty node, after lines in the log, when it cannot be read. */
	FJsonNode ReadBlueprintFile(FJsonDocument& Document, const FAssetRequest& Request, const TCHAR* What);

	/** Fills the default object of a linked class from "Variables" and "Defaults". */
	void ReadBlueprintDefaults(UClass& Class, const FJsonNode& Root);
}
