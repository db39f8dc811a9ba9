#pragma once

#include "Containers/Array.h"
#include "Delegates/Delegate.h"
#include "Misc/AssertionMacros.h"
#include "Modules/ModuleInterface.h"
#include "UObject/NameTypes.h"

#include <memory>

enum class EModuleChangeReason
{
	ModuleLoaded,
	ModuleUnloaded
};

enum class EModuleLoadResult
{
	Success,
	/** No module of that name is linked into the program. */
	FileNotFound
};

DECLARE_MULTICAST_DELEGATE_TwoParams(FModulesChangedEvent, FName, EModuleChangeReason);

/** Starts the modules that are linked into the program, and stops them. */
class FModuleManager
{
public:
	CORE_API static FModuleManager& Get();

	/** Starts the module unless it has been started, and returns it; null, with a warning, when there is none of that name. */
	CORE_API IModuleInterface* LoadModule(const FName ModuleName);
	/** As LoadModule, without the warning. */
	CORE_API IModuleInterface* LoadModuleWithFailureReason(const FName ModuleName, EModuleLoadResult& OutFailureReason);
	/** As LoadModule; a missing module is a failed assertion. */
	CORE_API IModuleInterface& LoadModuleChecked(const FName ModuleName);

	/** The module if it has been started, else null. */
	CORE_API IModuleInterface* GetModule(const FName ModuleName);
	CORE_API bool IsModuleLoaded(const FName ModuleName) const;
	/** True when the module is linked into the program, started or not. */
	CORE_API bool ModuleExists(const TCHAR* ModuleName) const;

	template <typename InterfaceType>
	static InterfaceType* LoadModulePtr(const FName ModuleName)
	{
		return static_cast<InterfaceType*>(Get().LoadModule(ModuleName));
	}

	template <typename InterfaceType>
	static InterfaceType& LoadModuleChecked(const FName ModuleName)
	{
		return static_cast<InterfaceType&>(Get().LoadModuleChecked(ModuleName));
	}

	template <typename InterfaceType>
	static InterfaceType* GetModulePtr(const FName ModuleName)
	{
		return static_cast<InterfaceType*>(Get().GetModule(ModuleName));
	}

	template <typename InterfaceType>
	static InterfaceType& GetModuleChecked(const FName ModuleName)
	{
		IModuleInterface* const Module = Get().GetModule(ModuleName);
		check(Module != nullptr);
		return static_cast<InterfaceType&>(*Module);
	}

	/** Stops the started modules, the last started first. They can be started again. */
	CORE_API void UnloadModulesAtShutdown();

	/** Raised after a module's start and after its stop. */
	FModulesChangedEvent& OnModulesChanged() { return ModulesChanged; }

private:
	struct FLoadedModule
	{
		FName Name;
		std::unique_ptr<IModuleInterface> Module;
	};

	/** In the order of loading. */
	TArray<FLoadedModule> LoadedModules;
	FModulesChangedEvent ModulesChanged;

	FModuleManager();
};

/** Stands exactly once in a module: names the class that starts and stops it. */
#define IMPLEMENT_MODULE(ModuleImplClass, ModuleName) \
	IModuleInterface* CreateModule_##ModuleName(); \
	IModuleInterface* CreateModule_##ModuleName() \
	{ \
		return new ModuleImplClass(); \
	}
#define IMPLEMENT_GAME_MODULE(ModuleImplClass, ModuleName) IMPLEMENT_MODULE(ModuleImplClass, ModuleName)
