#include "Components/TextWidgetTypes.h"

UTextLayoutWidget::UTextLayoutWidget(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
	, AutoWrapText(false)
{
}

void UTextLayoutWidget::SetJustification(ETextJustify::Type InJustification)
{
	Justification = InJustification;
}
