#include "Host/UnitScenePalette.h"

#include "HalvexUISubsystem.h"
#include "Records/UnitData.h"

namespace Host
{
	namespace
	{
		/** Walls are of pale plaster with a wash of their status, so that selected ones stand out among many. */
		const FLinearColor Plaster(0.86f, 0.83f, 0.77f);
		constexpr float WashShare = 0.42f;

		FLinearColor Wash(const UHalvexUISubsystem& Style, const TCHAR* ColourId)
		{
			const FLinearColor Colour = Style.GetHalvexColorByID(ColourId);
			return (Plaster + (Colour - Plaster) * WashShare).CopyWithNewOpacity(1.0f);
		}
	}

	FSceneVolumePalette MakeUnitScenePalette()
	{
		FSceneVolumePalette Palette;
		Palette.Statuses.Init(Plaster, static_cast<int32>(EUnitStatus::NotForSale) + 1);
		if (const UHalvexUISubsystem* const Style = UHalvexUISubsystem::Get())
		{
			Palette.Selected = Style->GetHalvexColorByID(TEXT("Primary")).CopyWithNewOpacity(1.0f);
			Palette.Statuses[static_cast<int32>(EUnitStatus::Available)] = Wash(*Style, TEXT("Success"));
			Palette.Statuses[static_cast<int32>(EUnitStatus::Reserved)] = Wash(*Style, TEXT("Warning"));
			Palette.Statuses[static_cast<int32>(EUnitStatus::Sold)] = Wash(*Style, TEXT("Danger"));
		}
		return Palette;
	}
}
