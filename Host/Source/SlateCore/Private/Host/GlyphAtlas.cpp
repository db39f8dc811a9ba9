#include "Host/GlyphAtlas.h"

#include "Host/FlatIndex.h"
#include "Host/FontFace.h"
#include "Host/FontFaces.h"
#include "Host/FontLog.h"
#include "Host/GlyphShelves.h"

#include <cstring>

namespace Host
{
	namespace
	{
		struct FAtlasEntry
		{
			FGlyphKey Key;
			FAtlasGlyph Glyph;
			uint32 LastFrame = 0;
		};

		struct FAtlasChange
		{
			uint64 Revision;
			FPixelRect Area;
		};

		uint32 HashKey(const FGlyphKey& Key)
		{
			uint64 Low;
			uint32 High;
			std::memcpy(&Low, &Key, sizeof(Low));
			std::memcpy(&High, reinterpret_cast<const uint8*>(&Key) + sizeof(Low), sizeof(High));
			return static_cast<uint32>(MixBits(Low + High * 0x9E3779B97F4A7C15ull));
		}
	}

	struct FGlyphAtlas::FState final : public IGlyphTenants
	{
		explicit FState(FGlyphAtlas& InAtlas) : Atlas(InAtlas), Shelves(Width, *this) {}

		virtual uint32 GetLastFrame(int32 GlyphIndex) const override { return Entries[GlyphIndex].LastFrame; }

		virtual void OnEvicted(int32 GlyphIndex) override
		{
			Index.Remove(GlyphIndex, [this](int32 Known) { return HashKey(Entries[Known].Key); });
			FreeEntries.Add(GlyphIndex);
		}

		virtual void OnCleared(int32 Top, int32 Bottom) override
		{
			std::memset(Texels.GetData() + static_cast<SIZE_T>(Top) * Width, 0, static_cast<SIZE_T>(Bottom - Top) * Width);
			++Atlas.Generation;
			NoteChange(FPixelRect::Make(0, Top, Width, Bottom));
		}

		/** Blanks take no room, so that no shelf ever drops them: when there are too many, all go. */
		void NoteBlank(int32 EntryIndex)
		{
			constexpr int32 MaxBlanks = 4096;
			if (Blanks.Num() == MaxBlanks)
			{
				for (const int32 Blank : Blanks)
				{
					OnEvicted(Blank);
				}
				Blanks.Reset();
			}
			Blanks.Add(EntryIndex);
		}

		int32 AddEntry(const FGlyphKey& Key)
		{
			const int32 Result = FreeEntries.IsEmpty() ? Entries.AddDefaulted() : FreeEntries.Pop(EAllowShrinking::No);
			Entries[Result] = FAtlasEntry{ Key, FAtlasGlyph(), Frame };
			return Result;
		}

		void NoteChange(const FPixelRect& Area)
		{
			// A renderer that missed more than this uploads everything.
			constexpr int32 MaxChanges = 512;
			if (Changes.Num() == MaxChanges)
			{
				ForgottenRevision = Changes[MaxChanges / 2 - 1].Revision;
				Changes.RemoveAt(0, MaxChanges / 2);
			}
			Changes.Add({ ++Atlas.Revision, Area });
		}

		/** Makes the picture high enough for what the shelves cover. */
		void Grow()
		{
			// One row more: the lowest glyphs need an empty row below, as all others have.
			const int32 Needed = Shelves.GetUsedHeight() + 1;
			if (Needed <= Atlas.Height)
			{
				return;
			}
			constexpr int32 MinHeight = 128;
			Atlas.Height = FMath::Max(MinHeight, static_cast<int32>(FMath::RoundUpToPowerOfTwo(static_cast<uint32>(Needed))));
			Texels.SetNumZeroed(Atlas.Height * Width);
		}

		bool Place(int32 EntryIndex, const FGlyphBitmap& Bitmap)
		{
			FIntPoint Cell;
			// The border of a glyph's left and top belongs to its cell; that of its right and bottom to its neighbours'.
			if (!Shelves.Place(EntryIndex, Bitmap.Width + 1, Bitmap.Height + 1, Frame, Cell))
			{
				return false;
			}
			Grow();
			FAtlasGlyph& Glyph = Entries[EntryIndex].Glyph;
			Glyph.X = static_cast<uint16>(Cell.X + 1);
			Glyph.Y = static_cast<uint16>(Cell.Y + 1);
			Glyph.Width = static_cast<uint16>(Bitmap.Width);
			Glyph.Height = static_cast<uint16>(Bitmap.Height);
			Glyph.Left = static_cast<int16>(Bitmap.Left);
			Glyph.Top = static_cast<int16>(Bitmap.Top);
			for (int32 Row = 0; Row < Bitmap.Height; ++Row)
			{
				std::memcpy(Texels.GetData() + static_cast<SIZE_T>(Glyph.Y + Row) * Width + Glyph.X, Bitmap.Coverage.GetData() + Row * Bitmap.Width,
					static_cast<SIZE_T>(Bitmap.Width));
			}
			NoteChange(FPixelRect::Make(Glyph.X, Glyph.Y, Glyph.X + Glyph.Width, Glyph.Y + Glyph.Height));
			return true;
		}

