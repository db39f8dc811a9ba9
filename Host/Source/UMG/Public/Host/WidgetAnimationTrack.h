#pragma once

#include "CoreMinimal.h"
#include "Host/AnimationCurve.h"

namespace Host
{
	/** What an animation does with one value of one widget. */
	struct FWidgetAnimationTrack
	{
		/** The widget by its name in the tree; none for the user widget itself. */
		FName Widget;
		/** The value, as FAnimatedProperty finds it from the widget on. */
		FString Property;
		/** Has a channel for each one of the property, and at least one key. */
		FAnimationCurve Curve;
	};
}
