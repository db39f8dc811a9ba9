#pragma once

#include "Host/DrawElement.h"

namespace Host
{
	/** True when both elements draw the same. */
	bool IsSameElement(const FDrawElement& A, const FDrawElement& B);
}
