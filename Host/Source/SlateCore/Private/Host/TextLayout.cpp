#include "Host/TextLayout.h"

#include "Host/FontServices.h"
#include "Host/LineBuilder.h"
#include "Host/SlateCounters.h"
#include "Host/TextBoundaries.h"
#include "Host/TextLayoutParagraph.h"
#include "Host/TextShaper.h"

#include <cstring>

namespace Host
{
	/** Widths that differ by less than this are the same: sizes are computed on different ways. */
	static constexpr float WidthTolerance = 1.0f / 64.0f;

	bool FTextLayoutStyle::operator==(const FTextLayoutStyle& Other) const
	{
		return Font == Other.Font && WrapWidth == Other.WrapWidth && bBreakWords == Other.bBreakWords && LineHeightScale == Other.LineHeightScale
			&& Align == Other.Align && Margin == Other.Margin;
	}

	FTextLayout::FTextLayout() = default;
	FTextLayout::~FTextLayout() = default;

	static bool AreEqual(FStringView A, FStringView B)
	{
		return A.Len() == B.Len() && (A.Len() == 0 || std::memcmp(A.GetData(), B.GetData(), static_cast<SIZE_T>(A.Len()) * sizeof(TCHAR)) == 0);
	}

	void FTextLayout::SetText(FStringView InText)
	{
		if (AreEqual(InText, GetText()) && !Paragraphs.IsEmpty())
		{
			return;
		}
		TArray<FParagraph> Fresh;
		SplitParagraphs(InText, Fresh);
		// Typing changes one paragraph: those before and after it keep their shape.
		const auto Reuse = [&](FParagraph& New, FParagraph& Old)
		{
			const bool bSame = AreEqual(InText.Mid(New.Begin, New.Len()), GetText().Mid(Old.Begin, Old.Len()));
			if (bSame)
			{
				New.Shaped = MoveTemp(Old.Shaped);
				New.Offsets = MoveTemp(Old.Offsets);
				New.Breaks = MoveTemp(Old.Breaks);
			}
			return bSame;
		};
		const int32 Common = FMath::Min(Fresh.Num(), Paragraphs.Num());
		int32 Front = 0;
		while (Front < Common && Reuse(Fresh[Front], Paragraphs[Front]))
		{
			++Front;
		}
		for (int32 Back = 1; Back <= Common - Front && Reuse(Fresh[Fresh.Num() - Back], Paragraphs[Paragraphs.Num() - Back]); ++Back)
		{
		}
		Paragraphs = MoveTemp(Fresh);
		Text.Reset();
		Text.Append(InText.GetData(), InText.Len());
		bLinesValid = false;
	}

	void FTextLayout::SplitParagraphs(FStringView NewText, TArray<FParagraph>& Out)
	{
		int32 Begin = 0;
		for (int32 Position = 0; Position < NewText.Len(); ++Position)
		{
			if (!FTextBoundaries::IsLineBreak(NewText[Position]))
			{
				continue;
			}
			FParagraph& Paragraph = Out.AddDefaulted_GetRef();
			Paragraph.Begin = Begin;
			Paragraph.End = Position;
			if (NewText[Position] == '\r' && Position + 1 < NewText.Len() && NewText[Position + 1] == '\n')
			{
				++Position;
			}
			Begin = Position + 1;
		}
		FParagraph& Last = Out.AddDefaulted_GetRef();
		Last.Begin = Begin;
		Last.End = NewText.Len();
	}

	void FTextLayout::SetStyle(const FTextLayoutStyle& InStyle)
	{
		if (Style == InStyle)
		{
			return;
		}
		if (Style.Font != InStyle.Font)
		{
			for (FParagraph& Paragraph : Paragraphs)
			{
				Paragraph.Shaped.Reset();
			}
		}
		Style = InStyle;
		bLinesValid = false;
	}

	void FTextLayout::Update()
	{
		if (bLinesValid)
		{
			return;
		}
		checkf(Style.Font.IsValid(), TEXT("A text layout needs a font"));
		bLinesValid = true;
		Lines.Reset();
		TextWidth = 0.0f;
		if (Paragraphs.IsEmpty())
		{
			Paragraphs.AddDefaulted();
		}
		for (int32 Index = 0; Index < Paragraphs.Num(); ++Index)
		{
			FParagraph& Paragraph = Paragraphs[Index];
			if (!Paragraph.Shaped)
			{
				Shape(Paragraph);
			}
			BreakLines(Paragraph, Index);
		}
	}

