#include "RefusalCases.h"

/** A class with the given members. */
#define IN_CLASS(Name, Text) "UCLASS()\nclass U" Name " : public UObject\n{\n\tGENERATED_BODY()\npublic:\n" Text "\n};\n"

std::vector<FRefusalCase> GetFunctionRefusals()
{
	return {
		{"Overload", IN_CLASS("Overload", "UFUNCTION() void Call(int32 A) {}\nUFUNCTION() void Call(float A) {} //!"),
			"'Call' is overloaded: one UFUNCTION() a name; rename this one"},
		{"UnnamedParameter", IN_CLASS("UnnamedParameter", "UFUNCTION() void Call(int32) {} //!"),
			"a parameter of 'Call' has no name: name it"},
		{"ParameterShadow", IN_CLASS("ParameterShadow", "UPROPERTY() int32 Number;\nUFUNCTION() void Call(int32 Number) {} //!"),
			"the parameter 'Number' of 'Call' hides the property of that name: write 'InNumber'"},
		{"ObjectPtrParameter", IN_CLASS("ObjectPtrParameter", "UFUNCTION() void Call(TObjectPtr<UObject> Object) {} //!"),
			"'Object': TObjectPtr is for members: write UObject*"},
		{"ObjectPtrResult", IN_CLASS("ObjectPtrResult", "UFUNCTION() TObjectPtr<UObject> Call() { return nullptr; } //!"),
			"the result of 'Call': TObjectPtr is for members: write UObject*"},
		{"ObjectReference", IN_CLASS("ObjectReference", "UFUNCTION() void Call(UObject& Object) {} //!"),
			"'Object': an object is passed by pointer: write UObject*"},
		{"ReservedName", IN_CLASS("ReservedName", "UFUNCTION() void Call(int32 ReturnValue) {} //!"),
			"'ReturnValue' is the name of the result: rename the parameter of 'Call'"},
		{"PureWithoutResult", IN_CLASS("PureWithoutResult", "UFUNCTION(BlueprintPure) void Call() {} //!"),
			"'Call' is BlueprintPure but has neither result nor output parameter: write BlueprintCallable"},
		{"MemberOfLibrary",
			"UCLASS()\nclass UBlueprintFunctionLibrary : public UObject\n{\n\tGENERATED_BODY()\n};\n"
			"UCLASS()\nclass UMemberOfLibrary : public UBlueprintFunctionLibrary\n{\n\tGENERATED_BODY()\n\tUFUNCTION() void "
			"Call() {} //!\n};\n",
			"'Call' is a function of a function library: declare it static"},
		{"FunctionTemplate", IN_CLASS("FunctionTemplate", "UFUNCTION() //!\ntemplate<typename T> void Call(T A) {}"),
			"'Call' is a template: a template cannot be a UFUNCTION()"},
		{"OverrideWithMacro",
			"UCLASS()\nclass UOverrideWithMacroBase : public UObject\n{\n\tGENERATED_BODY()\npublic:\n\tUFUNCTION() virtual void "
			"Call() {}\n};\n"
			"UCLASS()\nclass UOverrideWithMacro : public UOverrideWithMacroBase\n{\n\tGENERATED_BODY()\npublic:\n\tUFUNCTION() "
			"virtual void Call() override {} //!\n};\n",
			"'Call' overrides a UFUNCTION(): take the macro off"},
		{"OddDefault", IN_CLASS("OddDefault", "UFUNCTION(BlueprintCallable) void Call(int32 A = sizeof(int32)) {} //!"),
			"the default argument 'sizeof(int32)' of 'A' cannot be reflected: write a literal, an enumerator, nullptr, or a "
			"constructor of a maths type with numbers"},
		{"WideParameter", IN_CLASS("WideParameter", "UFUNCTION(BlueprintCallable) void Call(uint32 A) {} //!"),
			"'A': graphs have no 'uint32': use uint8, int32 or int64"},
		{"WideResult", IN_CLASS("WideResult", "UFUNCTION(BlueprintCallable) int16 Call() { return 0; } //!"),
			"the result of 'Call': graphs have no 'int16': use uint8, int32 or int64"},
		{"PlainEnumOutput",
			"UENUM(BlueprintType)\nenum EPlainEnumOutputKind { PlainEnumOutputA };\n" IN_CLASS(
				"PlainEnumOutput", "UFUNCTION() void Call(EPlainEnumOutputKind& Out) {} //!"),
			"'Out': a plain enumeration is passed by reference as TEnumAsByte<EPlainEnumOutputKind>&"},
		{"FunctionNamedAsProperty",
			IN_CLASS("FunctionNamedAsProperty",
				"UPROPERTY() int32 Numbers;\nUFUNCTION() void Call() {}\nUFUNCTION(CallInEditor) void Press(int32 A) {} //!"),
			"'Press' is CallInEditor: it can have neither parameters nor result"},
		{"FunctionOnMember", IN_CLASS("FunctionOnMember", "UFUNCTION() //!\nint32 Member;"),
			"UFUNCTION() stands ahead of a member: write UPROPERTY()"},
		{"ForwardDeclaredStruct",
			"struct FForwardDeclaredStructKind;\n" IN_CLASS(
				"ForwardDeclaredStruct", "UFUNCTION() void Call(const FForwardDeclaredStructKind& A) {} //!"),
			"'A': FForwardDeclaredStructKind is only forward declared here: include its header"},
	};
}

