#include "Host/TextItemiser.h"

#include "Host/TextShaper.h"

#include <unicode/ubidi.h>
#include <unicode/uchar.h>
#include <unicode/utf16.h>

#include <hb.h>

namespace Host
{
	namespace
	{
		/** Whether a unit is a Latin letter or a sign that goes with any script, and draws something by itself. */
		constexpr bool IsLatinOrSign(TCHAR Unit)
		{
			return (Unit >= 0x20 && Unit < 0x7F) || (Unit >= 0xA0 && Unit < 0x300 && Unit != 0xAD) || (Unit >= 0x2010 && Unit <= 0x2027)
				|| (Unit >= 0x2030 && Unit <= 0x205E) || (Unit >= 0x20A0 && Unit <= 0x20C0) || (Unit >= 0xE000 && Unit <= 0xF8FF);
		}

		/** Whether a unit can be part of text that reads from right to left, or that asks for it. */
		constexpr bool CanBeRightToLeft(TCHAR Unit)
		{
			return Unit >= 0x590
				&& (Unit <= 0x8FF || (Unit >= 0x200E && Unit <= 0x202E) || (Unit >= 0x2066 && Unit <= 0x2069) || (Unit >= 0xD802 && Unit <= 0xD803)
					|| (Unit >= 0xD83A && Unit <= 0xD83B) || (Unit >= 0xFB1D && Unit <= 0xFDFF) || (Unit >= 0xFE70 && Unit <= 0xFEFF));
		}

		bool IsScriptNeutral(hb_script_t Script)
		{
			return Script == HB_SCRIPT_COMMON || Script == HB_SCRIPT_INHERITED || Script == HB_SCRIPT_UNKNOWN;
		}

		/** Characters that take the face of what stands before them: marks, joiners, controls. */
		bool FollowsItsNeighbour(UChar32 Character)
		{
			if (Character < 0x20 || u_hasBinaryProperty(Character, UCHAR_DEFAULT_IGNORABLE_CODE_POINT))
			{
				return true;
			}
			const int8_t Type = u_charType(Character);
			return Type == U_NON_SPACING_MARK || Type == U_ENCLOSING_MARK || Type == U_COMBINING_SPACING_MARK || Type == U_CONTROL_CHAR;
		}

		int32 ChooseSlot(const FResolvedFont& Font, UChar32 Character, int32 PreviousSlot)
		{
			if (PreviousSlot != INDEX_NONE)
			{
				const bool bBlank = Character == ' ' || Character == 0xA0;
				if (FollowsItsNeighbour(Character))
				{
					// A mark is drawn with its letter's face if that has it at all.
					if (Font.GetFace(PreviousSlot).FindGlyph(static_cast<uint32>(Character)) != 0 || u_charType(Character) == U_CONTROL_CHAR
						|| u_hasBinaryProperty(Character, UCHAR_DEFAULT_IGNORABLE_CODE_POINT))
					{
						return PreviousSlot;
					}
				}
				else if (bBlank && Font.GetFace(PreviousSlot).FindGlyph(static_cast<uint32>(Character)) != 0)
				{
					return PreviousSlot;
				}
			}
			return Font.GetFaces().Choose(static_cast<uint32>(Character));
		}
	}

	FTextItemiser::~FTextItemiser()
	{
		if (Bidi)
		{
			ubidi_close(Bidi);
		}
	}

	bool FTextItemiser::IsSimple(const FResolvedFont& Font, FStringView Text)
	{
		const uint32 FirstSpecial = Font.GetFaces().GetFirstSpecialCharacter();
		for (const TCHAR Unit : Text)
		{
			if (!IsLatinOrSign(Unit) || Unit >= FirstSpecial)
			{
				return false;
			}
		}
		return true;
	}

	void FTextItemiser::FindLevels(ETextDirection Direction, FShapedParagraph& Paragraph)
	{
		Levels.Reset();
		Paragraph.BaseLevel = Direction == ETextDirection::RightToLeft ? 1 : 0;
		bool bMixed = Direction == ETextDirection::RightToLeft;
		for (const TCHAR Unit : Paragraph.Text)
		{
			bMixed = bMixed || CanBeRightToLeft(Unit);
		}
		if (!bMixed)
		{
			return;
		}
		if (!Bidi)
		{
			Bidi = ubidi_open();
		}
		const UBiDiLevel Base = Direction == ETextDirection::Auto ? UBIDI_DEFAULT_LTR : Paragraph.BaseLevel;
		UErrorCode Error = U_ZERO_ERROR;
		ubidi_setPara(Bidi, Paragraph.Text.GetData(), Paragraph.Text.Num(), Base, nullptr, &Error);
		const UBiDiLevel* Found = U_SUCCESS(Error) ? ubidi_getLevels(Bidi, &Error) : nullptr;
		if (U_FAILURE(Error) || !Found)
		{
			return;
		}
		Paragraph.BaseLevel = ubidi_getParaLevel(Bidi);
		Levels.Append(Found, Paragraph.Text.Num());
	}

	void FTextItemiser::Itemise(ETextDirection Direction, FShapedParagraph& Paragraph)
	{
		FindLevels(Direction, Paragraph);
		const FResolvedFont& Font = FResolvedFont::Of(*Paragraph.Font);
		hb_unicode_funcs_t* Unicode = hb_unicode_funcs_get_default();
		const TCHAR* Text = Paragraph.Text.GetData();
		const int32 Length = Paragraph.Text.Num();
		Paragraph.Items.Reset();

		int32 Slot = INDEX_NONE;
		hb_script_t LastScript = HB_SCRIPT_COMMON;
		for (int32 Position = 0; Position < Length;)
		{
			const int32 Begin = Position;
			UChar32 Character;
			U16_NEXT(Text, Position, Length, Character);
			const uint8 Level = Levels.IsEmpty() ? Paragraph.BaseLevel : Levels[Begin];
			Slot = ChooseSlot(Font, Character, Slot);
			hb_script_t Script = hb_unicode_script(Unicode, static_cast<hb_codepoint_t>(Character));
			if (IsScriptNeutral(Script))
			{
				Script = LastScript;
			}
			LastScript = Script;

			FShapedItem* Item = Paragraph.Items.IsEmpty() ? nullptr : &Paragraph.Items.Last();
			if (Item && Item->Level == Level && Item->Slot == Slot && Item->Script == HB_SCRIPT_COMMON)
			{
				// Signs before the first letter belong to its script.
				Item->Script = Script;
			}
			if (!Item || Item->Level != Level || Item->Slot != Slot || Item->Script != static_cast<uint32>(Script))
			{
				Item = &Paragraph.Items.AddDefaulted_GetRef();
				Item->Begin = Begin;
				Item->Level = Level;
				Item->Slot = static_cast<uint16>(Slot);
				Item->Script = Script;
			}
			Item->End = Position;
		}
	}
}
