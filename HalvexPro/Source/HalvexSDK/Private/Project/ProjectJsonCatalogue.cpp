#include "Project/ProjectJson.h"

void FProjectJson::ReadCatalogue()
{
	ReadObject(TEXT("catalogue"), [this](const FString&)
	{
		if (Member == TEXT("selectByProductList"))
		{
			if (Notation == EJsonNotation::Boolean)
			{
				Project.Catalogue.bSelectByProductList = Reader->GetValueAsBoolean();
			}
			else
			{
				ReportExpected(TEXT("true or false"));
				Skip();
			}
		}
		else if (Member == TEXT("categories"))
		{
			ReadObjects(TEXT("categories"), [this] { ReadCategory(); });
		}
		else
		{
			ReportUnknown();
		}
	});
}

void FProjectJson::ReadCategory()
{
	FCatalogueCategory Category;
	TSet<FName> SubCategoryIds;
	ReadMembers([this, &Category, &SubCategoryIds](const FString&)
	{
		if (Member == TEXT("id"))
		{
			ReadKey(Category.CategoryId);
			SetKey(Category.CategoryId);
			if (Category.CategoryId.ToString().Contains(TEXT(".")))
			{
				ReportExpected(TEXT("a key without a full stop"));
				Category.CategoryId = FName();
			}
		}
		else if (Member == TEXT("name"))
		{
			ReadString(Category.Name);
		}
		else if (Member == TEXT("image"))
		{
			ReadImageKey(Category.Image);
		}
		else if (Member == TEXT("subCategories"))
		{
			ReadObjects(TEXT("subCategories"), [this, &Category, &SubCategoryIds] { ReadSubCategory(Category, SubCategoryIds); });
		}
		else
		{
			ReportUnknown();
		}
	});
	if (TakeKey(CategoryIds, Category.CategoryId, TEXT("category")))
	{
		Project.Catalogue.Categories.Add(MoveTemp(Category));
	}
}

void FProjectJson::ReadSubCategory(FCatalogueCategory& Category, TSet<FName>& SubCategoryIds)
{
	FCatalogueSubCategory SubCategory;
	ReadMembers([this, &SubCategory](const FString&)
	{
		if (Member == TEXT("id"))
		{
			ReadKey(SubCategory.SubCategoryId);
			SetKey(SubCategory.SubCategoryId);
		}
		else if (Member == TEXT("name"))
		{
			ReadString(SubCategory.Name);
		}
		else if (Member == TEXT("image"))
		{
			ReadImageKey(SubCategory.Image);
		}
		else if (Member == TEXT("default"))
		{
			ReadKey(SubCategory.DefaultProduct);
		}
		else if (Member == TEXT("products"))
		{
			ReadObjects(TEXT("products"), [this, &SubCategory] { ReadProduct(SubCategory); });
		}
		else
		{
			ReportUnknown();
		}
	});
	const FName Default = SubCategory.DefaultProduct;
	const auto IsDefault = [Default](const FCatalogueVariant& Variant) { return Variant.Product.ProductKey == Default; };
	if (!bBroken && !Default.IsNone() && !SubCategory.Variants.ContainsByPredicate(IsDefault))
	{
		Member = TEXT("default");
		Report(FString::Printf(TEXT("there is no product '%s' here: nothing is active at first"), *Default.ToString()));
		SubCategory.DefaultProduct = FName();
	}
	if (TakeKey(SubCategoryIds, SubCategory.SubCategoryId, TEXT("subcategory of its category")))
	{
		Category.SubCategories.Add(MoveTemp(SubCategory));
	}
}

void FProjectJson::ReadProduct(FCatalogueSubCategory& SubCategory)
{
	FCatalogueVariant Variant;
	FHalvexConfigProduct& Product = Variant.Product;
	ReadMembers([this, &Variant, &Product](const FString&)
	{
		if (Member == TEXT("id"))
		{
			ReadKey(Product.ProductKey);
			SetKey(Product.ProductKey);
		}
		else if (Member == TEXT("name"))
		{
			ReadString(Product.Name);
		}
		else if (Member == TEXT("maker"))
		{
			ReadString(Product.Maker);
		}
		else if (Member == TEXT("description"))
		{
			ReadString(Product.Description);
		}
		else if (Member == TEXT("image"))
		{
			ReadImageKey(Product.Image);
		}
		else if (Member == TEXT("currency"))
		{
			ReadKey(Product.Currency);
		}
		else if (Member == TEXT("price"))
		{
			ReadNumber(Product.Price, 0.0, FUnitRecordFields::MaxPrice, FUnitRecordFields::ExpectedPrice);
		}
		else if (Member == TEXT("looks"))
		{
			ReadObjects(TEXT("looks"), [this, &Variant] { ReadLook(Variant); });
		}
		else
		{
			ReportUnknown();
		}
	});
	if (TakeKey(ProductIds, Product.ProductKey, TEXT("product of the catalogue")))
	{
		SubCategory.Variants.Add(MoveTemp(Variant));
	}
}

void FProjectJson::ReadLook(FCatalogueVariant& Variant)
{
	FVariantSurfaceLook Look;
	double Roughness = Look.Roughness;
	bool bColor = false;
	ReadMembers([this, &Look, &Roughness, &bColor](const FString&)
	{
		if (Member == TEXT("surface"))
		{
			ReadKey(Look.Surface);
			SetKey(Look.Surface);
			Refer(Look.Surface, EKind::Surface);
		}
		else if (Member == TEXT("color"))
		{
			bColor = ReadColor(Look.Color);
		}
		else if (Member == TEXT("roughness"))
		{
			ReadNumber(Roughness, 0.0, 1.0, TEXT("a number from 0 to 1"));
		}
		else
		{
			ReportUnknown();
		}
	});
	Look.Roughness = float(Roughness);
	if (!Look.Surface.IsNone() && bColor)
	{
		Variant.Looks.Add(Look);
	}
	else if (!bBroken)
	{
		Report(TEXT("a look needs a surface and a color: it is left out"));
	}
}
