#pragma once

#include "CoreMinimal.h"

namespace Host
{
	/** One metadata entry of the generated code. */
	struct FMetaDataPair
	{
		const TCHAR* Key;
		const TCHAR* Value;
	};

	/** The metadata entries of one field in the generated code. */
	struct FMetaDataSpan
	{
		const FMetaDataPair* Pairs = nullptr;
		int32 Num = 0;

		constexpr FMetaDataSpan() = default;
		template<int32 Count>
		constexpr FMetaDataSpan(const FMetaDataPair (&InPairs)[Count]) : Pairs(InPairs), Num(Count) {}
	};

	/**
	 * Metadata of one field. Thousands of fields are registered at start and few are ever asked: the compiled entries stay
	 * where the compiler put them until somebody asks for a value.
	 */
	class COREUOBJECT_API FMetaDataMap
	{
	public:
		void SetCompiled(FMetaDataSpan InCompiled) { Compiled = InCompiled; }

		/** The value, null when there is no such key. The pointer holds until the key is set or removed. */
		const FString* Find(const FName& Key);
		const FString* Find(const TCHAR* Key);
		bool Contains(const TCHAR* Key) const;
		bool Contains(const FName& Key) const;
		void Set(const FName& Key, const TCHAR* Value);
		void Remove(const FName& Key);
		/** All entries, in the order in which they were written. */
		TArray<TPair<FName, FString>> GetAll();

	private:
		struct FEntry
		{
			FName Key;
			/** On the heap, as callers keep pointers to it. */
			TUniquePtr<FString> Value;
		};

		void Expand();
		FEntry* FindEntry(const FName& Key);

		FMetaDataSpan Compiled;
		TArray<FEntry> Entries;
	};
}
