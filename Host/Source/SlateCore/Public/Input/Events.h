#pragma once

#include "CoreMinimal.h"
#include "Containers/Set.h"
#include "GenericPlatform/GenericApplication.h"
#include "InputCoreTypes.h"
#include "Layout/Geometry.h"
#include "Types/SlateEnums.h"
#include "Types/SlateVector2.h"
#include "UObject/ObjectMacros.h"
#include "Events.generated.h"

class FWidgetPath;
class SWidget;

/** Why and by whom the focus was moved. */
USTRUCT(BlueprintType)
struct FFocusEvent
{
	GENERATED_BODY()

	FFocusEvent() = default;
	FFocusEvent(EFocusCause InCause, uint32 InUserIndex) : Cause(InCause), UserIndex(InUserIndex) {}

	EFocusCause GetCause() const { return Cause; }
	uint32 GetUser() const { return UserIndex; }

private:
	EFocusCause Cause = EFocusCause::SetDirectly;
	uint32 UserIndex = 0;
};

/** A widget lost the mouse that it had captured. */
USTRUCT(BlueprintType)
struct FCaptureLostEvent
{
	GENERATED_BODY()

	FCaptureLostEvent() = default;
	FCaptureLostEvent(int32 InUserIndex, int32 InPointerIndex) : UserIndex(InUserIndex), PointerIndex(InPointerIndex) {}

	int32 UserIndex = 0;
	int32 PointerIndex = 0;
};

/** What all input has in common. */
USTRUCT(BlueprintType)
struct FInputEvent
{
	GENERATED_BODY()

	FInputEvent() = default;
	FInputEvent(const FModifierKeysState& InModifierKeys, uint32 InUserIndex, bool bInIsRepeat) : ModifierKeys(InModifierKeys), UserIndex(InUserIndex), bIsRepeat(bInIsRepeat) {}
	FInputEvent(const FInputEvent&) = default;
	FInputEvent& operator=(const FInputEvent&) = default;
	virtual ~FInputEvent() = default;

	/** True when the system repeats a key that is held down. */
	bool IsRepeat() const { return bIsRepeat; }
	bool IsShiftDown() const { return ModifierKeys.IsShiftDown(); }
	bool IsLeftShiftDown() const { return ModifierKeys.IsLeftShiftDown(); }
	bool IsRightShiftDown() const { return ModifierKeys.IsRightShiftDown(); }
	bool IsControlDown() const { return ModifierKeys.IsControlDown(); }
	bool IsLeftControlDown() const { return ModifierKeys.IsLeftControlDown(); }
	bool IsRightControlDown() const { return ModifierKeys.IsRightControlDown(); }
	bool IsAltDown() const { return ModifierKeys.IsAltDown(); }
	bool IsLeftAltDown() const { return ModifierKeys.IsLeftAltDown(); }
	bool IsRightAltDown() const { return ModifierKeys.IsRightAltDown(); }
	bool IsCommandDown() const { return ModifierKeys.IsCommandDown(); }
	bool AreCapsLocked() const { return ModifierKeys.AreCapsLocked(); }
	const FModifierKeysState& GetModifierKeys() const { return ModifierKeys; }
	uint32 GetUserIndex() const { return UserIndex; }

	/** The widgets that the event goes to; null outside of routing. */
	const FWidgetPath* GetEventPath() const { return EventPath; }
	void SetEventPath(const FWidgetPath& InEventPath) { EventPath = &InEventPath; }

	virtual bool IsPointerEvent() const { return false; }
	virtual bool IsKeyEvent() const { return false; }

protected:
	FModifierKeysState ModifierKeys;
	uint32 UserIndex = 0;
	bool bIsRepeat = false;
	const FWidgetPath* EventPath = nullptr;
};

/** A key went down or up. */
USTRUCT(BlueprintType)
struct FKeyEvent : public FInputEvent
{
	GENERATED_BODY()

	FKeyEvent() = default;
	FKeyEvent(const FKey InKey, const FModifierKeysState& InModifierKeys, const uint32 InUserIndex, const bool bInIsRepeat, const uint32 InCharacterCode, const uint32 InKeyCode)
		: FInputEvent(InModifierKeys, InUserIndex, bInIsRepeat), Key(InKey), CharacterCode(InCharacterCode), KeyCode(InKeyCode)
	{
	}

	FKey GetKey() const { return Key; }
	/** What the key would write without modifiers; 0 for keys that write nothing. */
	uint32 GetCharacter() const { return CharacterCode; }
	/** The system's number of the key. */
	uint32 GetKeyCode() const { return KeyCode; }
	virtual bool IsKeyEvent() const override { return true; }

private:
	FKey Key;
	uint32 CharacterCode = 0;
	uint32 KeyCode = 0;
};

