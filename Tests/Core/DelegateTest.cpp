#include "Delegates/Delegate.h"

#include "CountedValue.h"
#include "TestText.h"
#include "gtest/gtest.h"

DECLARE_DELEGATE_OneParam(FTestDelegate, int32);
DECLARE_DELEGATE_RetVal_TwoParams(int32, FTestSum, int32, int32);
DECLARE_DELEGATE_RetVal(FString, FTestGetter);
DECLARE_DELEGATE_NineParams(FTestNine, int32, int32, int32, int32, int32, int32, int32, int32, int32);
DECLARE_DELEGATE_OneParam(FTestOutput, int32&);
DECLARE_DELEGATE_OneParam(FTestOwner, TUniquePtr<int32>);

namespace
{
	int32 Sum(int32 A, int32 B)
	{
		return A + B;
	}

	int32 SumWithPayload(int32 A, int32 B, int32 C, FString Text)
	{
		return A + B + C + Text.Len();
	}

	struct FReceiver : TSharedFromThis<FReceiver>
	{
		virtual ~FReceiver() = default;
		void Receive(int32 Value) { Last = Value; }
		void ReceiveMore(int32 Value, FString Text) { Last = Value + Text.Len(); }
		int32 Add(int32 A, int32 B) const { return A + B + Last; }
		virtual void ReceiveVirtually(int32 Value) { Last = Value; }
		int32 Last = 0;
	};

	struct FDerivedReceiver : FReceiver
	{
		virtual void ReceiveVirtually(int32 Value) override { Last = -Value; }
		void BindItself(FTestDelegate& Delegate) { Delegate.BindSP(this, &FDerivedReceiver::ReceiveVirtually); }
	};
}

static_assert(sizeof(FTestDelegate) == sizeof(void*), "A delegate that is not bound costs one address");

TEST(DelegateTest, AnUnboundDelegateIsNotCalled)
{
	const FTestDelegate Delegate;
	EXPECT_FALSE(Delegate.IsBound());
	EXPECT_FALSE(Delegate.ExecuteIfBound(1));
	EXPECT_FALSE(Delegate.GetHandle().IsValid());
}

TEST(DelegateTest, CallsFunctionsAndLambdas)
{
	FTestSum Delegate = FTestSum::CreateStatic(&Sum);
	EXPECT_EQ(5, Delegate.Execute(2, 3));
	Delegate.BindLambda([](int32 A, int32 B) { return A * B; });
	EXPECT_EQ(6, Delegate.Execute(2, 3));
	Delegate.Unbind();
	EXPECT_FALSE(Delegate.IsBound());
}

TEST(DelegateTest, PayloadsFollowTheParameters)
{
	FTestSum Delegate = FTestSum::CreateStatic(&SumWithPayload, 10, FString(TEXT("abc")));
	EXPECT_EQ(18, Delegate.Execute(2, 3));
	Delegate.BindLambda([](int32 A, int32 B, const FString& Text) { return A + B + Text.Len(); }, FString(TEXT("x")));
	EXPECT_EQ(6, Delegate.Execute(2, 3));
}

TEST(DelegateTest, ARawBindingCallsItsObject)
{
	FReceiver Receiver;
	FTestDelegate Delegate = FTestDelegate::CreateRaw(&Receiver, &FReceiver::Receive);
	EXPECT_TRUE(Delegate.ExecuteIfBound(4));
	EXPECT_EQ(4, Receiver.Last);
	EXPECT_TRUE(Delegate.IsBoundToObject(&Receiver));
	Delegate.BindRaw(&Receiver, &FReceiver::ReceiveMore, FString(TEXT("xy")));
	Delegate.Execute(1);
	EXPECT_EQ(3, Receiver.Last);
	const FReceiver& Constant = Receiver;
	EXPECT_EQ(6, FTestSum::CreateRaw(&Constant, &FReceiver::Add).Execute(1, 2));
}

TEST(DelegateTest, ASharedBindingEndsWithItsObject)
{
	TSharedPtr<FReceiver> Receiver = MakeShared<FReceiver>();
	FTestDelegate Delegate;
	Delegate.BindSP(Receiver.ToSharedRef(), &FReceiver::Receive);
	EXPECT_TRUE(Delegate.IsBound());
	EXPECT_TRUE(Receiver.IsUnique());
	EXPECT_TRUE(Delegate.ExecuteIfBound(4));
	EXPECT_EQ(4, Receiver->Last);
	Receiver.Reset();
	EXPECT_FALSE(Delegate.IsBound());
	EXPECT_FALSE(Delegate.ExecuteIfBound(5));
}

TEST(DelegateTest, AnObjectBindsItselfByItsOwnType)
{
	FTestDelegate Delegate;
	const TSharedRef<FDerivedReceiver> Receiver = MakeShared<FDerivedReceiver>();
	Receiver->BindItself(Delegate);
	Delegate.Execute(3);
	EXPECT_EQ(-3, Receiver->Last);
	Delegate.BindSP(Receiver, &FReceiver::ReceiveVirtually);
	Delegate.Execute(4);
	EXPECT_EQ(-4, Receiver->Last);
}

