#include "Misc/ConfigBranch.h"

#include "Host/ConfigFiles.h"

namespace
{
	/** Cases count in values: a path and its capitalised twin may be two files. */
	bool HasValue(const TArray<FString>& Values, const FString& Value)
	{
		return Values.ContainsByPredicate([&](const FString& Candidate) { return Candidate.Equals(Value, ESearchCase::CaseSensitive); });
	}
}

Host::FConfigBranch::FConfigBranch(const FString& Name)
	: UserFile(FConfigFiles::GetUserFile(Name))
{
	for (const FString& Filename : FConfigFiles::GetLayers(Name))
	{
		if (!Filename.Equals(UserFile, ESearchCase::CaseSensitive))
		{
			DefaultLayers.AddDefaulted_GetRef().Load(Filename);
		}
	}
	UserLayer.Load(UserFile);
	Merge();
}

void Host::FConfigBranch::Merge()
{
	Sections.Empty();
	for (const FIniFile& Layer : DefaultLayers)
	{
		ApplyLayer(Layer);
	}
	ApplyLayer(UserLayer);
}

void Host::FConfigBranch::ApplyLayer(const FIniFile& Layer)
{
	// The first plain line of a key drops what lower layers say; the next ones in the same file add to it.
	TSet<FString> Begun;
	for (const FIniLine& Entry : Layer.GetLines())
	{
		if (Entry.Kind != EIniLine::Entry)
		{
			continue;
		}
		TArray<FString>& Values = Sections.FindOrAdd(Entry.Section).FindOrAdd(Entry.Key);
		switch (Entry.Operation)
		{
		case TEXT('+'):
			if (!HasValue(Values, Entry.Value))
			{
				Values.Add(Entry.Value);
			}
			break;
		case TEXT('.'):
			Values.Add(Entry.Value);
			break;
		case TEXT('-'):
			Values.RemoveAll([&](const FString& Candidate) { return Candidate.Equals(Entry.Value, ESearchCase::CaseSensitive); });
			break;
		case TEXT('!'):
			Values.Empty();
			break;
		default:
		{
			bool bBegun = false;
			Begun.Add(Entry.Section + TEXT("\n") + Entry.Key, &bBegun);
			if (!bBegun)
			{
				Values.Empty();
			}
			Values.Add(Entry.Value);
			break;
		}
		}
	}
}

const TArray<FString>* Host::FConfigBranch::FindValues(const FString& Section, const FString& Key) const
{
	const FConfigValues* const Values = Sections.Find(Section);
	const TArray<FString>* const Found = Values != nullptr ? Values->Find(Key) : nullptr;
	return Found != nullptr && !Found->IsEmpty() ? Found : nullptr;
}

void Host::FConfigBranch::SetValues(const FString& Section, const FString& Key, const TArray<FString>& Values)
{
	UserLayer.SetValues(Section, Key, Values);
	Sections.FindOrAdd(Section).FindOrAdd(Key) = Values;
	bChanged = true;
}

bool Host::FConfigBranch::RemoveKey(const FString& Section, const FString& Key)
{
	if (!UserLayer.RemoveKey(Section, Key))
	{
		return false;
	}
	bChanged = true;
	Merge();
	return true;
}

bool Host::FConfigBranch::RemoveSection(const FString& Section)
{
	if (!UserLayer.RemoveSection(Section))
	{
		return false;
	}
	bChanged = true;
	Merge();
	return true;
}

bool Host::FConfigBranch::IsFirstReport(const FString& What)
{
	bool bKnown = false;
	Reports.Add(What, &bKnown);
	return !bKnown;
}

bool Host::FConfigBranch::Save()
{
	if (bChanged && !UserLayer.Save(UserFile))
	{
		return false;
	}
	bChanged = false;
	return true;
}
