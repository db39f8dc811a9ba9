#include "Fonts/SlateFontInfo.h"

#include "Fonts/CompositeFont.h"
#include "Fonts/FontProviderInterface.h"
#include "Templates/Casts.h"
#include "UObject/Object.h"
#include "UObject/ReferenceCollector.h"

FFontOutlineSettings FFontOutlineSettings::NoOutline;

bool FFontOutlineSettings::IsIdenticalTo(const FFontOutlineSettings& Other) const
{
	return OutlineSize == Other.OutlineSize && bSeparateFillAlpha == Other.bSeparateFillAlpha
		&& bApplyOutlineToDropShadows == Other.bApplyOutlineToDropShadows;
}

bool FFontOutlineSettings::operator==(const FFontOutlineSettings& Other) const
{
	return IsIdenticalTo(Other) && OutlineColor == Other.OutlineColor;
}

FSlateFontInfo::FSlateFontInfo()
	: Size(24.0f)
{
}

FSlateFontInfo::FSlateFontInfo(TSharedPtr<const FCompositeFont> InCompositeFont, float InSize, FName InTypefaceFontName,
	const FFontOutlineSettings& InOutlineSettings)
	: OutlineSettings(InOutlineSettings)
	, CompositeFont(MoveTemp(InCompositeFont))
	, TypefaceFontName(InTypefaceFontName)
	, Size(InSize)
{
}

FSlateFontInfo::FSlateFontInfo(const UObject* InFontObject, float InSize, FName InTypefaceFontName, const FFontOutlineSettings& InOutlineSettings)
	: FontObject(InFontObject)
	, OutlineSettings(InOutlineSettings)
	, TypefaceFontName(InTypefaceFontName)
	, Size(InSize)
{
}

bool FSlateFontInfo::operator==(const FSlateFontInfo& Other) const
{
	return FontObject == Other.FontObject && Size == Other.Size && TypefaceFontName == Other.TypefaceFontName
		&& CompositeFont == Other.CompositeFont && LetterSpacing == Other.LetterSpacing && SkewAmount == Other.SkewAmount
		&& FontFallback == Other.FontFallback && OutlineSettings == Other.OutlineSettings;
}

bool FSlateFontInfo::HasValidFont() const
{
	return GetCompositeFont() != nullptr;
}

const FCompositeFont* FSlateFontInfo::GetCompositeFont() const
{
	if (const IFontProviderInterface* Provider = Cast<const IFontProviderInterface>(FontObject.Get()))
	{
		return Provider->GetCompositeFont();
	}
	return CompositeFont.Get();
}

float FSlateFontInfo::GetClampSize() const
{
	// Written so that not-a-number comes out as the lower bound.
	return Size > 1.0f ? FMath::Min(Size, 1000.0f) : 1.0f;
}

void FSlateFontInfo::AddReferencedObjects(FReferenceCollector& Collector)
{
	Collector.AddReferencedObject(FontObject);
}

uint32 GetTypeHash(const FSlateFontInfo& FontInfo)
{
	uint32 Hash = GetTypeHash(FontInfo.FontObject.Get());
	Hash = HashCombine(Hash, GetTypeHash(FontInfo.CompositeFont.Get()));
	Hash = HashCombine(Hash, GetTypeHash(FontInfo.TypefaceFontName));
	Hash = HashCombine(Hash, GetTypeHash(FontInfo.Size));
	Hash = HashCombine(Hash, GetTypeHash(FontInfo.LetterSpacing));
	Hash = HashCombine(Hash, GetTypeHash(FontInfo.SkewAmount));
	return HashCombine(Hash, GetTypeHash(FontInfo.OutlineSettings.OutlineSize));
}
