#include "Components/Widget.h"
#include "Framework/Application/SlateApplication.h"
#include "Host/AutomationDriver.h"
#include "Host/Clock.h"
#include "Host/EngineLoop.h"
#include "Widgets/SWindow.h"

namespace Host
{
	namespace
	{
		/** Longer than two presses of a double click may lie apart, in seconds. */
		constexpr double DoubleClickPause = 0.6;
		/** More widgets than anybody reaches by the Tab key. */
		constexpr int32 MostTabs = 1000;

		struct FModifierKey
		{
			const TCHAR* Name;
			FKey Key;
		};

		const TArray<FModifierKey>& GetModifierKeys()
		{
			static const TArray<FModifierKey> Keys = { { TEXT("Shift"), EKeys::LeftShift }, { TEXT("Ctrl"), EKeys::LeftControl }, { TEXT("Alt"), EKeys::LeftAlt } };
			return Keys;
		}
	}

	FModifierKeysState FAutomationDriver::GetModifiers(const FString& Further) const
	{
		const FString All = HeldModifiers + TEXT("+") + Further;
		return FModifierKeysState(All.Contains(TEXT("Shift")), false, All.Contains(TEXT("Ctrl")), false, All.Contains(TEXT("Alt")), false, false, false, false);
	}

	FPointerEvent FAutomationDriver::MakePointerEvent(FVector2D LastPosition, FKey Button, float WheelDelta) const
	{
		return FPointerEvent(0, Cursor, LastPosition, PressedButtons, Button, WheelDelta, GetModifiers());
	}

	// The mouse.

	void FAutomationDriver::MoveTo(FVector2D Position)
	{
		const FVector2D Last = Cursor;
		Cursor = Position;
		FSlateApplication::Get().SetCursorPos(Position);
		FSlateApplication::Get().ProcessMouseMoveEvent(MakePointerEvent(Last, FKey(), 0.0f));
		RunFrame();
	}

	bool FAutomationDriver::Move(const FString& Locator)
	{
		FVector2D Point;
		if (!FindPoint(Locator, Point))
		{
			return false;
		}
		MoveTo(Point);
		return true;
	}

	bool FAutomationDriver::Hover(const FString& Locator, double Seconds)
	{
		if (!Move(Locator))
		{
			return false;
		}
		Wait(Seconds);
		return true;
	}

	void FAutomationDriver::Press(FKey Button)
	{
		PressedButtons.Add(Button);
		LastPressTime = FClock::Now();
		FSlateApplication::Get().ProcessMouseButtonDownEvent(Loop.GetWindow()->GetNativeWindow(), MakePointerEvent(Cursor, Button, 0.0f));
		RunFrame();
	}

	void FAutomationDriver::Release(FKey Button)
	{
		PressedButtons.Remove(Button);
		FSlateApplication::Get().ProcessMouseButtonUpEvent(MakePointerEvent(Cursor, Button, 0.0f));
		RunFrame();
	}

	void FAutomationDriver::PressAndRelease(FKey Button)
	{
		Press(Button);
		Release(Button);
	}

	void FAutomationDriver::LetDoubleClickPass()
	{
		Wait(LastPressTime + DoubleClickPause - FClock::Now());
	}

	void FAutomationDriver::ClickAt(FVector2D Position, FKey Button)
	{
		MoveTo(Position);
		PressAndRelease(Button);
	}

	void FAutomationDriver::SingleClickAt(FVector2D Position, FKey Button)
	{
		LetDoubleClickPass();
		ClickAt(Position, Button);
	}

	bool FAutomationDriver::Click(const FString& Locator, FKey Button)
	{
		LetDoubleClickPass();
		FVector2D Point;
		if (!FindPoint(Locator, Point))
		{
			return false;
		}
		ClickAt(Point, Button);
		return true;
	}

	void FAutomationDriver::DoubleClickAt(FVector2D Position, FKey Button)
	{
		SingleClickAt(Position, Button);
		PressAndRelease(Button);
	}

	bool FAutomationDriver::DoubleClick(const FString& Locator, FKey Button)
	{
		FVector2D Point;
		if (!FindPoint(Locator, Point))
		{
			return false;
		}
		DoubleClickAt(Point, Button);
		return true;
	}

