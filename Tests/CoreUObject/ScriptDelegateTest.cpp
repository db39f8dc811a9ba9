#include "ExpectedLog.h"
#include "Host/DynamicParms.h"
#include "ObjectTestEvents.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UnrealType.h"
#include "gtest/gtest.h"

namespace
{
	class ScriptDelegate : public testing::Test
	{
	protected:
		virtual void SetUp() override
		{
			Source = NewObject<UObjectTestSource>();
			A = MakeListener(TEXT("A"));
			B = MakeListener(TEXT("B"));
			C = MakeListener(TEXT("C"));
			UObjectTestListener::Calls.Empty();
		}

		/** Frees the names for the next test. */
		virtual void TearDown() override { CollectGarbage(RF_NoFlags); }

		UObjectTestListener* MakeListener(const TCHAR* Name)
		{
			UObjectTestListener* Listener = NewObject<UObjectTestListener>(Source, Name);
			Listener->Source = Source;
			return Listener;
		}

		void ExpectCalls(std::initializer_list<const TCHAR*> Expected)
		{
			TArray<FString> Strings;
			for (const TCHAR* Call : Expected)
			{
				Strings.Add(Call);
			}
			EXPECT_EQ(UObjectTestListener::Calls, Strings);
			UObjectTestListener::Calls.Empty();
		}

		UObjectTestSource* Source = nullptr;
		UObjectTestListener* A = nullptr;
		UObjectTestListener* B = nullptr;
		UObjectTestListener* C = nullptr;
	};
}

TEST_F(ScriptDelegate, BroadcastCallsInTheOrderOfAddition)
{
	Source->OnSimple.AddDynamic(B, &UObjectTestListener::OnSimple);
	Source->OnSimple.AddDynamic(A, &UObjectTestListener::OnSimple);
	Source->OnSimple.AddDynamic(B, &UObjectTestListener::OnSecond);

	Source->OnSimple.Broadcast();

	ExpectCalls({ TEXT("B.OnSimple"), TEXT("A.OnSimple"), TEXT("B.OnSecond") });
}

TEST_F(ScriptDelegate, BroadcastWithoutBindingsIsSafe)
{
	EXPECT_FALSE(Source->OnSimple.IsBound());
	Source->OnSimple.Broadcast();
	ExpectCalls({});
}

TEST_F(ScriptDelegate, CallersRelyOnTheDuplicateBeingReportedAndAddedAllTheSame)
{
	Host::FExpectedLog Expected(TEXT("is bound already"));
	Source->OnSimple.AddDynamic(A, &UObjectTestListener::OnSimple);
	Source->OnSimple.AddDynamic(A, &UObjectTestListener::OnSimple);

	Source->OnSimple.Broadcast();
	ExpectCalls({ TEXT("A.OnSimple"), TEXT("A.OnSimple") });

	Source->OnSimple.RemoveDynamic(A, &UObjectTestListener::OnSimple);
	Source->OnSimple.Broadcast();
	ExpectCalls({ TEXT("A.OnSimple") });
}

TEST_F(ScriptDelegate, AddUniqueLeavesOneBinding)
{
	Source->OnSimple.AddUniqueDynamic(A, &UObjectTestListener::OnSimple);
	Source->OnSimple.AddUniqueDynamic(A, &UObjectTestListener::OnSimple);

	Source->OnSimple.Broadcast();

	ExpectCalls({ TEXT("A.OnSimple") });
}

TEST_F(ScriptDelegate, RemovalMovesTheLastBindingIntoThePlace)
{
	Source->OnSimple.AddDynamic(A, &UObjectTestListener::OnSimple);
	Source->OnSimple.AddDynamic(B, &UObjectTestListener::OnSimple);
	Source->OnSimple.AddDynamic(C, &UObjectTestListener::OnSimple);
	Source->OnSimple.RemoveDynamic(A, &UObjectTestListener::OnSimple);
	Source->OnSimple.RemoveDynamic(A, &UObjectTestListener::OnSimple);

	Source->OnSimple.Broadcast();

	ExpectCalls({ TEXT("C.OnSimple"), TEXT("B.OnSimple") });
}

TEST_F(ScriptDelegate, IsAlreadyBoundTellsFunctionsApart)
{
	Source->OnSimple.AddDynamic(A, &UObjectTestListener::OnSimple);

	EXPECT_TRUE(Source->OnSimple.IsAlreadyBound(A, &UObjectTestListener::OnSimple));
	EXPECT_FALSE(Source->OnSimple.IsAlreadyBound(A, &UObjectTestListener::OnSecond));
	EXPECT_FALSE(Source->OnSimple.IsAlreadyBound(B, &UObjectTestListener::OnSimple));
}

