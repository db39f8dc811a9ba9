#include "ExpectedLog.h"
#include "Host/AssetLoaders.h"
#include "Host/JsonDocument.h"
#include "ObjectTestStyle.h"
#include "TemporaryContent.h"
#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"
#include "gtest/gtest.h"

namespace
{
	class AssetLoader : public testing::Test
	{
	protected:
		virtual void TearDown() override { CollectGarbage(RF_NoFlags); }

		UObjectTestStyle* Load(const TCHAR* Path) { return LoadObject<UObjectTestStyle>(nullptr, Path); }

		Host::FTemporaryContent Content{ TEXT("/AssetTest/") };
	};
}

TEST_F(AssetLoader, LoadsAnObjectIntoThePackageOfItsPath)
{
	Content.Write(TEXT("Dir/Style.asset.json"), R"({
		"Class": "/Script/CoreUObjectTestTypes.ObjectTestStyle",
		"Properties": {"Whole": 5}
	})");

	UObjectTestStyle* Style = Load(TEXT("/AssetTest/Dir/Style.Style"));

	ASSERT_NE(Style, nullptr);
	EXPECT_EQ(Style->Whole, 5);
	EXPECT_EQ(Style->NumPostLoad, 1);
	EXPECT_EQ(Style->GetPathName(), FString(TEXT("/AssetTest/Dir/Style.Style")));
	EXPECT_TRUE(Style->IsAsset());
	EXPECT_TRUE(Style->GetPackage()->IsFullyLoaded());
}

TEST_F(AssetLoader, SecondLoadFindsTheSameObject)
{
	Content.Write(TEXT("Style.asset.json"), R"({"Class": "/Script/CoreUObjectTestTypes.ObjectTestStyle"})");
	UObjectTestStyle* Style = Load(TEXT("/AssetTest/Style.Style"));

	EXPECT_EQ(Load(TEXT("/AssetTest/Style.Style")), Style);
	EXPECT_EQ(Load(TEXT("/AssetTest/Style")), Style);
	EXPECT_EQ(Load(TEXT("ObjectTestStyle'/AssetTest/Style.Style'")), Style);
	EXPECT_EQ(FindObject<UObjectTestStyle>(nullptr, TEXT("/AssetTest/Style.Style")), Style);
	EXPECT_EQ(Style->NumPostLoad, 1);
}

TEST_F(AssetLoader, UnusedAssetIsCollectedAndLoadedAnew)
{
	Content.Write(TEXT("Style.asset.json"), R"({"Class": "/Script/CoreUObjectTestTypes.ObjectTestStyle", "Properties": {"Whole": 5}})");
	Load(TEXT("/AssetTest/Style.Style"));
	CollectGarbage(RF_NoFlags);
	EXPECT_EQ(FindObject<UObjectTestStyle>(nullptr, TEXT("/AssetTest/Style.Style")), nullptr);

	UObjectTestStyle* Style = Load(TEXT("/AssetTest/Style.Style"));

	ASSERT_NE(Style, nullptr);
	EXPECT_EQ(Style->Whole, 5);
}

TEST_F(AssetLoader, AssetsMayReferToEachOtherInACircle)
{
	Content.Write(TEXT("A.asset.json"), R"({"Class": "/Script/CoreUObjectTestTypes.ObjectTestStyle", "Properties": {"Base": "/AssetTest/B.B"}})");
	Content.Write(TEXT("B.asset.json"), R"({"Class": "/Script/CoreUObjectTestTypes.ObjectTestStyle", "Properties": {"Base": "/AssetTest/A.A"}})");

	UObjectTestStyle* A = Load(TEXT("/AssetTest/A.A"));

	ASSERT_NE(A, nullptr);
	ASSERT_NE(A->Base, nullptr);
	EXPECT_EQ(A->Base->Base, A);
}

TEST_F(AssetLoader, ObjectOfAnotherClassIsRefusedWithItsClass)
{
	Content.Write(TEXT("Style.asset.json"), R"({"Class": "/Script/CoreUObjectTestTypes.ObjectTestStyle"})");
	Host::FExpectedLog Expected(TEXT("Failed to find object 'ObjectTestOwner /AssetTest/Style.Style': it is a ObjectTestStyle"));

	EXPECT_EQ(LoadObject<UObjectTestOwner>(nullptr, TEXT("/AssetTest/Style.Style")), nullptr);
}

TEST_F(AssetLoader, UnknownClassIsAnErrorWithItsPlace)
{
	Content.Write(TEXT("Style.asset.json"), "{\n\"Class\": \"/Script/Nowhere.Nothing\"}");
	Host::FExpectedLog Error(TEXT("Style.asset.json:2:10: there is no class /Script/Nowhere.Nothing"));

	EXPECT_EQ(Load(TEXT("/AssetTest/Style.Style")), nullptr);
}

TEST_F(AssetLoader, AbstractClassIsAnError)
{
	Content.Write(TEXT("Style.asset.json"), R"({"Class": "/Script/CoreUObjectTestTypes.ObjectTestAbstract"})");
	Host::FExpectedLog Error(TEXT("is abstract"));

	EXPECT_EQ(Load(TEXT("/AssetTest/Style.Style")), nullptr);
}

