#pragma once

#include "CoreMinimal.h"

/** How the pixels of an image are stored. */
namespace ERawImageFormat
{
	enum Type : uint8
	{
		/** Four bytes: blue, green, red, alpha; FColor. */
		BGRA8 = 1,
	};

	/** Bytes of one pixel. */
	inline int32 GetBytesPerPixel(Type)
	{
		return 4;
	}
}

/** What the numbers of the colour channels mean. */
enum class EGammaSpace : uint8
{
	Linear,
	sRGB = 2,
};

/** Size and format of an image. */
struct FImageInfo
{
	int32 SizeX = 0;
	int32 SizeY = 0;
	int32 NumSlices = 1;
	ERawImageFormat::Type Format = ERawImageFormat::BGRA8;
	EGammaSpace GammaSpace = EGammaSpace::sRGB;

	int32 GetWidth() const { return SizeX; }
	int32 GetHeight() const { return SizeY; }
	int64 GetNumPixels() const { return static_cast<int64>(SizeX) * SizeY * NumSlices; }
	int64 GetImageSizeBytes() const { return GetNumPixels() * ERawImageFormat::GetBytesPerPixel(Format); }
};

/** An image that someone else owns. */
struct FImageView : public FImageInfo
{
	void* RawData = nullptr;

	FImageView() = default;
	FImageView(const FColor* InColors, int32 InSizeX, int32 InSizeY, EGammaSpace InGammaSpace = EGammaSpace::sRGB);

	/** All pixels, rows from the top. */
	TArrayView<const FColor> AsBGRA8() const;
};

/** An image: pixels in rows from the top, without gaps, alpha not multiplied into the colours. */
struct FImage : public FImageInfo
{
	TArray64<uint8> RawData;

	/** Gives the image a size; the pixels are not initialised. */
	void Init(int32 InSizeX, int32 InSizeY, ERawImageFormat::Type InFormat, EGammaSpace InGammaSpace = EGammaSpace::sRGB);

	/** Back to no pixels. */
	void Reset();

	TArrayView<FColor> AsBGRA8();
	TArrayView<const FColor> AsBGRA8() const;

	operator FImageView() const;
};