TEST_F(ScriptDelegate, BindingAddedDuringABroadcastWaitsForTheNext)
{
	A->Other = B;
	Source->OnSimple.AddDynamic(A, &UObjectTestListener::OnBindOther);

	Source->OnSimple.Broadcast();
	ExpectCalls({ TEXT("A.OnBindOther") });

	Source->OnSimple.Broadcast();
	ExpectCalls({ TEXT("A.OnBindOther"), TEXT("B.OnSimple") });
}

TEST_F(ScriptDelegate, BindingRemovedDuringABroadcastIsStillCalledInThatRound)
{
	A->Other = B;
	Source->OnSimple.AddDynamic(A, &UObjectTestListener::OnUnbindOther);
	Source->OnSimple.AddDynamic(B, &UObjectTestListener::OnSimple);

	Source->OnSimple.Broadcast();
	ExpectCalls({ TEXT("A.OnUnbindOther"), TEXT("B.OnSimple") });

	Source->OnSimple.Broadcast();
	ExpectCalls({ TEXT("A.OnUnbindOther") });
}

TEST_F(ScriptDelegate, ListMayBeClearedDuringABroadcast)
{
	Source->OnSimple.AddDynamic(A, &UObjectTestListener::OnClearSource);
	Source->OnSimple.AddDynamic(B, &UObjectTestListener::OnSimple);

	Source->OnSimple.Broadcast();
	ExpectCalls({ TEXT("A.OnClearSource"), TEXT("B.OnSimple") });

	EXPECT_FALSE(Source->OnSimple.IsBound());
}

TEST_F(ScriptDelegate, DeadObjectsAreSkippedAndDropped)
{
	Source->OnSimple.AddDynamic(A, &UObjectTestListener::OnSimple);
	Source->OnSimple.AddDynamic(B, &UObjectTestListener::OnSimple);
	A->MarkAsGarbage();

	Source->OnSimple.Broadcast();
	ExpectCalls({ TEXT("B.OnSimple") });
	EXPECT_EQ(Source->OnSimple.GetAllObjects(), TArray<UObject*>({ B }));

	B->MarkAsGarbage();
	EXPECT_FALSE(Source->OnSimple.IsBound());
}

TEST_F(ScriptDelegate, CollectedObjectsAreDropped)
{
	Source->AddToRoot();
	Source->OnSimple.AddDynamic(A, &UObjectTestListener::OnSimple);
	CollectGarbage(RF_NoFlags);

	Source->OnSimple.Broadcast();

	int32 NumBindings = 0;
	Source->OnSimple.ForEachBinding([&](const FScriptDelegate&) { ++NumBindings; });
	EXPECT_EQ(NumBindings, 0);
	Source->RemoveFromRoot();
}

TEST_F(ScriptDelegate, ParametersArriveWhateverTheirLayout)
{
	Source->OnMixed.AddDynamic(A, &UObjectTestListener::OnMixed);

	Source->OnMixed.Broadcast(true, TEXT("text"), 200, B);

	ExpectCalls({ TEXT("A.OnMixed(1, text, 200, B)") });
}

TEST_F(ScriptDelegate, ParametersLieAsTheFunctionDescribesThem)
{
	using FLayout = Host::TParmsLayout<bool, FString, uint8, UObject*>;
	const UFunction* Function = A->FindFunctionChecked(TEXT("OnMixed"));
	int32 Index = 0;
	for (TFieldIterator<FProperty> It(Function); It; ++It, ++Index)
	{
		EXPECT_EQ(static_cast<SIZE_T>(It->GetOffset_ForUFunction()), FLayout::Offsets[Index]) << Index;
	}
	EXPECT_EQ(Index, 4);
}

TEST_F(ScriptDelegate, ResultComesBack)
{
	Source->Sum.BindDynamic(A, &UObjectTestListener::Add);

	EXPECT_TRUE(Source->Sum.IsBound());
	EXPECT_EQ(Source->Sum.Execute(2, 5), 7);
}

TEST_F(ScriptDelegate, ReferenceParametersComeBack)
{
	Source->Fill.BindDynamic(A, &UObjectTestListener::FillNumbers);
	TArray<int32> Numbers = { 9 };

	EXPECT_TRUE(Source->Fill.ExecuteIfBound(Numbers));

	EXPECT_EQ(Numbers, TArray<int32>({ 9, 1 }));
}

TEST_F(ScriptDelegate, UnboundSingleDelegateIsNotExecuted)
{
	TArray<int32> Numbers;

	EXPECT_FALSE(Source->Fill.ExecuteIfBound(Numbers));

	Source->Fill.BindDynamic(A, &UObjectTestListener::FillNumbers);
	Source->Fill.Unbind();
	EXPECT_FALSE(Source->Fill.IsBound());
}