TEST_F(AssetLoader, BrokenFileIsReadAgainOnlyAfterItChanged)
{
	Content.Write(TEXT("Style.asset.json"), "{\"Class\": ");
	{
		const Host::FExpectedLog Error(TEXT("Style.asset.json:1:"), 1);
		EXPECT_EQ(Load(TEXT("/AssetTest/Style.Style")), nullptr);
	}
	{
		const Host::FExpectedLog Warning(TEXT("Style.asset.json could not be read"), 1);
		EXPECT_EQ(Load(TEXT("/AssetTest/Style.Style")), nullptr);
	}
	Content.Write(TEXT("Style.asset.json"), R"({"Class": "/Script/CoreUObjectTestTypes.ObjectTestStyle"})");
	Content.Age(TEXT("Style.asset.json"), 5);

	EXPECT_NE(Load(TEXT("/AssetTest/Style.Style")), nullptr);
}

TEST_F(AssetLoader, BadPropertyIsAnErrorAndTheOthersAreRead)
{
	Content.Write(TEXT("Style.asset.json"),
		"{\"Class\": \"/Script/CoreUObjectTestTypes.ObjectTestStyle\", \"Properties\": {\n\"Whole\": \"x\",\n\"Hole\": 1,\n\"Byte\": 9}}");
	Host::FExpectedLog Mistyped(TEXT("Style.asset.json:2:10: property 'Whole': expected a whole number, found the string \"x\""));
	Host::FExpectedLog Unknown(TEXT("Style.asset.json:3:9: property 'Hole': ObjectTestStyle has no such property; is 'Whole' meant?"));

	UObjectTestStyle* Style = Load(TEXT("/AssetTest/Style.Style"));

	ASSERT_NE(Style, nullptr);
	EXPECT_EQ(Style->Whole, 0);
	EXPECT_EQ(Style->Byte, 9);
}

TEST_F(AssetLoader, PathOutOfTheMountIsRefused)
{
	Host::FExpectedLog Expected(TEXT("Failed to find object 'ObjectTestStyle /AssetTest/../Secret.Secret'"));

	EXPECT_EQ(Load(TEXT("/AssetTest/../Secret.Secret")), nullptr);
}

TEST_F(AssetLoader, LoaderOfAnotherSuffixMakesItsObjects)
{
	Content.Write(TEXT("Part.number"), "17");
	Host::FAssetLoaders::Add(TEXT(".number"), [](const Host::FAssetRequest& Request) -> UObject*
	{
		UObjectTestPart* Part = NewObject<UObjectTestPart>(Request.Package, Request.AssetName, RF_Public);
		Part->Amount = 17;
		return Part;
	});

	UObjectTestPart* Part = LoadObject<UObjectTestPart>(nullptr, TEXT("/AssetTest/Part.Part"));

	ASSERT_NE(Part, nullptr);
	EXPECT_EQ(Part->Amount, 17);
	EXPECT_TRUE(Host::FAssetLoaders::FindAssets(TEXT("/AssetTest/")).Contains(TEXT("/AssetTest/Part.Part")));
	Host::FAssetLoaders::Remove(TEXT(".number"));
	EXPECT_FALSE(Host::FAssetLoaders::GetSuffixes().Contains(TEXT(".number")));
}

TEST_F(AssetLoader, ReaderOfAClassTakesTheWholeFile)
{
	const FString ClassPath = UObjectTestPart::StaticClass()->GetPathName();
	Host::FAssetLoaders::AddReader(ClassPath, [](UObject* Object, const Host::FJsonNode& Root, const Host::FAssetRequest&)
	{
		return Root.Find(TEXT("Own")).TryGetInteger(static_cast<UObjectTestPart*>(Object)->Amount);
	});
	Content.Write(TEXT("Part.asset.json"), R"({"Class": "/Script/CoreUObjectTestTypes.ObjectTestOtherPart", "Own": 21})");

	UObjectTestPart* Part = LoadObject<UObjectTestPart>(nullptr, TEXT("/AssetTest/Part.Part"));

	ASSERT_NE(Part, nullptr);
	EXPECT_EQ(Part->Amount, 21);
	Host::FAssetLoaders::RemoveReader(ClassPath);
}

TEST_F(AssetLoader, ChangedFileIsReadIntoTheSameObject)
{
	Content.Write(TEXT("Style.asset.json"), R"({"Class": "/Script/CoreUObjectTestTypes.ObjectTestStyle", "Properties": {"Whole": 5, "Byte": 6}})");
	UObjectTestStyle* Style = Load(TEXT("/AssetTest/Style.Style"));
	EXPECT_EQ(Host::FAssetLoaders::ReloadChangedFiles(), 0);
	Content.Write(TEXT("Style.asset.json"), R"({"Class": "/Script/CoreUObjectTestTypes.ObjectTestStyle", "Properties": {"Whole": 8}})");
	Content.Age(TEXT("Style.asset.json"), 5);

	EXPECT_EQ(Host::FAssetLoaders::ReloadChangedFiles(), 1);

	EXPECT_EQ(Style->Whole, 8);
	EXPECT_EQ(Style->Byte, 0);
	EXPECT_EQ(Style->Notifications, TArray<FString>({ TEXT("Pre:all"), TEXT("Post:None.None") }));
	EXPECT_EQ(Host::FAssetLoaders::ReloadChangedFiles(), 0);
}
