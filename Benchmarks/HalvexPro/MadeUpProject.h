#pragma once

#include "Project/ProjectData.h"

#include <string>

/** A project of so many units as a service sends it: a unit a line, with an outline of five corners. */
std::string MakeProjectText(int32 NumUnits);

/** The same units as a sales list. */
std::string MakeTableText(int32 NumUnits);

/** The same units, read. */
TArray<FProjectUnit> MakeProjectUnits(int32 NumUnits);
