#include "Widgets/Input/ShownText.h"

#include "Host/TextBoundaries.h"
#include "Widgets/Input/TextEditModel.h"

namespace Host
{
	namespace
	{
		/** Stands for every character of a password. */
		constexpr TCHAR PasswordDot = 0x2022;

		int32 CountCharacters(FStringView Text)
		{
			int32 Count = 0;
			for (int32 Position = 0; Position < Text.Len(); Position = FTextBoundaries::NextCharacter(Text, Position))
			{
				++Count;
			}
			return Count;
		}

		/** The end of a number of characters from the beginning of the text. */
		int32 SkipCharacters(FStringView Text, int32 Count)
		{
			int32 Position = 0;
			while (Count-- > 0)
			{
				Position = FTextBoundaries::NextCharacter(Text, Position);
			}
			return Position;
		}
	}

	void FShownText::Set(const FTextEditModel& Model, bool bInPassword, const FComposition& Composition)
	{
		Source = Model.GetText();
		bPassword = bInPassword;
		ReplacedBegin = Model.GetSelectionBegin();
		ReplacedEnd = Composition.Text.IsEmpty() ? ReplacedBegin : Model.GetSelectionEnd();
		const FString Composed = ToForm(Composition.Text);
		const FStringView View(Source);
		Text = ToForm(View.Left(ReplacedBegin));
		ComposedBegin = Text.Len();
		ComposedLength = Composed.Len();
		ComposedCaret = ComposedBegin + GetFormLength(FStringView(Composition.Text).Left(Composition.Caret));
		Text += Composed;
		Text += ToForm(View.RightChop(ReplacedEnd));
	}

	FString FShownText::ToForm(FStringView Part) const
	{
		return bPassword ? FString::ChrN(CountCharacters(Part), PasswordDot) : FString(Part);
	}

	int32 FShownText::GetFormLength(FStringView Part) const
	{
		return bPassword ? CountCharacters(Part) : Part.Len();
	}

	int32 FShownText::ToShown(int32 Position) const
	{
		const FStringView View(Source);
		if (Position <= ReplacedBegin)
		{
			return GetFormLength(View.Left(Position));
		}
		return GetCompositionEnd() + GetFormLength(View.Mid(ReplacedEnd, FMath::Max(Position - ReplacedEnd, 0)));
	}

	int32 FShownText::FromShown(int32 Shown) const
	{
		const FStringView View(Source);
		if (Shown <= ComposedBegin)
		{
			return bPassword ? SkipCharacters(View, Shown) : Shown;
		}
		const int32 Behind = FMath::Max(Shown - GetCompositionEnd(), 0);
		return ReplacedEnd + (bPassword ? SkipCharacters(View.RightChop(ReplacedEnd), Behind) : Behind);
	}
}
