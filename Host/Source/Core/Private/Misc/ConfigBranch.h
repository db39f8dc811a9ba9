#pragma once

#include "Containers/Array.h"
#include "Containers/Map.h"
#include "Containers/Set.h"
#include "Containers/UnrealString.h"
#include "Misc/IniFile.h"

namespace Host
{
	/** Values by key, in the order in which the files name them. */
	using FConfigValues = TMap<FString, TArray<FString>>;

	/** One configuration: its layers of files laid over each other. */
	class FConfigBranch
	{
	public:
		explicit FConfigBranch(const FString& Name);

		/** The values of a key; null when no layer has any. */
		const TArray<FString>* FindValues(const FString& Section, const FString& Key) const;
		const FConfigValues* FindSection(const FString& Section) const { return Sections.Find(Section); }
		void GetSectionNames(TArray<FString>& OutNames) const { Sections.GenerateKeyArray(OutNames); }

		/** Changes the user's layer. */
		void SetValues(const FString& Section, const FString& Key, const TArray<FString>& Values);
		bool RemoveKey(const FString& Section, const FString& Key);
		bool RemoveSection(const FString& Section);

		/** Whether the text was not handed to this before. */
		bool IsFirstReport(const FString& What);

		/** Writes the user's layer when it has changed. Returns false when that failed. */
		bool Save();

	private:
		void ApplyLayer(const FIniFile& Layer);
		void Merge();

		/** Lowest first, without the user's. */
		TArray<FIniFile> DefaultLayers;
		FIniFile UserLayer;
		FString UserFile;
		bool bChanged = false;
		TSet<FString> Reports;

		/** What the layers make together. */
		TMap<FString, FConfigValues> Sections;
	};
}
