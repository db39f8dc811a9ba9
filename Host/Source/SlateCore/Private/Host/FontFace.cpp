#include "Host/FontFace.h"

#include FT_ADVANCES_H
#include FT_TRUETYPE_TABLES_H
#include FT_TRUETYPE_TAGS_H

#include <hb-ot.h>

namespace Host
{

	struct FErrorText
	{
		int32 Error;
		const char* Text;
	};

	/** The library's own list of errors. */
	static constexpr FErrorText ErrorTexts[] =
#undef FTERRORS_H_
#define FT_ERRORDEF(Name, Value, Text) { Value, Text },
#define FT_ERROR_START_LIST {
#define FT_ERROR_END_LIST { 0, nullptr } };
#include FT_ERRORS_H

	static FString DescribeError(FT_Error Error)
	{
		for (const FErrorText& Known : ErrorTexts)
		{
			if (Known.Text && Known.Error == Error)
			{
				return FString(ANSI_TO_TCHAR(Known.Text));
			}
		}
		return FString::Printf(TEXT("FreeType error %d"), Error);
	}

	FFontFace::FFontFace(const TSharedRef<FFreeTypeLibrary>& InLibrary)
		: Library(InLibrary)
	{
	}

	FFontFace::~FFontFace()
	{
		Library->RemoveFace(Id);
		for (const FPlan& Plan : Plans)
		{
			hb_shape_plan_destroy(Plan.Plan);
		}
		hb_font_destroy(RootFont);
		hb_face_destroy(ShapingFace);
		if (Face)
		{
			FT_Done_Face(Face);
		}
		for (FPage* Page : Pages)
		{
			delete Page;
		}
	}

	static uint32 ReadBigEndian32(const uint8* Bytes)
	{
		return (uint32(Bytes[0]) << 24) | (uint32(Bytes[1]) << 16) | (uint32(Bytes[2]) << 8) | uint32(Bytes[3]);
	}

	bool FFontFace::IsPacked(TConstArrayView<uint8> Start)
	{
		return Start.Num() >= 3 && Start[0] == 'w' && Start[1] == 'O' && Start[2] == 'F';
	}

	/** Looks at the first bytes: kind of file, and for packed ones the size that they unpack to. */
	static bool CheckSignature(TConstArrayView<uint8> Start, FString& OutError)
	{
		// Both packed formats state the unpacked size at this place.
		constexpr int32 UnpackedSizeOffset = 16;
		if (Start.Num() < UnpackedSizeOffset + 4)
		{
			OutError = TEXT("the file is too short to be a font");
			return false;
		}
		const uint32 Signature = ReadBigEndian32(Start.GetData());
		switch (Signature)
		{
		case 0x00010000:
		case FT_MAKE_TAG('t', 'r', 'u', 'e'):
		case FT_MAKE_TAG('O', 'T', 'T', 'O'):
		case FT_MAKE_TAG('t', 't', 'c', 'f'):
			return true;
		case FT_MAKE_TAG('w', 'O', 'F', 'F'):
		case FT_MAKE_TAG('w', 'O', 'F', '2'):
			if (ReadBigEndian32(Start.GetData() + UnpackedSizeOffset) > FFontFace::MaxFileSize)
			{
				OutError = TEXT("it unpacks to more than 64 MiB");
				return false;
			}
			return true;
		default:
			OutError = TEXT("it is no TrueType, OpenType or WOFF font");
			return false;
		}
	}

	TSharedPtr<FFontFace> FFontFace::FromMemory(const TSharedRef<FFreeTypeLibrary>& Library, TArray<uint8>&& Data, int32 SubFaceIndex, FString& OutError)
	{
		if (Data.Num() > MaxFileSize)
		{
			OutError = TEXT("it is larger than 64 MiB");
			return nullptr;
		}
		if (!CheckSignature(Data, OutError))
		{
			return nullptr;
		}
		const TSharedRef<FFontFace> Result = MakeShared<FFontFace>(Library);
		Result->Data = MoveTemp(Data);
		const FT_Error Error = FT_New_Memory_Face(Library->Get(), Result->Data.GetData(), Result->Data.Num(), FMath::Max(SubFaceIndex, 0), &Result->Face);
		if (Error)
		{
			Result->Face = nullptr;
			OutError = DescribeError(Error);
			return nullptr;
		}
		return Result->Finish(OutError) ? Result.ToSharedPtr() : nullptr;
	}

