#include "Host/DesktopEvents.h"

#include <cstdlib>
#include <cstring>
#include <dlfcn.h>

#include <SDL2/SDL_events.h>
#include <gtest/gtest.h>

#include "Host/DesktopApplication.h"
#include "Host/TextInputDevice.h"

using namespace Host;

namespace
{
	/** Notes what comes, one word or a few for each event. */
	class FEventLog final : public FDesktopEventHandler
	{
	public:
		virtual void OnMouseMove(const TSharedRef<FGenericWindow>&, const FPointerEvent& Event) override { AddPointer(TEXT("move"), Event); }
		virtual void OnMouseButtonDown(const TSharedRef<FGenericWindow>&, const FPointerEvent& Event) override { AddPointer(TEXT("down"), Event); }
		virtual void OnMouseButtonUp(const TSharedRef<FGenericWindow>&, const FPointerEvent& Event) override { AddPointer(TEXT("up"), Event); }
		virtual void OnMouseWheel(const TSharedRef<FGenericWindow>&, const FPointerEvent& Event) override { Add(FString::Printf(TEXT("wheel %.2f"), Event.GetWheelDelta())); }
		virtual void OnMouseLeave(const TSharedRef<FGenericWindow>&) override { Add(TEXT("leave")); }
		virtual void OnKeyDown(const FKeyEvent& Event) override { AddKey(TEXT("key"), Event); }
		virtual void OnKeyUp(const FKeyEvent& Event) override { AddKey(TEXT("release"), Event); }
		virtual void OnKeyChar(const FCharacterEvent& Event) override { Add(FString::Printf(TEXT("char %x"), static_cast<uint32>(Event.GetCharacter()))); }
		virtual void OnComposition(const FString& Text, int32 CaretPosition) override { Add(FString::Printf(TEXT("compose %s %d"), *Text, CaretPosition)); }
		virtual void OnSizeChanged(const TSharedRef<FGenericWindow>&, FIntPoint) override { Add(TEXT("size")); }
		virtual void OnScaleChanged(const TSharedRef<FGenericWindow>&, float) override { Add(TEXT("scale")); }
		virtual void OnActivationChanged(const TSharedRef<FGenericWindow>&, bool bActive) override { Add(bActive ? TEXT("active") : TEXT("inactive")); }
		virtual void OnCloseRequested(const TSharedRef<FGenericWindow>&) override { Add(TEXT("close")); }
		virtual void OnExposed(const TSharedRef<FGenericWindow>&) override { Add(TEXT("exposed")); }
		virtual void OnQuitRequested() override { Add(TEXT("quit")); }

		FString Text;

	private:
		void Add(const FString& Entry) { Text += (Text.IsEmpty() ? TEXT("") : TEXT(", ")) + Entry; }

		void AddPointer(const TCHAR* Name, const FPointerEvent& Event)
		{
			const FVector2D Position = Event.GetScreenSpacePosition();
			Add(FString::Printf(TEXT("%s %s %d,%d held %d"), Name, *Event.GetEffectingButton().ToString(), static_cast<int32>(Position.X), static_cast<int32>(Position.Y), Event.GetPressedButtons().Num()));
		}

		void AddKey(const TCHAR* Name, const FKeyEvent& Event)
		{
			Add(FString::Printf(TEXT("%s %s%s%s"), Name, *Event.GetKey().ToString(), Event.IsShiftDown() ? TEXT(" shifted") : TEXT(""), Event.IsRepeat() ? TEXT(" again") : TEXT("")));
		}
	};

	/** Input comes as SDL's events: the tests put some into its queue. */
	class DesktopEvents : public testing::Test
	{
	protected:
		DesktopEvents()
		{
			setenv("SDL_VIDEODRIVER", "dummy", 1);
			FString Error;
			Desktop = FDesktopApplication::Create(Error);
			EXPECT_TRUE(Desktop.IsValid()) << TCHAR_TO_UTF8(*Error);
			Window = Desktop->MakeWindow(FDesktopWindowSettings());
			void* const Library = dlopen("libSDL2-2.0.so.0", RTLD_NOW | RTLD_NOLOAD);
			Push = reinterpret_cast<decltype(Push)>(dlsym(Library, "SDL_PushEvent"));
			Allocate = reinterpret_cast<decltype(Allocate)>(dlsym(Library, "SDL_malloc"));
			IsTextInputActive = reinterpret_cast<decltype(IsTextInputActive)>(dlsym(Library, "SDL_IsTextInputActive"));
			const auto GetId = reinterpret_cast<uint32 (*)(void*)>(dlsym(Library, "SDL_GetWindowID"));
			WindowId = GetId(Window->GetOSWindowHandle());
			dlclose(Library);
			Desktop->PumpEvents(Log);
			Log.Text.Empty();
		}

