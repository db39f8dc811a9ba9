#pragma once

#include "Templates/SubclassOf.h"
#include "UObject/BaseStructures.h"
#include "UObject/ReflectedTypeAccessors.h"
#include "UObject/UnrealType.h"

#include <type_traits>

namespace Host
{
	/** Makes the property that describes a C++ type. */
	template<typename T>
	struct TPropertyMaker;

	/** The property that describes a member of type T. C arrays become ArrayDim. */
	template<typename T>
	FProperty* MakeProperty(FFieldVariant Owner, FName Name)
	{
		if constexpr (std::is_array_v<T>)
		{
			FProperty* Property = TPropertyMaker<std::remove_extent_t<T>>::Make(Owner, Name);
			Property->ArrayDim = std::extent_v<T>;
			return Property;
		}
		else
		{
			return TPropertyMaker<T>::Make(Owner, Name);
		}
	}

	/** Properties that need nothing but owner and name. */
	template<typename TPropertyType>
	struct TSimplePropertyMaker
	{
		static FProperty* Make(FFieldVariant Owner, FName Name) { return new TPropertyType(Owner, Name); }
	};

	// Integers by width and sign: a 64-bit integer has two names in C++.
	template<typename T, int32 Size = sizeof(T), bool bSigned = std::is_signed_v<T>>
	struct TIntegerPropertyMaker;
	template<typename T>
	struct TIntegerPropertyMaker<T, 1, true> : TSimplePropertyMaker<FInt8Property> {};
	template<typename T>
	struct TIntegerPropertyMaker<T, 2, true> : TSimplePropertyMaker<FInt16Property> {};
	template<typename T>
	struct TIntegerPropertyMaker<T, 4, true> : TSimplePropertyMaker<FIntProperty> {};
	template<typename T>
	struct TIntegerPropertyMaker<T, 8, true> : TSimplePropertyMaker<FInt64Property> {};
	template<typename T>
	struct TIntegerPropertyMaker<T, 1, false> : TSimplePropertyMaker<FByteProperty> {};
	template<typename T>
	struct TIntegerPropertyMaker<T, 2, false> : TSimplePropertyMaker<FUInt16Property> {};
	template<typename T>
	struct TIntegerPropertyMaker<T, 4, false> : TSimplePropertyMaker<FUInt32Property> {};
	template<typename T>
	struct TIntegerPropertyMaker<T, 8, false> : TSimplePropertyMaker<FUInt64Property> {};

	template<typename T>
		requires(std::is_integral_v<T>)
	struct TPropertyMaker<T> : TIntegerPropertyMaker<T> {};

	template<>
	struct TPropertyMaker<bool> : TSimplePropertyMaker<FBoolProperty> {};
	template<>
	struct TPropertyMaker<float> : TSimplePropertyMaker<FFloatProperty> {};
	template<>
	struct TPropertyMaker<double> : TSimplePropertyMaker<FDoubleProperty> {};
	template<>
	struct TPropertyMaker<FString> : TSimplePropertyMaker<FStrProperty> {};
	template<>
	struct TPropertyMaker<FName> : TSimplePropertyMaker<FNameProperty> {};
	template<>
	struct TPropertyMaker<FText> : TSimplePropertyMaker<FTextProperty> {};

	template<typename T>
		requires(std::is_enum_v<T>)
	struct TPropertyMaker<T>
	{
		static FProperty* Make(FFieldVariant Owner, FName Name)
		{
			FEnumProperty* Property = new FEnumProperty(Owner, Name, ::StaticEnum<T>());
			Property->AddCppProperty(static_cast<FNumericProperty*>(
				TPropertyMaker<std::underlying_type_t<T>>::Make(Property, FName(TEXT("UnderlyingType")))));
			return Property;
		}
	};

	template<typename T>
	struct TPropertyMaker<TEnumAsByte<T>>
	{
		static FProperty* Make(FFieldVariant Owner, FName Name) { return new FByteProperty(Owner, Name, ::StaticEnum<T>()); }
	};

	template<typename T>
	struct TPropertyMaker<T*>
	{
		static FProperty* Make(FFieldVariant Owner, FName Name) { return new FObjectProperty(Owner, Name, ::StaticClass<std::remove_const_t<T>>()); }
	};

