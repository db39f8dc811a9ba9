#pragma once

#include "Logging/LogMacros.h"

HALVEXSDK_API DECLARE_LOG_CATEGORY_EXTERN(LogHalvexSDK, Log, All);
