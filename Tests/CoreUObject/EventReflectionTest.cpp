#include "ReflectionTestInterface.h"
#include "ReflectionTestObject.h"
#include "UObject/Package.h"
#include "UObject/UnrealType.h"
#include "gtest/gtest.h"

namespace
{
	/** A class made at run time, as blueprints make them. */
	UClass* MakeScriptClass(UClass* Super)
	{
		UClass* Class = NewObject<UClass>(GetTransientPackage(), NAME_None, RF_Public | RF_Transient);
		Class->SetSuperStruct(Super);
		Class->Link();
		return Class;
	}

	/** Overrides the function of that name, whose signature is the parent's. */
	UFunction* AddOverride(UClass* Class, const TCHAR* Name, UFunction::FScriptBody Body)
	{
		const UFunction* Parent = Class->FindFunctionByName(Name);
		UFunction* Function = NewObject<UFunction>(Class, FName(Name));
		Function->FunctionFlags = Parent->FunctionFlags & FUNC_FuncInherit;
		Function->PropertiesSize = Parent->PropertiesSize;
		Function->SetScriptBody(MoveTemp(Body));
		Function->Next = Class->Children;
		Class->Children = Function;
		Class->AddFunctionToFunctionMap(Function, Function->GetFName());
		Class->MarkScriptFunctions();
		return Function;
	}

	template<typename T>
	T& ParmOf(UClass* NativeClass, const TCHAR* Function, const TCHAR* Name, void* Parms)
	{
		return *FindFProperty<FProperty>(NativeClass->FindFunctionByName(Function), Name)->ContainerPtrToValuePtr<T>(Parms);
	}
} // namespace

TEST(NativeEvent, CallsTheImplementationOfTheNativeClass)
{
	const UReflectionTestObject* Object = NewObject<UReflectionTestObject>();
	const UReflectionTestObject* Derived = NewObject<UReflectionTestDerived>();

	EXPECT_EQ(Object->Greet(TEXT("you"), FReflectionTestStruct(TEXT("hi")), nullptr), FString(TEXT("hi you?")));
	EXPECT_EQ(
		Derived->Greet(TEXT("you"), FReflectionTestStruct(TEXT("hi")), UObject::StaticClass()), FString(TEXT("derived hi you!")));
}

TEST(NativeEvent, CalledByNameReachesTheMostDerivedImplementation)
{
	UReflectionTestObject* Derived = NewObject<UReflectionTestDerived>();
	UFunction* Greet = Derived->FindFunctionChecked(TEXT("Greet"));
	TArray<uint8> Memory;
	Memory.SetNumZeroed(Greet->ParmsSize);
	Greet->InitializeStruct(Memory.GetData());
	ParmOf<FString>(Derived->GetClass(), TEXT("Greet"), TEXT("Name"), Memory.GetData()) = TEXT("x");

	Derived->ProcessEvent(Greet, Memory.GetData());

	EXPECT_EQ(ParmOf<FString>(Derived->GetClass(), TEXT("Greet"), TEXT("ReturnValue"), Memory.GetData()),
		FString(TEXT("derived start x?")));
	Greet->DestroyStruct(Memory.GetData());
}

TEST(NativeEvent, ScriptOverrideAnswersInstead)
{
	UClass* Native = UReflectionTestObject::StaticClass();
	UClass* Class = MakeScriptClass(Native);
	AddOverride(Class, TEXT("Greet"),
		[Native](UObject*, void* Parms)
		{
			ParmOf<FString>(Native, TEXT("Greet"), TEXT("ReturnValue"), Parms) =
				TEXT("script ") + ParmOf<FString>(Native, TEXT("Greet"), TEXT("Name"), Parms);
		});
	const UReflectionTestObject* Object = NewObject<UReflectionTestObject>(GetTransientPackage(), Class);

	EXPECT_EQ(Object->Greet(TEXT("you"), FReflectionTestStruct(), nullptr), FString(TEXT("script you")));
	EXPECT_EQ(
		NewObject<UReflectionTestObject>()->Greet(TEXT("you"), FReflectionTestStruct(), nullptr), FString(TEXT("start you?")))
		<< "the native class is not concerned";
}

TEST(NativeEvent, ScriptOverrideCanCallTheParents)
{
	UClass* Native = UReflectionTestObject::StaticClass();
	UClass* Class = MakeScriptClass(Native);
	AddOverride(Class, TEXT("Count"),
		[Native](UObject* Context, void* Parms)
		{
			ParmOf<TArray<int32>>(Native, TEXT("Count"), TEXT("Numbers"), Parms).Add(100);
			Context->ProcessEvent(Native->FindFunctionByName(TEXT("Count")), Parms);
		});
	UReflectionTestObject* Object = NewObject<UReflectionTestObject>(GetTransientPackage(), Class);
	TArray<int32> Numbers;

	Object->Count(Numbers);

	EXPECT_EQ(Numbers, (TArray<int32>{100, 1}));
}

TEST(NativeEvent, ClassDerivedFromAScriptClassInheritsTheOverride)
{
	UClass* Native = UReflectionTestObject::StaticClass();
	UClass* Class = MakeScriptClass(Native);
	AddOverride(Class, TEXT("Greet"),
		[Native](UObject*, void* Parms) { ParmOf<FString>(Native, TEXT("Greet"), TEXT("ReturnValue"), Parms) = TEXT("base"); });
	UClass* Child = MakeScriptClass(Class);

	EXPECT_EQ(NewObject<UReflectionTestObject>(GetTransientPackage(), Child)->Greet(TEXT(""), FReflectionTestStruct(), nullptr),
		FString(TEXT("base")));
}

