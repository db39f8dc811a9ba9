#include "ImageWrapperBase.h"

#include "Host/ImageCodec.h"
#include "ImageWrapperLog.h"

FImageWrapperBase::FImageWrapperBase(EImageFormat InFormat, FString InDebugName)
	: Format(InFormat)
	, DebugName(MoveTemp(InDebugName))
{
}

void FImageWrapperBase::LogFailure(const FString& Error) const
{
	UE_LOG(LogImageWrapper, Error, TEXT("%s: %s"), DebugName.IsEmpty() ? TEXT("Image") : *DebugName, *Error);
}

bool FImageWrapperBase::SetCompressed(const void* InCompressedData, int64 InCompressedSize)
{
	Compressed.Reset();
	Image.Reset();
	Size = FIntPoint(0, 0);
	FString Error;
	if (!InCompressedData || InCompressedSize <= 0 || InCompressedSize > MAX_int32)
	{
		LogFailure(TEXT("there is no image data"));
		return false;
	}
	Compressed.Append(static_cast<const uint8*>(InCompressedData), static_cast<int32>(InCompressedSize));
	if (!Host::FImageCodec::ReadSize(Format, Compressed, Size, Error))
	{
		LogFailure(Error);
		Compressed.Reset();
		return false;
	}
	return true;
}

bool FImageWrapperBase::SetRaw(const void* InRawData, int64 InRawSize, const int32 InWidth, const int32 InHeight, const ERGBFormat InFormat, const int32 InBitDepth, const int32 InBytesPerRow)
{
	Compressed.Reset();
	Image.Reset();
	Size = FIntPoint(0, 0);
	FString Error;
	if (!Host::FImageLimits::Accept(InWidth, InHeight, Error))
	{
		LogFailure(Error);
		return false;
	}
	const int64 RowBytes = static_cast<int64>(InWidth) * 4;
	const int64 Stride = InBytesPerRow > 0 ? InBytesPerRow : RowBytes;
	const bool bKnownFormat = InFormat == ERGBFormat::BGRA || InFormat == ERGBFormat::RGBA;
	if (!InRawData || InBitDepth != 8 || !bKnownFormat || Stride < RowBytes || InRawSize < Stride * (InHeight - 1) + RowBytes)
	{
		LogFailure(TEXT("raw pixels must be complete rows of RGBA or BGRA with 8 bits a channel"));
		return false;
	}
	Image.Init(InWidth, InHeight, ERawImageFormat::BGRA8);
	for (int32 Y = 0; Y < InHeight; ++Y)
	{
		FMemory::Memcpy(Image.RawData.GetData() + Y * RowBytes, static_cast<const uint8*>(InRawData) + Y * Stride, static_cast<SIZE_T>(RowBytes));
	}
	if (InFormat == ERGBFormat::RGBA)
	{
		for (FColor& Pixel : Image.AsBGRA8())
		{
			Swap(Pixel.R, Pixel.B);
		}
	}
	Size = FIntPoint(InWidth, InHeight);
	return true;
}

TArray64<uint8> FImageWrapperBase::GetCompressed(int32 Quality)
{
	TArray64<uint8> Result;
	FString Error;
	if (Image.RawData.Num() == 0 && Compressed.Num() > 0)
	{
		Result.Append(Compressed.GetData(), Compressed.Num());
	}
	else if (!Host::FImageCodec::Encode(Format, Image, Quality, Result, Error))
	{
		LogFailure(Error);
	}
	return Result;
}

bool FImageWrapperBase::Decode()
{
	if (Image.RawData.Num() > 0)
	{
		return true;
	}
	FString Error;
	if (Compressed.Num() > 0 && Host::FImageCodec::Decode(Format, Compressed, Image, Error))
	{
		return true;
	}
	LogFailure(Error.IsEmpty() ? FString(TEXT("there is no image data")) : Error);
	return false;
}

bool FImageWrapperBase::GetRaw(const ERGBFormat InFormat, int32 InBitDepth, TArray64<uint8>& OutRawData)
{
	OutRawData.Reset();
	if (InBitDepth != 8 || (InFormat != ERGBFormat::BGRA && InFormat != ERGBFormat::RGBA))
	{
		LogFailure(TEXT("pixels can be had as RGBA or BGRA with 8 bits a channel"));
		return false;
	}
	if (!Decode())
	{
		return false;
	}
	OutRawData = Image.RawData;
	if (InFormat == ERGBFormat::RGBA)
	{
		for (int64 Index = 0; Index + 3 < OutRawData.Num(); Index += 4)
		{
			Swap(OutRawData[Index], OutRawData[Index + 2]);
		}
	}
	return true;
}

bool FImageWrapperBase::GetRaw(TArray64<uint8>& OutRawData)
{
	return GetRaw(GetFormat(), GetBitDepth(), OutRawData);
}

bool FImageWrapperBase::GetRawImage(FImage& OutImage)
{
	if (!Decode())
	{
		OutImage.Reset();
		return false;
	}
	OutImage = Image;
	return true;
}
