#include "HalvexProLog.h"
#include "Modules/ModuleManager.h"

DEFINE_LOG_CATEGORY(LogHalvexPro);

IMPLEMENT_MODULE(FDefaultModuleImpl, HalvexPro)
