#include "ExpectedLog.h"
#include "ObjectTestNode.h"
#include "ObjectTestOwner.h"
#include "UObject/Package.h"
#include "UObject/SoftObjectPtr.h"
#include "UObject/UObjectGlobals.h"
#include "gtest/gtest.h"

TEST(SoftPath, SplitsIntoItsParts)
{
	const FSoftObjectPath Path(TEXT("/Game/Dir/Asset.Asset:Inner.Deeper"));

	EXPECT_EQ(Path.GetLongPackageName(), FString(TEXT("/Game/Dir/Asset")));
	EXPECT_EQ(Path.GetAssetName(), FString(TEXT("Asset")));
	EXPECT_EQ(Path.GetSubPathString(), FString(TEXT("Inner.Deeper")));
	EXPECT_EQ(Path.GetAssetPathString(), FString(TEXT("/Game/Dir/Asset.Asset")));
	EXPECT_EQ(Path.ToString(), FString(TEXT("/Game/Dir/Asset.Asset:Inner.Deeper")));
	EXPECT_TRUE(Path.IsSubobject());
}

TEST(SoftPath, ExportedFormLosesItsClass)
{
	EXPECT_EQ(FSoftObjectPath(TEXT("Font'/Game/Asset.Asset'")).ToString(), FString(TEXT("/Game/Asset.Asset")));
}

TEST(SoftPath, EmptyAndNoneAreNull)
{
	EXPECT_TRUE(FSoftObjectPath().IsNull());
	EXPECT_TRUE(FSoftObjectPath(TEXT("")).IsNull());
	EXPECT_TRUE(FSoftObjectPath(TEXT("None")).IsNull());
	EXPECT_EQ(FSoftObjectPath().ToString(), FString());
	EXPECT_EQ(FSoftObjectPath().TryLoad(), nullptr);
}

TEST(SoftPath, ComparesAndHashesWithoutCase)
{
	const FSoftObjectPath A(TEXT("/Game/Asset.Asset"));
	const FSoftObjectPath B(TEXT("/game/asset.asset"));

	EXPECT_TRUE(A == B);
	EXPECT_EQ(GetTypeHash(A), GetTypeHash(B));
}

TEST(SoftPtr, LeadsToALoadedObject)
{
	UObjectTestNode* Node = NewObject<UObjectTestNode>(CreatePackage(TEXT("/Test/Soft")), TEXT("Node"));
	const TSoftObjectPtr<UObjectTestNode> Soft(FSoftObjectPath(TEXT("/Test/Soft.Node")));
	const TSoftObjectPtr<UObjectTestNode> FromObject = Node;

	EXPECT_EQ(Soft.Get(), Node);
	EXPECT_EQ(Soft.LoadSynchronous(), Node);
	EXPECT_TRUE(Soft.IsValid());
	EXPECT_FALSE(Soft.IsPending());
	EXPECT_TRUE(Soft == FromObject);
	EXPECT_EQ(FromObject.ToString(), FString(TEXT("/Test/Soft.Node")));
}

TEST(SoftPtr, IsPendingWhileItsObjectIsNotLoaded)
{
	const TSoftObjectPtr<UObjectTestNode> Soft(FSoftObjectPath(TEXT("/Test/Soft.NotThere")));

	EXPECT_FALSE(Soft.IsNull());
	EXPECT_FALSE(Soft.IsValid());
	EXPECT_TRUE(Soft.IsPending());
	EXPECT_EQ(Soft.Get(), nullptr);
}

TEST(SoftPtr, ReadsAsNullForAnObjectOfAnotherClass)
{
	NewObject<UObjectTestNode>(CreatePackage(TEXT("/Test/Soft")), TEXT("WrongClass"));
	const TSoftObjectPtr<UObjectTestOwner> Soft(FSoftObjectPath(TEXT("/Test/Soft.WrongClass")));

	EXPECT_EQ(Soft.Get(), nullptr);
	EXPECT_EQ(Soft.LoadSynchronous(), nullptr);
}

TEST(SoftPtr, FindsItsObjectAgainAfterItWasMadeAnew)
{
	UPackage* Package = CreatePackage(TEXT("/Test/SoftAgain"));
	Package->AddToRoot();
	TSoftObjectPtr<UObjectTestNode> Soft = NewObject<UObjectTestNode>(Package, TEXT("Node"));
	CollectGarbage(RF_NoFlags);
	EXPECT_EQ(Soft.Get(), nullptr);
	UObjectTestNode* Again = NewObject<UObjectTestNode>(Package, TEXT("Node"));

	EXPECT_EQ(Soft.Get(), Again);

	Package->RemoveFromRoot();
}

TEST(SoftPtr, FailedLoadIsReportedOnceWhoeverAsks)
{
	Host::FExpectedLog Expected(TEXT("Failed to find object 'Object /Test/Nowhere.Nowhere'"));
	const TSoftObjectPtr<UObjectTestNode> Soft(FSoftObjectPath(TEXT("/Test/Nowhere.Nowhere")));

	EXPECT_EQ(Soft.LoadSynchronous(), nullptr);
	EXPECT_EQ(Soft.LoadSynchronous(), nullptr);
}

TEST(SoftPtr, ExplicitLoadReportsEachFailure)
{
	Host::FExpectedLog Expected(TEXT("Failed to find object 'ObjectTestNode /Test/Nowhere2.Nowhere2'"), 2);

	EXPECT_EQ(LoadObject<UObjectTestNode>(nullptr, TEXT("/Test/Nowhere2.Nowhere2")), nullptr);
	EXPECT_EQ(LoadObject<UObjectTestNode>(nullptr, TEXT("/Test/Nowhere2")), nullptr);
}

TEST(SoftClassPtr, AcceptsOnlyDerivedClasses)
{
	const TSoftClassPtr<UObjectTestNode> Good(FSoftObjectPath(TEXT("/Script/CoreUObjectTestTypes.ObjectTestDerivedNode")));
	const TSoftClassPtr<UObjectTestNode> Bad(FSoftObjectPath(TEXT("/Script/CoreUObjectTestTypes.ObjectTestOwner")));

	EXPECT_EQ(Good.LoadSynchronous(), UObjectTestDerivedNode::StaticClass());
	EXPECT_EQ(Good.Get(), UObjectTestDerivedNode::StaticClass());
	EXPECT_EQ(Bad.LoadSynchronous(), nullptr);
	EXPECT_EQ(TSoftClassPtr<UObjectTestNode>(UObjectTestDerivedNode::StaticClass()).ToString(), Good.ToString());
}
