#include "InputRecorder.h"

namespace
{
	/** "LeftMouseButton" as people say it. */
	FString ToShortName(const FKey& Button)
	{
		return Button.ToString().Replace(TEXT("MouseButton"), TEXT(""));
	}
}

UInputRecorder::UInputRecorder(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
{
	SetIsFocusable(true);
}

FReply UInputRecorder::Record(const FString& What, const FInputEvent& Event)
{
	FString Line = What;
	Line += Event.IsControlDown() ? TEXT(" Ctrl") : TEXT("");
	Line += Event.IsShiftDown() ? TEXT(" Shift") : TEXT("");
	Line += Event.IsAltDown() ? TEXT(" Alt") : TEXT("");
	Events.Add(Line);
	return FReply::Handled();
}

FReply UInputRecorder::Record(const FString& What, const FPointerEvent& Event)
{
	Places.Add(FVector2D(Event.GetScreenSpacePosition()));
	return Record(What, static_cast<const FInputEvent&>(Event));
}

FReply UInputRecorder::NativeOnMouseButtonDown(const FGeometry&, const FPointerEvent& InMouseEvent)
{
	return Record(TEXT("Down ") + ToShortName(InMouseEvent.GetEffectingButton()), InMouseEvent);
}

FReply UInputRecorder::NativeOnMouseButtonUp(const FGeometry&, const FPointerEvent& InMouseEvent)
{
	return Record(TEXT("Up ") + ToShortName(InMouseEvent.GetEffectingButton()), InMouseEvent);
}

FReply UInputRecorder::NativeOnMouseMove(const FGeometry&, const FPointerEvent& InMouseEvent)
{
	return Record(TEXT("Move"), InMouseEvent);
}

FReply UInputRecorder::NativeOnMouseWheel(const FGeometry&, const FPointerEvent& InMouseEvent)
{
	return Record(FString::Printf(TEXT("Wheel %g"), static_cast<double>(InMouseEvent.GetWheelDelta())), InMouseEvent);
}

FReply UInputRecorder::NativeOnMouseButtonDoubleClick(const FGeometry&, const FPointerEvent& InMouseEvent)
{
	return Record(TEXT("Double ") + ToShortName(InMouseEvent.GetEffectingButton()), InMouseEvent);
}

FReply UInputRecorder::NativeOnKeyDown(const FGeometry&, const FKeyEvent& InKeyEvent)
{
	return Record(TEXT("KeyDown ") + InKeyEvent.GetKey().ToString(), InKeyEvent);
}

FReply UInputRecorder::NativeOnKeyUp(const FGeometry&, const FKeyEvent& InKeyEvent)
{
	return Record(TEXT("KeyUp ") + InKeyEvent.GetKey().ToString(), InKeyEvent);
}
