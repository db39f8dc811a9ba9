#include "Widgets/HxWidgetSupport.h"

#include "Blueprint/SlateBlueprintLibrary.h"
#include "Blueprint/WidgetLayoutLibrary.h"
#include "Style/HalvexStyleModels.h"
#include "Widgets/Layout/SBox.h"

namespace
{
	FOptionalSize GetOverride(const FHalvexSizeOverride& SizeOverride, const double Size)
	{
		return SizeOverride.bUseOverride && Size > 0.0 ? FOptionalSize(static_cast<float>(Size)) : FOptionalSize();
	}
}

FText HxWidgetSupport::GetPaletteCategory()
{
	return NSLOCTEXT("HalvexWidget", "HalvexWidget", "Halvex Widget");
}

void HxWidgetSupport::ApplySizeOverride(SBox& SizeBox, const FHalvexSizeOverride& SizeOverride)
{
	SizeBox.SetWidthOverride(GetOverride(SizeOverride, SizeOverride.SizeOverride.X));
	SizeBox.SetHeightOverride(GetOverride(SizeOverride, SizeOverride.SizeOverride.Y));
	if (SizeOverride.bUseAspectRatio)
	{
		SizeBox.SetMinAspectRatio(FOptionalSize(SizeOverride.AspectRatio));
		SizeBox.SetMaxAspectRatio(FOptionalSize(SizeOverride.AspectRatio));
	}
}

FVector2D HxWidgetSupport::GetMouseLocalPos(const FGeometry& Geometry)
{
	return USlateBlueprintLibrary::AbsoluteToLocal(Geometry, UWidgetLayoutLibrary::GetMousePositionOnPlatform());
}
