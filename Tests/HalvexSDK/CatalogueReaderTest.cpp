#include "ProjectTextTest.h"

namespace
{
	using Host::ToStd;

	class FCatalogueReaderTest : public FProjectTextTest
	{
	protected:
		/** Reads a project of one subcategory with these products. */
		bool ReadProducts(const std::string& Products)
		{
			return Read(R"({"currency": "EUR", "catalogue": {"categories": [{"id": "Kitchen", "subCategories": [{"id": "Fronts", "products": [)" + Products + "]}]}]}}");
		}

		const FCatalogueSubCategory& GetFronts() const { return Project.Catalogue.Categories[0].SubCategories[0]; }
	};

	TEST_F(FCatalogueReaderTest, EveryFieldOfACatalogueIsRead)
	{
		EXPECT_TRUE(Read(R"({
	"currency": "EUR", "images": [{ "id": "oak", "address": "oak.png" }],
	"catalogue": { "selectByProductList": true, "categories": [
		{ "id": "Kitchen", "name": "The kitchen", "image": "oak", "subCategories": [
			{ "id": "Fronts", "name": "Fronts of cupboards", "image": "oak", "default": "fronts-oak", "products": [
				{ "id": "fronts-white", "name": "White" },
				{ "id": "fronts-oak", "name": "Oak", "maker": "Tannfeld", "description": "Oiled.", "image": "oak", "currency": "CHF", "price": 1450.5, "looks": [
					{ "surface": "Fronts", "color": "#FF0080", "roughness": 0.25 }, { "surface": "Handles", "color": "#000000" }] }] }] },
		{ "id": "Bath" }] }
})"));
		EXPECT_EQ(Messages(), "");
		EXPECT_TRUE(Project.Catalogue.bSelectByProductList);
		ASSERT_EQ(Project.Catalogue.Categories.Num(), 2);
		const FCatalogueCategory& Kitchen = Project.Catalogue.Categories[0];
		EXPECT_EQ(ToStd(Kitchen.CategoryId), "Kitchen");
		EXPECT_EQ(ToStd(Kitchen.Name), "The kitchen");
		EXPECT_EQ(ToStd(Kitchen.Image), "oak");
		ASSERT_EQ(Kitchen.SubCategories.Num(), 1);
		EXPECT_EQ(ToStd(GetFronts().SubCategoryId), "Fronts");
		EXPECT_EQ(ToStd(GetFronts().Name), "Fronts of cupboards");
		EXPECT_EQ(ToStd(GetFronts().Image), "oak");
		EXPECT_EQ(ToStd(GetFronts().DefaultProduct), "fronts-oak");
		ASSERT_EQ(GetFronts().Variants.Num(), 2);
		const FHalvexConfigProduct& White = GetFronts().Variants[0].Product;
		EXPECT_EQ(White.Price, 0.0);
		EXPECT_EQ(ToStd(White.Currency), "EUR");
		EXPECT_TRUE(GetFronts().Variants[0].Looks.IsEmpty());
		const FHalvexConfigProduct& Oak = GetFronts().Variants[1].Product;
		EXPECT_EQ(ToStd(Oak.ProductKey), "fronts-oak");
		EXPECT_EQ(ToStd(Oak.Name), "Oak");
		EXPECT_EQ(ToStd(Oak.Maker), "Tannfeld");
		EXPECT_EQ(ToStd(Oak.Description), "Oiled.");
		EXPECT_EQ(ToStd(Oak.Image), "oak");
		EXPECT_EQ(ToStd(Oak.Currency), "CHF");
		EXPECT_EQ(Oak.Price, 1450.5);
		const TArray<FVariantSurfaceLook>& Looks = GetFronts().Variants[1].Looks;
		ASSERT_EQ(Looks.Num(), 2);
		EXPECT_EQ(ToStd(Looks[0].Surface), "Fronts");
		EXPECT_EQ(Looks[0].Color, FLinearColor(FColor(0xFF, 0x00, 0x80)));
		EXPECT_EQ(Looks[0].Roughness, 0.25f);
		EXPECT_EQ(Looks[1].Roughness, FVariantSurfaceLook().Roughness);
	}

