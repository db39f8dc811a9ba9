#pragma once

class UClass;
class UEnum;
class UFunction;
class UScriptStruct;

/** The description of a class, structure or enumeration; works with a forward declaration. The generated code defines them. */
template<typename TClass>
UClass* StaticClass();

template<typename TStruct>
UScriptStruct* StaticStruct();

template<typename TEnum>
UEnum* StaticEnum();

namespace Host
{
	/** The signature function of a dynamic delegate type. The generated code defines it. */
	template<typename TDelegate>
	UFunction* StaticSignature();
}
