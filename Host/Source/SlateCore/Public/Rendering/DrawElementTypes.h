#pragma once

#include "CoreMinimal.h"
#include "Host/DrawElement.h"
#include "Rendering/RenderingCommon.h"

class FSlateWindowElementList;
struct FPaintGeometry;
struct FSlateBrush;
struct FSlateFontInfo;

/**
 * Makers of draw elements. Each appends what the arguments describe to the list, for the widget that is being painted
 * and under its clipping; an element without visible pixels is not appended. Tints are linear colours and are the whole
 * tint: the tint of a brush is not applied again. Coordinates are those of the geometry; within it, local units.
 */
class SLATECORE_API FSlateDrawElement
{
public:
	/**
	 * A brush over the geometry, in the way that the brush says: rounded box, box or border in nine pieces, or image. A brush
	 * that has no picture is drawn in the plain tint. Null brushes and brushes that draw nothing append nothing.
	 */
	static void MakeBox(FSlateWindowElementList& ElementList, uint32 InLayer, const FPaintGeometry& PaintGeometry, const FSlateBrush* InBrush,
		ESlateDrawEffect InDrawEffects = ESlateDrawEffect::None, const FLinearColor& InTint = FLinearColor::White);

	/** One line of text from the geometry's top left, without wrapping. */
	static void MakeText(FSlateWindowElementList& ElementList, uint32 InLayer, const FPaintGeometry& PaintGeometry, const FString& InText,
		const FSlateFontInfo& InFontInfo, ESlateDrawEffect InDrawEffects = ESlateDrawEffect::None, const FLinearColor& InTint = FLinearColor::White);

	static void MakeText(FSlateWindowElementList& ElementList, uint32 InLayer, const FPaintGeometry& PaintGeometry, const FText& InText,
		const FSlateFontInfo& InFontInfo, ESlateDrawEffect InDrawEffects = ESlateDrawEffect::None, const FLinearColor& InTint = FLinearColor::White);

	/**
	 * A shaped run as a line of text: the geometry's top left is the top of the line, the baseline lies below by the font's
	 * metrics. The run's glyphs are in pixels of the scale that it was shaped for, which should be that of the geometry
	 * (FPaintGeometry::DrawScale): then they are drawn without resampling.
	 * @param InOutlineTint	colour of the outline, if the font has one
	 */
	static void MakeShapedText(FSlateWindowElementList& ElementList, uint32 InLayer, const FPaintGeometry& PaintGeometry, const TSharedRef<const Host::FShapedRun>& InRun,
		ESlateDrawEffect InDrawEffects = ESlateDrawEffect::None, const FLinearColor& InTint = FLinearColor::White, const FLinearColor& InOutlineTint = FLinearColor::Black);

	/**
	 * Connected line segments through the points.
	 * @param Thickness	full width in local units
	 */
	static void MakeLines(FSlateWindowElementList& ElementList, uint32 InLayer, const FPaintGeometry& PaintGeometry, TArray<FVector2f> Points,
		ESlateDrawEffect InDrawEffects = ESlateDrawEffect::None, const FLinearColor& InTint = FLinearColor::White, bool bAntialias = true, float Thickness = 1.0f);

	/** A picture that no brush holds, such as a rendered scene, over the whole geometry. */
	static void MakeTexture(FSlateWindowElementList& ElementList, uint32 InLayer, const FPaintGeometry& PaintGeometry, const TSharedRef<const Host::FTexture>& InTexture,
		ESlateDrawEffect InDrawEffects = ESlateDrawEffect::None, const FLinearColor& InTint = FLinearColor::White);
};
