#include "Project/ProjectJson.h"

namespace
{
	/** Of the format that this reads; a project of a later one is refused. */
	constexpr double FormatVersion = 1.0;

	/** 1000 kilometres, in centimetres. */
	constexpr double MaxCoordinate = 1e8;

	constexpr int32 MaxCorners = 1000;

	FUtf8StringView ViewBytes(TConstArrayView<uint8> Bytes)
	{
		return FUtf8StringView(reinterpret_cast<const UTF8CHAR*>(Bytes.GetData()), Bytes.Num());
	}

	/** What a decoder puts in the place of bytes that are no UTF-8. */
	constexpr TCHAR ReplacementCharacter = 0xFFFD;

	/** Whether a path from the project's folder leads out of it, or is none. */
	bool LeavesFolder(const FString& Address)
	{
		if (Address.StartsWith(TEXT("http://")) || Address.StartsWith(TEXT("https://")))
		{
			return false;
		}
		TArray<FString> Parts;
		Address.ParseIntoArray(Parts, TEXT("/"), false);
		return Address.IsEmpty() || Address.Contains(TEXT("\\")) || Address.Contains(TEXT(":")) || Parts.Contains(TEXT("..")) || Parts[0].IsEmpty();
	}
}

FProjectJson::FProjectJson(TConstArrayView<uint8> Bytes, FProjectData& InProject, FReadProblems& InProblems)
	: Reader(TJsonReaderFactory<UTF8CHAR>::CreateFromView(ViewBytes(Bytes)))
	, Project(InProject)
	, Problems(InProblems)
{
}

bool FProjectJson::Read()
{
	if (Next())
	{
		if (Notation == EJsonNotation::ObjectStart)
		{
			ReadMembers([this](const FString&) { ReadProjectMember(); });
		}
		else
		{
			ReportExpected(TEXT("an object"));
			bBroken = true;
		}
	}
	while (!bBroken && Next())
	{
	}
	CheckReferences();
	// Last, as the project's own may stand behind its units.
	for (FProjectUnit& Unit : Project.Units)
	{
		if (Unit.Data.Currency.IsNone())
		{
			Unit.Data.Currency = Project.Currency;
		}
	}
	return !bBroken;
}

void FProjectJson::ReadProjectMember()
{
	if (Member == TEXT("units"))
	{
		ReadObjects(TEXT("units"), [this] { ReadUnit(); });
	}
	else if (Member == TEXT("groups"))
	{
		ReadObjects(TEXT("groups"), [this] { ReadGroup(); });
	}
	else if (Member == TEXT("images"))
	{
		ReadObjects(TEXT("images"), [this] { ReadImage(); });
	}
	else if (Member == TEXT("spots"))
	{
		ReadObjects(TEXT("spots"), [this] { ReadSpot(); });
	}
	else if (Member == TEXT("id"))
	{
		ReadKey(Project.ProjectId);
	}
	else if (Member == TEXT("name"))
	{
		ReadString(Project.Name);
	}
	else if (Member == TEXT("description"))
	{
		ReadString(Project.Description);
	}
	else if (Member == TEXT("currency"))
	{
		ReadKey(Project.Currency);
	}
	else if (Member == TEXT("format"))
	{
		if (Notation != EJsonNotation::Number || Reader->GetValueAsNumber() != FormatVersion)
		{
			ReportExpected(TEXT("1"));
			bBroken = true;
		}
	}
	else
	{
		Report(TEXT("there is no such field"));
		Skip();
	}
}

void FProjectJson::ReadUnit()
{
	FProjectUnit& Unit = Project.Units.AddDefaulted_GetRef();
	EUnitRecordField Hint = EUnitRecordField::Id;
	ReadMembers([this, &Unit, &Hint](const FString&) { ReadUnitField(Unit, Hint); });
	FinishUnit(Unit);
}

