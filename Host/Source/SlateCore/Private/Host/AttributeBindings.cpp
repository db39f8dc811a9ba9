#include "Host/AttributeBindings.h"

#include "Host/SlateCounters.h"
#include "Host/WidgetExtras.h"
#include "Types/SlateAttribute.h"
#include "Widgets/SWidget.h"

namespace Host
{
	void FAttributeBindings::Bind(SWidget& Owner, TUniquePtr<FAttributeBinding> Binding)
	{
		Unbind(Owner, Binding->GetTarget());
		FWidgetExtras& Extras = FWidgetExtras::Get(Owner);
		Extras.Bindings.Add(MoveTemp(Binding));
		FWidgetRegistry::WithBindings().Add(Owner, Extras.BindingsIndex);
	}

	void FAttributeBindings::Unbind(SWidget& Owner, const void* Target)
	{
		UnbindRange(Owner, Target, static_cast<const uint8*>(Target) + 1);
	}

	void FAttributeBindings::UnbindRange(SWidget& Owner, const void* Begin, const void* End)
	{
		FWidgetExtras* Extras = FWidgetExtras::Find(Owner);
		if (!Extras || Extras->Bindings.IsEmpty())
		{
			return;
		}
		Extras->Bindings.RemoveAll([Begin, End](const TUniquePtr<FAttributeBinding>& Binding)
		{
			return Binding->GetTarget() >= Begin && Binding->GetTarget() < End;
		});
		if (Extras->Bindings.IsEmpty())
		{
			FWidgetRegistry::WithBindings().Remove(Extras->BindingsIndex);
		}
	}

	bool FAttributeBindings::IsBound(const SWidget& Owner, const void* Target)
	{
		const FWidgetExtras* Extras = FWidgetExtras::Find(Owner);
		return Extras && Extras->Bindings.ContainsByPredicate([Target](const TUniquePtr<FAttributeBinding>& Binding) { return Binding->GetTarget() == Target; });
	}

	void FAttributeBindings::UpdateAll()
	{
		FWidgetRegistry::WithBindings().ForEach([](SWidget& Widget) { Update(Widget); });
	}

	void FAttributeBindings::Update(SWidget& Owner)
	{
		FWidgetExtras* Extras = FWidgetExtras::Find(Owner);
		if (!Extras)
		{
			return;
		}
		EInvalidateWidgetReason Reasons = EInvalidateWidgetReason::None;
		// By index: a getter may bind further attributes.
		for (int32 Index = 0; Index < Extras->Bindings.Num(); ++Index)
		{
			++FSlateCounters::Get().PolledAttributes;
			if (Extras->Bindings[Index]->Update(Owner))
			{
				Reasons |= Extras->Bindings[Index]->GetReason();
			}
		}
		if (Reasons != EInvalidateWidgetReason::None)
		{
			Owner.Invalidate(Reasons);
		}
	}

	void InvalidateForAttribute(SWidget& Owner, EInvalidateWidgetReason Reason)
	{
		Owner.Invalidate(Reason);
	}
}
