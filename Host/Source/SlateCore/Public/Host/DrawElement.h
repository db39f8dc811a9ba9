#pragma once

#include <variant>

#include "CoreMinimal.h"
#include "Host/PixelRect.h"
#include "Host/ShapedRun.h"

namespace Host
{
	class FTexture;
	struct FClipQuads;

	enum class EDrawElementKind : uint8
	{
		/** A filled box with corner radii and an outline; the fill may be a picture. */
		Box,
		/** A picture, or a part of one, over a rectangle. */
		Image,
		/** A picture whose margins keep their size while the middle stretches. */
		Sliced,
		/** A shaped run of glyphs in one colour. */
		Glyphs,
		/** A polyline. */
		Lines,
	};

	enum class EDrawElementFlags : uint8
	{
		None = 0,
		/** Texture coordinates beyond 0..1 repeat the picture. */
		Tiled = 1 << 0,
		IgnoreTextureAlpha = 1 << 1,
		/** Local and pixel axes agree, and one unit is one pixel (the offset may be a fraction). */
		Translated = 1 << 2,
		/** Translated by whole pixels, and of whole size. */
		PixelAligned = 1 << 3,
		/** A sliced picture without its middle, whose edges repeat instead of stretching. */
		Frame = 1 << 4,
	};
	ENUM_CLASS_FLAGS(EDrawElementFlags)

	/** Maps local units to window pixels: (x, y) becomes (Xx*x + Yx*y + X, Xy*x + Yy*y + Y). */
	struct FPixelTransform
	{
		float Xx = 1.0f;
		float Xy = 0.0f;
		float Yx = 0.0f;
		float Yy = 1.0f;
		float X = 0.0f;
		float Y = 0.0f;

		FVector2f Apply(float LocalX, float LocalY) const
		{
			return FVector2f(Xx * LocalX + Yx * LocalY + X, Xy * LocalX + Yy * LocalY + Y);
		}

		bool operator==(const FPixelTransform& Other) const = default;
	};

	/** Every pixel that an antialiased shape within the local rectangle can touch. */
	FPixelRect BoundsOf(const FPixelTransform& Transform, float Left, float Top, float Right, float Bottom);

	/** Corner radii in local units, each at most half the shorter side. */
	struct FCornerRadii
	{
		float TopLeft = 0.0f;
		float TopRight = 0.0f;
		float BottomRight = 0.0f;
		float BottomLeft = 0.0f;

		bool operator==(const FCornerRadii& Other) const = default;
	};

	/** Part of a picture, in shares of its size, from the top left. First above last mirrors. */
	struct FTextureArea
	{
		float U0 = 0.0f;
		float V0 = 0.0f;
		float U1 = 1.0f;
		float V1 = 1.0f;

		bool operator==(const FTextureArea& Other) const = default;
	};

	/** Sizes of the four sides of a frame. */
	struct FSliceMargins
	{
		float Left;
		float Top;
		float Right;
		float Bottom;

		bool operator==(const FSliceMargins& Other) const = default;
	};

	/** A polyline. It is kept in pixels of the window: line width has no meaning under a shear. */
	struct FLinePoints
	{
		/** At least two; neighbours differ. */
		TArray<FVector2f> Points;
		/** Full width. */
		float Thickness = 1.0f;
		bool bAntialias = true;
	};

	/**
	 * One thing to draw, complete in itself: it refers to no widget and to no brush, so that a widget can keep what it
	 * painted across frames. Colours are sRGB with straight alpha; renderers blend in sRGB space.
	 */
	struct FDrawElement
	{
		/** Unused by lines. For glyphs: from the run's pixels, measured from the start of its baseline. */
		FPixelTransform LocalToPixel;
		/** The drawn area is (0, 0) to this, in local units. Unused by glyphs and lines. */
		FVector2f LocalSize = FVector2f(0.0f, 0.0f);
		/**
		 * The pixels that the element may touch: around its shape, cut by the clip. Renderers draw nothing outside, and
		 * all of it must be redrawn when the element comes, goes or changes.
		 */
		FPixelRect Bounds;
		union
		{
			/** Of boxes. */
			FCornerRadii Radii = FCornerRadii();
			/** Of sliced pictures: the margins in local units. */
			FSliceMargins Margins;
		};
		union
		{
			/** Of boxes and images. */
			FTextureArea TextureArea = FTextureArea();
			/** Of sliced pictures: the same margins as shares of the picture's size. */
			FSliceMargins TextureMargins;
		};
		/** Fill, tint or text colour. */
		FColor Colour = FColor(255, 255, 255, 255);
		FColor OutlineColour = FColor(0, 0, 0, 0);
		/** In local units, inward from the edge. */
		float OutlineWidth = 0.0f;
		EDrawElementKind Kind = EDrawElementKind::Box;
		EDrawElementFlags Flags = EDrawElementFlags::None;
		/** Orders the elements of one widget; equal layers keep the order of making. */
		uint16 Layer = 0;
		/** Texture of boxes and images (boxes may have none), run of glyphs, points of lines. */
		std::variant<std::monostate, TSharedPtr<const FTexture>, TSharedPtr<const FShapedRun>, TSharedPtr<const FLinePoints>> Payload;
		/** Rotated clips besides the bounds; normally none. */
		TSharedPtr<const FClipQuads> ClipQuads;

		bool HasFlag(EDrawElementFlags Flag) const
		{
			return EnumHasAnyFlags(Flags, Flag);
		}

		const FTexture* GetTexture() const { return Get<FTexture>(); }
		const FShapedRun* GetRun() const { return Get<FShapedRun>(); }
		const FLinePoints* GetLines() const { return Get<FLinePoints>(); }

	private:
		template <typename T>
		const T* Get() const
		{
			const TSharedPtr<const T>* Held = std::get_if<TSharedPtr<const T>>(&Payload);
			return Held ? Held->Get() : nullptr;
		}
	};
	static_assert(sizeof(FDrawElement) <= 128, "thousands of these are kept and walked every frame");
}
