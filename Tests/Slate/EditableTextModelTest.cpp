#include <random>

#include "EditableTextTools.h"

namespace
{
	/** What keys do to a text, written down plainly: a list of characters as a person sees them. */
	class FPlainText
	{
	public:
		void Type(const FString& Character, bool bBlank)
		{
			const bool bBeginsWord = !bBlank && GetBegin() > 0 && IsBlank(GetBegin() - 1);
			KeepState(HasSelection() || bBeginsWord ? EStep::NewTyping : EStep::Typing);
			Replace(GetBegin(), GetEnd(), {Character});
		}

		void Paste(const TArray<FString>& Characters)
		{
			if (Characters.IsEmpty())
			{
				return;
			}
			KeepState(EStep::Other);
			Replace(GetBegin(), GetEnd(), Characters);
		}

		void Remove(bool bBack, bool bWord)
		{
			const int32 Target = HasSelection() ? State.Anchor : FindTarget(bBack, bWord);
			if (Target == State.Caret)
			{
				return;
			}
			const bool bAlone = bWord || HasSelection();
			KeepState(bAlone ? EStep::Other : bBack ? EStep::Backspace : EStep::Delete);
			Replace(FMath::Min(Target, State.Caret), FMath::Max(Target, State.Caret), {});
		}

		TArray<FString> Cut()
		{
			const TArray<FString> Characters = GetSelection();
			if (HasSelection())
			{
				KeepState(EStep::Other);
				Replace(GetBegin(), GetEnd(), {});
			}
			return Characters;
		}

		void Move(bool bBack, bool bWord, bool bSelect)
		{
			const bool bToEdge = HasSelection() && !bWord && !bSelect;
			MoveTo(bToEdge ? (bBack ? GetBegin() : GetEnd()) : FindTarget(bBack, bWord), bSelect);
		}

		void MoveToEnd(bool bBack, bool bSelect) { MoveTo(bBack ? 0 : State.Characters.Num(), bSelect); }

		void SelectAll()
		{
			MoveTo(0, false);
			MoveTo(State.Characters.Num(), true);
		}

		void Restore(bool bRedo)
		{
			TArray<FState>& From = bRedo ? Undone : Kept;
			if (!From.IsEmpty())
			{
				(bRedo ? Kept : Undone).Add(State);
				State = From.Pop();
				LastStep = EStep::Other;
			}
		}

		TArray<FString> GetSelection() const
		{
			TArray<FString> Selected;
			for (int32 Index = GetBegin(); Index < GetEnd(); ++Index)
			{
				Selected.Add(State.Characters[Index]);
			}
			return Selected;
		}

		FString GetText() const { return FString::Join(State.Characters, TEXT("")); }
		bool HasSelection() const { return State.Caret != State.Anchor; }

	private:
		struct FState
		{
			TArray<FString> Characters;
			int32 Caret = 0;
			int32 Anchor = 0;
		};

		enum class EStep
		{
			Other,
			Typing,
			NewTyping,
			Backspace,
			Delete,
		};

		int32 GetBegin() const { return FMath::Min(State.Caret, State.Anchor); }
		int32 GetEnd() const { return FMath::Max(State.Caret, State.Anchor); }
		bool IsBlank(int32 Index) const { return State.Characters[Index] == TEXT(" "); }
		/** Letters make words; a blank ends one, and so does a picture. */
		bool IsLetter(int32 Index) const { return !IsBlank(Index) && State.Characters[Index][0] < 0x400; }

		int32 FindTarget(bool bBack, bool bWord) const
		{
			const int32 Num = State.Characters.Num();
			int32 Place = State.Caret;
			if (!bWord)
			{
				return FMath::Clamp(Place + (bBack ? -1 : 1), 0, Num);
			}
			if (bBack)
			{
				while (Place > 0 && IsBlank(Place - 1))
				{
					--Place;
				}
				const bool bLetters = Place > 0 && IsLetter(Place - 1);
				Place = FMath::Max(Place - 1, 0);
				while (bLetters && Place > 0 && IsLetter(Place - 1))
				{
					--Place;
				}
				return Place;
			}
			const bool bLetters = Place < Num && IsLetter(Place);
			Place = FMath::Min(Place + 1, Num);
			while (bLetters && Place < Num && IsLetter(Place))
			{
				++Place;
			}
			while (Place < Num && IsBlank(Place))
			{
				++Place;
			}
			return Place;
		}

