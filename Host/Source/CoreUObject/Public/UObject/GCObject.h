#pragma once

#include "UObject/ReferenceCollector.h"

/** Base for objects without reflection that keep reflected ones alive. */
class COREUOBJECT_API FGCObject
{
public:
	FGCObject();
	/** A copy reports its references itself. */
	FGCObject(const FGCObject&);
	FGCObject& operator=(const FGCObject&) { return *this; }
	virtual ~FGCObject();

	/** Hands each reference held to the collector. Must not make objects. */
	virtual void AddReferencedObjects(FReferenceCollector& Collector) = 0;

	/** Names the holder in messages about what keeps objects alive. */
	virtual FString GetReferencerName() const = 0;

private:
	/** Place in the list of all holders. */
	int32 Index;
};
