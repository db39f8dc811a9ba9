#include "IImageWrapperModule.h"

#include <gtest/gtest.h>

#include "ExpectedLog.h"
#include "Host/ImageCodec.h"
#include "Modules/ModuleManager.h"

namespace
{
	class ImageWrapper : public testing::Test
	{
	protected:
		IImageWrapperModule& Module = FModuleManager::LoadModuleChecked<IImageWrapperModule>(FName("ImageWrapper"));
		const FColor Pixels[4] = { FColor(255, 0, 0, 255), FColor(0, 255, 0, 128), FColor(0, 0, 255, 255), FColor(9, 8, 7, 6) };
	};
}

TEST_F(ImageWrapper, ImagesSurviveCompression)
{
	TArray64<uint8> Data;
	FImage Image;

	ASSERT_TRUE(Module.CompressImage(Data, EImageFormat::PNG, FImageView(Pixels, 2, 2)));
	EXPECT_EQ(Module.DetectImageFormat(Data.GetData(), Data.Num()), EImageFormat::PNG);
	ASSERT_TRUE(Module.DecompressImage(Data.GetData(), Data.Num(), Image));

	ASSERT_EQ(Image.SizeX, 2);
	ASSERT_EQ(Image.SizeY, 2);
	for (int32 Index = 0; Index < 4; ++Index)
	{
		EXPECT_EQ(Image.AsBGRA8()[Index], Pixels[Index]);
	}
}

TEST_F(ImageWrapper, UnreadableDataIsOneLineInTheLog)
{
	const Host::FExpectedLog Log(TEXT("The image was not read: the image is neither PNG nor JPEG nor WebP"));
	const uint8 Data[3] = { 1, 2, 3 };
	FImage Image;

	EXPECT_FALSE(Module.DecompressImage(Data, 3, Image));
	EXPECT_EQ(Image.RawData.Num(), 0);
}

TEST_F(ImageWrapper, WrapperGivesRawPixelsInTheOrderAskedFor)
{
	TArray64<uint8> Data;
	ASSERT_TRUE(Module.CompressImage(Data, EImageFormat::PNG, FImageView(Pixels, 2, 2)));
	const TSharedPtr<IImageWrapper> Wrapper = Module.CreateImageWrapper(EImageFormat::PNG);
	ASSERT_TRUE(Wrapper.IsValid());
	TArray64<uint8> Raw;

	ASSERT_TRUE(Wrapper->SetCompressed(Data.GetData(), Data.Num()));
	EXPECT_EQ(Wrapper->GetWidth(), 2);
	EXPECT_EQ(Wrapper->GetHeight(), 2);
	ASSERT_TRUE(Wrapper->GetRaw(ERGBFormat::RGBA, 8, Raw));

	ASSERT_EQ(Raw.Num(), 16);
	EXPECT_EQ(Raw[0], 255);
	EXPECT_EQ(Raw[2], 0);
	EXPECT_EQ(Raw[5], 255);
	EXPECT_EQ(Raw[7], 128);
}

TEST_F(ImageWrapper, WrapperCompressesRawPixelsWithGapsBetweenRows)
{
	const uint8 Raw[24] = { 10, 20, 30, 255, 40, 50, 60, 255, 0, 0, 0, 0, 70, 80, 90, 255, 100, 110, 120, 255, 0, 0, 0, 0 };
	const TSharedPtr<IImageWrapper> Wrapper = Module.CreateImageWrapper(EImageFormat::PNG);
	FImage Image;

	ASSERT_TRUE(Wrapper->SetRaw(Raw, 24, 2, 2, ERGBFormat::RGBA, 8, 12));
	const TArray64<uint8> Data = Wrapper->GetCompressed();
	ASSERT_TRUE(Module.DecompressImage(Data.GetData(), Data.Num(), Image));

	EXPECT_EQ(Image.AsBGRA8()[0], FColor(10, 20, 30, 255));
	EXPECT_EQ(Image.AsBGRA8()[3], FColor(100, 110, 120, 255));
}

TEST_F(ImageWrapper, WrapperNamesTheImageItRefuses)
{
	const Host::FExpectedLog Log(TEXT("portrait: PNG: "));
	const TSharedPtr<IImageWrapper> Wrapper = Module.CreateImageWrapper(EImageFormat::PNG, TEXT("portrait"));
	const uint8 Data[8] = { 0x89, 'P', 'N', 'G', '\r', '\n', 0x1a, '\n' };

	EXPECT_FALSE(Wrapper->SetCompressed(Data, 8));
	EXPECT_EQ(Wrapper->GetWidth(), 0);
}

TEST_F(ImageWrapper, IncompleteRawPixelsAreRefused)
{
	const Host::FExpectedLog Log(TEXT("raw pixels must be complete rows"));
	const TSharedPtr<IImageWrapper> Wrapper = Module.CreateImageWrapper(EImageFormat::PNG);
	const uint8 Raw[15] = {};

	EXPECT_FALSE(Wrapper->SetRaw(Raw, 15, 2, 2, ERGBFormat::RGBA, 8));
}

TEST_F(ImageWrapper, UnknownFormatsHaveNoWrapper)
{
	EXPECT_FALSE(Module.CreateImageWrapper(EImageFormat::Invalid).IsValid());
}