	TEST_F(FCatalogueReaderTest, WrongFieldsOfAProductAreNamedAndKeepTheirDefaults)
	{
		EXPECT_TRUE(ReadProducts("\n{\"id\": \"a\", \"price\": -1, \"name\": 3, \"colour\": \"red\"},\n{\"id\": \"b\", \"price\": \"12\"}, {\"id\": \"c\", \"price\": 7}"));
		EXPECT_EQ(Messages(),
			"project.json:2:22: catalogue: categories[0] (Kitchen): subCategories[0] (Fronts): products[0] (a): price: expected a price from 0 to 1000000000000, found -1\n"
			"project.json:2:34: catalogue: categories[0] (Kitchen): subCategories[0] (Fronts): products[0] (a): name: expected a text, found 3\n"
			"project.json:2:47: catalogue: categories[0] (Kitchen): subCategories[0] (Fronts): products[0] (a): colour: there is no such field\n"
			"project.json:3:22: catalogue: categories[0] (Kitchen): subCategories[0] (Fronts): products[1] (b): price: expected a price from 0 to 1000000000000, found \"12\"\n");
		ASSERT_EQ(GetFronts().Variants.Num(), 3);
		EXPECT_EQ(GetFronts().Variants[0].Product.Price, 0.0);
		EXPECT_EQ(GetFronts().Variants[2].Product.Price, 7.0);
	}

	TEST_F(FCatalogueReaderTest, LooksWithoutASurfaceOrAColourAreLeftOut)
	{
		for (const char* Color : { "\"FF0080\"", "\"#FF008\"", "\"#FF00801\"", "\"#GG0080\"", "\"red\"", "\"\"", "12", "null", "[1, 0, 0]" })
		{
			EXPECT_TRUE(ReadProducts(std::string(R"({"id": "a", "looks": [{"surface": "Floor", "color": )") + Color + R"(}, {"surface": "Wall", "color": "#ffFFff"}]})"));
			EXPECT_EQ(Problems->Num(), 2) << Messages();
			ASSERT_EQ(GetFronts().Variants[0].Looks.Num(), 1) << Color;
			EXPECT_EQ(GetFronts().Variants[0].Looks[0].Color, FLinearColor::White);
		}
		EXPECT_TRUE(ReadProducts(R"({"id": "a", "looks": [{"color": "#FF0000"}, {"surface": "Wall"}, 5]})"));
		EXPECT_EQ(Problems->Num(), 3) << Messages();
		EXPECT_TRUE(GetFronts().Variants[0].Looks.IsEmpty());
	}

	TEST_F(FCatalogueReaderTest, RoughnessOutsideOfItsRangeKeepsTheDefault)
	{
		EXPECT_TRUE(ReadProducts(R"({"id": "a", "looks": [{"surface": "Floor", "color": "#FF0000", "roughness": 1.5}]})"));
		EXPECT_EQ(Messages(), "project.json:1:192: catalogue: categories[0] (Kitchen): subCategories[0] (Fronts): products[0] (a): looks[0] (Floor): roughness: expected a number from 0 to 1, found 1.5\n");
		EXPECT_EQ(GetFronts().Variants[0].Looks[0].Roughness, FVariantSurfaceLook().Roughness);
	}

	TEST_F(FCatalogueReaderTest, KeysAreOfOneCategorySubcategoryAndProductOnly)
	{
		EXPECT_TRUE(Read(R"({"catalogue": {"categories": [
{"id": "Kitchen", "subCategories": [{"id": "Fronts", "products": [{"id": "oak"}, {"id": "OAK"}, {}]}, {"id": "fronts"}, {"id": "Top", "products": [{"id": "oak"}, {"id": "elm"}]}]},
{"id": "kitchen", "subCategories": [{"id": "Other"}]},
{"subCategories": []},
{"id": "Bath", "subCategories": [{"id": "Fronts"}]}]}})"));
		EXPECT_EQ(Problems->Num(), 6) << Messages();
		EXPECT_NE(Messages().find("project.json:2:94: catalogue: categories[0] (Kitchen): subCategories[0] (Fronts): products[1] (OAK): id: expected a key that no other product of the catalogue has: this one is left out\n"), std::string::npos) << Messages();
		ASSERT_EQ(Project.Catalogue.Categories.Num(), 2);
		const FCatalogueCategory& Kitchen = Project.Catalogue.Categories[0];
		ASSERT_EQ(Kitchen.SubCategories.Num(), 2);
		EXPECT_EQ(Kitchen.SubCategories[0].Variants.Num(), 1);
		ASSERT_EQ(Kitchen.SubCategories[1].Variants.Num(), 1);
		EXPECT_EQ(ToStd(Kitchen.SubCategories[1].Variants[0].Product.ProductKey), "elm");
		EXPECT_EQ(ToStd(Project.Catalogue.Categories[1].SubCategories[0].SubCategoryId), "Fronts");
	}

	TEST_F(FCatalogueReaderTest, FullStopsAreForSubcategoriesOnly)
	{
		EXPECT_TRUE(Read(R"({"catalogue": {"categories": [{"id": "A.B"}, {"id": "C", "subCategories": [{"id": "D.E"}]}]}})"));
		EXPECT_EQ(Messages(),
			"project.json:1:38: catalogue: categories[0] (A.B): id: expected a key without a full stop, found \"A.B\"\n"
			"project.json:1:43: catalogue: categories[0] (A.B): id: expected a key that no other category has: this one is left out\n");
		ASSERT_EQ(Project.Catalogue.Categories.Num(), 1);
		EXPECT_EQ(ToStd(Project.Catalogue.Categories[0].SubCategories[0].SubCategoryId), "D.E");
	}

	TEST_F(FCatalogueReaderTest, DefaultIsAProductOfTheSubcategory)
	{
		EXPECT_TRUE(Read(R"({"catalogue": {"categories": [{"id": "C", "subCategories": [
{"id": "A", "default": "a", "products": [{"id": "a"}]}, {"id": "B", "default": "a", "products": [{"id": "b"}]}]}]}})"));
		EXPECT_EQ(Messages(), "project.json:2:110: catalogue: categories[0] (C): subCategories[1] (B): default: there is no product 'a' here: nothing is active at first\n");
		EXPECT_EQ(ToStd(Project.Catalogue.Categories[0].SubCategories[0].DefaultProduct), "a");
		EXPECT_TRUE(Project.Catalogue.Categories[0].SubCategories[1].DefaultProduct.IsNone());
	}

