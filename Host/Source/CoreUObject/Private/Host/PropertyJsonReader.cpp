#include "Host/PropertyJsonReader.h"

#include "Host/LooseValue.h"
#include "Host/NearestText.h"
#include "Misc/StringOutputDevice.h"

namespace Host
{
	bool FPropertyJsonReader::Fail(const FJsonNode& Node, const FString& What)
	{
		++NumMessages;
		// A value that is read on its own is no property of anything.
		Report(Path.IsEmpty() ? FString::Printf(TEXT("%s: %s"), *Node.Where(), *What) : FString::Printf(TEXT("%s: property '%s': %s"), *Node.Where(), *Path, *What));
		return false;
	}

	bool FPropertyJsonReader::FailExpected(const FJsonNode& Node, const TCHAR* Expected)
	{
		FString Found = DescribeJsonKind(Node.GetKind());
		if (Node.IsString())
		{
			Found = FString::Printf(TEXT("the string \"%s\""), *FString(Node.GetString()));
		}
		return Fail(Node, FString::Printf(TEXT("expected %s, found %s"), Expected, *Found));
	}

	void FPropertyJsonReader::ReportUnknown(const FJsonNode& Node, const UStruct& Struct)
	{
		TArray<FString> Names;
		for (TFieldIterator<FProperty> It(&Struct); It; ++It)
		{
			if (FPropertyJson::IsStored(*It))
			{
				Names.Add(It->GetName());
			}
		}
		const FString Unknown(Node.GetKey());
		const FString Similar = FindNearest(Unknown, Names, FMath::Max(1, Unknown.Len() / 4));
		Fail(Node, FString::Printf(TEXT("%s has no such property%s%s%s"), *Struct.GetName(),
			Similar.IsEmpty() ? TEXT("") : TEXT("; is '"), *Similar, Similar.IsEmpty() ? TEXT("") : TEXT("' meant?")));
	}

	bool FPropertyJsonReader::ReadMembers(const FJsonNode& Node, const UStruct* Struct, void* Value)
	{
		if (!Node.IsObject())
		{
			return FailExpected(Node, TEXT("an object"));
		}
		bool bAll = true;
		for (const FJsonNode Member : Node)
		{
			const FScope Scope(*this, FString(Member.GetKey()));
			const FProperty* Property = FindFProperty<FProperty>(Struct, Member.GetKey().GetData());
			if (!Property)
			{
				ReportUnknown(Member, *Struct);
				bAll = false;
				continue;
			}
			if (!FPropertyJson::IsStored(Property))
			{
				bAll = Fail(Member, TEXT("its value cannot be stored"));
				continue;
			}
			bAll &= ReadProperty(Member, *Property, Property->ContainerPtrToValuePtr<void>(Value));
		}
		return bAll;
	}

	bool FPropertyJsonReader::ReadProperty(const FJsonNode& Node, const FProperty& Property, void* Value)
	{
		return Property.ArrayDim > 1 ? ReadCArray(Node, Property, Value) : ReadElement(Node, Property, Value);
	}

	bool FPropertyJsonReader::ReadCArray(const FJsonNode& Node, const FProperty& Property, void* Value)
	{
		if (!Node.IsArray())
		{
			return FailExpected(Node, TEXT("an array"));
		}
		if (Node.Num() > Property.ArrayDim)
		{
			return Fail(Node, FString::Printf(TEXT("expected at most %d elements, found %d"), Property.ArrayDim, Node.Num()));
		}
		bool bAll = true;
		int32 Index = 0;
		for (const FJsonNode Element : Node)
		{
			const FScope Scope(*this, Index);
			bAll &= ReadElement(Element, Property, static_cast<uint8*>(Value) + Property.ElementSize * Index);
			++Index;
		}
		return bAll;
	}