	void FTextLayout::Shape(FParagraph& Paragraph)
	{
		++NumShaped;
		++FSlateCounters::Get().ShapedRuns;
		Paragraph.Shaped = MakeUnique<FShapedParagraph>();
		FShapedParagraph& Shaped = *Paragraph.Shaped;
		FFontServices::Get().GetShaper().ShapeParagraph(Style.Font.ToSharedRef(), GetText().Mid(Paragraph.Begin, Paragraph.Len()), ETextDirection::Auto, Shaped);
		// The shaper leaves out what no line can show.
		const int32 Length = Shaped.Text.Num();
		Paragraph.Breaks.Reset();
		Paragraph.Offsets.Reset();
		Paragraph.Offsets.SetNumZeroed(Length + 1);
		for (const FPlacedGlyph& Glyph : Shaped.Glyphs)
		{
			Paragraph.Offsets[Glyph.Cluster + 1] += static_cast<float>(Glyph.Advance) / FShapedParagraph::UnitsPerPixel;
		}
		double Sum = 0.0;
		for (float& Offset : Paragraph.Offsets)
		{
			Sum += Offset;
			Offset = static_cast<float>(Sum);
		}
	}

	void FTextLayout::BreakLines(FParagraph& Paragraph, int32 ParagraphIndex)
	{
		const FStringView ParagraphText = Paragraph.Shaped->GetText();
		const int32 Length = ParagraphText.Len();
		const int32 TextEnd = FTextBoundaries::TrimEnd(ParagraphText, 0, Length);
		if (Style.WrapWidth <= 0.0f || Paragraph.GetAdvance(0, TextEnd) <= Style.WrapWidth + WidthTolerance)
		{
			AddLine(ParagraphIndex, 0, Length);
			return;
		}
		if (Paragraph.Breaks.IsEmpty())
		{
			FTextBoundaries::FindLineBreaks(ParagraphText, Paragraph.Breaks);
		}
		int32 Begin = 0;
		int32 NextBreak = 0;
		do
		{
			const int32 End = FindLineEnd(Paragraph, Begin, NextBreak);
			AddLine(ParagraphIndex, Begin, End);
			Begin = End;
		}
		while (Begin < Length);
	}

	int32 FTextLayout::FindLineEnd(const FParagraph& Paragraph, int32 Begin, int32& InOutBreak) const
	{
		const FStringView ParagraphText = Paragraph.Shaped->GetText();
		const TArray<int32>& Breaks = Paragraph.Breaks;
		while (Breaks[InOutBreak] <= Begin)
		{
			++InOutBreak;
		}
		const auto Fits = [&](int32 End)
		{
			const int32 Visible = FTextBoundaries::TrimEnd(ParagraphText, Begin, End);
			return Paragraph.GetAdvance(Begin, Visible) <= Style.WrapWidth + WidthTolerance;
		};
		if (!Fits(Breaks[InOutBreak]))
		{
			return Style.bBreakWords ? FindForcedBreak(Paragraph, Begin) : Breaks[InOutBreak];
		}
		while (InOutBreak + 1 < Breaks.Num() && Fits(Breaks[InOutBreak + 1]))
		{
			++InOutBreak;
		}
		return Breaks[InOutBreak];
	}

	int32 FTextLayout::FindForcedBreak(const FParagraph& Paragraph, int32 Begin) const
	{
		const FStringView ParagraphText = Paragraph.Shaped->GetText();
		// At least one character stands on a line, however narrow it is.
		int32 End = FTextBoundaries::NextCharacter(ParagraphText, Begin);
		for (;;)
		{
			const int32 Next = FTextBoundaries::NextCharacter(ParagraphText, End);
			if (Next == End || Paragraph.GetAdvance(Begin, Next) > Style.WrapWidth + WidthTolerance)
			{
				return End;
			}
			End = Next;
		}
	}

	void FTextLayout::AddLine(int32 ParagraphIndex, int32 Begin, int32 End)
	{
		const FParagraph& Paragraph = Paragraphs[ParagraphIndex];
		FTextLine& Line = Lines.AddDefaulted_GetRef();
		Line.Begin = Paragraph.Begin + Begin;
		Line.End = Paragraph.Begin + End;
		Line.Paragraph = ParagraphIndex;
		Line.Width = Paragraph.GetAdvance(Begin, FTextBoundaries::TrimEnd(Paragraph.Shaped->GetText(), Begin, End));
		TextWidth = FMath::Max(TextWidth, Line.Width);
	}

	float FTextLayout::GetLinePitch() const
	{
		// Whole pixels, so that the baselines of all lines are equally sharp.
		return Style.Font.IsValid() ? FMath::Max(1.0f, FMath::RoundToFloat(Style.Font->GetMetrics().LineHeight * Style.LineHeightScale)) : 0.0f;
	}

	FVector2f FTextLayout::GetSize()
	{
		Update();
		const float Width = TextWidth + Style.Margin.Left + Style.Margin.Right;
		const float Height = GetLinePitch() * static_cast<float>(Lines.Num()) + Style.Margin.Top + Style.Margin.Bottom;
		return FVector2f(FMath::CeilToFloat(Width - WidthTolerance), FMath::CeilToFloat(Height - WidthTolerance));
	}

