#pragma once

#include "CoreMinimal.h"
#include "Project/ProjectData.h"

/** The fields of a unit as files name them, in the order in which they are usually written. */
enum class EUnitRecordField : uint8
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
	OutdoorArea,
	Price,
	Orientation,
	Status,
	/** Behind the plain fields: the space that the unit takes. */
	Volume,
	Num
};

/** Writes the fields of units from what files hold, and says what a field would have taken. */
class FUnitRecordFields
{
public:
	/** The highest price; the lowest is 0. */
	static constexpr double MaxPrice = 1e12;
	static constexpr const TCHAR* ExpectedPrice = TEXT("a price from 0 to 1000000000000");

	/** The name of the field in project files, case sensitive. */
	static const TCHAR* GetName(EUnitRecordField Field);

	/** The field of that name; Num when there is none. The hint is tried first. */
	static EUnitRecordField Find(FStringView Name, EUnitRecordField Hint = EUnitRecordField::Id);

	static bool IsNumber(EUnitRecordField Field) { return Field >= EUnitRecordField::Level && Field <= EUnitRecordField::Price; }

	/** Null when the number was taken, else what was expected. */
	const TCHAR* SetNumber(FUnitData& Unit, EUnitRecordField Field, double Number);

	/**
	 * Null when the text was taken, else what was expected. A status that is none leaves the unit not for sale, so that nothing
	 * is offered by mistake.
	 */
	const TCHAR* SetText(FUnitData& Unit, EUnitRecordField Field, const FString& Text);

private:
	/** Units that stand together share most of their names: each is looked up once a row of them. */
	struct FLastName
	{
		FString Text;
		FName Name;
	};

	FName FindName(EUnitRecordField Field, const FString& Text);

	FLastName LastNames[int32(EUnitRecordField::Num)];
};
