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
}
