#include "Project/UnitTableReader.h"

#include "HalvexSDKLog.h"
#include "Misc/FileHelper.h"
#include "Project/TableFormulaGuard.h"
#include "Project/TableNumber.h"
#include "Project/TableRows.h"
#include "Project/UnitRecordFields.h"

namespace
{
	constexpr int32 NumBounds = 6;
	constexpr double MaxCoordinate = 1e8;
	constexpr int32 MaxHeaderInLog = 40;

	/** One reading of a table. */
	class FUnitTable
	{
	public:
		FUnitTable(FStringView InText, const FUnitTableMapping& InMapping, TArray<FProjectUnit>& InUnits, FReadProblems& InProblems)
			: Rows(InText)
			, Mapping(InMapping)
			, Units(InUnits)
			, Problems(InProblems)
			, bDecimalComma(UsesDecimalComma(InText))
		{
		}

		bool Read()
		{
			if (Rows.Next())
			{
				ReadHeader();
				while (Rows.Next())
				{
					ReadRow();
				}
			}
			else if (!Rows.IsCut())
			{
				Problems.Add(1, 1, TEXT("expected a header, found the end of the text"));
				return false;
			}
			if (Rows.IsCut())
			{
				const FTableCell& Last = Rows[Rows.Num() - 1];
				Problems.Add(Last.Line, Last.Column, TEXT("expected the closing quote of the cell, found the end of the text"));
			}
			return !Rows.IsCut();
		}

		/** Headers of the columns that are not read. */
		const TArray<FString>& GetLeftOut() const { return LeftOut; }

	private:
		bool UsesDecimalComma(FStringView Text) const
		{
			if (Mapping.Decimals != EUnitTableDecimals::Automatic || Rows.GetSeparator() == ',')
			{
				return Mapping.Decimals == EUnitTableDecimals::Comma;
			}
			for (int32 Index = 1; Index + 1 < Text.Len(); ++Index)
			{
				if (Text[Index] == ',' && FChar::IsDigit(Text[Index - 1]) && FChar::IsDigit(Text[Index + 1]))
				{
					return true;
				}
			}
			return false;
		}

		static FString Normalise(const FString& Text)
		{
			return Text.TrimStartAndEnd().ToLower();
		}

		void ReadHeader()
		{
			TMap<FString, int32> Wanted;
			for (const TPair<FString, FUnitTableColumn>& Pair : Mapping.Columns)
			{
				Wanted.Add(Normalise(Pair.Key), Columns.Add(FColumn{&Pair.Value, Pair.Key, {}}));
				for (const TPair<FString, FString>& Value : Pair.Value.Values)
				{
					Columns.Last().Values.Add(Normalise(Value.Key), Value.Value);
				}
			}
			bool bId = false;
			for (int32 Place = 0; Place < Rows.Num(); ++Place)
			{
				int32 Column = INDEX_NONE;
				// Of two columns of one name the first one counts.
				if (Wanted.RemoveAndCopyValue(Normalise(Rows[Place].Text), Column))
				{
					bId |= Columns[Column].Mapping->Field == EUnitTableField::Id;
				}
				else if (!Rows[Place].Text.TrimStartAndEnd().IsEmpty())
				{
					LeftOut.Add(Rows[Place].Text.TrimStartAndEnd().Left(MaxHeaderInLog));
				}
				ColumnOfPlace.Add(Column);
			}
			for (const TPair<FString, int32>& Pair : Wanted)
			{
				if (!Mapping.bAllColumnsNeeded)
				{
					break;
				}
				Problems.Add(Rows[0].Line, Rows[0].Column, FString::Printf(TEXT("there is no column \"%s\""), *Columns[Pair.Value].Header));
			}
			if (!bId)
			{
				Problems.Add(Rows[0].Line, Rows[0].Column, TEXT("no column holds the ids of the units"));
			}
		}

		void ReadRow()
		{
			FProjectUnit Unit;
			int32 NumBoundsRead = 0;
			double Bounds[NumBounds] = {};
			const FTableCell First = Rows[0];
			for (int32 Place = 0; Place < Rows.Num(); ++Place)
			{
				if (Place >= ColumnOfPlace.Num())
				{
					Problems.Add(Rows[Place].Line, Rows[Place].Column, FString::Printf(TEXT("the row has %d cells, the header %d"), Rows.Num(), ColumnOfPlace.Num()));
					break;
				}
				if (ColumnOfPlace[Place] != INDEX_NONE)
				{
					ReadCell(Rows[Place], Columns[ColumnOfPlace[Place]], Unit.Data, Bounds, NumBoundsRead);
				}
			}
			AddUnit(Unit, First, Bounds, NumBoundsRead);
		}