	bool FPropertyJsonReader::ReadElement(const FJsonNode& Node, const FProperty& Property, void* Value)
	{
		if (const FBoolProperty* Bool = CastField<FBoolProperty>(&Property))
		{
			return ReadBool(Node, *Bool, Value);
		}
		if (const FEnumProperty* Enum = CastField<FEnumProperty>(&Property))
		{
			return ReadEnum(Node, *Enum->GetEnum(), *Enum->GetUnderlyingProperty(), Value);
		}
		if (const FNumericProperty* Number = CastField<FNumericProperty>(&Property))
		{
			const UEnum* Enum = Number->GetIntPropertyEnum();
			return Enum ? ReadEnum(Node, *Enum, *Number, Value) : ReadNumber(Node, *Number, Value);
		}
		if (const FTextProperty* Text = CastField<FTextProperty>(&Property))
		{
			return ReadText(Node, *Text, Value);
		}
		if (const FStructProperty* Struct = CastField<FStructProperty>(&Property))
		{
			return ReadStruct(Node, *Struct, Value);
		}
		if (const FArrayProperty* Array = CastField<FArrayProperty>(&Property))
		{
			return ReadArray(Node, *Array, Value);
		}
		if (const FMapProperty* Map = CastField<FMapProperty>(&Property))
		{
			return ReadMap(Node, *Map, Value);
		}
		if (const FSetProperty* Set = CastField<FSetProperty>(&Property))
		{
			return ReadSet(Node, *Set, Value);
		}
		if (const FSoftObjectProperty* Soft = CastField<FSoftObjectProperty>(&Property))
		{
			return ReadSoft(Node, *Soft, Value);
		}
		if (const FObjectPropertyBase* Object = CastField<FObjectPropertyBase>(&Property))
		{
			return ReadObject(Node, *Object, Value);
		}
		if (const FInterfaceProperty* Interface = CastField<FInterfaceProperty>(&Property))
		{
			return ReadInterface(Node, *Interface, Value);
		}
		if (Property.IsA<FStrProperty>() || Property.IsA<FNameProperty>())
		{
			FString String;
			if (!Node.TryGetString(String))
			{
				return FailExpected(Node, TEXT("a string"));
			}
			if (const FNameProperty* Name = CastField<FNameProperty>(&Property))
			{
				if (String.Len() >= NAME_SIZE)
				{
					return Fail(Node, FString::Printf(TEXT("a name has at most %d characters"), NAME_SIZE - 1));
				}
				Name->SetPropertyValue(Value, FName(String));
			}
			else
			{
				FStrProperty::SetPropertyValue(Value, String);
			}
			return true;
		}
		return Fail(Node, FString::Printf(TEXT("a %s cannot be stored"), *Property.GetCPPType()));
	}

	bool FPropertyJsonReader::ReadBool(const FJsonNode& Node, const FBoolProperty& Property, void* Value)
	{
		bool bValue = false;
		if (!Node.TryGetBool(bValue))
		{
			return FailExpected(Node, TEXT("true or false"));
		}
		Property.SetPropertyValue(Value, bValue);
		return true;
	}

	bool FPropertyJsonReader::ReadNumber(const FJsonNode& Node, const FNumericProperty& Property, void* Value)
	{
		double Number = 0.0;
		if (!Node.TryGetNumber(Number))
		{
			return FailExpected(Node, Property.IsInteger() ? TEXT("a whole number") : TEXT("a number"));
		}
		if (Number < Property.GetMinValue() || Number > Property.GetMaxValue())
		{
			return Fail(Node, FString::Printf(TEXT("%s does not fit into %s"), *FString::SanitizeFloat(Number), *Property.GetCPPType()));
		}
		if (!Property.IsInteger())
		{
			Property.SetFloatingPointPropertyValue(Value, Number);
			return true;
		}
		int64 Signed = 0;
		uint64 Unsigned = 0;
		if (Node.TryGetInteger(Signed))
		{
			Property.SetIntPropertyValue(Value, Signed);
			return true;
		}
		if (Property.IsA<FUInt64Property>() && Node.TryGetUnsigned(Unsigned))
		{
			FUInt64Property::SetPropertyValue(Value, Unsigned);
			return true;
		}
		return Fail(Node, FString::Printf(TEXT("expected a whole number, found %s"), *FString::SanitizeFloat(Number)));
	}

