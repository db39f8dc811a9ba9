#include "EngineTest.h"

#include "Misc/Paths.h"
#include "Project/ProjectReader.h"

namespace
{
	using Host::ToStd;

	class FSampleProjectTest : public testing::Test
	{
	protected:
		FSampleProjectTest()
			: Folder(FString(HALVEX_SOURCE_DIR) + TEXT("/Viewer/Projects/Quayside"))
		{
			EXPECT_TRUE(FProjectReader::LoadFolder(Folder, Project));
		}

		/** In the middle of a unit's corners, at half its height. */
		static FVector Middle(const FUnitVolumeShape& Volume)
		{
			const TArray<FVector2D> Corners = Volume.GetCorners();
			FVector2D Sum = FVector2D::ZeroVector;
			for (const FVector2D& Corner : Corners)
			{
				Sum += Corner;
			}
			return FVector(Sum.X / Corners.Num(), Sum.Y / Corners.Num(), (Volume.Min.Z + Volume.Max.Z) / 2.0);
		}

		/** Whether one of the corners, drawn in a little, has a unit of the storey below under it. */
		bool StandsOnAUnit(const FProjectUnit& Unit) const
		{
			const FVector Inside = Middle(Unit.Volume);
			for (const FVector2D& Corner : Unit.Volume.GetCorners())
			{
				const FVector Foot(FMath::Lerp(Corner.X, Inside.X, 0.2), FMath::Lerp(Corner.Y, Inside.Y, 0.2), Unit.Volume.Min.Z);
				const auto IsBelow = [&Unit, &Foot](const FProjectUnit& Below)
				{
					return Below.Data.Level == Unit.Data.Level - 1 && Below.Volume.Max.Z == Foot.Z && Below.Volume.Contains(Foot);
				};
				if (Project.Units.ContainsByPredicate(IsBelow))
				{
					return true;
				}
			}
			return false;
		}

		FString Folder;
		FProjectData Project;
	};

	TEST_F(FSampleProjectTest, QuaysideIsReadWithoutAProblem)
	{
		EXPECT_EQ(ToStd(Project.Name), "Quayside");
		EXPECT_EQ(Project.Groups.Num(), 3);
		EXPECT_EQ(Project.Units.Num(), 262);
		EXPECT_EQ(Project.Spots.Num(), 6);
	}

	TEST_F(FSampleProjectTest, PicturesAreThere)
	{
		EXPECT_EQ(Project.Images.Num(), 88);
		for (const FProjectImage& Image : Project.Images)
		{
			EXPECT_TRUE(FPaths::FileExists(Folder / Image.Address)) << ToStd(Image.Address);
		}
	}

	TEST_F(FSampleProjectTest, StoreysStandOnEachOther)
	{
		for (const FProjectUnit& Unit : Project.Units)
		{
			ASSERT_TRUE(Unit.Volume.HasVolume()) << ToStd(Unit.Data.UnitId);
			EXPECT_TRUE(Unit.Data.Level == 0 ? Unit.Volume.Min.Z == 0.0 : StandsOnAUnit(Unit)) << ToStd(Unit.Data.UnitId);
		}
	}

	TEST_F(FSampleProjectTest, NoUnitReachesIntoAnother)
	{
		for (const FProjectUnit& Unit : Project.Units)
		{
			for (const FProjectUnit& Other : Project.Units)
			{
				EXPECT_TRUE(&Unit == &Other || !Other.Volume.Contains(Middle(Unit.Volume))) << ToStd(Unit.Data.UnitId) << " in " << ToStd(Other.Data.UnitId);
			}
		}
	}

	TEST_F(FSampleProjectTest, AreasFitTheVolumes)
	{
		for (const FProjectUnit& Unit : Project.Units)
		{
			EXPECT_NEAR(Unit.Data.Area, Unit.Volume.GetGroundArea() * 0.86 / 1e4, 0.06) << ToStd(Unit.Data.UnitId);
			EXPECT_TRUE(Unit.Data.Price > 0.0 || Unit.Data.Status == EUnitStatus::NotForSale);
		}
	}

	TEST_F(FSampleProjectTest, CatalogueIsLargeAndEachOfItHasAPicture)
	{
		int32 NumSubCategories = 0;
		int32 NumProducts = 0;
		for (const FCatalogueCategory& Category : Project.Catalogue.Categories)
		{
			EXPECT_FALSE(Category.Image.IsNone() || Category.Name.IsEmpty());
			NumSubCategories += Category.SubCategories.Num();
			for (const FCatalogueSubCategory& SubCategory : Category.SubCategories)
			{
				EXPECT_FALSE(SubCategory.Image.IsNone() || SubCategory.Name.IsEmpty() || SubCategory.DefaultProduct.IsNone());
				NumProducts += SubCategory.Variants.Num();
				for (const FCatalogueVariant& Variant : SubCategory.Variants)
				{
					const FHalvexConfigProduct& Product = Variant.Product;
					EXPECT_FALSE(Product.Image.IsNone() || Product.Name.IsEmpty() || Product.Maker.IsEmpty() || Product.Description.IsEmpty()) << ToStd(Product.ProductKey);
					EXPECT_FALSE(Variant.Looks.IsEmpty()) << ToStd(Product.ProductKey);
				}
			}
		}
		EXPECT_EQ(Project.Catalogue.Categories.Num(), 5);
		EXPECT_EQ(NumSubCategories, 17);
		EXPECT_EQ(NumProducts, 71);
	}

	TEST_F(FSampleProjectTest, EveryHomeHasRoomsAndProductsShowInAllOfThem)
	{
		EXPECT_EQ(Project.Interiors.Num(), 4);
		for (const FProjectUnit& Unit : Project.Units)
		{
			EXPECT_EQ(Unit.Data.Interior.IsNone(), Unit.Data.Type == FName(TEXT("Lobby"))) << ToStd(Unit.Data.UnitId);
		}
		for (const FProjectInterior& Interior : Project.Interiors)
		{
			for (const FCatalogueCategory& Category : Project.Catalogue.Categories)
			{
				for (const FCatalogueSubCategory& SubCategory : Category.SubCategories)
				{
					const FName Surface = SubCategory.Variants[0].Looks[0].Surface;
					const auto HasSurface = [Surface](const FInteriorPart& Part) { return Part.Surface == Surface; };
					EXPECT_TRUE(Interior.Parts.ContainsByPredicate(HasSurface)) << ToStd(Interior.InteriorId) << " " << ToStd(Surface);
				}
			}
		}
	}
}