TEST(NativeEvent, FunctionAddedAfterASearchIsFound)
{
	UClass* Native = UReflectionTestObject::StaticClass();
	UClass* Class = MakeScriptClass(Native);
	UReflectionTestObject* Object = NewObject<UReflectionTestObject>(GetTransientPackage(), Class);
	EXPECT_EQ(Object->FindFunction(TEXT("Notify")), Native->FindFunctionByName(TEXT("Notify")));

	bool bCalled = false;
	AddOverride(Class, TEXT("Notify"), [&bCalled](UObject*, void*) { bCalled = true; });
	Object->Notify();

	EXPECT_TRUE(bCalled);
}

TEST(ImplementableEvent, DoesNothingAndReturnsTheDefaultWithoutAScript)
{
	UReflectionTestObject* Object = NewObject<UReflectionTestObject>();
	bool bCertain = true;

	Object->Notify();
	EXPECT_EQ(Object->Decide(5, bCertain), 0);
	EXPECT_TRUE(bCertain) << "outputs keep what they were";
}

TEST(ImplementableEvent, RunsTheScriptAndCopiesOutputs)
{
	UClass* Native = UReflectionTestObject::StaticClass();
	UClass* Class = MakeScriptClass(Native);
	AddOverride(Class, TEXT("Decide"),
		[Native](UObject*, void* Parms)
		{
			ParmOf<int32>(Native, TEXT("Decide"), TEXT("ReturnValue"), Parms) =
				ParmOf<int32>(Native, TEXT("Decide"), TEXT("Number"), Parms) * 2;
			ParmOf<bool>(Native, TEXT("Decide"), TEXT("bOutCertain"), Parms) = true;
		});
	UReflectionTestObject* Object = NewObject<UReflectionTestObject>(GetTransientPackage(), Class);
	bool bCertain = false;

	EXPECT_EQ(Object->Decide(21, bCertain), 42);
	EXPECT_TRUE(bCertain);
}

TEST(InterfaceEvent, ExecuteCallsTheNativeImplementation)
{
	UReflectionTestNativeAnswerer* Object = NewObject<UReflectionTestNativeAnswerer>();
	int32 Length = 0;

	IReflectionTestAnswerer::Execute_Rename(Object, TEXT("four"), Length);

	EXPECT_EQ(Length, 4);
	EXPECT_EQ(Object->Name, FString(TEXT("four")));
	EXPECT_TRUE(IReflectionTestAnswerer::Execute_Likes(Object, FText::FromString(TEXT("text"))));
	EXPECT_FALSE(IReflectionTestAnswerer::Execute_Likes(Object, FText()));
}

TEST(InterfaceEvent, ImplementerThatSaysNothingHasTheDefaults)
{
	UReflectionTestSilentAnswerer* Object = NewObject<UReflectionTestSilentAnswerer>();
	int32 Length = 9;

	IReflectionTestAnswerer::Execute_Rename(Object, TEXT("four"), Length);

	EXPECT_EQ(Length, 9);
	EXPECT_FALSE(IReflectionTestAnswerer::Execute_Likes(Object, FText::FromString(TEXT("text"))));
	EXPECT_EQ(IReflectionTestAnswerer::Execute_Guess(Object, 5), 0);
}

TEST(InterfaceEvent, FunctionIsFoundOnImplementersAndCallableByName)
{
	UReflectionTestNativeAnswerer* Object = NewObject<UReflectionTestNativeAnswerer>();
	UFunction* Likes = Object->FindFunction(TEXT("Likes"));

	ASSERT_NE(Likes, nullptr);
	EXPECT_EQ(Likes->GetOuterUClass(), UReflectionTestAnswerer::StaticClass());
	struct
	{
		FText Text = FText::FromString(TEXT("text"));
		bool ReturnValue = false;
	} Parms;
	Object->ProcessEvent(Likes, &Parms);
	EXPECT_TRUE(Parms.ReturnValue);
}

TEST(InterfaceEvent, ScriptImplementerAnswersWithoutANativePart)
{
	UClass* Interface = UReflectionTestAnswerer::StaticClass();
	UClass* Class = MakeScriptClass(UReflectionTestForward::StaticClass());
	Class->Interfaces.Emplace(Interface, 0, true);
	AddOverride(Class, TEXT("Guess"),
		[Interface](UObject*, void* Parms)
		{
			ParmOf<int32>(Interface, TEXT("Guess"), TEXT("ReturnValue"), Parms) =
				ParmOf<int32>(Interface, TEXT("Guess"), TEXT("Limit"), Parms) - 1;
		});
	UObject* Object = NewObject<UObject>(GetTransientPackage(), Class);

	EXPECT_TRUE(Object->Implements<UReflectionTestAnswerer>());
	EXPECT_EQ(Cast<IReflectionTestAnswerer>(Object), nullptr);
	EXPECT_EQ(IReflectionTestAnswerer::Execute_Guess(Object, 8), 7);
	EXPECT_FALSE(IReflectionTestAnswerer::Execute_Likes(Object, FText())) << "what the script leaves out yields the default";
}

TEST(InterfaceEventDeathTest, ObjectWithoutTheInterfaceIsFatal)
{
	UObject* Object = NewObject<UReflectionTestForward>();

	EXPECT_DEATH(IReflectionTestAnswerer::Execute_Guess(Object, 1), "does not implement UReflectionTestAnswerer");
}

TEST(InterfaceEventDeathTest, DirectCallOfAnEventIsFatal)
{
	IReflectionTestAnswerer* Answerer = NewObject<UReflectionTestNativeAnswerer>();

	EXPECT_DEATH(Answerer->Likes(FText()), "call IReflectionTestAnswerer::Execute_Likes");
}
