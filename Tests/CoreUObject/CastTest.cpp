#include "ObjectTestInterface.h"
#include "ObjectTestNode.h"
#include "ObjectTestOwner.h"
#include "Templates/Casts.h"
#include "Templates/SubclassOf.h"
#include "gtest/gtest.h"

TEST(Cast, GivesTheObjectAsItsClassAndBases)
{
	UObject* Object = NewObject<UObjectTestDerivedNode>();

	EXPECT_EQ(Cast<UObjectTestDerivedNode>(Object), Object);
	EXPECT_EQ(Cast<UObjectTestNode>(Object), Object);
	EXPECT_EQ(Cast<UObject>(Cast<UObjectTestNode>(Object)), Object);
}

TEST(Cast, IsNullForAnotherClassAndForNull)
{
	UObject* Object = NewObject<UObjectTestNode>();

	EXPECT_EQ(Cast<UObjectTestDerivedNode>(Object), nullptr);
	EXPECT_EQ(Cast<UObjectTestOwner>(Object), nullptr);
	EXPECT_EQ(Cast<UObjectTestNode>(static_cast<UObject*>(nullptr)), nullptr);
}

TEST(Cast, KeepsConst)
{
	const UObject* Object = NewObject<UObjectTestNode>();
	const UObjectTestNode* Node = Cast<UObjectTestNode>(Object);

	EXPECT_EQ(Node, Object);
}

TEST(Cast, TakesObjectPointers)
{
	const TObjectPtr<UObject> Pointer = NewObject<UObjectTestNode>();

	EXPECT_EQ(Cast<UObjectTestNode>(Pointer), Pointer.Get());
	EXPECT_EQ(CastChecked<UObjectTestNode>(Pointer), Pointer.Get());
}

TEST(Cast, LeadsToTheInterfaceOfANativeImplementerAndBack)
{
	UObject* Object = NewObject<UObjectTestDerivedImplementer>();

	IObjectTestNamed* Interface = Cast<IObjectTestNamed>(Object);

	ASSERT_NE(Interface, nullptr);
	EXPECT_NE(static_cast<void*>(Interface), static_cast<void*>(Object));
	EXPECT_EQ(Interface->GetDisplayName(), FString(TEXT("derived")));
	EXPECT_EQ(Cast<UObject>(Interface), Object);
	EXPECT_EQ(Cast<UObjectTestImplementer>(Interface), Object);
	EXPECT_EQ(Cast<UObjectTestNode>(Interface), nullptr);
	EXPECT_EQ(Cast<IObjectTestUnused>(Object), nullptr);
}

TEST(Cast, ExactRefusesDerivedObjects)
{
	UObject* Object = NewObject<UObjectTestDerivedNode>();

	EXPECT_EQ(ExactCast<UObjectTestNode>(Object), nullptr);
	EXPECT_EQ(ExactCast<UObjectTestDerivedNode>(Object), Object);
}

TEST(Cast, CheckedAllowsNullOnRequest)
{
	EXPECT_EQ(CastChecked<UObjectTestNode>(static_cast<UObject*>(nullptr), ECastCheckedType::NullAllowed), nullptr);
}

TEST(CastDeathTest, CheckedEndsTheProcessForAnotherClassAndForNull)
{
	UObject* Object = NewObject<UObjectTestNode>();

	EXPECT_DEATH(CastChecked<UObjectTestOwner>(Object), "to ObjectTestOwner failed");
	EXPECT_DEATH(CastChecked<UObjectTestOwner>(static_cast<UObject*>(nullptr)), "Cast of null");
}

TEST(SubclassOf, ReadsAsNullForAnUnrelatedClass)
{
	const TSubclassOf<UObjectTestNode> Good = UObjectTestDerivedNode::StaticClass();
	const TSubclassOf<UObjectTestNode> Bad = UObjectTestOwner::StaticClass();

	EXPECT_EQ(Good.Get(), UObjectTestDerivedNode::StaticClass());
	EXPECT_EQ(*Bad, nullptr);
	EXPECT_TRUE(Bad == nullptr);
	EXPECT_EQ(Good.GetDefaultObject(), GetDefault<UObjectTestDerivedNode>());
}

TEST(ObjectPtr, ComparesAndConvertsAsARawPointer)
{
	UObjectTestDerivedNode* Raw = NewObject<UObjectTestDerivedNode>();
	const TObjectPtr<UObjectTestDerivedNode> Derived = Raw;
	const TObjectPtr<UObjectTestNode> Base = Derived;
	UObject* Converted = Base;

	EXPECT_TRUE(Derived == Raw);
	EXPECT_TRUE(Raw == Derived);
	EXPECT_TRUE(Base == Derived);
	EXPECT_TRUE(Base != nullptr);
	EXPECT_EQ(Converted, Raw);
	EXPECT_EQ(GetTypeHash(Base), GetTypeHash(Raw));
	EXPECT_EQ(ObjectPtrDecay(Base), Raw);
}
