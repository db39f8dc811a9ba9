#include "Host/ReferenceVisitor.h"

#include "Host/LooseValue.h"

namespace Host
{
	namespace
	{
		void VisitDelegate(FScriptDelegate& Delegate, FReferenceVisitor& Visitor)
		{
			UObject* Target = Delegate.GetUObject();
			UObject* NewTarget = Target ? Visitor.VisitWeak(Target) : nullptr;
			if (NewTarget != Target)
			{
				Delegate.BindUFunction(NewTarget, Delegate.GetFunctionName());
			}
		}

		void VisitMulticast(const FMulticastDelegateProperty& Property, void* Value, FReferenceVisitor& Visitor)
		{
			const FMulticastScriptDelegate* Old = Property.GetMulticastDelegate(Value);
			if (!Old || !Old->IsBound())
			{
				return;
			}
			FMulticastScriptDelegate New;
			Old->ForEachBinding([&](FScriptDelegate Binding)
			{
				VisitDelegate(Binding, Visitor);
				New.AddUnchecked(Binding);
			});
			Property.SetMulticastDelegate(Value, New);
		}

		void VisitSet(const FSetProperty& Property, void* Value, bool bOwned, FReferenceVisitor& Visitor)
		{
			if (!Property.ContainsObjectReference())
			{
				return;
			}
			const FLooseValue Old(Property, Value);
			const FScriptSetHelper Source(&Property, Old.Get());
			const FScriptSetHelper Dest(&Property, Value);
			Dest.EmptyElements(Source.Num());
			for (int32 Index = 0; Index < Source.GetMaxIndex(); ++Index)
			{
				if (Source.IsValidIndex(Index))
				{
					const FLooseValue Element(*Property.ElementProp, Source.GetElementPtr(Index));
					VisitReferences(Property.ElementProp, Element.Get(), bOwned, Visitor);
					Dest.AddElement(Element.Get());
				}
			}
		}

		void VisitMapValues(const FMapProperty& Property, void* Value, bool bOwned, FReferenceVisitor& Visitor)
		{
			const FScriptMapHelper Map(&Property, Value);
			for (int32 Index = 0; Index < Map.GetMaxIndex(); ++Index)
			{
				if (Map.IsValidIndex(Index))
				{
					VisitReferences(Property.ValueProp, Map.GetValuePtr(Index), bOwned, Visitor);
				}
			}
		}

		void VisitMapKeys(const FMapProperty& Property, void* Value, bool bOwned, FReferenceVisitor& Visitor)
		{
			const FLooseValue Old(Property, Value);
			const FScriptMapHelper Source(&Property, Old.Get());
			const FScriptMapHelper Dest(&Property, Value);
			Dest.EmptyValues(Source.Num());
			for (int32 Index = 0; Index < Source.GetMaxIndex(); ++Index)
			{
				if (Source.IsValidIndex(Index))
				{
					const FLooseValue Key(*Property.KeyProp, Source.GetKeyPtr(Index));
					VisitReferences(Property.KeyProp, Key.Get(), bOwned, Visitor);
					Dest.AddPair(Key.Get(), Source.GetValuePtr(Index));
				}
			}
		}

		void VisitArray(const FArrayProperty& Property, void* Value, bool bOwned, FReferenceVisitor& Visitor)
		{
			const FScriptArrayHelper Array(&Property, Value);
			for (int32 Index = 0; Index < Array.Num(); ++Index)
			{
				VisitReferences(Property.Inner, Array.GetRawPtr(Index), bOwned, Visitor);
			}
		}

		void VisitElement(const FProperty& Property, void* Value, bool bOwned, FReferenceVisitor& Visitor)
		{
			const EClassCastFlags Kind = Property.GetCastFlags();
			if (Kind & CASTCLASS_FObjectProperty)
			{
				UObject*& Object = *static_cast<UObject**>(Value);
				Object = Object ? Visitor.VisitStrong(Object, bOwned) : nullptr;
			}
			else if (Kind & CASTCLASS_FStructProperty)
			{
				VisitReferences(static_cast<const FStructProperty&>(Property).Struct, Value, Visitor);
			}
			else if (Kind & CASTCLASS_FArrayProperty)
			{
				VisitArray(static_cast<const FArrayProperty&>(Property), Value, bOwned, Visitor);
			}
			else if (Kind & CASTCLASS_FMapProperty)
			{
				const FMapProperty& Map = static_cast<const FMapProperty&>(Property);
				VisitMapValues(Map, Value, bOwned, Visitor);
				if (Map.KeyProp->ContainsObjectReference())
				{
					VisitMapKeys(Map, Value, bOwned, Visitor);
				}
			}
			else if (Kind & CASTCLASS_FSetProperty)
			{
				VisitSet(static_cast<const FSetProperty&>(Property), Value, bOwned, Visitor);
			}
			else if (Kind & CASTCLASS_FInterfaceProperty)
			{
				UObject* Object = static_cast<FScriptInterface*>(Value)->GetObject();
				UObject* NewObject = Object ? Visitor.VisitStrong(Object, bOwned) : nullptr;
				if (NewObject != Object)
				{
					static_cast<const FInterfaceProperty&>(Property).SetInterfaceObject(Value, NewObject);
				}
			}
			else if (Kind & CASTCLASS_FWeakObjectProperty)
			{
				FWeakObjectPtr& Weak = *static_cast<FWeakObjectPtr*>(Value);
				if (UObject* Object = Weak.Get())
				{
					Weak = Visitor.VisitWeak(Object);
				}
			}
			else if (Kind & CASTCLASS_FDelegateProperty)
			{
				VisitDelegate(*static_cast<FScriptDelegate*>(Value), Visitor);
			}
			else if (Kind & CASTCLASS_FMulticastDelegateProperty)
			{
				VisitMulticast(static_cast<const FMulticastDelegateProperty&>(Property), Value, Visitor);
			}
		}
	}

	void VisitReferences(const FProperty* Property, void* Value, bool bOwned, FReferenceVisitor& Visitor)
	{
		const bool bOwns = bOwned || Property->HasAnyPropertyFlags(CPF_InstancedReference | CPF_ContainsInstancedReference);
		for (int32 Index = 0; Index < Property->ArrayDim; ++Index)
		{
			VisitElement(*Property, static_cast<uint8*>(Value) + Index * Property->ElementSize, bOwns, Visitor);
		}
	}

	void VisitReferences(const UStruct* Struct, void* Container, FReferenceVisitor& Visitor)
	{
		for (const FProperty* Property = Struct->PropertyLink; Property; Property = Property->PropertyLinkNext)
		{
			VisitReferences(Property, Property->ContainerPtrToValuePtr<void>(Container), false, Visitor);
		}
	}
}
