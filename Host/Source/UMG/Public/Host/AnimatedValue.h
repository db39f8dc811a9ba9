#pragma once

#include "CoreMinimal.h"
#include "Host/AnimatedProperty.h"
#include "Host/PropertyValue.h"

namespace Host
{
	/** Changes an animated property of a widget while an animation plays. It does nothing once the widget has gone. */
	class UMG_API FAnimatedValue
	{
	public:
		explicit FAnimatedValue(const FAnimatedProperty& InProperty);

		/** Sets the value through the setter; does nothing when it has that value already. */
		void Set(TConstArrayView<double> Channels);

		/** Remembers the value for Restore; the first time only. */
		void Save();

		void Forget() { Saved.Reset(); }

		/** Sets the remembered value and forgets it. Nothing happens when there is none. */
		void Restore();

	private:
		/** Hands the argument to the setter, when the object does not have that value already. */
		void CallSetter(UObject& Object);
		/** Puts the member as it is now into the argument; the animated part of that. */
		void* TakeMember(const UObject& Object);

		FAnimatedProperty Property;
		/** Of the setter, kept so that no frame allocates it. */
		FPropertyValue Argument;
		TOptional<FPropertyValue> Saved;
	};
}
