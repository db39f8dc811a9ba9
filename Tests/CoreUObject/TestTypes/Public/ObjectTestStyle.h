#pragma once

#include "CoreMinimal.h"
#include "ObjectTestInterface.h"
#include "ObjectTestOwner.h"
#include "ObjectTestSettings.h"
#include "Templates/SubclassOf.h"
#include "UObject/Object.h"
#include "UObject/SoftObjectPtr.h"
#include "ObjectTestStyle.generated.h"

UENUM(meta=(Bitflags, UseEnumValuesAsMaskValuesInEditor="true"))
enum class EObjectTestSides : uint8
{
	None = 0,
	Left = 1,
	Right = 2,
	Top = 4
};

USTRUCT()
struct COREUOBJECTTESTTYPES_API FObjectTestBox
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere, Category="Test")
	float Width = 1.0f;

	UPROPERTY(EditAnywhere, Category="Test")
	float Height = 2.0f;
};

USTRUCT()
struct COREUOBJECTTESTTYPES_API FObjectTestEntry
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere, Category="Test")
	FName Id;

	UPROPERTY(EditAnywhere, Category="Test", meta=(InlineEditConditionToggle))
	bool bOverride = false;

	UPROPERTY(EditAnywhere, Category="Test", meta=(EditCondition="bOverride"))
	FLinearColor Color = FLinearColor(0.0f, 0.0f, 0.0f, 1.0f);

	UPROPERTY(EditAnywhere, Category="Test")
	FObjectTestBox Box;
};

/** An asset with one property of each kind; remembers the notifications that it got. */
UCLASS()
class COREUOBJECTTESTTYPES_API UObjectTestStyle : public UObject
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, Category="Test")
	bool bEnabled = false;
	UPROPERTY(EditAnywhere, Category="Test")
	uint8 bBitA : 1;
	UPROPERTY(EditAnywhere, Category="Test")
	uint8 bBitB : 1;
	UPROPERTY(EditAnywhere, Category="Test")
	uint8 Byte = 0;
	UPROPERTY(EditAnywhere, Category="Test")
	int32 Whole = 0;
	UPROPERTY(EditAnywhere, Category="Test")
	int64 Large = 0;
	UPROPERTY(EditAnywhere, Category="Test")
	float Single = 0.0f;
	UPROPERTY(EditAnywhere, Category="Test")
	double Double = 0.0;
	UPROPERTY(EditAnywhere, Category="Test")
	FString String;
	UPROPERTY(EditAnywhere, Category="Test")
	FName Name;
	UPROPERTY(EditAnywhere, Category="Test")
	FText Text;
	UPROPERTY(EditAnywhere, Category="Test")
	EObjectTestMode Mode = EObjectTestMode::Off;
	UPROPERTY(EditAnywhere, Category="Test")
	EObjectTestSides Sides = EObjectTestSides::None;
	UPROPERTY(EditAnywhere, Category="Test", meta=(EditCondition="Mode == EObjectTestMode::On && Whole >= 2"))
	FLinearColor Tint = FLinearColor(1.0f, 1.0f, 1.0f, 1.0f);
	UPROPERTY(EditAnywhere, Category="Test")
	FColor Stored = FColor(1, 2, 3, 4);
	UPROPERTY(EditAnywhere, Category="Test")
	FObjectTestEntry Entry;
	UPROPERTY(EditAnywhere, Category="Test")
	FObjectTestBox Box;
	UPROPERTY(EditAnywhere, Category="Test")
	TArray<int32> Numbers;
	UPROPERTY(EditAnywhere, Category="Test")
	TArray<FObjectTestEntry> Entries;
	UPROPERTY(EditAnywhere, Category="Test")
	TMap<FName, FLinearColor> Colors;
	UPROPERTY(EditAnywhere, Category="Test")
	TSet<FName> Tags;
	UPROPERTY(EditAnywhere, Category="Test")
	int32 Fixed[3] = { 1, 2, 3 };
	UPROPERTY(EditAnywhere, Category="Test")
	TObjectPtr<UObjectTestStyle> Base;
	UPROPERTY(EditAnywhere, Category="Test")
	TSubclassOf<UObjectTestPart> PartClass;
	UPROPERTY(EditAnywhere, Category="Test")
	TSoftObjectPtr<UObjectTestStyle> SoftBase;
	UPROPERTY(EditAnywhere, Category="Test")
	TScriptInterface<IObjectTestNamed> Named;
	UPROPERTY(EditAnywhere, Instanced, Category="Test")
	TObjectPtr<UObjectTestPart> Part;
	UPROPERTY(VisibleAnywhere, Category="Test")
	int32 ReadOnly = 4;
	UPROPERTY(Transient)
	int32 Scratch = 0;

	UObjectTestStyle() : bBitA(0), bBitB(0) {}

	/** "Pre:Member", "Chain:Member.Property/n" and "Post:Member.Property", in order. */
	TArray<FString> Notifications;
	uint32 LastChangeType = 0;
	/** Where in Numbers the last edit took place. */
	int32 LastNumbersIndex = INDEX_NONE;
	int32 NumPostLoad = 0;

	virtual void PostLoad() override;
#if WITH_EDITOR
	virtual void PreEditChange(FProperty* PropertyAboutToChange) override;
	virtual void PostEditChangeProperty(FPropertyChangedEvent& PropertyChangedEvent) override;
	virtual void PostEditChangeChainProperty(FPropertyChangedChainEvent& PropertyChangedEvent) override;
#endif
};

/** Its constructor looks up an asset that is there and one that is not. */
UCLASS()
class COREUOBJECTTESTTYPES_API UObjectTestFinder : public UObject
{
	GENERATED_BODY()

public:
	UObjectTestFinder();

	UPROPERTY()
	TObjectPtr<UObjectTestStyle> Found;
	UPROPERTY()
	TObjectPtr<UObjectTestStyle> Missing;
	UPROPERTY()
	TSubclassOf<UObjectTestPart> FoundClass;

	bool bFoundSucceeded = false;
	bool bMissingSucceeded = true;

	/** Paths that the next constructor call looks up; nothing is looked up while they are empty. */
	static FString FoundPath;
	static FString MissingPath;
	static FString ClassPath;
};
