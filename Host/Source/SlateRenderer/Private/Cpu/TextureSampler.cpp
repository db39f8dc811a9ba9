#include "Cpu/TextureSampler.h"

#include <cmath>

#include "Cpu/PixelMath.h"
#include "Host/Texture.h"

namespace Host
{
	namespace
	{
		constexpr uint32 White = 0xffffffffu;

		int32 Wrap(int32 Texel, int32 Extent)
		{
			const int32 Rest = Texel % Extent;
			return Rest < 0 ? Rest + Extent : Rest;
		}
	}

	FTextureSampler::FTextureSampler(const FDrawElement& Element, const FPixelRect& InArea)
		: Mapping(Element)
		, PixelToLocal(Element.LocalToPixel)
		, Area(InArea)
		, TintColour(PixelMath::Premultiply(Element.Colour))
		, bUpright(Element.HasFlag(EDrawElementFlags::Translated))
	{
		Texels = Mapping.Texture->GetMip(Mapping.ChooseLevel(PixelToLocal), Size);
		bOpaque = (Mapping.Texture->IsOpaque() || Mapping.bIgnoreAlpha) && PixelMath::Alpha(TintColour) == 255 && !Mapping.bFrame;
		Output.SetNumUninitialized(Area.Width());
		if (Texels && bUpright)
		{
			PrepareColumns();
		}
	}

	FTextureSampler::FTap FTextureSampler::MakeTap(const FAxisMapping& Axis, float Place, int32 Extent) const
	{
		// In 256ths of a texel, so that a share which is off by a rounding error still meets its texel.
		const float Position = (Axis.GetShare(Place) * static_cast<float>(Extent) - 0.5f) * 256.0f + 0.5f;
		const int32 Fixed = static_cast<int32>(std::floor(FMath::Clamp(Position, -1.0e9f, 1.0e9f)));
		FTap Tap;
		Tap.First = Fixed >> 8;
		Tap.Second = Tap.First + 1;
		Tap.Fraction = static_cast<uint32>(Fixed & 255);
		Tap.bHole = Mapping.bFrame && Axis.IsMiddle(Place);
		if (Mapping.bRepeat)
		{
			Tap.First = Wrap(Tap.First, Extent);
			Tap.Second = Wrap(Tap.Second, Extent);
		}
		else
		{
			Tap.First = FMath::Clamp(Tap.First, 0, Extent - 1);
			Tap.Second = FMath::Clamp(Tap.Second, 0, Extent - 1);
		}
		return Tap;
	}

	void FTextureSampler::PrepareColumns()
	{
		Columns.SetNumUninitialized(Area.Width());
		bUnscaled = !Mapping.bFrame;
		FirstTexel = Size.X;
		LastTexel = 0;
		for (int32 Index = 0; Index < Columns.Num(); ++Index)
		{
			const float Centre = static_cast<float>(Area.Left + Index) + 0.5f;
			FTap& Tap = Columns[Index];
			Tap = MakeTap(Mapping.X, PixelToLocal.GetX(Centre, 0.0f), Size.X);
			bUnscaled = bUnscaled && Tap.Fraction == 0 && Tap.First == Columns[0].First + Index;
			FirstTexel = FMath::Min(FirstTexel, FMath::Min(Tap.First, Tap.Second));
			LastTexel = FMath::Max(LastTexel, FMath::Max(Tap.First, Tap.Second));
		}
		MixedRow.SetNumUninitialized(Size.X);
	}

	const uint32* FTextureSampler::BlendRows(const FTap& RowTap)
	{
		const uint32* First = Texels + static_cast<int64>(RowTap.First) * Size.X;
		if (RowTap.Fraction == 0)
		{
			return First;
		}
		const uint32* Second = Texels + static_cast<int64>(RowTap.Second) * Size.X;
		for (int32 X = FirstTexel; X <= LastTexel; ++X)
		{
			MixedRow[X] = PixelMath::Interpolate(First[X], Second[X], RowTap.Fraction);
		}
		return MixedRow.GetData();
	}

	const uint32* FTextureSampler::SampleUpright(int32 Y, int32 Left, int32 Count)
	{
		const FTap RowTap = MakeTap(Mapping.Y, PixelToLocal.GetY(0.0f, static_cast<float>(Y) + 0.5f), Size.Y);
		const uint32* Row = BlendRows(RowTap);
		const FTap* Tap = Columns.GetData() + (Left - Area.Left);
		if (bUnscaled)
		{
			return Row + Tap->First;
		}
		uint32* Out = Output.GetData();
		for (int32 Index = 0; Index < Count; ++Index, ++Tap)
		{
			Out[Index] = RowTap.bHole && Tap->bHole ? 0 : PixelMath::Interpolate(Row[Tap->First], Row[Tap->Second], Tap->Fraction);
		}
		return Out;
	}

	const uint32* FTextureSampler::SampleFree(int32 Y, int32 Left, int32 Count)
	{
		uint32* Out = Output.GetData();
		const float CentreY = static_cast<float>(Y) + 0.5f;
		for (int32 Index = 0; Index < Count; ++Index)
		{
			const float CentreX = static_cast<float>(Left + Index) + 0.5f;
			const FTap TapX = MakeTap(Mapping.X, PixelToLocal.GetX(CentreX, CentreY), Size.X);
			const FTap TapY = MakeTap(Mapping.Y, PixelToLocal.GetY(CentreX, CentreY), Size.Y);
			if (TapX.bHole && TapY.bHole)
			{
				Out[Index] = 0;
				continue;
			}
			const uint32* First = Texels + static_cast<int64>(TapY.First) * Size.X;
			const uint32* Second = Texels + static_cast<int64>(TapY.Second) * Size.X;
			Out[Index] = PixelMath::Interpolate(PixelMath::Interpolate(First[TapX.First], Second[TapX.First], TapY.Fraction),
				PixelMath::Interpolate(First[TapX.Second], Second[TapX.Second], TapY.Fraction), TapX.Fraction);
		}
		return Out;
	}

	void FTextureSampler::Tint(const uint32* Source, int32 Count)
	{
		for (int32 Index = 0; Index < Count; ++Index)
		{
			const uint32 Pixel = Mapping.bIgnoreAlpha ? PixelMath::Opaque(Source[Index]) : Source[Index];
			Output[Index] = PixelMath::Tint(Pixel, TintColour);
		}
	}

	const uint32* FTextureSampler::Sample(int32 Y, int32 Left, int32 Count)
	{
		const uint32* Pixels = bUpright ? SampleUpright(Y, Left, Count) : SampleFree(Y, Left, Count);
		if (TintColour == White && !Mapping.bIgnoreAlpha)
		{
			return Pixels;
		}
		Tint(Pixels, Count);
		return Output.GetData();
	}
}
