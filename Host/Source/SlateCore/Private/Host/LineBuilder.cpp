#include "Host/LineBuilder.h"

#include "Host/TextBoundaries.h"
#include "Host/TextShaper.h"

#include <unicode/ubidi.h>

namespace Host
{
	FLineBuilder::FLineBuilder(FTextShaper& InShaper, const FShapedParagraph& InParagraph)
		: Shaper(InShaper)
		, Paragraph(InParagraph)
	{
	}

	int16 FLineBuilder::ToRunOffset(int32 OffsetY)
	{
		constexpr int32 Finer = 1024 / 64;
		return static_cast<int16>(FMath::Clamp(-OffsetY / Finer, MIN_int16, MAX_int16));
	}

	int32 FLineBuilder::FindGlyph(const FShapedItem& Item, int32 Position) const
	{
		// Clusters rise from left to right, or fall when the item reads the other way.
		const bool bRightToLeft = Item.IsRightToLeft();
		int32 Low = Item.FirstGlyph;
		int32 High = Item.EndGlyph;
		while (Low < High)
		{
			const int32 Middle = (Low + High) / 2;
			const bool bBefore = bRightToLeft ? Paragraph.Glyphs[Middle].Cluster >= Position : Paragraph.Glyphs[Middle].Cluster < Position;
			if (bBefore)
			{
				Low = Middle + 1;
			}
			else
			{
				High = Middle;
			}
		}
		return Low;
	}

	bool FLineBuilder::CanBreakAt(const FShapedItem& Item, int32 Position) const
	{
		if (Position <= Item.Begin || Position >= Item.End)
		{
			return true;
		}
		const int32 Boundary = FindGlyph(Item, Position);
		const int32 Index = Item.IsRightToLeft() ? Boundary - 1 : Boundary;
		// When none begins there, the position lies within a cluster, such as a ligature.
		return Index >= Item.FirstGlyph && Index < Item.EndGlyph && Paragraph.Glyphs[Index].Cluster == Position
			&& !Paragraph.Glyphs[Index].bUnsafeToBreak;
	}

	void FLineBuilder::AddPiece(const FShapedItem& Item, int32 Begin, int32 End, uint8 Level)
	{
		FPiece& Piece = Pieces.AddDefaulted_GetRef();
		Piece.Item = &Item;
		Piece.Begin = Begin;
		Piece.End = End;
		Piece.Level = Level;
		if (!CanBreakAt(Item, Begin) || !CanBreakAt(Item, End))
		{
			Piece.bReshaped = true;
			Piece.FirstGlyph = Reshaped.Num();
			Shaper.ShapePart(Paragraph, Item, Begin, End, Reshaped);
			Piece.EndGlyph = Reshaped.Num();
			return;
		}
		Piece.FirstGlyph = FindGlyph(Item, Item.IsRightToLeft() ? End : Begin);
		Piece.EndGlyph = FindGlyph(Item, Item.IsRightToLeft() ? Begin : End);
	}

	int32 FLineBuilder::FindItem(int32 Position) const
	{
		int32 Low = 0;
		int32 High = Paragraph.Items.Num();
		while (Low < High)
		{
			const int32 Middle = (Low + High) / 2;
			if (Paragraph.Items[Middle].End <= Position)
			{
				Low = Middle + 1;
			}
			else
			{
				High = Middle;
			}
		}
		return Low;
	}

	void FLineBuilder::FindPieces(int32 Begin, int32 End)
	{
		Pieces.Reset();
		Reshaped.Reset();
		// Blanks at the end of a line stand at the end of its reading direction, whatever they follow.
		const int32 BlanksBegin = FTextBoundaries::TrimEnd(Paragraph.GetText(), Begin, End);
		for (int32 Index = FindItem(Begin); Index < Paragraph.Items.Num() && Paragraph.Items[Index].Begin < End; ++Index)
		{
			const FShapedItem& Item = Paragraph.Items[Index];
			const int32 PieceBegin = FMath::Max(Item.Begin, Begin);
			const int32 PieceEnd = FMath::Min(Item.End, End);
			const int32 Split = Item.Level == Paragraph.BaseLevel ? PieceEnd : FMath::Clamp(BlanksBegin, PieceBegin, PieceEnd);
			if (Split > PieceBegin)
			{
				AddPiece(Item, PieceBegin, Split, Item.Level);
			}
			if (Split < PieceEnd)
			{
				AddPiece(Item, Split, PieceEnd, Paragraph.BaseLevel);
			}
		}
		SortVisually();
	}

