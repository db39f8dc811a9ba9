#include "Host/Reflection/MetaData.h"

namespace Host
{
	const FString* FMetaDataMap::Find(const FName& Key)
	{
		Expand();
		const FEntry* Entry = FindEntry(Key);
		return Entry ? Entry->Value.Get() : nullptr;
	}

	const FString* FMetaDataMap::Find(const TCHAR* Key)
	{
		return Find(FName(Key));
	}

	bool FMetaDataMap::Contains(const TCHAR* Key) const
	{
		return Contains(FName(Key));
	}

	bool FMetaDataMap::Contains(const FName& Key) const
	{
		return const_cast<FMetaDataMap*>(this)->Find(Key) != nullptr;
	}

	void FMetaDataMap::Set(const FName& Key, const TCHAR* Value)
	{
		Expand();
		FEntry* Entry = FindEntry(Key);
		if (!Entry)
		{
			Entry = &Entries.AddDefaulted_GetRef();
			Entry->Key = Key;
		}
		Entry->Value = MakeUnique<FString>(Value);
	}

	void FMetaDataMap::Remove(const FName& Key)
	{
		Expand();
		Entries.RemoveAll([&Key](const FEntry& Entry) { return Entry.Key == Key; });
	}

	TArray<TPair<FName, FString>> FMetaDataMap::GetAll()
	{
		Expand();
		TArray<TPair<FName, FString>> All;
		for (const FEntry& Entry : Entries)
		{
			All.Emplace(Entry.Key, *Entry.Value);
		}
		return All;
	}

	void FMetaDataMap::Expand()
	{
		const FMetaDataSpan Pending = Compiled;
		Compiled = FMetaDataSpan();
		Entries.Reserve(Entries.Num() + Pending.Num);
		for (int32 Index = 0; Index < Pending.Num; ++Index)
		{
			FEntry& Entry = Entries.AddDefaulted_GetRef();
			Entry.Key = FName(Pending.Pairs[Index].Key);
			Entry.Value = MakeUnique<FString>(Pending.Pairs[Index].Value);
		}
	}

	FMetaDataMap::FEntry* FMetaDataMap::FindEntry(const FName& Key)
	{
		return Entries.FindByPredicate([&Key](const FEntry& Entry) { return Entry.Key == Key; });
	}
} // namespace Host
