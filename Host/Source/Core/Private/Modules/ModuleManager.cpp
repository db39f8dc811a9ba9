#include "Modules/ModuleManager.h"

#include "Containers/StringConv.h"
#include "Host/LinkedModules.h"
#include "Logging/LogMacros.h"

namespace
{
	const Host::FLinkedModule* FindLinkedModule(const TCHAR* Name)
	{
		int Count = 0;
		const Host::FLinkedModule* const Modules = Host::GetLinkedModules(Count);
		for (int32 Index = 0; Index < Count; ++Index)
		{
			if (FCString::Stricmp(UTF8_TO_TCHAR(Modules[Index].Name), Name) == 0)
			{
				return &Modules[Index];
			}
		}
		return nullptr;
	}
}

FModuleManager::FModuleManager() = default;

FModuleManager& FModuleManager::Get()
{
	// Never destroyed: modules stop by UnloadModulesAtShutdown, not while globals go.
	static FModuleManager& Manager = *new FModuleManager;
	return Manager;
}

IModuleInterface* FModuleManager::LoadModule(const FName ModuleName)
{
	EModuleLoadResult Result = EModuleLoadResult::Success;
	IModuleInterface* const Module = LoadModuleWithFailureReason(ModuleName, Result);
	UE_CLOG(Module == nullptr, LogCore, Warning, TEXT("The module '%s' is not part of this program"), *ModuleName.ToString());
	return Module;
}

IModuleInterface* FModuleManager::LoadModuleWithFailureReason(const FName ModuleName, EModuleLoadResult& OutFailureReason)
{
	OutFailureReason = EModuleLoadResult::Success;
	if (IModuleInterface* const Loaded = GetModule(ModuleName))
	{
		return Loaded;
	}
	const Host::FLinkedModule* const Linked = FindLinkedModule(*ModuleName.ToString());
	if (Linked == nullptr)
	{
		OutFailureReason = EModuleLoadResult::FileNotFound;
		return nullptr;
	}
	IModuleInterface* const Module = Linked->Create != nullptr ? Linked->Create() : new FDefaultModuleImpl();
	// It counts as loaded while it starts, so that modules may load each other.
	FLoadedModule& Loaded = LoadedModules.AddDefaulted_GetRef();
	Loaded.Name = ModuleName;
	Loaded.Module.reset(Module);
	Module->StartupModule();
	ModulesChanged.Broadcast(ModuleName, EModuleChangeReason::ModuleLoaded);
	return Module;
}

IModuleInterface& FModuleManager::LoadModuleChecked(const FName ModuleName)
{
	EModuleLoadResult Result = EModuleLoadResult::Success;
	IModuleInterface* const Module = LoadModuleWithFailureReason(ModuleName, Result);
	checkf(Module != nullptr, TEXT("The module '%s' is not part of this program"), *ModuleName.ToString());
	return *Module;
}

IModuleInterface* FModuleManager::GetModule(const FName ModuleName)
{
	FLoadedModule* const Loaded = LoadedModules.FindByPredicate([&](const FLoadedModule& Module) { return Module.Name == ModuleName; });
	return Loaded != nullptr ? Loaded->Module.get() : nullptr;
}

bool FModuleManager::IsModuleLoaded(const FName ModuleName) const
{
	return LoadedModules.ContainsByPredicate([&](const FLoadedModule& Module) { return Module.Name == ModuleName; });
}

bool FModuleManager::ModuleExists(const TCHAR* ModuleName) const
{
	return FindLinkedModule(ModuleName) != nullptr;
}

void FModuleManager::UnloadModulesAtShutdown()
{
	for (int32 Index = LoadedModules.Num() - 1; Index >= 0; --Index)
	{
		LoadedModules[Index].Module->PreUnloadCallback();
	}
	// A module may load another one while it stops; that one stops next.
	while (!LoadedModules.IsEmpty())
	{
		FLoadedModule Module = LoadedModules.Pop();
		Module.Module->ShutdownModule();
		ModulesChanged.Broadcast(Module.Name, EModuleChangeReason::ModuleUnloaded);
	}
}
