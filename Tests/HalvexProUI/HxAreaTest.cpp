#include "HxAreaTest.h"

#include "Engine/Engine.h"
#include "Engine/GameInstance.h"
#include "Engine/World.h"
#include "Widgets/SWindow.h"

void FHxAreaTest::TearDown()
{
	UseScale(1.0f);
	FKitTest::TearDown();
}

FPointerEvent FHxAreaTest::MakeEvent(FKey Button, float WheelDelta) const
{
	return FPointerEvent(0, Mouse, Mouse, PressedButtons, Button, WheelDelta, FModifierKeysState());
}

bool FHxAreaTest::MoveMouse(FVector2D Position)
{
	const FVector2D Last = Mouse;
	Mouse = Position;
	return FSlateApplication::Get().ProcessMouseMoveEvent(FPointerEvent(0, Mouse, Last, PressedButtons, FKey(), 0.0f, FModifierKeysState()));
}

bool FHxAreaTest::Press(FVector2D Position, FKey Button)
{
	MoveMouse(Position);
	PressedButtons.Add(Button);
	return FSlateApplication::Get().ProcessMouseButtonDownEvent(Loop.GetWindow()->GetNativeWindow(), MakeEvent(Button, 0.0f));
}

bool FHxAreaTest::Release(FKey Button)
{
	PressedButtons.Remove(Button);
	return FSlateApplication::Get().ProcessMouseButtonUpEvent(MakeEvent(Button, 0.0f));
}

bool FHxAreaTest::TurnWheel(float Delta)
{
	return FSlateApplication::Get().ProcessMouseWheelOrGestureEvent(MakeEvent(EKeys::MouseWheelAxis, Delta));
}

void FHxAreaTest::PressAndMove(FVector2D From, FVector2D To)
{
	Press(From);
	MoveMouse(To);
}

FTimerManager& FHxAreaTest::GetTimers() const
{
	return GEngine->GetGameInstance()->GetWorld()->GetTimerManager();
}

void FHxAreaTest::UseScale(float Scale)
{
	Loop.GetWindow()->SetDPIScaleFactor(Scale);
	Settle();
}

std::string FHxAreaTest::Print(const FVector2D& Vector)
{
	// Adding zero makes a plain one of a negative one.
	return Host::ToStd(FString::Printf(TEXT("%g %g"), FMath::RoundToDouble(Vector.X * 1000.0) / 1000.0 + 0.0, FMath::RoundToDouble(Vector.Y * 1000.0) / 1000.0 + 0.0));
}
