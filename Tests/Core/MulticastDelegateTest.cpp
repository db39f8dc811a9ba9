#include "Delegates/Delegate.h"

#include "CountedValue.h"
#include "gtest/gtest.h"

DECLARE_MULTICAST_DELEGATE_OneParam(FTestMulticast, std::string&);

namespace
{
	/** A handler that writes its letter. */
	auto Writer(const char* Letter)
	{
		return [Letter](std::string& Out) { Out += Letter; };
	}

	std::string Broadcast(const FTestMulticast& Delegate)
	{
		std::string Out;
		Delegate.Broadcast(Out);
		return Out;
	}

	struct FWriter : TSharedFromThis<FWriter>
	{
		void Write(std::string& Out) { Out += "w"; }
	};

	class FEventOwner
	{
	public:
		DECLARE_EVENT_OneParam(FEventOwner, FChanged, int32);
		FChanged& OnChanged() { return Changed; }
		void Change(int32 Value) { Changed.Broadcast(Value); }

	private:
		FChanged Changed;
	};
}

static_assert(sizeof(FTestMulticast) == sizeof(void*), "A delegate to which nothing was added costs one address");

TEST(MulticastDelegateTest, CallsTheLastOneAddedFirst)
{
	FTestMulticast Delegate;
	Delegate.AddLambda(Writer("a"));
	Delegate.AddLambda(Writer("b"));
	Delegate.AddLambda(Writer("c"));
	EXPECT_EQ("cba", Broadcast(Delegate));
}

TEST(MulticastDelegateTest, BroadcastingToNobodyIsFine)
{
	FTestMulticast Delegate;
	EXPECT_FALSE(Delegate.IsBound());
	EXPECT_EQ("", Broadcast(Delegate));
	EXPECT_FALSE(Delegate.Add(FTestMulticast::FDelegate()).IsValid());
}

TEST(MulticastDelegateTest, AMethodAddedTwiceIsCalledTwice)
{
	FTestMulticast Delegate;
	FWriter Object;
	Delegate.AddRaw(&Object, &FWriter::Write);
	Delegate.AddRaw(&Object, &FWriter::Write);
	EXPECT_EQ("ww", Broadcast(Delegate));
	EXPECT_TRUE(Delegate.IsBoundToObject(&Object));
	EXPECT_EQ(2, Delegate.RemoveAll(&Object));
	EXPECT_FALSE(Delegate.IsBound());
	EXPECT_FALSE(Delegate.IsBoundToObject(&Object));
}

TEST(MulticastDelegateTest, RemovesByHandleAndKeepsTheOrder)
{
	FTestMulticast Delegate;
	Delegate.AddLambda(Writer("a"));
	const FDelegateHandle Handle = Delegate.AddLambda(Writer("b"));
	Delegate.AddLambda(Writer("c"));
	Delegate.AddLambda(Writer("d"));
	EXPECT_TRUE(Delegate.Remove(Handle));
	EXPECT_FALSE(Delegate.Remove(Handle));
	EXPECT_FALSE(Delegate.Remove(FDelegateHandle()));
	EXPECT_EQ("dca", Broadcast(Delegate));
	Delegate.Clear();
	EXPECT_EQ("", Broadcast(Delegate));
}

TEST(MulticastDelegateTest, HandlersOfGoneObjectsAreDropped)
{
	FTestMulticast Delegate;
	TSharedPtr<FWriter> Object = MakeShared<FWriter>();
	Delegate.AddSP(Object.ToSharedRef(), &FWriter::Write);
	Delegate.AddSPLambda(Object.ToSharedRef(), [Value = FCountedValue(1)](std::string& Out) { Out += "l"; });
	EXPECT_EQ("lw", Broadcast(Delegate));
	Object.Reset();
	EXPECT_FALSE(Delegate.IsBound());
	EXPECT_EQ(1, FCountedValue::NumAlive);
	EXPECT_EQ("", Broadcast(Delegate));
	EXPECT_EQ(0, FCountedValue::NumAlive);
}

TEST(MulticastDelegateTest, AddingDropsHandlersOfGoneObjectsBeforeTheyPileUp)
{
	FTestMulticast Delegate;
	for (int32 Round = 0; Round < 100; ++Round)
	{
		Delegate.AddSPLambda(MakeShared<FWriter>(), [Value = FCountedValue(1)](std::string&) {});
	}
	EXPECT_LT(FCountedValue::NumAlive, 10);
	Delegate.Clear();
	EXPECT_EQ(0, FCountedValue::NumAlive);
}

TEST(MulticastDelegateTest, WhatIsAddedDuringABroadcastIsNotCalledInIt)
{
	FTestMulticast Delegate;
	Delegate.AddLambda([&Delegate](std::string& Out)
	{
		Out += "a";
		for (int32 Index = 0; Index < 20; ++Index)
		{
			Delegate.AddLambda(Writer("n"));
		}
	});
	Delegate.AddLambda(Writer("b"));
	EXPECT_EQ("ba", Broadcast(Delegate));
	EXPECT_EQ(std::string(20, 'n') + "ba", Broadcast(Delegate));
}

TEST(MulticastDelegateTest, WhatIsRemovedDuringABroadcastIsNotCalledAnyMore)
{
	FTestMulticast Delegate;
	const FDelegateHandle First = Delegate.AddLambda(Writer("a"));
	Delegate.AddLambda(Writer("b"));
	Delegate.AddLambda([&Delegate, First](std::string& Out)
	{
		Out += "c";
		Delegate.Remove(First);
	});
	EXPECT_EQ("cb", Broadcast(Delegate));
	EXPECT_EQ("cb", Broadcast(Delegate));
}