	TSharedPtr<FFontFace> FFontFace::FromFile(const TSharedRef<FFreeTypeLibrary>& Library, const FString& Filename, int32 SubFaceIndex, FString& OutError)
	{
		constexpr int32 SignatureSize = 64;
		const TSharedRef<FFontFace> Result = MakeShared<FFontFace>(Library);
		Result->Stream = MakeUnique<FFontFileStream>();
		if (!Result->Stream->Open(Filename))
		{
			OutError = TEXT("the file cannot be opened");
			return nullptr;
		}
		if (Result->Stream->GetSize() > MaxFileSize)
		{
			OutError = TEXT("it is larger than 64 MiB");
			return nullptr;
		}
		const TArray<uint8> Start = Result->Stream->ReadStart(SignatureSize);
		if (!CheckSignature(Start, OutError))
		{
			return nullptr;
		}
		if (IsPacked(Start))
		{
			// It is unpacked as a whole anyway, and FreeType leaks a bad packed file that it reads piece by piece.
			return FromMemory(Library, Result->Stream->ReadStart(static_cast<int32>(Result->Stream->GetSize())), SubFaceIndex, OutError);
		}
		FT_Open_Args Arguments = {};
		Arguments.flags = FT_OPEN_STREAM;
		Arguments.stream = Result->Stream->Get();
		const FT_Error Error = FT_Open_Face(Library->Get(), &Arguments, FMath::Max(SubFaceIndex, 0), &Result->Face);
		if (Error)
		{
			Result->Face = nullptr;
			OutError = DescribeError(Error);
			return nullptr;
		}
		return Result->Finish(OutError) ? Result.ToSharedPtr() : nullptr;
	}

	bool FFontFace::Finish(FString& OutError)
	{
		if (!FT_IS_SFNT(Face) || !FT_IS_SCALABLE(Face))
		{
			OutError = TEXT("it has no outlines");
			return false;
		}
		if (FT_Select_Charmap(Face, FT_ENCODING_UNICODE) != 0)
		{
			if (Face->num_charmaps == 0 || FT_Set_Charmap(Face, Face->charmaps[0]) != 0)
			{
				OutError = TEXT("it does not say which glyph stands for which character");
				return false;
			}
			bSymbol = Face->charmap->encoding == FT_ENCODING_MS_SYMBOL;
		}
		Id = Library->AddFace(*this);
		if (Id == 0)
		{
			OutError = TEXT("too many fonts were opened in this process");
			return false;
		}
		Name = FString::Printf(TEXT("%s %s"), Face->family_name ? ANSI_TO_TCHAR(Face->family_name) : TEXT("?"),
			Face->style_name ? ANSI_TO_TCHAR(Face->style_name) : TEXT(""));
		ReadMetrics();
		ReadAdvances();
		MakeShapingFace();
		return true;
	}

	void FFontFace::ReadMetrics()
	{
		// HarfBuzz and FreeType bound this too; a face that states nonsense is drawn as if it had the usual grid.
		Metrics.UnitsPerEm = Face->units_per_EM >= 16 ? Face->units_per_EM : 1000;
		const int32 Em = Metrics.UnitsPerEm;
		Metrics.Ascender = FMath::Clamp<int32>(Face->ascender, 0, 8 * Em);
		Metrics.Descender = FMath::Clamp<int32>(Face->descender, -8 * Em, 0);
		if (Metrics.Ascender - Metrics.Descender <= 0)
		{
			Metrics.Ascender = Em * 4 / 5;
			Metrics.Descender = Metrics.Ascender - Em;
		}
		Metrics.LineHeight = FMath::Clamp<int32>(Face->height, Metrics.Ascender - Metrics.Descender, 16 * Em);
		Metrics.UnderlinePosition = FMath::Clamp<int32>(Face->underline_position, -Em, 0);
		Metrics.UnderlineThickness = FMath::Clamp<int32>(Face->underline_thickness, Em / 50, Em / 4);
	}