		FString Receive(SDL_Event Event)
		{
			Push(&Event);
			Desktop->PumpEvents(Log);
			const FString Text = Log.Text;
			Log.Text.Empty();
			return Text;
		}

		FString Click(uint32 Type, uint8 Button, int32 X, int32 Y)
		{
			SDL_Event Event = {};
			Event.button.type = Type;
			Event.button.windowID = WindowId;
			Event.button.button = Button;
			Event.button.state = Type == SDL_MOUSEBUTTONDOWN ? SDL_PRESSED : SDL_RELEASED;
			Event.button.clicks = 2;
			Event.button.x = X;
			Event.button.y = Y;
			return Receive(Event);
		}

		FString Key(uint32 Type, SDL_Keycode Code, uint16 Modifiers = KMOD_NONE, bool bRepeat = false)
		{
			SDL_Event Event = {};
			Event.key.type = Type;
			Event.key.windowID = WindowId;
			Event.key.state = Type == SDL_KEYDOWN ? SDL_PRESSED : SDL_RELEASED;
			Event.key.repeat = bRepeat ? 1 : 0;
			Event.key.keysym.sym = Code;
			Event.key.keysym.mod = Modifiers;
			return Receive(Event);
		}

		FString WindowEvent(uint8 What)
		{
			SDL_Event Event = {};
			Event.window.type = SDL_WINDOWEVENT;
			Event.window.windowID = WindowId;
			Event.window.event = What;
			return Receive(Event);
		}

		TUniquePtr<FDesktopApplication> Desktop;
		TSharedPtr<FGenericWindow> Window;
		FEventLog Log;
		int (*Push)(SDL_Event*) = nullptr;
		void* (*Allocate)(size_t) = nullptr;
		SDL_bool (*IsTextInputActive)() = nullptr;
		uint32 WindowId = 0;
	};
}

TEST_F(DesktopEvents, ButtonsAreHeldFromDownToUp)
{
	EXPECT_EQ(Click(SDL_MOUSEBUTTONDOWN, SDL_BUTTON_LEFT, 10, 20), FString(TEXT("down LeftMouseButton 10,20 held 1")));
	EXPECT_EQ(Click(SDL_MOUSEBUTTONDOWN, SDL_BUTTON_RIGHT, 11, 20), FString(TEXT("down RightMouseButton 11,20 held 2")));
	EXPECT_EQ(Click(SDL_MOUSEBUTTONUP, SDL_BUTTON_LEFT, 12, 20), FString(TEXT("up LeftMouseButton 12,20 held 1")));
	EXPECT_EQ(Click(SDL_MOUSEBUTTONUP, SDL_BUTTON_RIGHT, 12, 20), FString(TEXT("up RightMouseButton 12,20 held 0")));
}

TEST_F(DesktopEvents, MovesMoveTheCursor)
{
	SDL_Event Event = {};
	Event.motion.type = SDL_MOUSEMOTION;
	Event.motion.windowID = WindowId;
	Event.motion.x = 33;
	Event.motion.y = 44;

	EXPECT_EQ(Receive(Event), FString(TEXT("move None 33,44 held 0")));
	EXPECT_EQ(Desktop->GetCursor()->GetPosition(), FVector2D(33.0, 44.0));
}

TEST_F(DesktopEvents, WheelGivesPartsOfSteps)
{
	SDL_Event Event = {};
	Event.wheel.type = SDL_MOUSEWHEEL;
	Event.wheel.windowID = WindowId;
	Event.wheel.preciseY = 0.25f;
	EXPECT_EQ(Receive(Event), FString(TEXT("wheel 0.25")));

	Event.wheel.direction = SDL_MOUSEWHEEL_FLIPPED;
	EXPECT_EQ(Receive(Event), FString(TEXT("wheel -0.25")));
}