TEST(DelegateTest, ASharedObjectLivesThroughItsCall)
{
	struct FSuicidal : TSharedFromThis<FSuicidal>
	{
		TSharedPtr<FSuicidal>* Holder = nullptr;
		int32 Value = 1;
		void Call(int32 NewValue)
		{
			Holder->Reset();
			Value = NewValue;
		}
	};
	TSharedPtr<FSuicidal> Object = MakeShared<FSuicidal>();
	Object->Holder = &Object;
	FTestDelegate Delegate = FTestDelegate::CreateSP(Object.ToSharedRef(), &FSuicidal::Call);
	EXPECT_TRUE(Delegate.ExecuteIfBound(2));
	EXPECT_FALSE(Delegate.IsBound());
}

TEST(DelegateTest, ALambdaMayEndWithASharedObject)
{
	TSharedPtr<FReceiver> Receiver = MakeShared<FReceiver>();
	int32 NumCalls = 0;
	FTestDelegate Delegate;
	Delegate.BindSPLambda(Receiver.ToSharedRef(), [&NumCalls](int32) { ++NumCalls; });
	Delegate.ExecuteIfBound(1);
	EXPECT_TRUE(Delegate.IsBoundToObject(Receiver.Get()));
	Receiver.Reset();
	Delegate.ExecuteIfBound(1);
	EXPECT_EQ(1, NumCalls);
}

TEST(DelegateTest, CopiesHaveAStateOfTheirOwnAndTheSameHandle)
{
	FTestGetter First = FTestGetter::CreateLambda([Count = 0]() mutable { return FString::FromInt(++Count); });
	First.Execute();
	FTestGetter Second = First;
	EXPECT_EQ("2", ToUtf8(Second.Execute()));
	EXPECT_EQ("2", ToUtf8(First.Execute()));
	EXPECT_EQ(First.GetHandle(), Second.GetHandle());
	FTestGetter Third = MoveTemp(First);
	EXPECT_FALSE(First.IsBound());
	EXPECT_TRUE(Third.IsBound());
}

TEST(DelegateTest, MayBeUnboundAndDestroyedInItsOwnCall)
{
	FTestDelegate* Delegate = new FTestDelegate;
	int32 Seen = 0;
	Delegate->BindLambda([Delegate, &Seen, Held = MakeShared<int32>(7)](int32)
	{
		delete Delegate;
		Seen = *Held;
	});
	Delegate->ExecuteIfBound(1);
	EXPECT_EQ(7, Seen);
}

TEST(DelegateTest, MayBeReboundInItsOwnCall)
{
	FTestDelegate Delegate;
	int32 Calls = 0;
	Delegate.BindLambda([&Delegate, &Calls, Held = MakeShared<int32>(10)](int32)
	{
		Delegate.BindLambda([&Calls](int32) { Calls += 100; });
		Calls += *Held;
	});
	Delegate.Execute(0);
	Delegate.Execute(0);
	EXPECT_EQ(110, Calls);
}

TEST(DelegateTest, WhatABindingHoldsEndsWithIt)
{
	{
		FTestDelegate Delegate = FTestDelegate::CreateLambda([Value = FCountedValue(1)](int32) {});
		FTestDelegate Copy = Delegate;
		EXPECT_EQ(2, FCountedValue::NumAlive);
		Delegate.BindLambda([](int32) {});
		EXPECT_EQ(1, FCountedValue::NumAlive);
	}
	EXPECT_EQ(0, FCountedValue::NumAlive);
}

TEST(DelegateTest, PassesReferencesAndMovableValuesThrough)
{
	FTestOutput Output = FTestOutput::CreateLambda([](int32& Value) { Value = 5; });
	int32 Value = 0;
	Output.Execute(Value);
	EXPECT_EQ(5, Value);
	int32 Received = 0;
	FTestOwner Owner = FTestOwner::CreateLambda([&Received](TUniquePtr<int32> Pointer) { Received = *Pointer; });
	Owner.ExecuteIfBound(MakeUnique<int32>(6));
	EXPECT_EQ(6, Received);
}

TEST(DelegateTest, TakesUpToNineParameters)
{
	int32 Total = 0;
	FTestNine Delegate = FTestNine::CreateLambda([&Total](int32 A, int32 B, int32 C, int32 D, int32 E, int32 F, int32 G, int32 H, int32 I) { Total = A + B + C + D + E + F + G + H + I; });
	Delegate.Execute(1, 2, 3, 4, 5, 6, 7, 8, 9);
	EXPECT_EQ(45, Total);
}

TEST(DelegateDeathTest, ExecutingAnUnboundDelegateHalts)
{
	::testing::FLAGS_gtest_death_test_style = "threadsafe";
	EXPECT_DEATH(FTestSum().Execute(1, 2), "Assertion failed");
}