	bool FPropertyJsonReader::ReadEnum(const FJsonNode& Node, const UEnum& Enum, const FNumericProperty& Underlying, void* Value)
	{
		FString Text;
		if (!Node.TryGetString(Text))
		{
			return FailExpected(Node, *FString::Printf(TEXT("the name of a %s"), *Enum.GetName()));
		}
		TArray<FString> Parts;
		Text.ParseIntoArray(Parts, TEXT("|"));
		const bool bSeveral = Parts.Num() > 1;
		int64 Result = 0;
		for (const FString& Part : Parts)
		{
			const FString Name = Part.TrimStartAndEnd();
			const int32 Index = Enum.GetIndexByNameString(Name);
			if (Index == INDEX_NONE || (bSeveral && !Enum.HasAnyEnumFlags(EEnumFlags::Flags)))
			{
				TArray<FString> Names;
				for (int32 Enumerator = 0; Enumerator < Enum.NumEnums() - (Enum.ContainsExistingMax() ? 1 : 0); ++Enumerator)
				{
					Names.Add(Enum.GetNameStringByIndex(Enumerator));
				}
				return Fail(Node, FString::Printf(TEXT("expected a %s (%s), found \"%s\""), *Enum.GetName(),
					*FString::Join(Names, TEXT(", ")), *Text));
			}
			Result |= Enum.GetValueByIndex(Index);
		}
		if (Parts.Num() == 0 && !Enum.HasAnyEnumFlags(EEnumFlags::Flags))
		{
			return FailExpected(Node, *FString::Printf(TEXT("the name of a %s"), *Enum.GetName()));
		}
		Underlying.SetIntPropertyValue(Value, Result);
		return true;
	}

	bool FPropertyJsonReader::ReadText(const FJsonNode& Node, const FTextProperty& Property, void* Value)
	{
		FString String;
		if (!Node.TryGetString(String))
		{
			return FailExpected(Node, TEXT("a string"));
		}
		const FStringView Macros[] = { TEXT("NSLOCTEXT("), TEXT("LOCTEXT("), TEXT("INVTEXT(") };
		for (const FStringView Macro : Macros)
		{
			if (String.StartsWith(Macro, ESearchCase::CaseSensitive))
			{
				return ReadAsText(Node, Property, Value);
			}
		}
		FTextProperty::SetPropertyValue(Value, FText::FromString(String));
		return true;
	}

	bool FPropertyJsonReader::ReadAsText(const FJsonNode& Node, const FProperty& Property, void* Value)
	{
		FString Text;
		if (!Node.TryGetString(Text))
		{
			return FailExpected(Node, TEXT("a string"));
		}
		// Text forms may fail half way; the value changes only when all of it was read.
		const FLooseValue Copy(Property, Value);
		FStringOutputDevice Why;
		const TCHAR* End = Property.ImportText_Direct(*Text, Copy.Get(), Owner, PPF_None, &Why);
		if (!End || !FString(End).TrimStartAndEnd().IsEmpty())
		{
			Why.TrimStartAndEndInline();
			return Fail(Node, FString::Printf(TEXT("expected %s as text, found \"%s\"%s%s"), *Property.GetCPPType(), *Text,
				Why.IsEmpty() ? TEXT("") : TEXT(": "), *Why));
		}
		Property.CopySingleValue(Value, Copy.Get());
		return true;
	}

	bool FPropertyJsonReader::ReadStruct(const FJsonNode& Node, const FStructProperty& Property, void* Value)
	{
		const UScriptStruct& Struct = *Property.Struct;
		if (const FPropertyJson::FStructReader Reader = FindStructReader(Struct))
		{
			if (Reader(Node, &Struct, Value))
			{
				return true;
			}
		}
		if (Node.IsObject())
		{
			return ReadMembers(Node, &Struct, Value);
		}
		if (Node.IsArray())
		{
			return ReadPositional(Node, Struct, Value);
		}
		if (Node.IsString())
		{
			return ReadAsText(Node, Property, Value);
		}
		return FailExpected(Node, *FString::Printf(TEXT("an object (%s)"), *Struct.GetName()));
	}

	bool FPropertyJsonReader::ReadPositional(const FJsonNode& Node, const UScriptStruct& Struct, void* Value)
	{
		TArray<const FProperty*> Members;
		for (TFieldIterator<FProperty> It(&Struct); It; ++It)
		{
			if (!It->IsA<FNumericProperty>())
			{
				return FailExpected(Node, *FString::Printf(TEXT("an object (%s)"), *Struct.GetName()));
			}
			Members.Add(*It);
		}
		if (Node.Num() != Members.Num())
		{
			return Fail(Node, FString::Printf(TEXT("expected %d numbers (%s), found %d"), Members.Num(), *Struct.GetName(), Node.Num()));
		}
		bool bAll = true;
		int32 Index = 0;
		for (const FJsonNode Element : Node)
		{
			const FScope Scope(*this, Index);
			bAll &= ReadElement(Element, *Members[Index], Members[Index]->ContainerPtrToValuePtr<void>(Value));
			++Index;
		}
		return bAll;
	}
}