void FProjectJson::FinishUnit(FProjectUnit& Unit)
{
	const FName Id = Unit.Data.UnitId;
	bool bAlreadyThere = false;
	if (!Id.IsNone() && !bBroken)
	{
		UnitIds.Add(Id, &bAlreadyThere);
	}
	if (!Id.IsNone() && !bAlreadyThere && !bBroken)
	{
		return;
	}
	// A text that ends in the middle of a unit has its own message.
	if (!bBroken)
	{
		Member = FUnitRecordFields::GetName(EUnitRecordField::Id);
		Report(Id.IsNone() ? TEXT("a unit needs one: it is left out") : TEXT("there is a unit of that id already: this one is left out"));
	}
	Project.Units.Pop();
}

void FProjectJson::ReadUnitField(FProjectUnit& Unit, EUnitRecordField& Hint)
{
	const EUnitRecordField Field = FUnitRecordFields::Find(Member, Hint);
	if (Field == EUnitRecordField::Num)
	{
		Report(TEXT("there is no such field"));
		Skip();
		return;
	}
	Hint = Field == EUnitRecordField::Volume ? EUnitRecordField::Id : EUnitRecordField(int32(Field) + 1);
	if (Field == EUnitRecordField::Volume)
	{
		ReadVolume(Unit.Volume);
	}
	else
	{
		ReadUnitValue(Unit.Data, Field);
	}
}

void FProjectJson::ReadUnitValue(FUnitData& Unit, EUnitRecordField Field)
{
	if (FUnitRecordFields::IsNumber(Field))
	{
		const TCHAR* const Expected = Notation == EJsonNotation::Number ? Fields.SetNumber(Unit, Field, Reader->GetValueAsNumber()) : TEXT("a number");
		if (Expected)
		{
			ReportExpected(Expected);
		}
	}
	else
	{
		FString Text;
		if (!ReadString(Text))
		{
			if (Field == EUnitRecordField::Status)
			{
				Unit.Status = EUnitStatus::NotForSale;
			}
			return;
		}
		if (const TCHAR* const Expected = Fields.SetText(Unit, Field, Text))
		{
			ReportExpected(Expected);
		}
		if (Field == EUnitRecordField::Id)
		{
			Key = Unit.UnitId;
		}
		else if (Field == EUnitRecordField::Building)
		{
			Refer(Unit.Building, TEXT("building"), true);
		}
		else if (Field == EUnitRecordField::Image)
		{
			Refer(Unit.Image, TEXT("image"), false);
		}
		return;
	}
	Skip();
}

void FProjectJson::ReadVolume(FUnitVolumeShape& OutVolume)
{
	if (Notation != EJsonNotation::ObjectStart)
	{
		ReportExpected(TEXT("an object"));
		Skip();
		return;
	}
	TArray<FVector2D> Outline;
	FVector Min = FVector::ZeroVector;
	FVector Max = FVector::ZeroVector;
	double Bottom = 0.0;
	double Top = 0.0;
	bool bOutline = false;
	bool bGood = true;
	ReadMembers([&](const FString&)
	{
		const bool bBottom = Member == TEXT("bottom");
		if (Member == TEXT("outline"))
		{
			bOutline = true;
			bGood &= ReadNumbers(Numbers);
			for (int32 Place = 0; Place + 1 < Numbers.Num() && bGood; Place += 2)
			{
				Outline.Emplace(Numbers[Place], Numbers[Place + 1]);
			}
			if (bGood && (Numbers.Num() % 2 != 0 || Outline.Num() < 3 || Outline.Num() > MaxCorners))
			{
				Report(FString::Printf(TEXT("expected x and y of 3 to %d corners, found %d numbers"), MaxCorners, Numbers.Num()));
				bGood = false;
			}
		}
		else if (bBottom || Member == TEXT("top"))
		{
			if (Notation == EJsonNotation::Number && IsPlace(Reader->GetValueAsNumber()))
			{
				(bBottom ? Bottom : Top) = Reader->GetValueAsNumber();
			}
			else
			{
				ReportExpected(TEXT("a height in centimetres"));
				bGood = false;
			}
			Skip();
		}
		else if (Member == TEXT("min"))
		{
			bGood &= ReadLocation(Min);
		}
		else if (Member == TEXT("max"))
		{
			bGood &= ReadLocation(Max);
		}
		else
		{
			Report(TEXT("there is no such field"));
			Skip();
		}
	});
	Member = TEXT("volume");
	if (!bGood || bBroken)
	{
		return;
	}
	FUnitVolumeShape Volume = bOutline ? FUnitVolumeShape::MakeExtrusion(MoveTemp(Outline), Bottom, Top) : FUnitVolumeShape::MakeBox(Min, Max);
	if (!Volume.HasVolume() || Volume.GetGroundArea() <= 0.0)
	{
		Report(TEXT("it encloses nothing: expected min below max, or an outline with bottom below top"));
		return;
	}
	OutVolume = MoveTemp(Volume);
}

