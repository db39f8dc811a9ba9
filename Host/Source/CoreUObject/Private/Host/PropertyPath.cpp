#include "Host/PropertyPath.h"

#include "Host/LooseValue.h"

namespace Host
{
	namespace
	{
		/** The next name up to "." or "[". */
		FString TakeName(const FString& Path, int32& Position)
		{
			const int32 Start = Position;
			while (Position < Path.Len() && Path[Position] != TEXT('.') && Path[Position] != TEXT('['))
			{
				++Position;
			}
			return Path.Mid(Start, Position - Start);
		}

		/** What stands between "[" and "]"; false without the latter. */
		bool TakeKey(const FString& Path, int32& Position, FString& OutKey)
		{
			const int32 Start = ++Position;
			while (Position < Path.Len() && Path[Position] != TEXT(']'))
			{
				++Position;
			}
			OutKey = Path.Mid(Start, Position - Start);
			return Position++ < Path.Len();
		}

		bool ParseIndex(const FString& Text, int32& OutIndex)
		{
			if (Text.IsEmpty() || Text.Len() > 9)
			{
				return false;
			}
			OutIndex = 0;
			for (const TCHAR Digit : Text)
			{
				if (Digit < TEXT('0') || Digit > TEXT('9'))
				{
					return false;
				}
				OutIndex = OutIndex * 10 + (Digit - TEXT('0'));
			}
			return true;
		}
	}

	bool FPropertyPlace::Find(UObject* InObject, const FString& Path, FString& OutReason)
	{
		Object = InObject;
		Steps.Empty();
		int32 Position = 0;
		while (true)
		{
			if (!EnterMember(TakeName(Path, Position), OutReason))
			{
				return false;
			}
			while (Position < Path.Len() && Path[Position] == TEXT('['))
			{
				FString Key;
				if (!TakeKey(Path, Position, Key))
				{
					OutReason = FString::Printf(TEXT("'%s': ']' is missing"), *Path);
					return false;
				}
				if (!EnterElement(Key, OutReason))
				{
					return false;
				}
			}
			if (Position >= Path.Len())
			{
				return true;
			}
			if (Path[Position] != TEXT('.'))
			{
				OutReason = FString::Printf(TEXT("'%s': expected '.' or '[' at %d"), *Path, Position);
				return false;
			}
			++Position;
		}
	}

	bool FPropertyPlace::EnterMember(const FString& Name, FString& OutReason)
	{
		const UStruct* Struct = Object->GetClass();
		void* Container = Object;
		if (Steps.Num() > 0)
		{
			const FStep Step = Last();
			if (const FStructProperty* StructProperty = CastField<FStructProperty>(Step.Property))
			{
				Struct = StructProperty->Struct;
				Container = Step.Value;
			}
			else if (const FObjectPropertyBase* ObjectProperty = CastField<FObjectPropertyBase>(Step.Property))
			{
				UObject* Inner = ObjectProperty->GetObjectPropertyValue(Step.Value);
				if (!Inner)
				{
					OutReason = FString::Printf(TEXT("%s refers to no object"), *Step.Property->GetName());
					return false;
				}
				Object = Inner;
				Struct = Inner->GetClass();
				Container = Inner;
				Steps.Empty();
			}
			else
			{
				OutReason = FString::Printf(TEXT("%s is a %s and has no members"), *Step.Property->GetName(), *Step.Property->GetCPPType());
				return false;
			}
		}
		FProperty* Property = FindFProperty<FProperty>(Struct, *Name);
		if (!Property)
		{
			OutReason = FString::Printf(TEXT("%s has no property '%s'"), *Struct->GetName(), *Name);
			return false;
		}
		Steps.Add({ Property, Property->ContainerPtrToValuePtr<void>(Container), Struct, Container, INDEX_NONE });
		return true;
	}

	bool FPropertyPlace::EnterElement(const FString& Key, FString& OutReason)
	{
		const FProperty* Property = Last().Property;
		if (const FArrayProperty* Array = CastField<FArrayProperty>(Property))
		{
			return EnterArrayElement(*Array, Key, OutReason);
		}
		if (const FMapProperty* Map = CastField<FMapProperty>(Property))
		{
			return EnterMapValue(*Map, Key, OutReason);
		}
		int32 Index = 0;
		if (Property->ArrayDim > 1 && Last().Index == INDEX_NONE && ParseIndex(Key, Index) && Index < Property->ArrayDim)
		{
			FStep& Step = Steps.Last();
			Step.Value = static_cast<uint8*>(Step.Value) + Index * Property->ElementSize;
			Step.Index = Index;
			return true;
		}
		OutReason = FString::Printf(TEXT("%s has no element [%s]"), *Property->GetName(), *Key);
		return false;
	}

	bool FPropertyPlace::EnterArrayElement(const FArrayProperty& Property, const FString& Key, FString& OutReason)
	{
		const FScriptArrayHelper Array(&Property, Last().Value);
		int32 Index = 0;
		if (!ParseIndex(Key, Index) || !Array.IsValidIndex(Index))
		{
			OutReason = FString::Printf(TEXT("%s has %d elements; there is no [%s]"), *Property.GetName(), Array.Num(), *Key);
			return false;
		}
		Steps.Add({ Property.Inner, Array.GetRawPtr(Index), nullptr, nullptr, Index });
		return true;
	}

	bool FPropertyPlace::EnterMapValue(const FMapProperty& Property, const FString& Key, FString& OutReason)
	{
		const FScriptMapHelper Map(&Property, Last().Value);
		const FLooseValue LooseKey(*Property.KeyProp);
		const TCHAR* End = Property.KeyProp->ImportText_Direct(*Key, LooseKey.Get(), Object, PPF_None);
		uint8* Value = End ? Map.FindValueFromHash(LooseKey.Get()) : nullptr;
		if (!Value)
		{
			OutReason = FString::Printf(TEXT("%s has no key '%s'"), *Property.GetName(), *Key);
			return false;
		}
		Steps.Add({ Property.ValueProp, Value, nullptr, nullptr, INDEX_NONE });
		return true;
	}
}
