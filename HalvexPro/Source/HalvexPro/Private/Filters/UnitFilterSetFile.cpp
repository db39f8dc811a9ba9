#include "Filters/UnitFilterSetFile.h"

#include "Dom/JsonObject.h"
#include "Dom/JsonValue.h"
#include "Filters/UnitColumns.h"
#include "HAL/FileManager.h"
#include "Project/JsonRoot.h"
#include "Project/SafeFile.h"
#include "Serialization/JsonSerializer.h"
#include "Serialization/JsonWriter.h"
#include "UObject/Class.h"

namespace
{
	const TCHAR* const Format = TEXT("unit-filters");

	/** Sets are small: a larger file is something else. */
	constexpr int64 MaxFileSize = 1024 * 1024;

	/** Names of enumerators begin with a small letter in files, as all names there do. */
	FString ToFileName(FString Name)
	{
		if (!Name.IsEmpty())
		{
			Name[0] = FChar::ToLower(Name[0]);
		}
		return Name;
	}

	FString DescribeKind(EUnitFilterKind Kind)
	{
		return ToFileName(StaticEnum<EUnitFilterKind>()->GetNameStringByValue(int64(Kind)));
	}

	/** The enumeration that the fields of a kind belong to; null for a kind without a field. */
	const UEnum* GetFields(EUnitFilterKind Kind)
	{
		switch (Kind)
		{
		case EUnitFilterKind::Number:
			return StaticEnum<EUnitNumberField>();
		case EUnitFilterKind::Choice:
			return StaticEnum<EUnitChoiceField>();
		case EUnitFilterKind::Text:
			return StaticEnum<EUnitTextField>();
		default:
			return nullptr;
		}
	}

	/** The name of the enumerator that a file calls so; empty when there is none. The case counts. */
	FString FindEnumerator(const UEnum& Enum, const FString& FileName)
	{
		for (int32 Index = 0; Index < Enum.NumEnums(); ++Index)
		{
			const FString Name = Enum.GetNameStringByIndex(Index);
			// An enumeration may end with one that only marks its end.
			if (!Name.EndsWith(TEXT("_MAX")) && ToFileName(Name).Equals(FileName, ESearchCase::CaseSensitive))
			{
				return Name;
			}
		}
		return FString();
	}

	TSharedRef<FJsonObject> WriteRecord(const FUnitFilterRecord& Record)
	{
		const TSharedRef<FJsonObject> Object = MakeShared<FJsonObject>();
		Object->SetStringField(TEXT("kind"), DescribeKind(Record.Kind));
		if (GetFields(Record.Kind))
		{
			Object->SetStringField(TEXT("field"), ToFileName(Record.Field.ToString()));
		}
		switch (Record.Kind)
		{
		case EUnitFilterKind::Number:
			if (Record.HasMinimum())
			{
				Object->SetNumberField(TEXT("minimum"), Record.Minimum);
			}
			if (Record.HasMaximum())
			{
				Object->SetNumberField(TEXT("maximum"), Record.Maximum);
			}
			break;
		case EUnitFilterKind::Choice:
		{
			TArray<TSharedPtr<FJsonValue>> Values;
			for (const FName& Value : Record.Values)
			{
				Values.Add(MakeShared<FJsonValueString>(Value.ToString()));
			}
			Object->SetArrayField(TEXT("values"), Values);
			break;
		}
		case EUnitFilterKind::Text:
			Object->SetStringField(TEXT("text"), Record.Text);
			break;
		case EUnitFilterKind::Availability:
			Object->SetBoolField(TEXT("includeReserved"), Record.bIncludeReserved);
			break;
		}
		return Object;
	}

	/** Reads one end of a range. False when it is there and no number. */
	bool ReadLimit(const FJsonObject& Object, const TCHAR* Member, double& OutLimit)
	{
		double Number = 0.0;
		if (!Object.HasField(Member))
		{
			return true;
		}
		if (!Object.TryGetNumberField(Member, Number) || !FMath::IsFinite(Number))
		{
			return false;
		}
		OutLimit = Number;
		return true;
	}

	/** Empty when the values of the record were read, else what was expected. */
	FString ReadValues(const FJsonObject& Object, FUnitFilterRecord& Record)
	{
		TArray<FString> Values;
		switch (Record.Kind)
		{
		case EUnitFilterKind::Number:
			return ReadLimit(Object, TEXT("minimum"), Record.Minimum) && ReadLimit(Object, TEXT("maximum"), Record.Maximum) ? FString() : FString(TEXT("minimum and maximum: expected numbers"));
		case EUnitFilterKind::Choice:
			if (!Object.TryGetStringArrayField(TEXT("values"), Values))
			{
				return TEXT("values: expected a list of texts");
			}
			for (const FString& Value : Values)
			{
				Record.Values.Add(FName(*Value));
			}
			return FString();
		case EUnitFilterKind::Text:
			return Object.TryGetStringField(TEXT("text"), Record.Text) ? FString() : FString(TEXT("text: expected a text"));
		default:
			return Object.TryGetBoolField(TEXT("includeReserved"), Record.bIncludeReserved) ? FString() : FString(TEXT("includeReserved: expected true or false"));
		}
	}

