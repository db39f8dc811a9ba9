#include "Widgets/HxEditableText.h"

#include "Widgets/HxWidgetSupport.h"

void UHxEditableText::UpdateStyle()
{
	// The engine's editable text has no colour of its own: it is part of the widget style.
	FEditableTextStyle TextStyle = GetWidgetStyle();
	TextStyle.SetColorAndOpacity(ColorID.GetColorSlate());
	SetWidgetStyle(TextStyle);
	SetFont(UHalvexStyleModels::GetFontInfoFromFontSchema(FontStyle));
}

void UHxEditableText::SetColorByHandler(const FHalvexColorHandler& InColor)
{
	ColorID = InColor;
	UpdateStyle();
}

void UHxEditableText::SetFontStyleFromName(FName InFontStyle)
{
	FontStyle = InFontStyle;
	UpdateStyle();
}

void UHxEditableText::SynchronizeProperties()
{
	UpdateStyle();
	Super::SynchronizeProperties();
}

#if WITH_EDITOR
const FText UHxEditableText::GetPaletteCategory()
{
	return HxWidgetSupport::GetPaletteCategory();
}
#endif
