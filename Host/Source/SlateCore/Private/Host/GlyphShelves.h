#pragma once

#include "CoreMinimal.h"

namespace Host
{
	/** A band of the atlas that holds glyphs of similar height side by side. */
	struct FGlyphShelf
	{
		int32 Y = 0;
		int32 Height = 0;
		/** Where the next glyph goes. */
		int32 NextX = 0;
		/** Indices of the glyphs on it. */
		TArray<int32> Glyphs;
	};

	/** What the shelves need to know of, and do to, the glyphs that stand on them. */
	class IGlyphTenants
	{
	public:
		virtual ~IGlyphTenants() = default;
		/** The last frame in which the glyph was looked up. */
		virtual uint32 GetLastFrame(int32 GlyphIndex) const = 0;
		/** The glyph lost its place. */
		virtual void OnEvicted(int32 GlyphIndex) = 0;
		/** Rows from Top to before Bottom are free again and must be emptied. */
		virtual void OnCleared(int32 Top, int32 Bottom) = 0;
	};

	/**
	 * Shares out the area of the glyph atlas: shelves from the top down. A glyph goes to the lowest shelf that is high
	 * enough and not wastefully so. When no room is left, neighbouring shelves that were not used in the current frame
	 * are cleared for a new one, those first that have been unused for longest.
	 */
	class FGlyphShelves
	{
	public:
		/** Never more rows than this. One less than a power of two, because the picture needs an empty row below them. */
		static constexpr int32 HardLimit = 16383;

		FGlyphShelves(int32 InWidth, IGlyphTenants& InTenants) : Tenants(InTenants), Width(InWidth) {}

		/**
		 * Finds room for a glyph and gives it away.
		 * @param Frame	shelves with a glyph that was looked up in this frame keep their glyphs
		 * @return false when nothing is free, and nothing may be taken
		 */
		bool Place(int32 GlyphIndex, int32 CellWidth, int32 CellHeight, uint32 Frame, FIntPoint& OutPosition);

		/** Rows that the shelves cover. */
		int32 GetUsedHeight() const { return UsedHeight; }
		/** Shelves are reused, if possible, before more rows than this are taken. */
		void SetSoftLimit(int32 Rows) { SoftLimit = Rows; }
		void Empty();

	private:
		struct FShelfRange
		{
			int32 First = INDEX_NONE;
			int32 Last = INDEX_NONE;
		};

		int32 FindRoom(int32 CellWidth, int32 CellHeight, uint32 Frame);
		int32 FindOpenShelf(int32 CellWidth, int32 CellHeight) const;
		int32 AddShelf(int32 ShelfHeight);
		int32 ReuseShelves(int32 ShelfHeight, uint32 Frame);
		FShelfRange FindOldestShelves(int32 ShelfHeight, uint32 Frame) const;
		uint32 GetNewestFrame(const FGlyphShelf& Shelf) const;

		IGlyphTenants& Tenants;
		TArray<FGlyphShelf> Shelves;
		int32 Width;
		int32 UsedHeight = 0;
		int32 SoftLimit = 4095;
	};
}
