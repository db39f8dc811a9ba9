#include "Host/FunctionCopy.h"

#include "UObject/UnrealType.h"

namespace Host
{
	namespace
	{
		FProperty* CopyProperty(const FProperty& Source, FFieldVariant Owner);

		template <typename PropertyType>
		FProperty* CopyIfPlain(const FProperty& Source, FFieldVariant Owner)
		{
			return CastField<PropertyType>(&Source) ? new PropertyType(Owner, Source.GetFName()) : nullptr;
		}

		/** Copies properties that are made of nothing but their kind. */
		FProperty* CopyPlain(const FProperty& Source, FFieldVariant Owner)
		{
			FProperty* (*const Copiers[])(const FProperty&, FFieldVariant) = {
				&CopyIfPlain<FBoolProperty>, &CopyIfPlain<FInt8Property>, &CopyIfPlain<FInt16Property>, &CopyIfPlain<FIntProperty>, &CopyIfPlain<FInt64Property>,
				&CopyIfPlain<FUInt16Property>, &CopyIfPlain<FUInt32Property>, &CopyIfPlain<FUInt64Property>, &CopyIfPlain<FFloatProperty>, &CopyIfPlain<FDoubleProperty>,
				&CopyIfPlain<FStrProperty>, &CopyIfPlain<FNameProperty>, &CopyIfPlain<FTextProperty>,
			};
			for (const auto Copier : Copiers)
			{
				if (FProperty* Copy = Copier(Source, Owner))
				{
					return Copy;
				}
			}
			return nullptr;
		}

		FProperty* CopyReference(const FProperty& Source, FFieldVariant Owner)
		{
			const FName Name = Source.GetFName();
			if (const FSoftClassProperty* SoftClass = CastField<FSoftClassProperty>(&Source))
			{
				return new FSoftClassProperty(Owner, Name, SoftClass->MetaClass);
			}
			if (const FSoftObjectProperty* Soft = CastField<FSoftObjectProperty>(&Source))
			{
				return new FSoftObjectProperty(Owner, Name, Soft->PropertyClass);
			}
			if (const FWeakObjectProperty* Weak = CastField<FWeakObjectProperty>(&Source))
			{
				return new FWeakObjectProperty(Owner, Name, Weak->PropertyClass);
			}
			if (const FClassProperty* Class = CastField<FClassProperty>(&Source))
			{
				return new FClassProperty(Owner, Name, Class->MetaClass);
			}
			if (const FObjectProperty* Object = CastField<FObjectProperty>(&Source))
			{
				return new FObjectProperty(Owner, Name, Object->PropertyClass);
			}
			if (const FInterfaceProperty* Interface = CastField<FInterfaceProperty>(&Source))
			{
				return new FInterfaceProperty(Owner, Name, Interface->InterfaceClass);
			}
			return nullptr;
		}

		FProperty* CopyContainer(const FProperty& Source, FFieldVariant Owner)
		{
			const FName Name = Source.GetFName();
			if (const FArrayProperty* Array = CastField<FArrayProperty>(&Source))
			{
				FArrayProperty* Copy = new FArrayProperty(Owner, Name, &Array->GetOps());
				Copy->SetInner(CopyProperty(*Array->Inner, Copy));
				return Copy;
			}
			if (const FSetProperty* Set = CastField<FSetProperty>(&Source))
			{
				FSetProperty* Copy = new FSetProperty(Owner, Name, &Set->GetOps());
				Copy->SetElementProperty(CopyProperty(*Set->ElementProp, Copy));
				return Copy;
			}
			if (const FMapProperty* Map = CastField<FMapProperty>(&Source))
			{
				FMapProperty* Copy = new FMapProperty(Owner, Name, &Map->GetOps());
				FProperty* Key = CopyProperty(*Map->KeyProp, Copy);
				Copy->SetInner(Key, CopyProperty(*Map->ValueProp, Copy));
				return Copy;
			}
			return nullptr;
		}

		FProperty* CopyTyped(const FProperty& Source, FFieldVariant Owner)
		{
			const FName Name = Source.GetFName();
			if (const FByteProperty* Byte = CastField<FByteProperty>(&Source))
			{
				return new FByteProperty(Owner, Name, Byte->Enum);
			}
			if (const FEnumProperty* Enum = CastField<FEnumProperty>(&Source))
			{
				FEnumProperty* Copy = new FEnumProperty(Owner, Name, Enum->GetEnum());
				Copy->AddCppProperty(static_cast<FNumericProperty*>(CopyProperty(*Enum->GetUnderlyingProperty(), Copy)));
				return Copy;
			}
			if (const FStructProperty* Struct = CastField<FStructProperty>(&Source))
			{
				return new FStructProperty(Owner, Name, Struct->Struct);
			}
			if (const FDelegateProperty* Delegate = CastField<FDelegateProperty>(&Source))
			{
				return new FDelegateProperty(Owner, Name, Delegate->SignatureFunction);
			}
			return nullptr;
		}

		FProperty* CopyProperty(const FProperty& Source, FFieldVariant Owner)
		{
			FProperty* (*const Copiers[])(const FProperty&, FFieldVariant) = { &CopyPlain, &CopyTyped, &CopyReference, &CopyContainer };
			for (const auto Copier : Copiers)
			{
				if (FProperty* Copy = Copier(Source, Owner))
				{
					Copy->ArrayDim = Source.ArrayDim;
					Copy->SetPropertyFlags(Source.GetPropertyFlags());
					return Copy;
				}
			}
			checkf(false, TEXT("parameters of type %s cannot be copied"), *Source.GetCPPType());
			return nullptr;
		}

		/** Makes the function findable, and the class one whose events may be scripted. */
		void AddToClass(UClass& Class, UFunction& Function)
		{
			Function.Next = Class.Children;
			Class.Children = &Function;
			Class.AddFunctionToFunctionMap(&Function, Function.GetFName());
			Class.MarkScriptFunctions();
		}
	}

	UFunction* CopySignature(UClass& Class, const UFunction& Signature, FName Name)
	{
		UFunction* Function = NewObject<UFunction>(&Class, Name, RF_Public);
		Function->FunctionFlags = Signature.FunctionFlags & ~FUNC_Native;
		for (TFieldIterator<FProperty> It(&Signature, EFieldIterationFlags::None); It; ++It)
		{
			FProperty* Copy = CopyProperty(**It, Function);
			// Where compiled callers put it.
			Copy->SetOffset_Internal(It->GetOffset_ForUFunction());
			Function->AddCppProperty(Copy);
		}
		Function->SetPropertiesSize(Signature.ParmsSize);
		Function->Link();
		AddToClass(Class, *Function);
		return Function;
	}

	UFunction* MakePlainFunction(UClass& Class, FName Name)
	{
		UFunction* Function = NewObject<UFunction>(&Class, Name, RF_Public);
		Function->FunctionFlags = FUNC_Public | FUNC_BlueprintCallable;
		Function->Link();
		AddToClass(Class, *Function);
		return Function;
	}
}