std::vector<FRefusalCase> GetEventRefusals()
{
	return {
		{"ImplementableWithBody", IN_CLASS("ImplementableWithBody", "UFUNCTION(BlueprintImplementableEvent) void Call() {} //!"),
			"'Call' is an implementable event: declare it only, its body is generated"},
		{"ImplementableVirtual",
			IN_CLASS("ImplementableVirtual", "UFUNCTION(BlueprintImplementableEvent) virtual void Call(); //!"),
			"'Call' is an implementable event: it cannot be virtual"},
		{"ImplementablePrivate",
			"UCLASS()\nclass UImplementablePrivate : public "
			"UObject\n{\n\tGENERATED_BODY()\n\tUFUNCTION(BlueprintImplementableEvent) void Call(); //!\n};\n",
			"'Call' is an implementable event: it cannot be private; make it protected or public"},
		{"NativeVirtual", IN_CLASS("NativeVirtual", "UFUNCTION(BlueprintNativeEvent) virtual void Call(); //!"),
			"'Call' is a native event: declare it non-virtual; Call_Implementation is the virtual one"},
		{"NativeWithBody", IN_CLASS("NativeWithBody", "UFUNCTION(BlueprintNativeEvent) void Call() {} //!"),
			"'Call' is a native event, whose body is generated: write the default in 'virtual void Call_Implementation'"},
		{"EventString", IN_CLASS("EventString", "UFUNCTION(BlueprintNativeEvent) void Call(FString Text); //!"),
			"'Text': events take strings, texts and containers as 'const FString&'"},
		{"EventArray", IN_CLASS("EventArray", "UFUNCTION(BlueprintImplementableEvent) void Call(TArray<int32> Numbers); //!"),
			"'Numbers': events take strings, texts and containers as 'const TArray<int32>&'"},
		{"EventReferenceResult", IN_CLASS("EventReferenceResult", "UFUNCTION(BlueprintNativeEvent) const FString& Call(); //!"),
			"'Call' is an event: it must return by value"},
		{"BothEvents", IN_CLASS("BothEvents", "UFUNCTION(BlueprintNativeEvent, BlueprintImplementableEvent) void Call(); //!"),
			"'Call' is both BlueprintNativeEvent and BlueprintImplementableEvent: take one away"},
		{"ImplementableWithImplementation",
			IN_CLASS("ImplementableWithImplementation",
				"UFUNCTION(BlueprintImplementableEvent) void Call(); //!\nvirtual void Call_Implementation();"),
			"'Call' has an _Implementation: write BlueprintNativeEvent"},
	};
}

