#include "Host/PropertyJsonReader.h"

#include "Host/LooseValue.h"
#include "Misc/StringOutputDevice.h"

namespace Host
{
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

	bool FPropertyJsonReader::ReadKeyOfPair(const FJsonNode& Node, const FMapProperty& Property, void* Key)
	{
		if (!Node.IsArray() || Node.Num() != 2)
		{
			return FailExpected(Node, TEXT("a pair [key, value]"));
		}
		return ReadElement(Node.At(0), *Property.KeyProp, Key);
	}

	bool FPropertyJsonReader::ReadKeyOfMember(const FJsonNode& Node, const FMapProperty& Property, void* Key)
	{
		FStringOutputDevice Why;
		const FString Text(Node.GetKey());
		const bool bRead = Property.KeyProp->ImportText_Direct(*Text, Key, Owner, PPF_None, &Why) != nullptr;
		return bRead || Fail(Node, FString::Printf(TEXT("expected %s as key, found \"%s\""), *Property.KeyProp->GetCPPType(), *Text));
	}

	bool FPropertyJsonReader::ReadMap(const FJsonNode& Node, const FMapProperty& Property, void* Value)
	{
		if (!Node.IsArray() && !Node.IsObject())
		{
			return FailExpected(Node, TEXT("an array of pairs or an object"));
		}
		const FScriptMapHelper Map(&Property, Value);
		Map.EmptyValues(Node.Num());
		const bool bPairs = Node.IsArray();
		bool bAll = true;
		int32 Index = 0;
		for (const FJsonNode Child : Node)
		{
			const FScope Scope(*this, bPairs ? FString::Printf(TEXT("[%d]"), Index++) : FString::Printf(TEXT("[%s]"), *FString(Child.GetKey())));
			const FLooseValue Key(*Property.KeyProp);
			if (!(bPairs ? ReadKeyOfPair(Child, Property, Key.Get()) : ReadKeyOfMember(Child, Property, Key.Get())))
			{
				bAll = false;
				continue;
			}
			const FJsonNode ElementNode = bPairs ? Child.At(1) : Child;
			const FLooseValue Element(*Property.ValueProp);
			const bool bRead = ReadElement(ElementNode, *Property.ValueProp, Element.Get());
			// A structure is of use without those of its members that could not be read.
			if (bRead || (ElementNode.IsObject() && Property.ValueProp->IsA<FStructProperty>()))
			{
				Map.AddPair(Key.Get(), Element.Get());
			}
			bAll &= bRead;
		}
		return bAll;
	}
}
