#include "Style/HalvexUIStyleConfiguration.h"

#include "Engine/Font.h"
#include "UObject/ConstructorHelpers.h"

namespace
{
	FLinearColor FromHex(const TCHAR* Hex)
	{
		return FLinearColor(FColor::FromHex(Hex));
	}
}

UHalvexUIStyleConfiguration::UHalvexUIStyleConfiguration()
{
	struct FConstructorStatics
	{
		ConstructorHelpers::FObjectFinder<UFont> TextFont;
		ConstructorHelpers::FObjectFinder<UFont> IconFont;
		ConstructorHelpers::FObjectFinder<UDataTable> IconTable;

		FConstructorStatics()
			: TextFont(TEXT("/HalvexPro/Widgets/Fonts/Monserrat/Monserrat.Monserrat"))
			, IconFont(TEXT("/HalvexPro/Widgets/FontIcon/FontAwesomeFree/F_FontAwesomeFree.F_FontAwesomeFree"))
			, IconTable(TEXT("/HalvexPro/Widgets/FontIcon/FontAwesomeFree/DT_FontAwesomeFree.DT_FontAwesomeFree"))
		{
		}
	};
	static const FConstructorStatics ConstructorStatics;

	ColorStyleMap.Add(TEXT("Primary"), FColorKeyValues(FromHex(TEXT("#7367F0")), FromHex(TEXT("#FBFBFBFF"))));
	ColorStyleMap.Add(TEXT("Secondary"), FColorKeyValues(FromHex(TEXT("#FBFBFBFF")), FromHex(TEXT("#4B465C"))));
	ColorStyleMap.Add(TEXT("Third"), FColorKeyValues(FromHex(TEXT("#4B465C")), FromHex(TEXT("#7367F0"))));

	ColorSimpleMap.Add(TEXT("Success"), FromHex(TEXT("#28C76F")));
	ColorSimpleMap.Add(TEXT("Warning"), FromHex(TEXT("#FF9F43")));
	ColorSimpleMap.Add(TEXT("Danger"), FromHex(TEXT("#EA5455")));

	FontStyle.Font = ConstructorStatics.TextFont.Object;
	FontStyle.FontSizing.Add(TEXT("h1"), FHalvexFontSize(48, TEXT("regular")));
	FontStyle.FontSizing.Add(TEXT("h1-b"), FHalvexFontSize(48, TEXT("bold")));
	FontStyle.FontSizing.Add(TEXT("h2"), FHalvexFontSize(36, TEXT("regular")));
	// Smaller than "h2" on purpose: screens are laid out for it.
	FontStyle.FontSizing.Add(TEXT("h2-b"), FHalvexFontSize(26, TEXT("bold")));
	FontStyle.FontSizing.Add(TEXT("h3"), FHalvexFontSize(26, TEXT("regular")));
	FontStyle.FontSizing.Add(TEXT("h3-b"), FHalvexFontSize(26, TEXT("bold")));
	FontStyle.FontSizing.Add(TEXT("h4"), FHalvexFontSize(18, TEXT("regular")));
	FontStyle.FontSizing.Add(TEXT("h4-b"), FHalvexFontSize(18, TEXT("bold")));
	// The fifth level exists in bold only: callers rely on "h5" being unknown, which gives them 18 points of the default typeface.
	FontStyle.FontSizing.Add(TEXT("h5-b"), FHalvexFontSize(16, TEXT("bold")));
	FontStyle.FontSizing.Add(TEXT("regular"), FHalvexFontSize(12, TEXT("regular")));
	FontStyle.FontSizing.Add(TEXT("regular-bold"), FHalvexFontSize(12, TEXT("bold")));
	FontStyle.FontSizing.Add(TEXT("small"), FHalvexFontSize(10, TEXT("regular")));
	FontStyle.FontSizing.Add(TEXT("small-bold"), FHalvexFontSize(10, TEXT("bold")));
	FontStyle.FontSizing.Add(TEXT("extra-small"), FHalvexFontSize(8, TEXT("regular")));
	FontStyle.FontSizing.Add(TEXT("extra-small-b"), FHalvexFontSize(8, TEXT("bold")));

	FFontIconData& IconFontData = FontIconMap.Add(TEXT("FontAwesomeFree"));
	IconFontData.Font = ConstructorStatics.IconFont.Object;
	IconFontData.FontIconList = ConstructorStatics.IconTable.Object;
}
