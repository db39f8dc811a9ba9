#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"
#include "UObject/UObjectGlobals.h"
#include "ObjectTestOwner.generated.h"

/** A sub-object with a value. */
UCLASS(DefaultToInstanced, EditInlineNew)
class COREUOBJECTTESTTYPES_API UObjectTestPart : public UObject
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, Category="Test")
	int32 Amount = 1;

	UPROPERTY(EditAnywhere, Category="Test")
	TObjectPtr<UObjectTestPart> Peer;
};

UCLASS()
class COREUOBJECTTESTTYPES_API UObjectTestOtherPart : public UObjectTestPart
{
	GENERATED_BODY()
};

/** An object whose constructor makes sub-objects. */
UCLASS()
class COREUOBJECTTESTTYPES_API UObjectTestOwner : public UObject
{
	GENERATED_BODY()

public:
	UObjectTestOwner(const FObjectInitializer& ObjectInitializer);

	UPROPERTY(EditAnywhere, Category="Test")
	TObjectPtr<UObjectTestPart> Part;

	UPROPERTY(EditAnywhere, Category="Test")
	TObjectPtr<UObjectTestPart> Optional;

	/** Objects that belong to the owner though its constructor does not make them. */
	UPROPERTY(EditAnywhere, Instanced, Category="Test")
	TArray<TObjectPtr<UObjectTestPart>> Extras;

	/** Objects that belong to nobody in particular. */
	UPROPERTY(EditAnywhere, Category="Test")
	TObjectPtr<UObject> Shared;

	UPROPERTY(EditAnywhere, Category="Test")
	int32 Number = 7;

	UPROPERTY(EditAnywhere, Transient, Category="Test")
	int32 Scratch = 3;

	/** Order of what happened to the object. */
	TArray<FString> Events;

	/** Value of Number when PostInitProperties ran. */
	int32 NumberAtInit = 0;

	virtual void PostInitProperties() override;
	virtual void PostLoad() override;
	virtual void PostDuplicate(bool bDuplicateForPIE) override;
};

/** Replaces the class of one sub-object and leaves out the other. */
UCLASS()
class COREUOBJECTTESTTYPES_API UObjectTestSpecialOwner : public UObjectTestOwner
{
	GENERATED_BODY()

public:
	UObjectTestSpecialOwner(const FObjectInitializer& ObjectInitializer);
};

/** Has a constructor without parameters under a base whose constructor takes the initialiser. */
UCLASS()
class COREUOBJECTTESTTYPES_API UObjectTestPlainPart : public UObjectTestPart
{
	GENERATED_BODY()

public:
	UObjectTestPlainPart() { Amount = 5; }
};
