#include "Host/GlyphShelves.h"

namespace Host
{
	/** Heights of shelves are multiples of this, so that sizes that differ little share them. */
	static constexpr int32 ShelfStep = 4;

	bool FGlyphShelves::Place(int32 GlyphIndex, int32 CellWidth, int32 CellHeight, uint32 Frame, FIntPoint& OutPosition)
	{
		const int32 Index = FindRoom(CellWidth, CellHeight, Frame);
		if (Index == INDEX_NONE)
		{
			return false;
		}
		FGlyphShelf& Shelf = Shelves[Index];
		OutPosition = FIntPoint(Shelf.NextX, Shelf.Y);
		Shelf.NextX += CellWidth;
		Shelf.Glyphs.Add(GlyphIndex);
		return true;
	}

	int32 FGlyphShelves::FindRoom(int32 CellWidth, int32 CellHeight, uint32 Frame)
	{
		if (CellWidth > Width || CellHeight > HardLimit)
		{
			return INDEX_NONE;
		}
		const int32 Open = FindOpenShelf(CellWidth, CellHeight);
		if (Open != INDEX_NONE)
		{
			return Open;
		}
		const int32 ShelfHeight = (CellHeight + ShelfStep - 1) / ShelfStep * ShelfStep;
		if (UsedHeight + ShelfHeight <= SoftLimit)
		{
			return AddShelf(ShelfHeight);
		}
		const int32 Reused = ReuseShelves(ShelfHeight, Frame);
		if (Reused != INDEX_NONE)
		{
			return Reused;
		}
		return UsedHeight + ShelfHeight <= HardLimit ? AddShelf(ShelfHeight) : INDEX_NONE;
	}

	int32 FGlyphShelves::FindOpenShelf(int32 CellWidth, int32 CellHeight) const
	{
		int32 Best = INDEX_NONE;
		int32 BestHeight = CellHeight + CellHeight / 4 + ShelfStep + 1;
		for (int32 Index = 0; Index < Shelves.Num(); ++Index)
		{
			const FGlyphShelf& Shelf = Shelves[Index];
			if (Shelf.Height >= CellHeight && Shelf.Height < BestHeight && Shelf.NextX + CellWidth <= Width)
			{
				Best = Index;
				BestHeight = Shelf.Height;
			}
		}
		return Best;
	}

	int32 FGlyphShelves::AddShelf(int32 ShelfHeight)
	{
		FGlyphShelf& Shelf = Shelves.AddDefaulted_GetRef();
		Shelf.Y = UsedHeight;
		Shelf.Height = ShelfHeight;
		UsedHeight += ShelfHeight;
		return Shelves.Num() - 1;
	}

	uint32 FGlyphShelves::GetNewestFrame(const FGlyphShelf& Shelf) const
	{
		uint32 Newest = 0;
		for (const int32 Glyph : Shelf.Glyphs)
		{
			Newest = FMath::Max(Newest, Tenants.GetLastFrame(Glyph));
		}
		return Newest;
	}

	FGlyphShelves::FShelfRange FGlyphShelves::FindOldestShelves(int32 ShelfHeight, uint32 Frame) const
	{
		TArray<uint32> Newest;
		for (const FGlyphShelf& Shelf : Shelves)
		{
			Newest.Add(GetNewestFrame(Shelf));
		}
		FShelfRange Best;
		uint32 BestFrame = Frame;
		for (int32 First = 0; First < Shelves.Num(); ++First)
		{
			int32 Height = 0;
			uint32 RangeFrame = 0;
			for (int32 Last = First; Last < Shelves.Num() && Newest[Last] < BestFrame; ++Last)
			{
				Height += Shelves[Last].Height;
				RangeFrame = FMath::Max(RangeFrame, Newest[Last]);
				if (Height >= ShelfHeight)
				{
					Best = { First, Last };
					BestFrame = RangeFrame;
					break;
				}
			}
		}
		return Best;
	}

	int32 FGlyphShelves::ReuseShelves(int32 ShelfHeight, uint32 Frame)
	{
		const FShelfRange Range = FindOldestShelves(ShelfHeight, Frame);
		if (Range.First == INDEX_NONE)
		{
			return INDEX_NONE;
		}
		const int32 Top = Shelves[Range.First].Y;
		const int32 Bottom = Shelves[Range.Last].Y + Shelves[Range.Last].Height;
		for (int32 Index = Range.First; Index <= Range.Last; ++Index)
		{
			for (const int32 Glyph : Shelves[Index].Glyphs)
			{
				Tenants.OnEvicted(Glyph);
			}
		}
		Tenants.OnCleared(Top, Bottom);
		Shelves.RemoveAt(Range.First, Range.Last - Range.First + 1);

		FGlyphShelf Fresh;
		Fresh.Y = Top;
		Fresh.Height = ShelfHeight;
		FGlyphShelf Rest;
		Rest.Y = Top + ShelfHeight;
		Rest.Height = Bottom - Rest.Y;
		if (Rest.Height > 0)
		{
			Shelves.Insert(MoveTemp(Rest), Range.First);
		}
		Shelves.Insert(MoveTemp(Fresh), Range.First);
		return Range.First;
	}

	void FGlyphShelves::Empty()
	{
		Shelves.Empty();
		UsedHeight = 0;
	}
}
