#include "Project/UnitTableWriter.h"

#include "Misc/FileHelper.h"
#include "Project/SafeFile.h"
#include "Project/TableFormulaGuard.h"
#include "Project/UnitRecordFields.h"
#include "UObject/Class.h"

namespace
{
	/** With as few decimals as give the number back, and never with an exponent. */
	template <typename NumberType>
	FString DescribeNumber(NumberType Number)
	{
		constexpr int32 MaxDecimals = 20;
		FString Text;
		for (int32 Decimals = 0; Decimals <= MaxDecimals; ++Decimals)
		{
			Text = FString::Printf(TEXT("%.*f"), Decimals, double(Number));
			if (NumberType(FCString::Atod(*Text)) == Number)
			{
				break;
			}
		}
		return Text;
	}

	FString DescribeName(FName Name)
	{
		return Name.IsNone() ? FString() : Name.ToString();
	}

	template <typename EnumType>
	FString DescribeEnum(EnumType Value)
	{
		return StaticEnum<EnumType>()->GetNameStringByValue(int64(Value));
	}

	FString DescribeField(const FUnitData& Unit, EUnitRecordField Field)
	{
		switch (Field)
		{
		case EUnitRecordField::Id:
			return DescribeName(Unit.UnitId);
		case EUnitRecordField::Name:
			return Unit.Name;
		case EUnitRecordField::Building:
			return DescribeName(Unit.Building);
		case EUnitRecordField::Type:
			return DescribeName(Unit.Type);
		case EUnitRecordField::View:
			return DescribeName(Unit.View);
		case EUnitRecordField::Image:
			return DescribeName(Unit.Image);
		case EUnitRecordField::Currency:
			return DescribeName(Unit.Currency);
		case EUnitRecordField::Level:
			return FString::FromInt(Unit.Level);
		case EUnitRecordField::Rooms:
			return FString::FromInt(Unit.Rooms);
		case EUnitRecordField::Baths:
			return FString::FromInt(Unit.Baths);
		case EUnitRecordField::Area:
			return DescribeNumber(Unit.Area);
		case EUnitRecordField::OutdoorArea:
			return DescribeNumber(Unit.OutdoorArea);
		case EUnitRecordField::Price:
			return DescribeNumber(Unit.Price);
		case EUnitRecordField::Orientation:
			return DescribeEnum(Unit.Orientation);
		case EUnitRecordField::Status:
			return DescribeEnum(Unit.Status);
		default:
			return FString();
		}
	}

	void AppendCell(FString& Out, const FString& Text)
	{
		int32 Special = 0;
		const bool bQuotes = Text.FindChar(',', Special) || Text.FindChar('"', Special) || Text.FindChar('\n', Special) || Text.FindChar('\r', Special);
		Out += bQuotes ? TEXT("\"") + Text.Replace(TEXT("\""), TEXT("\"\"")) + TEXT("\"") : Text;
	}

	/** One row; GetCell is asked for each plain field. */
	template <typename GetCellType>
	void AppendRow(FString& Out, GetCellType GetCell)
	{
		for (int32 Field = 0; Field < int32(EUnitRecordField::Volume); ++Field)
		{
			Out += Field > 0 ? TEXT(",") : TEXT("");
			AppendCell(Out, GetCell(EUnitRecordField(Field)));
		}
		Out += TEXT("\r\n");
	}
}

FString FUnitTableWriter::Write(TConstArrayView<const FUnitData*> Units)
{
	FString Table;
	AppendRow(Table, [](EUnitRecordField Field) { return FString(FUnitRecordFields::GetName(Field)); });
	for (const FUnitData* Unit : Units)
	{
		AppendRow(Table, [Unit](EUnitRecordField Field)
		{
			const FString Text = DescribeField(*Unit, Field);
			// Numbers below zero are none that a spreadsheet could run.
			return FUnitRecordFields::IsNumber(Field) ? Text : FTableFormulaGuard::Add(Text);
		});
	}
	return Table;
}

bool FUnitTableWriter::SaveFile(const FString& Filename, TConstArrayView<const FUnitData*> Units)
{
	// Without the mark spreadsheets take UTF-8 for an older encoding.
	return FSafeFile::SaveText(Filename, Write(Units), FFileHelper::EEncodingOptions::ForceUTF8);
}
