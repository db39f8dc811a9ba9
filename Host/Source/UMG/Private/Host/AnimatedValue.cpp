#include "Host/AnimatedValue.h"

#include "UObject/UnrealType.h"

namespace Host
{
	FAnimatedValue::FAnimatedValue(const FAnimatedProperty& InProperty)
		: Property(InProperty)
		, Argument(*InProperty.Member)
	{
	}

	void* FAnimatedValue::TakeMember(const UObject& Object)
	{
		Property.Member->CopyCompleteValue(Argument.Get(), Property.Member->ContainerPtrToValuePtr<void>(&Object));
		return static_cast<uint8*>(Argument.Get()) + Property.Offset;
	}

	void FAnimatedValue::CallSetter(UObject& Object)
	{
		const uint8* Current = Property.Member->ContainerPtrToValuePtr<uint8>(&Object) + Property.Offset;
		if (!Property.Type->Identical(static_cast<const uint8*>(Argument.Get()) + Property.Offset, Current))
		{
			// The value is the whole of the parameters: a setter has no other.
			Object.ProcessEvent(Property.Setter, Argument.Get());
		}
	}

	void FAnimatedValue::Set(TConstArrayView<double> Channels)
	{
		if (UObject* Object = Property.Object.Get())
		{
			Property.WriteChannels(TakeMember(*Object), Channels);
			CallSetter(*Object);
		}
	}

	void FAnimatedValue::Save()
	{
		if (!Saved && Property.Object.IsValid())
		{
			Saved.Emplace(Property.CopyValue());
		}
	}

	void FAnimatedValue::Restore()
	{
		if (UObject* Object = Property.Object.Get(); Object && Saved)
		{
			Property.Type->CopyCompleteValue(TakeMember(*Object), Saved->Get());
			CallSetter(*Object);
		}
		Saved.Reset();
	}
}
