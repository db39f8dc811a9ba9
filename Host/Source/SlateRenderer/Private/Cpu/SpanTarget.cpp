#include "Cpu/SpanTarget.h"

#include "Cpu/PixelMath.h"
#include "Cpu/PixelRows.h"

namespace Host
{
	FSpanTarget::FSpanTarget(uint32* InPixels, int32 InStride, const FPixelRect& InArea, const FClipQuads* InQuads)
		: Pixels(InPixels)
		, Stride(InStride)
		, Area(InArea)
		, Quads(InQuads)
	{
	}

	const uint8* FSpanTarget::MakeClipMask(int32 Y, int32 Left, int32 Count)
	{
		ClipMask.SetNumUninitialized(FMath::Max(ClipMask.Num(), Count));
		const float CentreY = static_cast<float>(Y) + 0.5f;
		for (int32 Index = 0; Index < Count; ++Index)
		{
			const float CentreX = static_cast<float>(Left + Index) + 0.5f;
			float Inside = 1.0f;
			for (const FClipQuad& Quad : Quads->Quads)
			{
				for (const FClipQuad::FEdge& Edge : Quad.Edges)
				{
					Inside = FMath::Min(Inside, Edge.A * CentreX + Edge.B * CentreY + Edge.C + 0.5f);
				}
			}
			ClipMask[Index] = static_cast<uint8>(PixelMath::ToShare(Inside));
		}
		return ClipMask.GetData();
	}

	void FSpanTarget::Fill(int32 Y, int32 Left, int32 Right, uint32 Colour)
	{
		if (Quads)
		{
			const uint8* Clip = MakeClipMask(Y, Left, Right - Left);
			PixelRows::BlendMask(Row(Y, Left), Clip, Right - Left, Colour);
		}
		else if (PixelMath::Alpha(Colour) == 255)
		{
			PixelRows::Fill(Row(Y, Left), Right - Left, Colour);
		}
		else
		{
			PixelRows::BlendColour(Row(Y, Left), Right - Left, Colour);
		}
	}

	void FSpanTarget::FillMask(int32 Y, int32 Left, const uint8* Mask, int32 Count, uint32 Colour)
	{
		if (Quads)
		{
			MakeClipMask(Y, Left, Count);
			for (int32 Index = 0; Index < Count; ++Index)
			{
				ClipMask[Index] = static_cast<uint8>(PixelMath::Multiply(ClipMask[Index], Mask[Index]));
			}
			Mask = ClipMask.GetData();
		}
		PixelRows::BlendMask(Row(Y, Left), Mask, Count, Colour);
	}

	void FSpanTarget::Blend(int32 Y, int32 Left, const uint32* Source, int32 Count, bool bOpaque)
	{
		if (Quads)
		{
			Clipped.SetNumUninitialized(FMath::Max(Clipped.Num(), Count));
			FMemory::Memcpy(Clipped.GetData(), Source, sizeof(uint32) * Count);
			PixelRows::ScaleByMask(Clipped.GetData(), MakeClipMask(Y, Left, Count), Count);
			PixelRows::BlendPixels(Row(Y, Left), Clipped.GetData(), Count);
		}
		else if (bOpaque)
		{
			FMemory::Memcpy(Row(Y, Left), Source, sizeof(uint32) * Count);
		}
		else
		{
			PixelRows::BlendPixels(Row(Y, Left), Source, Count);
		}
	}
}
