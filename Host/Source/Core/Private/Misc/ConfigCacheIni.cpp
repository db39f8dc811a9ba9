#include "Misc/ConfigCacheIni.h"

#include "Containers/Map.h"
#include "Host/ConfigFiles.h"
#include "Logging/LogMacros.h"
#include "Math/UnrealMathUtility.h"
#include "Misc/ConfigBranch.h"
#include "Misc/Paths.h"

#include <memory>

namespace
{
	// Made before any code runs: globals of other modules may ask.
	constinit FConfigCacheIni ConfigCache;

	/** A section or key that would read back as something else. */
	bool IsFitName(const FString& Name, const TCHAR* ForbiddenAnywhere, const TCHAR* ForbiddenFirst)
	{
		if (Name.IsEmpty() || !Name.TrimStartAndEnd().Equals(Name) || FCString::Strchr(ForbiddenFirst, Name[0]) != nullptr)
		{
			return false;
		}
		for (const TCHAR Unit : Name)
		{
			if (Unit < 0x20 || FCString::Strchr(ForbiddenAnywhere, Unit) != nullptr)
			{
				return false;
			}
		}
		return true;
	}
}

FConfigCacheIni* GConfig = &ConfigCache;

FString GEngineIni = TEXT("Engine");
FString GGameIni = TEXT("Game");
FString GInputIni = TEXT("Input");
FString GGameUserSettingsIni = TEXT("GameUserSettings");

struct FConfigCacheIni::FContent
{
	TMap<FString, std::unique_ptr<Host::FConfigBranch>> Branches;

	/** Reads the configuration on the first question about it. */
	Host::FConfigBranch& GetBranch(const FString& Filename)
	{
		const FString Name = FPaths::GetBaseFilename(Filename);
		std::unique_ptr<Host::FConfigBranch>& Branch = Branches.FindOrAdd(Name);
		if (Branch == nullptr)
		{
			Branch = std::make_unique<Host::FConfigBranch>(Name);
		}
		return *Branch;
	}
};

bool Host::FConfigFiles::IsFirstReport(const FString& Name, const FString& Section, const FString& Key, const FString& Value)
{
	return GConfig->GetContent().GetBranch(Name).IsFirstReport(Section + TEXT("\n") + Key + TEXT("\n") + Value);
}

FConfigCacheIni::~FConfigCacheIni()
{
	delete Content;
}

FConfigCacheIni::FContent& FConfigCacheIni::GetContent()
{
	if (Content == nullptr)
	{
		Content = new FContent;
	}
	return *Content;
}

bool FConfigCacheIni::GetString(const TCHAR* Section, const TCHAR* Key, FString& Value, const FString& Filename)
{
	const TArray<FString>* const Values = GetContent().GetBranch(Filename).FindValues(Section, Key);
	if (Values == nullptr)
	{
		return false;
	}
	Value = Values->Last();
	return true;
}

bool FConfigCacheIni::GetDouble(const TCHAR* Section, const TCHAR* Key, double& Value, const FString& Filename)
{
	FString Text;
	if (!GetString(Section, Key, Text, Filename))
	{
		return false;
	}
	if (!Text.IsNumeric())
	{
		UE_CLOG(Host::FConfigFiles::IsFirstReport(Filename, Section, Key, Text), LogCore, Warning, TEXT("%s: [%s] %s: expected a number, found '%s'"), *FPaths::GetBaseFilename(Filename), Section, Key, *Text.Left(100));
		return false;
	}
	Value = FCString::Atod(*Text);
	return true;
}

bool FConfigCacheIni::GetFloat(const TCHAR* Section, const TCHAR* Key, float& Value, const FString& Filename)
{
	double Wide = 0.0;
	if (!GetDouble(Section, Key, Wide, Filename))
	{
		return false;
	}
	Value = float(Wide);
	return true;
}

bool FConfigCacheIni::GetInt64(const TCHAR* Section, const TCHAR* Key, int64& Value, const FString& Filename)
{
	double Checked = 0.0;
	FString Text;
	if (!GetDouble(Section, Key, Checked, Filename) || !GetString(Section, Key, Text, Filename))
	{
		return false;
	}
	// Not by way of the double, which has no room for all digits.
	Value = FCString::Atoi64(*Text);
	return true;
}

