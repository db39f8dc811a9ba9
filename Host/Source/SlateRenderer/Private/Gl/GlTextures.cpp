#include "Gl/GlTextures.h"

#include "Host/GlyphAtlas.h"
#include "Host/Texture.h"

namespace Host
{
	namespace
	{
		void UploadLevel(int32 Level, FIntPoint Size, const uint32* Pixels, int64& OutUploadedBytes)
		{
			glTexImage2D(GL_TEXTURE_2D, Level, GL_RGBA8, Size.X, Size.Y, 0, GL_BGRA, GL_UNSIGNED_INT_8_8_8_8_REV, Pixels);
			OutUploadedBytes += static_cast<int64>(Size.X) * Size.Y * 4;
		}

		void UploadRows(const uint8* Texels, const FPixelRect& Area, int64& OutUploadedBytes)
		{
			const uint8* First = Texels + static_cast<int64>(Area.Top) * FGlyphAtlas::Width + Area.Left;
			glTexSubImage2D(GL_TEXTURE_2D, 0, Area.Left, Area.Top, Area.Width(), Area.Height(), GL_RED, GL_UNSIGNED_BYTE, First);
			OutUploadedBytes += Area.Area();
		}
	}

	FGlTextures::FEntry& FGlTextures::FindEntry(const TSharedRef<const FTexture>& Texture)
	{
		FEntry& Entry = Entries.FindOrAdd(Texture->GetId());
		if (!Entry.Object.IsValid())
		{
			Entry.Original = Texture;
			Entry.Object = FGlObject(EGlObjectKind::Texture, Texture->GetDebugName().IsEmpty() ? "Picture" : TCHAR_TO_UTF8(*Texture->GetDebugName()));
		}
		glBindTexture(GL_TEXTURE_2D, Entry.Object.Get());
		return Entry;
	}

	GLuint FGlTextures::Find(const TSharedPtr<const FTexture>& Texture, int32 Level, int64& OutUploadedBytes)
	{
		if (Texture->GetNativeHandle() != 0)
		{
			glBindTexture(GL_TEXTURE_2D, Texture->GetNativeHandle());
			return Texture->GetNativeHandle();
		}
		FEntry& Entry = FindEntry(Texture.ToSharedRef());
		const bool bNeedsLevels = Level > 0 && !Entry.bHasLevels;
		if (Entry.Generation != Texture->GetGeneration() || bNeedsLevels)
		{
			Upload(*Texture, Entry, Level > 0 || Entry.bHasLevels, OutUploadedBytes);
		}
		return Entry.Object.Get();
	}

