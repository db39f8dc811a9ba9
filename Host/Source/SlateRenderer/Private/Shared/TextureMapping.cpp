#include "Shared/TextureMapping.h"

#include <cmath>

#include "Host/Texture.h"
#include "Shared/BoxShape.h"

namespace Host
{
	namespace
	{
		/** From this many texels a pixel on, the next smaller level is nearer. */
		constexpr float NextLevelRate = 1.5f;

		FAxisMapping MakeSliced(float Length, float StartMargin, float EndMargin, float StartShare, float EndShare, bool bFrame)
		{
			FAxisMapping Axis;
			Axis.Length = Length;
			Axis.StartMargin = StartMargin;
			Axis.EndMargin = EndMargin;
			Axis.StartShare = StartShare;
			Axis.EndShare = EndShare;
			if (bFrame)
			{
				const float Margins = StartMargin + EndMargin;
				const float Shares = StartShare + EndShare;
				// The middle repeats at the scale of the margins.
				Axis.Repeat = Shares > 0.0f && Shares < 1.0f ? Margins / Shares * (1.0f - Shares) : 0.0f;
			}
			return Axis;
		}
	}

	float FAxisMapping::GetShare(float Place) const
	{
		if (Place < StartMargin && StartMargin > 0.0f)
		{
			return Place / StartMargin * StartShare;
		}
		if (Place >= Length - EndMargin && EndMargin > 0.0f)
		{
			return 1.0f - (Length - Place) / EndMargin * EndShare;
		}
		if (StartShare == 0.0f && EndShare == 0.0f && Repeat == 0.0f)
		{
			return First + Place / Length * (Last - First);
		}
		const float Middle = Place - StartMargin;
		if (Repeat > 0.0f)
		{
			const float Turns = Middle / Repeat;
			return StartShare + (Turns - std::floor(Turns)) * (1.0f - StartShare - EndShare);
		}
		return StartShare + Middle / (Length - StartMargin - EndMargin) * (1.0f - StartShare - EndShare);
	}

	float FAxisMapping::GetRate() const
	{
		if (StartMargin > 0.0f)
		{
			return StartShare / StartMargin;
		}
		if (EndMargin > 0.0f)
		{
			return EndShare / EndMargin;
		}
		return std::fabs(Last - First) / Length;
	}

	FTextureMapping::FTextureMapping(const FDrawElement& Element)
		: Texture(Element.GetTexture())
		, bRepeat(Element.HasFlag(EDrawElementFlags::Tiled))
		, bFrame(Element.HasFlag(EDrawElementFlags::Frame))
		, bIgnoreAlpha(Element.HasFlag(EDrawElementFlags::IgnoreTextureAlpha))
	{
		if (Element.Kind == EDrawElementKind::Sliced)
		{
			X = MakeSliced(Element.LocalSize.X, Element.Margins.Left, Element.Margins.Right, Element.TextureMargins.Left, Element.TextureMargins.Right, bFrame);
			Y = MakeSliced(Element.LocalSize.Y, Element.Margins.Top, Element.Margins.Bottom, Element.TextureMargins.Top, Element.TextureMargins.Bottom, bFrame);
			return;
		}
		X.Length = Element.LocalSize.X;
		X.First = Element.TextureArea.U0;
		X.Last = Element.TextureArea.U1;
		Y.Length = Element.LocalSize.Y;
		Y.First = Element.TextureArea.V0;
		Y.Last = Element.TextureArea.V1;
	}

	int32 FTextureMapping::ChooseLevel(const FPixelToLocal& PixelToLocal) const
	{
		const FIntPoint Size = Texture->GetSize();
		const float StepX = std::sqrt(PixelToLocal.XByX * PixelToLocal.XByX + PixelToLocal.XByY * PixelToLocal.XByY);
		const float StepY = std::sqrt(PixelToLocal.YByX * PixelToLocal.YByX + PixelToLocal.YByY * PixelToLocal.YByY);
		float Rate = FMath::Max(X.GetRate() * StepX * static_cast<float>(Size.X), Y.GetRate() * StepY * static_cast<float>(Size.Y));
		int32 Level = 0;
		for (const int32 Last = Texture->GetNumMips() - 1; Level < Last && Rate >= NextLevelRate; ++Level)
		{
			Rate *= 0.5f;
		}
		return Level;
	}
}
