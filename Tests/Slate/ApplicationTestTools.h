#pragma once

#include <gtest/gtest.h>

#include "Framework/Application/SlateApplication.h"
#include "Host/Clock.h"
#include "Host/SlateLoop.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/SCompoundWidget.h"
#include "Widgets/SLeafWidget.h"
#include "Widgets/SOverlay.h"
#include "Widgets/SWindow.h"

/** Writes down the events that it gets, and answers as told. */
class SEventRecorder : public SCompoundWidget
{
public:
	SLATE_BEGIN_ARGS(SEventRecorder) : _Focusable(false), _Log(nullptr) {}
		SLATE_ARGUMENT(FString, Name)
		SLATE_ARGUMENT(bool, Focusable)
		/** Events that are handled, by name, separated by blanks. */
		SLATE_ARGUMENT(FString, Handles)
		SLATE_ARGUMENT(TArray<FString>*, Log)
		SLATE_ARGUMENT(FVector2D, Size)
		SLATE_DEFAULT_SLOT(FArguments, Content)
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs)
	{
		Name = InArgs._Name;
		bFocusable = InArgs._Focusable;
		Handles = InArgs._Handles;
		Log = InArgs._Log;
		ChildSlot[InArgs._Content.Widget];
	}

	/** Given once, in place of the next handled reply. */
	TOptional<FReply> NextReply;
	FVector2f LastLocalPosition = FVector2f(0.0f, 0.0f);
	FNavigationReply NavigationReply = FNavigationReply::Escape();
	FString Handles;

	virtual bool SupportsKeyboardFocus() const override { return bFocusable; }
	virtual FReply OnMouseButtonDown(const FGeometry& G, const FPointerEvent& E) override { return Pointer(TEXT("Down"), G, E); }
	virtual FReply OnPreviewMouseButtonDown(const FGeometry& G, const FPointerEvent& E) override { return Pointer(TEXT("PreviewDown"), G, E); }
	virtual FReply OnMouseButtonUp(const FGeometry& G, const FPointerEvent& E) override { return Pointer(TEXT("Up"), G, E); }
	virtual FReply OnMouseMove(const FGeometry& G, const FPointerEvent& E) override { return Pointer(TEXT("Move"), G, E); }
	virtual FReply OnMouseWheel(const FGeometry& G, const FPointerEvent& E) override { return Pointer(TEXT("Wheel"), G, E); }
	virtual FReply OnMouseButtonDoubleClick(const FGeometry& G, const FPointerEvent& E) override { return Pointer(TEXT("DoubleClick"), G, E); }
	virtual FReply OnDragDetected(const FGeometry& G, const FPointerEvent& E) override { return Pointer(TEXT("Drag"), G, E); }

	virtual void OnMouseEnter(const FGeometry& G, const FPointerEvent& E) override
	{
		SCompoundWidget::OnMouseEnter(G, E);
		Note(TEXT("Enter"));
	}

	virtual void OnMouseLeave(const FPointerEvent& E) override
	{
		SCompoundWidget::OnMouseLeave(E);
		Note(TEXT("Leave"));
	}

	virtual void OnMouseCaptureLost(const FCaptureLostEvent&) override { Note(TEXT("CaptureLost")); }
	virtual FReply OnPreviewKeyDown(const FGeometry&, const FKeyEvent&) override { return Answer(TEXT("PreviewKey")); }
	virtual FReply OnKeyDown(const FGeometry&, const FKeyEvent&) override { return Answer(TEXT("Key")); }
	virtual FReply OnKeyUp(const FGeometry&, const FKeyEvent&) override { return Answer(TEXT("KeyUp")); }
	virtual FReply OnKeyChar(const FGeometry&, const FCharacterEvent&) override { return Answer(TEXT("Char")); }
	virtual FNavigationReply OnNavigation(const FGeometry&, const FNavigationEvent&) override { return NavigationReply; }

	virtual FReply OnFocusReceived(const FGeometry&, const FFocusEvent&) override
	{
		Note(TEXT("FocusReceived"));
		return FReply::Unhandled();
	}

	virtual void OnFocusLost(const FFocusEvent&) override { Note(TEXT("FocusLost")); }

