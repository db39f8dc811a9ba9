#pragma once

#include "EngineTest.h"
#include "UObject/UnrealType.h"

/** Reads what the reflection of the kit promises to designers and blueprints, as text. */
namespace KitReflection
{
	/** A type as C++ writes it, with plain pointers to objects. */
	inline std::string GetType(const FProperty& Property)
	{
		FString Inner;
		FString Type = Property.GetCPPType(&Inner) + Inner;
		int32 Start;
		while ((Start = Type.Find(TEXT("TObjectPtr<"))) != INDEX_NONE)
		{
			const int32 End = Type.Find(TEXT(">"), ESearchCase::CaseSensitive, ESearchDir::FromStart, Start);
			Type = Type.Left(Start) + Type.Mid(Start + 11, End - Start - 11) + TEXT("*") + Type.Mid(End + 1);
		}
		return Host::ToStd(Type);
	}

	/** Names of the structure's own members in their order, joined by blanks. */
	inline std::string ListNames(const UStruct* Struct)
	{
		std::string Names;
		for (TFieldIterator<FProperty> It(Struct, EFieldIterationFlags::None); It; ++It)
		{
			Names += (Names.empty() ? "" : " ") + Host::ToStd(It->GetName());
		}
		return Names;
	}

	inline const FProperty& GetMember(const UStruct* Struct, const TCHAR* Member)
	{
		const FProperty* Property = Struct->FindPropertyByName(FName(Member));
		checkf(Property, TEXT("%s has no %s"), *Struct->GetName(), Member);
		return *Property;
	}

	inline std::string GetType(const UStruct* Struct, const TCHAR* Member)
	{
		return GetType(GetMember(Struct, Member));
	}

	inline std::string GetMeta(const UStruct* Struct, const TCHAR* Member, const TCHAR* Key)
	{
		return Host::ToStd(GetMember(Struct, Member).GetMetaData(Key));
	}

	inline bool HasMeta(const UStruct* Struct, const TCHAR* Member, const TCHAR* Key)
	{
		return GetMember(Struct, Member).HasMetaData(Key);
	}

	/** Names of the members whose category is not the given one. */
	inline std::string ListOutsideCategory(const UStruct* Struct, const TCHAR* Category)
	{
		std::string Names;
		for (TFieldIterator<FProperty> It(Struct, EFieldIterationFlags::None); It; ++It)
		{
			if (It->GetMetaData(TEXT("Category")) != Category)
			{
				Names += (Names.empty() ? "" : " ") + Host::ToStd(It->GetName());
			}
		}
		return Names;
	}

	/** A function as text: "callable const bool Name(FName Id) in Category". */
	inline std::string Describe(const UClass* Class, const TCHAR* Name)
	{
		const UFunction* Function = Class->FindFunctionByName(FName(Name), EIncludeSuperFlag::ExcludeSuper);
		if (!Function)
		{
			return "none";
		}
		std::string Text;
		if (Function->HasAnyFunctionFlags(FUNC_BlueprintEvent))
		{
			Text += Function->HasAnyFunctionFlags(FUNC_Native) ? "native event " : "event ";
		}
		if (Function->HasAnyFunctionFlags(FUNC_BlueprintPure))
		{
			Text += "pure ";
		}
		else if (Function->HasAnyFunctionFlags(FUNC_BlueprintCallable))
		{
			Text += "callable ";
		}
		if (Function->HasAnyFunctionFlags(FUNC_Const))
		{
			Text += "const ";
		}
		const FProperty* Result = Function->GetReturnProperty();
		Text += (Result ? GetType(*Result) : "void") + " " + Host::ToStd(Function->GetName()) + "(";
		bool bFirst = true;
		for (TFieldIterator<FProperty> It(Function, EFieldIterationFlags::None); It; ++It)
		{
			if (*It != Result)
			{
				Text += (bFirst ? "" : ", ") + GetType(**It) + " " + Host::ToStd(It->GetName());
				const FString& Default = Function->GetMetaData(*(FString(TEXT("CPP_Default_")) + It->GetName()));
				Text += Default.IsEmpty() ? "" : " = " + Host::ToStd(Default);
				bFirst = false;
			}
		}
		return Text + ") in " + Host::ToStd(Function->GetMetaData(TEXT("Category")));
	}

	/** Type and name of the parameters of a multicast event. */
	inline std::string DescribeEvent(const UStruct* Struct, const TCHAR* Member)
	{
		const FMulticastDelegateProperty& Event = *CastFieldChecked<FMulticastDelegateProperty>(&GetMember(Struct, Member));
		std::string Text;
		for (TFieldIterator<FProperty> It(Event.SignatureFunction, EFieldIterationFlags::None); It; ++It)
		{
			Text += (Text.empty() ? "" : ", ") + GetType(**It) + " " + Host::ToStd(It->GetName());
		}
		return Text;
	}

	/** Namespace, key and source of a text. */
	inline std::string DescribeText(const FText& Text)
	{
		return Host::ToStd(FTextInspector::GetNamespace(Text).Get(TEXT("-"))) + "/" + Host::ToStd(FTextInspector::GetKey(Text).Get(TEXT("-"))) + ": " + Host::ToStd(Text);
	}
}
