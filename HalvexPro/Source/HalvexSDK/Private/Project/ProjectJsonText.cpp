#include "Project/ProjectJsonText.h"

namespace
{
	/** 1000 kilometres, in centimetres. */
	constexpr double MaxCoordinate = 1e8;

	/** Sections in each other, at most: of the catalogue. */
	constexpr int32 UsualDepth = 6;

	/** What a decoder puts in the place of bytes that are no UTF-8. */
	constexpr TCHAR ReplacementCharacter = 0xFFFD;

	FUtf8StringView ViewBytes(TConstArrayView<uint8> Bytes)
	{
		return FUtf8StringView(reinterpret_cast<const UTF8CHAR*>(Bytes.GetData()), Bytes.Num());
	}
}

FProjectJsonText::FProjectJsonText(TConstArrayView<uint8> Bytes, FReadProblems& InProblems)
	: Reader(TJsonReaderFactory<UTF8CHAR>::CreateFromView(ViewBytes(Bytes)))
	, Problems(InProblems)
{
	Places.Reserve(UsualDepth);
}

void FProjectJsonText::ReadObjects(const TCHAR* Name, TFunctionRef<void()> ReadElement)
{
	if (Notation != EJsonNotation::ArrayStart)
	{
		ReportExpected(TEXT("an array"));
		Skip();
		return;
	}
	Places.Add(FPlace{Name, INDEX_NONE, FName()});
	Member.Reset();
	while (Next() && Notation != EJsonNotation::ArrayEnd)
	{
		++Places.Last().Index;
		SetKey(FName());
		if (Notation == EJsonNotation::ObjectStart)
		{
			ReadElement();
		}
		else
		{
			ReportExpected(TEXT("an object"));
			Skip();
		}
		Member.Reset();
	}
	Places.Pop();
}

void FProjectJsonText::ReadObject(const TCHAR* Name, TFunctionRef<void(const FString&)> ReadMember)
{
	if (Notation != EJsonNotation::ObjectStart)
	{
		ReportExpected(TEXT("an object"));
		Skip();
		return;
	}
	Places.Add(FPlace{Name, INDEX_NONE, FName()});
	ReadMembers(ReadMember);
	Places.Pop();
}

void FProjectJsonText::ReadMembers(TFunctionRef<void(const FString&)> ReadMember)
{
	while (Next() && Notation != EJsonNotation::ObjectEnd)
	{
		Member = Reader->GetIdentifier();
		ReadMember(Member);
		if (bBroken)
		{
			return;
		}
	}
	Member.Reset();
}

bool FProjectJsonText::ReadNumbers(TArray<double>& Out)
{
	Out.Reset();
	if (Notation != EJsonNotation::ArrayStart)
	{
		ReportExpected(TEXT("an array of centimetres"));
		Skip();
		return false;
	}
	bool bGood = true;
	while (Next() && Notation != EJsonNotation::ArrayEnd)
	{
		const bool bNumber = Notation == EJsonNotation::Number && IsPlace(Reader->GetValueAsNumber());
		if (bNumber)
		{
			Out.Add(Reader->GetValueAsNumber());
		}
		else if (bGood)
		{
			bGood = false;
			ReportExpected(TEXT("centimetres from -100000000 to 100000000"));
		}
		Skip();
	}
	return bGood && !bBroken;
}

bool FProjectJsonText::ReadLocation(FVector& Out)
{
	if (!ReadNumbers(Numbers))
	{
		return false;
	}
	if (Numbers.Num() != 3)
	{
		Report(FString::Printf(TEXT("expected x, y and z, found %d numbers"), Numbers.Num()));
		return false;
	}
	Out = FVector(Numbers[0], Numbers[1], Numbers[2]);
	return true;
}

bool FProjectJsonText::IsPlace(double Coordinate)
{
	return Coordinate >= -MaxCoordinate && Coordinate <= MaxCoordinate;
}

