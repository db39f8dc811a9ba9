#include "HAL/PlatformMisc.h"
#include "HAL/PlatformProcess.h"
#include "Host/PathRoots.h"
#include "Host/StoredValueFile.h"
#include "Host/StoredValues.h"
#include "Misc/AssertionMacros.h"
#include "Misc/Paths.h"

using Host::ESecretAnswer;
using Host::FStoredValueFile;
using Host::FStoredValueName;

namespace
{
	Host::ISecretStore* InstalledStore = nullptr;

	/** Null when values go to files alone. */
	Host::ISecretStore* GetSecretStore()
	{
		return Host::FPathRoots::IsSavedDirSet() ? nullptr : InstalledStore;
	}

	FStoredValueName MakeName(const FString& Store, const FString& Section, const FString& Key)
	{
		check(!Store.IsEmpty() && !Section.IsEmpty() && !Key.IsEmpty());
		return { Store, Section, Key };
	}
}

void Host::FStoredValues::SetSecretStore(ISecretStore* Store)
{
	InstalledStore = Store;
}

FString Host::FStoredValues::GetFolder()
{
	return FPathRoots::IsSavedDirSet() ? FPaths::ProjectSavedDir() + TEXT("StoredValues") : FPlatformProcess::ApplicationSettingsDir() + TEXT("HalvexStoredValues");
}

// The file counts more than the store of secrets: it holds what could not go there, which is newer than what is there. So
// what reaches the store is taken out of the file, and what cannot be taken out of the store is marked in the file as gone.

bool FPlatformMisc::SetStoredValue(const FString& InStoreId, const FString& InSectionName, const FString& InKeyName, const FString& InValue)
{
	const FStoredValueName Name = MakeName(InStoreId, InSectionName, InKeyName);
	FStoredValueFile File(Host::FStoredValues::GetFolder(), Name);
	Host::ISecretStore* const Secrets = GetSecretStore();
	if (Secrets && Secrets->Set(Name, InValue) == ESecretAnswer::Done)
	{
		return File.Find() == FStoredValueFile::EEntry::None || File.Remove();
	}
	return File.SetValue(InValue);
}

bool FPlatformMisc::GetStoredValue(const FString& InStoreId, const FString& InSectionName, const FString& InKeyName, FString& OutValue)
{
	const FStoredValueName Name = MakeName(InStoreId, InSectionName, InKeyName);
	FStoredValueFile File(Host::FStoredValues::GetFolder(), Name);
	const FStoredValueFile::EEntry Entry = File.Find();
	if (Entry == FStoredValueFile::EEntry::Value)
	{
		OutValue = File.GetValue();
		return true;
	}
	Host::ISecretStore* const Secrets = GetSecretStore();
	return Entry == FStoredValueFile::EEntry::None && Secrets && Secrets->Get(Name, OutValue) == ESecretAnswer::Done;
}

bool FPlatformMisc::DeleteStoredValue(const FString& InStoreId, const FString& InSectionName, const FString& InKeyName)
{
	const FStoredValueName Name = MakeName(InStoreId, InSectionName, InKeyName);
	FStoredValueFile File(Host::FStoredValues::GetFolder(), Name);
	const FStoredValueFile::EEntry Entry = File.Find();
	Host::ISecretStore* const Secrets = GetSecretStore();
	const ESecretAnswer Answer = Secrets ? Secrets->Delete(Name) : ESecretAnswer::Absent;
	if (Answer == ESecretAnswer::Unavailable)
	{
		return Entry != FStoredValueFile::EEntry::Gone && File.MarkGone();
	}
	const bool bRemoved = Entry == FStoredValueFile::EEntry::None || File.Remove();
	return bRemoved && (Entry == FStoredValueFile::EEntry::Value || (Entry == FStoredValueFile::EEntry::None && Answer == ESecretAnswer::Done));
}
