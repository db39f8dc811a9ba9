#include "KitTest.h"

#include "Components/CanvasPanelSlot.h"
#include "Engine/Texture2D.h"
#include "Host/Texture.h"
#include "ImageCore.h"
#include "Images/HalvexImageSettings.h"
#include "Images/HalvexImageSubsystem.h"
#include "KitReflection.h"
#include "KitTestImageRecorder.h"
#include "LoopbackServer.h"
#include "TestPictures.h"
#include "WaitUntil.h"
#include "Widgets/HxImage.h"
#include "gmock/gmock.h"

using Host::FExpectedLog;
using Host::FServerReply;

namespace
{
	using namespace KitReflection;

	class FHxImageTest : public FKitTest
	{
	protected:
		virtual void SetUp() override
		{
			FKitTest::SetUp();
			UHalvexImageSubsystem::Get()->ClearDiskCache();
			Server.Serve("/small.png", MakePicture(8, 4));
			Server.Serve("/large.png", MakePicture(32, 16));
		}

		virtual void TearDown() override
		{
			States.Reset();
			Alternative.Reset();
			FKitTest::TearDown();
			CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
			EXPECT_EQ(UHalvexImageSubsystem::Get()->GetNumTransfers(), 0);
			// What was given up by that is told in a frame.
			Loop.RunUntilIdle();
			UHalvexImageSubsystem::Get()->ClearMemoryCache();
			UHalvexImageSubsystem::Get()->ClearDiskCache();
		}

		static FServerReply MakePicture(int32 Width, int32 Height)
		{
			FServerReply Reply;
			Reply.Body = Host::TestPictures::Make(Width, Height, FColor::Red);
			return Reply;
		}

		static UTexture2D* MakeTexture(int32 Width, int32 Height)
		{
			FImage Image;
			Image.Init(Width, Height, ERawImageFormat::BGRA8);
			FMemory::Memset(Image.RawData.GetData(), 255, static_cast<SIZE_T>(Image.RawData.Num()));
			return UTexture2D::CreateTransientFromImage(&Image);
		}

		UHxImage& MakeImage()
		{
			Image = Make<UHxImage>(TEXT("Image"));
			Place(*Image, 100.0, 100.0, FVector2D(64.0, 64.0));
			States.Reset(NewObject<UKitTestImageRecorder>());
			States->Listen(*Image);
			return *Image;
		}

		/** Gives the image an alternative of 3 x 2 pixels. */
		void GiveAlternative()
		{
			Alternative.Reset(MakeTexture(3, 2));
			Image->AltImage = Alternative.Get();
		}

		void Ask(const char* Path)
		{
			FImageObjectData Data;
			Data.Address = Server.GetUrl(Path);
			Image->SetImageFromData(Data, EIRS_Medium);
		}

		std::string GetStates() const { return Host::ToStd(States->States); }

		bool WaitForStates(int32 Count)
		{
			return Host::WaitUntil(Loop, [&] { return std::count(States->States.begin(), States->States.end(), TEXT('(')) >= Count; });
		}

		FVector2D GetBrushSize() const { return FVector2D(Image->GetBrush().GetImageSize()); }

		/** The picture is painted in so many pixels; (0, 0) for no picture. */
		FVector2D GetPaintedSize() const
		{
			for (const Host::FDrawElement& Element : GetPainted(*Image))
			{
				if (Element.GetTexture())
				{
					return FVector2D(Element.Bounds.Width(), Element.Bounds.Height());
				}
			}
			return FVector2D(0.0, 0.0);
		}

		UHxImage* Image = nullptr;
		Host::FLoopbackServer Server;
		TStrongObjectPtr<UKitTestImageRecorder> States;
		TStrongObjectPtr<UTexture2D> Alternative;
	};

	TEST_F(FHxImageTest, PropertiesStandInTheirOrderWithTheirTypes)
	{
		const UClass* Class = UHxImage::StaticClass();
		EXPECT_EQ(Class->GetSuperClass(), UImage::StaticClass());
		EXPECT_EQ(ListNames(Class), "OnImageStateChanged bMatchTexture DownloadingImage AltImage Stretch OverrideSize ImageDownloader");
		EXPECT_EQ(GetType(Class, TEXT("AltImage")), "UTexture2D*");
		EXPECT_EQ(GetType(Class, TEXT("DownloadingImage")), "UTexture2D*");
		EXPECT_EQ(GetType(Class, TEXT("OverrideSize")), "FHalvexSizeOverride");
		for (const TCHAR* Name : { TEXT("bMatchTexture"), TEXT("DownloadingImage"), TEXT("AltImage"), TEXT("Stretch"), TEXT("OverrideSize") })
		{
			EXPECT_TRUE(GetMember(Class, Name).HasAllPropertyFlags(CPF_Edit | CPF_BlueprintVisible)) << TCHAR_TO_UTF8(Name);
		}
		EXPECT_FALSE(GetMember(Class, TEXT("ImageDownloader")).HasAnyPropertyFlags(CPF_Edit | CPF_BlueprintVisible));
		EXPECT_TRUE(GetMember(Class, TEXT("OnImageStateChanged")).HasAnyPropertyFlags(CPF_BlueprintAssignable));
	}

