#include "RendererLog.h"

DEFINE_LOG_CATEGORY(LogSlateRenderer);
