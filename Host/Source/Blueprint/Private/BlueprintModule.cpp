#include "Host/AssetLoaders.h"
#include "Host/ObjectBlueprint.h"
#include "Host/WidgetBlueprint.h"
#include "Lua/LuaMachine.h"
#include "Modules/ModuleManager.h"

namespace
{
	const TCHAR* const WidgetBlueprintSuffix = TEXT(".widget.json");
	const TCHAR* const ObjectBlueprintSuffix = TEXT(".object.json");

	/** Tells the asset loaders about blueprints. */
	class FBlueprintModule final : public FDefaultModuleImpl
	{
	public:
		virtual void StartupModule() override
		{
			Host::FAssetLoaders::Add(WidgetBlueprintSuffix, &Host::LoadWidgetBlueprint);
			Host::FAssetLoaders::Add(ObjectBlueprintSuffix, &Host::LoadObjectBlueprint);
		}
		virtual void ShutdownModule() override
		{
			Host::FAssetLoaders::Remove(ObjectBlueprintSuffix);
			Host::FAssetLoaders::Remove(WidgetBlueprintSuffix);
			Host::FLuaMachine::Stop();
		}
	};
}

IMPLEMENT_MODULE(FBlueprintModule, Blueprint)
