#include "Host/DesktopApplication.h"

#include <cstdlib>
#include <thread>

#include <gtest/gtest.h>

#include "ElementScene.h"
#include "HAL/PlatformApplicationMisc.h"
#include "HAL/PlatformTime.h"
#include "Host/DesktopEvents.h"
#include "Host/Displays.h"

using namespace Host;

namespace
{
	/** Notes what comes. */
	class FRecorder final : public FDesktopEventHandler
	{
	public:
		virtual void OnMouseMove(const TSharedRef<FGenericWindow>&, const FPointerEvent&) override {}
		virtual void OnMouseButtonDown(const TSharedRef<FGenericWindow>&, const FPointerEvent&) override {}
		virtual void OnMouseButtonUp(const TSharedRef<FGenericWindow>&, const FPointerEvent&) override {}
		virtual void OnMouseWheel(const TSharedRef<FGenericWindow>&, const FPointerEvent&) override {}
		virtual void OnMouseLeave(const TSharedRef<FGenericWindow>&) override {}
		virtual void OnKeyDown(const FKeyEvent&) override {}
		virtual void OnKeyUp(const FKeyEvent&) override {}
		virtual void OnKeyChar(const FCharacterEvent&) override {}
		virtual void OnComposition(const FString&, int32) override {}
		virtual void OnSizeChanged(const TSharedRef<FGenericWindow>&, FIntPoint Size) override { LastSize = Size; }
		virtual void OnScaleChanged(const TSharedRef<FGenericWindow>&, float) override {}
		virtual void OnActivationChanged(const TSharedRef<FGenericWindow>&, bool) override {}
		virtual void OnCloseRequested(const TSharedRef<FGenericWindow>&) override {}
		virtual void OnExposed(const TSharedRef<FGenericWindow>&) override {}
		virtual void OnQuitRequested() override {}

		FIntPoint LastSize = FIntPoint(0, 0);
	};

	/** Windows that exist in memory only. */
	class DesktopApplication : public testing::Test
	{
	protected:
		DesktopApplication()
		{
			setenv("SDL_VIDEODRIVER", "dummy", 1);
			FString Error;
			Desktop = FDesktopApplication::Create(Error);
			EXPECT_TRUE(Desktop.IsValid()) << TCHAR_TO_UTF8(*Error);
		}

		TSharedPtr<FGenericWindow> MakeWindow(FIntPoint Size)
		{
			FDesktopWindowSettings Settings;
			Settings.Title = TEXT("Test");
			Settings.Size = Size;
			return Desktop->MakeWindow(Settings);
		}

		TUniquePtr<FDesktopApplication> Desktop;
	};
}

TEST_F(DesktopApplication, WindowsHaveTheSizeThatWasAskedFor)
{
	const TSharedPtr<FGenericWindow> Window = MakeWindow(FIntPoint(320, 200));
	ASSERT_TRUE(Window.IsValid());
	int32 Width = 0;
	int32 Height = 0;

	Window->GetClientSize(Width, Height);

	EXPECT_EQ(Width, 320);
	EXPECT_EQ(Height, 200);
	EXPECT_FALSE(Window->IsVisible());
	EXPECT_NE(Window->GetOSWindowHandle(), nullptr);
}

TEST_F(DesktopApplication, ResizingIsReported)
{
	const TSharedPtr<FGenericWindow> Window = MakeWindow(FIntPoint(320, 200));
	Window->Show();
	FRecorder Recorder;
	Desktop->PumpEvents(Recorder);

	Window->ReshapeWindow(0, 0, 400, 300);
	Desktop->PumpEvents(Recorder);

	EXPECT_EQ(Recorder.LastSize, FIntPoint(400, 300));
}

TEST_F(DesktopApplication, ClipboardReachesTheSystemsOne)
{
	FPlatformApplicationMisc::ClipboardCopy(TEXT("Grüße"));
	FString Text;

	FPlatformApplicationMisc::ClipboardPaste(Text);

	EXPECT_EQ(Text, FString(TEXT("Grüße")));
}

