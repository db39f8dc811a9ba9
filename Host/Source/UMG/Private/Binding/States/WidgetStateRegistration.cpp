#include "Binding/States/WidgetStateRegistration.h"

#include "Components/Button.h"
#include "Components/CheckBox.h"

FName UWidgetBinaryStateRegistration::GetStateName() const
{
	return NAME_None;
}

bool UWidgetBinaryStateRegistration::GetRegisteredWidgetState(const UWidget*) const
{
	return false;
}

FName UWidgetHoveredStateRegistration::GetStateName() const
{
	return TEXT("Hovered");
}

bool UWidgetHoveredStateRegistration::GetRegisteredWidgetState(const UWidget* InWidget) const
{
	return InWidget && InWidget->IsHovered();
}

FName UWidgetPressedStateRegistration::GetStateName() const
{
	return TEXT("Pressed");
}

bool UWidgetPressedStateRegistration::GetRegisteredWidgetState(const UWidget* InWidget) const
{
	const UButton* Button = Cast<UButton>(InWidget);
	return Button && Button->IsPressed();
}

FName UWidgetDisabledStateRegistration::GetStateName() const
{
	return TEXT("Disabled");
}

bool UWidgetDisabledStateRegistration::GetRegisteredWidgetState(const UWidget* InWidget) const
{
	return InWidget && !InWidget->GetIsEnabled();
}

FName UWidgetSelectedStateRegistration::GetStateName() const
{
	return TEXT("Selected");
}

bool UWidgetSelectedStateRegistration::GetRegisteredWidgetState(const UWidget* InWidget) const
{
	const UCheckBox* CheckBox = Cast<UCheckBox>(InWidget);
	return CheckBox && CheckBox->IsChecked();
}
