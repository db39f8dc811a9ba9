#include "Host/AutomationDriver.h"

#include "Blueprint/UserWidget.h"
#include "Blueprint/WidgetTree.h"
#include "Components/PanelWidget.h"
#include "Components/TextBlock.h"
#include "Framework/Application/SlateApplication.h"
#include "Host/EngineLoop.h"
#include "Input/Events.h"
#include "UObject/UObjectIterator.h"
#include "Widgets/SWindow.h"

namespace Host
{
	namespace
	{
		/** Length of the frames that steps end with, in seconds. */
		constexpr double FrameTime = 1.0 / 60.0;

		bool IsOfName(const UWidget& Widget, const FString& Name)
		{
			return Widget.GetName().Equals(Name);
		}

		/** Whether a widget of that name stands somewhere around, in its tree or in one further out. */
		bool IsInside(const UWidget& Widget, const FString& OuterName)
		{
			for (const UObject* Outer = &Widget; Outer; Outer = Outer->GetOuter())
			{
				const UWidget* OuterWidget = Cast<UWidget>(Outer);
				for (const UWidget* Parent = OuterWidget ? OuterWidget->GetParent() : nullptr; Parent; Parent = Parent->GetParent())
				{
					if (IsOfName(*Parent, OuterName))
					{
						return true;
					}
				}
				if (OuterWidget && OuterWidget != &Widget && IsOfName(*OuterWidget, OuterName))
				{
					return true;
				}
			}
			return false;
		}

		bool Matches(const UWidget& Widget, const FString& Locator)
		{
			if (Locator.StartsWith(TEXT("text:")))
			{
				const UTextBlock* Text = Cast<UTextBlock>(&Widget);
				return Text && Text->GetText().ToString().Equals(Locator.RightChop(5));
			}
			if (Locator.StartsWith(TEXT("class:")))
			{
				return Widget.GetClass()->GetName() == Locator.RightChop(6);
			}
			TArray<FString> Names;
			Locator.ParseIntoArray(Names, TEXT("/"));
			if (Names.IsEmpty() || !IsOfName(Widget, Names.Pop()))
			{
				return false;
			}
			for (const FString& OuterName : Names)
			{
				if (!IsInside(Widget, OuterName))
				{
					return false;
				}
			}
			return true;
		}

		FModifierKeysState ToModifiers(const FString& Modifiers)
		{
			const bool bShift = Modifiers.Contains(TEXT("Shift"));
			const bool bControl = Modifiers.Contains(TEXT("Ctrl"));
			const bool bAlt = Modifiers.Contains(TEXT("Alt"));
			return FModifierKeysState(bShift, false, bControl, false, bAlt, false, false, false, false);
		}
	}

	UWidget* FAutomationDriver::Find(const FString& Locator) const
	{
		UWidget* Found = nullptr;
		for (TObjectIterator<UUserWidget> It; It && !Found; ++It)
		{
			if (!It->IsInViewport() || !It->WidgetTree)
			{
				continue;
			}
			It->WidgetTree->ForEachWidgetAndDescendants([&](UWidget* Widget)
			{
				if (!Found && Widget->IsRendered() && Matches(*Widget, Locator))
				{
					Found = Widget;
				}
			});
		}
		return Found;
	}

	FVector2D FAutomationDriver::GetMiddle(const UWidget& Widget) const
	{
		const FGeometry& Geometry = Widget.GetCachedGeometry();
		return FVector2D(Geometry.LocalToAbsolute(FVector2D(Geometry.GetLocalSize()) * 0.5));
	}

	void FAutomationDriver::MoveTo(FVector2D Position)
	{
		const FVector2D Last = Cursor;
		Cursor = Position;
		FSlateApplication::Get().SetCursorPos(Position);
		FSlateApplication::Get().ProcessMouseMoveEvent(FPointerEvent(0, Cursor, Last, PressedButtons, FKey(), 0.0f, FModifierKeysState()));
		RunFrame();
	}

	void FAutomationDriver::Press(FKey Button)
	{
		PressedButtons.Add(Button);
		FSlateApplication::Get().ProcessMouseButtonDownEvent(Loop.GetWindow()->GetNativeWindow(), FPointerEvent(0, Cursor, Cursor, PressedButtons, Button, 0.0f, FModifierKeysState()));
		RunFrame();
	}

	void FAutomationDriver::Release(FKey Button)
	{
		PressedButtons.Remove(Button);
		FSlateApplication::Get().ProcessMouseButtonUpEvent(FPointerEvent(0, Cursor, Cursor, PressedButtons, Button, 0.0f, FModifierKeysState()));
		RunFrame();
	}

	void FAutomationDriver::ClickAt(FVector2D Position, FKey Button)
	{
		MoveTo(Position);
		Press(Button);
		Release(Button);
	}

	void FAutomationDriver::Wheel(float Delta)
	{
		FSlateApplication::Get().ProcessMouseWheelOrGestureEvent(FPointerEvent(0, Cursor, Cursor, PressedButtons, EKeys::MouseWheelAxis, Delta, FModifierKeysState()));
		RunFrame();
	}

	void FAutomationDriver::Type(const FString& Text)
	{
		for (const TCHAR Character : Text)
		{
			FSlateApplication::Get().ProcessKeyCharEvent(FCharacterEvent(Character, FModifierKeysState(), 0, false));
		}
		RunFrame();
	}

	void FAutomationDriver::PressKey(FKey Key, const FString& Modifiers)
	{
		const FKeyEvent Event(Key, ToModifiers(Modifiers), 0, false, 0, 0);
		FSlateApplication::Get().ProcessKeyDownEvent(Event);
		FSlateApplication::Get().ProcessKeyUpEvent(Event);
		RunFrame();
	}

	void FAutomationDriver::Wait(double Seconds)
	{
		for (double Passed = 0.0; Passed < Seconds; Passed += FrameTime)
		{
			RunFrame();
		}
	}

	bool FAutomationDriver::WaitUntil(TFunctionRef<bool()> Condition, double Seconds)
	{
		for (double Passed = 0.0; !Condition(); Passed += FrameTime)
		{
			if (Passed >= Seconds)
			{
				return false;
			}
			RunFrame();
		}
		return true;
	}

	bool FAutomationDriver::TakePicture(const FString& Filename, FString& OutError)
	{
		FPicture Picture;
		if (!Loop.TakePicture(Picture))
		{
			OutError = TEXT("there is nothing to take a picture of.");
			return false;
		}
		return SavePicture(Filename, Picture, OutError);
	}

	void FAutomationDriver::RunFrame()
	{
		Loop.RunFrame(FrameTime);
	}
}
