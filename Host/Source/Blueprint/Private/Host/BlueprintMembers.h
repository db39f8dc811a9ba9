#pragma once

#include "CoreMinimal.h"
#include "Containers/ArrayView.h"
#include "Host/JsonDocument.h"

namespace Host
{
	/**
	 * Reports each member of a JSON object that is none of the known ones.
	 * @param What what the object is, for the message: "a widget"
	 */
	void ReportUnknownMembers(const FJsonNode& Node, TConstArrayView<const TCHAR*> Known, const TCHAR* What);
}
