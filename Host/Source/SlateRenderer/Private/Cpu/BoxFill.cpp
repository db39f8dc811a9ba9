#include "Cpu/BoxFill.h"

#include "Cpu/PixelMath.h"

namespace Host
{
	FBoxFill::FBoxFill(const FDrawElement& Element, FSpanTarget& InTarget)
		: Target(InTarget)
		, Colour(PixelMath::Premultiply(Element.Colour))
		, OutlineColour(PixelMath::Premultiply(Element.OutlineColour))
		, bOutlined(Element.OutlineWidth > 0.0f)
	{
		if (Element.GetTexture())
		{
			Sampler.Emplace(Element, Target.GetArea());
		}
	}

	void FBoxFill::Inside(int32 Y, int32 Left, int32 Right)
	{
		if (Left >= Right)
		{
			return;
		}
		if (Sampler.IsSet())
		{
			Target.Blend(Y, Left, Sampler->Sample(Y, Left, Right - Left), Right - Left, Sampler->IsOpaque());
		}
		else if (Colour != 0)
		{
			Target.Fill(Y, Left, Right, Colour);
		}
	}

	void FBoxFill::Uniform(int32 Y, int32 Left, int32 Right, uint32 InnerShare)
	{
		if (Left >= Right)
		{
			return;
		}
		if (InnerShare == 255)
		{
			Inside(Y, Left, Right);
		}
		else if (InnerShare == 0)
		{
			Target.Fill(Y, Left, Right, OutlineColour);
		}
		else
		{
			TArray<uint8, TInlineAllocator<256>> Shares;
			Shares.SetNumUninitialized(2 * (Right - Left));
			FMemory::Memset(Shares.GetData(), 255, Right - Left);
			FMemory::Memset(Shares.GetData() + (Right - Left), static_cast<uint8>(InnerShare), Right - Left);
			MaskedPixels(Y, Left, Shares.GetData(), Shares.GetData() + (Right - Left), Right - Left);
		}
	}

	void FBoxFill::Masked(int32 Y, int32 Left, const uint8* Outer, const uint8* Inner, int32 Count)
	{
		if (Count <= 0)
		{
			return;
		}
		if (bOutlined || Sampler.IsSet())
		{
			MaskedPixels(Y, Left, Outer, bOutlined ? Inner : Outer, Count);
		}
		else
		{
			Target.FillMask(Y, Left, Outer, Count, Colour);
		}
	}

	void FBoxFill::MaskedPixels(int32 Y, int32 Left, const uint8* Outer, const uint8* Inner, int32 Count)
	{
		const uint32* Pixels = Sampler.IsSet() ? Sampler->Sample(Y, Left, Count) : nullptr;
		Mixed.SetNumUninitialized(FMath::Max(Mixed.Num(), Count));
		for (int32 Index = 0; Index < Count; ++Index)
		{
			const uint32 Fill = Pixels ? Pixels[Index] : Colour;
			Mixed[Index] = PixelMath::Mix(Fill, Inner[Index], OutlineColour, static_cast<uint32>(Outer[Index] - Inner[Index]));
		}
		Target.Blend(Y, Left, Mixed.GetData(), Count);
	}
}