TEST_F(ScriptDelegate, BindsByName)
{
	FScriptDelegate Binding;
	Binding.BindUFunction(A, TEXT("OnNumber"));
	Source->OnNumber.AddUnique(Binding);
	Source->OnNumber.AddUnique(Binding);

	EXPECT_TRUE(Source->OnNumber.Contains(Binding));
	EXPECT_TRUE(Source->OnNumber.Contains(A, TEXT("onnumber")));
	Source->OnNumber.Broadcast(4);
	ExpectCalls({ TEXT("A.OnNumber(4)") });

	Source->OnNumber.Remove(A, TEXT("OnNumber"));
	Source->OnNumber.Broadcast(5);
	ExpectCalls({});
}

TEST_F(ScriptDelegate, NameOfNoFunctionIsNotBoundAndNotCalled)
{
	FScriptDelegate Binding;
	Binding.BindUFunction(A, TEXT("NotReflected"));
	Source->OnSimple.Add(Binding);

	EXPECT_FALSE(Binding.IsBound());
	EXPECT_FALSE(Source->OnSimple.IsBound());
	Source->OnSimple.Broadcast();
	ExpectCalls({});
}

TEST_F(ScriptDelegate, FunctionWithoutReflectionIsReported)
{
	Host::FExpectedLog Expected(TEXT("Unable to bind 'NotReflected'"));

	Source->OnSimple.AddDynamic(A, &UObjectTestListener::NotReflected);

	EXPECT_FALSE(Source->OnSimple.IsBound());
}

TEST_F(ScriptDelegate, DerivedObjectCanBindAFunctionOfItsBase)
{
	UObjectTestDerivedListener* Derived = NewObject<UObjectTestDerivedListener>(Source, TEXT("D"));
	Source->OnSimple.AddDynamic(Derived, &UObjectTestDerivedListener::OnSimple);

	Source->OnSimple.Broadcast();

	ExpectCalls({ TEXT("D.OnSimple") });
}

TEST_F(ScriptDelegate, RemoveAllRemovesEveryBindingOfTheObject)
{
	Source->OnSimple.AddDynamic(A, &UObjectTestListener::OnSimple);
	Source->OnSimple.AddDynamic(B, &UObjectTestListener::OnSimple);
	Source->OnSimple.AddDynamic(A, &UObjectTestListener::OnSecond);
	Source->OnSimple.RemoveAll(A);

	Source->OnSimple.Broadcast();

	ExpectCalls({ TEXT("B.OnSimple") });
}

TEST_F(ScriptDelegate, AssignmentCopiesTheList)
{
	UObjectTestSource* Other = NewObject<UObjectTestSource>();
	Source->OnSimple.AddDynamic(A, &UObjectTestListener::OnSimple);
	Source->OnSimple.AddDynamic(B, &UObjectTestListener::OnSimple);

	Other->OnSimple = Source->OnSimple;
	Source->OnSimple.Clear();
	Other->OnSimple.Broadcast();

	ExpectCalls({ TEXT("A.OnSimple"), TEXT("B.OnSimple") });
}

TEST_F(ScriptDelegate, DescribesItself)
{
	EXPECT_EQ(Source->OnSimple.ToString(), FString(TEXT("<Unbound>")));
	Source->OnSimple.AddDynamic(A, &UObjectTestListener::OnSimple);
	EXPECT_EQ(Source->OnSimple.ToString(), TEXT("[") + A->GetPathName() + TEXT(".OnSimple]"));
}

TEST_F(ScriptDelegate, IsReachedThroughReflection)
{
	const FMulticastDelegateProperty* Property = FindFProperty<FMulticastDelegateProperty>(UObjectTestSource::StaticClass(), TEXT("OnNumber"));
	ASSERT_NE(Property, nullptr);
	FScriptDelegate Binding;
	Binding.BindUFunction(A, TEXT("OnNumber"));
	Property->AddDelegate(Binding, Source);

	Source->OnNumber.Broadcast(3);

	ExpectCalls({ TEXT("A.OnNumber(3)") });
}

TEST_F(ScriptDelegate, NativeDelegateCallsAReflectedFunctionByName)
{
	TDelegate<int32(int32, int32)> Native;
	Native.BindUFunction(A, TEXT("Add"));

	ASSERT_TRUE(Native.IsBound());
	EXPECT_EQ(Native.Execute(4, 5), 9);

	A->MarkAsGarbage();
	EXPECT_FALSE(Native.IsBound());
}

TEST_F(ScriptDelegate, UnboundExecuteEndsTheProcess)
{
	EXPECT_DEATH(Source->Sum.Execute(1, 2), "is called while it is not bound");
}
