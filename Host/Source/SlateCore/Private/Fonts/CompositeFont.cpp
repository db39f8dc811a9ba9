#include "Fonts/CompositeFont.h"

FFontData::FFontData(FString InFontFilename, EFontHinting InHinting, EFontLoadingPolicy InLoadingPolicy, int32 InSubFaceIndex)
	: FontFilename(MoveTemp(InFontFilename))
	, Hinting(InHinting)
	, LoadingPolicy(InLoadingPolicy)
	, SubFaceIndex(InSubFaceIndex)
{
}

bool FFontData::operator==(const FFontData& Other) const
{
	// File names differ by case on this platform.
	return FontFilename.Equals(Other.FontFilename, ESearchCase::CaseSensitive) && Hinting == Other.Hinting
		&& LoadingPolicy == Other.LoadingPolicy && SubFaceIndex == Other.SubFaceIndex;
}

FTypefaceEntry::FTypefaceEntry(FName InFontName, FString InFontFilename, EFontHinting InHinting, EFontLoadingPolicy InLoadingPolicy)
	: Name(InFontName)
	, Font(MoveTemp(InFontFilename), InHinting, InLoadingPolicy)
{
}

FTypeface::FTypeface(FName InFontName, FString InFontFilename, EFontHinting InHinting, EFontLoadingPolicy InLoadingPolicy)
{
	AppendFont(InFontName, MoveTemp(InFontFilename), InHinting, InLoadingPolicy);
}

FTypeface& FTypeface::AppendFont(FName InFontName, FString InFontFilename, EFontHinting InHinting, EFontLoadingPolicy InLoadingPolicy)
{
	Fonts.Add(FTypefaceEntry(InFontName, MoveTemp(InFontFilename), InHinting, InLoadingPolicy));
	return *this;
}

FCompositeFont::FCompositeFont(FName InFontName, FString InFontFilename, EFontHinting InHinting, EFontLoadingPolicy InLoadingPolicy)
	: DefaultTypeface(InFontName, MoveTemp(InFontFilename), InHinting, InLoadingPolicy)
{
}

static int32 LastCompositeFontRevision = 0;

FCompositeFont::FRevision::FRevision()
	: Value(++LastCompositeFontRevision)
{
}

FCompositeFont::FRevision& FCompositeFont::FRevision::operator=(const FRevision&)
{
	Value = ++LastCompositeFontRevision;
	return *this;
}
