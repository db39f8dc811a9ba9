#pragma once

#include "ModuleReader.h"

namespace HeaderTool
{
	/** Text of "<Module>.gen.cpp": the registration of everything that the module reflects. */
	std::string WriteModule(const FModule& Module);
} // namespace HeaderTool
