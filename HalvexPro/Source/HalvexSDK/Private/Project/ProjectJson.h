#pragma once

#include "CoreMinimal.h"
#include "Project/ProjectData.h"
#include "Project/ReadProblems.h"
#include "Project/UnitRecordFields.h"
#include "Serialization/JsonReader.h"

/** One reading of a project's text, token by token. */
class FProjectJson
{
public:
	FProjectJson(TConstArrayView<uint8> Bytes, FProjectData& InProject, FReadProblems& InProblems);

	/** False when the text ends early. */
	bool Read();

private:
	/** A reference to an image or a group that had not been read yet when it was met. */
	struct FOpenReference
	{
		FName Key;
		FString Field;
		bool bGroup;
		uint32 Line;
		uint32 Column;
	};

	void ReadProjectMember();
	void ReadUnit();
	void ReadUnitField(FProjectUnit& Unit, EUnitRecordField& Hint);
	void ReadUnitValue(FUnitData& Unit, EUnitRecordField Field);
	void FinishUnit(FProjectUnit& Unit);
	void ReadVolume(FUnitVolumeShape& OutVolume);
	void ReadGroup();
	void ReadImage();
	void ReadSpot();

	/** Calls ReadElement for each object of the array that comes next. */
	void ReadObjects(const TCHAR* Name, TFunctionRef<void()> ReadElement);
	/** Calls ReadMember for each member of the object whose start was read last. */
	void ReadMembers(TFunctionRef<void(const FString&)> ReadMember);
	/** Numbers of the array that comes next. False, with a problem, when it is none or holds anything else. */
	bool ReadNumbers(TArray<double>& Out);
	/** Coordinates in centimetres. */
	bool IsPlace(double Coordinate) const;
	bool ReadString(FString& Out);
	bool ReadKey(FName& Out);
	bool ReadLocation(FVector& Out);

	bool Next();
	/** Goes behind the value whose first token was read last. */
	void Skip();
	void Report(const FString& What);
	void ReportExpected(const TCHAR* Expected);
	FString DescribeValue() const;
	void Refer(FName Key, const TCHAR* Field, bool bGroup);
	void CheckReferences();

	TSharedRef<TJsonReader<UTF8CHAR>> Reader;
	FProjectData& Project;
	FReadProblems& Problems;
	EJsonNotation Notation = EJsonNotation::Null;
	bool bBroken = false;

	/** What is being read, for messages: "units[3] (N-101)". */
	const TCHAR* Section = TEXT("");
	int32 Index = INDEX_NONE;
	FName Key;
	/** The member being read; empty outside of one. */
	FString Member;

	FUnitRecordFields Fields;
	TSet<FName> UnitIds;
	TSet<FName> GroupIds;
	TSet<FName> ImageIds;
	TArray<FOpenReference> OpenReferences;
	/** Used again for each volume. */
	TArray<double> Numbers;
};
