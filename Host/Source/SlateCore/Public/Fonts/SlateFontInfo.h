#pragma once

#include "CoreMinimal.h"
#include "UObject/ObjectMacros.h"
#include "UObject/ObjectPtr.h"
#include "SlateFontInfo.generated.h"

class FReferenceCollector;
struct FCompositeFont;

/** A line drawn around glyphs. */
USTRUCT(BlueprintType)
struct SLATECORE_API FFontOutlineSettings
{
	GENERATED_BODY()

	/** Width in slate units; 0 draws none. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = OutlineSettings, meta = (ClampMin = "0", ClampMax = "1024"))
	int32 OutlineSize = 0;

	/** The area of the glyph itself is left out of the outline, so that a translucent fill does not show it. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = OutlineSettings)
	bool bSeparateFillAlpha = false;

	/** The drop shadow has the outline's shape too. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = OutlineSettings)
	bool bApplyOutlineToDropShadows = false;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = OutlineSettings)
	FLinearColor OutlineColor = FLinearColor(0.0f, 0.0f, 0.0f, 1.0f);

	FFontOutlineSettings() = default;
	FFontOutlineSettings(int32 InOutlineSize, FLinearColor InColor) : OutlineSize(InOutlineSize), OutlineColor(InColor) {}

	static FFontOutlineSettings NoOutline;

	/** True when glyphs of both look the same, colour aside. */
	bool IsIdenticalTo(const FFontOutlineSettings& Other) const;
	bool operator==(const FFontOutlineSettings& Other) const;
	bool operator!=(const FFontOutlineSettings& Other) const { return !(*this == Other); }
};

/** What may stand in for a character that the typeface has no glyph for. */
UENUM(BlueprintType)
enum class EFontFallback : uint8
{
	/** Nothing: the typeface's own missing glyph is shown. */
	FF_NoFallback,
	/** The composite font's fallback family. */
	FF_LocalizedFallback,
	/** That, and then the built-in face. */
	FF_LastResortFallback,
	FF_Max
};

/** Which font text is drawn in, and how. */
USTRUCT(BlueprintType)
struct SLATECORE_API FSlateFontInfo
{
	GENERATED_BODY()

	/** The font asset (something that provides a composite font). Null: CompositeFont, else the default font. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = SlateStyleRules, meta = (AllowedClasses = "/Script/Engine.Font", DisplayName = "Font Family"))
	TObjectPtr<const UObject> FontObject;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = SlateStyleRules, meta = (ShowOnlyInnerProperties))
	FFontOutlineSettings OutlineSettings;

	/** Used when there is no font object. */
	TSharedPtr<const FCompositeFont> CompositeFont;

	/** Name of the face in the font's default typeface; None, or a name that it does not have, means the first. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = SlateStyleRules, meta = (DisplayName = "Typeface"))
	FName TypefaceFontName;

	/** In points at 96 dots an inch: pixels are points * 96 / 72 * scale. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = SlateStyleRules, meta = (ClampMin = "1", ClampMax = "1000"))
	float Size;

	/** Extra space after each character, in thousandths of the size. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = SlateStyleRules, meta = (ClampMin = "-1000", ClampMax = "10000"))
	int32 LetterSpacing = 0;

	/** Slants upright faces: units to the right for a unit up. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = SlateStyleRules, meta = (ClampMin = "-5.0", ClampMax = "5.0"))
	float SkewAmount = 0.0f;

	EFontFallback FontFallback = EFontFallback::FF_LastResortFallback;

	/** The default font, 24 points. */
	FSlateFontInfo();
	FSlateFontInfo(TSharedPtr<const FCompositeFont> InCompositeFont, float InSize, FName InTypefaceFontName = NAME_None,
		const FFontOutlineSettings& InOutlineSettings = FFontOutlineSettings());
	FSlateFontInfo(const UObject* InFontObject, float InSize, FName InTypefaceFontName = NAME_None,
		const FFontOutlineSettings& InOutlineSettings = FFontOutlineSettings());

	bool operator==(const FSlateFontInfo& Other) const;
	bool operator!=(const FSlateFontInfo& Other) const { return !(*this == Other); }

	/** False when it is drawn with the default font. */
	bool HasValidFont() const;

	/** What it names: the font object's, else its own; null when it has neither. */
	const FCompositeFont* GetCompositeFont() const;

	/** Size within the bounds that text can have. */
	float GetClampSize() const;

	void AddReferencedObjects(FReferenceCollector& Collector);

	friend SLATECORE_API uint32 GetTypeHash(const FSlateFontInfo& FontInfo);
};
