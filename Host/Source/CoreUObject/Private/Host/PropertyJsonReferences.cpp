#include "Host/PropertyJsonReader.h"

#include "UObject/UObjectGlobals.h"

namespace Host
{
	UObject* FPropertyJsonReader::LoadReference(const FJsonNode& Node, const FString& ReferencePath)
	{
		const bool bName = ReferencePath.Len() < NAME_SIZE && !ReferencePath.Contains(TEXT("/")) && !ReferencePath.Contains(TEXT("."));
		UObject* Object = bName && Owner && Owner->GetOuter() ? StaticFindObjectFast(nullptr, Owner->GetOuter(), FName(ReferencePath)) : nullptr;
		if (!Object)
		{
			Object = StaticLoadObject(UObject::StaticClass(), nullptr, *ReferencePath, nullptr, LOAD_Quiet);
		}
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