TEST(MulticastDelegateTest, AHandlerMayRemoveItself)
{
	FTestMulticast Delegate;
	FDelegateHandle Handle;
	Delegate.AddLambda(Writer("a"));
	Handle = Delegate.AddLambda([&Delegate, &Handle, Held = MakeShared<std::string>("held")](std::string& Out)
	{
		Delegate.Remove(Handle);
		Out += *Held;
	});
	EXPECT_EQ("helda", Broadcast(Delegate));
	EXPECT_EQ("a", Broadcast(Delegate));
}

TEST(MulticastDelegateTest, AHandlerMayClearTheDelegate)
{
	FTestMulticast Delegate;
	Delegate.AddLambda(Writer("a"));
	Delegate.AddLambda([&Delegate, Held = FCountedValue(1)](std::string& Out)
	{
		Delegate.Clear();
		Out += "c";
		Delegate.AddLambda(Writer("n"));
	});
	EXPECT_EQ("c", Broadcast(Delegate));
	EXPECT_EQ(0, FCountedValue::NumAlive);
	EXPECT_EQ("n", Broadcast(Delegate));
}

TEST(MulticastDelegateTest, AHandlerMayDestroyTheDelegate)
{
	FTestMulticast* Delegate = new FTestMulticast;
	Delegate->AddLambda(Writer("a"));
	Delegate->AddLambda([Delegate, Held = FCountedValue(1)](std::string& Out)
	{
		delete Delegate;
		Out += std::to_string(Held.Value);
	});
	EXPECT_EQ("1", Broadcast(*Delegate));
	EXPECT_EQ(0, FCountedValue::NumAlive);
}

TEST(MulticastDelegateTest, AHandlerMayAssignToTheDelegate)
{
	FTestMulticast Delegate;
	Delegate.AddLambda(Writer("a"));
	Delegate.AddLambda([&Delegate](std::string& Out)
	{
		Out += "c";
		FTestMulticast Other;
		Other.AddLambda(Writer("o"));
		Delegate = MoveTemp(Other);
	});
	EXPECT_EQ("c", Broadcast(Delegate));
	EXPECT_EQ("o", Broadcast(Delegate));
}

TEST(MulticastDelegateTest, BroadcastsMayNest)
{
	FTestMulticast Delegate;
	int32 Depth = 0;
	FDelegateHandle Handle = Delegate.AddLambda(Writer("a"));
	Delegate.AddLambda([&](std::string& Out)
	{
		Out += "(";
		if (++Depth < 3)
		{
			Delegate.Broadcast(Out);
		}
		else
		{
			Delegate.Remove(Handle);
		}
		Out += ")";
	});
	Delegate.AddLambda(Writer("b"));
	EXPECT_EQ("b(b(b()))", Broadcast(Delegate));
	Depth = 3;
	EXPECT_EQ("b()", Broadcast(Delegate));
}

TEST(MulticastDelegateTest, WhatAHandlerHoldsMayRemoveFromTheDelegateAtItsEnd)
{
	struct FRemover
	{
		FTestMulticast* Delegate;
		FDelegateHandle Handle;
		FRemover(FTestMulticast* InDelegate, FDelegateHandle InHandle) : Delegate(InDelegate), Handle(InHandle) {}
		~FRemover() { Delegate->Remove(Handle); }
	};
	FTestMulticast Delegate;
	const FDelegateHandle First = Delegate.AddLambda(Writer("a"));
	const FDelegateHandle Second = Delegate.AddLambda([Remover = MakeShared<FRemover>(&Delegate, First)](std::string&) {});
	Delegate.AddLambda(Writer("c"));
	EXPECT_TRUE(Delegate.Remove(Second));
	EXPECT_EQ("c", Broadcast(Delegate));
}

TEST(MulticastDelegateTest, CopiesAreIndependent)
{
	FTestMulticast First;
	const FDelegateHandle Handle = First.AddLambda(Writer("a"));
	First.AddLambda(Writer("b"));
	FTestMulticast Second = First;
	EXPECT_TRUE(Second.Remove(Handle));
	EXPECT_EQ("ba", Broadcast(First));
	EXPECT_EQ("b", Broadcast(Second));
	Second = First;
	EXPECT_EQ("ba", Broadcast(Second));
	FTestMulticast Third = MoveTemp(First);
	EXPECT_FALSE(First.IsBound());
	EXPECT_EQ("ba", Broadcast(Third));
}

TEST(MulticastDelegateTest, ValuesAreGivenToEveryHandler)
{
	TMulticastDelegate<void(FCountedValue)> Delegate;
	int32 Sum = 0;
	Delegate.AddLambda([&Sum](FCountedValue Value) { Sum += Value.Value; });
	Delegate.AddLambda([&Sum](FCountedValue&& Value) { Sum += Value.Value; });
	Delegate.Broadcast(FCountedValue(4));
	EXPECT_EQ(8, Sum);
}

TEST(MulticastDelegateTest, AnEventIsBroadcastByItsOwner)
{
	FEventOwner Owner;
	int32 Seen = 0;
	const FDelegateHandle Handle = Owner.OnChanged().AddLambda([&Seen](int32 Value) { Seen = Value; });
	Owner.Change(3);
	EXPECT_EQ(3, Seen);
	Owner.OnChanged().Remove(Handle);
	Owner.Change(4);
	EXPECT_EQ(3, Seen);
	const auto CanBroadcast = [](auto& Event) { return requires { Event.Broadcast(1); }; };
	EXPECT_FALSE(CanBroadcast(Owner.OnChanged()));
}