	TEST_F(FCatalogueReaderTest, ReferencesToWhatIsNotThereAreNamed)
	{
		EXPECT_TRUE(Read(R"({"catalogue": {"categories": [{"id": "C", "image": "nowhere", "subCategories": [{"id": "S", "products": [
{"id": "a", "image": "far", "looks": [{"surface": "Flor", "color": "#FF0000"}, {"surface": "floor", "color": "#FF0000"}]}]}]}]},
"images": [{"id": "near", "address": "a.png"}], "interiors": [{"id": "flat", "parts": [{"surface": "Floor", "volume": {"min": [0, 0, 0], "max": [1, 1, 1]}}]}]})"));
		EXPECT_EQ(Messages(),
			"project.json:1:52: catalogue: categories[0] (C): image: there is no image 'nowhere'\n"
			"project.json:2:22: catalogue: categories[0] (C): subCategories[0] (S): products[0] (a): image: there is no image 'far'\n"
			"project.json:2:51: catalogue: categories[0] (C): subCategories[0] (S): products[0] (a): looks[0] (Flor): surface: there is no surface 'Flor'\n");
	}

	TEST_F(FCatalogueReaderTest, SurfacesAreAnybodysWhereNoInteriorIsShown)
	{
		EXPECT_TRUE(ReadProducts(R"({"id": "a", "looks": [{"surface": "Floor", "color": "#FF0000"}]})"));
		EXPECT_EQ(Messages(), "");
	}

	TEST_F(FCatalogueReaderTest, SectionsOfAnotherKindAreNamedAndTheOthersRead)
	{
		EXPECT_TRUE(Read(R"({"catalogue": [], "units": [{"id": "A"}]})"));
		EXPECT_EQ(Messages(), "project.json:1:15: catalogue: expected an object, found an array\n");
		EXPECT_EQ(Project.Units.Num(), 1);
		EXPECT_TRUE(Read(R"({"catalogue": {"selectByProductList": 1, "extra": {}, "categories": [{"id": "A", "subCategories": 3}]}, "units": [{"id": "A"}]})"));
		EXPECT_EQ(Messages(),
			"project.json:1:39: catalogue: selectByProductList: expected true or false, found 1\n"
			"project.json:1:51: catalogue: extra: there is no such field\n"
			"project.json:1:99: catalogue: categories[0] (A): subCategories: expected an array, found 3\n");
		EXPECT_EQ(Project.Catalogue.Categories.Num(), 1);
		EXPECT_EQ(Project.Units.Num(), 1);
	}
}
