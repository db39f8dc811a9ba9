#include "Host/TextLayout.h"

#include "Host/FontServices.h"
#include "Host/LineBuilder.h"
#include "Host/TextBoundaries.h"
#include "Host/TextLayoutParagraph.h"
#include "Host/TextShaper.h"

namespace Host
{
	namespace
	{
		/** The visible characters of a cluster: more than one in a ligature, which shares its width out among them. */
		int32 CountCharacters(FStringView Text, int32 Begin, int32 End)
		{
			int32 Count = 0;
			while (Begin < End)
			{
				Begin = FTextBoundaries::NextCharacter(Text, Begin);
				++Count;
			}
			return FMath::Max(Count, 1);
		}

		/** How far from its beginning in reading order a caret within a cluster stands. */
		float GetShareBefore(FStringView Text, const FClusterBox& Box, int32 Position)
		{
			const float Width = Box.Right - Box.Left;
			if (Position <= Box.Begin)
			{
				return 0.0f;
			}
			if (Position >= Box.End)
			{
				return Width;
			}
			return Width * static_cast<float>(CountCharacters(Text, Box.Begin, Position)) / static_cast<float>(CountCharacters(Text, Box.Begin, Box.End));
		}

		float GetCaretX(FStringView Text, const FClusterBox& Box, int32 Position)
		{
			const float Share = GetShareBefore(Text, Box, Position);
			return Box.bRightToLeft ? Box.Right - Share : Box.Left + Share;
		}

		/** A visible character, and whether it reads to the left. */
		struct FCharacterCell
		{
			int32 Begin = 0;
			int32 End = 0;
			bool bRightToLeft = false;
		};

		/** The visible characters of clusters from left to right. */
		void FindCells(FStringView Text, TConstArrayView<FClusterBox> Boxes, TArray<FCharacterCell>& OutCells)
		{
			for (const FClusterBox& Box : Boxes)
			{
				const int32 First = OutCells.Num();
				for (int32 Position = Box.Begin; Position < Box.End;)
				{
					const int32 Next = FMath::Min(FTextBoundaries::NextCharacter(Text, Position), Box.End);
					OutCells.Insert(FCharacterCell{ Position, Next, Box.bRightToLeft }, Box.bRightToLeft ? First : OutCells.Num());
					Position = Next;
				}
			}
		}

		/** How many cells are left of a place; INDEX_NONE when it is at none of them. */
		int32 CountCellsBefore(TConstArrayView<FCharacterCell> Cells, const FTextPlace& Place)
		{
			const int32 Behind = Cells.IndexOfByPredicate([&Place](const FCharacterCell& Cell) { return Cell.Begin == Place.Index; });
			const int32 Before = Cells.IndexOfByPredicate([&Place](const FCharacterCell& Cell) { return Cell.End == Place.Index; });
			const bool bAtEnd = Before != INDEX_NONE && (Place.bAfter || Behind == INDEX_NONE);
			const int32 Cell = bAtEnd ? Before : Behind;
			return Cell == INDEX_NONE ? INDEX_NONE : Cell + (Cells[Cell].bRightToLeft == bAtEnd ? 0 : 1);
		}
	}

	void FTextLayout::FindClusters(const FTextLine& Line, TArray<FClusterBox>& OutBoxes)
	{
		const FParagraph& Paragraph = Paragraphs[Line.Paragraph];
		FLineBuilder Builder(FFontServices::Get().GetShaper(), *Paragraph.Shaped);
		Builder.FindClusters(Line.Begin - Paragraph.Begin, Line.End - Paragraph.Begin, OutBoxes);
	}

	int32 FTextLayout::FindLine(int32 Index, bool bAfter)
	{
		Update();
		int32 Low = 0;
		int32 High = Lines.Num() - 1;
		while (Low < High)
		{
			const int32 Middle = (Low + High + 1) / 2;
			if (Lines[Middle].Begin <= Index)
			{
				Low = Middle;
			}
			else
			{
				High = Middle - 1;
			}
		}
		const bool bWrappedHere = Low > 0 && Lines[Low].Begin == Index && Lines[Low - 1].End == Index && Lines[Low - 1].Paragraph == Lines[Low].Paragraph;
		return bAfter && bWrappedHere ? Low - 1 : Low;
	}

	bool FTextLayout::IsRightToLeft(int32 Index)
	{
		const int32 Line = FindLine(Index);
		return Paragraphs[Lines[Line].Paragraph].Shaped->IsRightToLeft();
	}

	int32 FTextLayout::FindIndexAt(FVector2f Point, float AreaWidth)
	{
		return FindPlaceAt(Point, AreaWidth).Index;
	}