	TEST_F(FHxImageTest, DefaultsMatchTheTextureAndScaleToFit)
	{
		const UHxImage* Default = GetDefault<UHxImage>();
		EXPECT_TRUE(Default->bMatchTexture);
		EXPECT_EQ(Default->Stretch, EStretch::ScaleToFit);
		EXPECT_FALSE(Default->AltImage);
		EXPECT_FALSE(Default->DownloadingImage);
		EXPECT_TRUE(Default->OverrideSize.bUseOverride);
		EXPECT_EQ(Default->OverrideSize.SizeOverride, FVector2D(0.0, 0.0));
	}

	TEST_F(FHxImageTest, StatesHaveTheirValuesAndNames)
	{
		const UEnum* Enum = StaticEnum<EImageDownloaderState>();
		const char* const Names[] = { "None", "Downloading", "Downloaded", "Failed Download" };
		for (int32 Value = 0; Value < 4; ++Value)
		{
			EXPECT_EQ(Host::ToStd(Enum->GetDisplayNameTextByValue(Value)), Names[Value]);
		}
		EXPECT_EQ(static_cast<int32>(EImageDownloaderState::EID_FailedDownload), 3);
	}

	TEST_F(FHxImageTest, PaletteListsItUnderTheProductsHeading)
	{
		EXPECT_EQ(DescribeText(Make<UHxImage>()->GetPaletteCategory()), "HalvexWidget/HalvexWidget: Halvex Widget");
	}

	TEST_F(FHxImageTest, PictureArrivesWithItsStates)
	{
		MakeImage();
		Show();
		EXPECT_EQ(GetStates(), "") << "the first state is never told";
		Ask("/small.png");
		EXPECT_EQ(GetStates(), "Downloading(nothing)") << "at once";
		ASSERT_TRUE(WaitForStates(2));
		EXPECT_EQ(GetStates(), "Downloading(nothing) Downloaded(8x4)");
		EXPECT_EQ(GetBrushSize(), FVector2D(8.0, 4.0));
	}

	TEST_F(FHxImageTest, ArrivedPictureIsPainted)
	{
		MakeImage();
		Show();
		Ask("/small.png");
		ASSERT_TRUE(WaitForStates(2));
		Settle();
		EXPECT_EQ(GetPaintedSize(), FVector2D(64.0, 32.0)) << "scaled to fit";
	}

	TEST_F(FHxImageTest, AlternativeIsShownFromTheStart)
	{
		MakeImage();
		GiveAlternative();
		Show();
		EXPECT_EQ(Image->GetBrush().GetResourceObject(), Alternative.Get());
		EXPECT_EQ(GetBrushSize(), FVector2D(3.0, 2.0));
		EXPECT_EQ(GetStates(), "");
	}

	TEST_F(FHxImageTest, FailureShowsTheAlternative)
	{
		MakeImage();
		Show();
		Ask("/small.png");
		ASSERT_TRUE(WaitForStates(2));
		GiveAlternative();
		const FExpectedLog Missing(TEXT("/nowhere.png is not shown"));
		Ask("/nowhere.png");
		ASSERT_TRUE(WaitForStates(4));
		EXPECT_EQ(GetStates(), "Downloading(nothing) Downloaded(8x4) Downloading(8x4) FailedDownload(3x2)");
	}

	TEST_F(FHxImageTest, FailureWithoutAlternativeEmptiesTheBrush)
	{
		MakeImage();
		Show();
		Ask("/small.png");
		ASSERT_TRUE(WaitForStates(2));
		const FExpectedLog Missing(TEXT("/nowhere.png is not shown"));
		Ask("/nowhere.png");
		ASSERT_TRUE(WaitForStates(4));
		EXPECT_THAT(GetStates(), testing::EndsWith("FailedDownload(nothing)"));
		EXPECT_EQ(GetBrushSize(), FVector2D(0.0, 0.0));
		Settle();
		EXPECT_EQ(GetPaintedSize(), FVector2D(0.0, 0.0));
	}