	TConstArrayView<FTextLine> FTextLayout::GetLines()
	{
		Update();
		return TConstArrayView<FTextLine>(Lines.GetData(), Lines.Num());
	}

	FShapedRunRef FTextLayout::GetRun(const FTextLine& Line)
	{
		if (!Line.Run.IsValid())
		{
			const FParagraph& Paragraph = Paragraphs[Line.Paragraph];
			FLineBuilder Builder(FFontServices::Get().GetShaper(), *Paragraph.Shaped);
			Line.Run = Builder.Build(Line.Begin - Paragraph.Begin, Line.End - Paragraph.Begin);
		}
		return Line.Run.ToSharedRef();
	}

	float FTextLayout::GetLineLeft(const FTextLine& Line, float Width, float AreaWidth) const
	{
		const bool bRightToLeft = Paragraphs[Line.Paragraph].Shaped->IsRightToLeft();
		const float Free = AreaWidth - Style.Margin.Left - Style.Margin.Right - Width;
		float Left = Style.Margin.Left;
		if (Style.Align == ETextAlign::Center)
		{
			Left += FMath::Max(Free, 0.0f) / 2.0f;
		}
		else if ((Style.Align == ETextAlign::End) != bRightToLeft)
		{
			Left += FMath::Max(Free, 0.0f);
		}
		return Left;
	}

	float FTextLayout::GetRunLeft(const FTextLine& Line, float AreaWidth)
	{
		const float Left = GetLineLeft(Line, Line.Width, AreaWidth);
		return Paragraphs[Line.Paragraph].Shaped->IsRightToLeft() ? Left - (GetRun(Line)->GetWidth() - Line.Width) : Left;
	}

	void FTextLayout::Place(FVector2f Area, ETextOverflow Overflow, TArray<FPlacedRun>& OutRuns)
	{
		Update();
		OutRuns.Reset();
		const float Pitch = GetLinePitch();
		const float MaxWidth = Area.X - Style.Margin.Left - Style.Margin.Right;
		const float MaxHeight = Area.Y - Style.Margin.Top - Style.Margin.Bottom;
		int32 NumVisible = Lines.Num();
		if (Overflow == ETextOverflow::MultilineEllipsis)
		{
			NumVisible = FMath::Clamp(FMath::FloorToInt32((MaxHeight + WidthTolerance) / Pitch), 1, Lines.Num());
		}
		for (int32 Index = 0; Index < NumVisible; ++Index)
		{
			const FTextLine& Line = Lines[Index];
			const bool bTooWide = Line.Width > MaxWidth + WidthTolerance;
			const bool bCutBelow = Index + 1 == NumVisible && NumVisible < Lines.Num();
			const bool bEllipsis = Overflow != ETextOverflow::Clip && (bTooWide || bCutBelow);
			const FShapedRunRef Run = bEllipsis ? MakeEllipsis(Line, MaxWidth) : GetRun(Line);
			const float Left = bEllipsis ? GetLineLeft(Line, Run->GetWidth(), Area.X) : GetRunLeft(Line, Area.X);
			const float Top = Style.Margin.Top + Pitch * static_cast<float>(Index);
			const FVector2f Origin(Left, Top + Style.Font->GetMetrics().Baseline);
			OutRuns.Add({ Run, Origin });
		}
	}

	FShapedRunRef FTextLayout::MakeEllipsis(const FTextLine& Line, float MaxWidth)
	{
		FFontServices& Services = FFontServices::Get();
		const FSizedFontRef Font = Style.Font.ToSharedRef();
		const FParagraph& Paragraph = Paragraphs[Line.Paragraph];
		const FStringView ParagraphText = Paragraph.Shaped->GetText();
		static constexpr TCHAR Ellipsis = 0x2026;
		const float Room = MaxWidth - Services.Shape(Font, FStringView(&Ellipsis, 1))->GetWidth() + WidthTolerance;
		const int32 Begin = Line.Begin - Paragraph.Begin;
		const int32 LineEnd = Line.End - Paragraph.Begin;
		int32 End = Begin;
		while (End < LineEnd)
		{
			const int32 Next = FMath::Min(FTextBoundaries::NextCharacter(ParagraphText, End), LineEnd);
			if (Paragraph.GetAdvance(Begin, Next) > Room)
			{
				break;
			}
			End = Next;
		}
		End = FTextBoundaries::TrimEnd(ParagraphText, Begin, End);
		TArray<TCHAR> Shortened;
		Shortened.Append(ParagraphText.GetData() + Begin, End - Begin);
		Shortened.Add(Ellipsis);
		const ETextDirection Direction = Paragraph.Shaped->IsRightToLeft() ? ETextDirection::RightToLeft : ETextDirection::LeftToRight;
		return Services.GetShaper().ShapeLine(Font, FStringView(Shortened.GetData(), Shortened.Num()), Direction);
	}
}
