#include "Host/SlateEventForwarder.h"

#include <gtest/gtest.h>

#include "Framework/Application/SlateApplication.h"
#include "Host/RendererChoice.h"
#include "Widgets/Input/SEditableText.h"
#include "Widgets/SCompoundWidget.h"
#include "Widgets/SWindow.h"

using namespace Host;

namespace
{
	/** A window that only remembers its size. */
	class FFakeWindow final : public FGenericWindow
	{
	public:
		virtual void ReshapeWindow(int32, int32, int32 Width, int32 Height) override { Size = FIntPoint(Width, Height); }
		virtual void MoveWindowTo(int32, int32) override {}
		virtual void BringToFront(bool) override {}
		virtual void Destroy() override {}
		virtual void Minimize() override {}
		virtual void Maximize() override {}
		virtual void Restore() override {}
		virtual void Show() override {}
		virtual void Hide() override {}
		virtual void SetWindowMode(EWindowMode::Type) override {}
		virtual EWindowMode::Type GetWindowMode() const override { return EWindowMode::Windowed; }
		virtual bool IsMaximized() const override { return false; }
		virtual bool IsMinimized() const override { return false; }
		virtual bool IsVisible() const override { return true; }
		virtual bool IsForegroundWindow() const override { return true; }
		virtual void SetText(const TCHAR* const) override {}
		virtual void SetWindowFocus() override {}
		virtual void GetClientSize(int32& OutWidth, int32& OutHeight) const override
		{
			OutWidth = Size.X;
			OutHeight = Size.Y;
		}

		FIntPoint Size = FIntPoint(400, 300);
	};

	/** Notes what reaches it. */
	class SInputLog : public SCompoundWidget
	{
	public:
		SLATE_BEGIN_ARGS(SInputLog) {}
		SLATE_END_ARGS()

		void Construct(const FArguments&) {}
		virtual bool SupportsKeyboardFocus() const override { return true; }
		virtual FReply OnMouseButtonDown(const FGeometry&, const FPointerEvent&) override { return Note(TEXT("down")); }
		virtual FReply OnMouseButtonUp(const FGeometry&, const FPointerEvent&) override { return Note(TEXT("up")); }
		virtual FReply OnMouseWheel(const FGeometry&, const FPointerEvent& Event) override { return Note(*FString::Printf(TEXT("wheel %.1f"), Event.GetWheelDelta())); }
		virtual FReply OnKeyDown(const FGeometry&, const FKeyEvent& Event) override { return Note(*Event.GetKey().ToString()); }
		virtual FReply OnKeyChar(const FGeometry&, const FCharacterEvent&) override { return Note(TEXT("char")); }
		virtual void OnMouseEnter(const FGeometry& Geometry, const FPointerEvent& Event) override
		{
			SCompoundWidget::OnMouseEnter(Geometry, Event);
			Note(TEXT("enter"));
		}
		virtual void OnMouseLeave(const FPointerEvent& Event) override
		{
			SCompoundWidget::OnMouseLeave(Event);
			Note(TEXT("leave"));
		}

		FString Text;

	private:
		FReply Note(const TCHAR* Word)
		{
			Text += (Text.IsEmpty() ? TEXT("") : TEXT(" "));
			Text += Word;
			return FReply::Handled();
		}
	};

	class SlateEventForwarder : public testing::Test
	{
	protected:
		SlateEventForwarder()
		{
			FSlateApplication::Create();
			Window = SNew(SWindow).ClientSize(FVector2D(400.0, 300.0))[SAssignNew(Content, SInputLog)];
			Window->SetNativeWindow(Native);
			FSlateApplication::Get().AddWindow(Window.ToSharedRef());
			FSlateApplication::Get().Tick();
		}

		~SlateEventForwarder() override
		{
			Content.Reset();
			Window.Reset();
			FSlateApplication::Shutdown();
		}

		static FPointerEvent At(float X, float Y, FKey Button = FKey(), float Wheel = 0.0f)
		{
			return FPointerEvent(0, FVector2f(X, Y), FVector2f(X, Y), TSet<FKey>(), Button, Wheel, FModifierKeysState());
		}

		TSharedRef<FFakeWindow> Native = MakeShared<FFakeWindow>();
		TSharedPtr<SWindow> Window;
		TSharedPtr<SInputLog> Content;
		FSlateEventForwarder Forwarder;
	};
}

