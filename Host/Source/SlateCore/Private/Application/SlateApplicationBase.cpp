#include "Application/SlateApplicationBase.h"

#include "Widgets/SWidget.h"

TSharedPtr<FSlateApplicationBase> FSlateApplicationBase::CurrentBaseApplication;

void FSlateApplicationBase::SetShowsFocus(SWidget& Widget, bool bShow)
{
	if (Widget.bShowsFocus != bShow)
	{
		Widget.bShowsFocus = bShow;
		Widget.Invalidate(EInvalidateWidgetReason::Paint);
	}
}