/** A character was typed. Characters beyond 16 bits come as two events. */
USTRUCT(BlueprintType)
struct FCharacterEvent : public FInputEvent
{
	GENERATED_BODY()

	FCharacterEvent() = default;
	FCharacterEvent(const TCHAR InCharacter, const FModifierKeysState& InModifierKeys, const uint32 InUserIndex, const bool bInIsRepeat)
		: FInputEvent(InModifierKeys, InUserIndex, bInIsRepeat), Character(InCharacter)
	{
	}

	TCHAR GetCharacter() const { return Character; }

private:
	TCHAR Character = 0;
};

/** The mouse moved, a button went down or up, or the wheel turned. Positions are window pixels. */
USTRUCT(BlueprintType)
struct FPointerEvent : public FInputEvent
{
	GENERATED_BODY()

	FPointerEvent() = default;
	FPointerEvent(uint32 InPointerIndex, const UE::Slate::FDeprecateVector2DParameter& InScreenSpacePosition, const UE::Slate::FDeprecateVector2DParameter& InLastScreenSpacePosition,
		const TSet<FKey>& InPressedButtons, FKey InEffectingButton, float InWheelDelta, const FModifierKeysState& InModifierKeys);
	FPointerEvent(uint32 InUserIndex, uint32 InPointerIndex, const UE::Slate::FDeprecateVector2DParameter& InScreenSpacePosition,
		const UE::Slate::FDeprecateVector2DParameter& InLastScreenSpacePosition, const TSet<FKey>& InPressedButtons, FKey InEffectingButton, float InWheelDelta,
		const FModifierKeysState& InModifierKeys);

	UE::Slate::FDeprecateVector2DResult GetScreenSpacePosition() const { return UE::Slate::FDeprecateVector2DResult(ScreenSpacePosition); }
	UE::Slate::FDeprecateVector2DResult GetLastScreenSpacePosition() const { return UE::Slate::FDeprecateVector2DResult(LastScreenSpacePosition); }
	UE::Slate::FDeprecateVector2DResult GetCursorDelta() const { return UE::Slate::FDeprecateVector2DResult(CursorDelta); }

	/** Buttons held down, the effecting one included when it went down. */
	bool IsMouseButtonDown(FKey MouseButton) const { return PressedButtons.Contains(MouseButton); }
	const TSet<FKey>& GetPressedButtons() const { return PressedButtons; }

	/** The button that this event is about; invalid for moves. */
	FKey GetEffectingButton() const { return EffectingButton; }

	/** Steps that the wheel turned; away from the user is positive. */
	float GetWheelDelta() const { return WheelOrGestureDelta.Y; }
	uint32 GetPointerIndex() const { return PointerIndex; }

	/** Input comes from a mouse. */
	bool IsTouchEvent() const { return false; }
	virtual bool IsPointerEvent() const override { return true; }

private:
	FVector2f ScreenSpacePosition = FVector2f(0.0f, 0.0f);
	FVector2f LastScreenSpacePosition = FVector2f(0.0f, 0.0f);
	FVector2f CursorDelta = FVector2f(0.0f, 0.0f);
	FVector2f WheelOrGestureDelta = FVector2f(0.0f, 0.0f);
	TSet<FKey> PressedButtons;
	FKey EffectingButton;
	uint32 PointerIndex = 0;
};

/** The focus is asked to move in a direction. */
USTRUCT(BlueprintType)
struct FNavigationEvent : public FInputEvent
{
	GENERATED_BODY()

	FNavigationEvent() = default;
	FNavigationEvent(const FModifierKeysState& InModifierKeys, uint32 InUserIndex, EUINavigation InNavigationType)
		: FInputEvent(InModifierKeys, InUserIndex, false), NavigationType(InNavigationType)
	{
	}

	EUINavigation GetNavigationType() const { return NavigationType; }

private:
	EUINavigation NavigationType = EUINavigation::Invalid;
};

/** A window became the active one, or ceased to be. */
class FWindowActivateEvent
{
public:
	enum EActivationType
	{
		EA_Activate,
		EA_ActivateByMouse,
		EA_Deactivate,
	};

	FWindowActivateEvent(EActivationType InActivationType, TSharedRef<class SWindow> InAffectedWindow) : ActivationType(InActivationType), AffectedWindow(MoveTemp(InAffectedWindow)) {}

	EActivationType GetActivationType() const { return ActivationType; }
	TSharedRef<class SWindow> GetAffectedWindow() const { return AffectedWindow; }

private:
	EActivationType ActivationType;
	TSharedRef<class SWindow> AffectedWindow;
};
