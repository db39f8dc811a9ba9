#pragma once

#include "CoreMinimal.h"
#include "Math/Range.h"
#include "UObject/ObjectMacros.h"
#include "CompositeFont.generated.h"

/** How glyph outlines are fitted to the pixel grid. */
UENUM(BlueprintType)
enum class EFontHinting : uint8
{
	/** What looks best for the font at common sizes: the same as AutoLight, or the font's own light hints if it has some. */
	Default,
	/** Automatic hinting in both directions. */
	Auto,
	/** Automatic hinting of heights only. */
	AutoLight,
	/** Black and white. */
	Monochrome,
	/** Outlines are drawn as designed. */
	None,
};

/** When the file of a face is read. */
UENUM(BlueprintType)
enum class EFontLoadingPolicy : uint8
{
	/** When text is first shown in it, whole into memory. */
	LazyLoad,
	/** Its glyphs are read from the file as they are needed. */
	Stream,
	/** As LazyLoad: there is no package here that a face could be part of. */
	Inline,
};

/** A face: a font file and how to use it. */
USTRUCT()
struct SLATECORE_API FFontData
{
	GENERATED_BODY()

	FFontData() = default;
	FFontData(FString InFontFilename, EFontHinting InHinting, EFontLoadingPolicy InLoadingPolicy, int32 InSubFaceIndex = 0);

	bool HasFont() const { return !FontFilename.IsEmpty(); }
	const FString& GetFontFilename() const { return FontFilename; }
	EFontHinting GetHinting() const { return Hinting; }
	EFontLoadingPolicy GetLoadingPolicy() const { return LoadingPolicy; }
	int32 GetSubFaceIndex() const { return SubFaceIndex; }
	/** Changes the file, for loaders that resolve a relative name. */
	void SetFontFilename(FString InFontFilename) { FontFilename = MoveTemp(InFontFilename); }

	bool operator==(const FFontData& Other) const;
	bool operator!=(const FFontData& Other) const { return !(*this == Other); }

private:
	/** A file on disk. */
	UPROPERTY()
	FString FontFilename;

	UPROPERTY()
	EFontHinting Hinting = EFontHinting::Default;

	UPROPERTY()
	EFontLoadingPolicy LoadingPolicy = EFontLoadingPolicy::LazyLoad;

	/** Which face of a file that holds several, such as a collection. */
	UPROPERTY()
	int32 SubFaceIndex = 0;
};

/** A face of a typeface by name, such as "regular" or "bold". */
USTRUCT()
struct SLATECORE_API FTypefaceEntry
{
	GENERATED_BODY()

	FTypefaceEntry() = default;
	explicit FTypefaceEntry(FName InFontName) : Name(InFontName) {}
	FTypefaceEntry(FName InFontName, FString InFontFilename, EFontHinting InHinting, EFontLoadingPolicy InLoadingPolicy);

	UPROPERTY()
	FName Name;

	UPROPERTY()
	FFontData Font;
};

/** The faces of a family. The first is the one used when none is asked for, or one that does not exist. */
USTRUCT()
struct SLATECORE_API FTypeface
{
	GENERATED_BODY()

	FTypeface() = default;
	FTypeface(FName InFontName, FString InFontFilename, EFontHinting InHinting, EFontLoadingPolicy InLoadingPolicy);

	FTypeface& AppendFont(FName InFontName, FString InFontFilename, EFontHinting InHinting, EFontLoadingPolicy InLoadingPolicy);

	UPROPERTY()
	TArray<FTypefaceEntry> Fonts;
};

/** The family that draws what the default one has no glyph for. */
USTRUCT()
struct SLATECORE_API FCompositeFallbackFont
{
	GENERATED_BODY()

	UPROPERTY()
	FTypeface Typeface;

	/** Its size relative to the default family's, so that letters of both look equally large. */
	UPROPERTY()
	float ScalingFactor = 1.0f;
};

/** A family that draws certain characters instead of the default one. */
USTRUCT()
struct SLATECORE_API FCompositeSubFont : public FCompositeFallbackFont
{
	GENERATED_BODY()

	/** The characters, as Unicode code points. */
	UPROPERTY()
	TArray<FInt32Range> CharacterRanges;
};

/** A font made of several files. */
USTRUCT()
struct SLATECORE_API FCompositeFont
{
	GENERATED_BODY()

	FCompositeFont() = default;
	FCompositeFont(FName InFontName, FString InFontFilename, EFontHinting InHinting, EFontLoadingPolicy InLoadingPolicy);

	/** Must be called after typefaces were changed in place, so that text is shaped anew with them. */
	void MakeDirty() { Revision = FRevision(); }
	/** Unique among all states of all composite fonts: a copy has one of its own. */
	int32 GetHistoryRevision() const { return Revision.Value; }

	UPROPERTY()
	FTypeface DefaultTypeface;

	UPROPERTY()
	FCompositeFallbackFont FallbackTypeface;

	/** Searched in this order before the default family. */
	UPROPERTY()
	TArray<FCompositeSubFont> SubTypefaces;

private:
	/** Copying makes a new one, because the copy may then be changed. */
	struct SLATECORE_API FRevision
	{
		FRevision();
		FRevision(const FRevision&) : FRevision() {}
		FRevision& operator=(const FRevision&);
		int32 Value;
	};

	FRevision Revision;
};
