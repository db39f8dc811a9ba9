#include "Fonts/FontMeasure.h"

#include "Host/FontServices.h"
#include "Host/TextBoundaries.h"
#include "Host/TextLayout.h"

using UE::Slate::FDeprecateVector2DResult;

TSharedRef<FSlateFontMeasure> FSlateFontMeasure::Get()
{
	static const TSharedRef<FSlateFontMeasure> Instance = MakeShared<FSlateFontMeasure>();
	return Instance;
}

FDeprecateVector2DResult FSlateFontMeasure::Measure(FStringView Text, const FSlateFontInfo& InFontInfo, float FontScale) const
{
	Host::FFontServices& Services = Host::FFontServices::Get();
	const Host::FSizedFontRef Font = Services.GetFont(InFontInfo, FontScale);
	float Width = 0.0f;
	int32 NumLines = 0;
	int32 Begin = 0;
	for (int32 Position = 0; Position <= Text.Len(); ++Position)
	{
		if (Position < Text.Len() && !Host::FTextBoundaries::IsLineBreak(Text[Position]))
		{
			continue;
		}
		Width = FMath::Max(Width, Services.Shape(Font, Text.Mid(Begin, Position - Begin))->GetWidth());
		++NumLines;
		if (Position + 1 < Text.Len() && Text[Position] == '\r' && Text[Position + 1] == '\n')
		{
			++Position;
		}
		Begin = Position + 1;
	}
	return FDeprecateVector2DResult(Width, Font->GetMetrics().LineHeight * static_cast<float>(NumLines));
}

FDeprecateVector2DResult FSlateFontMeasure::Measure(const FText& Text, const FSlateFontInfo& InFontInfo, float FontScale) const
{
	return Measure(FStringView(Text.ToString()), InFontInfo, FontScale);
}

FDeprecateVector2DResult FSlateFontMeasure::Measure(FStringView Text, int32 StartIndex, int32 EndIndex, const FSlateFontInfo& InFontInfo,
	bool IncludeKerningWithPrecedingChar, float FontScale) const
{
	Host::FFontServices& Services = Host::FFontServices::Get();
	const Host::FSizedFontRef Font = Services.GetFont(InFontInfo, FontScale);
	StartIndex = FMath::Clamp(StartIndex, 0, Text.Len());
	EndIndex = FMath::Clamp(EndIndex, StartIndex, Text.Len());
	float Width = 0.0f;
	if (IncludeKerningWithPrecedingChar)
	{
		Width = Services.Shape(Font, Text.Left(EndIndex))->GetWidth() - Services.Shape(Font, Text.Left(StartIndex))->GetWidth();
	}
	else
	{
		Width = Services.Shape(Font, Text.Mid(StartIndex, EndIndex - StartIndex))->GetWidth();
	}
	return FDeprecateVector2DResult(Width, Font->GetMetrics().LineHeight);
}

uint16 FSlateFontMeasure::GetMaxCharacterHeight(const FSlateFontInfo& InFontInfo, float FontScale) const
{
	return static_cast<uint16>(Host::FFontServices::Get().GetFont(InFontInfo, FontScale)->GetMetrics().LineHeight);
}

int16 FSlateFontMeasure::GetBaseline(const FSlateFontInfo& InFontInfo, float FontScale) const
{
	const Host::FSizedFontRef Font = Host::FFontServices::Get().GetFont(InFontInfo, FontScale);
	return static_cast<int16>(Font->GetMetrics().Baseline - Font->GetMetrics().LineHeight);
}

int32 FSlateFontMeasure::FindCharacterIndexAtOffset(FStringView Text, const FSlateFontInfo& InFontInfo, int32 HorizontalOffset, float FontScale) const
{
	Host::FTextLayoutStyle Style;
	Style.Font = Host::FFontServices::Get().GetFont(InFontInfo, FontScale);
	Host::FTextLayout Layout;
	Layout.SetStyle(Style);
	Layout.SetText(Text);
	return Layout.FindIndexAt(FVector2f(static_cast<float>(HorizontalOffset), 0.0f), 0.0f);
}

int32 FSlateFontMeasure::FindCharacterIndexAtOffset(const FText& Text, const FSlateFontInfo& InFontInfo, int32 HorizontalOffset, float FontScale) const
{
	return FindCharacterIndexAtOffset(FStringView(Text.ToString()), InFontInfo, HorizontalOffset, FontScale);
}
