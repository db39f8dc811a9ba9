#pragma once

#include "Containers/Array.h"
#include "Containers/UnrealString.h"

namespace Host
{
	class FConfigFiles;
}

/**
 * Configuration by name, section and key. A name such as "Game" stands for layers of files, each changing what the
 * ones before it said:
 *
 *   Default<Name>.ini of each plugin, Default<Name>.ini of the project, <Name>.ini of the user
 *
 * Lines: Key=Value sets a value, and several such lines in one file make an array; +Key=Value adds a value unless it is
 * there; .Key=Value adds it in any case; -Key=Value takes it away; !Key=ClearArray takes all away. A value in quotes has
 * the escapes \n \r \t \" \\ \uXXXX. Sections and keys compare without regard to case. A line that is none of these is
 * reported and left out; a file that is no text, or too large, is reported and left out as a whole.
 *
 * Setters change the user's layer alone, in memory; Flush writes it.
 * The file parameter takes a name, or a path of which only the base name counts.
 */
class FConfigCacheIni
{
public:
	constexpr FConfigCacheIni() = default;
	CORE_API ~FConfigCacheIni();
	FConfigCacheIni(const FConfigCacheIni&) = delete;
	FConfigCacheIni& operator=(const FConfigCacheIni&) = delete;

	/** Each leaves the output alone and returns false when there is no such key, or, for numbers, when its value is none. The last value of an array counts. */
	CORE_API bool GetString(const TCHAR* Section, const TCHAR* Key, FString& Value, const FString& Filename);
	CORE_API bool GetInt(const TCHAR* Section, const TCHAR* Key, int32& Value, const FString& Filename);
	CORE_API bool GetInt64(const TCHAR* Section, const TCHAR* Key, int64& Value, const FString& Filename);
	CORE_API bool GetFloat(const TCHAR* Section, const TCHAR* Key, float& Value, const FString& Filename);
	CORE_API bool GetDouble(const TCHAR* Section, const TCHAR* Key, double& Value, const FString& Filename);
	/** True for "True", "Yes", "On" and numbers other than 0, in any case. */
	CORE_API bool GetBool(const TCHAR* Section, const TCHAR* Key, bool& Value, const FString& Filename);
	/** Empties the output and fills it with all values. Returns their number. */
	CORE_API int32 GetArray(const TCHAR* Section, const TCHAR* Key, TArray<FString>& OutArray, const FString& Filename);
	/** "Key=Value" of each value of the section. Returns false, with an empty result, when there is no such section. */
	CORE_API bool GetSection(const TCHAR* Section, TArray<FString>& Result, const FString& Filename);
	CORE_API bool GetSectionNames(const FString& Filename, TArray<FString>& OutSectionNames);
	CORE_API bool DoesSectionExist(const TCHAR* Section, const FString& Filename);

	CORE_API void SetString(const TCHAR* Section, const TCHAR* Key, const TCHAR* Value, const FString& Filename);
	CORE_API void SetInt(const TCHAR* Section, const TCHAR* Key, int32 Value, const FString& Filename);
	CORE_API void SetFloat(const TCHAR* Section, const TCHAR* Key, float Value, const FString& Filename);
	CORE_API void SetDouble(const TCHAR* Section, const TCHAR* Key, double Value, const FString& Filename);
	CORE_API void SetBool(const TCHAR* Section, const TCHAR* Key, bool Value, const FString& Filename);
	CORE_API void SetArray(const TCHAR* Section, const TCHAR* Key, const TArray<FString>& Value, const FString& Filename);

	/** Takes the key out of the user's layer, so that the defaults show again. Returns true when it was there. */
	CORE_API bool RemoveKey(const TCHAR* Section, const TCHAR* Key, const FString& Filename);
	/** Takes the section out of the user's layer. Returns true when it was there. */
	CORE_API bool EmptySection(const TCHAR* Section, const FString& Filename);

	/**
	 * Writes the user's layer where it has changed, each file whole or not at all; a failure is one log line, and the values
	 * stay in memory for the next time.
	 * @param bRemoveFromCache whether to forget what was read, so that it is read anew on the next question
	 * @param Filename which one; empty for all
	 */
	CORE_API void Flush(bool bRemoveFromCache, const FString& Filename = FString());

private:
	friend class Host::FConfigFiles;

	struct FContent;
	FContent& GetContent();

	// A plain pointer, so that the cache is there before any code runs.
	FContent* Content = nullptr;
};

/** The configuration of the program; never null. */
extern CORE_API FConfigCacheIni* GConfig;

/** Names of the engine's own configurations. */
extern CORE_API FString GEngineIni;
extern CORE_API FString GGameIni;
extern CORE_API FString GInputIni;
extern CORE_API FString GGameUserSettingsIni;
