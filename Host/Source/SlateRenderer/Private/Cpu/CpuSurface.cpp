#include "Cpu/CpuSurface.h"

#include "Cpu/BoxRasterizer.h"
#include "Cpu/CpuRenderer.h"
#include "Cpu/GlyphRasterizer.h"
#include "Cpu/LineRasterizer.h"
#include "Cpu/PixelMath.h"
#include "Cpu/PixelRows.h"
#include "Cpu/SpanTarget.h"
#include "Host/FontServices.h"
#include "Shared/DamageAreas.h"

namespace Host
{
	FCpuSurface::FCpuSurface(FCpuRenderer& InRenderer, FIntPoint InSize, TUniquePtr<FWindowBlitter> InBlitter)
		: Renderer(InRenderer)
		, Blitter(MoveTemp(InBlitter))
	{
		++Renderer.NumSurfaces;
		Resize(InSize);
	}

	FCpuSurface::~FCpuSurface()
	{
		--Renderer.NumSurfaces;
	}

	void FCpuSurface::Resize(FIntPoint NewSize)
	{
		Size = FIntPoint(FMath::Clamp(NewSize.X, 0, FPixelRect::Limit), FMath::Clamp(NewSize.Y, 0, FPixelRect::Limit));
		Pixels.SetNumZeroed(Size.X * Size.Y);
	}

	void FCpuSurface::DrawFrame(const FWindowFrame& Frame)
	{
		const auto Areas = MergeDamage(Frame.Damage, GetArea());
		if (Areas.Num() == 0)
		{
			return;
		}
		FGlyphAtlas& Atlas = FFontServices::Get().GetAtlas();
		Atlas.BeginFrame();
		Renderer.CornerMasks.BeginFrame();
		++Renderer.Counters.Frames;
		for (const FPixelRect& Area : Areas)
		{
			DrawArea(Frame, Area, Atlas);
		}
		if (Blitter.IsValid())
		{
			Blitter->Show(Pixels.GetData(), Size, Areas);
		}
	}

	void FCpuSurface::DrawArea(const FWindowFrame& Frame, const FPixelRect& Area, FGlyphAtlas& Atlas)
	{
		Renderer.Counters.DamagedPixels += Area.Area();
		const uint32 Clear = PixelMath::Premultiply(Frame.ClearColour);
		for (int32 Y = Area.Top; Y < Area.Bottom; ++Y)
		{
			PixelRows::Fill(Pixels.GetData() + static_cast<int64>(Y) * Size.X + Area.Left, Area.Width(), Clear);
		}
		Frame.Traverse(Area, [this, &Area, &Atlas](TConstArrayView<FDrawElement> Elements)
		{
			for (const FDrawElement& Element : Elements)
			{
				const FPixelRect Visible = Element.Bounds.Intersect(Area);
				if (!Visible.IsEmpty())
				{
					DrawElement(Element, Visible, Atlas);
				}
			}
		});
	}

	void FCpuSurface::DrawElement(const FDrawElement& Element, const FPixelRect& Area, FGlyphAtlas& Atlas)
	{
		++Renderer.Counters.Elements;
		++Renderer.Counters.DrawCalls;
		FSpanTarget Target(Pixels.GetData(), Size.X, Area, Element.ClipQuads.Get());
		switch (Element.Kind)
		{
		case EDrawElementKind::Box:
		case EDrawElementKind::Image:
		case EDrawElementKind::Sliced:
			RasterizeBox(Element, Target, Renderer.CornerMasks);
			break;
		case EDrawElementKind::Glyphs:
			RasterizeGlyphs(Element, Target, Atlas);
			break;
		case EDrawElementKind::Lines:
			RasterizeLines(Element, Target);
			break;
		}
	}

	void FCpuSurface::Present()
	{
		if (Blitter.IsValid())
		{
			const FPixelRect All = GetArea();
			Blitter->Show(Pixels.GetData(), Size, MakeArrayView(&All, 1));
		}
	}

	void FCpuSurface::ReadPixels(TArray<FColor>& OutPixels, FIntPoint& OutSize)
	{
		OutSize = Size;
		OutPixels.SetNumUninitialized(Pixels.Num());
		for (int32 Index = 0; Index < Pixels.Num(); ++Index)
		{
			OutPixels[Index] = PixelMath::ToStraight(Pixels[Index]);
		}
	}
}
