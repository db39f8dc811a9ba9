#include "Host/BlueprintReload.h"

#include "Blueprint/WidgetBlueprintGeneratedClass.h"
#include "Lua/LuaMachine.h"
#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UObjectIterator.h"

namespace Host
{
	namespace
	{
		/** Puts the object aside, where nothing that is loaded goes. */
		void Retire(UObject& Object)
		{
			Object.ClearFlags(RF_Public | RF_Standalone);
			const FName Name = MakeUniqueObjectName(GetTransientPackage(), Object.GetClass(), Object.GetFName());
			Object.Rename(*Name.ToString(), GetTransientPackage(), REN_DontCreateRedirectors);
		}
	}

	void ForgetWidgetBlueprints()
	{
		TArray<UWidgetBlueprintGeneratedClass*> Classes;
		for (TObjectIterator<UWidgetBlueprintGeneratedClass> It; It; ++It)
		{
			if (!It->IsTemplate() && It->GetOutermost() != GetTransientPackage())
			{
				Classes.Add(*It);
			}
		}
		for (UWidgetBlueprintGeneratedClass* Class : Classes)
		{
			Retire(*Class->GetDefaultObject());
			Retire(*Class);
		}
		if (FLuaMachine* Machine = FLuaMachine::GetIfRunning())
		{
			Machine->ForgetImports();
		}
	}
}
