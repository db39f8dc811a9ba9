#pragma once

#include "CoreMinimal.h"
#include "ObjectTestNode.h"
#include "UObject/Object.h"
#include "UObject/SoftObjectPtr.h"
#include "ObjectTestSettings.generated.h"

UENUM()
enum class EObjectTestMode : uint8
{
	Off,
	On,
	Automatic
};

/** Values from configuration. */
UCLASS(Config=ObjectTest)
class COREUOBJECTTESTTYPES_API UObjectTestSettings : public UObject
{
	GENERATED_BODY()

public:
	UObjectTestSettings();

	UPROPERTY(Config)
	int32 Count = 1;

	UPROPERTY(Config)
	FString Title = TEXT("code");

	UPROPERTY(Config)
	EObjectTestMode Mode = EObjectTestMode::Off;

	UPROPERTY(Config)
	TArray<FString> Names;

	UPROPERTY(Config)
	FLinearColor Tint = FLinearColor(1.0f, 0.5f, 0.25f, 1.0f);

	/** What the constructor looked up; configuration is stronger. */
	UPROPERTY(Config)
	TSoftObjectPtr<UObjectTestNode> Asset;

	UPROPERTY()
	int32 NotConfigured = 1;

	/** Value of Count when the constructor, and PostInitProperties, ran. */
	int32 CountInConstructor = 0;
	int32 CountAtInit = 0;

	virtual void PostInitProperties() override;
};

UCLASS()
class COREUOBJECTTESTTYPES_API UObjectTestDerivedSettings : public UObjectTestSettings
{
	GENERATED_BODY()
};
