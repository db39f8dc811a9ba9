#include "HalvexSDKLog.h"
#include "Modules/ModuleManager.h"

DEFINE_LOG_CATEGORY(LogHalvexSDK);

IMPLEMENT_MODULE(FDefaultModuleImpl, HalvexSDK)
