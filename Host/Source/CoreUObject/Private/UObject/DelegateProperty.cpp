#include "UObject/DelegateProperty.h"

#include "PropertyText.h"
#include "UObject/UObjectGlobals.h"

HOST_IMPLEMENT_FIELD(FDelegateProperty, "DelegateProperty")
HOST_IMPLEMENT_FIELD(FMulticastDelegateProperty, "MulticastDelegateProperty")
HOST_IMPLEMENT_FIELD(FMulticastInlineDelegateProperty, "MulticastInlineDelegateProperty")

namespace
{
	/** "/Path/To.Object.Function", or nothing for a binding that is void. */
	FString BindingToText(const FScriptDelegate& Delegate)
	{
		const UObject* Object = Delegate.GetUObject();
		return Object && Delegate.IsBound() ? FString::Printf(TEXT("%s.%s"), *Object->GetPathName(), *Delegate.GetFunctionName().ToString()) : FString();
	}

	bool TextToBinding(const FString& Text, UObject* Owner, FScriptDelegate& OutDelegate)
	{
		OutDelegate.Unbind();
		if (Text.IsEmpty() || Text == TEXT("None"))
		{
			return true;
		}
		FString ObjectPath;
		FString FunctionName;
		UObject* Object = Owner;
		if (!Text.Split(TEXT("."), &ObjectPath, &FunctionName, ESearchCase::CaseSensitive, ESearchDir::FromEnd))
		{
			FunctionName = Text;
		}
		else
		{
			Object = StaticFindObject(UObject::StaticClass(), nullptr, *ObjectPath);
		}
		OutDelegate.BindUFunction(Object, FName(*FunctionName));
		return OutDelegate.IsBound();
	}
}

FDelegateProperty::FDelegateProperty(FFieldVariant InOwner, FName InName, UFunction* InSignature)
	: TProperty<FScriptDelegate, FProperty>(InOwner, InName, StaticClass())
	, SignatureFunction(InSignature)
{
}

bool FDelegateProperty::Identical(const void* A, const void* B, uint32) const
{
	const FScriptDelegate Unbound;
	return (A ? GetPropertyValue(A) : Unbound) == (B ? GetPropertyValue(B) : Unbound);
}

FString FDelegateProperty::GetCPPType(FString*, uint32) const
{
	return TEXT("FScriptDelegate");
}

bool FDelegateProperty::SameType(const FProperty* Other) const
{
	return Super::SameType(Other) && static_cast<const FDelegateProperty*>(Other)->SignatureFunction == SignatureFunction;
}

const TCHAR* FDelegateProperty::ImportText_Internal(const TCHAR* Buffer, void* Value, UObject* InOwner, int32 PortFlags, FOutputDevice* ErrorText) const
{
	FString Text;
	const TCHAR* Behind = Host::ReadText(Buffer, PortFlags | PPF_Delimited, Text);
	FScriptDelegate Delegate;
	if (!Behind || !TextToBinding(Text, InOwner, Delegate))
	{
		return Host::RefuseText(*this, Text, ErrorText);
	}
	SetPropertyValue(Value, Delegate);
	return Behind;
}

void FDelegateProperty::ExportText_Internal(FString& ValueStr, const void* Value, const void*, UObject*, int32, UObject*) const
{
	const FString Text = BindingToText(GetPropertyValue(Value));
	ValueStr += Text.IsEmpty() ? FString(TEXT("None")) : Text;
}

bool FMulticastDelegateProperty::SameType(const FProperty* Other) const
{
	return Super::SameType(Other) && static_cast<const FMulticastDelegateProperty*>(Other)->SignatureFunction == SignatureFunction;
}

FMulticastInlineDelegateProperty::FMulticastInlineDelegateProperty(FFieldVariant InOwner, FName InName, UFunction* InSignature)
	: TProperty<FMulticastScriptDelegate, FMulticastDelegateProperty>(InOwner, InName, StaticClass(), InSignature)
{
}

FMulticastScriptDelegate* FMulticastInlineDelegateProperty::Resolve(UObject* Parent, void* PropertyValue) const
{
	return PropertyValue ? GetPropertyValuePtr(PropertyValue) : ContainerPtrToValuePtr<FMulticastScriptDelegate>(Parent);
}

const FMulticastScriptDelegate* FMulticastInlineDelegateProperty::GetMulticastDelegate(const void* PropertyValue) const
{
	return GetPropertyValuePtr(PropertyValue);
}

void FMulticastInlineDelegateProperty::SetMulticastDelegate(void* PropertyValue, FMulticastScriptDelegate ScriptDelegate) const
{
	SetPropertyValue(PropertyValue, ScriptDelegate);
}

void FMulticastInlineDelegateProperty::AddDelegate(FScriptDelegate ScriptDelegate, UObject* Parent, void* PropertyValue) const
{
	Resolve(Parent, PropertyValue)->AddUnique(ScriptDelegate);
}

void FMulticastInlineDelegateProperty::RemoveDelegate(const FScriptDelegate& ScriptDelegate, UObject* Parent, void* PropertyValue) const
{
	Resolve(Parent, PropertyValue)->Remove(ScriptDelegate);
}

void FMulticastInlineDelegateProperty::ClearDelegate(UObject* Parent, void* PropertyValue) const
{
	Resolve(Parent, PropertyValue)->Clear();
}

bool FMulticastInlineDelegateProperty::Identical(const void* A, const void* B, uint32) const
{
	const FMulticastScriptDelegate Empty;
	return (A ? GetPropertyValue(A) : Empty) == (B ? GetPropertyValue(B) : Empty);
}

FString FMulticastInlineDelegateProperty::GetCPPType(FString*, uint32) const
{
	return TEXT("FMulticastScriptDelegate");
}

const TCHAR* FMulticastInlineDelegateProperty::ImportText_Internal(const TCHAR* Buffer, void* Value, UObject* InOwner, int32, FOutputDevice* ErrorText) const
{
	FString Text;
	const TCHAR* Behind = Host::SkipBlanks(Buffer);
	if (*Behind++ != u'(')
	{
		return Host::RefuseText(*this, Buffer, ErrorText);
	}
	FMulticastScriptDelegate Read;
	while (*Behind != u')')
	{
		Behind = Host::ReadToken(Behind, Text);
		FScriptDelegate Delegate;
		if (!TextToBinding(Text, InOwner, Delegate) || *Behind == 0)
		{
			return Host::RefuseText(*this, Text, ErrorText);
		}
		Read.AddUnique(Delegate);
		Behind += *Behind == u',';
	}
	SetPropertyValue(Value, Read);
	return Behind + 1;
}

void FMulticastInlineDelegateProperty::ExportText_Internal(FString& ValueStr, const void* Value, const void*, UObject*, int32, UObject*) const
{
	ValueStr += TEXT("(");
	const TCHAR* Separator = TEXT("");
	GetPropertyValue(Value).ForEachBinding([&](const FScriptDelegate& Delegate)
	{
		const FString Text = BindingToText(Delegate);
		if (!Text.IsEmpty())
		{
			ValueStr += Separator;
			ValueStr += Text;
			Separator = TEXT(",");
		}
	});
	ValueStr += TEXT(")");
}
