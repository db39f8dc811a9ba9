#pragma once

#include "KitTest.h"

#include "Framework/Application/SlateApplication.h"
#include "InputCoreTypes.h"
#include "TimerManager.h"

/** The mouse over an area that is dragged, event by event: frames pass only when a test says so. Positions are pixels of the window. */
class FHxAreaTest : public FKitTest
{
protected:
	virtual void TearDown() override;

	/** These say whether a widget handled the event. */
	bool MoveMouse(FVector2D Position);
	bool Press(FVector2D Position, FKey Button = EKeys::LeftMouseButton);
	bool Release(FKey Button = EKeys::LeftMouseButton);
	/** Turns the wheel where the mouse is. */
	bool TurnWheel(float Delta);

	/** Presses at one place and moves to the other; the button stays down. */
	void PressAndMove(FVector2D From, FVector2D To);

	/** A frame after so many seconds. */
	void Frame(double Seconds) { Loop.RunFrame(Seconds); }

	FTimerManager& GetTimers() const;

	/** Whether some widget has the mouse for itself. */
	static bool IsMouseCaptured() { return FSlateApplication::Get().HasAnyMouseCaptor(); }

	/** Pixels a slate unit, from now on. */
	void UseScale(float Scale);

	/** A translation as text, to a thousandth. */
	static std::string Print(const FVector2D& Vector);

private:
	FPointerEvent MakeEvent(FKey Button, float WheelDelta) const;

	FVector2D Mouse = FVector2D::ZeroVector;
	TSet<FKey> PressedButtons;
};
