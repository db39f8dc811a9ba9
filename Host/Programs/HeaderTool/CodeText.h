#pragma once

#include "Model.h"

namespace HeaderTool
{
	/** A UTF-16 string literal of a UTF-8 text. */
	std::string MakeLiteral(std::string_view Text);

	/** The type of a parameter or result as a declaration needs it. */
	std::string GetDeclaredType(const FType& Type);

	/** The type that holds a parameter or result in a function's parameter structure. */
	std::string GetStoredType(const FType& Type);

	/** "const FText &In, int Index" */
	std::string GetParameterList(const FFunction& Function, bool bNamed);

	/** "In, Index" with something ahead of each name. */
	std::string GetArgumentList(const FFunction& Function, const std::string& Prefix);

	bool HasResult(const FFunction& Function);

	/** True for a parameter that is copied out after the call. */
	bool IsOutput(const FParameter& Parameter);
} // namespace HeaderTool