void FProjectJson::ReadGroup()
{
	FProjectGroup Group;
	ReadMembers([this, &Group](const FString&)
	{
		if (Member == TEXT("id"))
		{
			ReadKey(Group.GroupId);
			Key = Group.GroupId;
		}
		else if (Member == TEXT("name"))
		{
			ReadString(Group.Name);
		}
		else if (Member == TEXT("image"))
		{
			ReadKey(Group.Image);
			Refer(Group.Image, TEXT("image"), false);
		}
		else
		{
			Report(TEXT("there is no such field"));
			Skip();
		}
	});
	bool bAlreadyThere = Group.GroupId.IsNone();
	if (!bAlreadyThere)
	{
		GroupIds.Add(Group.GroupId, &bAlreadyThere);
	}
	if (!bAlreadyThere)
	{
		Project.Groups.Add(MoveTemp(Group));
	}
	else if (!bBroken)
	{
		Member = TEXT("id");
		Report(TEXT("expected a key that no other group has: this one is left out"));
	}
}

void FProjectJson::ReadImage()
{
	FProjectImage Image;
	ReadMembers([this, &Image](const FString&)
	{
		if (Member == TEXT("id"))
		{
			ReadKey(Image.ImageId);
			Key = Image.ImageId;
		}
		else if (Member == TEXT("address"))
		{
			if (ReadString(Image.Address) && LeavesFolder(Image.Address))
			{
				ReportExpected(TEXT("an address, or a path inside the project's folder"));
				Image.Address.Reset();
			}
		}
		else if (Member == TEXT("title"))
		{
			ReadString(Image.Title);
		}
		else
		{
			Report(TEXT("there is no such field"));
			Skip();
		}
	});
	bool bAlreadyThere = Image.ImageId.IsNone();
	if (!bAlreadyThere)
	{
		ImageIds.Add(Image.ImageId, &bAlreadyThere);
	}
	if (!bAlreadyThere)
	{
		Project.Images.Add(MoveTemp(Image));
	}
	else if (!bBroken)
	{
		Member = TEXT("id");
		Report(TEXT("expected a key that no other image has: this one is left out"));
	}
}

void FProjectJson::ReadSpot()
{
	FProjectSpot Spot;
	ReadMembers([this, &Spot](const FString&)
	{
		if (Member == TEXT("id"))
		{
			ReadKey(Spot.SpotId);
			Key = Spot.SpotId;
		}
		else if (Member == TEXT("title"))
		{
			ReadString(Spot.Title);
		}
		else if (Member == TEXT("description"))
		{
			ReadString(Spot.Description);
		}
		else if (Member == TEXT("image"))
		{
			ReadKey(Spot.Image);
			Refer(Spot.Image, TEXT("image"), false);
		}
		else if (Member == TEXT("location"))
		{
			ReadLocation(Spot.Location);
		}
		else
		{
			Report(TEXT("there is no such field"));
			Skip();
		}
	});
	const bool bAlreadyThere = Project.Spots.ContainsByPredicate([&Spot](const FProjectSpot& Other) { return Other.SpotId == Spot.SpotId; });
	if (!Spot.SpotId.IsNone() && !bAlreadyThere)
	{
		Project.Spots.Add(MoveTemp(Spot));
	}
	else if (!bBroken)
	{
		Member = TEXT("id");
		Report(TEXT("expected a key that no other spot has: this one is left out"));
	}
}