	void FLineBuilder::SortVisually()
	{
		const bool bAllLeftToRight = !Pieces.ContainsByPredicate([](const FPiece& Piece) { return Piece.Level != 0; });
		if (bAllLeftToRight)
		{
			return;
		}
		TArray<UBiDiLevel> Levels;
		TArray<int32_t> Order;
		for (const FPiece& Piece : Pieces)
		{
			Levels.Add(Piece.Level);
			Order.Add(0);
		}
		ubidi_reorderVisual(Levels.GetData(), Levels.Num(), Order.GetData());
		TArray<FPiece> Sorted;
		for (const int32_t Index : Order)
		{
			Sorted.Add(Pieces[Index]);
		}
		Pieces = MoveTemp(Sorted);
	}

	TConstArrayView<FPlacedGlyph> FLineBuilder::GetGlyphs(const FPiece& Piece) const
	{
		const TArray<FPlacedGlyph>& Source = Piece.bReshaped ? Reshaped : Paragraph.Glyphs;
		return TConstArrayView<FPlacedGlyph>(Source.GetData() + Piece.FirstGlyph, Piece.EndGlyph - Piece.FirstGlyph);
	}

	int32 FLineBuilder::CountGlyphs() const
	{
		int32 Count = 0;
		for (const FPiece& Piece : Pieces)
		{
			Count += Piece.EndGlyph - Piece.FirstGlyph;
		}
		return Count;
	}

	FShapedRunRef FLineBuilder::Build(int32 Begin, int32 End)
	{
		FindPieces(Begin, End);
		const TSharedRef<FShapedRun> Run = MakeShared<FShapedRun>(Paragraph.Font.ToSharedRef(), Paragraph.GetText().Mid(Begin, End - Begin), CountGlyphs());
		FShapedGlyph* Target = Run->EditGlyphs();
		int64 Pen = 0;
		for (const FPiece& Piece : Pieces)
		{
			for (const FPlacedGlyph& Glyph : GetGlyphs(Piece))
			{
				Target->X = static_cast<float>(Pen + Glyph.OffsetX) / FShapedParagraph::UnitsPerPixel;
				Target->Cluster = static_cast<uint32>(Glyph.Cluster - Begin);
				Target->Slot = Piece.Item->Slot;
				Target->bRightToLeft = Piece.Item->IsRightToLeft() ? 1 : 0;
				Target->Glyph = Glyph.Glyph;
				Target->Y = ToRunOffset(Glyph.OffsetY);
				Pen += Glyph.Advance;
				++Target;
			}
		}
		Run->SetWidth(static_cast<float>(Pen) / FShapedParagraph::UnitsPerPixel);
		Run->SetRightToLeft(Paragraph.IsRightToLeft());
		return Run;
	}

	float FLineBuilder::Measure(int32 Begin, int32 End)
	{
		FindPieces(Begin, End);
		int64 Pen = 0;
		for (const FPiece& Piece : Pieces)
		{
			for (const FPlacedGlyph& Glyph : GetGlyphs(Piece))
			{
				Pen += Glyph.Advance;
			}
		}
		return static_cast<float>(Pen) / FShapedParagraph::UnitsPerPixel;
	}

	void FLineBuilder::FindClusters(int32 Begin, int32 End, TArray<FClusterBox>& OutBoxes)
	{
		OutBoxes.Reset();
		FindPieces(Begin, End);
		int64 Pen = 0;
		for (const FPiece& Piece : Pieces)
		{
			const TConstArrayView<FPlacedGlyph> Glyphs = GetGlyphs(Piece);
			const bool bRightToLeft = Piece.Item->IsRightToLeft();
			for (int32 Index = 0; Index < Glyphs.Num();)
			{
				FClusterBox& Box = OutBoxes.AddDefaulted_GetRef();
				Box.Begin = Glyphs[Index].Cluster;
				Box.Left = static_cast<float>(Pen) / FShapedParagraph::UnitsPerPixel;
				Box.bRightToLeft = bRightToLeft;
				const int32 First = Index;
				for (; Index < Glyphs.Num() && Glyphs[Index].Cluster == Box.Begin; ++Index)
				{
					Pen += Glyphs[Index].Advance;
				}
				Box.Right = static_cast<float>(Pen) / FShapedParagraph::UnitsPerPixel;
				// A cluster reaches to the next one in reading order.
				if (bRightToLeft)
				{
					Box.End = First > 0 ? Glyphs[First - 1].Cluster : Piece.End;
				}
				else
				{
					Box.End = Index < Glyphs.Num() ? Glyphs[Index].Cluster : Piece.End;
				}
			}
		}
	}
}