	void FAutomationDriver::DragTo(FVector2D From, FVector2D To, int32 Steps, FKey Button)
	{
		MoveTo(From);
		LetDoubleClickPass();
		Press(Button);
		for (int32 Step = 1; Step <= Steps; ++Step)
		{
			MoveTo(From + (To - From) * (static_cast<double>(Step) / Steps));
		}
		Release(Button);
	}

	bool FAutomationDriver::Drag(const FString& FromLocator, const FString& ToLocator, int32 Steps, FKey Button)
	{
		FVector2D From;
		FVector2D To;
		if (!FindPoint(FromLocator, From) || !FindPoint(ToLocator, To))
		{
			return false;
		}
		DragTo(From, To, Steps, Button);
		return true;
	}

	bool FAutomationDriver::DragBy(const FString& Locator, FVector2D Offset, int32 Steps, FKey Button)
	{
		FVector2D From;
		if (!FindPoint(Locator, From))
		{
			return false;
		}
		DragTo(From, From + Offset, Steps, Button);
		return true;
	}

	void FAutomationDriver::Wheel(float Delta)
	{
		FSlateApplication::Get().ProcessMouseWheelOrGestureEvent(MakePointerEvent(Cursor, EKeys::MouseWheelAxis, Delta));
		RunFrame();
	}

	bool FAutomationDriver::WheelOver(const FString& Locator, float Delta)
	{
		if (!Move(Locator))
		{
			return false;
		}
		Wheel(Delta);
		return true;
	}

	// The keyboard.

	void FAutomationDriver::Hold(const FString& Modifiers)
	{
		const FString Before = HeldModifiers;
		HeldModifiers = Modifiers;
		for (const FModifierKey& Modifier : GetModifierKeys())
		{
			const bool bWasDown = Before.Contains(Modifier.Name);
			const bool bIsDown = Modifiers.Contains(Modifier.Name);
			const FKeyEvent Event(Modifier.Key, GetModifiers(), 0, false, 0, 0);
			if (bIsDown && !bWasDown)
			{
				FSlateApplication::Get().ProcessKeyDownEvent(Event);
			}
			else if (bWasDown && !bIsDown)
			{
				FSlateApplication::Get().ProcessKeyUpEvent(Event);
			}
		}
		RunFrame();
	}

	void FAutomationDriver::Type(const FString& Text)
	{
		for (const TCHAR Character : Text)
		{
			FSlateApplication::Get().ProcessKeyCharEvent(FCharacterEvent(Character, GetModifiers(), 0, false));
		}
		RunFrame();
	}

	void FAutomationDriver::PressKey(FKey Key, const FString& Modifiers)
	{
		const FKeyEvent Event(Key, GetModifiers(Modifiers), 0, false, 0, 0);
		FSlateApplication::Get().ProcessKeyDownEvent(Event);
		FSlateApplication::Get().ProcessKeyUpEvent(Event);
		RunFrame();
	}

	bool FAutomationDriver::HasFocus(const SWidget& Slate) const
	{
		return Slate.HasKeyboardFocus() || FSlateApplication::Get().HasUserFocusedDescendants(Slate.AsShared(), 0);
	}

	bool FAutomationDriver::Focus(const FString& Locator)
	{
		FFoundWidget Found;
		if (!Locate(Locator, Found))
		{
			return false;
		}
		TSet<const SWidget*> Visited;
		const SWidget* Last = nullptr;
		for (int32 Tabs = 0; Tabs < MostTabs && !HasFocus(*Found.Slate); ++Tabs)
		{
			PressKey(EKeys::Tab);
			const TSharedPtr<SWidget> Focused = FSlateApplication::Get().GetKeyboardFocusedWidget();
			// A widget may have several stops of its own, as the handles of a slider; coming back to one is having been everywhere.
			if (!Focused || (Focused.Get() != Last && Visited.Contains(Focused.Get())))
			{
				break;
			}
			Last = Focused.Get();
			Visited.Add(Last);
		}
		if (!HasFocus(*Found.Slate))
		{
			Error = FString::Printf(TEXT("'%s' is not reached by the Tab key"), *Locator);
			return false;
		}
		return true;
	}
}
