#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"
#include "UObject/UObjectGlobals.h"
#include "ObjectTestEvents.generated.h"

DECLARE_DYNAMIC_MULTICAST_DELEGATE(FObjectTestSimpleEvent);
DECLARE_DYNAMIC_MULTICAST_DELEGATE_OneParam(FObjectTestNumberEvent, int32, Number);
DECLARE_DYNAMIC_MULTICAST_DELEGATE_FourParams(FObjectTestMixedEvent, bool, bFlag, const FString&, Text, uint8, Small, UObject*, Object);
DECLARE_DYNAMIC_DELEGATE_RetVal_TwoParams(int32, FObjectTestSum, int32, A, int32, B);
DECLARE_DYNAMIC_DELEGATE_OneParam(FObjectTestFill, TArray<int32>&, OutNumbers);

/** Raises events. */
UCLASS()
class COREUOBJECTTESTTYPES_API UObjectTestSource : public UObject
{
	GENERATED_BODY()

public:
	UPROPERTY(BlueprintAssignable, Category="Test")
	FObjectTestSimpleEvent OnSimple;

	UPROPERTY(BlueprintAssignable, Category="Test")
	FObjectTestNumberEvent OnNumber;

	UPROPERTY(BlueprintAssignable, Category="Test")
	FObjectTestMixedEvent OnMixed;

	UPROPERTY()
	FObjectTestSum Sum;

	UPROPERTY()
	FObjectTestFill Fill;
};

/** Listens to events and keeps a log of the calls, shared by all listeners. */
UCLASS()
class COREUOBJECTTESTTYPES_API UObjectTestListener : public UObject
{
	GENERATED_BODY()

public:
	static TArray<FString> Calls;

	/** What a call to OnUnbindOther unbinds, and OnBindOther binds. */
	UPROPERTY()
	TObjectPtr<UObjectTestListener> Other;
	UPROPERTY()
	TObjectPtr<UObjectTestSource> Source;

	UFUNCTION()
	void OnSimple();
	UFUNCTION()
	void OnSecond();
	UFUNCTION()
	void OnUnbindOther();
	UFUNCTION()
	void OnBindOther();
	UFUNCTION()
	void OnClearSource();
	UFUNCTION()
	void OnNumber(int32 Number);
	UFUNCTION()
	void OnMixed(bool bFlag, const FString& Text, uint8 Small, UObject* Object);
	UFUNCTION()
	int32 Add(int32 A, int32 B);
	UFUNCTION()
	void FillNumbers(TArray<int32>& OutNumbers);

	/** No UFUNCTION: cannot be bound by name. */
	void NotReflected();
};

UCLASS()
class COREUOBJECTTESTTYPES_API UObjectTestDerivedListener : public UObjectTestListener
{
	GENERATED_BODY()
};