	FTextPlace FTextLayout::FindPlaceAt(FVector2f Point, float AreaWidth)
	{
		Update();
		const int32 LineIndex = FMath::Clamp(FMath::FloorToInt32((Point.Y - Style.Margin.Top) / GetLinePitch()), 0, Lines.Num() - 1);
		const FTextLine& Line = Lines[LineIndex];
		const FParagraph& Paragraph = Paragraphs[Line.Paragraph];
		const FStringView ParagraphText = Paragraph.Shaped->GetText();
		TArray<FClusterBox> Boxes;
		FindClusters(Line, Boxes);
		if (Boxes.IsEmpty())
		{
			return FTextPlace{ Line.Begin, false };
		}
		const float X = Point.X - GetRunLeft(Line, AreaWidth);
		const FClusterBox* const Hit = Boxes.FindByPredicate([X](const FClusterBox& Box) { return X < Box.Right; });
		const FClusterBox& Box = Hit ? *Hit : Boxes.Last();
		int32 Best = Box.Begin;
		float BestDistance = MAX_flt;
		for (int32 Position = Box.Begin;; Position = FMath::Min(FTextBoundaries::NextCharacter(ParagraphText, Position), Box.End))
		{
			const float Distance = FMath::Abs(GetCaretX(ParagraphText, Box, Position) - X);
			if (Distance < BestDistance)
			{
				Best = Position;
				BestDistance = Distance;
			}
			if (Position >= Box.End)
			{
				break;
			}
		}
		return FTextPlace{ Best + Paragraph.Begin, Best > Box.Begin };
	}

	FTextPlace FTextLayout::FindPlaceBeside(const FTextPlace& From, bool bToRight)
	{
		const FTextLine& Line = Lines[FindLine(From.Index, From.bAfter)];
		const FParagraph& Paragraph = Paragraphs[Line.Paragraph];
		TArray<FClusterBox> Boxes;
		FindClusters(Line, Boxes);
		TArray<FCharacterCell> Cells;
		FindCells(Paragraph.Shaped->GetText(), Boxes, Cells);
		const int32 CellsBefore = CountCellsBefore(Cells, FTextPlace{ From.Index - Paragraph.Begin, From.bAfter });
		const int32 Crossed = bToRight ? CellsBefore : CellsBefore - 1;
		if (CellsBefore == INDEX_NONE || !Cells.IsValidIndex(Crossed))
		{
			return From;
		}
		// Beyond a character that reads the way of the move is its end, beyond another its beginning.
		const bool bAfter = bToRight != Cells[Crossed].bRightToLeft;
		return FTextPlace{ Paragraph.Begin + (bAfter ? Cells[Crossed].End : Cells[Crossed].Begin), bAfter };
	}

	FCaretPlace FTextLayout::GetCaret(int32 Index, float AreaWidth, bool bAfter)
	{
		Index = FMath::Clamp(Index, 0, Text.Num());
		FCaretPlace Caret;
		Caret.Line = FindLine(Index, bAfter);
		const FTextLine& Line = Lines[Caret.Line];
		const FParagraph& Paragraph = Paragraphs[Line.Paragraph];
		const FStringView ParagraphText = Paragraph.Shaped->GetText();
		TArray<FClusterBox> Boxes;
		FindClusters(Line, Boxes);
		const int32 Position = FMath::Min(Index, Line.End) - Paragraph.Begin;
		// Unless told otherwise the character behind the caret decides; at the end of the line, the one before it.
		const FClusterBox* Behind = Boxes.FindByPredicate([Position](const FClusterBox& Box) { return Box.Begin <= Position && Position < Box.End; });
		const FClusterBox* Before = Boxes.FindByPredicate([Position](const FClusterBox& Box) { return Box.Begin < Position && Position <= Box.End; });
		const FClusterBox* Box = Before && (bAfter || !Behind) ? Before : Behind;
		Caret.X = GetRunLeft(Line, AreaWidth) + (Box ? GetCaretX(ParagraphText, *Box, Position) : 0.0f);
		Caret.Top = Style.Margin.Top + GetLinePitch() * static_cast<float>(Caret.Line);
		Caret.Height = Style.Font->GetMetrics().LineHeight;
		return Caret;
	}

	void FTextLayout::GetSelection(int32 Begin, int32 End, float AreaWidth, TArray<FSelectionBox>& OutBoxes)
	{
		OutBoxes.Reset();
		Begin = FMath::Clamp(Begin, 0, Text.Num());
		End = FMath::Clamp(End, Begin, Text.Num());
		TArray<FClusterBox> Boxes;
		for (int32 LineIndex = FindLine(Begin); LineIndex < Lines.Num() && Lines[LineIndex].Begin < End; ++LineIndex)
		{
			const FTextLine& Line = Lines[LineIndex];
			const FParagraph& Paragraph = Paragraphs[Line.Paragraph];
			const FStringView ParagraphText = Paragraph.Shaped->GetText();
			const float LineLeft = GetRunLeft(Line, AreaWidth);
			const float Top = Style.Margin.Top + GetLinePitch() * static_cast<float>(LineIndex);
			const int32 FirstOfLine = OutBoxes.Num();
			FindClusters(Line, Boxes);
			for (const FClusterBox& Box : Boxes)
			{
				const int32 First = FMath::Max(Begin - Paragraph.Begin, Box.Begin);
				const int32 Last = FMath::Min(End - Paragraph.Begin, Box.End);
				if (First >= Last)
				{
					continue;
				}
				const float Edges[] = { LineLeft + GetCaretX(ParagraphText, Box, First), LineLeft + GetCaretX(ParagraphText, Box, Last) };
				const FSelectionBox Selected = { FMath::Min(Edges[0], Edges[1]), Top, FMath::Max(Edges[0], Edges[1]), Top + GetLinePitch() };
				if (OutBoxes.Num() > FirstOfLine && FMath::Abs(OutBoxes.Last().Right - Selected.Left) < 0.01f)
				{
					OutBoxes.Last().Right = Selected.Right;
				}
				else
				{
					OutBoxes.Add(Selected);
				}
			}
		}
	}
}
