#include "Widgets/HxText.h"

#include "Widgets/HxButton.h"
#include "Widgets/HxWidgetSupport.h"

void UHxText::UpdateStyle()
{
	SetColorAndOpacity(bContrast ? ColorText.GetContrastColorSlate() : ColorText.GetColorSlate());
	SetFont(UHalvexStyleModels::GetFontInfoFromFontSchema(FontStyle));
}

void UHxText::SetColorByHandler(const FHalvexColorHandler& InColor)
{
	ColorText = InColor;
	UpdateStyle();
}

void UHxText::SetFontStyleFromName(FName InFontStyle)
{
	FontStyle = InFontStyle;
	UpdateStyle();
}

void UHxText::SetContrast(bool bInContrast)
{
	bContrast = bInContrast;
	SynchronizeProperties();
}

void UHxText::ToggleContrast()
{
	SetContrast(!ColorText.bUseContrast);
}

void UHxText::BindOnButtonSelectionContras(UHxButton* Button)
{
	if (Button)
	{
		Button->OnButtonSelectionChange.AddUniqueDynamic(this, &UHxText::ReceivedButtonChangeState);
	}
}

void UHxText::SynchronizeProperties()
{
	Super::SynchronizeProperties();
	UpdateStyle();
}

#if WITH_EDITOR
const FText UHxText::GetPaletteCategory()
{
	return HxWidgetSupport::GetPaletteCategory();
}
#endif

void UHxText::ReceivedButtonChangeState(UHxButton* Button, bool bSelected)
{
	if (Button)
	{
		SetContrast(bSelected);
	}
}
