#include "Host/PixelRect.h"

#include <cmath>

namespace Host
{
	namespace
	{
		/** Whole number of a value already rounded; beyond the range of a window, its limit. */
		int32 ToPixel(float Value)
		{
			constexpr float Limit = static_cast<float>(FPixelRect::Limit);
			if (!(Value > -Limit))
			{
				return -FPixelRect::Limit;
			}
			return Value < Limit ? static_cast<int32>(Value) : FPixelRect::Limit;
		}

		bool IsUsable(float Left, float Top, float Right, float Bottom)
		{
			return !std::isnan(Left) && !std::isnan(Top) && !std::isnan(Right) && !std::isnan(Bottom);
		}
	}

	FPixelRect FPixelRect::Around(float Left, float Top, float Right, float Bottom)
	{
		if (!IsUsable(Left, Top, Right, Bottom))
		{
			return FPixelRect();
		}
		return Make(ToPixel(std::floor(Left)), ToPixel(std::floor(Top)), ToPixel(std::ceil(Right)), ToPixel(std::ceil(Bottom)));
	}

	FPixelRect FPixelRect::Rounded(float Left, float Top, float Right, float Bottom)
	{
		if (!IsUsable(Left, Top, Right, Bottom))
		{
			return FPixelRect();
		}
		return Make(ToPixel(std::floor(Left + 0.5f)), ToPixel(std::floor(Top + 0.5f)), ToPixel(std::floor(Right + 0.5f)),
			ToPixel(std::floor(Bottom + 0.5f)));
	}
}
