#include "Host/TextBoundaries.h"

#include <unicode/ubrk.h>
#include <unicode/utypes.h>

namespace Host
{
	namespace
	{
		/** An iterator of ICU, opened when it is first needed: its rules take a while to load. */
		class FBreakIterator
		{
		public:
			explicit FBreakIterator(UBreakIteratorType InType) : Type(InType) {}
			FBreakIterator(const FBreakIterator&) = delete;
			FBreakIterator& operator=(const FBreakIterator&) = delete;

			~FBreakIterator()
			{
				if (Iterator)
				{
					ubrk_close(Iterator);
				}
			}

			/** Null when ICU lacks its data: then text is cut between units. */
			UBreakIterator* Open(FStringView Text)
			{
				UErrorCode Error = U_ZERO_ERROR;
				if (!Iterator)
				{
					Iterator = ubrk_open(Type, "", nullptr, 0, &Error);
				}
				if (U_SUCCESS(Error))
				{
					ubrk_setText(Iterator, Text.GetData(), Text.Len(), &Error);
				}
				return U_SUCCESS(Error) ? Iterator : nullptr;
			}

		private:
			UBreakIteratorType Type;
			UBreakIterator* Iterator = nullptr;
		};

		UBreakIterator* OpenCharacters(FStringView Text)
		{
			static FBreakIterator Iterator(UBRK_CHARACTER);
			return Iterator.Open(Text);
		}

		UBreakIterator* OpenWords(FStringView Text)
		{
			static FBreakIterator Iterator(UBRK_WORD);
			return Iterator.Open(Text);
		}

		UBreakIterator* OpenLines(FStringView Text)
		{
			static FBreakIterator Iterator(UBRK_LINE);
			return Iterator.Open(Text);
		}

		/** Whether a unit is a visible character by itself whatever stands beside it, as long as that is one too. */
		bool StandsAlone(TCHAR Unit)
		{
			return Unit >= 0x20 && Unit < 0x300 && Unit != 0xA9 && Unit != 0xAE && Unit != 0xAD;
		}
	}

	int32 FTextBoundaries::NextCharacter(FStringView Text, int32 Position)
	{
		Position = FMath::Max(Position, 0);
		if (Position >= Text.Len())
		{
			return Text.Len();
		}
		const bool bLast = Position + 1 == Text.Len();
		if (StandsAlone(Text[Position]) && (bLast || StandsAlone(Text[Position + 1])))
		{
			return Position + 1;
		}
		UBreakIterator* Iterator = OpenCharacters(Text);
		const int32 Result = Iterator ? ubrk_following(Iterator, Position) : UBRK_DONE;
		return Result == UBRK_DONE ? Position + 1 : Result;
	}

	int32 FTextBoundaries::PreviousCharacter(FStringView Text, int32 Position)
	{
		Position = FMath::Min(Position, Text.Len());
		if (Position <= 1)
		{
			return 0;
		}
		if (StandsAlone(Text[Position - 1]) && StandsAlone(Text[Position - 2]))
		{
			return Position - 1;
		}
		UBreakIterator* Iterator = OpenCharacters(Text);
		const int32 Result = Iterator ? ubrk_preceding(Iterator, Position) : UBRK_DONE;
		return Result == UBRK_DONE ? Position - 1 : Result;
	}

	int32 FTextBoundaries::NextWord(FStringView Text, int32 Position)
	{
		Position = FMath::Clamp(Position, 0, Text.Len());
		UBreakIterator* Iterator = OpenWords(Text);
		int32 Result = Position;
		do
		{
			const int32 Next = Iterator ? ubrk_following(Iterator, Result) : UBRK_DONE;
			Result = Next == UBRK_DONE ? Text.Len() : Next;
		}
		while (Result < Text.Len() && (IsBlank(Text[Result]) || IsLineBreak(Text[Result])));
		return Result;
	}

	int32 FTextBoundaries::PreviousWord(FStringView Text, int32 Position)
	{
		Position = FMath::Clamp(Position, 0, Text.Len());
		UBreakIterator* Iterator = OpenWords(Text);
		int32 Result = Position;
		do
		{
			const int32 Previous = Iterator && Result > 0 ? ubrk_preceding(Iterator, Result) : UBRK_DONE;
			Result = Previous == UBRK_DONE ? 0 : Previous;
		}
		while (Result > 0 && (IsBlank(Text[Result]) || IsLineBreak(Text[Result])));
		return Result;
	}

	void FTextBoundaries::FindWord(FStringView Text, int32 Position, int32& OutBegin, int32& OutEnd)
	{
		OutBegin = 0;
		OutEnd = Text.Len();
		if (Text.Len() == 0)
		{
			return;
		}
		Position = FMath::Clamp(Position, 0, Text.Len() - 1);
		if (UBreakIterator* Iterator = OpenWords(Text))
		{
			const int32 End = ubrk_following(Iterator, Position);
			OutEnd = End == UBRK_DONE ? Text.Len() : End;
			const int32 Begin = ubrk_preceding(Iterator, OutEnd);
			OutBegin = Begin == UBRK_DONE ? 0 : Begin;
		}
	}

	void FTextBoundaries::FindLineBreaks(FStringView Text, TArray<int32>& OutPositions)
	{
		OutPositions.Reset();
		if (UBreakIterator* Iterator = OpenLines(Text))
		{
			for (int32 Position = ubrk_next(Iterator); Position != UBRK_DONE; Position = ubrk_next(Iterator))
			{
				OutPositions.Add(Position);
			}
		}
		if (OutPositions.IsEmpty() || OutPositions.Last() != Text.Len())
		{
			OutPositions.Add(Text.Len());
		}
	}

	int32 FTextBoundaries::TrimEnd(FStringView Text, int32 Begin, int32 End)
	{
		while (End > Begin && IsBlank(Text[End - 1]))
		{
			--End;
		}
		return End;
	}
}
