#pragma once

#include "ModuleReader.h"

namespace HeaderTool
{
	/** Text of "<Header>.generated.h": one body macro a reflected type. */
	std::string WriteGeneratedHeader(const FModule& Module, const FHeader& Header);

	/** True when the tool declares the class's constructors. */
	bool NeedsConstructor(const FClass& Class);

	/** The native events of a class whose _Implementation the header does not declare. */
	std::vector<const FFunction*> GetUndeclaredImplementations(const FClass& Class);
} // namespace HeaderTool
