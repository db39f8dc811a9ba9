#pragma once

#include "Project/ProjectData.h"
#include "Project/ProjectJsonText.h"
#include "Project/UnitRecordFields.h"

/** One reading of a project's text. */
class FProjectJson : private FProjectJsonText
{
public:
	FProjectJson(TConstArrayView<uint8> Bytes, FProjectData& InProject, FReadProblems& InProblems);

	/** False when the text ends early. */
	bool Read();

private:
	/** What others refer to by its key. */
	enum class EKind : uint8
	{
		Group,
		Image,
		Interior,
		/** Of an interior. */
		Surface,
		Num
	};

	/** A reference to what had not been read yet when it was met. */
	struct FOpenReference
	{
		FName Key;
		FString Field;
		EKind Kind;
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

	void ReadInterior();
	void ReadInteriorPart(FProjectInterior& Interior);
	void ReadInteriorCamera(FInteriorCamera& OutCamera);

	void ReadCatalogue();
	void ReadCategory();
	void ReadSubCategory(FCatalogueCategory& Category, TSet<FName>& SubCategoryIds);
	void ReadProduct(FCatalogueSubCategory& SubCategory);
	void ReadLook(FCatalogueVariant& Variant);

	/** Reads a key of an image, which may come later. */
	void ReadImageKey(FName& Out);
	/** Whether the object that was read last has a key that none before had; with a problem when it has not. */
	bool TakeKey(TSet<FName>& Taken, FName Id, const TCHAR* KindOfObject);
	void Refer(FName Key, EKind Kind);
	void CheckReferences();
	/** Gives what names no currency that of the project. */
	void SpreadCurrency();

	TSet<FName>& GetIds(EKind Kind) { return Ids[int32(Kind)]; }

	FProjectData& Project;
	FUnitRecordFields Fields;
	TSet<FName> UnitIds;
	TSet<FName> SpotIds;
	TSet<FName> CategoryIds;
	TSet<FName> ProductIds;
	TSet<FName> Ids[int32(EKind::Num)];
	TArray<FOpenReference> OpenReferences;
};
