#pragma once

#include "CoreMinimal.h"

/** One cell of a table, without its quotes. */
struct FTableCell
{
	FString Text;
	/** Where it starts: both counted from 1. */
	uint32 Line = 0;
	uint32 Column = 0;
};

/** Walks the rows of a table of separated text. */
class FTableRows
{
public:
	/** The text outlives the walk. */
	explicit FTableRows(FStringView InText);

	TCHAR GetSeparator() const { return Separator; }

	/** Reads the next row that holds anything. False at the end of the text, and in a quote that does not end. */
	bool Next();

	/** The cells of the row; those behind Num() are of rows before. */
	const FTableCell& operator[](int32 Index) const { return Cells[Index]; }
	int32 Num() const { return NumCells; }

	/** Whether the walk ended in a quote that does not end; the last cell is where it starts. */
	bool IsCut() const { return bCut; }

private:
	TCHAR FindSeparator() const;
	FTableCell& AddCell();
	bool ReadCell();
	bool ReadQuoted(FTableCell& Cell);
	/** Goes behind a character that may end a line; CR LF is one. */
	void Step();
	bool IsAtEndOfLine() const { return At == Text.Len() || Text[At] == '\n' || Text[At] == '\r'; }

	FStringView Text;
	TCHAR Separator;
	int32 At = 0;
	uint32 Line = 1;
	uint32 Column = 1;
	/** Their memory is used again from row to row. */
	TArray<FTableCell> Cells;
	int32 NumCells = 0;
	bool bCut = false;
};
