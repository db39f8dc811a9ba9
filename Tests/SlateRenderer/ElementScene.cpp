#include "ElementScene.h"

#include <cmath>

#include <gtest/gtest.h>

#include "Fonts/SlateFontInfo.h"
#include "Host/FontServices.h"
#include "Host/RendererChoice.h"
#include "Host/Texture.h"
#include "Layout/Clipping.h"

using namespace Host;

namespace ElementScene
{
	FDrawElement MakeBox(int32 X, int32 Y, int32 Width, int32 Height, FColor Colour)
	{
		FDrawElement Element;
		Element.LocalToPixel.X = static_cast<float>(X);
		Element.LocalToPixel.Y = static_cast<float>(Y);
		Element.LocalSize = FVector2f(static_cast<float>(Width), static_cast<float>(Height));
		Element.Bounds = FPixelRect::Make(X, Y, X + Width, Y + Height);
		Element.Flags = EDrawElementFlags::Translated | EDrawElementFlags::PixelAligned;
		Element.Colour = Colour;
		return Element;
	}

	FDrawElement MakeRoundedBox(int32 X, int32 Y, int32 Width, int32 Height, float Radius, FColor Colour, float OutlineWidth, FColor OutlineColour)
	{
		FDrawElement Element = MakeBox(X, Y, Width, Height, Colour);
		Element.Radii = { Radius, Radius, Radius, Radius };
		Element.OutlineWidth = OutlineWidth;
		Element.OutlineColour = OutlineColour;
		return Element;
	}

	FPixelTransform Turn(float CentreX, float CentreY, float Degrees, float Scale)
	{
		const float Angle = Degrees * 3.14159265f / 180.0f;
		const float Cosine = std::cos(Angle) * Scale;
		const float Sine = std::sin(Angle) * Scale;
		return { Cosine, Sine, -Sine, Cosine, CentreX, CentreY };
	}

	FDrawElement MakeTurnedBox(float CentreX, float CentreY, float Width, float Height, float Degrees, float Radius, FColor Colour, float StretchX)
	{
		FDrawElement Element = MakeRoundedBox(0, 0, 1, 1, Radius, Colour);
		Element.Flags = EDrawElementFlags::None;
		Element.LocalSize = FVector2f(Width, Height);
		FPixelTransform& Transform = Element.LocalToPixel;
		Transform = Turn(CentreX, CentreY, Degrees);
		Transform.Xx *= StretchX;
		Transform.Xy *= StretchX;
		const FVector2f Start = Transform.Apply(-0.5f * Width, -0.5f * Height);
		Transform.X = Start.X;
		Transform.Y = Start.Y;
		Element.Bounds = BoundsOf(Transform, 0.0f, 0.0f, Width, Height);
		return Element;
	}

	FDrawElement MakeImage(int32 X, int32 Y, int32 Width, int32 Height, const TSharedRef<const FTexture>& Texture, FColor Tint)
	{
		FDrawElement Element = MakeBox(X, Y, Width, Height, Tint);
		Element.Kind = EDrawElementKind::Image;
		Element.Payload = TSharedPtr<const FTexture>(Texture);
		return Element;
	}

	FDrawElement MakeText(const FPixelTransform& Transform, const TCHAR* Text, float Points, FColor Colour)
	{
		FSlateFontInfo Info;
		Info.Size = Points;
		FFontServices& Fonts = FFontServices::Get();
		const FShapedRunRef Run = Fonts.Shape(Fonts.GetFont(Info, 1.0f), Text);
		const FInkBounds& Ink = Run->GetInkBounds();
		FDrawElement Element;
		Element.Kind = EDrawElementKind::Glyphs;
		Element.LocalToPixel = Transform;
		Element.Colour = Colour;
		Element.Bounds = BoundsOf(Transform, Ink.Left - 1.0f, Ink.Top - 1.0f, Ink.Right + 1.0f, Ink.Bottom + 1.0f);
		Element.Payload = FShapedRunPtr(Run);
		return Element;
	}

	FDrawElement MakeText(float X, float Y, const TCHAR* Text, float Points, FColor Colour)
	{
		FDrawElement Element = MakeText(FPixelTransform{ 1.0f, 0.0f, 0.0f, 1.0f, X, Y }, Text, Points, Colour);
		Element.Flags = EDrawElementFlags::Translated;
		return Element;
	}

