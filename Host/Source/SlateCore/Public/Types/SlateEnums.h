#pragma once

#include "CoreMinimal.h"
#include "UObject/ObjectMacros.h"
#include "SlateEnums.generated.h"

/** Where a widget stands in the width that its slot gives. */
UENUM(BlueprintType)
enum EHorizontalAlignment : int
{
	/** Takes the whole width. */
	HAlign_Fill UMETA(DisplayName = "Fill"),
	HAlign_Left UMETA(DisplayName = "Left"),
	HAlign_Center UMETA(DisplayName = "Center"),
	HAlign_Right UMETA(DisplayName = "Right"),
};

/** Where a widget stands in the height that its slot gives. */
UENUM(BlueprintType)
enum EVerticalAlignment : int
{
	/** Takes the whole height. */
	VAlign_Fill UMETA(DisplayName = "Fill"),
	VAlign_Top UMETA(DisplayName = "Top"),
	VAlign_Center UMETA(DisplayName = "Center"),
	VAlign_Bottom UMETA(DisplayName = "Bottom"),
};

UENUM(BlueprintType)
enum EOrientation : int
{
	Orient_Horizontal UMETA(DisplayName = "Horizontal"),
	Orient_Vertical UMETA(DisplayName = "Vertical"),
};

/** Why a text was committed. */
UENUM(BlueprintType)
namespace ETextCommit
{
	enum Type : int
	{
		Default,
		OnEnter,
		OnUserMovedFocus,
		OnCleared,
	};
}

/** Why a selection changed. */
UENUM(BlueprintType)
namespace ESelectInfo
{
	enum Type : int
	{
		/** A key was pressed. */
		OnKeyPress,
		/** Navigation moved to another item. */
		OnNavigation,
		/** An item was clicked. */
		OnMouseClick,
		/** Code set the selection. */
		Direct,
	};
}

/** How many items of a list can be selected, and what selecting one does to the others. */
UENUM(BlueprintType)
namespace ESelectionMode
{
	enum Type : int
	{
		None UMETA(DisplayName = "None"),
		/** One item at most. */
		Single UMETA(DisplayName = "Single"),
		/** One item at most; selecting it again deselects it. */
		SingleToggle UMETA(DisplayName = "Single Toggle"),
		Multi UMETA(DisplayName = "Multi"),
	};
}

/** Direction of a move of the focus. */
UENUM(BlueprintType)
enum class EUINavigation : uint8
{
	Left,
	Right,
	Up,
	Down,
	/** To the next widget in tab order. */
	Next,
	Previous,
	Num UMETA(Hidden),
	Invalid UMETA(Hidden),
};

/** What happens when the focus would leave a widget in a direction. */
UENUM(BlueprintType)
enum class EUINavigationRule : uint8
{
	/** Leaves. */
	Escape,
	/** Stays. */
	Stop,
	/** Goes on at the opposite side. */
	Wrap,
	/** Goes to a named widget. */
	Explicit,
	Invalid UMETA(Hidden),
};

/** What moved the focus. */
UENUM(BlueprintType)
enum class EFocusCause : uint8
{
	/** A mouse button went down on the widget. */
	Mouse,
	/** Tab or arrow keys. */
	Navigation,
	/** Code asked for it. */
	SetDirectly,
	/** The focus was dropped. */
	Cleared,
	/** Another widget lost it. */
	OtherWidgetLostFocus,
	/** The window was activated or deactivated. */
	WindowActivate,
};

/** When a press of a button counts as a click. */
UENUM(BlueprintType)
namespace EButtonClickMethod
{
	enum Type : int
	{
		/** Pressed and released over the button. */
		DownAndUp,
		MouseDown,
		/** Released over the button, wherever it was pressed. */
		MouseUp,
		/** As DownAndUp, but dragging past the drag distance cancels. */
		PreciseClick,
	};
}

UENUM(BlueprintType)
namespace EButtonTouchMethod
{
	enum Type : int
	{
		DownAndUp,
		Down,
		PreciseTap,
	};
}

UENUM(BlueprintType)
namespace EButtonPressMethod
{
	enum Type : int
	{
		DownAndUp,
		ButtonPress,
		ButtonRelease,
	};
}

/** State of a scroll bar's or list's need to consume the mouse wheel. */
UENUM(BlueprintType)
enum class EConsumeMouseWheel : uint8
{
	/** Takes the wheel while it can scroll in that direction. */
	WhenScrollingPossible,
	Always,
	Never,
};

/** What happens to the letters of a text before it is shown. */
UENUM(BlueprintType)
enum class ETextTransformPolicy : uint8
{
	/** It is shown as it is. */
	None = 0,
	ToLower,
	ToUpper,
};

/** What happens to text that does not fit the widget. */
UENUM(BlueprintType)
enum class ETextOverflowPolicy : uint8
{
	/** It goes on, and is cut where the widget clips. */
	Clip = 0,
	/** Lines that are too wide end in an ellipsis. */
	Ellipsis,
	/** Lines that are too wide, and the last line that fits the height when more follow, end in an ellipsis. */
	MultilineEllipsis,
};
