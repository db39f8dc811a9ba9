#include "Host/FontLog.h"

DEFINE_LOG_CATEGORY(LogSlateFonts);
