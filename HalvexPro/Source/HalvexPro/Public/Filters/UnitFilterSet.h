#pragma once

#include "CoreMinimal.h"
#include "UnitFilterSet.generated.h"

/** What a kept filter asks of a unit. */
UENUM(BlueprintType)
enum class EUnitFilterKind : uint8
{
	/** That a number lies in a range. */
	Number,
	/** That a property is one of some values. */
	Choice,
	/** That a text contains another. */
	Text,
	/** That the unit can still be had. */
	Availability
};

/** One filter as it is kept and shared. Of the values only those of its kind count. */
USTRUCT(BlueprintType)
struct HALVEXPRO_API FUnitFilterRecord
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "UnitFilterRecord")
	EUnitFilterKind Kind = EUnitFilterKind::Number;

	/** Name of an enumerator of EUnitNumberField, EUnitChoiceField or EUnitTextField, as the kind says; none for availability. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "UnitFilterRecord")
	FName Field;

	/** In the unit of measure of the field, as both ends of a range, which belong to it. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "UnitFilterRecord")
	double Minimum = TNumericLimits<double>::Lowest();

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "UnitFilterRecord")
	double Maximum = TNumericLimits<double>::Max();

	/** As those of UUnitChoiceFilter. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "UnitFilterRecord")
	TArray<FName> Values;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "UnitFilterRecord")
	FString Text;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "UnitFilterRecord")
	bool bIncludeReserved = false;

	bool HasMinimum() const { return Minimum > TNumericLimits<double>::Lowest(); }
	bool HasMaximum() const { return Maximum < TNumericLimits<double>::Max(); }
};

/** Filters that belong together under a name. */
USTRUCT(BlueprintType)
struct HALVEXPRO_API FUnitFilterSet
{
	GENERATED_BODY()

	/** What people call it: any characters, without blanks at the ends. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "UnitFilterSet")
	FString Name;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "UnitFilterSet")
	TArray<FUnitFilterRecord> Filters;
};
