#include "Host/AnimatedProperty.h"

#include "Styling/SlateColor.h"
#include "UObject/UnrealType.h"

namespace Host
{
	namespace
	{
		/** The integer of an enumeration; null for any other property. */
		const FNumericProperty* FindEnumNumber(const FProperty& Property)
		{
			if (const FEnumProperty* Enum = CastField<FEnumProperty>(&Property))
			{
				return Enum->GetUnderlyingProperty();
			}
			const FByteProperty* Byte = CastField<FByteProperty>(&Property);
			return Byte && Byte->Enum ? Byte : nullptr;
		}

		bool IsSlateColor(const FProperty& Property)
		{
			const FStructProperty* Struct = CastField<FStructProperty>(&Property);
			return Struct && Struct->Struct == FSlateColor::StaticStruct();
		}

		/** The function that sets a property: its only parameter is the new value. */
		UFunction* FindSetter(const UObject& Object, const FProperty& Property)
		{
			UFunction* Setter = Object.FindFunction(FName(*(TEXT("Set") + Property.GetName())));
			if (!Setter || Setter->NumParms != 1 || Setter->GetReturnProperty())
			{
				return nullptr;
			}
			const FProperty* Parameter = *TFieldIterator<FProperty>(Setter);
			return Parameter->SameType(&Property) ? Setter : nullptr;
		}
	}

	TOptional<FAnimatedProperty> FAnimatedProperty::Find(UObject& Start, const FString& Path, FString& OutReason)
	{
		TArray<FString> Names;
		Path.ParseIntoArray(Names, TEXT("."), false);
		UObject* Holder = &Start;
		int32 Index = 0;
		for (; Index < Names.Num() - 1; ++Index)
		{
			const FObjectPropertyBase* Reference = FindFProperty<FObjectPropertyBase>(Holder->GetClass(), FName(*Names[Index]));
			if (!Reference)
			{
				break;
			}
			UObject* Next = Reference->GetObjectPropertyValue_InContainer(Holder);
			if (!Next)
			{
				OutReason = FString::Printf(TEXT("the '%s' of this %s is empty."), *Names[Index], *Holder->GetClass()->GetName());
				return {};
			}
			Holder = Next;
		}

		FAnimatedProperty Found;
		if (Names.IsEmpty())
		{
			OutReason = TEXT("the name of a property must not be empty.");
			return {};
		}
		if (!Found.FindMember(*Holder, Names[Index], OutReason))
		{
			return {};
		}
		for (++Index; Index < Names.Num(); ++Index)
		{
			if (!Found.FindPart(Names[Index], OutReason))
			{
				return {};
			}
		}
		if (!Found.FindChannels(*Found.Type, 0) || Found.Channels.IsEmpty() || Found.Channels.Num() > MaxChannels)
		{
			OutReason = FString::Printf(TEXT("'%s' is a %s, which cannot be animated."), *Path, *Found.Type->GetCPPType());
			return {};
		}
		return Found;
	}

	bool FAnimatedProperty::FindMember(UObject& InObject, const FString& Name, FString& OutReason)
	{
		const UClass& Class = *InObject.GetClass();
		Object = &InObject;
		Member = Class.FindPropertyByName(FName(*Name));
		Type = Member;
		if (!Member)
		{
			OutReason = FString::Printf(TEXT("%s has no property '%s'."), *Class.GetName(), *Name);
			return false;
		}
		Setter = FindSetter(InObject, *Member);
		if (!Setter)
		{
			OutReason = FString::Printf(TEXT("'%s' of %s has no setter, so it cannot be animated."), *Name, *Class.GetName());
			return false;
		}
		return true;
	}

	bool FAnimatedProperty::FindPart(const FString& Name, FString& OutReason)
	{
		const FStructProperty* Whole = CastField<FStructProperty>(Type);
		const FProperty* Part = Whole ? Whole->Struct->FindPropertyByName(FName(*Name)) : nullptr;
		if (!Part)
		{
			OutReason = FString::Printf(TEXT("'%s', a %s, has no part '%s'."), *Type->GetName(), *Type->GetCPPType(), *Name);
			return false;
		}
		Type = Part;
		Offset += Part->GetOffset_ForInternal();
		return true;
	}

	bool FAnimatedProperty::FindChannels(const FProperty& Part, int32 PartOffset)
	{
		if (Part.ArrayDim != 1)
		{
			return false;
		}
		if (const FNumericProperty* EnumNumber = FindEnumNumber(Part))
		{
			bGradual = false;
			Channels.Add({ EnumNumber, PartOffset });
			// Inside a structure it would make the numbers beside it jump too.
			return &Part == Type;
		}
		if (const FNumericProperty* Number = CastField<FNumericProperty>(&Part); Number && Number->IsFloatingPoint())
		{
			Channels.Add({ Number, PartOffset });
			return true;
		}
		const FStructProperty* Whole = CastField<FStructProperty>(&Part);
		if (!Whole)
		{
			return false;
		}
		for (TFieldIterator<FProperty> It(Whole->Struct); It; ++It)
		{
			const bool bOfRule = IsSlateColor(Part) && FindEnumNumber(**It);
			if (!bOfRule && !FindChannels(**It, PartOffset + It->GetOffset_ForInternal()))
			{
				return false;
			}
		}
		return true;
	}

	FPropertyValue FAnimatedProperty::CopyValue() const
	{
		const UObject* Holder = Object.Get();
		check(Holder);
		FPropertyValue Copy(*Type);
		Type->CopyCompleteValue(Copy.Get(), Member->ContainerPtrToValuePtr<uint8>(Holder) + Offset);
		return Copy;
	}

	void FAnimatedProperty::ReadChannels(const void* Value, TArrayView<double> OutChannels) const
	{
		for (int32 Index = 0; Index < Channels.Num(); ++Index)
		{
			const FChannel& Channel = Channels[Index];
			const void* Place = static_cast<const uint8*>(Value) + Channel.Offset;
			OutChannels[Index] = bGradual ? Channel.Number->GetFloatingPointPropertyValue(Place) : static_cast<double>(Channel.Number->GetSignedIntPropertyValue(Place));
		}
	}

	void FAnimatedProperty::WriteChannels(void* Value, TConstArrayView<double> Values) const
	{
		for (int32 Index = 0; Index < Channels.Num(); ++Index)
		{
			const FChannel& Channel = Channels[Index];
			void* Place = static_cast<uint8*>(Value) + Channel.Offset;
			if (bGradual)
			{
				Channel.Number->SetFloatingPointPropertyValue(Place, Values[Index]);
			}
			else
			{
				Channel.Number->SetIntPropertyValue(Place, static_cast<int64>(Values[Index]));
			}
		}
		if (IsSlateColor(*Type))
		{
			// A colour that came from the style is the animated one from now on.
			FSlateColor& Color = *static_cast<FSlateColor*>(Value);
			Color = FSlateColor(Color.GetSpecifiedColor());
		}
	}
}
