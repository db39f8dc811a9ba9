#include "Project/TableRows.h"

FTableRows::FTableRows(FStringView InText)
	: Text(InText)
	, Separator(FindSeparator())
{
}

TCHAR FTableRows::FindSeparator() const
{
	const TCHAR Candidates[] = { ';', '\t', ',' };
	int32 Counts[] = { 0, 0, 0 };
	bool bQuoted = false;
	for (int32 Index = 0; Index < Text.Len(); ++Index)
	{
		const TCHAR Char = Text[Index];
		bQuoted ^= Char == '"';
		if (!bQuoted && (Char == '\n' || Char == '\r'))
		{
			break;
		}
		for (int32 Candidate = 0; Candidate < 3 && !bQuoted; ++Candidate)
		{
			Counts[Candidate] += Char == Candidates[Candidate];
		}
	}
	int32 Best = 2;
	for (int32 Candidate = 0; Candidate < 3; ++Candidate)
	{
		Best = Counts[Candidate] > Counts[Best] ? Candidate : Best;
	}
	return Candidates[Best];
}

bool FTableRows::Next()
{
	while (At < Text.Len() && !bCut)
	{
		NumCells = 0;
		bool bMore = true;
		while (bMore && !bCut)
		{
			bMore = ReadCell();
		}
		const bool bEmpty = NumCells == 1 && Cells[0].Text.TrimStartAndEnd().IsEmpty();
		if (!bEmpty && !bCut)
		{
			return true;
		}
	}
	return false;
}

FTableCell& FTableRows::AddCell()
{
	if (NumCells == Cells.Num())
	{
		Cells.AddDefaulted();
	}
	FTableCell& Cell = Cells[NumCells++];
	Cell.Text.Reset();
	Cell.Line = Line;
	Cell.Column = Column;
	return Cell;
}

bool FTableRows::ReadCell()
{
	FTableCell& Cell = AddCell();
	if (At < Text.Len() && Text[At] == '"' && !ReadQuoted(Cell))
	{
		return false;
	}
	// What stands behind a closing quote belongs to the cell.
	const int32 Start = At;
	while (!IsAtEndOfLine() && Text[At] != Separator)
	{
		Step();
	}
	Cell.Text += Text.Mid(Start, At - Start);
	const bool bMore = At < Text.Len() && Text[At] == Separator;
	if (At < Text.Len())
	{
		Step();
	}
	return bMore;
}

bool FTableRows::ReadQuoted(FTableCell& Cell)
{
	Step();
	int32 Start = At;
	while (At < Text.Len())
	{
		if (Text[At] != '"')
		{
			Step();
			continue;
		}
		Cell.Text += Text.Mid(Start, At - Start);
		Step();
		if (At == Text.Len() || Text[At] != '"')
		{
			return true;
		}
		// The second one of a doubled quote is content.
		Start = At;
		Step();
	}
	bCut = true;
	return false;
}

void FTableRows::Step()
{
	const TCHAR Char = Text[At++];
	if (Char == '\r' && At < Text.Len() && Text[At] == '\n')
	{
		++At;
	}
	if (Char == '\n' || Char == '\r')
	{
		++Line;
		Column = 1;
		return;
	}
	// The second half of a pair is no character of its own.
	const bool bSecondHalf = Char >= 0xDC00 && Char <= 0xDFFF;
	Column += bSecondHalf ? 0 : 1;
}
