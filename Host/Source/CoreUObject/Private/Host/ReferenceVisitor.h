#pragma once

#include "UObject/UnrealType.h"

namespace Host
{
	/** Is shown the references in reflected values, and may change them. */
	class FReferenceVisitor
	{
	public:
		virtual ~FReferenceVisitor() = default;

		/** A reference that keeps its object alive. bOwned tells that the property is marked Instanced. Returns what it shall refer to. */
		virtual UObject* VisitStrong(UObject* Object, bool bOwned) = 0;
		/** A weak reference or a delegate's target. */
		virtual UObject* VisitWeak(UObject* Object) = 0;
	};

	/** Shows the visitor all references in the reflected members of a structure or object. */
	void VisitReferences(const UStruct* Struct, void* Container, FReferenceVisitor& Visitor);

	/** Shows the visitor the references in one value. */
	void VisitReferences(const FProperty* Property, void* Value, bool bOwned, FReferenceVisitor& Visitor);
}
