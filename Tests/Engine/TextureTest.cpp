#include "EngineTest.h"

#include "Components/Image.h"
#include "Engine/Engine.h"
#include "Engine/GameViewportClient.h"
#include "Engine/Texture2D.h"
#include "Host/PictureCompare.h"
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
}
