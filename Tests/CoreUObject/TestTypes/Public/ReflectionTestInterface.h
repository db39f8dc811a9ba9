#pragma once

#include "CoreMinimal.h"
#include "UObject/Class.h"
#include "UObject/DynamicDelegates.h"
#include "UObject/Interface.h"
#include "UObject/UObjectGlobals.h"
#include "ReflectionTestInterface.generated.h"

UINTERFACE(MinimalAPI, Blueprintable)
class UReflectionTestAnswerer : public UInterface
{
	GENERATED_BODY()
};

/** Answers questions. */
class COREUOBJECTTESTTYPES_API IReflectionTestAnswerer
{
	GENERATED_BODY()

public:
	DECLARE_DYNAMIC_DELEGATE_OneParam(FAnswered, const FText&, Answer);

	/** Whether the text is liked. */
	UFUNCTION(BlueprintNativeEvent, Category = "Answerer")
	bool Likes(const FText& Text) const;

	UFUNCTION(BlueprintNativeEvent, Category = "Answerer")
	void Rename(const FString& Name, int32& OutLength);

	UFUNCTION(BlueprintImplementableEvent, Category = "Answerer")
	int32 Guess(int32 Limit);
};

/** Answers in C++. */
UCLASS()
class COREUOBJECTTESTTYPES_API UReflectionTestNativeAnswerer : public UObject, public IReflectionTestAnswerer
{
	GENERATED_BODY()

public:
	virtual bool Likes_Implementation(const FText& Text) const override { return !Text.IsEmpty(); }

	virtual void Rename_Implementation(const FString& InName, int32& OutLength) override
	{
		Name = InName;
		OutLength = Name.Len();
	}

	UPROPERTY()
	FString Name;
};

/** Leaves everything at the interface's defaults. */
UCLASS()
class COREUOBJECTTESTTYPES_API UReflectionTestSilentAnswerer : public UObject, public IReflectionTestAnswerer
{
	GENERATED_BODY()
};
