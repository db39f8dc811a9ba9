#include "EngineTest.h"

#include "Components/Image.h"
#include "Engine/Engine.h"
#include "Engine/GameViewportClient.h"
#include "Engine/Texture2D.h"
#include "Host/PictureCompare.h"
#include "Host/Texture.h"
#include "RHITypes.h"
#include "TemporaryContent.h"

namespace
{
	class FTextureTest : public Host::FEngineTest
	{
	protected:
		static UTexture2D* Load(const TCHAR* Name)
		{
			return LoadObject<UTexture2D>(nullptr, *FString::Printf(TEXT("/Pictures/%s.%s"), Name, Name));
		}

		Host::FTemporaryContent Content{ TEXT("/Pictures/") };
	};

	TEST_F(FTextureTest, PictureHasTheSizeOfItsFile)
	{
		Host::FPicture Picture;
		Picture.Size = FIntPoint(3, 2);
		Picture.Pixels.Init(FColor::Green, 6);
		FString Error;
		ASSERT_TRUE(Host::SavePicture(Content.GetFolder() + TEXT("/Good.png"), Picture, Error)) << Host::ToStd(Error);
		const UTexture2D* Texture = Load(TEXT("Good"));
		ASSERT_TRUE(Texture);
		EXPECT_EQ(Texture->GetSizeX(), 3);
		EXPECT_EQ(Texture->GetSizeY(), 2);
	}

	TEST_F(FTextureTest, CorruptPictureIsOneLineThatNamesTheFile)
	{
		Content.Write(TEXT("Corrupt.png"), "\x89PNG\r\n\x1a\nnothing of the kind");
		const Host::FExpectedLog Refused(TEXT("/Corrupt.png: "));
		EXPECT_EQ(Load(TEXT("Corrupt")), nullptr);
	}

	TEST_F(FTextureTest, PictureThatIsSomethingElseIsOneLine)
	{
		Content.Write(TEXT("Text.jpg"), "this is a text");
		const Host::FExpectedLog Refused(TEXT("/Text.jpg: "));
		EXPECT_EQ(Load(TEXT("Text")), nullptr);
	}

	TEST_F(FTextureTest, MissingPictureIsOneLine)
	{
		const Host::FExpectedLog Missing(TEXT("there is no file for /Pictures/Nowhere"));
		EXPECT_EQ(Load(TEXT("Nowhere")), nullptr);
	}

	TEST_F(FTextureTest, WidgetsGoOnWithoutTheirPicture)
	{
		UImage* Image = NewObject<UImage>();
		Image->SetBrushFromTexture(nullptr);
		GEngine->GameViewport->AddViewportWidgetContent(Image->TakeWidget());
		Loop.RunUntilIdle();
		Host::FPicture Picture;
		EXPECT_TRUE(Loop.TakePicture(Picture));
	}

	TEST_F(FTextureTest, TransientTextureIsFilledPartByPart)
	{
		UTexture2D* Texture = UTexture2D::CreateTransient(4, 3);
		ASSERT_TRUE(Texture);
		EXPECT_EQ(Texture->GetSizeX(), 4);
		EXPECT_EQ(Texture->GetSizeY(), 3);
		TArray<FColor> Source;
		for (uint8 Index = 0; Index < 24; ++Index)
		{
			Source.Add(FColor(Index, 0, 0, 255));
		}
		int32 NumCleaned = 0;
		const auto Clean = [&NumCleaned](uint8*, const FUpdateTextureRegion2D*) { ++NumCleaned; };
		const FUpdateTextureRegion2D Top(0, 0, 0, 0, 4, 1);
		Texture->UpdateTextureRegions(0, 1, &Top, 8 * 4, 4, reinterpret_cast<uint8*>(Source.GetData()), Clean);
		EXPECT_EQ(NumCleaned, 0) << "nothing happens before the resource is there";
		Texture->UpdateResource();
		Texture->UpdateTextureRegions(0, 1, &Top, 8 * 4, 4, reinterpret_cast<uint8*>(Source.GetData()), Clean);
		const FUpdateTextureRegion2D Rest[] = { FUpdateTextureRegion2D(0, 1, 4, 1, 4, 2), FUpdateTextureRegion2D(3, 2, 0, 0, 1, 1) };
		Texture->UpdateTextureRegions(0, 2, Rest, 8 * 4, 4, reinterpret_cast<uint8*>(Source.GetData()), Clean);
		EXPECT_EQ(NumCleaned, 2);
		TArray<int32> Reds;
		for (int32 Index = 0; Index < 12; ++Index)
		{
			Reds.Add(static_cast<int32>(Texture->GetSlateTexture()->GetPixels()[Index] >> 16 & 255));
		}
		EXPECT_EQ(Reds, TArray<int32>({ 0, 1, 2, 3, 12, 13, 14, 15, 20, 21, 22, 0 }));
		EXPECT_TRUE(Texture->GetSlateTexture()->IsOpaque());
	}

	TEST_F(FTextureTest, TransientTextureOfNoSizeIsOneLine)
	{
		const Host::FExpectedLog Refused(TEXT("0 x 3 pixels"));
		EXPECT_EQ(UTexture2D::CreateTransient(0, 3), nullptr);
	}
}
