#pragma once

#include "CoreMinimal.h"
#include "Misc/Attribute.h"
#include "Templates/UniquePtr.h"
#include "Widgets/InvalidateWidgetReason.h"

class SWidget;

namespace Host
{
	/** A getter, and the place in a widget or slot that holds the value it gave last. */
	class FAttributeBinding
	{
	public:
		FAttributeBinding(const void* InTarget, EInvalidateWidgetReason InReason) : Target(InTarget), Reason(InReason) {}
		virtual ~FAttributeBinding() = default;

		/** Asks the getter; true when the value is another one than before. */
		virtual bool Update(SWidget& Owner) = 0;

		const void* GetTarget() const { return Target; }
		EInvalidateWidgetReason GetReason() const { return Reason; }

	private:
		const void* Target;
		EInvalidateWidgetReason Reason;
	};

	/**
	 * The attributes of a widget that have getters. Only such widgets are polled, once a frame; values cost nothing. A
	 * getter may change any widget, but must not destroy the one that it belongs to.
	 */
	class SLATECORE_API FAttributeBindings
	{
	public:
		/** Replaces a binding of the same target. */
		static void Bind(SWidget& Owner, TUniquePtr<FAttributeBinding> Binding);
		static void Unbind(SWidget& Owner, const void* Target);
		/** Drops the bindings whose targets lie in a piece of memory, because it is about to go. */
		static void UnbindRange(SWidget& Owner, const void* Begin, const void* End);
		static bool IsBound(const SWidget& Owner, const void* Target);

		/** Asks all getters of all widgets, and invalidates the widgets whose values changed. */
		static void UpdateAll();
		/** Asks those of one widget. */
		static void Update(SWidget& Owner);
	};
}
