#include "Host/PropertyJsonReader.h"

#include "Host/LooseValue.h"
#include "Misc/StringOutputDevice.h"
#include "Templates/Casts.h"
#include "UObject/UObjectGlobals.h"

namespace Host
{
	/** Extends the way to the value for as long as it lives. */
	class FPropertyJsonReader::FScope
	{
	public:
		FScope(FPropertyJsonReader& InReader, const FString& Part) : Path(InReader.Path), OldLength(Path.Len())
		{
			if (!Path.IsEmpty() && !Part.StartsWith(TEXT("[")))
			{
				Path.AppendChar(TEXT('.'));
			}
			Path += Part;
		}
		FScope(FPropertyJsonReader& InReader, int32 Index) : FScope(InReader, FString::Printf(TEXT("[%d]"), Index)) {}
		FScope(const FScope&) = delete;
		FScope& operator=(const FScope&) = delete;
		~FScope() { Path.LeftInline(OldLength); }

	private:
		FString& Path;
		int32 OldLength;
	};

	bool FPropertyJsonReader::Fail(const FJsonNode& Node, const FString& What)
	{
		++NumMessages;
		Report(FString::Printf(TEXT("%s: property '%s': %s"), *Node.Where(), *Path, *What));
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
		const FString Similar = FindSimilarName(FString(Node.GetKey()), Names);
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

	bool FPropertyJsonReader::ReadArray(const FJsonNode& Node, const FArrayProperty& Property, void* Value)
	{
		if (!Node.IsArray())
		{
			return FailExpected(Node, TEXT("an array"));
		}
		const FScriptArrayHelper Array(&Property, Value);
		Array.EmptyAndAddValues(Node.Num());
		bool bAll = true;
		int32 Index = 0;
		for (const FJsonNode Element : Node)
		{
			const FScope Scope(*this, Index);
			bAll &= ReadElement(Element, *Property.Inner, Array.GetRawPtr(Index));
			++Index;
		}
		return bAll;
	}

	bool FPropertyJsonReader::ReadSet(const FJsonNode& Node, const FSetProperty& Property, void* Value)
	{
		if (!Node.IsArray())
		{
			return FailExpected(Node, TEXT("an array"));
		}
		const FScriptSetHelper Set(&Property, Value);
		Set.EmptyElements(Node.Num());
		bool bAll = true;
		int32 Index = 0;
		for (const FJsonNode Child : Node)
		{
			const FScope Scope(*this, Index++);
			const FLooseValue Element(*Property.ElementProp);
			if (!ReadElement(Child, *Property.ElementProp, Element.Get()))
			{
				bAll = false;
				continue;
			}
			Set.AddElement(Element.Get());
		}
		return bAll;
	}

	bool FPropertyJsonReader::ReadPair(const FJsonNode& Node, const FMapProperty& Property, void* Key, void* Value)
	{
		if (!Node.IsArray() || Node.Num() != 2)
		{
			return FailExpected(Node, TEXT("a pair [key, value]"));
		}
		return ReadElement(Node.At(0), *Property.KeyProp, Key) && ReadElement(Node.At(1), *Property.ValueProp, Value);
	}

	bool FPropertyJsonReader::ReadMap(const FJsonNode& Node, const FMapProperty& Property, void* Value)
	{
		if (!Node.IsArray() && !Node.IsObject())
		{
			return FailExpected(Node, TEXT("an array of pairs or an object"));
		}
		const FScriptMapHelper Map(&Property, Value);
		Map.EmptyValues(Node.Num());
		bool bAll = true;
		int32 Index = 0;
		for (const FJsonNode Child : Node)
		{
			const FLooseValue Key(*Property.KeyProp);
			const FLooseValue Element(*Property.ValueProp);
			bool bRead = false;
			if (Node.IsArray())
			{
				const FScope Scope(*this, Index);
				bRead = ReadPair(Child, Property, Key.Get(), Element.Get());
			}
			else
			{
				const FScope Scope(*this, FString::Printf(TEXT("[%s]"), *FString(Child.GetKey())));
				FStringOutputDevice Why;
				const FString KeyText(Child.GetKey());
				const TCHAR* End = Property.KeyProp->ImportText_Direct(*KeyText, Key.Get(), Owner, PPF_None, &Why);
				bRead = End ? ReadElement(Child, *Property.ValueProp, Element.Get())
					: Fail(Child, FString::Printf(TEXT("expected %s as key, found \"%s\""), *Property.KeyProp->GetCPPType(), *KeyText));
			}
			++Index;
			if (bRead)
			{
				Map.AddPair(Key.Get(), Element.Get());
			}
			bAll &= bRead;
		}
		return bAll;
	}

	UObject* FPropertyJsonReader::LoadReference(const FJsonNode& Node, const FString& ReferencePath)
	{
		UObject* Object = StaticLoadObject(UObject::StaticClass(), nullptr, *ReferencePath, nullptr, LOAD_Quiet);
		if (!Object)
		{
			Fail(Node, FString::Printf(TEXT("there is no object %s"), *ReferencePath));
		}
		return Object;
	}

	bool FPropertyJsonReader::ReadObject(const FJsonNode& Node, const FObjectPropertyBase& Property, void* Value)
	{
		if (Node.IsObject())
		{
			return ReadInstanced(Node, Property, Value);
		}
		FString ReferencePath;
		const bool bString = Node.TryGetString(ReferencePath);
		if (Node.IsNull() || (bString && (ReferencePath.IsEmpty() || ReferencePath == TEXT("None"))))
		{
			Property.SetObjectPropertyValue(Value, nullptr);
			return true;
		}
		if (!bString)
		{
			return FailExpected(Node, TEXT("the path of an object, or null"));
		}
		UObject* Object = LoadReference(Node, ReferencePath);
		if (!Object)
		{
			return false;
		}
		if (!Property.CanHold(Object))
		{
			return Fail(Node, FString::Printf(TEXT("expected %s, found %s"), *Property.GetCPPType(), *Object->GetFullName()));
		}
		Property.SetObjectPropertyValue(Value, Object);
		return true;
	}

	bool FPropertyJsonReader::ReadInstanced(const FJsonNode& Node, const FObjectPropertyBase& Property, void* Value)
	{
		const FJsonNode ClassNode = Node.Find(TEXT("Class"));
		UObject* Object = Property.GetObjectPropertyValue(Value);
		UClass* Class = Object ? Object->GetClass() : nullptr;
		FString Text;
		if (ClassNode)
		{
			if (!ClassNode.TryGetString(Text))
			{
				return FailExpected(ClassNode, TEXT("the path of a class"));
			}
			Class = StaticLoadClass(UObject::StaticClass(), nullptr, *Text, nullptr, LOAD_Quiet);
			if (!Class || Class->HasAnyClassFlags(CLASS_Abstract) || !Class->IsChildOf(Property.PropertyClass))
			{
				return Fail(ClassNode, FString::Printf(TEXT("%s is no class of which a %s can be made"), *Text, *Property.PropertyClass->GetName()));
			}
		}
		if (!Class)
		{
			return Fail(Node, TEXT("expected \"Class\", as there is no object yet"));
		}
		if (!Object || Object->GetClass() != Class || !Object->IsIn(Owner))
		{
			if (!Owner)
			{
				return Fail(Node, TEXT("there is nothing that could own the object"));
			}
			FString Name;
			Node.Find(TEXT("Name")).TryGetString(Name);
			if (Name.Len() >= NAME_SIZE)
			{
				return Fail(Node.Find(TEXT("Name")), FString::Printf(TEXT("a name has at most %d characters"), NAME_SIZE - 1));
			}
			const bool bTaken = Name.IsEmpty() || StaticFindObjectFast(nullptr, Owner, FName(Name));
			Object = NewObject<UObject>(Owner, Class, bTaken ? MakeUniqueObjectName(Owner, Class) : FName(Name),
				Owner->GetMaskedFlags(RF_Public | RF_ArchetypeObject | RF_Transactional | RF_Transient));
			Property.SetObjectPropertyValue(Value, Object);
		}
		const FJsonNode Properties = Node.Find(TEXT("Properties"));
		if (!Properties)
		{
			return true;
		}
		UObject* OuterOwner = Owner;
		Owner = Object;
		const bool bRead = ReadMembers(Properties, Class, Object);
		Owner = OuterOwner;
		return bRead;
	}

	bool FPropertyJsonReader::ReadSoft(const FJsonNode& Node, const FSoftObjectProperty&, void* Value)
	{
		FString ReferencePath;
		if (!Node.IsNull() && !Node.TryGetString(ReferencePath))
		{
			return FailExpected(Node, TEXT("the path of an object, or null"));
		}
		*static_cast<FSoftObjectPtr*>(Value) = FSoftObjectPath(ReferencePath);
		return true;
	}

	bool FPropertyJsonReader::ReadInterface(const FJsonNode& Node, const FInterfaceProperty& Property, void* Value)
	{
		FString ReferencePath;
		if (Node.IsNull())
		{
			Property.SetInterfaceObject(Value, nullptr);
			return true;
		}
		if (!Node.TryGetString(ReferencePath))
		{
			return FailExpected(Node, TEXT("the path of an object, or null"));
		}
		UObject* Object = LoadReference(Node, ReferencePath);
		if (Object && !Property.SetInterfaceObject(Value, Object))
		{
			return Fail(Node, FString::Printf(TEXT("%s does not implement %s"), *Object->GetFullName(), *Property.InterfaceClass->GetName()));
		}
		return Object != nullptr;
	}
}
