#include "ObjectTestEvents.h"
#include "UObject/Object.h"
#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"
#include "gtest/gtest.h"

DECLARE_DELEGATE_OneParam(FNativeTestNumber, int32);
DECLARE_DELEGATE_RetVal_TwoParams(int32, FNativeTestSum, int32, int32);
DECLARE_DELEGATE_OneParam(FNativeTestFill, TArray<int32>&);
DECLARE_MULTICAST_DELEGATE_OneParam(FNativeTestNumbers, int32);

namespace
{
	/** Native delegates that are bound to reflected objects. */
	class NativeDelegate : public testing::Test
	{
	protected:
		virtual void SetUp() override
		{
			Listener = NewObject<UObjectTestListener>(GetTransientPackage(), TEXT("Listener"));
			UObjectTestListener::Calls.Empty();
		}

		virtual void TearDown() override { CollectGarbage(RF_NoFlags); }

		/** Ends the listener's life, as leaving a screen does. */
		void EndListener()
		{
			Listener = nullptr;
			CollectGarbage(RF_NoFlags);
		}

		UObjectTestListener* Listener = nullptr;
	};
}

TEST_F(NativeDelegate, CallsAMethodOfAnObject)
{
	const FNativeTestNumber Delegate = FNativeTestNumber::CreateUObject(Listener, &UObjectTestListener::OnNumber);
	EXPECT_TRUE(Delegate.IsBound());
	EXPECT_TRUE(Delegate.IsBoundToObject(Listener));
	EXPECT_TRUE(Delegate.ExecuteIfBound(3));
	EXPECT_EQ(UObjectTestListener::Calls, (TArray<FString>{ TEXT("Listener.OnNumber(3)") }));
}

TEST_F(NativeDelegate, IsNotBoundAnyMoreOnceItsObjectIsGone)
{
	FNativeTestNumber Method;
	Method.BindUObject(Listener, &UObjectTestListener::OnNumber);
	FNativeTestNumber Function;
	Function.BindUFunction(Listener, TEXT("OnNumber"));
	int32 NumCalls = 0;
	FNativeTestNumber Lambda;
	Lambda.BindWeakLambda(Listener, [&NumCalls](int32) { ++NumCalls; });
	EXPECT_TRUE(Lambda.ExecuteIfBound(1));
	EndListener();
	for (const FNativeTestNumber* Delegate : { &Method, &Function, &Lambda })
	{
		EXPECT_FALSE(Delegate->IsBound());
		EXPECT_FALSE(Delegate->ExecuteIfBound(1));
	}
	EXPECT_EQ(1, NumCalls);
	EXPECT_TRUE(UObjectTestListener::Calls.IsEmpty());
}

TEST_F(NativeDelegate, CallsAReflectedFunctionByItsName)
{
	const FNativeTestSum Sum = FNativeTestSum::CreateUFunction(Listener, FName(TEXT("Add")));
	EXPECT_EQ(5, Sum.Execute(2, 3));
	FNativeTestFill Fill;
	Fill.BindUFunction(Listener, FName(TEXT("FillNumbers")));
	TArray<int32> Numbers;
	Fill.Execute(Numbers);
	Fill.Execute(Numbers);
	EXPECT_EQ(Numbers, (TArray<int32>{ 0, 1 }));
}

TEST_F(NativeDelegate, AMulticastDropsHandlersOfObjectsThatAreGone)
{
	FNativeTestNumbers Delegate;
	int32 Sum = 0;
	Delegate.AddLambda([&Sum](int32 Number) { Sum += Number; });
	Delegate.AddUObject(Listener, &UObjectTestListener::OnNumber);
	Delegate.AddUFunction(Listener, FName(TEXT("OnNumber")));
	Delegate.AddWeakLambda(Listener, [&Sum](int32 Number) { Sum += Number * 100; });
	Delegate.Broadcast(1);
	EXPECT_EQ(101, Sum);
	EXPECT_EQ(2, UObjectTestListener::Calls.Num());
	EndListener();
	Delegate.Broadcast(2);
	EXPECT_EQ(103, Sum);
	EXPECT_EQ(2, UObjectTestListener::Calls.Num());
	EXPECT_TRUE(Delegate.IsBound());
}

TEST_F(NativeDelegate, RemoveAllTakesEveryHandlerOfAnObject)
{
	FNativeTestNumbers Delegate;
	Delegate.AddUObject(Listener, &UObjectTestListener::OnNumber);
	Delegate.AddUObject(Listener, &UObjectTestListener::OnNumber);
	Delegate.Broadcast(1);
	EXPECT_EQ(2, UObjectTestListener::Calls.Num());
	EXPECT_EQ(2, Delegate.RemoveAll(Listener));
	EXPECT_FALSE(Delegate.IsBound());
}

TEST_F(NativeDelegate, AnAttributeAsksAnObjectAsLongAsItLives)
{
	int32 Value = 4;
	const TAttribute<int32> Attribute = MakeAttributeWeakLambda(Listener, [&Value] { return Value; });
	EXPECT_EQ(4, Attribute.Get());
	EndListener();
	Value = 5;
	EXPECT_EQ(4, Attribute.Get());
}
