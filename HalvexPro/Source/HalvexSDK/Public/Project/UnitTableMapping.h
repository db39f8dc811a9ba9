#pragma once

#include "CoreMinimal.h"
#include "Project/ReadProblems.h"
#include "UnitTableMapping.generated.h"

/** What a column of a table of units holds. */
UENUM(BlueprintType)
enum class EUnitTableField : uint8
{
	Id,
	Name,
	Building,
	Type,
	View,
	Image,
	Interior,
	Currency,
	Level,
	Rooms,
	Baths,
	Area,
	OutdoorArea UMETA(DisplayName = "Outdoor area"),
	Price,
	Orientation,
	Status,
	/** The bounds of the unit's box: all six of them, or none. */
	MinX,
	MinY,
	MinZ,
	MaxX,
	MaxY,
	MaxZ
};

/** How a table writes numbers. */
UENUM(BlueprintType)
enum class EUnitTableDecimals : uint8
{
	/** 1,234.5 in tables separated by commas; in others 1.234,5 if a comma stands between digits anywhere, else 1,234.5. */
	Automatic,
	/** 1,234.5 */
	Point,
	/** 1.234,5 */
	Comma
};

/** What to do with one column. */
USTRUCT(BlueprintType)
struct HALVEXSDK_API FUnitTableColumn
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "UnitTable")
	EUnitTableField Field = EUnitTableField::Id;

	/** What to read in place of certain cells: "free" as "Available", "Roof" as "2". Case and outer spaces do not count. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "UnitTable")
	TMap<FString, FString> Values;
};

/** Which columns of a table become which fields of units. */
USTRUCT(BlueprintType)
struct HALVEXSDK_API FUnitTableMapping
{
	GENERATED_BODY()

	/** Columns by the text of their header. Case and outer spaces do not count; a column that is not named here is left out. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "UnitTable")
	TMap<FString, FUnitTableColumn> Columns;

	/** Whether a column that the table lacks is a problem to be named. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "UnitTable")
	bool bAllColumnsNeeded = true;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "UnitTable")
	EUnitTableDecimals Decimals = EUnitTableDecimals::Automatic;

	/** Centimetres in one unit of length of the bounds: 100 where they are in metres. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "UnitTable")
	double CentimetresPerUnit = 100.0;

	/** Headers that are the names of the fields: "id", "name", ... "status", "minX" ... "maxZ". A table may lack any but the id. */
	static FUnitTableMapping MakeDefault();

	/**
	 * Reads a mapping: {"decimals": "comma", "centimetresPerUnit": 100, "columns": {"Flat no.": "id", "State": {"field": "status",
	 * "values": {"free": "Available"}}}}.
	 * @return false when the text is no JSON object; what is wrong inside it is named and left out
	 */
	static bool FromJson(const FString& Text, FUnitTableMapping& OutMapping, FReadProblems& Problems);

	/** The field of that name, as FromJson and MakeDefault know it. False when there is none. */
	static bool FindField(const FString& Name, EUnitTableField& OutField);
};
