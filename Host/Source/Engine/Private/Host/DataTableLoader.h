#pragma once

#include "Host/AssetLoaders.h"

namespace Host
{
	/** Makes a data table of a ".table.json" file: {"RowStruct": path, "Rows": {name: {property: value}}}. */
	UObject* LoadDataTable(const FAssetRequest& Request);
}
