#include "Widgets/HxBorder.h"

#include "Widgets/HxWidgetSupport.h"
#include "Widgets/Layout/SBox.h"

void UHxBorder::UpdateStyle()
{
	SetBrushColor(ColorID.GetColor());
	FSlateBrush Brush = Background;
	CornerStyle.SetCornerBrush(Brush);
	SetBrush(Brush);
	if (SizeBox.IsValid())
	{
		HxWidgetSupport::ApplySizeOverride(*SizeBox, SizeOverride);
	}
}

void UHxBorder::SetColorByHandler(const FHalvexColorHandler& InColor)
{
	ColorID = InColor;
	UpdateStyle();
}

void UHxBorder::SynchronizeProperties()
{
	UpdateStyle();
	Super::SynchronizeProperties();
}

void UHxBorder::ReleaseSlateResources(bool bReleaseChildren)
{
	Super::ReleaseSlateResources(bReleaseChildren);
	SizeBox.Reset();
}

#if WITH_EDITOR
const FText UHxBorder::GetPaletteCategory()
{
	return HxWidgetSupport::GetPaletteCategory();
}
#endif

TSharedRef<SWidget> UHxBorder::RebuildWidget()
{
	SizeBox = SNew(SBox)
		[
			Super::RebuildWidget()
		];
	return SizeBox.ToSharedRef();
}
