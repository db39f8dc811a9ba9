#include "EngineTest.h"

#include "Engine/DataTable.h"
#include "Style/HalvexStyleModels.h"
#include "TemporaryContent.h"
#include "gmock/gmock.h"

namespace
{
	class FDataTableTest : public Host::FEngineTest
	{
	protected:
		UDataTable* Load(const TCHAR* Name, const char* Json)
		{
			Content.Write(*(FString(Name) + TEXT(".table.json")), Json);
			return LoadObject<UDataTable>(nullptr, *FString::Printf(TEXT("/Tables/%s.%s"), Name, Name));
		}

		Host::FTemporaryContent Content{ TEXT("/Tables/") };
	};

	const char* const TwoIcons = R"({ "RowStruct": "/Script/HalvexProUI.FontIconDatatableRow", "Rows": { "house": { "Label": "House", "Unicode": "h" }, "car": { "Label": "Car" } } })";

	TEST_F(FDataTableTest, RowsAreInTheOrderOfTheFile)
	{
		const UDataTable* Table = Load(TEXT("Order"), TwoIcons);
		ASSERT_TRUE(Table);
		EXPECT_EQ(Table->GetRowNames(), TArray<FName>({ TEXT("house"), TEXT("car") }));
		EXPECT_EQ(Table->FindRow<FFontIconDatatableRow>(TEXT("house"), TEXT("test"))->Unicode, TEXT("h"));
	}

	TEST_F(FDataTableTest, MissingRowWarnsWithItsContext)
	{
		const UDataTable* Table = Load(TEXT("Missing"), TwoIcons);
		const Host::FExpectedLog Warning(TEXT("'a context' requested row 'boat'"));
		EXPECT_EQ(Table->FindRow<FFontIconDatatableRow>(TEXT("boat"), TEXT("a context")), nullptr);
		EXPECT_EQ(Table->FindRow<FFontIconDatatableRow>(TEXT("boat"), TEXT("a context"), false), nullptr);
	}

	TEST_F(FDataTableTest, UnknownRowStructureIsRefused)
	{
		const Host::FExpectedLog Refused(TEXT("is no structure of table rows"));
		EXPECT_EQ(Load(TEXT("Struct"), R"({ "RowStruct": "/Script/CoreUObject.LinearColor", "Rows": {} })"), nullptr);
		EXPECT_THAT(Host::ToStd(Refused.GetLastLine()), testing::HasSubstr("Struct.table.json:1:"));
	}

	TEST_F(FDataTableTest, UnknownMemberIsOneLineAndTheRowIsKept)
	{
		const UDataTable* Table = Load(TEXT("Member"), R"({ "RowStruct": "/Script/HalvexProUI.FontIconDatatableRow", "Rows": { "house": { "Colour": 1, "Label": "House" } } })");
		const Host::FExpectedLog Unknown(TEXT("'Colour'"));
		EXPECT_EQ(Table->FindRow<FFontIconDatatableRow>(TEXT("house"), TEXT("test"))->Label, TEXT("House"));
	}

	TEST_F(FDataTableTest, RowsCanBeAddedAndRemoved)
	{
		UDataTable* Table = NewObject<UDataTable>();
		Table->RowStruct = FFontIconDatatableRow::StaticStruct();
		FFontIconDatatableRow Row;
		Row.Label = TEXT("First");
		Table->AddRow(TEXT("A"), Row);
		Row.Label = TEXT("Second");
		Table->AddRow(TEXT("A"), Row);
		EXPECT_EQ(Table->GetRowMap().Num(), 1);
		EXPECT_EQ(Table->FindRow<FFontIconDatatableRow>(TEXT("A"), TEXT("test"))->Label, TEXT("Second"));
		Table->RemoveRow(TEXT("A"));
		EXPECT_TRUE(Table->GetRowMap().IsEmpty());
	}

	TEST_F(FDataTableTest, MissingTableIsOneLine)
	{
		const Host::FExpectedLog Missing(TEXT("Failed to find object 'DataTable /Tables/Nowhere.Nowhere': there is no file for /Tables/Nowhere"));
		EXPECT_EQ(LoadObject<UDataTable>(nullptr, TEXT("/Tables/Nowhere.Nowhere")), nullptr);
	}

	TEST_F(FDataTableTest, BrokenFileIsOneLineThatNamesThePlace)
	{
		const Host::FExpectedLog Broken(TEXT("Broken.table.json:2:"));
		EXPECT_EQ(Load(TEXT("Broken"), "{ \"RowStruct\": \"/Script/HalvexProUI.FontIconDatatableRow\",\n \"Rows\": }"), nullptr);
	}

	TEST_F(FDataTableTest, TableWithoutRowsIsOneLine)
	{
		const Host::FExpectedLog Broken(TEXT("NoRows.table.json:1:1: \"Rows\" must be an object"));
		EXPECT_EQ(Load(TEXT("NoRows"), R"({ "RowStruct": "/Script/HalvexProUI.FontIconDatatableRow" })"), nullptr);
	}

	TEST_F(FDataTableTest, RowThatIsNoneIsOneLineAndTheOthersAreRead)
	{
		const UDataTable* Table = Load(TEXT("Rows"), "{ \"RowStruct\": \"/Script/HalvexProUI.FontIconDatatableRow\", \"Rows\": {\n\"a\": 17,\n\"b\": { \"Label\": 3 },\n\"c\": { \"Label\": \"There\" } } }");
		ASSERT_TRUE(Table);
		const Host::FExpectedLog NoRow(TEXT("Rows.table.json:2:"));
		const Host::FExpectedLog NoText(TEXT("Rows.table.json:3:"));
		EXPECT_EQ(Table->FindRow<FFontIconDatatableRow>(TEXT("c"), TEXT("test"))->Label, TEXT("There"));
	}

	TEST_F(FDataTableTest, RowsOfAnotherStructureAreNotGivenOut)
	{
		const UDataTable* Table = Load(TEXT("Other"), R"({ "RowStruct": "/Script/Engine.TableRowBase", "Rows": { "a": {} } })");
		ASSERT_TRUE(Table);
		const Host::FExpectedLog Wrong(TEXT("its rows are of '/Script/Engine.TableRowBase'"));
		EXPECT_EQ(Table->FindRow<FFontIconDatatableRow>(TEXT("a"), TEXT("test")), nullptr);
	}
}