		void MoveTo(int32 Place, bool bSelect)
		{
			State.Caret = Place;
			State.Anchor = bSelect ? State.Anchor : Place;
			LastStep = EStep::Other;
		}

		void KeepState(EStep Step)
		{
			Undone.Reset();
			if (Step == EStep::Other || Step != LastStep)
			{
				Kept.Add(State);
			}
			LastStep = Step == EStep::NewTyping ? EStep::Typing : Step;
			// As much as can be undone.
			if (Kept.Num() > 200)
			{
				Kept.RemoveAt(0);
			}
		}

		void Replace(int32 Begin, int32 End, const TArray<FString>& With)
		{
			State.Characters.RemoveAt(Begin, End - Begin);
			State.Characters.Insert(With, Begin);
			State.Caret = Begin + With.Num();
			State.Anchor = State.Caret;
		}

		FState State;
		TArray<FState> Kept;
		TArray<FState> Undone;
		EStep LastStep = EStep::Other;
	};
}

/** The widget under random keys against a plain model of what they do. */
class EditableTextModelTest : public FEditableTextTest, public testing::WithParamInterface<uint32>
{
protected:
	int32 Pick(int32 Count) { return static_cast<int32>(Random() % static_cast<uint32>(Count)); }

	void Edit(FPlainText& Plain, TArray<FString>& Clipboard)
	{
		const bool bBack = Pick(2) == 0;
		const bool bWord = Pick(3) == 0;
		const bool bSelect = Pick(3) == 0;
		switch (Pick(14))
		{
		case 0: case 1: case 2: case 3: case 4: case 5:
		{
			static const TCHAR* const Characters[] = {TEXT("a"), TEXT("b"), TEXT(" "), TEXT("e\u0301"), TEXT("\U0001F3E0")};
			const int32 Character = Pick(UE_ARRAY_COUNT(Characters));
			Type(Characters[Character]);
			Plain.Type(Characters[Character], Character == 2);
			break;
		}
		case 6: case 7:
			Stroke(bBack ? EKeys::BackSpace : EKeys::Delete, bWord);
			Plain.Remove(bBack, bWord);
			break;
		case 8: case 9: case 10:
			Stroke(bBack ? EKeys::Left : EKeys::Right, bWord, bSelect);
			Plain.Move(bBack, bWord, bSelect);
			break;
		case 11:
			if (Pick(3) == 0)
			{
				Stroke(EKeys::A, true);
				Plain.SelectAll();
				break;
			}
			Stroke(bBack ? EKeys::Home : EKeys::End, false, bSelect);
			Plain.MoveToEnd(bBack, bSelect);
			break;
		case 12:
			Stroke(bBack ? EKeys::Z : EKeys::Y, true);
			Plain.Restore(!bBack);
			break;
		default:
			EditByClipboard(Plain, Clipboard);
			break;
		}
	}

	void EditByClipboard(FPlainText& Plain, TArray<FString>& Clipboard)
	{
		const int32 Choice = Pick(3);
		if (Choice == 0)
		{
			Stroke(EKeys::V, true);
			Plain.Paste(Clipboard);
			return;
		}
		const bool bCut = Choice == 1;
		const bool bSelected = Plain.HasSelection();
		Stroke(bCut ? EKeys::X : EKeys::C, true);
		const TArray<FString> Taken = bCut ? Plain.Cut() : Plain.GetSelection();
		Clipboard = bSelected ? Taken : Clipboard;
	}

	std::mt19937 Random{GetParam()};
};

TEST_P(EditableTextModelTest, KeysDoWhatThePlainModelDoes)
{
	FPlatformApplicationMisc::ClipboardCopy(TEXT(""));
	ShowFocused(Arguments());
	FPlainText Plain;
	TArray<FString> Clipboard;
	int32 Longest = 0;
	for (int32 Step = 0; Step < 2000; ++Step)
	{
		Edit(Plain, Clipboard);
		ASSERT_EQ(Content(), TCHAR_TO_UTF8(*Plain.GetText())) << "after step " << Step;
		ASSERT_EQ(Selected(), TCHAR_TO_UTF8(*FString::Join(Plain.GetSelection(), TEXT("")))) << "after step " << Step;
		Longest = FMath::Max(Longest, Text->GetText().ToString().Len());
	}
	EXPECT_GT(Longest, 10);
}

INSTANTIATE_TEST_SUITE_P(Seeds, EditableTextModelTest, testing::Range(1u, 9u));
