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
	}

	void FTextLayout::FindClusters(const FTextLine& Line, TArray<FClusterBox>& OutBoxes)
	{
		const FParagraph& Paragraph = Paragraphs[Line.Paragraph];
		FLineBuilder Builder(FFontServices::Get().GetShaper(), *Paragraph.Shaped);
		Builder.FindClusters(Line.Begin - Paragraph.Begin, Line.End - Paragraph.Begin, OutBoxes);
	}

	int32 FTextLayout::FindLine(int32 Index, bool bAtLineEnd)
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
		return bAtLineEnd && bWrappedHere ? Low - 1 : Low;
	}

	int32 FTextLayout::FindIndexAt(FVector2f Point, float AreaWidth)
	{
		Update();
		const int32 LineIndex = FMath::Clamp(FMath::FloorToInt32((Point.Y - Style.Margin.Top) / GetLinePitch()), 0, Lines.Num() - 1);
		const FTextLine& Line = Lines[LineIndex];
		const FParagraph& Paragraph = Paragraphs[Line.Paragraph];
		const FStringView ParagraphText = Paragraph.Shaped->GetText();
		TArray<FClusterBox> Boxes;
		FindClusters(Line, Boxes);
		const float X = Point.X - GetRunLeft(Line, AreaWidth);
		int32 Best = Line.Begin - Paragraph.Begin;
		float BestDistance = MAX_flt;
		for (const FClusterBox& Box : Boxes)
		{
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
		}
		return Best + Paragraph.Begin;
	}

	FCaretPlace FTextLayout::GetCaret(int32 Index, float AreaWidth, bool bAtLineEnd)
	{
		Index = FMath::Clamp(Index, 0, Text.Num());
		FCaretPlace Caret;
		Caret.Line = FindLine(Index, bAtLineEnd);
		const FTextLine& Line = Lines[Caret.Line];
		const FParagraph& Paragraph = Paragraphs[Line.Paragraph];
		const FStringView ParagraphText = Paragraph.Shaped->GetText();
		TArray<FClusterBox> Boxes;
		FindClusters(Line, Boxes);
		const int32 Position = FMath::Min(Index, Line.End) - Paragraph.Begin;
		// The character that the caret stands before decides; at the end of the line, the one that it stands after.
		const FClusterBox* Before = Boxes.FindByPredicate([Position](const FClusterBox& Box) { return Box.Begin <= Position && Position < Box.End; });
		const FClusterBox* After = Boxes.FindByPredicate([Position](const FClusterBox& Box) { return Box.End == Position; });
		const FClusterBox* Box = Before ? Before : After;
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
