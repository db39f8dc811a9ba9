#include "Input/Events.h"

FPointerEvent::FPointerEvent(uint32 InPointerIndex, const UE::Slate::FDeprecateVector2DParameter& InScreenSpacePosition,
	const UE::Slate::FDeprecateVector2DParameter& InLastScreenSpacePosition, const TSet<FKey>& InPressedButtons, FKey InEffectingButton, float InWheelDelta,
	const FModifierKeysState& InModifierKeys)
	: FPointerEvent(0, InPointerIndex, InScreenSpacePosition, InLastScreenSpacePosition, InPressedButtons, InEffectingButton, InWheelDelta, InModifierKeys)
{
}

FPointerEvent::FPointerEvent(uint32 InUserIndex, uint32 InPointerIndex, const UE::Slate::FDeprecateVector2DParameter& InScreenSpacePosition,
	const UE::Slate::FDeprecateVector2DParameter& InLastScreenSpacePosition, const TSet<FKey>& InPressedButtons, FKey InEffectingButton, float InWheelDelta,
	const FModifierKeysState& InModifierKeys)
	: FInputEvent(InModifierKeys, InUserIndex, false), ScreenSpacePosition(InScreenSpacePosition), LastScreenSpacePosition(InLastScreenSpacePosition)
	, CursorDelta(FVector2f(InScreenSpacePosition) - FVector2f(InLastScreenSpacePosition)), WheelOrGestureDelta(0.0f, InWheelDelta), PressedButtons(InPressedButtons)
	, EffectingButton(InEffectingButton), PointerIndex(InPointerIndex)
{
}