		FGlyphAtlas& Atlas;
		FGlyphShelves Shelves;
		FFlatIndex Index;
		TArray<FAtlasEntry> Entries;
		TArray<int32> FreeEntries;
		TArray<int32> Blanks;
		TArray<uint8> Texels;
		TArray<FAtlasChange> Changes;
		/** Changes up to this one are no longer listed. */
		uint64 ForgottenRevision = 1;
		uint32 Frame = 1;
		bool bReportedFull = false;
		FGlyphBitmap Scratch;
	};

	FGlyphAtlas::FGlyphAtlas(FFontFaces& InFaces)
		: Faces(InFaces)
		, State(MakeUnique<FState>(*this))
	{
	}

	FGlyphAtlas::~FGlyphAtlas() = default;

	void FGlyphAtlas::BeginFrame()
	{
		++State->Frame;
	}

	FAtlasGlyph FGlyphAtlas::Find(const FGlyphKey& Key)
	{
		FState& S = *State;
		const uint32 Hash = HashKey(Key);
		const int32 Known = S.Index.Find(Hash, [&](int32 Candidate) { return S.Entries[Candidate].Key == Key; });
		if (Known != INDEX_NONE)
		{
			S.Entries[Known].LastFrame = S.Frame;
			return S.Entries[Known].Glyph;
		}
		return Rasterise(Key);
	}

	FAtlasGlyph FGlyphAtlas::Rasterise(const FGlyphKey& Key)
	{
		FState& S = *State;
		const FFontFace* Face = Faces.Find(Key.Face);
		const bool bDrawn = Face && Face->Rasterise(Key, S.Scratch);
		const int32 Entry = S.AddEntry(Key);
		if (bDrawn)
		{
			++NumRasterised;
			if (!S.Place(Entry, S.Scratch))
			{
				S.FreeEntries.Add(Entry);
				if (!S.bReportedFull)
				{
					S.bReportedFull = true;
					UE_LOG(LogSlateFonts, Warning, TEXT("The glyphs of one frame do not fit into the atlas; some are not drawn"));
				}
				return FAtlasGlyph();
			}
		}
		else
		{
			S.NoteBlank(Entry);
		}
		S.Index.Add(Entry, [&S](int32 Known) { return HashKey(S.Entries[Known].Key); });
		return S.Entries[Entry].Glyph;
	}

	const uint8* FGlyphAtlas::GetTexels() const
	{
		return State->Texels.GetData();
	}

	void FGlyphAtlas::GetChangesSince(uint64 SinceRevision, TArray<FPixelRect>& OutAreas) const
	{
		OutAreas.Reset();
		if (SinceRevision < State->ForgottenRevision)
		{
			OutAreas.Add(FPixelRect::Make(0, 0, Width, Height));
			return;
		}
		for (const FAtlasChange& Change : State->Changes)
		{
			if (Change.Revision > SinceRevision)
			{
				OutAreas.Add(Change.Area);
			}
		}
	}

	void FGlyphAtlas::SetSoftLimit(int32 Rows)
	{
		State->Shelves.SetSoftLimit(static_cast<int32>(FMath::RoundUpToPowerOfTwo(static_cast<uint32>(FMath::Clamp(Rows, 16, FGlyphShelves::HardLimit + 1)))) - 1);
	}

	void FGlyphAtlas::Clear()
	{
		FState& S = *State;
		S.Shelves.Empty();
		S.Index.Empty();
		S.Entries.Empty();
		S.FreeEntries.Empty();
		S.Blanks.Empty();
		std::memset(S.Texels.GetData(), 0, static_cast<SIZE_T>(S.Texels.Num()));
		++Generation;
		S.NoteChange(FPixelRect::Make(0, 0, Width, Height));
	}

	int32 FGlyphAtlas::GetNumGlyphs() const
	{
		return State->Index.Num();
	}
}
