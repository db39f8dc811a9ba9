#pragma once

#include "CoreMinimal.h"

class FProperty;
class UStruct;

namespace Host
{
	/**
	 * A property's EditCondition: an expression over the members beside it, with the operators ==, !=, <, >, <=, >=, !, &&, ||
	 * and parentheses; operands are boolean, number and enumeration members by name, enumerators "EMode::Off", numbers, true and
	 * false.
	 */
	class COREUOBJECT_API FEditCondition
	{
	public:
		/**
		 * The value of an expression for the members of a structure or object. False, with the reason, when it cannot be
		 * evaluated.
		 */
		static bool Evaluate(const FString& Expression, const UStruct* Struct, const void* Container, bool& bOutValue, FString& OutReason);

		/** Whether the property's own condition holds; a property without one, or with one that cannot be evaluated, is editable. */
		static bool Holds(const FProperty* Property, const UStruct* Struct, const void* Container);
	};
}
