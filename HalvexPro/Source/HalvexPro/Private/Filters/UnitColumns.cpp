#include "Filters/UnitColumns.h"

#include "Filters/UnitTextFolding.h"
#include "UObject/Class.h"

namespace
{
	/** Of an enumerator, without the name of its enumeration. */
	template <typename EnumType>
	FName GetNameOfValue(EnumType Value)
	{
		return FName(*StaticEnum<EnumType>()->GetNameStringByValue(int64(Value)));
	}

	/** Asked for each unit; the names are looked up once. */
	FName GetOrientationName(EUnitOrientation Orientation)
	{
		static const TArray<FName> Names = []
		{
			TArray<FName> All;
			for (uint8 Value = 0; Value <= uint8(EUnitOrientation::NorthWest); ++Value)
			{
				All.Add(GetNameOfValue(EUnitOrientation(Value)));
			}
			return All;
		}();
		return Names.IsValidIndex(int32(Orientation)) ? Names[int32(Orientation)] : FName();
	}

	FName GetStatusName(EUnitStatus Status)
	{
		static const TArray<FName> Names = []
		{
			TArray<FName> All;
			for (uint8 Value = 0; Value <= uint8(EUnitStatus::NotForSale); ++Value)
			{
				All.Add(GetNameOfValue(EUnitStatus(Value)));
			}
			return All;
		}();
		return Names.IsValidIndex(int32(Status)) ? Names[int32(Status)] : FName();
	}
}

double FUnitFields::GetNumber(const FUnitData& Unit, EUnitNumberField Field)
{
	switch (Field)
	{
	case EUnitNumberField::Level:
		return Unit.Level;
	case EUnitNumberField::Rooms:
		return Unit.Rooms;
	case EUnitNumberField::Baths:
		return Unit.Baths;
	case EUnitNumberField::Area:
		return Unit.Area;
	case EUnitNumberField::OutdoorArea:
		return Unit.OutdoorArea;
	case EUnitNumberField::Price:
		return Unit.Price;
	}
	return 0.0;
}

FName FUnitFields::GetChoice(const FUnitData& Unit, EUnitChoiceField Field)
{
	switch (Field)
	{
	case EUnitChoiceField::Building:
		return Unit.Building;
	case EUnitChoiceField::Type:
		return Unit.Type;
	case EUnitChoiceField::View:
		return Unit.View;
	case EUnitChoiceField::Orientation:
		return GetOrientationName(Unit.Orientation);
	case EUnitChoiceField::Status:
		return GetStatusName(Unit.Status);
	case EUnitChoiceField::Currency:
		return Unit.Currency;
	}
	return FName();
}

FString FUnitFields::GetText(const FUnitData& Unit, EUnitTextField Field)
{
	return Field == EUnitTextField::UnitId ? Unit.UnitId.ToString() : Unit.Name;
}

int32 FUnitColumns::FChoiceColumn::FindOrAddCode(FName Name)
{
	// Units of one kind stand together in most projects.
	if (!Codes.IsEmpty() && Names[Codes.Last()] == Name)
	{
		return Codes.Last();
	}
	if (const int32* const Code = CodeOfName.Find(Name))
	{
		return *Code;
	}
	const int32 Code = Names.Add(Name);
	CodeOfName.Add(Name, Code);
	return Code;
}

void FUnitColumns::FTextColumn::Write(int32 Index, const FString& Text)
{
	NumUsed -= Lengths[Index];
	Starts[Index] = Characters.Num();
	FUnitTextFolding::Append(Characters, Text);
	Lengths[Index] = Characters.Num() - Starts[Index];
	NumUsed += Lengths[Index];
}

void FUnitColumns::FTextColumn::Compact()
{
	TArray<TCHAR> Kept;
	for (int32 Index = 0; Index < Starts.Num(); ++Index)
	{
		const int32 Start = Kept.Num();
		Kept.Append(Characters.GetData() + Starts[Index], Lengths[Index]);
		Starts[Index] = Start;
	}
	Characters = MoveTemp(Kept);
}

void FUnitColumns::Empty(int32 Expected)
{
	Units.Empty(Expected);
	for (TArray<double>& Column : Numbers)
	{
		Column.Empty(Expected);
	}
	for (FChoiceColumn& Column : Choices)
	{
		Column.Codes.Empty(Expected);
		Column.Names.Empty();
		Column.CodeOfName.Empty();
	}
	for (FTextColumn& Column : Texts)
	{
		Column.Characters.Empty();
		Column.Starts.Empty(Expected);
		Column.Lengths.Empty(Expected);
		Column.NumUsed = 0;
	}
}

void FUnitColumns::Add(const FUnitData& Unit)
{
	const int32 Index = Units.Add(&Unit);
	for (int32 Field = 0; Field < NumNumberFields; ++Field)
	{
		Numbers[Field].Add(FUnitFields::GetNumber(Unit, EUnitNumberField(Field)));
	}
	for (int32 Field = 0; Field < NumChoiceFields; ++Field)
	{
		FChoiceColumn& Column = Choices[Field];
		Column.Codes.Add(Column.FindOrAddCode(FUnitFields::GetChoice(Unit, EUnitChoiceField(Field))));
	}
	for (int32 Field = 0; Field < NumTextFields; ++Field)
	{
		FTextColumn& Column = Texts[Field];
		Column.Starts.Add(0);
		Column.Lengths.Add(0);
		Column.Write(Index, FUnitFields::GetText(Unit, EUnitTextField(Field)));
	}
}

void FUnitColumns::Refresh(int32 Index)
{
	const FUnitData& Unit = *Units[Index];
	for (int32 Field = 0; Field < NumNumberFields; ++Field)
	{
		Numbers[Field][Index] = FUnitFields::GetNumber(Unit, EUnitNumberField(Field));
	}
	for (int32 Field = 0; Field < NumChoiceFields; ++Field)
	{
		FChoiceColumn& Column = Choices[Field];
		const int32 Code = Column.FindOrAddCode(FUnitFields::GetChoice(Unit, EUnitChoiceField(Field)));
		Column.Codes[Index] = Code;
	}
	for (int32 Field = 0; Field < NumTextFields; ++Field)
	{
		FTextColumn& Column = Texts[Field];
		Column.Write(Index, FUnitFields::GetText(Unit, EUnitTextField(Field)));
		if (Column.Characters.Num() / 2 > Column.NumUsed + 1024)
		{
			Column.Compact();
		}
	}
}

FStringView FUnitColumns::GetFoldedText(EUnitTextField Field, int32 Index) const
{
	const FTextColumn& Column = Texts[int32(Field)];
	return FStringView(Column.Characters.GetData() + Column.Starts[Index], Column.Lengths[Index]);
}
