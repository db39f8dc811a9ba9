#include "Templates/SharedPointer.h"

#include "Containers/Map.h"
#include "CountedValue.h"
#include "gtest/gtest.h"

#include <thread>
#include <vector>

namespace
{
	struct FBase
	{
		virtual ~FBase() { ++NumDestroyed; }
		static inline int32 NumDestroyed = 0;
		int32 BaseValue = 1;
	};

	struct FOther
	{
		virtual ~FOther() = default;
		int32 OtherValue = 2;
	};

	struct FDerived : FOther, FBase
	{
		int32 DerivedValue = 3;
	};

	struct FSelfAware : TSharedFromThis<FSelfAware>
	{
		virtual ~FSelfAware() = default;
		TSharedRef<FSelfAware> Me() { return AsShared(); }
		TSharedRef<const FSelfAware> MeConst() const { return AsShared(); }
	};

	struct FMoreSelfAware : FSelfAware
	{
		TSharedRef<FMoreSelfAware> MeExactly() { return SharedThis(this); }
	};
}

TEST(SharedPointerTest, TheLastPointerEndsTheObject)
{
	TSharedPtr<FCountedValue> First = MakeShared<FCountedValue>(5);
	{
		TSharedPtr<FCountedValue> Second = First;
		EXPECT_EQ(2, First.GetSharedReferenceCount());
		First.Reset();
		EXPECT_FALSE(First.IsValid());
		EXPECT_EQ(5, Second->Value);
		EXPECT_TRUE(Second.IsUnique());
	}
	EXPECT_EQ(0, FCountedValue::NumAlive);
}

TEST(SharedPointerTest, MakeShareableTakesOwnership)
{
	{
		TSharedRef<FCountedValue> Ref = MakeShareable(new FCountedValue(1));
		TSharedPtr<FCountedValue> Ptr(new FCountedValue(2));
		EXPECT_EQ(2, FCountedValue::NumAlive);
	}
	EXPECT_EQ(0, FCountedValue::NumAlive);
}

TEST(SharedPointerTest, ADeleterIsCalledOnce)
{
	int32 NumCalls = 0;
	int32 Object = 0;
	{
		TSharedPtr<int32> Ptr = MakeShareable(&Object, [&NumCalls](int32*) { ++NumCalls; });
		TSharedPtr<int32> Copy = Ptr;
		EXPECT_EQ(0, NumCalls);
	}
	EXPECT_EQ(1, NumCalls);
}

TEST(SharedPointerTest, ConvertsToItsBaseAndBack)
{
	FBase::NumDestroyed = 0;
	{
		TSharedRef<FDerived> Derived = MakeShared<FDerived>();
		TSharedPtr<FBase> Base = Derived;
		EXPECT_EQ(1, Base->BaseValue);
		EXPECT_NE(static_cast<void*>(Base.Get()), static_cast<void*>(&Derived.Get()));
		EXPECT_EQ(3, StaticCastSharedPtr<FDerived>(Base)->DerivedValue);
		EXPECT_EQ(3, StaticCastSharedRef<FDerived>(Base.ToSharedRef())->DerivedValue);
		EXPECT_EQ(2, StaticCastSharedRef<FOther>(Derived)->OtherValue);
	}
	EXPECT_EQ(1, FBase::NumDestroyed);
}

TEST(SharedPointerTest, AVoidOrBasePointerStillEndsTheWholeObject)
{
	{
		TSharedPtr<FCountedValue> Ptr = MakeShared<FCountedValue>();
		TSharedPtr<void> Nameless;
		Nameless = TSharedPtr<void>(Ptr, Ptr.Get());
		Ptr.Reset();
		EXPECT_EQ(1, FCountedValue::NumAlive);
	}
	EXPECT_EQ(0, FCountedValue::NumAlive);
}

TEST(SharedPointerTest, MovingAPointerCountsNothing)
{
	TSharedPtr<int32> First = MakeShared<int32>(1);
	TSharedPtr<int32> Second = MoveTemp(First);
	EXPECT_FALSE(First.IsValid());
	EXPECT_EQ(1, Second.GetSharedReferenceCount());
	TSharedRef<int32> Ref = MoveTemp(Second).ToSharedRef();
	EXPECT_FALSE(Second.IsValid());
	EXPECT_TRUE(Ref.IsUnique());
}

TEST(SharedPointerTest, AMovedFromReferenceIsStillValid)
{
	TSharedRef<int32> First = MakeShared<int32>(1);
	TSharedRef<int32> Second = MoveTemp(First);
	EXPECT_EQ(1, *First);
	EXPECT_EQ(1, *Second);
}

TEST(SharedPointerTest, AssigningItselfChangesNothing)
{
	TSharedPtr<FCountedValue> Ptr = MakeShared<FCountedValue>(4);
	TSharedPtr<FCountedValue>& Same = Ptr;
	Ptr = Same;
	EXPECT_EQ(4, Ptr->Value);
	EXPECT_TRUE(Ptr.IsUnique());
}

