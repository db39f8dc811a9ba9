#pragma once

#include "CoreMinimal.h"
#include "Gl/GlObjects.h"

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
		};

		void Upload(const FTexture& Texture, FEntry& Entry, bool bAllLevels, int64& OutUploadedBytes);

		TMap<uint64, FEntry> Entries;
		FGlObject AtlasObject;
		int32 AtlasHeight = 0;
		uint64 AtlasRevision = 0;
	};
}
