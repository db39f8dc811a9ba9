#pragma once

#include "Containers/Array.h"
#include "Host/ObjectArray.h"
#include "Host/ReferenceSchema.h"
#include "UObject/ReferenceCollector.h"

namespace Host
{
	/** Finds all objects that the ones given lead to. Works off a list of its own, so that long chains cost no stack. */
	class FReferenceMarker final : public FReferenceCollector
	{
	public:
		/** Reaches an object that nothing declared dead may hold back: an outer, a class, a root. */
		void Reach(UObject* Object);

		/** Reaches a root whose flags say already that it is reached. */
		void Push(UObject* Object) { Pending.Add(Object); }

		/** Follows the references of all objects reached, and of those that they lead to. */
		void FollowAll();

		int32 NumReached() const { return Reached; }

	protected:
		/** Reaches what a reference leads to; clears one to an object declared dead. */
		virtual void HandleObjectReference(UObject*& Object) override;

	private:
		void Follow(UObject* Object);

		FObjectArray& Objects = FObjectArray::Get();
		FReferenceSchemas& Schemas = FReferenceSchemas::Get();
		TArray<UObject*> Pending;
		int32 Reached = 0;
	};
}
