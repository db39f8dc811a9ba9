#include "Host/ImageCodec.h"

#include <cstring>

#include <gtest/gtest.h>

using namespace Host;

namespace
{
	FImage MakeImage(int32 Width, int32 Height, bool bOpaque)
	{
		FImage Image;
		Image.Init(Width, Height, ERawImageFormat::BGRA8);
		int32 Index = 0;
		for (FColor& Pixel : Image.AsBGRA8())
		{
			Pixel = FColor(static_cast<uint8>(Index * 3), static_cast<uint8>(Index * 5), static_cast<uint8>(255 - Index), bOpaque ? 255 : static_cast<uint8>(Index * 7));
			++Index;
		}
		return Image;
	}

	TArray<uint8> Encode(EImageFormat Format, const FImage& Image, int32 Quality = 0)
	{
		TArray64<uint8> Data;
		FString Error;
		EXPECT_TRUE(FImageCodec::Encode(Format, Image, Quality, Data, Error)) << TCHAR_TO_UTF8(*Error);
		TArray<uint8> Result;
		Result.Append(Data.GetData(), static_cast<int32>(Data.Num()));
		return Result;
	}

	/** Reads what must be refused; the reason. */
	FString ExpectRefusal(TConstArrayView<uint8> Data)
	{
		FImage Image = MakeImage(2, 2, true);
		FString Error;
		EXPECT_FALSE(FImageCodec::Decode(Data, Image, Error));
		EXPECT_EQ(Image.SizeX, 0);
		EXPECT_EQ(Image.RawData.Num(), 0);
		EXPECT_FALSE(Error.IsEmpty());
		EXPECT_FALSE(Error.Contains(TEXT("\n")));
		return Error;
	}

	void PutBigEndian(TArray<uint8>& Data, int32 Offset, uint32 Value)
	{
		for (int32 Index = 0; Index < 4; ++Index)
		{
			Data[Offset + Index] = static_cast<uint8>(Value >> (24 - 8 * Index));
		}
	}

	uint32 GetPngCheckSum(const uint8* Data, int32 Size)
	{
		uint32 Sum = 0xffffffffu;
		for (int32 Index = 0; Index < Size; ++Index)
		{
			Sum ^= Data[Index];
			for (int32 Bit = 0; Bit < 8; ++Bit)
			{
				Sum = Sum & 1 ? Sum >> 1 ^ 0xedb88320u : Sum >> 1;
			}
		}
		return ~Sum;
	}

	/** A PNG whose header claims another size, with a check sum that agrees. */
	TArray<uint8> MakeLyingPng(uint32 Width, uint32 Height)
	{
		TArray<uint8> Data = Encode(EImageFormat::PNG, MakeImage(4, 4, true));
		PutBigEndian(Data, 16, Width);
		PutBigEndian(Data, 20, Height);
		PutBigEndian(Data, 29, GetPngCheckSum(Data.GetData() + 12, 17));
		return Data;
	}

	/** A lossless WebP of 2 x 1 pixels: red, then half transparent blue. */
	const uint8 TinyWebP[] = { 0x52, 0x49, 0x46, 0x46, 0x20, 0x00, 0x00, 0x00, 0x57, 0x45, 0x42, 0x50, 0x56, 0x50, 0x38, 0x4c, 0x13, 0x00, 0x00, 0x00, 0x2f, 0x01, 0x00, 0x00,
		0x10, 0x0f, 0x10, 0xfb, 0x3f, 0xff, 0x0f, 0xfc, 0x8f, 0x0a, 0x15, 0x88, 0xe8, 0x7f, 0x00, 0x00 };
}

TEST(ImageCodec, PngKeepsEveryPixel)
{
	const FImage Original = MakeImage(37, 23, false);
	FImage Copy;
	FString Error;

	ASSERT_TRUE(FImageCodec::Decode(Encode(EImageFormat::PNG, Original), Copy, Error)) << TCHAR_TO_UTF8(*Error);

	EXPECT_EQ(Copy.SizeX, 37);
	EXPECT_EQ(Copy.SizeY, 23);
	EXPECT_EQ(Copy.Format, ERawImageFormat::BGRA8);
	EXPECT_EQ(std::memcmp(Copy.RawData.GetData(), Original.RawData.GetData(), static_cast<size_t>(Original.RawData.Num())), 0);
}

TEST(ImageCodec, JpegComesCloseAndIsOpaque)
{
	FImage Original;
	Original.Init(32, 32, ERawImageFormat::BGRA8);
	for (FColor& Pixel : Original.AsBGRA8())
	{
		Pixel = FColor(200, 120, 40, 10);
	}
	FImage Copy;
	FString Error;

	ASSERT_TRUE(FImageCodec::Decode(Encode(EImageFormat::JPEG, Original, 95), Copy, Error)) << TCHAR_TO_UTF8(*Error);

	ASSERT_EQ(Copy.GetNumPixels(), 32 * 32);
	for (const FColor& Pixel : Copy.AsBGRA8())
	{
		ASSERT_NEAR(Pixel.R, 200, 3);
		ASSERT_NEAR(Pixel.G, 120, 3);
		ASSERT_NEAR(Pixel.B, 40, 3);
		ASSERT_EQ(Pixel.A, 255);
	}
}

