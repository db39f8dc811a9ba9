#include "UMGLog.h"

#include "Modules/ModuleManager.h"

DEFINE_LOG_CATEGORY(LogUMG);

IMPLEMENT_MODULE(FDefaultModuleImpl, UMG)