	template<>
	struct TPropertyMaker<UClass*>
	{
		static FProperty* Make(FFieldVariant Owner, FName Name) { return new FClassProperty(Owner, Name, UObject::StaticClass()); }
	};

	template<typename T>
	struct TPropertyMaker<TObjectPtr<T>>
	{
		static FProperty* Make(FFieldVariant Owner, FName Name)
		{
			FProperty* Property = TPropertyMaker<T*>::Make(Owner, Name);
			Property->SetPropertyFlags(CPF_TObjectPtr);
			return Property;
		}
	};

	template<typename T>
	struct TPropertyMaker<TSubclassOf<T>>
	{
		static FProperty* Make(FFieldVariant Owner, FName Name) { return new FClassProperty(Owner, Name, ::StaticClass<T>()); }
	};

	template<typename T>
	struct TPropertyMaker<TWeakObjectPtr<T>>
	{
		static FProperty* Make(FFieldVariant Owner, FName Name) { return new FWeakObjectProperty(Owner, Name, ::StaticClass<std::remove_const_t<T>>()); }
	};

	template<typename T>
	struct TPropertyMaker<TSoftObjectPtr<T>>
	{
		static FProperty* Make(FFieldVariant Owner, FName Name) { return new FSoftObjectProperty(Owner, Name, ::StaticClass<std::remove_const_t<T>>()); }
	};

	template<typename T>
	struct TPropertyMaker<TSoftClassPtr<T>>
	{
		static FProperty* Make(FFieldVariant Owner, FName Name) { return new FSoftClassProperty(Owner, Name, ::StaticClass<T>()); }
	};

	template<typename T>
	struct TPropertyMaker<TScriptInterface<T>>
	{
		static FProperty* Make(FFieldVariant Owner, FName Name) { return new FInterfaceProperty(Owner, Name, ::StaticClass<T>()); }
	};

	template<typename TElement, typename TAllocator>
	struct TPropertyMaker<TArray<TElement, TAllocator>>
	{
		static FProperty* Make(FFieldVariant Owner, FName Name)
		{
			FArrayProperty* Property = new FArrayProperty(Owner, Name, GetArrayOps<TElement, TAllocator>());
			Property->SetInner(MakeProperty<TElement>(Property, Name));
			return Property;
		}
	};

	template<typename TElement, typename... TRest>
	struct TPropertyMaker<TSet<TElement, TRest...>>
	{
		static FProperty* Make(FFieldVariant Owner, FName Name)
		{
			FSetProperty* Property = new FSetProperty(Owner, Name, GetSetOps<TSet<TElement, TRest...>, TElement>());
			Property->SetElementProperty(MakeProperty<TElement>(Property, Name));
			return Property;
		}
	};

	template<typename TKey, typename TValue, typename... TRest>
	struct TPropertyMaker<TMap<TKey, TValue, TRest...>>
	{
		static FProperty* Make(FFieldVariant Owner, FName Name)
		{
			FMapProperty* Property = new FMapProperty(Owner, Name, GetMapOps<TMap<TKey, TValue, TRest...>, TKey>());
			FProperty* Key = MakeProperty<TKey>(Property, FName(*(Name.ToString() + TEXT("_Key"))));
			Property->SetInner(Key, MakeProperty<TValue>(Property, Name));
			return Property;
		}
	};

	template<typename T>
		requires(std::is_base_of_v<FScriptDelegate, T>)
	struct TPropertyMaker<T>
	{
		static_assert(sizeof(T) == sizeof(FScriptDelegate), "Reflection treats all dynamic delegates alike");
		static FProperty* Make(FFieldVariant Owner, FName Name) { return new FDelegateProperty(Owner, Name, StaticSignature<T>()); }
	};

	template<typename T>
		requires(std::is_base_of_v<FMulticastScriptDelegate, T>)
	struct TPropertyMaker<T>
	{
		static_assert(sizeof(T) == sizeof(FMulticastScriptDelegate), "Reflection treats all dynamic delegates alike");
		static FProperty* Make(FFieldVariant Owner, FName Name) { return new FMulticastInlineDelegateProperty(Owner, Name, StaticSignature<T>()); }
	};

	/** Everything else is a structure; one without reflection does not compile here. */
	template<typename T>
	struct TPropertyMaker
	{
		static FProperty* Make(FFieldVariant Owner, FName Name) { return new FStructProperty(Owner, Name, TBaseStructure<T>::Get()); }
	};
}
