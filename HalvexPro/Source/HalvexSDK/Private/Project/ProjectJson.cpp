#include "Project/ProjectJson.h"

namespace
{
	/** Of the format that this reads; a project of a later one is refused. */
	constexpr double FormatVersion = 1.0;

	constexpr int32 MaxCorners = 1000;

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
	: FProjectJsonText(Bytes, InProblems)
	, Project(InProject)
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
	SpreadCurrency();
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
	else if (Member == TEXT("interiors"))
	{
		ReadObjects(TEXT("interiors"), [this] { ReadInterior(); });
	}
	else if (Member == TEXT("catalogue"))
	{
		ReadCatalogue();
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
		ReportUnknown();
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
		ReportUnknown();
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
			SetKey(Unit.UnitId);
		}
		else if (Field == EUnitRecordField::Building)
		{
			Refer(Unit.Building, EKind::Group);
		}
		else if (Field == EUnitRecordField::Image)
		{
			Refer(Unit.Image, EKind::Image);
		}
		else if (Field == EUnitRecordField::Interior)
		{
			Refer(Unit.Interior, EKind::Interior);
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
			ReportUnknown();
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
			SetKey(Group.GroupId);
		}
		else if (Member == TEXT("name"))
		{
			ReadString(Group.Name);
		}
		else if (Member == TEXT("image"))
		{
			ReadImageKey(Group.Image);
		}
		else
		{
			ReportUnknown();
		}
	});
	if (TakeKey(GetIds(EKind::Group), Group.GroupId, TEXT("group")))
	{
		Project.Groups.Add(MoveTemp(Group));
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
			SetKey(Image.ImageId);
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
			ReportUnknown();
		}
	});
	if (TakeKey(GetIds(EKind::Image), Image.ImageId, TEXT("image")))
	{
		Project.Images.Add(MoveTemp(Image));
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
			SetKey(Spot.SpotId);
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
			ReadImageKey(Spot.Image);
		}
		else if (Member == TEXT("location"))
		{
			ReadLocation(Spot.Location);
		}
		else
		{
			ReportUnknown();
		}
	});
	if (TakeKey(SpotIds, Spot.SpotId, TEXT("spot")))
	{
		Project.Spots.Add(MoveTemp(Spot));
	}
}

void FProjectJson::ReadImageKey(FName& Out)
{
	ReadKey(Out);
	Refer(Out, EKind::Image);
}

bool FProjectJson::TakeKey(TSet<FName>& Taken, FName Id, const TCHAR* KindOfObject)
{
	bool bAlreadyThere = Id.IsNone();
	if (!bAlreadyThere)
	{
		Taken.Add(Id, &bAlreadyThere);
	}
	// A text that ends in the middle of an object has its own message.
	if (bAlreadyThere && !bBroken)
	{
		Member = TEXT("id");
		Report(FString::Printf(TEXT("expected a key that no other %s has: this one is left out"), KindOfObject));
	}
	return !bAlreadyThere;
}

void FProjectJson::Refer(FName To, EKind Kind)
{
	if (!To.IsNone() && !GetIds(Kind).Contains(To))
	{
		OpenReferences.Add(FOpenReference{To, DescribePlace() + TEXT(": ") + Member, Kind, Reader->GetLineNumber(), Reader->GetCharacterNumber()});
	}
}

void FProjectJson::CheckReferences()
{
	static const TCHAR* const Names[] = { TEXT("group"), TEXT("image"), TEXT("interior"), TEXT("surface") };
	static_assert(UE_ARRAY_COUNT(Names) == SIZE_T(EKind::Num));
	for (const FOpenReference& Reference : OpenReferences)
	{
		// A catalogue may be for rooms that the project does not show.
		const bool bNobodyHasAny = Reference.Kind == EKind::Surface && Project.Interiors.IsEmpty();
		if (!bNobodyHasAny && !GetIds(Reference.Kind).Contains(Reference.Key))
		{
			Problems.Add(Reference.Line, Reference.Column, FString::Printf(TEXT("%s: there is no %s '%s'"),
				*Reference.Field, Names[int32(Reference.Kind)], *Reference.Key.ToString()));
		}
	}
}

void FProjectJson::SpreadCurrency()
{
	const auto Spread = [this](FName& Currency)
	{
		if (Currency.IsNone())
		{
			Currency = Project.Currency;
		}
	};
	for (FProjectUnit& Unit : Project.Units)
	{
		Spread(Unit.Data.Currency);
	}
	for (FCatalogueCategory& Category : Project.Catalogue.Categories)
	{
		for (FCatalogueSubCategory& SubCategory : Category.SubCategories)
		{
			for (FCatalogueVariant& Variant : SubCategory.Variants)
			{
				Spread(Variant.Product.Currency);
			}
		}
	}
}