void FProjectJson::ReadObjects(const TCHAR* Name, TFunctionRef<void()> ReadElement)
{
	if (Notation != EJsonNotation::ArrayStart)
	{
		ReportExpected(TEXT("an array"));
		Skip();
		return;
	}
	Section = Name;
	Index = INDEX_NONE;
	Member.Reset();
	while (Next() && Notation != EJsonNotation::ArrayEnd)
	{
		++Index;
		Key = FName();
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
	Section = TEXT("");
	Index = INDEX_NONE;
	Key = FName();
}

void FProjectJson::ReadMembers(TFunctionRef<void(const FString&)> ReadMember)
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

bool FProjectJson::ReadNumbers(TArray<double>& Out)
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

bool FProjectJson::ReadLocation(FVector& Out)
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

bool FProjectJson::IsPlace(double Coordinate) const
{
	return Coordinate >= -MaxCoordinate && Coordinate <= MaxCoordinate;
}

bool FProjectJson::ReadString(FString& Out)
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

bool FProjectJson::ReadKey(FName& Out)
{
	FString Text;
	if (!ReadString(Text))
	{
		return false;
	}
	Out = FName(*Text);
	return true;
}

bool FProjectJson::Next()
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

void FProjectJson::Skip()
{
	const bool bStart = Notation == EJsonNotation::ObjectStart || Notation == EJsonNotation::ArrayStart;
	if (bStart && !(Notation == EJsonNotation::ObjectStart ? Reader->SkipObject() : Reader->SkipArray()))
	{
		Report(Reader->GetErrorMessage());
		bBroken = true;
	}
}

void FProjectJson::Report(const FString& What)
{
	FString Where = Section;
	if (Index != INDEX_NONE)
	{
		Where += FString::Printf(TEXT("[%d]"), Index);
	}
	if (!Key.IsNone())
	{
		Where += TEXT(" (") + Key.ToString() + TEXT(")");
	}
	if (!Member.IsEmpty())
	{
		Where += (Where.IsEmpty() ? TEXT("") : TEXT(": ")) + Member;
	}
	Problems.Add(Reader->GetLineNumber(), Reader->GetCharacterNumber(), Where.IsEmpty() ? What : Where + TEXT(": ") + What);
}

void FProjectJson::ReportExpected(const TCHAR* Expected)
{
	Report(FString::Printf(TEXT("expected %s, found %s"), Expected, *DescribeValue()));
}

FString FProjectJson::DescribeValue() const
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

void FProjectJson::Refer(FName To, const TCHAR* Field, bool bGroup)
{
	if (!To.IsNone() && !(bGroup ? GroupIds : ImageIds).Contains(To))
	{
		OpenReferences.Add(FOpenReference{To, FString::Printf(TEXT("%s[%d] (%s): %s"), Section, Index, *Key.ToString(), Field), bGroup, Reader->GetLineNumber(), Reader->GetCharacterNumber()});
	}
}

void FProjectJson::CheckReferences()
{
	for (const FOpenReference& Reference : OpenReferences)
	{
		if (!(Reference.bGroup ? GroupIds : ImageIds).Contains(Reference.Key))
		{
			Problems.Add(Reference.Line, Reference.Column, FString::Printf(TEXT("%s: there is no %s '%s'"),
				*Reference.Field, Reference.bGroup ? TEXT("group") : TEXT("image"), *Reference.Key.ToString()));
		}
	}
}
