#include "ObjectTestNode.h"
#include "UObject/GarbageCollection.h"
#include "UObject/Package.h"
#include "UObject/StrongObjectPtr.h"
#include "UObject/UObjectGlobals.h"
#include "gtest/gtest.h"

namespace
{
	class GarbageCollection : public testing::Test
	{
	protected:
		virtual void SetUp() override
		{
			CollectGarbage(RF_NoFlags);
			Root = NewObject<UObjectTestNode>();
			Root->AddToRoot();
			Target = NewObject<UObjectTestNode>();
			WeakTarget = Target;
			UObjectTestNode::NumBeginDestroy = 0;
			UObjectTestNode::NumFinishDestroy = 0;
			UObjectTestNode::NumDestructors = 0;
		}

		virtual void TearDown() override
		{
			UObjectTestNode::bHoldBack = false;
			Root->RemoveFromRoot();
			CollectGarbage(RF_NoFlags);
		}

		bool TargetSurvives()
		{
			CollectGarbage(RF_NoFlags);
			return WeakTarget.IsValid();
		}

		UObjectTestNode* Root = nullptr;
		UObjectTestNode* Target = nullptr;
		TWeakObjectPtr<UObjectTestNode> WeakTarget;
	};

	class FHolder : public FGCObject
	{
	public:
		TObjectPtr<UObjectTestNode> Held;
		virtual void AddReferencedObjects(FReferenceCollector& Collector) override { Collector.AddReferencedObject(Held); }
		virtual FString GetReferencerName() const override { return TEXT("FHolder"); }
	};
}

TEST_F(GarbageCollection, DestroysWhatNothingRefersTo)
{
	EXPECT_FALSE(TargetSurvives());
	EXPECT_EQ(UObjectTestNode::NumBeginDestroy, 1);
	EXPECT_EQ(UObjectTestNode::NumFinishDestroy, 1);
	EXPECT_EQ(UObjectTestNode::NumDestructors, 1);
	EXPECT_EQ(Host::GetLastGarbageStats().NumDestroyed, 1);
}

TEST_F(GarbageCollection, ReflectedPointerKeepsAlive)
{
	Root->Next = Target;
	EXPECT_TRUE(TargetSurvives());
}

TEST_F(GarbageCollection, ReflectedRawPointerKeepsAlive)
{
	Root->RawNext = Target;
	EXPECT_TRUE(TargetSurvives());
}

TEST_F(GarbageCollection, EachElementOfACArrayKeepsAlive)
{
	Root->Fixed[2] = Target;
	EXPECT_TRUE(TargetSurvives());
}

TEST_F(GarbageCollection, ArrayElementKeepsAlive)
{
	Root->Children = { nullptr, Target };
	EXPECT_TRUE(TargetSurvives());
}

TEST_F(GarbageCollection, MapValueKeepsAlive)
{
	Root->Named.Add(TEXT("Target"), Target);
	EXPECT_TRUE(TargetSurvives());
}

TEST_F(GarbageCollection, MapKeyKeepsAlive)
{
	Root->Ranked.Add(Target, 1);
	EXPECT_TRUE(TargetSurvives());
}

TEST_F(GarbageCollection, SetElementKeepsAlive)
{
	Root->Unordered.Add(Target);
	EXPECT_TRUE(TargetSurvives());
}

TEST_F(GarbageCollection, MemberOfAStructureKeepsAlive)
{
	Root->Link.Target = Target;
	EXPECT_TRUE(TargetSurvives());
}

TEST_F(GarbageCollection, MemberOfAStructureInAnArrayKeepsAlive)
{
	Root->Links.SetNum(2);
	Root->Links[1].Target = Target;
	EXPECT_TRUE(TargetSurvives());
}

TEST_F(GarbageCollection, AddReferencedObjectsKeepsAlive)
{
	Root->Declared = Target;
	EXPECT_TRUE(TargetSurvives());
}

TEST_F(GarbageCollection, OuterKeepsNothingInsideAlive)
{
	UObjectTestNode* Inner = NewObject<UObjectTestNode>(Root);
	const TWeakObjectPtr<UObjectTestNode> WeakInner = Inner;

	CollectGarbage(RF_NoFlags);

	EXPECT_FALSE(WeakInner.IsValid());
}

