#include "Project/UnitRecordFields.h"

#include "UObject/Class.h"

namespace
{
	const TCHAR* const FieldNames[] =
	{
		TEXT("id"), TEXT("name"), TEXT("building"), TEXT("type"), TEXT("view"), TEXT("image"), TEXT("interior"), TEXT("currency"), TEXT("level"), TEXT("rooms"),
		TEXT("baths"), TEXT("area"), TEXT("outdoorArea"), TEXT("price"), TEXT("orientation"), TEXT("status"), TEXT("volume"),
	};
	static_assert(UE_ARRAY_COUNT(FieldNames) == SIZE_T(EUnitRecordField::Num));

	constexpr double MaxArea = 1e6;

	bool SetWhole(int32& Out, double Number, double Minimum, double Maximum)
	{
		if (!(Number >= Minimum && Number <= Maximum) || Number != FMath::FloorToDouble(Number))
		{
			return false;
		}
		Out = int32(Number);
		return true;
	}

	/** The value of an enumerator without its prefix, in whatever case; false when there is none of that name. */
	template <typename EnumType>
	bool SetEnum(EnumType& Out, const FString& Text, EnumType Last)
	{
		static const TArray<FString> Names = [Last]
		{
			TArray<FString> All;
			for (uint8 Value = 0; Value <= uint8(Last); ++Value)
			{
				All.Add(StaticEnum<EnumType>()->GetNameStringByValue(Value));
			}
			return All;
		}();
		const int32 Found = Names.IndexOfByPredicate([&Text](const FString& Name) { return Name.Equals(Text, ESearchCase::IgnoreCase); });
		if (Found != INDEX_NONE)
		{
			Out = EnumType(Found);
		}
		return Found != INDEX_NONE;
	}
}

const TCHAR* FUnitRecordFields::GetName(EUnitRecordField Field)
{
	return FieldNames[int32(Field)];
}

EUnitRecordField FUnitRecordFields::Find(FStringView Name, EUnitRecordField Hint)
{
	constexpr int32 Num = int32(EUnitRecordField::Num);
	for (int32 Step = 0; Step < Num; ++Step)
	{
		const int32 Field = (int32(Hint) + Step) % Num;
		if (Name.Equals(FieldNames[Field], ESearchCase::CaseSensitive))
		{
			return EUnitRecordField(Field);
		}
	}
	return EUnitRecordField::Num;
}

const TCHAR* FUnitRecordFields::SetNumber(FUnitData& Unit, EUnitRecordField Field, double Number)
{
	switch (Field)
	{
	case EUnitRecordField::Level:
		return SetWhole(Unit.Level, Number, -100.0, 1000.0) ? nullptr : TEXT("a whole number from -100 to 1000");
	case EUnitRecordField::Rooms:
		return SetWhole(Unit.Rooms, Number, 0.0, 1000.0) ? nullptr : TEXT("a whole number from 0 to 1000");
	case EUnitRecordField::Baths:
		return SetWhole(Unit.Baths, Number, 0.0, 1000.0) ? nullptr : TEXT("a whole number from 0 to 1000");
	case EUnitRecordField::Area:
	case EUnitRecordField::OutdoorArea:
		if (!(Number >= 0.0 && Number <= MaxArea))
		{
			return TEXT("square metres from 0 to 1000000");
		}
		(Field == EUnitRecordField::Area ? Unit.Area : Unit.OutdoorArea) = float(Number);
		return nullptr;
	case EUnitRecordField::Price:
		if (!(Number >= 0.0 && Number <= MaxPrice))
		{
			return ExpectedPrice;
		}
		Unit.Price = Number;
		return nullptr;
	default:
		return TEXT("a text");
	}
}

const TCHAR* FUnitRecordFields::SetText(FUnitData& Unit, EUnitRecordField Field, const FString& Text)
{
	switch (Field)
	{
	case EUnitRecordField::Id:
		Unit.UnitId = FName(*Text);
		return Unit.UnitId.IsNone() ? TEXT("a key") : nullptr;
	case EUnitRecordField::Name:
		Unit.Name = Text;
		return nullptr;
	case EUnitRecordField::Building:
		Unit.Building = FindName(Field, Text);
		return nullptr;
	case EUnitRecordField::Type:
		Unit.Type = FindName(Field, Text);
		return nullptr;
	case EUnitRecordField::View:
		Unit.View = FindName(Field, Text);
		return nullptr;
	case EUnitRecordField::Image:
		Unit.Image = FindName(Field, Text);
		return nullptr;
	case EUnitRecordField::Interior:
		Unit.Interior = FindName(Field, Text);
		return nullptr;
	case EUnitRecordField::Currency:
		Unit.Currency = FindName(Field, Text);
		return nullptr;
	case EUnitRecordField::Orientation:
		return SetEnum(Unit.Orientation, Text, EUnitOrientation::NorthWest) ? nullptr : TEXT("None or a direction from North to NorthWest");
	case EUnitRecordField::Status:
		Unit.Status = EUnitStatus::NotForSale;
		return SetEnum(Unit.Status, Text, EUnitStatus::NotForSale) ? nullptr : TEXT("Available, Reserved, Sold or NotForSale");
	default:
		return TEXT("a number");
	}
}

FName FUnitRecordFields::FindName(EUnitRecordField Field, const FString& Text)
{
	FLastName& Last = LastNames[int32(Field)];
	if (!Last.Text.Equals(Text, ESearchCase::CaseSensitive))
	{
		Last.Text = Text;
		Last.Name = FName(*Text);
	}
	return Last.Name;
}
