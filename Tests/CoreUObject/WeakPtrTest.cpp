#include "ObjectTestNode.h"
#include "ObjectTestOwner.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/WeakObjectPtr.h"
#include "gtest/gtest.h"

TEST(WeakPtr, IsNullByDefault)
{
	const TWeakObjectPtr<UObjectTestNode> Weak;

	EXPECT_FALSE(Weak.IsValid());
	EXPECT_FALSE(Weak.IsStale());
	EXPECT_TRUE(Weak.IsExplicitlyNull());
	EXPECT_EQ(Weak.Get(), nullptr);
}

TEST(WeakPtr, LeadsToItsObject)
{
	UObjectTestNode* Node = NewObject<UObjectTestNode>();
	const TWeakObjectPtr<UObjectTestNode> Weak = Node;
	const TWeakObjectPtr<UObject> Base = Weak;

	EXPECT_EQ(Weak.Get(), Node);
	EXPECT_EQ(Base.Get(), Node);
	EXPECT_TRUE(Weak == Node);
	EXPECT_TRUE(Weak == Base);
}

TEST(WeakPtr, IsStaleOnceItsObjectIsDeclaredDead)
{
	UObjectTestNode* Node = NewObject<UObjectTestNode>();
	const TWeakObjectPtr<UObjectTestNode> Weak = Node;
	Node->MarkAsGarbage();

	EXPECT_FALSE(Weak.IsValid());
	EXPECT_TRUE(Weak.IsStale());
	EXPECT_EQ(Weak.Get(true), Node);
	EXPECT_FALSE(Weak.IsStale(false));
}

TEST(WeakPtr, StaysNullWhenItsPlaceIsTakenByAnotherObject)
{
	const TWeakObjectPtr<UObjectTestNode> Weak = NewObject<UObjectTestNode>();
	CollectGarbage(RF_NoFlags);
	TArray<TWeakObjectPtr<UObjectTestNode>> Others;
	for (int32 Index = 0; Index < 1000; ++Index)
	{
		Others.Add(NewObject<UObjectTestNode>());
	}

	EXPECT_FALSE(Weak.IsValid());
	EXPECT_TRUE(Weak.IsStale());
	for (const TWeakObjectPtr<UObjectTestNode>& Other : Others)
	{
		EXPECT_FALSE(Other.HasSameIndexAndSerialNumber(Weak));
	}
}

TEST(WeakPtr, TwoThatLeadNowhereAreEqual)
{
	const TWeakObjectPtr<UObjectTestNode> Weak = NewObject<UObjectTestNode>();
	CollectGarbage(RF_NoFlags);

	EXPECT_TRUE(Weak == TWeakObjectPtr<UObjectTestNode>());
	EXPECT_TRUE(Weak == nullptr);
}

TEST(WeakPtr, WorksAsAKey)
{
	UObjectTestNode* Node = NewObject<UObjectTestNode>();
	TMap<TWeakObjectPtr<UObjectTestNode>, int32> Map;
	Map.Add(Node, 5);

	EXPECT_EQ(Map.FindRef(Node), 5);
}

TEST(WeakPtr, NativeDelegateToADeadObjectIsNotCalled)
{
	UObjectTestNode* Node = NewObject<UObjectTestNode>();
	int32 NumCalls = 0;
	FSimpleDelegate Delegate;
	Delegate.BindWeakLambda(Node, [&NumCalls] { ++NumCalls; });
	EXPECT_TRUE(Delegate.ExecuteIfBound());

	CollectGarbage(RF_NoFlags);

	EXPECT_FALSE(Delegate.ExecuteIfBound());
	EXPECT_FALSE(Delegate.IsBound());
	EXPECT_EQ(NumCalls, 1);
}

TEST(WeakPtr, NativeMethodDelegateHoldsItsObjectWeakly)
{
	UObjectTestOwner* Owner = NewObject<UObjectTestOwner>();
	Owner->Events.Empty();
	FSimpleMulticastDelegate Delegate;
	Delegate.AddUObject(Owner, &UObjectTestOwner::PostLoad);
	Delegate.Broadcast();
	EXPECT_EQ(Owner->Events.Num(), 1);

	CollectGarbage(RF_NoFlags);

	EXPECT_FALSE(Delegate.IsBound());
	Delegate.Broadcast();
}