	void FFontFace::ReadAdvances()
	{
		constexpr int32 BatchSize = 256;
		FT_Fixed Batch[BatchSize];
		const int32 NumGlyphs = FMath::Clamp<int32>(static_cast<int32>(Face->num_glyphs), 0, MAX_uint16 + 1);
		Advances.SetNumZeroed(NumGlyphs);
		for (int32 First = 0; First < NumGlyphs; First += BatchSize)
		{
			const int32 Count = FMath::Min(BatchSize, NumGlyphs - First);
			if (FT_Get_Advances(Face, First, Count, FT_LOAD_NO_SCALE | FT_LOAD_NO_HINTING, Batch) != 0)
			{
				return;
			}
			for (int32 Index = 0; Index < Count; ++Index)
			{
				Advances[First + Index] = static_cast<uint16>(FMath::Clamp<FT_Fixed>(Batch[Index], 0, MAX_uint16));
			}
		}
	}

	uint16 FFontFace::LookUpGlyph(uint32 Character) const
	{
		FT_UInt Glyph = FT_Get_Char_Index(Face, Character);
		if (Glyph == 0 && bSymbol && Character < 0x100)
		{
			// Symbol fonts keep their glyphs in a private area, by the code that old documents use.
			Glyph = FT_Get_Char_Index(Face, 0xF000 + Character);
		}
		return Glyph < static_cast<FT_UInt>(Advances.Num()) ? static_cast<uint16>(Glyph) : 0;
	}

	uint16 FFontFace::FindGlyphSlow(uint32 Character) const
	{
		if (Character >= MaxPagedCharacter)
		{
			return LookUpGlyph(Character);
		}
		const uint32 PageIndex = Character / PageSize;
		FPage* Page = new FPage;
		for (uint32 Index = 0; Index < PageSize; ++Index)
		{
			Page->Glyphs[Index] = LookUpGlyph(PageIndex * PageSize + Index);
		}
		Pages[PageIndex] = Page;
		return Page->Glyphs[Character % PageSize];
	}

	FGlyphExtents FFontFace::ReadExtents(uint16 Glyph) const
	{
		const int32 PageIndex = Glyph / PageSize;
		if (PageIndex >= ExtentsPages.Num())
		{
			ExtentsPages.SetNum(PageIndex + 1);
		}
		if (!ExtentsPages[PageIndex])
		{
			ExtentsPages[PageIndex] = MakeUnique<FExtentsPage>();
		}
		FGlyphExtents& Result = ExtentsPages[PageIndex]->Extents[Glyph % PageSize];
		ExtentsPages[PageIndex]->bKnown[Glyph % PageSize] = true;
		if (FT_Load_Glyph(Face, Glyph, FT_LOAD_NO_SCALE | FT_LOAD_NO_HINTING | FT_LOAD_NO_BITMAP) == 0 && Face->glyph->format == FT_GLYPH_FORMAT_OUTLINE
			&& Face->glyph->outline.n_points > 0)
		{
			FT_BBox Box;
			FT_Outline_Get_CBox(&Face->glyph->outline, &Box);
			const auto Saturate = [](FT_Pos Value) { return static_cast<int16>(FMath::Clamp<FT_Pos>(Value, MIN_int16, MAX_int16)); };
			Result = { Saturate(Box.xMin), Saturate(Box.yMin), Saturate(Box.xMax), Saturate(Box.yMax) };
		}
		return Result;
	}
}
