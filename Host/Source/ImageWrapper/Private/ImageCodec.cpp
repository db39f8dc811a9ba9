#include "Host/ImageCodec.h"

#include "Codecs.h"

namespace Host
{
	namespace
	{
		bool StartsWith(TConstArrayView<uint8> Data, int32 Offset, std::initializer_list<uint8> Bytes)
		{
			if (Data.Num() < Offset + static_cast<int32>(Bytes.size()))
			{
				return false;
			}
			int32 Index = Offset;
			for (const uint8 Byte : Bytes)
			{
				if (Data[Index++] != Byte)
				{
					return false;
				}
			}
			return true;
		}

		bool FailUnknown(TConstArrayView<uint8> Data, FString& OutError)
		{
			OutError = Data.Num() == 0 ? TEXT("the image is empty") : TEXT("the image is neither PNG nor JPEG nor WebP");
			return false;
		}

		/** What can be done with a format. */
		struct FFormatCodec
		{
			EImageFormat Format;
			const TCHAR* Name;
			bool (*ReadSize)(TConstArrayView<uint8> Data, FIntPoint& OutSize, FString& OutError);
			bool (*Read)(TConstArrayView<uint8> Data, FImage& OutImage, FString& OutError);
		};

		constexpr FFormatCodec FormatCodecs[] = {
			{ EImageFormat::PNG, TEXT("PNG"), &Codecs::ReadPngSize, &Codecs::ReadPng },
			{ EImageFormat::JPEG, TEXT("JPEG"), &Codecs::ReadJpegSize, &Codecs::ReadJpeg },
			{ WebPImageFormat, TEXT("WebP"), &Codecs::ReadWebPSize, &Codecs::ReadWebP },
		};

		const FFormatCodec* FindCodec(EImageFormat Format)
		{
			for (const FFormatCodec& Codec : FormatCodecs)
			{
				if (Codec.Format == Format)
				{
					return &Codec;
				}
			}
			return nullptr;
		}
	}

	bool FImageLimits::Accept(int64 Width, int64 Height, FString& OutError)
	{
		if (Width > 0 && Height > 0 && Width <= MaxSize && Height <= MaxSize && Width * Height <= MaxPixels)
		{
			return true;
		}
		OutError = FString::Printf(TEXT("the image says that it is %lld x %lld pixels; at most %d a side and %lld in all are accepted"),
			static_cast<long long>(Width), static_cast<long long>(Height), MaxSize, static_cast<long long>(MaxPixels));
		return false;
	}

	EImageFormat FImageCodec::Detect(TConstArrayView<uint8> Data)
	{
		if (StartsWith(Data, 0, { 0x89, 'P', 'N', 'G', '\r', '\n', 0x1a, '\n' }))
		{
			return EImageFormat::PNG;
		}
		if (StartsWith(Data, 0, { 0xff, 0xd8, 0xff }))
		{
			return EImageFormat::JPEG;
		}
		if (StartsWith(Data, 0, { 'R', 'I', 'F', 'F' }) && StartsWith(Data, 8, { 'W', 'E', 'B', 'P' }))
		{
			return WebPImageFormat;
		}
		return EImageFormat::Invalid;
	}

	const TCHAR* FImageCodec::GetName(EImageFormat Format)
	{
		const FFormatCodec* Codec = FindCodec(Format);
		return Codec ? Codec->Name : TEXT("unknown");
	}

	bool FImageCodec::ReadSize(EImageFormat Format, TConstArrayView<uint8> Data, FIntPoint& OutSize, FString& OutError)
	{
		const FFormatCodec* Codec = FindCodec(Format);
		return Codec ? Codec->ReadSize(Data, OutSize, OutError) : FailUnknown(Data, OutError);
	}

	bool FImageCodec::Decode(EImageFormat Format, TConstArrayView<uint8> Data, FImage& OutImage, FString& OutError)
	{
		const FFormatCodec* Codec = FindCodec(Format);
		if (Codec ? Codec->Read(Data, OutImage, OutError) : FailUnknown(Data, OutError))
		{
			return true;
		}
		OutImage.Reset();
		return false;
	}

	bool FImageCodec::Decode(TConstArrayView<uint8> Data, FImage& OutImage, FString& OutError)
	{
		return Decode(Detect(Data), Data, OutImage, OutError);
	}

	bool FImageCodec::Encode(EImageFormat Format, const FImageView& Image, int32 Quality, TArray64<uint8>& OutData, FString& OutError)
	{
		OutData.Reset();
		if (!FImageLimits::Accept(Image.SizeX, Image.SizeY, OutError))
		{
			return false;
		}
		bool bDone = false;
		if (Format == EImageFormat::PNG)
		{
			bDone = Codecs::WritePng(Image, OutData, OutError);
		}
		else if (Format == EImageFormat::JPEG)
		{
			bDone = Codecs::WriteJpeg(Image, Quality, OutData, OutError);
		}
		else
		{
			OutError = FString::Printf(TEXT("%s images cannot be written"), GetName(Format));
		}
		if (!bDone)
		{
			OutData.Reset();
		}
		return bDone;
	}
}
