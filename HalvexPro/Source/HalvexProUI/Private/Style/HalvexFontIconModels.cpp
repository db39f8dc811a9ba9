#include "Style/HalvexStyleModels.h"

#include "Engine/Font.h"
#include "HalvexUISubsystem.h"

TArray<FName> FFontIconData::GetFontTypeface() const
{
	TArray<FName> Typefaces;
	if (const FCompositeFont* CompositeFont = Font ? Font->GetCompositeFont() : nullptr)
	{
		for (const FTypefaceEntry& Entry : CompositeFont->DefaultTypeface.Fonts)
		{
			Typefaces.Add(Entry.Name);
		}
	}
	return Typefaces;
}

FFontIconHandler::FFontIconHandler(const FName InFontIconName, const FName InIconStyle, const FName InIconName)
	: FontIconName(InFontIconName)
	, IconStyle(InIconStyle)
	, IconName(InIconName)
{
}

FFontIconHandler FFontIconHandler::GetDefaultConstruct()
{
	return FFontIconHandler();
}

const FSlateFontInfo& FFontIconHandler::GenerateFontSlate(int Size) const
{
	GeneratedFont = FSlateFontInfo();
	if (const UHalvexUISubsystem* Subsystem = UHalvexUISubsystem::Get())
	{
		const FFontIconData& IconData = Subsystem->GetFontIconDataByID(FontIconName);
		if (IconData.Font)
		{
			IconTable = IconData.FontIconList.Get();
			GeneratedFont = FSlateFontInfo(IconData.Font, static_cast<float>(Size), IconStyle);
		}
	}
	return GeneratedFont;
}

FText FFontIconHandler::GetIconUnicode() const
{
	const UDataTable* Table = IconTable.Get();
	if (!Table)
	{
		return FText::AsCultureInvariant(TEXT("NO TABLE UNICODE"));
	}
	const FFontIconDatatableRow* Row = Table->FindRow<FFontIconDatatableRow>(IconName, TEXT("FFontIconHandler::GetIconUnicode"));
	return FText::AsCultureInvariant(Row ? Row->Unicode : FString(TEXT("NO ROW FOUND UNICODE")));
}
