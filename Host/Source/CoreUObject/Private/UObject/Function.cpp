#include "UObject/Function.h"

#include "UObject/UnrealType.h"

UFunction::UFunction(const FObjectInitializer& ObjectInitializer)
	: UStruct(ObjectInitializer)
{
}

UFunction::UFunction(EStaticConstructor, EObjectFlags InFlags)
	: UStruct(EC_StaticConstructor, InFlags)
{
}

UDelegateFunction::UDelegateFunction(const FObjectInitializer& ObjectInitializer)
	: UFunction(ObjectInitializer)
{
}

UDelegateFunction::UDelegateFunction(EStaticConstructor, EObjectFlags InFlags)
	: UFunction(EC_StaticConstructor, InFlags)
{
}

FProperty* UFunction::GetReturnProperty() const
{
	for (TFieldIterator<FProperty> It(this, EFieldIterationFlags::None); It; ++It)
	{
		if (It->HasAnyPropertyFlags(CPF_ReturnParm))
		{
			return *It;
		}
	}
	return nullptr;
}

UFunction* UFunction::GetSuperFunction() const
{
	const UClass* Class = GetOwnerClass();
	const UClass* Super = Class ? Class->GetSuperClass() : nullptr;
	return Super ? Super->FindFunctionByName(GetFName()) : nullptr;
}

bool UFunction::IsSignatureCompatibleWith(const UFunction* OtherFunction) const
{
	TFieldIterator<FProperty> Own(this, EFieldIterationFlags::None);
	TFieldIterator<FProperty> Other(OtherFunction, EFieldIterationFlags::None);
	constexpr uint64 Compared = CPF_ReturnParm | CPF_OutParm;
	for (; Own && Other; ++Own, ++Other)
	{
		const bool bSameFlags = (Own->PropertyFlags & Compared) == (Other->PropertyFlags & Compared);
		if (!bSameFlags || !Own->SameType(*Other))
		{
			return false;
		}
	}
	return !Own && !Other;
}

void UFunction::Link()
{
	UStruct::Link();
	NumParms = 0;
	ReturnValueOffset = 0xffff;
	for (TFieldIterator<FProperty> It(this, EFieldIterationFlags::None); It; ++It)
	{
		++NumParms;
		if (It->HasAnyPropertyFlags(CPF_ReturnParm))
		{
			ReturnValueOffset = static_cast<uint16>(It->GetOffset_ForInternal());
		}
	}
	ParmsSize = static_cast<uint16>(PropertiesSize);
}

void UFunction::Invoke(UObject* Context, void* Parms) const
{
	if (ScriptBody)
	{
		ScriptBody(Context, Parms);
	}
	else if (Func)
	{
		Func(Context, Parms);
	}
}
