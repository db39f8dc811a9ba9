#pragma once

#include "CoreMinimal.h"
#include "UObject/Interface.h"
#include "UObject/ScriptInterface.h"
#include "UObject/UObjectGlobals.h"
#include "ObjectTestInterface.generated.h"

UINTERFACE(MinimalAPI)
class UObjectTestNamed : public UInterface
{
	GENERATED_BODY()
};

/** Something with a name for display. */
class COREUOBJECTTESTTYPES_API IObjectTestNamed
{
	GENERATED_BODY()

public:
	virtual FString GetDisplayName() const = 0;
};

UINTERFACE(MinimalAPI)
class UObjectTestUnused : public UInterface
{
	GENERATED_BODY()
};

/** An interface that nobody implements. */
class COREUOBJECTTESTTYPES_API IObjectTestUnused
{
	GENERATED_BODY()
};

/** Implements an interface beside members of its own, so that the I half does not stand at the start. */
UCLASS()
class COREUOBJECTTESTTYPES_API UObjectTestImplementer : public UObject, public IObjectTestNamed
{
	GENERATED_BODY()

public:
	UPROPERTY()
	int64 Padding = 0;

	virtual FString GetDisplayName() const override { return TEXT("implementer"); }
};

UCLASS()
class COREUOBJECTTESTTYPES_API UObjectTestDerivedImplementer : public UObjectTestImplementer
{
	GENERATED_BODY()

public:
	virtual FString GetDisplayName() const override { return TEXT("derived"); }
};

UCLASS()
class COREUOBJECTTESTTYPES_API UObjectTestInterfaceHolder : public UObject
{
	GENERATED_BODY()

public:
	UPROPERTY()
	TScriptInterface<IObjectTestNamed> Named;
};
