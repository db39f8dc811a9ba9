#pragma once

#include "Logging/LogMacros.h"

HALVEXPRO_API DECLARE_LOG_CATEGORY_EXTERN(LogHalvexPro, Log, All);