TEST_F(GarbageCollection, ObjectKeepsItsOuterAlive)
{
	UObjectTestNode* Inner = NewObject<UObjectTestNode>(Target);
	Root->Next = Inner;
	EXPECT_TRUE(TargetSurvives());
}

TEST_F(GarbageCollection, UnreflectedWeakAndSoftReferencesKeepNothingAlive)
{
	Root->Unreflected = Target;
	Root->Weak = Target;
	Root->Soft = Target;

	EXPECT_FALSE(TargetSurvives());
	EXPECT_EQ(Root->Weak.Get(), nullptr);
	EXPECT_EQ(Root->Soft.Get(), nullptr);
}

TEST_F(GarbageCollection, HolderWithoutReflectionKeepsAliveWhileItLives)
{
	{
		FHolder First;
		First.Held = Target;
		FHolder Second;
		const FHolder Third(First);
		EXPECT_TRUE(TargetSurvives());
	}
	EXPECT_FALSE(TargetSurvives());
}

TEST_F(GarbageCollection, StrongPointerKeepsAliveUntilTheLastIsGone)
{
	TStrongObjectPtr<UObjectTestNode> First(Target);
	TStrongObjectPtr<UObjectTestNode> Second = First;
	First.Reset();
	EXPECT_TRUE(TargetSurvives());
	TStrongObjectPtr<UObjectTestNode> Third = MoveTemp(Second);
	EXPECT_TRUE(TargetSurvives());
	Third.Reset();
	EXPECT_FALSE(TargetSurvives());
}

TEST_F(GarbageCollection, CyclesAreDestroyed)
{
	Target->Next = NewObject<UObjectTestNode>();
	Target->Next->Next = Target;

	EXPECT_FALSE(TargetSurvives());
	EXPECT_EQ(UObjectTestNode::NumDestructors, 2);
}

TEST_F(GarbageCollection, LongChainsAreFollowed)
{
	UObjectTestNode* Last = Root;
	for (int32 Index = 0; Index < 100000; ++Index)
	{
		Last->Next = NewObject<UObjectTestNode>();
		Last = Last->Next;
	}
	Last->Next = Target;

	EXPECT_TRUE(TargetSurvives());

	Root->Next = nullptr;
	EXPECT_FALSE(TargetSurvives());
	EXPECT_EQ(UObjectTestNode::NumDestructors, 100001);
}

TEST_F(GarbageCollection, ReferencesToObjectsDeclaredDeadAreCleared)
{
	Root->Next = Target;
	Root->Children = { Target };
	Root->Named.Add(TEXT("Target"), Target);
	Root->Link.Target = Target;
	Target->MarkAsGarbage();
	EXPECT_FALSE(IsValid(Target));
	EXPECT_FALSE(WeakTarget.IsValid());

	CollectGarbage(RF_NoFlags);

	EXPECT_EQ(Root->Next, nullptr);
	ASSERT_EQ(Root->Children.Num(), 1);
	EXPECT_EQ(Root->Children[0], nullptr);
	EXPECT_EQ(Root->Named.FindRef(TEXT("Target")), nullptr);
	EXPECT_EQ(Root->Link.Target, nullptr);
	EXPECT_EQ(UObjectTestNode::NumDestructors, 1);
}

TEST_F(GarbageCollection, ObjectThatIsNotReadyWaitsForALaterCollection)
{
	UObjectTestNode::bHoldBack = true;
	EXPECT_FALSE(TargetSurvives());
	EXPECT_EQ(UObjectTestNode::NumBeginDestroy, 1);
	EXPECT_EQ(UObjectTestNode::NumDestructors, 0);
	EXPECT_EQ(Host::GetLastGarbageStats().NumPending, 1);

	UObjectTestNode::bHoldBack = false;
	CollectGarbage(RF_NoFlags);
	EXPECT_EQ(UObjectTestNode::NumBeginDestroy, 1);
	EXPECT_EQ(UObjectTestNode::NumDestructors, 1);
	EXPECT_EQ(Host::GetLastGarbageStats().NumPending, 0);
}

