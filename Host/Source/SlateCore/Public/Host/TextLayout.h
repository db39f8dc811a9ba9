#pragma once

#include "CoreMinimal.h"
#include "Host/ShapedRun.h"
#include "Host/SizedFont.h"
#include "Layout/Margin.h"

namespace Host
{
	struct FClusterBox;
	struct FShapedParagraph;

	enum class ETextAlign : uint8
	{
		/** At the start of the reading direction: left for most scripts. */
		Start,
		Center,
		End,
	};

	/** What happens to text that does not fit the area it is shown in. */
	enum class ETextOverflow : uint8
	{
		/** It is all placed, and may be clipped. */
		Clip,
		/** Lines that are too wide end in an ellipsis. */
		Ellipsis,
		/** As Ellipsis; besides, when lines are cut off below, the last one that shows ends in one. */
		MultilineEllipsis,
	};

	/** How text is laid out. Lengths are pixels. */
	struct FTextLayoutStyle
	{
		FSizedFontPtr Font;
		/** Lines are broken so that they are no wider than this, margin excluded; 0 breaks only where the text does. */
		float WrapWidth = 0.0f;
		/** Words that are too wide for a line may be broken anywhere. */
		bool bBreakWords = false;
		/** From one line to the next, as a share of the font's line height. */
		float LineHeightScale = 1.0f;
		ETextAlign Align = ETextAlign::Start;
		FMargin Margin;

		bool operator==(const FTextLayoutStyle& Other) const;
	};

	/** A line of laid out text. */
	struct FTextLine
	{
		/** UTF-16 units of the text, without the line break at the end. */
		int32 Begin = 0;
		int32 End = 0;
		/** Which paragraph it is of. */
		int32 Paragraph = 0;
		/** Width of what shows: blanks at the end do not count. */
		float Width = 0.0f;
		/** Made when first drawn. */
		mutable FShapedRunPtr Run;
	};

	/** A run and where its baseline begins, in pixels from the top left corner of the layout. */
	struct FPlacedRun
	{
		FShapedRunRef Run;
		FVector2f Origin;
	};

	/** A caret: a vertical line at X from Top over Height. */
	struct FCaretPlace
	{
		int32 Line = 0;
		float X = 0.0f;
		float Top = 0.0f;
		float Height = 0.0f;
	};

	/**
	 * A place between two characters, and the one of them that it stands at: they are apart where text of both directions meets
	 * and where a line wraps.
	 */
	struct FTextPlace
	{
		/** UTF-16 units before it. */
		int32 Index = 0;
		/** At the end of the character before it, instead of at the beginning of the one behind it. */
		bool bAfter = false;
	};

	/** A part of a line that is selected. */
	struct FSelectionBox
	{
		float Left = 0.0f;
		float Top = 0.0f;
		float Right = 0.0f;
		float Bottom = 0.0f;
	};

	/**
	 * Text of any number of lines: paragraphs, wrapping, alignment, both directions; where a point falls and where a
	 * caret stands. Changing the text shapes only the paragraphs that changed; changing widths shapes nothing anew but
	 * the ends of lines where the script asks for it. Work is done when a result is asked for.
	 */
	class FTextLayout
	{
	public:
		FTextLayout();
		~FTextLayout();
		FTextLayout(const FTextLayout&) = delete;
		FTextLayout& operator=(const FTextLayout&) = delete;

		void SetText(FStringView InText);
		FStringView GetText() const { return FStringView(Text.GetData(), Text.Num()); }

		/** The font must be set before anything is asked for. */
		void SetStyle(const FTextLayoutStyle& InStyle);
		const FTextLayoutStyle& GetStyle() const { return Style; }

		/** Width and height with the margin, in whole pixels. */
		FVector2f GetSize();
		TConstArrayView<FTextLine> GetLines();
		/** Whole pixels from one line to the next. */
		float GetLinePitch() const;

		/**
		 * Places the lines that an area shows, aligned within its width.
		 * @param Area	in pixels
		 */
		void Place(FVector2f Area, ETextOverflow Overflow, TArray<FPlacedRun>& OutRuns);

		/** Index of the caret position nearest to a point. @param AreaWidth the width given to Place */
		int32 FindIndexAt(FVector2f Point, float AreaWidth);

		/** As FindIndexAt; besides, at which character: the one that the point falls on. */
		FTextPlace FindPlaceAt(FVector2f Point, float AreaWidth);

		/** The place one character to the left or to the right on the screen. The same one at the end of the line. */
		FTextPlace FindPlaceBeside(const FTextPlace& From, bool bToRight);

		/**
		 * Where the caret before a unit of the text stands.
		 * @param bAfter	at the end of the character before it, instead of at the beginning of the one behind: where a line wraps,
		 *					at the end of the upper line
		 */
		FCaretPlace GetCaret(int32 Index, float AreaWidth, bool bAfter = false);

		/** Boxes of the selection from one unit to before another, from top to bottom, several on lines of mixed direction. */
		void GetSelection(int32 Begin, int32 End, float AreaWidth, TArray<FSelectionBox>& OutBoxes);

		/** The line that an index falls on. */
		int32 FindLine(int32 Index, bool bAfter = false);

		/** Whether the paragraph that an index falls in begins at the right. */
		bool IsRightToLeft(int32 Index);

		/** Paragraphs shaped since the layout was made. */
		int32 GetNumShaped() const { return NumShaped; }

	private:
		struct FParagraph;

		void SplitParagraphs(FStringView NewText, TArray<FParagraph>& Out);
		void Update();
		void Shape(FParagraph& Paragraph);
		void BreakLines(FParagraph& Paragraph, int32 ParagraphIndex);
		int32 FindLineEnd(const FParagraph& Paragraph, int32 Begin, int32& InOutBreak) const;
		int32 FindForcedBreak(const FParagraph& Paragraph, int32 Begin) const;
		void AddLine(int32 ParagraphIndex, int32 Begin, int32 End);

		FShapedRunRef GetRun(const FTextLine& Line);
		FShapedRunRef MakeEllipsis(const FTextLine& Line, float MaxWidth);
		float GetLineLeft(const FTextLine& Line, float Width, float AreaWidth) const;
		/** The left end of the line's run: of the blanks before what shows, when it reads to the left. */
		float GetRunLeft(const FTextLine& Line, float AreaWidth);
		void FindClusters(const FTextLine& Line, TArray<FClusterBox>& OutBoxes);

		TArray<TCHAR> Text;
		FTextLayoutStyle Style;
		TArray<FParagraph> Paragraphs;
		TArray<FTextLine> Lines;
		float TextWidth = 0.0f;
		bool bLinesValid = false;
		int32 NumShaped = 0;
	};
}
