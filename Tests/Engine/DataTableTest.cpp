#include "EngineTest.h"

#include "Engine/DataTable.h"
#include "Engine/Font.h"
#include "Engine/Texture2D.h"
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
		const Host::FExpectedLog Failed(TEXT("/Tables/Struct.Struct"), Host::FExpectedLog::AnyCount);
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

	TEST_F(FDataTableTest, CorruptPictureIsOneLine)
	{
		Content.Write(TEXT("Corrupt.png"), "\x89PNG\r\n\x1a\nnothing of the kind");
		const Host::FExpectedLog Refused(TEXT("Corrupt.png"), Host::FExpectedLog::AnyCount);
		EXPECT_EQ(LoadObject<UTexture2D>(nullptr, TEXT("/Tables/Corrupt.Corrupt")), nullptr);
		EXPECT_GE(Refused.GetCount(), 1);
	}
}
