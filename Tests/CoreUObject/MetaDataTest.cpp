#include "ReflectionTestObject.h"
#include "UObject/UnrealType.h"
#include "gtest/gtest.h"

namespace
{
	FProperty* FindCount()
	{
		return FindFProperty<FProperty>(FReflectionTestBase::StaticStruct(), TEXT("Count"));
	}
} // namespace

TEST(MetaData, KeysAreFoundWithoutRegardToCase)
{
	const FProperty* Count = FindCount();

	EXPECT_TRUE(Count->HasMetaData(TEXT("ClampMin")));
	EXPECT_TRUE(Count->HasMetaData(TEXT("clampmin")));
	EXPECT_TRUE(Count->HasMetaData(FName(TEXT("CLAMPMIN"))));
	EXPECT_FALSE(Count->HasMetaData(TEXT("ClampMax")));
	EXPECT_EQ(Count->GetMetaData(TEXT("ClampMin")), FString(TEXT("0")));
	EXPECT_EQ(Count->GetMetaData(TEXT("ClampMax")), FString());
	EXPECT_EQ(Count->FindMetaData(TEXT("ClampMax")), nullptr);
	EXPECT_EQ(Count->GetIntMetaData(TEXT("UIMax")), 10);
	EXPECT_EQ(Count->GetMetaData(TEXT("Category")), FString(TEXT("Base|Inner")));
}

TEST(MetaData, CommentAboveIsTheToolTip)
{
	EXPECT_EQ(FindCount()->GetToolTipText().ToString(), FString(TEXT("Counts\nthe things.")));
	EXPECT_EQ(FReflectionTestBase::StaticStruct()->GetToolTipText().ToString(), FString(TEXT("A line comment\nof two lines.")));
	EXPECT_EQ(
		UReflectionTestObject::StaticClass()->GetToolTipText().ToString(), FString(TEXT("Shows what a class can be made of.")));
	EXPECT_EQ(UReflectionTestObject::StaticClass()->FindFunctionByName(TEXT("Add"))->GetToolTipText().ToString(),
		FString(TEXT("Adds numbers, @return the sum.")));
}

TEST(MetaData, DisplayNameIsWrittenOutOrMadeOfTheName)
{
	const UScriptStruct* Struct = FReflectionTestStruct::StaticStruct();

	EXPECT_EQ(FindCount()->GetDisplayNameText().ToString(), FString(TEXT("How Many")));
	EXPECT_EQ(FindFProperty<FProperty>(Struct, TEXT("bFirst"))->GetDisplayNameText().ToString(), FString(TEXT("First")));
	EXPECT_EQ(Struct->GetDisplayNameText().ToString(), FString(TEXT("Reflection Test Struct")));
	EXPECT_EQ(UReflectionTestObject::StaticClass()->GetDisplayNameText().ToString(), FString(TEXT("Test Object")));
	EXPECT_EQ(FindFProperty<FProperty>(Struct, TEXT("Text"))->GetToolTipText().ToString(), FString(TEXT("Text")))
		<< "without a comment, the display name";
}

TEST(MetaData, FlagsAreTrueWhenTheyStandAlone)
{
	const FProperty* First = FindFProperty<FProperty>(FReflectionTestStruct::StaticStruct(), TEXT("bFirst"));

	EXPECT_TRUE(First->GetBoolMetaData(TEXT("InlineEditConditionToggle")));
	EXPECT_FALSE(First->GetBoolMetaData(TEXT("EditConditionHides")));
}

TEST(MetaData, SetAndRemovedMetadataReplacesTheCompiled)
{
	FProperty* Property = FindFProperty<FProperty>(UReflectionTestForward::StaticClass(), TEXT("Number"));

	Property->SetMetaData(TEXT("BindWidget"), TEXT("true"));
	EXPECT_TRUE(Property->GetBoolMetaData(TEXT("bindwidget")));
	Property->SetMetaData(TEXT("BindWidget"), TEXT("false"));
	EXPECT_FALSE(Property->GetBoolMetaData(TEXT("BindWidget")));
	Property->RemoveMetaData(TEXT("BindWidget"));
	EXPECT_FALSE(Property->HasMetaData(TEXT("BindWidget")));
}
