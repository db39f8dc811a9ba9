#pragma once

#include "CoreMinimal.h"
#include "Project/ReadProblems.h"
#include "Serialization/JsonReader.h"

/** One reading of a text, token by token, that names each problem with its place. What is read is said by who derives from it. */
class FProjectJsonText
{
protected:
	FProjectJsonText(TConstArrayView<uint8> Bytes, FReadProblems& InProblems);

	/** Calls ReadElement for each object of the array that comes next. */
	void ReadObjects(const TCHAR* Name, TFunctionRef<void()> ReadElement);
	/** Calls ReadMember for each member of the object that comes next. */
	void ReadObject(const TCHAR* Name, TFunctionRef<void(const FString&)> ReadMember);
	/** Calls ReadMember for each member of the object whose start was read last. */
	void ReadMembers(TFunctionRef<void(const FString&)> ReadMember);
	/** Numbers of the array that comes next. False, with a problem, when it is none or holds anything else. */
	bool ReadNumbers(TArray<double>& Out);
	/** Coordinates in centimetres. */
	static bool IsPlace(double Coordinate);
	/** These leave Out as it is, with a problem, when something else comes next. */
	bool ReadNumber(double& Out, double Minimum, double Maximum, const TCHAR* Expected);
	bool ReadColor(FLinearColor& Out);
	bool ReadString(FString& Out);
	bool ReadKey(FName& Out);
	bool ReadLocation(FVector& Out);

	bool Next();
	/** Goes behind the value whose first token was read last. */
	void Skip();
	void Report(const FString& What);
	void ReportExpected(const TCHAR* Expected);
	/** Names a member that is not known, and goes behind it. */
	void ReportUnknown();
	FString DescribeValue() const;
	/** What is being read, for messages: "units[3] (N-101)". */
	FString DescribePlace() const;
	/** Names the object of the innermost array. */
	void SetKey(FName Key) { Places.Last().Key = Key; }

	TSharedRef<TJsonReader<UTF8CHAR>> Reader;
	FReadProblems& Problems;
	EJsonNotation Notation = EJsonNotation::Null;
	bool bBroken = false;
	/** The member being read; empty outside of one. */
	FString Member;
	/** Used again for each array of numbers. */
	TArray<double> Numbers;

private:
	/** An object in another, or in the array of that name. */
	struct FPlace
	{
		const TCHAR* Section;
		int32 Index;
		FName Key;
	};

	TArray<FPlace> Places;
};
