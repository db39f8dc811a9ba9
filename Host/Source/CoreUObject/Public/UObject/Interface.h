#pragma once

#include "UObject/Object.h"

/** Base of the U halves of interfaces, which carry the reflection of the I halves. */
class COREUOBJECT_API UInterface : public UObject
{
	HOST_INTRINSIC_CLASS(UInterface, UObject)

public:
	UInterface() = default;
	UInterface(const FObjectInitializer& ObjectInitializer) : UObject(ObjectInitializer) {}
};

/** Root of the I halves of interfaces. */
class COREUOBJECT_API IInterface
{
public:
	typedef UInterface UClassType;

protected:
	virtual ~IInterface() = default;
};
