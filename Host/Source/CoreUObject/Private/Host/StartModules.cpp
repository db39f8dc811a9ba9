#include "Host/StartModules.h"

#include "Host/LinkedModules.h"
#include "Modules/ModuleManager.h"
#include "UObject/UObjectGlobals.h"

namespace Host
{
	void StartLinkedModules()
	{
		static bool bRegistered = false;
		int Count = 0;
		const FLinkedModule* Modules = GetLinkedModules(Count);
		for (int Index = 0; Index < Count; ++Index)
		{
			if (Modules[Index].RegisterReflection && !bRegistered)
			{
				Modules[Index].RegisterReflection();
				// The default objects of a module look up assets, so what loads those must have started: module by module.
				ProcessNewlyLoadedUObjects();
			}
			FModuleManager::Get().LoadModule(FName(UTF8_TO_TCHAR(Modules[Index].Name)));
		}
		bRegistered = true;
	}
}