TEST_F(GarbageCollection, KeepFlagsKeepAlive)
{
	Target->SetFlags(RF_Standalone);
	CollectGarbage(RF_Standalone);
	EXPECT_TRUE(WeakTarget.IsValid());
	EXPECT_FALSE(TargetSurvives());
}

TEST_F(GarbageCollection, ClassDefaultObjectsStay)
{
	const UObjectTestNode* Defaults = GetDefault<UObjectTestNode>();
	CollectGarbage(RF_NoFlags);
	EXPECT_EQ(GetDefault<UObjectTestNode>(), Defaults);
	EXPECT_TRUE(IsValid(Defaults));
}

TEST_F(GarbageCollection, NameIsFreeAgainAfterwards)
{
	UObjectTestNode* First = NewObject<UObjectTestNode>(GetTransientPackage(), TEXT("FreedName"));
	(void)First;
	CollectGarbage(RF_NoFlags);

	EXPECT_EQ(FindObject<UObjectTestNode>(GetTransientPackage(), TEXT("FreedName")), nullptr);
}

TEST_F(GarbageCollection, AnnouncesItself)
{
	int32 NumBefore = 0;
	int32 NumAfter = 0;
	const FDelegateHandle Before = FCoreUObjectDelegates::GetPreGarbageCollectDelegate().AddLambda([&] { ++NumBefore; });
	const FDelegateHandle After = FCoreUObjectDelegates::GetPostGarbageCollect().AddLambda([&] { ++NumAfter; });

	CollectGarbage(RF_NoFlags);

	EXPECT_EQ(NumBefore, 1);
	EXPECT_EQ(NumAfter, 1);
	FCoreUObjectDelegates::GetPreGarbageCollectDelegate().Remove(Before);
	FCoreUObjectDelegates::GetPostGarbageCollect().Remove(After);
}

TEST_F(GarbageCollection, RandomGraphKeepsExactlyWhatTheRootReaches)
{
	constexpr int32 NumNodes = 2000;
	uint32 Seed = 12345;
	const auto Random = [&Seed](uint32 Bound)
	{
		Seed = Seed * 1664525u + 1013904223u;
		return (Seed >> 8) % Bound;
	};
	TArray<UObjectTestNode*> Nodes;
	TArray<TArray<int32>> Edges;
	Edges.SetNum(NumNodes);
	for (int32 Index = 0; Index < NumNodes; ++Index)
	{
		Nodes.Add(NewObject<UObjectTestNode>());
		Nodes[Index]->Value = Index;
	}
	for (int32 Edge = 0; Edge < NumNodes; ++Edge)
	{
		const int32 From = static_cast<int32>(Random(NumNodes));
		const int32 To = static_cast<int32>(Random(NumNodes));
		Edges[From].Add(To);
		switch (Random(4))
		{
		case 0: Nodes[From]->Children.Add(Nodes[To]); break;
		case 1: Nodes[From]->Unordered.Add(Nodes[To]); break;
		case 2: Nodes[From]->Ranked.Add(Nodes[To], 0); break;
		default: Nodes[From]->Links.AddDefaulted_GetRef().Target = Nodes[To]; break;
		}
	}
	TSet<int32> Reached;
	TArray<int32> Pending;
	for (int32 Start = 0; Start < 20; ++Start)
	{
		Root->Children.Add(Nodes[Start]);
		Pending.Add(Start);
	}
	while (Pending.Num() > 0)
	{
		const int32 Node = Pending.Pop();
		if (!Reached.Contains(Node))
		{
			Reached.Add(Node);
			Pending.Append(Edges[Node]);
		}
	}
	TArray<TWeakObjectPtr<UObjectTestNode>> Weak;
	for (UObjectTestNode* Node : Nodes)
	{
		Weak.Add(Node);
	}

	CollectGarbage(RF_NoFlags);

	for (int32 Index = 0; Index < NumNodes; ++Index)
	{
		EXPECT_EQ(Weak[Index].IsValid(), Reached.Contains(Index)) << "node " << Index;
	}
}
