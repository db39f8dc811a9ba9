#pragma once

#include "CoreMinimal.h"
#include "Host/ClipState.h"
#include "Host/DrawElement.h"
#include "Host/PictureCompare.h"
#include "Host/ShapedRun.h"
#include "Rendering/SlateRenderer.h"

/** Makers of elements, as widgets would paint them, and drawing of lists of them: for the tests of both renderers. */
namespace ElementScene
{
	using FElements = TArray<Host::FDrawElement>;

	/** A box on whole pixels. */
	Host::FDrawElement MakeBox(int32 X, int32 Y, int32 Width, int32 Height, FColor Colour);

	/** The same with one radius and an outline. */
	Host::FDrawElement MakeRoundedBox(int32 X, int32 Y, int32 Width, int32 Height, float Radius, FColor Colour, float OutlineWidth = 0.0f, FColor OutlineColour = FColor(0, 0, 0, 0));

	/** A box of the given size whose centre stands at the place, turned by degrees and stretched along its own axes. */
	Host::FDrawElement MakeTurnedBox(float CentreX, float CentreY, float Width, float Height, float Degrees, float Radius, FColor Colour, float StretchX = 1.0f);

	/** A picture over whole pixels. */
	Host::FDrawElement MakeImage(int32 X, int32 Y, int32 Width, int32 Height, const TSharedRef<const Host::FTexture>& Texture, FColor Tint = FColor(255, 255, 255, 255));

	/** Text whose baseline starts at the place, by the built-in font. */
	Host::FDrawElement MakeText(float X, float Y, const TCHAR* Text, float Points, FColor Colour);
	Host::FDrawElement MakeText(const Host::FPixelTransform& Transform, const TCHAR* Text, float Points, FColor Colour);

	Host::FDrawElement MakeLines(TArray<FVector2f> Points, float Thickness, FColor Colour, bool bAntialias = true);

	/** Puts a rotated clip around the element: a box of the given size, turned about its centre. */
	void ClipTo(Host::FDrawElement& Element, float CentreX, float CentreY, float Width, float Height, float Degrees);

	/** A rotation about a point. */
	Host::FPixelTransform Turn(float CentreX, float CentreY, float Degrees, float Scale = 1.0f);

	/** Colours that change along both axes, with a transparent rim: mistakes in mapping show. */
	TSharedRef<const Host::FTexture> MakeTestTexture(int32 Width, int32 Height);

	/** Draws the elements onto white. */
	Host::FPicture Draw(FSlateRenderer& Renderer, FIntPoint Size, const FElements& Elements, FColor Background = FColor(255, 255, 255, 255));

	/** Draws what changed, onto a surface that holds an earlier picture. */
	void DrawDamage(Host::FWindowSurface& Surface, const FElements& Elements, TConstArrayView<Host::FPixelRect> Damage, FColor Background = FColor(255, 255, 255, 255));

	Host::FPicture Read(Host::FWindowSurface& Surface);

	/** The renderer, ready to draw without windows. A failure fails the test. */
	TSharedPtr<FSlateRenderer> MakeCpu();
	TSharedPtr<FSlateRenderer> MakeGl();

	/** Leaves the picture where failing tests leave theirs. */
	void Leave(const Host::FPicture& Picture, const TCHAR* Name);
}
