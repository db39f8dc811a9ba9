#pragma once

#include "ModuleReader.h"

namespace HeaderTool
{
	/** Refuses what the engine refuses, and what reflection here could not carry out. */
	void CheckModule(const FModule& Module, FDiagnostics& Diagnostics);
} // namespace HeaderTool