TEST(ImageCodec, LowerQualityMakesSmallerFiles)
{
	const FImage Image = MakeImage(64, 64, true);

	EXPECT_LT(Encode(EImageFormat::JPEG, Image, 20).Num(), Encode(EImageFormat::JPEG, Image, 95).Num());
}

TEST(ImageCodec, FormatsAreTakenFromTheContent)
{
	EXPECT_EQ(FImageCodec::Detect(Encode(EImageFormat::PNG, MakeImage(2, 2, true))), EImageFormat::PNG);
	EXPECT_EQ(FImageCodec::Detect(Encode(EImageFormat::JPEG, MakeImage(2, 2, true))), EImageFormat::JPEG);
	EXPECT_EQ(FImageCodec::Detect(MakeArrayView(TinyWebP, UE_ARRAY_COUNT(TinyWebP))), WebPImageFormat);
	EXPECT_EQ(FImageCodec::Detect(TConstArrayView<uint8>()), EImageFormat::Invalid);
}

TEST(ImageCodec, OtherDataIsRefusedWithAReason)
{
	const uint8 Text[] = { 'h', 'e', 'l', 'l', 'o' };

	EXPECT_EQ(ExpectRefusal(MakeArrayView(Text, 5)), FString(TEXT("the image is neither PNG nor JPEG nor WebP")));
	EXPECT_EQ(ExpectRefusal(TConstArrayView<uint8>()), FString(TEXT("the image is empty")));
}

TEST(ImageCodec, TruncatedPngIsRefusedWhereverItEnds)
{
	const TArray<uint8> Data = Encode(EImageFormat::PNG, MakeImage(16, 16, false));
	for (int32 Size = 8; Size < Data.Num() - 12; Size += 7)
	{
		ExpectRefusal(MakeArrayView(Data.GetData(), Size));
	}
}

TEST(ImageCodec, TruncatedJpegIsRefusedWhereverItEnds)
{
	const TArray<uint8> Data = Encode(EImageFormat::JPEG, MakeImage(64, 64, true), 90);
	for (int32 Size = 3; Size < Data.Num() - 2; Size += 29)
	{
		ExpectRefusal(MakeArrayView(Data.GetData(), Size));
	}
}

TEST(ImageCodec, DamagedPngIsRefused)
{
	TArray<uint8> Data = Encode(EImageFormat::PNG, MakeImage(16, 16, false));
	Data[Data.Num() / 2] ^= 0x55;

	EXPECT_TRUE(ExpectRefusal(Data).StartsWith(TEXT("PNG: ")));
}

TEST(ImageCodec, DimensionBombsAreRefusedBeforeMemoryIsTaken)
{
	EXPECT_TRUE(ExpectRefusal(MakeLyingPng(100000, 100000)).Contains(TEXT("100000 x 100000")));
	EXPECT_TRUE(ExpectRefusal(MakeLyingPng(16384, 16384)).Contains(TEXT("67108864")));
}

TEST(ImageCodec, JpegDimensionBombIsRefused)
{
	TArray<uint8> Data = Encode(EImageFormat::JPEG, MakeImage(8, 8, true));
	for (int32 Index = 0; Index + 8 < Data.Num(); ++Index)
	{
		// The frame header: marker, length, depth, height, width.
		if (Data[Index] == 0xff && Data[Index + 1] == 0xc0)
		{
			std::memset(Data.GetData() + Index + 5, 0x7f, 4);
			break;
		}
	}

	EXPECT_TRUE(ExpectRefusal(Data).Contains(TEXT("32639 x 32639")));
}

TEST(ImageCodec, WebPIsRead)
{
	FImage Image;
	FString Error;

	ASSERT_TRUE(FImageCodec::Decode(MakeArrayView(TinyWebP, UE_ARRAY_COUNT(TinyWebP)), Image, Error)) << TCHAR_TO_UTF8(*Error);

	ASSERT_EQ(Image.SizeX, 2);
	ASSERT_EQ(Image.SizeY, 1);
	EXPECT_EQ(Image.AsBGRA8()[0], FColor(255, 0, 0, 255));
	EXPECT_EQ(Image.AsBGRA8()[1], FColor(0, 0, 255, 128));
}

TEST(ImageCodec, TruncatedWebPIsRefused)
{
	EXPECT_EQ(ExpectRefusal(MakeArrayView(TinyWebP, UE_ARRAY_COUNT(TinyWebP) - 12)), FString(TEXT("WebP: the data ends early")));
}

TEST(ImageCodec, WebPCannotBeWritten)
{
	TArray64<uint8> Data;
	FString Error;
	EXPECT_FALSE(FImageCodec::Encode(WebPImageFormat, MakeImage(2, 2, true), 0, Data, Error));
	EXPECT_EQ(Error, FString(TEXT("WebP images cannot be written")));
}

TEST(ImageCodec, EmptyImagesCannotBeWritten)
{
	TArray64<uint8> Data;
	FString Error;
	EXPECT_FALSE(FImageCodec::Encode(EImageFormat::PNG, FImage(), 0, Data, Error));
	EXPECT_FALSE(Error.IsEmpty());
}
