#pragma once

#include "CoreMinimal.h"
#include "Host/FlatIndex.h"
#include "Host/ShapedRun.h"

namespace Host
{
	/**
	 * Shaped runs by font and text, up to a number of bytes. Which to drop is decided by the clock rule: a hand goes
	 * round the entries and takes the first that was not found since it last came by. It keeps what is in use almost as
	 * well as strict order of use would, while a hit writes no more than one flag.
	 */
	class FRunCache
	{
	public:
		/** Null when the run is not there. The hash is wanted by Add. */
		const FShapedRunPtr* Find(uint32 FontId, FStringView Text, uint32& OutHash);
		void Add(uint32 Hash, const FShapedRunRef& Run);

		void SetLimit(SIZE_T Bytes);
		void Empty();

		int32 Num() const { return Index.Num(); }
		/** Bytes of the runs. */
		SIZE_T GetSize() const { return Size; }

	private:
		/**
		 * What a run is found by. The beginning of the text stands here, so that most look-ups read no run at all: with
		 * many runs these lie far apart in memory.
		 */
		struct FEntry
		{
			static constexpr int32 PrefixLength = 16;

			FShapedRunPtr Run;
			uint32 Hash = 0;
			uint32 FontId = 0;
			int32 TextLength = 0;
			bool bUsed = false;
			TCHAR Prefix[PrefixLength] = {};

			bool Matches(uint32 InFontId, FStringView Text) const;
		};
		static_assert(sizeof(FEntry) == 64);

		static uint32 HashText(uint32 FontId, FStringView Text);
		void MakeRoom();
		void Drop(int32 EntryIndex);

		TArray<FEntry> Entries;
		TArray<int32> FreeEntries;
		FFlatIndex Index;
		SIZE_T Size = 0;
		SIZE_T Limit = SIZE_T(32) << 20;
		int32 Hand = 0;
	};
}