TEST(SharedPointerTest, AnObjectMayReleaseThePointerThatHoldsIt)
{
	struct FNode
	{
		TSharedPtr<FNode> Next;
	};
	TSharedPtr<FNode> Head = MakeShared<FNode>();
	Head->Next = MakeShared<FNode>();
	Head = Head->Next;
	EXPECT_TRUE(Head.IsUnique());
}

TEST(SharedPointerTest, ComparesByTheObject)
{
	const TSharedRef<int32> A = MakeShared<int32>(1);
	const TSharedPtr<int32> B = A;
	const TSharedPtr<const int32> C = A;
	EXPECT_TRUE(B == A);
	EXPECT_TRUE(A == B);
	EXPECT_TRUE(B == C);
	EXPECT_TRUE(B != nullptr);
	EXPECT_TRUE(TSharedPtr<int32>() == nullptr);
	EXPECT_TRUE(A != MakeShared<int32>(1));
	TMap<TSharedPtr<int32>, int32> Map;
	Map.Add(B, 7);
	EXPECT_EQ(7, Map.FindRef(A));
}

TEST(WeakPtrTest, PinsAsLongAsTheObjectLives)
{
	TSharedPtr<int32> Shared = MakeShared<int32>(3);
	const TWeakPtr<int32> Weak = Shared;
	EXPECT_TRUE(Weak.IsValid());
	EXPECT_TRUE(Weak == Shared);
	EXPECT_EQ(3, *Weak.Pin());
	EXPECT_TRUE(Shared.IsUnique());
	Shared.Reset();
	EXPECT_FALSE(Weak.IsValid());
	EXPECT_EQ(nullptr, Weak.Pin().Get());
	EXPECT_TRUE(Weak == nullptr);
}

TEST(WeakPtrTest, OutlivesAnObjectThatIsInsideItsController)
{
	TWeakPtr<FCountedValue> Weak;
	{
		Weak = MakeShared<FCountedValue>(1);
		EXPECT_FALSE(Weak.IsValid());
	}
	EXPECT_EQ(0, FCountedValue::NumAlive);
	const TWeakPtr<FCountedValue> Copy = Weak;
	EXPECT_FALSE(Copy.IsValid());
}

TEST(WeakPtrTest, PinningOnManyThreadsEndsWithTheObjectGone)
{
	for (int32 Round = 0; Round < 200; ++Round)
	{
		TSharedPtr<FCountedValue> Shared = MakeShared<FCountedValue>(7);
		const TWeakPtr<FCountedValue> Weak = Shared;
		std::vector<std::thread> Threads;
		for (int32 Index = 0; Index < 3; ++Index)
		{
			Threads.emplace_back([Weak]
			{
				while (const TSharedPtr<FCountedValue> Pinned = Weak.Pin())
				{
					ASSERT_EQ(7, Pinned->Value);
				}
			});
		}
		Shared.Reset();
		for (std::thread& Thread : Threads)
		{
			Thread.join();
		}
		ASSERT_EQ(0, FCountedValue::NumAlive);
	}
}

TEST(SharedFromThisTest, AnObjectKnowsItsPointer)
{
	const TSharedRef<FMoreSelfAware> Ref = MakeShared<FMoreSelfAware>();
	EXPECT_TRUE(Ref->Me() == Ref);
	EXPECT_TRUE(Ref->MeExactly() == Ref);
	EXPECT_TRUE(Ref->MeConst() == Ref);
	EXPECT_TRUE(Ref->AsWeak() == Ref);
	TSharedPtr<FSelfAware> Shareable = MakeShareable(new FMoreSelfAware);
	EXPECT_TRUE(Shareable->Me() == Shareable);
	EXPECT_TRUE(Shareable->DoesSharedInstanceExist());
}

TEST(SharedFromThisTest, ACopyOfAnObjectHasPointersOfItsOwn)
{
	const TSharedRef<FSelfAware> Ref = MakeShared<FSelfAware>();
	FSelfAware Copy = *Ref;
	EXPECT_FALSE(Copy.DoesSharedInstanceExist());
	EXPECT_TRUE(Ref.IsUnique());
}

TEST(SharedPointerDeathTest, ANullPointerHaltsWhereAnObjectMustBe)
{
	::testing::FLAGS_gtest_death_test_style = "threadsafe";
	const TSharedPtr<FBase> Null;
	EXPECT_DEATH((void)Null->BaseValue, "Assertion failed: IsValid\\(\\)");
	EXPECT_DEATH((void)Null.ToSharedRef(), "Assertion failed: IsValid\\(\\)");
	EXPECT_DEATH(TSharedRef<int32>(static_cast<int32*>(nullptr)), "Assertion failed");
	EXPECT_DEATH(
		{
			FSelfAware OnTheStack;
			OnTheStack.Me();
		},
		"Assertion failed");
}
