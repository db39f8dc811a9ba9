#include "ImageCore.h"

FImageView::FImageView(const FColor* InColors, int32 InSizeX, int32 InSizeY, EGammaSpace InGammaSpace)
	: RawData(const_cast<FColor*>(InColors))
{
	SizeX = InSizeX;
	SizeY = InSizeY;
	GammaSpace = InGammaSpace;
}

TArrayView<const FColor> FImageView::AsBGRA8() const
{
	return TArrayView<const FColor>(static_cast<const FColor*>(RawData), static_cast<int32>(GetNumPixels()));
}

void FImage::Init(int32 InSizeX, int32 InSizeY, ERawImageFormat::Type InFormat, EGammaSpace InGammaSpace)
{
	check(InSizeX >= 0 && InSizeY >= 0);
	SizeX = InSizeX;
	SizeY = InSizeY;
	NumSlices = 1;
	Format = InFormat;
	GammaSpace = InGammaSpace;
	RawData.SetNumUninitialized(GetImageSizeBytes());
}

void FImage::Reset()
{
	static_cast<FImageInfo&>(*this) = FImageInfo();
	RawData.Empty();
}

TArrayView<FColor> FImage::AsBGRA8()
{
	return TArrayView<FColor>(reinterpret_cast<FColor*>(RawData.GetData()), static_cast<int32>(GetNumPixels()));
}

TArrayView<const FColor> FImage::AsBGRA8() const
{
	return TArrayView<const FColor>(reinterpret_cast<const FColor*>(RawData.GetData()), static_cast<int32>(GetNumPixels()));
}

FImage::operator FImageView() const
{
	return FImageView(reinterpret_cast<const FColor*>(RawData.GetData()), SizeX, SizeY, GammaSpace);
}