	/** Empty when the record was read, else what is wrong with it. */
	FString ReadRecord(const FJsonValue& Value, FUnitFilterRecord& Record)
	{
		const TSharedPtr<FJsonObject>* Object = nullptr;
		FString Name;
		if (!Value.TryGetObject(Object) || !(*Object)->TryGetStringField(TEXT("kind"), Name))
		{
			return TEXT("expected an object with a kind");
		}
		const FString Kind = FindEnumerator(*StaticEnum<EUnitFilterKind>(), Name);
		if (Kind.IsEmpty())
		{
			return FString::Printf(TEXT("kind: expected \"number\", \"choice\", \"text\" or \"availability\", found \"%s\""), *Name.Left(40));
		}
		Record.Kind = EUnitFilterKind(StaticEnum<EUnitFilterKind>()->GetValueByNameString(Kind));
		if (const UEnum* const Fields = GetFields(Record.Kind))
		{
			if (!(*Object)->TryGetStringField(TEXT("field"), Name))
			{
				return TEXT("field: expected the name of a property of units");
			}
			const FString Field = FindEnumerator(*Fields, Name);
			if (Field.IsEmpty())
			{
				return FString::Printf(TEXT("field: units have no %s \"%s\""), *DescribeKind(Record.Kind), *Name.Left(40));
			}
			Record.Field = FName(*Field);
		}
		return ReadValues(**Object, Record);
	}
}

FString FUnitFilterSetFile::ToJson(const FUnitFilterSet& Set)
{
	const TSharedRef<FJsonObject> Root = MakeShared<FJsonObject>();
	Root->SetStringField(TEXT("format"), Format);
	Root->SetNumberField(TEXT("version"), Version);
	Root->SetStringField(TEXT("name"), Set.Name);
	TArray<TSharedPtr<FJsonValue>> Filters;
	for (const FUnitFilterRecord& Record : Set.Filters)
	{
		Filters.Add(MakeShared<FJsonValueObject>(WriteRecord(Record)));
	}
	Root->SetArrayField(TEXT("filters"), Filters);
	FString Text;
	FJsonSerializer::Serialize(Root, TJsonWriterFactory<>::Create(&Text));
	return Text;
}

bool FUnitFilterSetFile::FromJson(const FString& Text, FUnitFilterSet& OutSet, FReadProblems& Problems)
{
	OutSet = FUnitFilterSet();
	const TSharedPtr<FJsonObject> Root = FJsonRoot::Read(Text, Problems);
	if (!Root)
	{
		return false;
	}
	FString FoundFormat;
	if (!Root->TryGetStringField(TEXT("format"), FoundFormat) || FoundFormat != Format)
	{
		Problems.Add(0, 0, FString::Printf(TEXT("this is no set of filters: expected the format \"%s\""), Format));
		return false;
	}
	int32 FoundVersion = 0;
	if (!Root->TryGetNumberField(TEXT("version"), FoundVersion) || FoundVersion != Version)
	{
		Problems.Add(0, 0, FString::Printf(TEXT("version: expected %d, found %d"), Version, FoundVersion));
		return false;
	}
	Root->TryGetStringField(TEXT("name"), OutSet.Name);
	OutSet.Name.TrimStartAndEndInline();
	const TArray<TSharedPtr<FJsonValue>>* Filters = nullptr;
	if (!Root->TryGetArrayField(TEXT("filters"), Filters))
	{
		Problems.Add(0, 0, TEXT("filters: expected a list of filters"));
		return true;
	}
	for (int32 Index = 0; Index < Filters->Num(); ++Index)
	{
		FUnitFilterRecord Record;
		const FString Wrong = ReadRecord(*(*Filters)[Index], Record);
		if (Wrong.IsEmpty())
		{
			OutSet.Filters.Add(MoveTemp(Record));
		}
		else
		{
			Problems.Add(0, 0, FString::Printf(TEXT("filters[%d]: %s: it is left out"), Index, *Wrong));
		}
	}
	return true;
}

bool FUnitFilterSetFile::Save(const FString& Filename, const FUnitFilterSet& Set)
{
	return FSafeFile::SaveText(Filename, ToJson(Set), FFileHelper::EEncodingOptions::ForceUTF8WithoutBOM);
}

bool FUnitFilterSetFile::Load(const FString& Filename, FUnitFilterSet& OutSet)
{
	FReadProblems Problems(Filename);
	const bool bRead = Read(Filename, OutSet, Problems);
	Problems.Log();
	return bRead;
}

bool FUnitFilterSetFile::Read(const FString& Filename, FUnitFilterSet& OutSet, FReadProblems& Problems)
{
	OutSet = FUnitFilterSet();
	if (IFileManager::Get().FileSize(*Filename) > MaxFileSize)
	{
		Problems.Add(0, 0, TEXT("the file is too large for a set of filters"));
		return false;
	}
	FString Text;
	if (!FFileHelper::LoadFileToString(Text, *Filename, FFileHelper::EHashOptions::None, FILEREAD_Silent))
	{
		Problems.Add(0, 0, TEXT("the file cannot be read"));
		return false;
	}
	return FromJson(Text, OutSet, Problems);
}