bool FConfigCacheIni::GetInt(const TCHAR* Section, const TCHAR* Key, int32& Value, const FString& Filename)
{
	int64 Wide = 0;
	if (!GetInt64(Section, Key, Wide, Filename))
	{
		return false;
	}
	Value = int32(FMath::Clamp<int64>(Wide, MIN_int32, MAX_int32));
	return true;
}

bool FConfigCacheIni::GetBool(const TCHAR* Section, const TCHAR* Key, bool& Value, const FString& Filename)
{
	FString Text;
	if (!GetString(Section, Key, Text, Filename))
	{
		return false;
	}
	Value = Text.ToBool();
	return true;
}

int32 FConfigCacheIni::GetArray(const TCHAR* Section, const TCHAR* Key, TArray<FString>& OutArray, const FString& Filename)
{
	const TArray<FString>* const Values = GetContent().GetBranch(Filename).FindValues(Section, Key);
	OutArray = Values != nullptr ? *Values : TArray<FString>();
	return OutArray.Num();
}

bool FConfigCacheIni::GetSection(const TCHAR* Section, TArray<FString>& Result, const FString& Filename)
{
	Result.Reset();
	const Host::FConfigValues* const Found = GetContent().GetBranch(Filename).FindSection(Section);
	if (Found == nullptr)
	{
		return false;
	}
	for (const auto& [Key, Values] : *Found)
	{
		for (const FString& Value : Values)
		{
			Result.Add(Key + TEXT("=") + Value);
		}
	}
	return true;
}

bool FConfigCacheIni::GetSectionNames(const FString& Filename, TArray<FString>& OutSectionNames)
{
	GetContent().GetBranch(Filename).GetSectionNames(OutSectionNames);
	return !OutSectionNames.IsEmpty();
}

bool FConfigCacheIni::DoesSectionExist(const TCHAR* Section, const FString& Filename)
{
	return GetContent().GetBranch(Filename).FindSection(Section) != nullptr;
}

void FConfigCacheIni::SetArray(const TCHAR* Section, const TCHAR* Key, const TArray<FString>& Value, const FString& Filename)
{
	if (!IsFitName(Section, TEXT("]"), TEXT("")) || !IsFitName(Key, TEXT("="), TEXT("[;#+-.!")))
	{
		UE_LOG(LogCore, Warning, TEXT("%s: [%s] %s cannot be set: no configuration file can hold such a name"), *FPaths::GetBaseFilename(Filename), Section, Key);
		return;
	}
	GetContent().GetBranch(Filename).SetValues(Section, Key, Value);
}

void FConfigCacheIni::SetString(const TCHAR* Section, const TCHAR* Key, const TCHAR* Value, const FString& Filename)
{
	SetArray(Section, Key, {FString(Value)}, Filename);
}

void FConfigCacheIni::SetInt(const TCHAR* Section, const TCHAR* Key, int32 Value, const FString& Filename)
{
	SetString(Section, Key, *FString::FromInt(Value), Filename);
}

void FConfigCacheIni::SetFloat(const TCHAR* Section, const TCHAR* Key, float Value, const FString& Filename)
{
	// Nine digits bring every float back.
	SetString(Section, Key, *FString::Printf(TEXT("%.9g"), double(Value)), Filename);
}

void FConfigCacheIni::SetDouble(const TCHAR* Section, const TCHAR* Key, double Value, const FString& Filename)
{
	SetString(Section, Key, *FString::Printf(TEXT("%.17g"), Value), Filename);
}

void FConfigCacheIni::SetBool(const TCHAR* Section, const TCHAR* Key, bool Value, const FString& Filename)
{
	SetString(Section, Key, Value ? TEXT("True") : TEXT("False"), Filename);
}

bool FConfigCacheIni::RemoveKey(const TCHAR* Section, const TCHAR* Key, const FString& Filename)
{
	return GetContent().GetBranch(Filename).RemoveKey(Section, Key);
}

bool FConfigCacheIni::EmptySection(const TCHAR* Section, const FString& Filename)
{
	return GetContent().GetBranch(Filename).RemoveSection(Section);
}

void FConfigCacheIni::Flush(bool bRemoveFromCache, const FString& Filename)
{
	const FString Chosen = FPaths::GetBaseFilename(Filename);
	for (auto It = GetContent().Branches.CreateIterator(); It; ++It)
	{
		// What could not be written stays, or it would be lost.
		if ((Chosen.IsEmpty() || It.Key() == Chosen) && It.Value()->Save() && bRemoveFromCache)
		{
			It.RemoveCurrent();
		}
	}
}