TEST_F(DesktopEvents, KeysHaveTheEnginesNames)
{
	EXPECT_EQ(Key(SDL_KEYDOWN, SDLK_a), FString(TEXT("key A")));
	EXPECT_EQ(Key(SDL_KEYDOWN, SDLK_z, KMOD_LSHIFT), FString(TEXT("key Z shifted")));
	EXPECT_EQ(Key(SDL_KEYDOWN, SDLK_RETURN, KMOD_NONE, true), FString(TEXT("key Enter again")));
	EXPECT_EQ(Key(SDL_KEYUP, SDLK_KP_7), FString(TEXT("release NumPadSeven")));
	EXPECT_EQ(Key(SDL_KEYDOWN, SDLK_F11), FString(TEXT("key F11")));
	EXPECT_EQ(Key(SDL_KEYDOWN, SDLK_BACKSPACE), FString(TEXT("key BackSpace")));
}

TEST_F(DesktopEvents, KeysWithoutANameAreSilent)
{
	EXPECT_EQ(Key(SDL_KEYDOWN, SDLK_EJECT), FString());
}

TEST_F(DesktopEvents, TextComesAsUnits)
{
	SDL_Event Event = {};
	Event.text.type = SDL_TEXTINPUT;
	Event.text.windowID = WindowId;
	std::strcpy(Event.text.text, "a\xc3\xbc\xf0\x9f\x98\x80");

	EXPECT_EQ(Receive(Event), FString(TEXT("char 61, char fc, char d83d, char de00")));
}

TEST_F(DesktopEvents, CompositionsAreReported)
{
	SDL_Event Event = {};
	Event.edit.type = SDL_TEXTEDITING;
	Event.edit.windowID = WindowId;
	std::strcpy(Event.edit.text, "ni");
	Event.edit.start = 2;

	EXPECT_EQ(Receive(Event), FString(TEXT("compose ni 2")));
}

TEST_F(DesktopEvents, LongCompositionsAreReportedWholeWithTheCaretInUnits)
{
	const char* const Text = "\xf0\x9f\x98\x80 a text that is longer than an event of the short kind";
	SDL_Event Event = {};
	Event.editExt.type = SDL_TEXTEDITING_EXT;
	Event.editExt.windowID = WindowId;
	Event.editExt.text = static_cast<char*>(Allocate(std::strlen(Text) + 1));
	std::strcpy(Event.editExt.text, Text);
	Event.editExt.start = 1;

	EXPECT_EQ(Receive(Event), FString(TEXT("compose \U0001F600 a text that is longer than an event of the short kind 2")));
}

TEST_F(DesktopEvents, TextIsEnteredOnlyWhileItIsAskedFor)
{
	EXPECT_FALSE(IsTextInputActive());
	Desktop->GetTextInput().Start();
	EXPECT_TRUE(IsTextInputActive());
	Desktop->GetTextInput().SetCaretArea(FIntRect(10, 20, 11, 40));
	Desktop->GetTextInput().CancelComposition();
	EXPECT_TRUE(IsTextInputActive());
	Desktop->GetTextInput().Stop();
	EXPECT_FALSE(IsTextInputActive());
}

TEST_F(DesktopEvents, WindowEventsFindTheirWindow)
{
	EXPECT_EQ(WindowEvent(SDL_WINDOWEVENT_FOCUS_GAINED), FString(TEXT("active")));
	EXPECT_EQ(WindowEvent(SDL_WINDOWEVENT_FOCUS_LOST), FString(TEXT("inactive")));
	EXPECT_EQ(WindowEvent(SDL_WINDOWEVENT_CLOSE), FString(TEXT("close")));
	EXPECT_EQ(WindowEvent(SDL_WINDOWEVENT_LEAVE), FString(TEXT("leave")));
	EXPECT_EQ(WindowEvent(SDL_WINDOWEVENT_EXPOSED), FString(TEXT("exposed")));
}

TEST_F(DesktopEvents, EventsOfWindowsThatAreGoneAreDropped)
{
	Window->Destroy();

	EXPECT_EQ(Click(SDL_MOUSEBUTTONDOWN, SDL_BUTTON_LEFT, 10, 20), FString());
}

TEST_F(DesktopEvents, QuittingIsReported)
{
	SDL_Event Event = {};
	Event.type = SDL_QUIT;

	EXPECT_EQ(Receive(Event), FString(TEXT("quit")));
}

TEST_F(DesktopEvents, ScaleCanBeSetFromOutside)
{
	setenv("HALVEX_DPI_SCALE", "1.5", 1);
	EXPECT_EQ(Window->GetDPIScaleFactor(), 1.5f);
	setenv("HALVEX_DPI_SCALE", "nonsense", 1);
	EXPECT_GT(Window->GetDPIScaleFactor(), 0.0f);
	unsetenv("HALVEX_DPI_SCALE");
}
