#include "ExpectedLog.h"
#include "Host/JsonDocument.h"
#include "Host/JsonWriter.h"
#include "Host/PropertyJson.h"
#include "ObjectTestStyle.h"
#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"
#include "gtest/gtest.h"

namespace
{
	class PropertyJson : public testing::Test
	{
	protected:
		virtual void SetUp() override { Style = NewObject<UObjectTestStyle>(); }

		/** Reads the members; returns the messages joined by line breaks. */
		FString Read(const TCHAR* Text)
		{
			Host::FJsonDocument Document;
			EXPECT_TRUE(Document.Parse(FString(Text), TEXT("test.json")));
			TArray<FString> Messages;
			Host::FPropertyJson::ReadObject(Document.GetRoot(), Style, [&](const FString& Message) { Messages.Add(Message); });
			return FString::Join(Messages, TEXT("\n"));
		}

		FString Write()
		{
			Host::FJsonWriter Writer;
			Host::FPropertyJson::WriteObject(Writer, Style);
			return Writer.ToString();
		}

		UObjectTestStyle* Style = nullptr;
	};
}

TEST_F(PropertyJson, ReadsPlainValues)
{
	EXPECT_EQ(Read(TEXT(R"({"bEnabled": true, "bBitB": true, "Byte": 255, "Whole": -7, "Large": 9007199254740993,
		"Single": 0.5, "Double": 1e300, "String": "a\"b", "Name": "Id_3"})")), FString());

	EXPECT_TRUE(Style->bEnabled);
	EXPECT_EQ(Style->bBitA, 0);
	EXPECT_EQ(Style->bBitB, 1);
	EXPECT_EQ(Style->Byte, 255);
	EXPECT_EQ(Style->Whole, -7);
	EXPECT_EQ(Style->Large, 9007199254740993);
	EXPECT_EQ(Style->Single, 0.5f);
	EXPECT_EQ(Style->Double, 1e300);
	EXPECT_EQ(Style->String, FString(TEXT("a\"b")));
	EXPECT_EQ(Style->Name, FName(TEXT("Id_3")));
}

TEST_F(PropertyJson, ReadsTextsWithAndWithoutAKey)
{
	EXPECT_EQ(Read(TEXT(R"json({"Text": "plain (text)"})json")), FString());
	EXPECT_EQ(Style->Text.ToString(), FString(TEXT("plain (text)")));

	EXPECT_EQ(Read(TEXT(R"json({"Text": "NSLOCTEXT(\"Ns\", \"Key\", \"Source\")"})json")), FString());
	EXPECT_EQ(Style->Text.ToString(), FString(TEXT("Source")));
}

TEST_F(PropertyJson, ReadsEnumeratorsByShortAndWholeName)
{
	EXPECT_EQ(Read(TEXT(R"({"Mode": "Automatic"})")), FString());
	EXPECT_EQ(Style->Mode, EObjectTestMode::Automatic);
	EXPECT_EQ(Read(TEXT(R"({"Mode": "EObjectTestMode::On", "Sides": "Left|Top"})")), FString());
	EXPECT_EQ(Style->Mode, EObjectTestMode::On);
	EXPECT_EQ(static_cast<int32>(Style->Sides), 5);
}

TEST_F(PropertyJson, UnknownEnumeratorListsTheKnownOnes)
{
	EXPECT_EQ(Read(TEXT(R"({"Mode": "Sometimes"})")),
		FString(TEXT("test.json:1:10: property 'Mode': expected a EObjectTestMode (Off, On, Automatic), found \"Sometimes\"")));
	EXPECT_EQ(Style->Mode, EObjectTestMode::Off);
}

TEST_F(PropertyJson, ReadsColoursInHexadecimalAndAsComponents)
{
	EXPECT_EQ(Read(TEXT(R"({"Tint": "#FF8000", "Stored": "#01020304"})")), FString());
	EXPECT_EQ(Style->Tint, FLinearColor(FColor(255, 128, 0, 255)));
	EXPECT_EQ(Style->Stored, FColor(1, 2, 3, 4));

	EXPECT_EQ(Read(TEXT(R"({"Tint": {"R": 0.25, "A": 0.5}, "Stored": {"G": 9}})")), FString());
	EXPECT_EQ(Style->Tint.R, 0.25f);
	EXPECT_EQ(Style->Tint.A, 0.5f);
	EXPECT_EQ(Style->Stored, FColor(1, 9, 3, 4));

	EXPECT_EQ(Read(TEXT(R"({"Tint": [0.5, 0.5, 0.5, 1]})")), FString());
	EXPECT_EQ(Style->Tint, FLinearColor(0.5f, 0.5f, 0.5f, 1.0f));
}

TEST_F(PropertyJson, MalformedColourIsAnError)
{
	EXPECT_TRUE(Read(TEXT(R"({"Tint": "#12345"})")).StartsWith(TEXT("test.json:1:10: property 'Tint': expected FLinearColor as text, found \"#12345\"")));
	EXPECT_EQ(Style->Tint, FLinearColor(1.0f, 1.0f, 1.0f, 1.0f));
}

TEST_F(PropertyJson, StructuresKeepTheMembersThatAreNotNamed)
{
	EXPECT_EQ(Read(TEXT(R"({"Entry": {"Id": "Key", "Box": {"Height": 5}}, "Box": [3, 4]})")), FString());

	EXPECT_EQ(Style->Entry.Id, FName(TEXT("Key")));
	EXPECT_EQ(Style->Entry.Box.Width, 1.0f);
	EXPECT_EQ(Style->Entry.Box.Height, 5.0f);
	EXPECT_EQ(Style->Box.Width, 3.0f);
	EXPECT_EQ(Style->Box.Height, 4.0f);
}

TEST_F(PropertyJson, StructureMayBeText)
{
	EXPECT_EQ(Read(TEXT(R"json({"Box": "(Width=8,Height=9)"})json")), FString());
	EXPECT_EQ(Style->Box.Height, 9.0f);
}

TEST_F(PropertyJson, ContainersAreReplaced)
{
	Style->Numbers = { 9, 9, 9 };
	Style->Tags.Add(TEXT("Old"));
	Style->Colors.Add(TEXT("Old"), FLinearColor(0.0f, 0.0f, 0.0f, 0.0f));

	EXPECT_EQ(Read(TEXT(R"({"Numbers": [1, 2], "Tags": ["A", "B"], "Colors": [["Z", "#FFFFFF"], ["A", "#000000"]],
		"Entries": [{"Id": "First"}, {"Id": "Second"}]})")), FString());

	EXPECT_EQ(Style->Numbers, TArray<int32>({ 1, 2 }));
	EXPECT_EQ(Style->Tags.Num(), 2);
	EXPECT_TRUE(Style->Tags.Contains(TEXT("B")));
	TArray<FName> Keys;
	Style->Colors.GetKeys(Keys);
	EXPECT_EQ(Keys, TArray<FName>({ TEXT("Z"), TEXT("A") }));
	ASSERT_EQ(Style->Entries.Num(), 2);
	EXPECT_EQ(Style->Entries[1].Id, FName(TEXT("Second")));
}

TEST_F(PropertyJson, MapMayBeAnObject)
{
	EXPECT_EQ(Read(TEXT(R"({"Colors": {"Primary": "#FF0000", "Back": {"A": 0}}})")), FString());

	EXPECT_EQ(Style->Colors.Num(), 2);
	EXPECT_EQ(Style->Colors.FindRef(TEXT("Primary")), FLinearColor(1.0f, 0.0f, 0.0f, 1.0f));
}

TEST_F(PropertyJson, CArraysAreReadElementByElement)
{
	EXPECT_EQ(Read(TEXT(R"({"Fixed": [7, 8]})")), FString());
	EXPECT_EQ(Style->Fixed[0], 7);
	EXPECT_EQ(Style->Fixed[1], 8);
	EXPECT_EQ(Style->Fixed[2], 3);
	EXPECT_EQ(Read(TEXT(R"({"Fixed": [1, 2, 3, 4]})")), FString(TEXT("test.json:1:11: property 'Fixed': expected at most 3 elements, found 4")));
}

TEST_F(PropertyJson, ErrorsNameTheWayToTheValue)
{
	EXPECT_EQ(Read(TEXT("{\"Entries\": [{\"Id\": \"A\"}, {\"Box\": {\"Width\": true}, \"Id\": \"B\"}]}")),
		FString(TEXT("test.json:1:45: property 'Entries[1].Box.Width': expected a number, found a boolean")));
	ASSERT_EQ(Style->Entries.Num(), 2);
	EXPECT_EQ(Style->Entries[1].Id, FName(TEXT("B")));
}

TEST_F(PropertyJson, NumbersThatDoNotFitAreErrors)
{
	EXPECT_EQ(Read(TEXT(R"({"Byte": 256})")), FString(TEXT("test.json:1:10: property 'Byte': 256.0 does not fit into uint8")));
	EXPECT_EQ(Read(TEXT(R"({"Whole": 1.5})")), FString(TEXT("test.json:1:11: property 'Whole': expected a whole number, found 1.5")));
	EXPECT_EQ(Read(TEXT(R"({"Single": 1e300})")).Contains(TEXT("does not fit into float")), true);
	EXPECT_EQ(Style->Byte, 0);
}

TEST_F(PropertyJson, ReadsReferences)
{
	UObjectTestStyle* Base = NewObject<UObjectTestStyle>(CreatePackage(TEXT("/Test/Json")), TEXT("Base"));
	NewObject<UObjectTestImplementer>(CreatePackage(TEXT("/Test/Json")), TEXT("Named"));

	EXPECT_EQ(Read(TEXT(R"({"Base": "/Test/Json.Base", "PartClass": "/Script/CoreUObjectTestTypes.ObjectTestOtherPart",
		"SoftBase": "/Test/NotLoaded.NotLoaded", "Named": "/Test/Json.Named"})")), FString());

	EXPECT_EQ(Style->Base, Base);
	EXPECT_EQ(Style->PartClass.Get(), UObjectTestOtherPart::StaticClass());
	EXPECT_EQ(Style->SoftBase.ToString(), FString(TEXT("/Test/NotLoaded.NotLoaded")));
	EXPECT_EQ(Style->Named->GetDisplayName(), FString(TEXT("implementer")));

	EXPECT_EQ(Read(TEXT(R"({"Base": null, "PartClass": null, "SoftBase": null, "Named": null})")), FString());
	EXPECT_EQ(Style->Base, nullptr);
	EXPECT_EQ(Style->PartClass.Get(), nullptr);
	EXPECT_TRUE(Style->SoftBase.IsNull());
	EXPECT_EQ(Style->Named.GetObject(), nullptr);
}

TEST_F(PropertyJson, WrongReferencesAreErrors)
{
	EXPECT_TRUE(Read(TEXT(R"({"Base": "/Test/Nothing.Nothing"})")).Contains(TEXT("property 'Base': there is no object /Test/Nothing.Nothing")));
	EXPECT_TRUE(Read(TEXT(R"({"PartClass": "/Script/CoreUObjectTestTypes.ObjectTestStyle"})")).Contains(TEXT("property 'PartClass': expected TSubclassOf<UObjectTestPart>")));
	EXPECT_TRUE(Read(TEXT(R"({"Base": 5})")).Contains(TEXT("expected the path of an object, or null, found a number")));
}

TEST_F(PropertyJson, InstancedObjectIsMadeInItsOwner)
{
	EXPECT_EQ(Read(TEXT(R"({"Part": {"Class": "/Script/CoreUObjectTestTypes.ObjectTestOtherPart", "Name": "MyPart", "Properties": {"Amount": 6}}})")), FString());
	ASSERT_NE(Style->Part, nullptr);
	EXPECT_TRUE(Style->Part->IsA<UObjectTestOtherPart>());
	EXPECT_EQ(Style->Part->GetOuter(), Style);
	EXPECT_EQ(Style->Part->GetName(), FString(TEXT("MyPart")));
	EXPECT_EQ(Style->Part->Amount, 6);

	UObjectTestPart* Part = Style->Part;
	EXPECT_EQ(Read(TEXT(R"({"Part": {"Properties": {"Amount": 7}}})")), FString());
	EXPECT_EQ(Style->Part, Part);
	EXPECT_EQ(Part->Amount, 7);
}

TEST_F(PropertyJson, TransientPropertiesAreRefused)
{
	EXPECT_EQ(Read(TEXT(R"({"Scratch": 1})")), FString(TEXT("test.json:1:13: property 'Scratch': its value cannot be stored")));
}

TEST_F(PropertyJson, NamesAndPathsBeyondTheirLimitAreRefused)
{
	const FString Long = FString::ChrN(5000, TEXT('a'));
	Host::FExpectedLog Expected(TEXT("an object path has at most 1023 characters, found 5000"));

	EXPECT_TRUE(Read(*(TEXT("{\"Name\": \"") + Long + TEXT("\"}"))).Contains(TEXT("a name has at most 1023 characters")));
	EXPECT_TRUE(Read(*(TEXT("{\"") + Long + TEXT("\": 1}"))).Contains(TEXT("has no such property")));
	EXPECT_TRUE(Read(*(TEXT("{\"Base\": \"") + Long + TEXT("\"}"))).Contains(TEXT("there is no object")));
	EXPECT_EQ(Read(*(TEXT("{\"SoftBase\": \"") + Long + TEXT("\"}"))), FString());
	EXPECT_NE(Read(*(TEXT("{\"Colors\": {\"") + Long + TEXT("\": \"#FFFFFF\"}}"))), FString());
	EXPECT_NE(Read(*(TEXT("{\"Part\": {\"Class\": \"/Script/CoreUObjectTestTypes.ObjectTestPart\", \"Name\": \"") + Long + TEXT("\"}}"))), FString());

	EXPECT_TRUE(Style->SoftBase.IsNull());
	EXPECT_EQ(Style->Part, nullptr);
}

TEST_F(PropertyJson, DeepTextIsReadWithoutHarm)
{
	FString Text = TEXT("{\"Entries\": ");
	for (int32 Index = 0; Index < 50; ++Index)
	{
		Text += TEXT("[");
	}
	for (int32 Index = 0; Index < 50; ++Index)
	{
		Text += TEXT("]");
	}
	Text += TEXT("}");

	EXPECT_NE(Read(*Text), FString());
}

TEST_F(PropertyJson, WritesWhatDiffersFromTheDefaults)
{
	Style->Whole = 4;
	Style->Single = 0.1f;
	Style->Mode = EObjectTestMode::On;
	Style->Colors.Add(TEXT("Key"), FLinearColor(FColor(1, 2, 3, 4)));

	EXPECT_EQ(Write(), FString(TEXT(
		"{\n\t\"Class\": \"/Script/CoreUObjectTestTypes.ObjectTestStyle\",\n"
		"\t\"Properties\": {\n"
		"\t\t\"Whole\": 4,\n"
		"\t\t\"Single\": 0.1,\n"
		"\t\t\"Mode\": \"On\",\n"
		"\t\t\"Colors\": [\n\t\t\t[\n\t\t\t\t\"Key\",\n\t\t\t\t\"#01020304\"\n\t\t\t]\n\t\t]\n"
		"\t}\n}\n")));
}

TEST_F(PropertyJson, WhatIsWrittenIsReadBack)
{
	Read(TEXT(R"json({"bEnabled": true, "bBitA": true, "Byte": 3, "Large": -5, "Double": 0.1, "String": "ü€😀", "Name": "N",
		"Text": "NSLOCTEXT(\"Ns\", \"Key\", \"Source\")", "Sides": "Left|Top", "Tint": [0.1, 0.2, 0.3, 0.4],
		"Entry": {"Id": "E", "bOverride": true}, "Numbers": [3, 2], "Entries": [{"Id": "X"}], "Tags": ["T"], "Fixed": [4, 5, 6],
		"PartClass": "/Script/CoreUObjectTestTypes.ObjectTestPart", "SoftBase": "/Test/Soft.Soft",
		"Part": {"Class": "/Script/CoreUObjectTestTypes.ObjectTestPart", "Properties": {"Amount": 11}}})json"));
	const FString Written = Write();
	UObjectTestStyle* Source = Style;
	Style = NewObject<UObjectTestStyle>();
	Host::FJsonDocument Document;
	ASSERT_TRUE(Document.Parse(Written, TEXT("written.json")));

	EXPECT_EQ(Host::FPropertyJson::ReadObject(Document.GetRoot().Find(TEXT("Properties")), Style), 0);

	EXPECT_EQ(Write(), Written);
	EXPECT_EQ(Style->String, Source->String);
	EXPECT_EQ(Style->Tint, Source->Tint);
	EXPECT_EQ(static_cast<int32>(Style->Sides), 5);
	EXPECT_EQ(Style->Part->Amount, 11);
	EXPECT_NE(Style->Part, Source->Part);
}
