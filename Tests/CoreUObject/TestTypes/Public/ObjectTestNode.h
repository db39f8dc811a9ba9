#pragma once

#include "CoreMinimal.h"
#include "UObject/Interface.h"
#include "UObject/Object.h"
#include "UObject/ScriptInterface.h"
#include "UObject/SoftObjectPtr.h"
#include "UObject/UObjectGlobals.h"
#include "ObjectTestNode.generated.h"

class UObjectTestNode;

/** A structure that refers to an object. */
USTRUCT()
struct COREUOBJECTTESTTYPES_API FObjectTestLink
{
	GENERATED_BODY()

	UPROPERTY()
	TObjectPtr<UObjectTestNode> Target;

	UPROPERTY()
	int32 Weight = 0;
};

/** An object that refers to others in every way that reflection knows. */
UCLASS()
class COREUOBJECTTESTTYPES_API UObjectTestNode : public UObject
{
	GENERATED_BODY()

public:
	UPROPERTY()
	TObjectPtr<UObjectTestNode> Next;

	UPROPERTY()
	UObjectTestNode* RawNext;

	UPROPERTY()
	TObjectPtr<UObjectTestNode> Fixed[3];

	UPROPERTY()
	TArray<TObjectPtr<UObjectTestNode>> Children;

	UPROPERTY()
	TMap<FName, TObjectPtr<UObjectTestNode>> Named;

	UPROPERTY()
	TMap<TObjectPtr<UObjectTestNode>, int32> Ranked;

	UPROPERTY()
	TSet<TObjectPtr<UObjectTestNode>> Unordered;

	UPROPERTY()
	FObjectTestLink Link;

	UPROPERTY()
	TArray<FObjectTestLink> Links;

	UPROPERTY()
	TWeakObjectPtr<UObjectTestNode> Weak;

	UPROPERTY()
	TSoftObjectPtr<UObjectTestNode> Soft;

	UPROPERTY(Transient)
	TObjectPtr<UObjectTestNode> TransientNext;

	UPROPERTY()
	int32 Value;

	/** No reflection: keeps nothing alive. */
	UObjectTestNode* Unreflected = nullptr;

	/** No reflection, but AddReferencedObjects knows it. */
	TObjectPtr<UObjectTestNode> Declared;

	/** Counts what happens to all objects of the class. */
	static int32 NumBeginDestroy;
	static int32 NumFinishDestroy;
	static int32 NumDestructors;
	/** While set, objects are not ready to be destroyed. */
	static bool bHoldBack;

	virtual ~UObjectTestNode() override;
	virtual void BeginDestroy() override;
	virtual bool IsReadyForFinishDestroy() override { return !bHoldBack; }
	virtual void FinishDestroy() override;

	static void AddReferencedObjects(UObject* InThis, FReferenceCollector& Collector);
};

/** A base of the test nodes that has no objects. */
UCLASS(Abstract)
class COREUOBJECTTESTTYPES_API UObjectTestAbstract : public UObject
{
	GENERATED_BODY()
};

/** A class derived from the node. */
UCLASS()
class COREUOBJECTTESTTYPES_API UObjectTestDerivedNode : public UObjectTestNode
{
	GENERATED_BODY()

public:
	UPROPERTY()
	FString Label = TEXT("derived");
};