	void FGlTextures::Upload(const FTexture& Texture, FEntry& Entry, bool bAllLevels, int64& OutUploadedBytes)
	{
		const int32 NumLevels = bAllLevels ? Texture.GetNumMips() : 1;
		glPixelStorei(GL_UNPACK_ROW_LENGTH, 0);
		for (int32 Level = 0; Level < NumLevels; ++Level)
		{
			FIntPoint Size;
			const uint32* Pixels = Texture.GetMip(Level, Size);
			UploadLevel(Level, Size, Pixels, OutUploadedBytes);
		}
		glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAX_LEVEL, NumLevels - 1);
		Entry.Generation = Texture.GetGeneration();
		Entry.bHasLevels = bAllLevels;
		Entry.FilledRows.Empty();
	}

	void FGlTextures::UploadFilled(const TSharedRef<const FTexture>& Texture, const FPixelRect& Area, int64& OutUploadedBytes)
	{
		const FIntPoint Size = Texture->GetSize();
		const int32 NumLevels = Texture->GetNumMips();
		FEntry& Entry = FindEntry(Texture);
		const bool bBegins = Entry.FilledGeneration == FEntry::UnfilledGeneration;
		const bool bFollows = bBegins ? Area.Top == 0 : !Entry.FilledRows.IsEmpty() && Area.Top == Entry.FilledRows[0];
		if (!bFollows || Area.Width() != Size.X || Texture->GetGeneration() != Entry.FilledGeneration + 1)
		{
			Entry.FilledRows.Empty();
			return;
		}
		if (bBegins)
		{
			Entry.FilledRows.SetNumZeroed(NumLevels);
			glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAX_LEVEL, NumLevels - 1);
		}
		Entry.FilledGeneration = Texture->GetGeneration();
		glPixelStorei(GL_UNPACK_ROW_LENGTH, 0);
		bool bComplete = true;
		for (int32 Level = 0; Level < NumLevels; ++Level)
		{
			const int32 Width = FMath::Max(Size.X >> Level, 1);
			const int32 Height = FMath::Max(Size.Y >> Level, 1);
			if (bBegins)
			{
				glTexImage2D(GL_TEXTURE_2D, Level, GL_RGBA8, Width, Height, 0, GL_BGRA, GL_UNSIGNED_INT_8_8_8_8_REV, nullptr);
			}
			int32 NumRows = 0;
			const uint32* Pixels = Texture->GetReadyRows(Level, NumRows);
			const int32 First = Entry.FilledRows[Level];
			if (NumRows > First)
			{
				glTexSubImage2D(GL_TEXTURE_2D, Level, 0, First, Width, NumRows - First, GL_BGRA, GL_UNSIGNED_INT_8_8_8_8_REV,
					Pixels + static_cast<int64>(First) * Width);
				OutUploadedBytes += static_cast<int64>(Width) * (NumRows - First) * 4;
				Entry.FilledRows[Level] = NumRows;
			}
			bComplete = bComplete && NumRows == Height;
		}
		if (bComplete)
		{
			Entry.Generation = Texture->GetGeneration();
			Entry.bHasLevels = true;
			Entry.FilledRows.Empty();
		}
	}

	GLuint FGlTextures::UpdateAtlas(const FGlyphAtlas& Atlas, int64& OutUploadedBytes)
	{
		if (!AtlasObject.IsValid())
		{
			AtlasObject = FGlObject(EGlObjectKind::Texture, "Glyph atlas");
			glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAX_LEVEL, 0);
		}
		glBindTexture(GL_TEXTURE_2D, AtlasObject.Get());
		if (Atlas.GetHeight() == 0 || Atlas.GetRevision() == AtlasRevision)
		{
			return AtlasObject.Get();
		}
		glPixelStorei(GL_UNPACK_ALIGNMENT, 1);
		glPixelStorei(GL_UNPACK_ROW_LENGTH, FGlyphAtlas::Width);
		const FPixelRect All = FPixelRect::Make(0, 0, FGlyphAtlas::Width, Atlas.GetHeight());
		if (Atlas.GetHeight() != AtlasHeight)
		{
			AtlasHeight = Atlas.GetHeight();
			glTexImage2D(GL_TEXTURE_2D, 0, GL_R8, FGlyphAtlas::Width, AtlasHeight, 0, GL_RED, GL_UNSIGNED_BYTE, nullptr);
			UploadRows(Atlas.GetTexels(), All, OutUploadedBytes);
		}
		else
		{
			TArray<FPixelRect> Areas;
			Atlas.GetChangesSince(AtlasRevision, Areas);
			for (const FPixelRect& Area : Areas)
			{
				const FPixelRect Used = Area.Intersect(All);
				if (!Used.IsEmpty())
				{
					UploadRows(Atlas.GetTexels(), Used, OutUploadedBytes);
				}
			}
		}
		glPixelStorei(GL_UNPACK_ROW_LENGTH, 0);
		AtlasRevision = Atlas.GetRevision();
		return AtlasObject.Get();
	}

	void FGlTextures::ReleaseUnused()
	{
		for (auto It = Entries.CreateIterator(); It; ++It)
		{
			if (!It->Value.Original.IsValid())
			{
				It.RemoveCurrent();
			}
		}
	}

	void FGlTextures::ReleaseAll()
	{
		Entries.Empty();
		AtlasObject.Reset();
		AtlasHeight = 0;
		AtlasRevision = 0;
	}
}
