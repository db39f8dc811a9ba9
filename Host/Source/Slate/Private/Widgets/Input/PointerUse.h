#pragma once

#include "Input/Events.h"
#include "Types/SlateEnums.h"

namespace Host
{
	/** The click method that a mouse or touch event goes by. */
	inline EButtonClickMethod::Type GetClickMethodFor(const FPointerEvent& Event, EButtonClickMethod::Type ClickMethod, EButtonTouchMethod::Type TouchMethod)
	{
		if (!Event.IsTouchEvent())
		{
			return ClickMethod;
		}
		switch (TouchMethod)
		{
		case EButtonTouchMethod::Down:
			return EButtonClickMethod::MouseDown;
		case EButtonTouchMethod::PreciseTap:
			return EButtonClickMethod::PreciseClick;
		default:
			return EButtonClickMethod::DownAndUp;
		}
	}
}