	FDrawElement MakeLines(TArray<FVector2f> Points, float Thickness, FColor Colour, bool bAntialias)
	{
		const TSharedRef<FLinePoints> Lines = MakeShared<FLinePoints>();
		Lines->Points = MoveTemp(Points);
		Lines->Thickness = Thickness;
		Lines->bAntialias = bAntialias;
		FDrawElement Element;
		Element.Kind = EDrawElementKind::Lines;
		Element.Colour = Colour;
		const float Margin = Thickness * 0.5f + 1.0f;
		for (const FVector2f& Point : Lines->Points)
		{
			Element.Bounds = Element.Bounds.Union(FPixelRect::Around(Point.X - Margin, Point.Y - Margin, Point.X + Margin, Point.Y + Margin));
		}
		Element.Payload = TSharedPtr<const FLinePoints>(Lines);
		return Element;
	}

	void ClipTo(FDrawElement& Element, float CentreX, float CentreY, float Width, float Height, float Degrees)
	{
		const FPixelTransform Transform = Turn(CentreX, CentreY, Degrees);
		const float X = 0.5f * Width;
		const float Y = 0.5f * Height;
		const FSlateClippingZone Zone(Transform.Apply(-X, -Y), Transform.Apply(X, -Y), Transform.Apply(-X, Y), Transform.Apply(X, Y));
		FClipState Clip;
		Clip.Quads = Element.ClipQuads;
		Clip = Clip.Intersect(Zone);
		Element.Bounds = Element.Bounds.Intersect(Clip.Rect);
		Element.ClipQuads = Clip.Quads;
	}

	TSharedRef<const FTexture> MakeTestTexture(int32 Width, int32 Height)
	{
		TArray<FColor> Pixels;
		for (int32 Y = 0; Y < Height; ++Y)
		{
			for (int32 X = 0; X < Width; ++X)
			{
				const bool bRim = X == 0 || Y == 0 || X == Width - 1 || Y == Height - 1;
				const bool bDark = ((X / 4) + (Y / 4)) % 2 == 0;
				Pixels.Add(FColor(static_cast<uint8>(255 * X / Width), static_cast<uint8>(255 * Y / Height), bDark ? 40 : 200, bRim ? 96 : 255));
			}
		}
		return FTexture::Make(FIntPoint(Width, Height), Pixels, EPixelAlpha::Straight, TEXT("test"));
	}

	void DrawDamage(FWindowSurface& Surface, const FElements& Elements, TConstArrayView<FPixelRect> Damage, FColor Background)
	{
		const auto Traverse = [&Elements](const FPixelRect&, FElementVisitor Visitor) { Visitor(Elements); };
		Surface.DrawFrame(FWindowFrame{ Background, Damage, Traverse });
	}

	FPicture Read(FWindowSurface& Surface)
	{
		FPicture Picture;
		Surface.ReadPixels(Picture.Pixels, Picture.Size);
		return Picture;
	}

	FPicture Draw(FSlateRenderer& Renderer, FIntPoint Size, const FElements& Elements, FColor Background)
	{
		const TUniquePtr<FWindowSurface> Surface = Renderer.CreateSurface(Size, nullptr);
		const FPixelRect All = FPixelRect::Make(0, 0, Size.X, Size.Y);
		DrawDamage(*Surface, Elements, MakeArrayView(&All, 1), Background);
		return Read(*Surface);
	}

	static TSharedPtr<FSlateRenderer> MakeHeadless(ERendererChoice Choice)
	{
		FString Error;
		TSharedPtr<FSlateRenderer> Renderer = MakeRenderer(Choice, true, Error);
		EXPECT_TRUE(Renderer.IsValid()) << TCHAR_TO_UTF8(*Error);
		return Renderer;
	}

	TSharedPtr<FSlateRenderer> MakeCpu()
	{
		return MakeHeadless(ERendererChoice::Cpu);
	}

	TSharedPtr<FSlateRenderer> MakeGl()
	{
		return MakeHeadless(ERendererChoice::Gl);
	}

	void Leave(const FPicture& Picture, const TCHAR* Name)
	{
		FString Error;
		const FString Path = FString::Printf(TEXT("%s/TestPictures/%s.png"), UTF8_TO_TCHAR(HALVEX_BINARY_DIR), Name);
		EXPECT_TRUE(SavePicture(Path, Picture, Error)) << TCHAR_TO_UTF8(*Error);
	}
}
