#include "Host/CompositeFaces.h"

#include "Host/FontLog.h"

namespace Host
{
	static constexpr uint32 LastCharacter = 0x10FFFF;

	static EGlyphFlags GetHintingFlags(EFontHinting Hinting)
	{
		switch (Hinting)
		{
		case EFontHinting::Auto:
			return EGlyphFlags::HintFull;
		case EFontHinting::Monochrome:
			return EGlyphFlags::HintMonochrome;
		case EFontHinting::None:
			return EGlyphFlags::HintNone;
		default:
			return EGlyphFlags::HintLight;
		}
	}

	bool FCompositeFaces::FMember::Covers(uint32 Character) const
	{
		int32 Low = 0;
		int32 High = Ranges.Num();
		while (Low < High)
		{
			const int32 Middle = (Low + High) / 2;
			if (Ranges[Middle].Last < Character)
			{
				Low = Middle + 1;
			}
			else
			{
				High = Middle;
			}
		}
		return Low < Ranges.Num() && Ranges[Low].First <= Character;
	}

	FCompositeFaces::FCompositeFaces(FFontFaces& InFaces, const FCompositeFont* Font, FName Typeface, EFontFallback Fallback)
		: Faces(InFaces)
	{
		if (Font)
		{
			AddMember(Font->DefaultTypeface, Typeface, 1.0f);
			for (const FCompositeSubFont& SubFont : Font->SubTypefaces)
			{
				AddSubFont(SubFont, Typeface);
			}
			if (Fallback != EFontFallback::FF_NoFallback && !Font->FallbackTypeface.Typeface.Fonts.IsEmpty())
			{
				AddMember(Font->FallbackTypeface.Typeface, Typeface, Font->FallbackTypeface.ScalingFactor);
			}
		}
		if (!Font || Fallback == EFontFallback::FF_LastResortFallback)
		{
			AddMember(FTypeface(), NAME_None, 1.0f);
		}
	}

	void FCompositeFaces::AddMember(const FTypeface& Typeface, FName Name, float Scaling)
	{
		FMember& Member = Members.AddDefaulted_GetRef();
		// A factor that is no sensible one would make text vanish or burst the atlas.
		Member.Scaling = Scaling >= 0.1f && Scaling <= 10.0f ? Scaling : 1.0f;
		if (Typeface.Fonts.IsEmpty())
		{
			return;
		}
		const FTypefaceEntry* Named = Typeface.Fonts.FindByPredicate([Name](const FTypefaceEntry& Entry) { return Entry.Name == Name; });
		Member.Font = (Named ? *Named : Typeface.Fonts[0]).Font;
		Member.Hinting = GetHintingFlags(Member.Font.GetHinting());
	}

	void FCompositeFaces::AddSubFont(const FCompositeSubFont& SubFont, FName Name)
	{
		if (SubFont.Typeface.Fonts.IsEmpty())
		{
			return;
		}
		// Two more may follow: the fallback and the built-in face.
		if (Members.Num() + 2 >= MaxFaces)
		{
			UE_LOG(LogSlateFonts, Error, TEXT("A composite font has more than %d sub-fonts; '%s' and those after it are not used"), MaxFaces - 3,
				*SubFont.Typeface.Fonts[0].Font.GetFontFilename());
			return;
		}
		TArray<FRange> Ranges;
		for (const FInt32Range& Range : SubFont.CharacterRanges)
		{
			const int64 First = Range.LowerBound.IsOpen() ? 0 : int64(Range.LowerBound.Value) + (Range.LowerBound.IsExclusive() ? 1 : 0);
			const int64 Last = Range.UpperBound.IsOpen() ? LastCharacter : int64(Range.UpperBound.Value) - (Range.UpperBound.IsExclusive() ? 1 : 0);
			if (First <= Last && Last >= 0 && First <= LastCharacter)
			{
				Ranges.Add({ static_cast<uint32>(FMath::Max<int64>(First, 0)), static_cast<uint32>(FMath::Min<int64>(Last, LastCharacter)) });
			}
		}
		Ranges.Sort([](const FRange& A, const FRange& B) { return A.First < B.First; });

		AddMember(SubFont.Typeface, Name, SubFont.ScalingFactor);
		FMember& Member = Members.Last();
		Member.bSubFont = true;
		for (const FRange& Range : Ranges)
		{
			FirstSpecialCharacter = FMath::Min(FirstSpecialCharacter, Range.First);
			if (!Member.Ranges.IsEmpty() && Range.First <= Member.Ranges.Last().Last + 1)
			{
				Member.Ranges.Last().Last = FMath::Max(Member.Ranges.Last().Last, Range.Last);
			}
			else
			{
				Member.Ranges.Add(Range);
			}
		}
	}

	const FFontFace& FCompositeFaces::GetFace(int32 Index) const
	{
		FMember& Member = Members[Index];
		if (!Member.Face.IsValid())
		{
			Member.Face = Faces.Load(Member.Font);
		}
		return *Member.Face;
	}

	int32 FCompositeFaces::Choose(uint32 Character) const
	{
		if (Character >= FirstSpecialCharacter)
		{
			for (int32 Index = 1; Index < Members.Num(); ++Index)
			{
				if (Members[Index].bSubFont && Members[Index].Covers(Character) && GetFace(Index).FindGlyph(Character) != 0)
				{
					return Index;
				}
			}
		}
		for (int32 Index = 0; Index < Members.Num(); ++Index)
		{
			if (!Members[Index].bSubFont && GetFace(Index).FindGlyph(Character) != 0)
			{
				return Index;
			}
		}
		return 0;
	}
}
