#pragma once

#include "Styling/SlateTypes.h"

namespace Host
{
	/** The background that tells the state of a row; rows of even and odd index may look different. */
	inline const FSlateBrush* ChooseRowBrush(const FTableRowStyle& Style, int32 Index, bool bSelected, bool bHovered)
	{
		if (bSelected)
		{
			return bHovered ? &Style.ActiveHoveredBrush : &Style.ActiveBrush;
		}
		if (Index % 2 == 0)
		{
			return bHovered ? &Style.EvenRowBackgroundHoveredBrush : &Style.EvenRowBackgroundBrush;
		}
		return bHovered ? &Style.OddRowBackgroundHoveredBrush : &Style.OddRowBackgroundBrush;
	}
}
