#pragma once

#include "CoreMinimal.h"
#include "ReflectionTestStruct.h"
#include "Templates/SubclassOf.h"
#include "UObject/Class.h"
#include "UObject/DynamicDelegates.h"
#include "ReflectionTestObject.generated.h"

class UReflectionTestForward;

DECLARE_DYNAMIC_DELEGATE_RetVal_TwoParams(bool, FReflectionTestPredicate, int32, Number, const FString&, Text);

/** A part of the program without reflection. */
class COREUOBJECTTESTTYPES_API FReflectionTestPlainBase
{
public:
	virtual ~FReflectionTestPlainBase() = default;

	int64 Plain = 11;
};

/**
 * Shows what a class can be made of.
 */
UCLASS(Blueprintable, Config = ReflectionTest, meta = (DisplayName = "Test Object"))
class COREUOBJECTTESTTYPES_API UReflectionTestObject : public UObject, public FReflectionTestPlainBase
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Object", meta = (AllowPrivateAccess = "true"))
	int32 Hidden = 1;

public:
	/** The event of the button. */
	DECLARE_DYNAMIC_MULTICAST_DELEGATE_OneParam(FNestedEvent, UReflectionTestObject*, Sender);

	UPROPERTY(BlueprintAssignable, Category = "Object")
	FNestedEvent OnNested;

	UPROPERTY()
	FReflectionTestPredicate Predicate;

	UPROPERTY()
	TObjectPtr<UReflectionTestForward> Forward;

	UPROPERTY()
	TSubclassOf<UReflectionTestObject> Class;

	UPROPERTY()
	TObjectPtr<UClass> AnyClass;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Object", meta = (ExposeOnSpawn))
	FReflectionTestStruct Struct;

	UPROPERTY(Config)
	int32 Configured = 0;

	UPROPERTY()
	FReflectionTestTree Tree;

#if WITH_EDITORONLY_DATA
	UPROPERTY()
	FString Note;
#endif

	/** Adds numbers, @return the sum. */
	UFUNCTION(BlueprintCallable, Category = "Object")
	int32 Add(int32 A, int32 B = 5) const { return A + B + Hidden; }

	UFUNCTION(BlueprintCallable, Category = "Object")
	void Describe(const FString& Prefix, FString& OutText, UPARAM(ref) int32& InOutCount, EReflectionTestPlain Plain = ERTP_Two);

	UFUNCTION(BlueprintCallable, BlueprintPure = false, Category = "Object")
	const TArray<FName>& GetNames() const { return Names; }

	UFUNCTION(BlueprintPure, Category = "Object")
	static FVector2D MakeVector(double X, double Y, FVector2D Offset = FVector2D(1.0, 2.0), const FString& Label = TEXT("a\"b"));

	UFUNCTION(BlueprintCallable, Category = "Object")
	bool Ask(FReflectionTestPredicate Question, int32 Number) { return Question.IsBound() && Question.Execute(Number, TEXT("asked")); }

	UFUNCTION()
	bool IsLong(int32 Number, const FString& Text) { return Text.Len() > Number; }

	UFUNCTION(BlueprintNativeEvent, Category = "Object")
	FString Greet(const FString& Name, FReflectionTestStruct Style, TSubclassOf<UObject> Kind) const;

	UFUNCTION(BlueprintNativeEvent, Category = "Object")
	void Count(TArray<int32>& Numbers);
	virtual void Count_Implementation(TArray<int32>& Numbers) { Numbers.Add(Numbers.Num()); }

	UFUNCTION(BlueprintImplementableEvent, Category = "Object")
	int32 Decide(int32 Number, bool& bOutCertain);

	UFUNCTION(BlueprintImplementableEvent, Category = "Object")
	void Notify();

#if WITH_EDITOR
	UFUNCTION(CallInEditor, Category = "Object")
	void Rebuild() { ++NumRebuilds; }
#endif

	TArray<FName> Names;
	int32 NumRebuilds = 0;

private:
	UFUNCTION()
	int32 GetHidden() const { return Hidden; }
};

/** Overrides by C++ alone. */
UCLASS()
class COREUOBJECTTESTTYPES_API UReflectionTestDerived : public UReflectionTestObject
{
	GENERATED_BODY()

protected:
	virtual FString Greet_Implementation(const FString& Name, FReflectionTestStruct Style, TSubclassOf<UObject> Kind) const override;
};

UCLASS()
class COREUOBJECTTESTTYPES_API UReflectionTestForward : public UObject
{
	GENERATED_BODY()

public:
	// Constructed without an initialiser, as are the classes that derive from it.
	UReflectionTestForward() : Number(4) {}

	UPROPERTY()
	int32 Number;
};

UCLASS()
class COREUOBJECTTESTTYPES_API UReflectionTestForwardDerived : public UReflectionTestForward
{
	GENERATED_BODY()
};
