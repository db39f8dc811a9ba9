#include "Widgets/HxFontIcon.h"

#include "HalvexUISubsystem.h"
#include "Widgets/HxButton.h"
#include "Widgets/HxWidgetSupport.h"

void UHxFontIcon::SetIconByHandler(const FFontIconHandler& InIcon)
{
	IconStyling = InIcon;
	SynchronizeProperties();
}

void UHxFontIcon::SetContrastIconByHandler(const FFontIconHandler& InIcon)
{
	IconContrast = InIcon;
	SynchronizeProperties();
}

void UHxFontIcon::SetColorByHandler(const FHalvexColorHandler& InColor)
{
	IconStyling.IconColor = InColor;
	SynchronizeProperties();
}

void UHxFontIcon::SetColorContrastByHandler(const FHalvexColorHandler& InColor)
{
	IconContrast.IconColor = InColor;
	SynchronizeProperties();
}

void UHxFontIcon::SetIconByName(FName InIconName)
{
	IconStyling.IconName = InIconName;
}

void UHxFontIcon::SetIconSize(int32 InIconSize)
{
	IconSize = InIconSize;
	SynchronizeProperties();
}

void UHxFontIcon::SetContrast(bool bInContrast)
{
	bUseContrast = bInContrast;
	SynchronizeProperties();
}

void UHxFontIcon::SetHover(bool bInHover)
{
	bHover = bInHover;
	SynchronizeProperties();
}

void UHxFontIcon::ToggleContras()
{
	SetContrast(!bUseContrast);
}

void UHxFontIcon::BindOnButtonSelectionContras(UHxButton* Button)
{
	if (Button)
	{
		Button->OnButtonSelectionChange.AddUniqueDynamic(this, &UHxFontIcon::ReceivedButtonChangeState);
	}
}

const FFontIconHandler& UHxFontIcon::GetIconStyle() const
{
	return IconStyling;
}

void UHxFontIcon::SynchronizeProperties()
{
	Super::SynchronizeProperties();
	if (!UHalvexUISubsystem::Get())
	{
		return;
	}
	const FFontIconHandler& Handler = GetActiveHandler();
	// The font first: making it finds the icon table that the glyph is looked up in.
	SetFont(Handler.GenerateFontSlate(IconSize));
	SetText(Handler.GetIconUnicode());
	SetColorAndOpacity(Handler.IconColor.GetColorSlate());
}

#if WITH_EDITOR
void UHxFontIcon::PostEditChangeProperty(FPropertyChangedEvent& PropertyChangedEvent)
{
	Super::PostEditChangeProperty(PropertyChangedEvent);
}

const FText UHxFontIcon::GetPaletteCategory()
{
	return HxWidgetSupport::GetPaletteCategory();
}
#endif

void UHxFontIcon::ReceivedButtonChangeState(UHxButton* Button, bool bSelected)
{
	if (Button)
	{
		SetContrast(bSelected);
	}
}

const FFontIconHandler& UHxFontIcon::GetActiveHandler() const
{
	return bHover ? IconHover : bUseContrast ? IconContrast : IconStyling;
}