		void AddUnit(FProjectUnit& Unit, const FTableCell& First, const double* Bounds, int32 NumBoundsRead)
		{
			bool bAlreadyThere = false;
			if (!Unit.Data.UnitId.IsNone())
			{
				Ids.Add(Unit.Data.UnitId, &bAlreadyThere);
			}
			if (Unit.Data.UnitId.IsNone() || bAlreadyThere)
			{
				Problems.Add(First.Line, First.Column, bAlreadyThere
					? FString::Printf(TEXT("id: there is a unit %s already: this row is left out"), *Unit.Data.UnitId.ToString())
					: FString(TEXT("id: a unit needs one: this row is left out")));
				return;
			}
			if (NumBoundsRead > 0)
			{
				Unit.Volume = FUnitVolumeShape::MakeBox(FVector(Bounds[0], Bounds[1], Bounds[2]), FVector(Bounds[3], Bounds[4], Bounds[5]));
				if (NumBoundsRead != NumBounds || !Unit.Volume.HasVolume())
				{
					Unit.Volume = FUnitVolumeShape();
					Problems.Add(First.Line, First.Column, FString::Printf(TEXT("%s: bounds: expected six of them, each minimum below its maximum"), *Unit.Data.UnitId.ToString()));
				}
			}
			Units.Add(MoveTemp(Unit));
		}

		struct FColumn
		{
			const FUnitTableColumn* Mapping;
			FString Header;
			TMap<FString, FString> Values;
		};

		void ReadCell(const FTableCell& Cell, const FColumn& Column, FUnitData& Unit, double* Bounds, int32& NumBoundsRead)
		{
			FString Text = Cell.Text.TrimStartAndEnd();
			if (!Column.Values.IsEmpty())
			{
				if (const FString* const Value = Column.Values.Find(Text.ToLower()))
				{
					Text = *Value;
				}
			}
			if (Text.IsEmpty())
			{
				return;
			}
			const EUnitTableField Field = Column.Mapping->Field;
			const TCHAR* Expected = nullptr;
			double Number = 0.0;
			if (Field >= EUnitTableField::MinX)
			{
				const bool bTaken = FTableNumber::Parse(Text, bDecimalComma, Number) && FMath::Abs(Number * Mapping.CentimetresPerUnit) <= MaxCoordinate;
				Bounds[int32(Field) - int32(EUnitTableField::MinX)] = Number * Mapping.CentimetresPerUnit;
				NumBoundsRead += bTaken ? 1 : 0;
				Expected = bTaken ? nullptr : TEXT("a length");
			}
			else if (!FUnitRecordFields::IsNumber(EUnitRecordField(Field)))
			{
				Text = FTableFormulaGuard::Remove(Text);
				Expected = Fields.SetText(Unit, EUnitRecordField(Field), Text);
			}
			else
			{
				Expected = FTableNumber::Parse(Text, bDecimalComma, Number) ? Fields.SetNumber(Unit, EUnitRecordField(Field), Number) : TEXT("a number");
			}
			if (Expected)
			{
				Problems.Add(Cell.Line, Cell.Column, FString::Printf(TEXT("%s: expected %s, found \"%s\""), *Column.Header, Expected, *Text.Left(40)));
			}
		}

		FTableRows Rows;
		const FUnitTableMapping& Mapping;
		TArray<FProjectUnit>& Units;
		FReadProblems& Problems;
		const bool bDecimalComma;
		TArray<FColumn> Columns;
		/** The column of each place of a row; INDEX_NONE where it is left out. */
		TArray<int32> ColumnOfPlace;
		FUnitRecordFields Fields;
		TSet<FName> Ids;
		TArray<FString> LeftOut;
	};

	/** @param OutLeftOut	headers of the columns that are not read */
	bool ReadTable(TConstArrayView<uint8> Bytes, const FUnitTableMapping& Mapping, TArray<FProjectUnit>& OutUnits, FReadProblems& Problems, TArray<FString>& OutLeftOut)
	{
		OutUnits.Reset();
		FString Text;
		FFileHelper::BufferToString(Text, Bytes.GetData(), Bytes.Num());
		FUnitTable Table(Text, Mapping, OutUnits, Problems);
		const bool bRead = Table.Read();
		OutLeftOut = Table.GetLeftOut();
		return bRead;
	}
}

bool FUnitTableReader::LoadFile(const FString& Filename, const FUnitTableMapping& Mapping, TArray<FProjectUnit>& OutUnits)
{
	FReadProblems Problems(Filename);
	TArray<uint8> Bytes;
	bool bRead = false;
	OutUnits.Reset();
	if (FFileHelper::LoadFileToArray(Bytes, *Filename, FILEREAD_Silent))
	{
		TArray<FString> LeftOut;
		bRead = ReadTable(Bytes, Mapping, OutUnits, Problems, LeftOut);
		if (!LeftOut.IsEmpty())
		{
			UE_LOG(LogHalvexSDK, Display, TEXT("%s: columns that the mapping does not name are left out: %s"), *Filename, *FString::Join(LeftOut, TEXT(", ")));
		}
	}
	else
	{
		Problems.Add(0, 0, TEXT("the file cannot be read"));
	}
	Problems.Log();
	return bRead;
}

bool FUnitTableReader::ReadBytes(TConstArrayView<uint8> Bytes, const FUnitTableMapping& Mapping, TArray<FProjectUnit>& OutUnits, FReadProblems& Problems)
{
	TArray<FString> LeftOut;
	return ReadTable(Bytes, Mapping, OutUnits, Problems, LeftOut);
}