TEST_F(DesktopApplication, WakeFromAnotherThreadEndsAWait)
{
	std::thread Waker([] { FDesktopApplication::Wake(); });

	Desktop->WaitForEvents(60.0);

	Waker.join();
	FRecorder Recorder;
	Desktop->PumpEvents(Recorder);
}

TEST_F(DesktopApplication, ManyWakesAreOneEvent)
{
	FRecorder Recorder;
	Desktop->PumpEvents(Recorder);
	for (int32 Index = 0; Index < 100000; ++Index)
	{
		FDesktopApplication::Wake();
	}

	Desktop->WaitForEvents(60.0);
	Desktop->PumpEvents(Recorder);
	FDesktopApplication::Wake();

	Desktop->WaitForEvents(60.0);
}

TEST_F(DesktopApplication, IsWokenAlthoughAnEarlierOneLeftAWakeUnseen)
{
	FDesktopApplication::Wake();
	Desktop.Reset();
	FString Error;
	Desktop = FDesktopApplication::Create(Error);
	FRecorder Recorder;
	Desktop->PumpEvents(Recorder);

	FDesktopApplication::Wake();

	const double Start = FPlatformTime::Seconds();
	Desktop->WaitForEvents(30.0);
	EXPECT_LT(FPlatformTime::Seconds() - Start, 20.0);
}

TEST_F(DesktopApplication, DescribesTheScreen)
{
	EXPECT_GT(FDisplays::GetDesktopMode().Width, 0);
	EXPECT_GT(FDisplays::GetModes().Num(), 0);
}

TEST_F(DesktopApplication, CpuRendererShowsPicturesInAWindow)
{
	const TSharedPtr<FGenericWindow> Window = MakeWindow(FIntPoint(64, 48));
	const TSharedPtr<FSlateRenderer> Renderer = ElementScene::MakeCpu();
	const TUniquePtr<FWindowSurface> Surface = Renderer->CreateSurface(FIntPoint(64, 48), Window->GetOSWindowHandle());
	const FPixelRect All = FPixelRect::Make(0, 0, 64, 48);

	ElementScene::DrawDamage(*Surface, { ElementScene::MakeBox(0, 0, 10, 10, FColor(255, 0, 0, 255)) }, MakeArrayView(&All, 1));
	Surface->Present();

	EXPECT_EQ(ElementScene::Read(*Surface).At(5, 5), FColor(255, 0, 0, 255));
}

TEST(Clipboard, WorksWithinTheProcessWithoutWindows)
{
	FPlatformApplicationMisc::ClipboardCopy(TEXT("inside"));
	FString Text;

	FPlatformApplicationMisc::ClipboardPaste(Text);

	EXPECT_EQ(Text, FString(TEXT("inside")));
}

TEST(Displays, WithoutAScreenTheUsualModesAreOffered)
{
	FDisplays::Reset();

	EXPECT_EQ(FDisplays::GetDesktopMode(), (FDisplayMode{ 1920, 1080, 60 }));
	EXPECT_GE(FDisplays::GetModes().Num(), 3);
}

TEST(Displays, ModesAreSortedAndListedOnce)
{
	FDisplays::Set({ { 800, 600, 60 }, { 640, 480, 75 }, { 800, 600, 60 }, { 640, 480, 60 } }, { 800, 600, 60 });

	ASSERT_EQ(FDisplays::GetModes().Num(), 3);
	EXPECT_EQ(FDisplays::GetModes()[0], (FDisplayMode{ 640, 480, 60 }));
	EXPECT_EQ(FDisplays::GetModes()[1], (FDisplayMode{ 640, 480, 75 }));
	EXPECT_EQ(FDisplays::GetModes()[2], (FDisplayMode{ 800, 600, 60 }));
	FDisplays::Reset();
}
