#pragma once

#include "CoreMinimal.h"
#include "UObject/ObjectMacros.h"
#include "ICursor.generated.h"

/** Shapes of the mouse cursor. */
UENUM(BlueprintType)
namespace EMouseCursor
{
	enum Type : int
	{
		None,
		Default,
		TextEditBeam,
		ResizeLeftRight,
		ResizeUpDown,
		ResizeSouthEast,
		ResizeSouthWest,
		CardinalCross,
		Crosshairs,
		Hand,
		GrabHand,
		GrabHandClosed,
		SlashedCircle,
		EyeDropper,
		Custom,
		TotalCursorCount,
	};
}

/** The mouse cursor of the system, or what stands in for it. Positions are window pixels. */
class ICursor
{
public:
	virtual ~ICursor() = default;

	virtual FVector2D GetPosition() const = 0;
	virtual void SetPosition(const int32 X, const int32 Y) = 0;
	virtual void SetType(const EMouseCursor::Type InNewCursor) = 0;
	virtual EMouseCursor::Type GetType() const = 0;
	virtual void Show(bool bShow) = 0;
};
