#pragma once

#include "Model.h"

namespace HeaderTool
{
	/**
	 * The default argument of a parameter as the text form of its value. False, with what to write, when it is not of a form
	 * that reflection can repeat: numbers, true, false, enumerators, string and name literals, nullptr, and constructors of the
	 * maths types.
	 */
	bool ConvertDefaultArgument(const FParameter& Parameter, std::string& OutText, std::string& OutComplaint);
} // namespace HeaderTool
