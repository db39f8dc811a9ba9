#include "SDesignSurface.h"

#include "Widgets/SNullWidget.h"

void SDesignSurface::Construct(const FArguments&)
{
}

void SDesignSurface::SetContent(TFunctionRef<TSharedRef<SWidget>()> MakeContent)
{
	ClearContent();
	ChildSlot[MakeContent()];
}

void SDesignSurface::ClearContent()
{
	ChildSlot[SNullWidget::NullWidget];
}

FReply SDesignSurface::OnPreviewKeyDown(const FGeometry&, const FKeyEvent&)
{
	return FReply::Handled();
}
