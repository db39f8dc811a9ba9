#include "BindingTestWidget.h"

#include "Components/Button.h"
#include "Components/TextBlock.h"

int32 UBindingTestWidget::Decide_Implementation(int32 Value)
{
	return Value * 2;
}

void UBindingTestWidget::NativeOnInitialized()
{
	Super::NativeOnInitialized();
	bBoundOnInitialized = Action != nullptr;
}
