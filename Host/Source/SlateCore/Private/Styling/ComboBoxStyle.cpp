#include "Styling/SlateTypes.h"

const FName FTableRowStyle::TypeName(TEXT("FTableRowStyle"));

const FTableRowStyle& FTableRowStyle::GetDefault()
{
	static const FTableRowStyle Default;
	return Default;
}

void FTableRowStyle::GetResources(TArray<const FSlateBrush*>& OutBrushes) const
{
	OutBrushes.Append({
		&ActiveBrush, &ActiveHoveredBrush, &EvenRowBackgroundBrush, &EvenRowBackgroundHoveredBrush, &OddRowBackgroundBrush,
		&OddRowBackgroundHoveredBrush});
}

const FName FComboButtonStyle::TypeName(TEXT("FComboButtonStyle"));

const FComboButtonStyle& FComboButtonStyle::GetDefault()
{
	static const FComboButtonStyle Default;
	return Default;
}

void FComboButtonStyle::GetResources(TArray<const FSlateBrush*>& OutBrushes) const
{
	ButtonStyle.GetResources(OutBrushes);
	OutBrushes.Append({&DownArrowImage, &MenuBorderBrush});
}

const FName FComboBoxStyle::TypeName(TEXT("FComboBoxStyle"));

const FComboBoxStyle& FComboBoxStyle::GetDefault()
{
	static const FComboBoxStyle Default;
	return Default;
}

void FComboBoxStyle::GetResources(TArray<const FSlateBrush*>& OutBrushes) const
{
	ComboButtonStyle.GetResources(OutBrushes);
}
