#pragma once

#include "UObject/Object.h"

/** Outermost object: the types of a native module ("/Script/Module"), the objects of one asset, or the transient ones. */
class COREUOBJECT_API UPackage : public UObject
{
	HOST_INTRINSIC_CLASS(UPackage, UObject)

public:
	UPackage() = default;
	UPackage(const FObjectInitializer& ObjectInitializer) : UObject(ObjectInitializer) {}
	UPackage(EStaticConstructor, EObjectFlags InFlags) : UObject(EC_StaticConstructor, InFlags) {}

	/** File that the package's objects were loaded from; empty for all but assets. */
	const FString& GetLoadedPath() const { return LoadedPath; }
	void SetLoadedPath(const FString& InLoadedPath) { LoadedPath = InLoadedPath; }

	/** True once the package's objects are complete; an asset's package is not while its loader runs. */
	bool IsFullyLoaded() const { return bFullyLoaded; }
	void MarkAsFullyLoaded() { bFullyLoaded = true; }

private:
	FString LoadedPath;
	bool bFullyLoaded = false;
};
