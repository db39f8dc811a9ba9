#pragma once

#include "CoreMinimal.h"
#include "Records/UnitData.h"
#include "UnitColumns.generated.h"

/** The numbers of a unit that can be filtered by; units of measure are those of FUnitData. */
UENUM(BlueprintType)
enum class EUnitNumberField : uint8
{
	Level,
	Rooms,
	Baths,
	Area,
	OutdoorArea UMETA(DisplayName = "Outdoor area"),
	Price
};

/** The properties of a unit that are one of a few values. */
UENUM(BlueprintType)
enum class EUnitChoiceField : uint8
{
	Building,
	Type,
	View,
	Orientation,
	Status,
	Currency
};

/** The texts of a unit that can be searched. */
UENUM(BlueprintType)
enum class EUnitTextField : uint8
{
	Name,
	UnitId UMETA(DisplayName = "Unit id")
};

/** Reads one property of a unit. */
struct HALVEXPRO_API FUnitFields
{
	static double GetNumber(const FUnitData& Unit, EUnitNumberField Field);

	/** Orientation and status by the names of their enumerators: "SouthWest", "NotForSale". */
	static FName GetChoice(const FUnitData& Unit, EUnitChoiceField Field);

	static FString GetText(const FUnitData& Unit, EUnitTextField Field);
};

/** The units of a scene as columns of plain values, so that a filter reads only what it asks for, one value after the other. */
class HALVEXPRO_API FUnitColumns
{
public:
	static constexpr int32 NumNumberFields = int32(EUnitNumberField::Price) + 1;
	static constexpr int32 NumChoiceFields = int32(EUnitChoiceField::Currency) + 1;
	static constexpr int32 NumTextFields = int32(EUnitTextField::UnitId) + 1;

	/** Forgets the units and makes room for so many. */
	void Empty(int32 Expected = 0);

	/** Appends a unit. It is remembered by its address: the unit stays where it is until the columns are emptied. */
	void Add(const FUnitData& Unit);

	/** Reads the unit of that place anew. */
	void Refresh(int32 Index);

	int32 Num() const { return Units.Num(); }
	const FUnitData& GetUnit(int32 Index) const { return *Units[Index]; }

	const TArray<double>& GetNumbers(EUnitNumberField Field) const { return Numbers[int32(Field)]; }

	/** A unit's value of the field is the name at its code. */
	const TArray<int32>& GetChoiceCodes(EUnitChoiceField Field) const { return Choices[int32(Field)].Codes; }
	const TArray<FName>& GetChoiceNames(EUnitChoiceField Field) const { return Choices[int32(Field)].Names; }

	/** A unit's text of the field, folded for searching; valid until the next change. */
	FStringView GetFoldedText(EUnitTextField Field, int32 Index) const;

private:
	struct FChoiceColumn
	{
		TArray<int32> Codes;
		TArray<FName> Names;
		TMap<FName, int32> CodeOfName;

		int32 FindOrAddCode(FName Name);
	};

	/** The texts one behind the other. A text that changes is appended; the old one stays until the columns are emptied. */
	struct FTextColumn
	{
		TArray<TCHAR> Characters;
		TArray<int32> Starts;
		TArray<int32> Lengths;
		/** Characters that are some unit's text now. */
		int32 NumUsed = 0;

		void Write(int32 Index, const FString& Text);
		void Compact();
	};

	TArray<const FUnitData*> Units;
	TArray<double> Numbers[NumNumberFields];
	FChoiceColumn Choices[NumChoiceFields];
	FTextColumn Texts[NumTextFields];
};
