#pragma once

#include "CoreMinimal.h"
#include "Gl/GlObjects.h"
#include "Host/PixelRect.h"

namespace Host
{
	class FGlyphAtlas;
	class FTexture;

	/** The pictures and the glyph atlas as OpenGL has them, kept up to date with the originals. */
	class FGlTextures
	{
	public:
		/** The picture's texture, ready to be sampled at the level. Leaves it bound to the active unit. */
		GLuint Find(const TSharedPtr<const FTexture>& Texture, int32 Level, int64& OutUploadedBytes);

		/**
		 * Takes over a part of a picture that is being filled in by whole rows from the top, and what it brings to the smaller
		 * levels. A picture that is filled otherwise is left to Find.
		 */
		void UploadFilled(const TSharedRef<const FTexture>& Texture, const FPixelRect& Area, int64& OutUploadedBytes);

		/** The atlas, with all that it holds by now. Leaves it bound to the active unit. */
		GLuint UpdateAtlas(const FGlyphAtlas& Atlas, int64& OutUploadedBytes);

		/** Frees textures whose originals are gone. */
		void ReleaseUnused();
		void ReleaseAll();

		int32 Num() const { return Entries.Num(); }

	private:
		struct FEntry
		{
			TWeakPtr<const FTexture> Original;
			FGlObject Object;
			uint32 Generation = 0;
			bool bHasLevels = false;
			/** Of a picture that is being filled in: the rows of each level that are here, and the generation they belong to. */
			TArray<int32> FilledRows;
			uint32 FilledGeneration = UnfilledGeneration;

			/** That of a picture in which nothing is filled in yet. */
			static constexpr uint32 UnfilledGeneration = 1;
		};

		/** Leaves its object bound. */
		FEntry& FindEntry(const TSharedRef<const FTexture>& Texture);

		void Upload(const FTexture& Texture, FEntry& Entry, bool bAllLevels, int64& OutUploadedBytes);

		TMap<uint64, FEntry> Entries;
		FGlObject AtlasObject;
		int32 AtlasHeight = 0;
		uint64 AtlasRevision = 0;
	};
}
