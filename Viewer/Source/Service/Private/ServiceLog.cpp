#include "ServiceLog.h"

DEFINE_LOG_CATEGORY(LogService);