	TEST_F(FHxImageTest, OfTwoQuickRequestsTheOneThatArrivesLastStays)
	{
		MakeImage();
		Show();
		Server.Hold();
		Ask("/large.png");
		ASSERT_TRUE(Host::WaitUntil(Loop, [&] { return Server.GetNumHeld() == 1; }));
		// The second is answered at once, the first only then: callers rely on the late result being shown.
		Host::FLoopbackServer Other;
		Other.Serve("/small.png", MakePicture(8, 4));
		FImageObjectData Data;
		Data.Address = Other.GetUrl("/small.png");
		Image->SetImageFromData(Data, EIRS_Medium);
		ASSERT_TRUE(WaitForStates(3));
		Server.Release();
		ASSERT_TRUE(WaitForStates(4));
		EXPECT_EQ(GetStates(), "Downloading(nothing) Downloading(nothing) Downloaded(8x4) Downloaded(32x16)");
	}

	TEST_F(FHxImageTest, ReplacedDownloadSurvivesACollectionAndIsStillShown)
	{
		MakeImage();
		Show();
		Server.Hold();
		Ask("/large.png");
		Ask("/small.png");
		CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
		Server.Release();
		ASSERT_TRUE(WaitForStates(4));
		EXPECT_THAT(GetStates(), testing::HasSubstr("Downloaded(32x16)"));
		EXPECT_THAT(GetStates(), testing::HasSubstr("Downloaded(8x4)"));
	}

	TEST_F(FHxImageTest, WithoutMatchTheBrushKeepsItsSize)
	{
		MakeImage();
		Image->bMatchTexture = false;
		Show();
		const FVector2D Before = GetBrushSize();
		Ask("/small.png");
		ASSERT_TRUE(WaitForStates(2));
		EXPECT_EQ(GetBrushSize(), Before);
		EXPECT_TRUE(Image->GetBrush().GetResourceObject());
	}

	TEST_F(FHxImageTest, DownloadingImageIsLeftToTheBlueprint)
	{
		MakeImage();
		Alternative.Reset(MakeTexture(5, 5));
		Image->DownloadingImage = Alternative.Get();
		Show();
		Ask("/small.png");
		EXPECT_EQ(GetStates(), "Downloading(nothing)");
		ASSERT_TRUE(WaitForStates(2));
	}

	TEST_F(FHxImageTest, SizeOverrideAndStretchRuleTheArea)
	{
		MakeImage();
		Image->OverrideSize.SizeOverride = FVector2D(20.0, 10.0);
		Image->Stretch = EStretch::None;
		Show();
		Ask("/large.png");
		ASSERT_TRUE(WaitForStates(2));
		Settle();
		EXPECT_EQ(GetPaintedSize(), FVector2D(20.0, 10.0));
		Image->Stretch = EStretch::ScaleToFit;
		Image->SynchronizeProperties();
		Settle();
		EXPECT_EQ(GetPaintedSize(), FVector2D(64.0, 32.0));
	}

	TEST_F(FHxImageTest, SynchronisationShowsTheAlternativeAgain)
	{
		MakeImage();
		Show();
		Ask("/small.png");
		ASSERT_TRUE(WaitForStates(2));
		GiveAlternative();
		Image->SynchronizeProperties();
		EXPECT_EQ(Image->GetBrush().GetResourceObject(), Alternative.Get());
	}

	TEST_F(FHxImageTest, WidgetThatGoesEndsItsDownload)
	{
		MakeImage();
		Show();
		Server.Hold();
		Ask("/small.png");
		ASSERT_TRUE(Host::WaitUntil(Loop, [&] { return Server.GetNumHeld() == 1; }));
		States.Reset();
		Screen->RemoveFromParent();
		Screen.Reset();
		Image = nullptr;
		CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
		EXPECT_EQ(UHalvexImageSubsystem::Get()->GetNumTransfers(), 0);
		Server.Release();
		StartScreen();
	}

	TEST_F(FHxImageTest, WidgetThatIsNotShownYetGetsItsPicture)
	{
		MakeImage();
		Ask("/small.png");
		ASSERT_TRUE(WaitForStates(2));
		Show();
		EXPECT_EQ(GetPaintedSize(), FVector2D(64.0, 32.0));
	}
}
