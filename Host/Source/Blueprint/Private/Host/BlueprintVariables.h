#pragma once

#include "CoreMinimal.h"

class FProperty;
class UClass;
class UObject;

namespace Host
{
	class FJsonNode;

	/** The property of that name of a class that may not be linked yet, or of one that it derives from; null when there is none. */
	const FProperty* FindVariable(const UClass& Class, FName Name);

	/**
	 * Adds the variables of a blueprint as properties of its class: {name: {"Type": type, "Default": value, "Category": text}}.
	 * A type is bool, int, int64, float, double, string, name or text; the path of a structure, an enumeration or a class; or
	 * one of these in [] for an array.
	 */
	void AddBlueprintVariables(UClass& Class, const FJsonNode& Variables);

	/** Reads the variables' defaults into the class default object. */
	void ReadVariableDefaults(const UClass& Class, const FJsonNode& Variables, UObject& Defaults);
}
