// Feeds any bytes to the reader of projects, and looks at what it takes for units.

#include "CoreMinimal.h"
#include "Host/JsonDocument.h"
#include "Project/ProjectReader.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8* Data, std::size_t Size)
{
	FProjectData Project;
	FReadProblems Problems(TEXT("Fuzz"));
	const bool bWhole = FProjectReader::ReadBytes(MakeArrayView(Data, int32(Size)), Project, Problems);
	check(bWhole || !Problems.IsEmpty());

	TSet<FName> Ids;
	for (const FProjectUnit& Unit : Project.Units)
	{
		bool bAlreadyThere = false;
		Ids.Add(Unit.Data.UnitId, &bAlreadyThere);
		check(!bAlreadyThere && !Unit.Data.UnitId.IsNone());
		check(Unit.Data.Area >= 0.0f && Unit.Data.Price >= 0.0 && Unit.Data.Rooms >= 0);
		const FUnitVolumeShape& Volume = Unit.Volume;
		check(!Volume.HasVolume() || Volume.GetGroundArea() > 0.0);
		Volume.Contains((Volume.Min + Volume.Max) / 2.0);
	}

	TSet<FName> ProductKeys;
	for (const FCatalogueCategory& Category : Project.Catalogue.Categories)
	{
		check(!Category.CategoryId.IsNone() && !Category.CategoryId.ToString().Contains(TEXT(".")));
		for (const FCatalogueSubCategory& SubCategory : Category.SubCategories)
		{
			bool bDefaultFound = SubCategory.DefaultProduct.IsNone();
			for (const FCatalogueVariant& Variant : SubCategory.Variants)
			{
				bool bAlreadyThere = false;
				ProductKeys.Add(Variant.Product.ProductKey, &bAlreadyThere);
				check(!bAlreadyThere && !Variant.Product.ProductKey.IsNone() && Variant.Product.Price >= 0.0);
				bDefaultFound |= Variant.Product.ProductKey == SubCategory.DefaultProduct;
				for (const FVariantSurfaceLook& Look : Variant.Looks)
				{
					check(!Look.Surface.IsNone() && Look.Roughness >= 0.0f && Look.Roughness <= 1.0f);
				}
			}
			check(bDefaultFound);
		}
	}
	for (const FProjectInterior& Interior : Project.Interiors)
	{
		for (const FInteriorPart& Part : Interior.Parts)
		{
			check(Part.Shape.HasVolume());
		}
	}

	// A text that a whole document takes is read to its end here as well, unless its format is of another version.
	Host::FJsonDocument Document;
	if (Document.Parse(Data, int64(Size), TEXT("Fuzz")) && Document.GetRoot().IsObject() && !Document.GetRoot().Find(TEXT("format")))
	{
		check(bWhole || Document.GetErrors().Num() > 0);
	}
	return 0;
}
