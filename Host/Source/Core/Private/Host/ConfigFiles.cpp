#include "Host/ConfigFiles.h"

#include "Host/Files.h"
#include "Logging/LogMacros.h"
#include "Misc/ConfigCacheIni.h"
#include "Misc/IniFile.h"
#include "Misc/Paths.h"

namespace
{
	TArray<FString>& GetPluginFolders()
	{
		static TArray<FString> Folders;
		return Folders;
	}

	FString GetDefaultFile(const FString& Folder, const FString& Name)
	{
		return Folder / (TEXT("Default") + Name + TEXT(".ini"));
	}
}

void Host::FConfigFiles::AddPluginFolder(const FString& ConfigFolder)
{
	RemovePluginFolder(ConfigFolder);
	GetPluginFolders().Add(FPaths::ConvertRelativePathToFull(ConfigFolder));
}

void Host::FConfigFiles::RemovePluginFolder(const FString& ConfigFolder)
{
	GetPluginFolders().RemoveAll([&](const FString& Folder) { return FPaths::IsSamePath(Folder, ConfigFolder); });
}

FString Host::FConfigFiles::GetUserFile(const FString& Name)
{
	return FPaths::GeneratedConfigDir() + Name + TEXT(".ini");
}

FString Host::FConfigFiles::GetProjectFile(const FString& Name)
{
	return GetDefaultFile(FPaths::ProjectConfigDir(), Name);
}

TArray<FString> Host::FConfigFiles::GetLayers(const FString& Name)
{
	TArray<FString> Layers;
	for (const FString& Folder : GetPluginFolders())
	{
		Layers.Add(GetDefaultFile(Folder, Name));
	}
	Layers.AddUnique(GetProjectFile(Name));
	Layers.Add(GetUserFile(Name));
	return Layers;
}

void Host::FConfigFiles::SetAside(const FString& Name)
{
	GConfig->Flush(true, Name);
	const FString Filename = GetUserFile(Name);
	FString Kept;
	FString Reason;
	if (!FFiles::IsAbsent(Filename) && !FFiles::SetAside(Filename, TEXT(".old"), Kept, Reason))
	{
		UE_LOG(LogCore, Warning, TEXT("%s: the file cannot be set aside: %s"), *Filename, *Reason);
	}
}

bool Host::FConfigFiles::SaveProjectDefault(const FString& Name, const FString& Section, const FString& Key, const TArray<FString>& Values)
{
	FIniFile File;
	File.Load(GetProjectFile(Name));
	File.SetValues(Section, Key, Values);
	return File.Save(GetProjectFile(Name));
}
