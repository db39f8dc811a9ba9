#include "Host/AssetLoaders.h"
#include "Host/WidgetBlueprint.h"
#include "Lua/LuaMachine.h"
#include "Modules/ModuleManager.h"

namespace
{
	const TCHAR* const WidgetBlueprintSuffix = TEXT(".widget.json");

	/** Tells the asset loaders about widget blueprints. */
	class FBlueprintModule final : public FDefaultModuleImpl
	{
	public:
		virtual void StartupModule() override { Host::FAssetLoaders::Add(WidgetBlueprintSuffix, &Host::LoadWidgetBlueprint); }
		virtual void ShutdownModule() override
		{
			Host::FAssetLoaders::Remove(WidgetBlueprintSuffix);
			Host::FLuaMachine::Stop();
		}
	};
}

IMPLEMENT_MODULE(FBlueprintModule, Blueprint)
