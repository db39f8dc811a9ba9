#pragma once

#include "CoreMinimal.h"
#include "UnitData.generated.h"

/** Whether a unit can be had. */
UENUM(BlueprintType)
enum class EUnitStatus : uint8
{
	Available,
	Reserved,
	Sold,
	/** Shown, but not on offer: a lobby, a unit that the owner keeps. */
	NotForSale UMETA(DisplayName = "Not for sale")
};

/** Where the windows of a unit's main room look. */
UENUM(BlueprintType)
enum class EUnitOrientation : uint8
{
	None,
	North,
	NorthEast UMETA(DisplayName = "North-east"),
	East,
	SouthEast UMETA(DisplayName = "South-east"),
	South,
	SouthWest UMETA(DisplayName = "South-west"),
	West,
	NorthWest UMETA(DisplayName = "North-west")
};

/** What is known of one unit. Copied often: the name is its only member with memory of its own. */
USTRUCT(BlueprintType)
struct HALVEXSDK_API FUnitData
{
	GENERATED_BODY()

	/** Key of the unit, unique in its project. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "UnitData")
	FName UnitId;

	/** What people call the unit; lists search and sort by it. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "UnitData")
	FString Name;

	/** Key of the group, most often a building, that the unit is part of. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "UnitData")
	FName Building;

	/** What kind of unit it is, as the project names it: "Flat", "Penthouse". */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "UnitData")
	FName Type;

	/** What it looks out on, as the project names it: "Quay", "Court". */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "UnitData")
	FName View;

	/** Key of the project's image that shows the plan. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "UnitData")
	FName Image;

	/** Key of the project's interior that shows its rooms; none when it cannot be configured. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "UnitData")
	FName Interior;

	/** Currency of the price by its ISO 4217 code: "EUR". */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "UnitData")
	FName Currency;

	/** Storeys above the ground floor, which is 0; below ground it is negative. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "UnitData")
	int32 Level = 0;

	/** Rooms to live and sleep in; kitchens and baths do not count. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "UnitData", meta = (ClampMin = "0"))
	int32 Rooms = 0;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "UnitData", meta = (ClampMin = "0"))
	int32 Baths = 0;

	/** Floor area indoors, in square metres. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "UnitData", meta = (ClampMin = "0"))
	float Area = 0.0f;

	/** Area of balconies and terraces, in square metres. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "UnitData", meta = (ClampMin = "0"))
	float OutdoorArea = 0.0f;

	/** In whole units of the currency; 0 when it is told on request only. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "UnitData", meta = (ClampMin = "0"))
	double Price = 0.0;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "UnitData")
	EUnitOrientation Orientation = EUnitOrientation::None;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "UnitData")
	EUnitStatus Status = EUnitStatus::Available;
};
