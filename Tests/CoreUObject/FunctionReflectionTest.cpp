#include "ReflectionTestObject.h"
#include "UObject/UnrealType.h"
#include "gtest/gtest.h"

namespace
{
	/** Parameters of one call, laid out by the function. */
	class FCall
	{
	public:
		FCall(UObject* InObject, const TCHAR* Name)
			: Object(InObject)
			, Function(InObject->FindFunctionChecked(Name))
			, Memory(FMemory::Malloc(Function->ParmsSize + 1, 16))
		{
			Function->InitializeStruct(Memory);
		}

		~FCall()
		{
			Function->DestroyStruct(Memory);
			FMemory::Free(Memory);
		}

		template<typename T>
		T& Parm(const TCHAR* Name)
		{
			return *FindFProperty<FProperty>(Function, Name)->ContainerPtrToValuePtr<T>(Memory);
		}

		void Run() { Object->ProcessEvent(Function, Memory); }

		UObject* Object;
		UFunction* Function;
		void* Memory;
	};

	const UFunction* Find(const TCHAR* Name)
	{
		return UReflectionTestObject::StaticClass()->FindFunctionByName(Name);
	}
} // namespace

TEST(FunctionReflection, DescribesParametersAndResult)
{
	const UFunction* Add = Find(TEXT("Add"));

	ASSERT_NE(Add, nullptr);
	EXPECT_EQ(Add->NumParms, 3);
	EXPECT_EQ(Add->ParmsSize, 12);
	EXPECT_EQ(Add->ReturnValueOffset, 8);
	EXPECT_EQ(Add->GetReturnProperty()->GetName(), FString(TEXT("ReturnValue")));
	EXPECT_EQ(Add->GetOuterUClass(), UReflectionTestObject::StaticClass());
	EXPECT_EQ(Find(TEXT("Notify"))->GetReturnProperty(), nullptr);
	EXPECT_EQ(Find(TEXT("NoSuchFunction")), nullptr);
}

TEST(FunctionReflection, FlagsFollowSpecifiersAndSignature)
{
	EXPECT_TRUE(Find(TEXT("Add"))->HasAllFunctionFlags(FUNC_Native | FUNC_BlueprintCallable | FUNC_Const | FUNC_Public));
	EXPECT_TRUE(Find(TEXT("Add"))->HasAllFunctionFlags(FUNC_BlueprintPure))
		<< "a const function with a result is drawn without pins";
	EXPECT_FALSE(Find(TEXT("GetNames"))->HasAnyFunctionFlags(FUNC_BlueprintPure)) << "unless the specifier says otherwise";
	EXPECT_TRUE(Find(TEXT("MakeVector"))->HasAllFunctionFlags(FUNC_Static | FUNC_BlueprintPure));
	EXPECT_TRUE(Find(TEXT("Greet"))->HasAllFunctionFlags(FUNC_Event | FUNC_BlueprintEvent | FUNC_Native));
	EXPECT_TRUE(Find(TEXT("Decide"))->HasAllFunctionFlags(FUNC_Event | FUNC_BlueprintEvent | FUNC_HasOutParms));
	EXPECT_FALSE(Find(TEXT("Decide"))->HasAnyFunctionFlags(FUNC_Native));
	EXPECT_TRUE(Find(TEXT("GetHidden"))->HasAllFunctionFlags(FUNC_Private));
	EXPECT_TRUE(Find(TEXT("Rebuild"))->HasAllFunctionFlags(FUNC_EditorOnly));
}

TEST(FunctionReflection, ParametersSayHowTheyArePassed)
{
	const UFunction* Describe = Find(TEXT("Describe"));
	const auto Flags = [Describe](const TCHAR* Name)
	{
		return FindFProperty<FProperty>(Describe, Name)->PropertyFlags & CPF_ParmFlags;
	};

	EXPECT_EQ(Flags(TEXT("Prefix")), static_cast<uint64>(CPF_Parm | CPF_ConstParm | CPF_OutParm | CPF_ReferenceParm));
	EXPECT_EQ(Flags(TEXT("OutText")), static_cast<uint64>(CPF_Parm | CPF_OutParm));
	EXPECT_EQ(Flags(TEXT("InOutCount")), static_cast<uint64>(CPF_Parm | CPF_OutParm | CPF_ReferenceParm));
	EXPECT_EQ(Flags(TEXT("Plain")), static_cast<uint64>(CPF_Parm));
}

TEST(FunctionReflection, CallsWithParametersAndReturnsTheResult)
{
	FCall Call(NewObject<UReflectionTestObject>(), TEXT("Add"));
	Call.Parm<int32>(TEXT("A")) = 20;
	Call.Parm<int32>(TEXT("B")) = 3;

	Call.Run();

	EXPECT_EQ(Call.Parm<int32>(TEXT("ReturnValue")), 24);
}

TEST(FunctionReflection, CallCopiesOutputsBack)
{
	FCall Call(NewObject<UReflectionTestObject>(), TEXT("Describe"));
	Call.Parm<FString>(TEXT("Prefix")) = TEXT("n=");
	Call.Parm<int32>(TEXT("InOutCount")) = 6;
	Call.Parm<TEnumAsByte<EReflectionTestPlain>>(TEXT("Plain")) = ERTP_Two;

	Call.Run();

	EXPECT_EQ(Call.Parm<FString>(TEXT("OutText")), FString(TEXT("n=6/1")));
	EXPECT_EQ(Call.Parm<int32>(TEXT("InOutCount")), 7);
}