bool FProjectJsonText::ReadNumber(double& Out, double Minimum, double Maximum, const TCHAR* Expected)
{
	const bool bGood = Notation == EJsonNotation::Number && Reader->GetValueAsNumber() >= Minimum && Reader->GetValueAsNumber() <= Maximum;
	if (bGood)
	{
		Out = Reader->GetValueAsNumber();
	}
	else
	{
		ReportExpected(Expected);
	}
	Skip();
	return bGood;
}

bool FProjectJsonText::ReadColor(FLinearColor& Out)
{
	FString Text;
	if (!ReadString(Text))
	{
		return false;
	}
	bool bGood = Text.Len() == 7 && Text[0] == TEXT('#');
	for (int32 Place = 1; Place < Text.Len() && bGood; ++Place)
	{
		bGood = FChar::IsHexDigit(Text[Place]);
	}
	if (bGood)
	{
		Out = FLinearColor(FColor::FromHex(Text));
	}
	else
	{
		ReportExpected(TEXT("a colour as #RRGGBB"));
	}
	return bGood;
}

bool FProjectJsonText::ReadString(FString& Out)
{
	if (Notation != EJsonNotation::String)
	{
		ReportExpected(TEXT("a text"));
		Skip();
		return false;
	}
	Out = Reader->GetValueAsString();
	int32 Place = 0;
	if (Out.FindChar(ReplacementCharacter, Place))
	{
		Report(TEXT("the text has bytes that are no UTF-8"));
	}
	return true;
}

bool FProjectJsonText::ReadKey(FName& Out)
{
	FString Text;
	if (!ReadString(Text))
	{
		return false;
	}
	Out = FName(*Text);
	return true;
}

bool FProjectJsonText::Next()
{
	if (bBroken)
	{
		return false;
	}
	if (Reader->ReadNext(Notation) && Notation != EJsonNotation::Error)
	{
		return true;
	}
	if (!Reader->GetErrorMessage().IsEmpty())
	{
		Report(Reader->GetErrorMessage());
		bBroken = true;
	}
	return false;
}

void FProjectJsonText::Skip()
{
	const bool bStart = Notation == EJsonNotation::ObjectStart || Notation == EJsonNotation::ArrayStart;
	if (bStart && !(Notation == EJsonNotation::ObjectStart ? Reader->SkipObject() : Reader->SkipArray()))
	{
		Report(Reader->GetErrorMessage());
		bBroken = true;
	}
}

void FProjectJsonText::ReportUnknown()
{
	Report(TEXT("there is no such field"));
	Skip();
}

FString FProjectJsonText::DescribePlace() const
{
	FString Where;
	for (const FPlace& Place : Places)
	{
		Where += (Where.IsEmpty() ? TEXT("") : TEXT(": "));
		Where += Place.Section;
		if (Place.Index != INDEX_NONE)
		{
			Where += FString::Printf(TEXT("[%d]"), Place.Index);
		}
		if (!Place.Key.IsNone())
		{
			Where += TEXT(" (") + Place.Key.ToString() + TEXT(")");
		}
	}
	return Where;
}

void FProjectJsonText::Report(const FString& What)
{
	FString Where = DescribePlace();
	if (!Member.IsEmpty())
	{
		Where += (Where.IsEmpty() ? TEXT("") : TEXT(": ")) + Member;
	}
	Problems.Add(Reader->GetLineNumber(), Reader->GetCharacterNumber(), Where.IsEmpty() ? What : Where + TEXT(": ") + What);
}

void FProjectJsonText::ReportExpected(const TCHAR* Expected)
{
	Report(FString::Printf(TEXT("expected %s, found %s"), Expected, *DescribeValue()));
}

FString FProjectJsonText::DescribeValue() const
{
	switch (Notation)
	{
	case EJsonNotation::ObjectStart:
		return TEXT("an object");
	case EJsonNotation::ArrayStart:
		return TEXT("an array");
	case EJsonNotation::String:
		return TEXT("\"") + Reader->GetValueAsString().Left(40) + TEXT("\"");
	case EJsonNotation::Number:
		return Reader->GetValueAsNumberString().Left(40);
	case EJsonNotation::Boolean:
		return Reader->GetValueAsBoolean() ? TEXT("true") : TEXT("false");
	default:
		return TEXT("null");
	}
}