private:
	FReply Pointer(const TCHAR* Event, const FGeometry& Geometry, const FPointerEvent& Mouse)
	{
		LastLocalPosition = Geometry.AbsoluteToLocal(Mouse.GetScreenSpacePosition());
		return Answer(Event);
	}

	FReply Answer(const TCHAR* Event)
	{
		Note(Event);
		TArray<FString> Handled;
		Handles.ParseIntoArrayWS(Handled);
		if (!Handled.Contains(Event))
		{
			return FReply::Unhandled();
		}
		if (!NextReply.IsSet())
		{
			return FReply::Handled();
		}
		const FReply Reply = NextReply.GetValue();
		NextReply.Reset();
		return Reply;
	}

	void Note(const TCHAR* Event)
	{
		// Moves are many; they are written down where a test asks for them by handling them.
		if (Log && (FString(Event) != TEXT("Move") || Handles.Contains(TEXT("Move"))))
		{
			Log->Add(Name + TEXT(".") + Event);
		}
	}

	FString Name;
	TArray<FString>* Log = nullptr;
	bool bFocusable = false;
};

/** An application with one window of 400 x 300 pixels, and a mouse. */
class FApplicationTest : public testing::Test
{
protected:
	FApplicationTest()
	{
		Host::FClock::Set(100.0);
		FSlateApplication::Create();
		Window = SNew(SWindow).ClientSize(FVector2D(400.0, 300.0));
		FSlateApplication::Get().AddWindow(Window.ToSharedRef());
	}

	~FApplicationTest() override
	{
		Window.Reset();
		FSlateApplication::Shutdown();
	}

	FSlateApplication& App() { return FSlateApplication::Get(); }

	void Show(const TSharedRef<SWidget>& Content)
	{
		Window->SetContent(Content);
		App().Tick();
	}

	FPointerEvent MakeEvent(FKey Button = EKeys::Invalid, float Wheel = 0.0f)
	{
		return FPointerEvent(0, Position, LastPosition, Buttons, Button, Wheel, FModifierKeysState());
	}

	bool Move(float X, float Y)
	{
		LastPosition = Position;
		Position = FVector2f(X, Y);
		return App().ProcessMouseMoveEvent(MakeEvent());
	}

	bool Press(FKey Button = EKeys::LeftMouseButton)
	{
		Buttons.Add(Button);
		return App().ProcessMouseButtonDownEvent(nullptr, MakeEvent(Button));
	}

	bool Release(FKey Button = EKeys::LeftMouseButton)
	{
		Buttons.Remove(Button);
		return App().ProcessMouseButtonUpEvent(MakeEvent(Button));
	}

	bool Turn(float Wheel) { return App().ProcessMouseWheelOrGestureEvent(MakeEvent(EKeys::MouseWheelAxis, Wheel)); }

	bool Key(FKey InKey, bool bShift = false)
	{
		const FModifierKeysState Modifiers(bShift, false, false, false, false, false, false, false, false);
		return App().ProcessKeyDownEvent(FKeyEvent(InKey, Modifiers, 0, false, 0, 0));
	}

	/** Lets seconds pass, and makes a frame. */
	void Wait(double Seconds)
	{
		Host::FClock::Advance(Seconds);
		App().Tick();
	}

	/** What was written down since the last call, separated by blanks. */
	FString TakeLog()
	{
		const FString Text = FString::Join(Log, TEXT(" "));
		Log.Reset();
		return Text;
	}

	TSharedPtr<SWindow> Window;
	TArray<FString> Log;
	FVector2f Position = FVector2f(-1.0f, -1.0f);
	FVector2f LastPosition = FVector2f(-1.0f, -1.0f);
	TSet<FKey> Buttons;
};

#define EXPECT_LOG(Text) EXPECT_EQ(TakeLog(), TEXT(Text))
