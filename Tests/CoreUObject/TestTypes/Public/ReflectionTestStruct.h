#pragma once

#include "CoreMinimal.h"
#include "UObject/Class.h"
#include "UObject/SoftObjectPath.h"
#include "UObject/UObjectGlobals.h"
#include "ReflectionTestStruct.generated.h"

/** How a thing moves. */
UENUM(BlueprintType)
enum class EReflectionTestMotion : uint8
{
	/** Does not move at all. */
	Still,
	SlowWalk UMETA(DisplayName = "Slow"),
	Fast = 7 UMETA(Hidden, ToolTip = "As \"fast\" as can be"),
};

UENUM(meta = (Bitflags, UseEnumValuesAsMaskValuesInEditor = "true"))
enum class EReflectionTestFlags : uint8
{
	None = 0,
	First = 1,
	Second = 2,
	Third = 4,
};
ENUM_CLASS_FLAGS(EReflectionTestFlags)

UENUM(BlueprintType)
enum EReflectionTestPlain
{
	ERTP_One,
	ERTP_Two,
};

UENUM()
namespace EReflectionTestSpace
{
	enum Type : int
	{
		Left,
		Right,
	};
}

// A line comment
// of two lines.
USTRUCT(BlueprintType)
struct COREUOBJECTTESTTYPES_API FReflectionTestBase
{
	GENERATED_BODY()

	/** Counts
	 *  the things. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Base|Inner", meta = (ClampMin = "0", UIMax = 10, DisplayName = "How Many"))
	int32 Count = 3;

	int32 NotReflected = 5;
};

USTRUCT(BlueprintType)
struct COREUOBJECTTESTTYPES_API FReflectionTestStruct : public FReflectionTestBase
{
	GENERATED_BODY()

	FReflectionTestStruct() = default;
	explicit FReflectionTestStruct(const FString& InText) : Text(InText) {}

	UPROPERTY(EditAnywhere, Category = "Struct")
	FString Text = TEXT("start");

	UPROPERTY(EditAnywhere, Category = "Struct", meta = (InlineEditConditionToggle))
	uint8 bFirst : 1 = 0;

	UPROPERTY(EditAnywhere, Category = "Struct")
	uint8 bSecond : 1 = 1;

	UPROPERTY(VisibleAnywhere, Category = "Struct")
	FVector4 Vector = FVector4(1.0, 2.0, 3.0, 4.0);

	UPROPERTY()
	TEnumAsByte<EReflectionTestPlain> Plain = ERTP_Two;

	UPROPERTY()
	TEnumAsByte<EReflectionTestSpace::Type> Space = EReflectionTestSpace::Right;

	UPROPERTY()
	EReflectionTestMotion Motion = EReflectionTestMotion::Fast;

	UPROPERTY()
	TArray<FReflectionTestBase> Bases;

	UPROPERTY()
	TMap<FName, int32> Counts;

	UPROPERTY()
	FSoftObjectPath Path;

	UPROPERTY()
	float Grid[3] = {1.f, 2.f, 3.f};
};

/** Holds itself in an array: what it refers to must be known all the same. */
USTRUCT()
struct COREUOBJECTTESTTYPES_API FReflectionTestTree
{
	GENERATED_BODY()

	UPROPERTY()
	TArray<FReflectionTestTree> Children;

	UPROPERTY()
	TObjectPtr<UObject> Object;
};

/** Compared by its operator, which knows nothing of the note. */
USTRUCT()
struct COREUOBJECTTESTTYPES_API FReflectionTestEqual
{
	GENERATED_BODY()

	UPROPERTY()
	int32 Key = 0;

	UPROPERTY()
	FString Note;

	bool operator==(const FReflectionTestEqual& Other) const { return Key == Other.Key; }
};

template<>
struct TStructOpsTypeTraits<FReflectionTestEqual> : TStructOpsTypeTraitsBase2<FReflectionTestEqual>
{
	enum
	{
		WithIdenticalViaEquality = true,
	};
};
