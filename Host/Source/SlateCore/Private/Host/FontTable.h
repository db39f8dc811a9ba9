#pragma once

#include "CoreMinimal.h"
#include "Host/ResolvedFont.h"

namespace Host
{
	/** The sized fonts in use, and what those of one typeface share. */
	class FFontTable
	{
	public:
		explicit FFontTable(FFontFaces& InFaces) : Faces(InFaces) {}

		/** @param Font	what the request's revision stands for; null for 0 */
		TSharedRef<const FResolvedFont> FindOrMake(const FFontRequest& Request, const FCompositeFont* Font);

		void Empty();

	private:
		struct FFamilyKey
		{
			int32 Revision;
			FName Typeface;
			EFontFallback Fallback;

			bool operator==(const FFamilyKey& Other) const = default;
			friend uint32 GetTypeHash(const FFamilyKey& Key) { return HashCombine(::GetTypeHash(Key.Revision), GetTypeHash(Key.Typeface)); }
		};

		void DropUnused();

		FFontFaces& Faces;
		TMap<FFontRequest, TSharedPtr<const FResolvedFont>> Fonts;
		TMap<FFamilyKey, TSharedPtr<const FCompositeFaces>> Families;
		/** The number of fonts at which unused ones are looked for again. */
		int32 CleanUpAt = 64;
		/** The one asked for last: widgets of a kind ask one after the other. */
		TSharedPtr<const FResolvedFont> Latest;
	};
}