TEST(FunctionReflection, ReferenceResultIsCopied)
{
	UReflectionTestObject* Object = NewObject<UReflectionTestObject>();
	Object->Names = {TEXT("One"), TEXT("Two")};
	FCall Call(Object, TEXT("GetNames"));

	Call.Run();

	EXPECT_EQ(Call.Parm<TArray<FName>>(TEXT("ReturnValue")), Object->Names);
	EXPECT_NE(Call.Parm<TArray<FName>>(TEXT("ReturnValue")).GetData(), Object->Names.GetData());
}

TEST(FunctionReflection, StaticFunctionNeedsNoObject)
{
	const UFunction* MakeVector = Find(TEXT("MakeVector"));
	TArray<uint8> Memory;
	Memory.SetNumZeroed(MakeVector->ParmsSize);
	MakeVector->InitializeStruct(Memory.GetData());
	*FindFProperty<FProperty>(MakeVector, TEXT("X"))->ContainerPtrToValuePtr<double>(Memory.GetData()) = 2.5;

	MakeVector->Invoke(nullptr, Memory.GetData());

	EXPECT_EQ(MakeVector->GetReturnProperty()->ContainerPtrToValuePtr<FVector2D>(Memory.GetData())->X, 2.5);
	MakeVector->DestroyStruct(Memory.GetData());
}

TEST(FunctionReflection, PrivateFunctionCanBeCalled)
{
	FCall Call(NewObject<UReflectionTestObject>(), TEXT("GetHidden"));

	Call.Run();

	EXPECT_EQ(Call.Parm<int32>(TEXT("ReturnValue")), 1);
}

TEST(FunctionReflection, DelegateParameterIsCallable)
{
	UReflectionTestObject* Object = NewObject<UReflectionTestObject>();
	FCall Call(Object, TEXT("Ask"));
	Call.Parm<FScriptDelegate>(TEXT("Question")).BindUFunction(Object, TEXT("IsLong"));
	Call.Parm<int32>(TEXT("Number")) = 4;

	Call.Run();

	EXPECT_TRUE(Call.Parm<bool>(TEXT("ReturnValue")));
}

TEST(FunctionReflection, DefaultArgumentsAreMetadata)
{
	EXPECT_EQ(Find(TEXT("Add"))->GetMetaData(TEXT("CPP_Default_B")), FString(TEXT("5")));
	EXPECT_FALSE(Find(TEXT("Add"))->HasMetaData(TEXT("CPP_Default_A")));
	EXPECT_EQ(Find(TEXT("Describe"))->GetMetaData(TEXT("CPP_Default_Plain")), FString(TEXT("ERTP_Two")));
	EXPECT_EQ(Find(TEXT("MakeVector"))->GetMetaData(TEXT("CPP_Default_Offset")), FString(TEXT("(X=1.0,Y=2.0)")));
	EXPECT_EQ(Find(TEXT("MakeVector"))->GetMetaData(TEXT("CPP_Default_Label")), FString(TEXT("a\"b")));
}

TEST(FunctionReflection, FunctionsComeInOrderOfDeclaration)
{
	TArray<FName> Names;
	UReflectionTestObject::StaticClass()->GenerateFunctionList(Names);

	ASSERT_GT(Names.Num(), 2);
	EXPECT_EQ(Names[0], FName(TEXT("Add")));
	EXPECT_EQ(Names[1], FName(TEXT("Describe")));
	EXPECT_EQ(Names.Last(), FName(TEXT("GetHidden")));
}

TEST(FunctionReflection, InheritedFunctionIsFoundUnlessExcluded)
{
	const UClass* Derived = UReflectionTestDerived::StaticClass();

	EXPECT_EQ(Derived->FindFunctionByName(TEXT("Add")), Find(TEXT("Add")));
	EXPECT_EQ(Derived->FindFunctionByName(TEXT("Add"), EIncludeSuperFlag::ExcludeSuper), nullptr);
}

TEST(FunctionReflection, DelegateSignatureIsAFunctionOfItsClassOrModule)
{
	const FMulticastDelegateProperty* Nested =
		FindFProperty<FMulticastDelegateProperty>(UReflectionTestObject::StaticClass(), TEXT("OnNested"));
	const FDelegateProperty* Predicate =
		FindFProperty<FDelegateProperty>(UReflectionTestObject::StaticClass(), TEXT("Predicate"));

	EXPECT_EQ(Nested->SignatureFunction->GetPathName(),
		FString(TEXT("/Script/CoreUObjectTestTypes.ReflectionTestObject:NestedEvent__DelegateSignature")));
	EXPECT_EQ(Predicate->SignatureFunction->GetPathName(),
		FString(TEXT("/Script/CoreUObjectTestTypes.ReflectionTestPredicate__DelegateSignature")));
	EXPECT_TRUE(Nested->SignatureFunction->HasAllFunctionFlags(FUNC_Delegate | FUNC_MulticastDelegate));
	EXPECT_TRUE(Find(TEXT("IsLong"))->IsSignatureCompatibleWith(Predicate->SignatureFunction));
	EXPECT_FALSE(Find(TEXT("Add"))->IsSignatureCompatibleWith(Predicate->SignatureFunction));
}