std::vector<FRefusalCase> GetDelegateRefusals()
{
	return {
		{"DelegatePrefix", "DECLARE_DYNAMIC_DELEGATE(OnPressed); //!\n",
			"the delegate OnPressed must be named with the prefix F"},
		{"DelegateSharedPointer",
			"DECLARE_DYNAMIC_MULTICAST_DELEGATE_OneParam(FDelegateSharedPointerKind, TSharedPtr<int32>, Value); //!\n",
			"'Value': a shared pointer cannot be reflected: take the macro off, or hold an object in TObjectPtr"},
		{"DelegateObjectPtr", "DECLARE_DYNAMIC_DELEGATE_OneParam(FDelegateObjectPtrKind, TObjectPtr<UObject>, Value); //!\n",
			"'Value': TObjectPtr is for members: write UObject*"},
		{"PrivateDelegate",
			"UCLASS()\nclass UPrivateDelegate : public UObject\n{\n\tGENERATED_BODY()\n\tDECLARE_DYNAMIC_DELEGATE(FHiddenEvent); "
			"//!\n};\n",
			"the delegate FHiddenEvent must be declared in a public section: who binds to it names its type"},
		{"DelegateResult", "DECLARE_DYNAMIC_DELEGATE_RetVal(TSharedPtr<int32>, FDelegateResultKind); //!\n",
			"the result of the delegate FDelegateResultKind: a shared pointer cannot be reflected: take the macro off, or hold "
			"an object in TObjectPtr"},
	};
}

std::vector<FRefusalCase> GetSpecifierRefusals()
{
	return {
		{"UnknownSpecifier", IN_CLASS("UnknownSpecifier", "UPROPERTY(EditAnywere) int32 Member; //!"),
			"'EditAnywere' is not a specifier of UPROPERTY(): write 'EditAnywhere'"},
		{"UnknownFunctionSpecifier", IN_CLASS("UnknownFunctionSpecifier", "UFUNCTION(BlueprintCalable) void Call() {} //!"),
			"'BlueprintCalable' is not a specifier of UFUNCTION(): write 'BlueprintCallable'"},
		{"MetadataAsSpecifier", IN_CLASS("MetadataAsSpecifier", "UPROPERTY(EditAnywhere, ClampMin=\"0\") int32 Member; //!"),
			"'ClampMin' is not a specifier of UPROPERTY(): write meta=(ClampMin)"},
		{"SpecifierAsMetadata", IN_CLASS("SpecifierAsMetadata", "UPROPERTY(meta=(Transient)) int32 Member; //!"),
			"'Transient' is a specifier, not metadata: write it outside of meta=()"},
		{"KnownMisspelling", IN_CLASS("KnownMisspelling", "UPROPERTY(EditAnywhere, meta=(InlineEditToggle)) bool bMember; //!"),
			"there is no metadata key 'InlineEditToggle': write 'InlineEditConditionToggle'"},
		{"NearMetadata", IN_CLASS("NearMetadata", "UPROPERTY(EditAnywhere, meta=(EditConditions=\"bMember\")) int32 Member; //!"),
			"there is no metadata key 'EditConditions': write 'EditCondition'"},
		{"SpecifierOnOtherLine",
			IN_CLASS("SpecifierOnOtherLine", "UPROPERTY(EditAnywhere,\n\tBlueprintReadWriteX) //!\n\tint32 Member;"),
			"'BlueprintReadWriteX' is not a specifier of UPROPERTY(): write 'BlueprintReadWrite'"},
		{"BrokenMeta", IN_CLASS("BrokenMeta", "UPROPERTY(meta=(A B)) int32 Member; //!"), "expected ',' ahead of 'B'"},
		{"UnknownEnumeratorKey", "UENUM()\nenum class EUnknownEnumeratorKey : uint8\n{\n\tA UMETA(DisplayNames=\"x\"), //!\n};\n",
			"there is no metadata key 'DisplayNames': write 'DisplayName'"},
	};
}