TEST_F(SlateEventForwarder, MouseReachesTheWidgetUnderIt)
{
	Forwarder.OnMouseMove(Native, At(50.0f, 50.0f));
	Forwarder.OnMouseButtonDown(Native, At(50.0f, 50.0f, EKeys::LeftMouseButton));
	Forwarder.OnMouseButtonUp(Native, At(50.0f, 50.0f, EKeys::LeftMouseButton));
	Forwarder.OnMouseWheel(Native, At(50.0f, 50.0f, EKeys::MouseWheelAxis, 2.0f));

	EXPECT_EQ(Content->Text, FString(TEXT("enter down up wheel 2.0")));
}

TEST_F(SlateEventForwarder, NothingStaysHoveredWhenTheMouseLeavesTheWindow)
{
	Forwarder.OnMouseMove(Native, At(50.0f, 50.0f));
	Forwarder.OnMouseLeave(Native);

	EXPECT_EQ(Content->Text, FString(TEXT("enter leave")));
	EXPECT_FALSE(Content->IsHovered());
}

TEST_F(SlateEventForwarder, KeysReachTheFocusedWidget)
{
	FSlateApplication::Get().SetKeyboardFocus(Content);

	Forwarder.OnKeyDown(FKeyEvent(EKeys::G, FModifierKeysState(), 0, false, 'g', 'g'));
	Forwarder.OnKeyChar(FCharacterEvent(TEXT('g'), FModifierKeysState(), 0, false));
	Forwarder.OnKeyUp(FKeyEvent(EKeys::G, FModifierKeysState(), 0, false, 'g', 'g'));

	EXPECT_EQ(Content->Text, FString(TEXT("G char")));
}

TEST_F(SlateEventForwarder, CompositionReachesTheTextThatIsEdited)
{
	const TSharedRef<SEditableText> Text = SNew(SEditableText);
	Window->SetContent(Text);
	FSlateApplication::Get().Tick();
	const double Width = Text->GetDesiredSize().X;
	FSlateApplication::Get().SetKeyboardFocus(Text);
	Forwarder.OnComposition(TEXT("nihao"), 5);
	FSlateApplication::Get().Tick();
	EXPECT_GT(Text->GetDesiredSize().X, Width);
	EXPECT_TRUE(Text->GetText().IsEmpty());
}

TEST_F(SlateEventForwarder, WindowTakesOverItsSizeAndScale)
{
	Forwarder.OnSizeChanged(Native, FIntPoint(640, 480));
	Forwarder.OnScaleChanged(Native, 2.0f);
	FSlateApplication::Get().Tick();

	EXPECT_EQ(Window->GetClientSizeInScreen(), FVector2D(640.0, 480.0));
	EXPECT_EQ(Window->GetDPIScaleFactor(), 2.0f);
	EXPECT_EQ(FVector2D(Content->GetTickSpaceGeometry().GetLocalSize()), FVector2D(320.0, 240.0));
}

TEST_F(SlateEventForwarder, ClosingGoesThroughTheWindow)
{
	Forwarder.OnCloseRequested(Native);
	FSlateApplication::Get().Tick();

	EXPECT_EQ(FSlateApplication::Get().GetTopLevelWindows().Num(), 0);
}

TEST_F(SlateEventForwarder, QuittingClosesAllWindows)
{
	Forwarder.OnQuitRequested();
	FSlateApplication::Get().Tick();

	EXPECT_EQ(FSlateApplication::Get().GetTopLevelWindows().Num(), 0);
}

TEST_F(SlateEventForwarder, ExposedWindowsAreDrawnAgain)
{
	FString Error;
	const TSharedPtr<FSlateRenderer> Renderer = MakeRenderer(ERendererChoice::Cpu, true, Error);
	FSlateApplication::Get().InitializeRenderer(Renderer.ToSharedRef());
	FSlateApplication::Get().Tick();
	const int64 Before = Renderer->GetCounters().Frames;
	FSlateApplication::Get().Tick();
	EXPECT_EQ(Renderer->GetCounters().Frames, Before) << "nothing changed";

	Forwarder.OnExposed(Native);
	FSlateApplication::Get().Tick();

	EXPECT_EQ(Renderer->GetCounters().Frames, Before + 1);
}
