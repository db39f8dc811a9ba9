#pragma once

#include "Templates/Function.h"
#include "UObject/Script.h"
#include "UObject/Struct.h"

/** Calls compiled code: Context is the object (null for static functions), Parms the parameters as UFunction lays them out. */
using FNativeFuncPtr = void (*)(UObject* Context, void* Parms);

/** Describes a function. Its properties are the parameters in order, the result last. */
class COREUOBJECT_API UFunction : public UStruct
{
	HOST_INTRINSIC_CLASS(UFunction, UStruct)

	EFunctionFlags FunctionFlags = FUNC_None;
	/** Number of parameters, the result included. */
	uint8 NumParms = 0;
	/** Size in bytes of the parameters, the result included. */
	uint16 ParmsSize = 0;
	/** Offset of the result in the parameters, MAX_uint16 for none. */
	uint16 ReturnValueOffset = 0xffff;

	UFunction(const FObjectInitializer& ObjectInitializer);
	UFunction(EStaticConstructor, EObjectFlags InFlags);

	bool HasAnyFunctionFlags(EFunctionFlags FlagsToCheck) const { return EnumHasAnyFlags(FunctionFlags, FlagsToCheck); }
	bool HasAllFunctionFlags(EFunctionFlags FlagsToCheck) const { return EnumHasAllFlags(FunctionFlags, FlagsToCheck); }

	/** The result; null when there is none. */
	FProperty* GetReturnProperty() const;
	/** The function of the base class that this one overrides; null when it overrides none. */
	UFunction* GetSuperFunction() const;
	/** The class that declares the function. */
	UClass* GetOuterUClass() const { return GetOwnerClass(); }

	/** True when the other function has the same parameters and result, whatever their names. */
	bool IsSignatureCompatibleWith(const UFunction* OtherFunction) const;

	virtual void Link() override;

	FNativeFuncPtr GetNativeFunc() const { return Func; }
	void SetNativeFunc(FNativeFuncPtr InFunc) { Func = InFunc; }

	/** Body of a function that is made at run time. */
	using FScriptBody = TFunction<void(UObject* Context, void* Parms)>;
	void SetScriptBody(FScriptBody InBody) { ScriptBody = MoveTemp(InBody); }
	/** True when a script answers the call. */
	bool IsScript() const { return bool(ScriptBody); }

	/** Runs the script body, otherwise the compiled code; does nothing when there is neither (an event that nobody implemented). */
	void Invoke(UObject* Context, void* Parms) const;

private:
	FNativeFuncPtr Func = nullptr;
	FScriptBody ScriptBody;
};

/** The signature of a dynamic delegate. */
class COREUOBJECT_API UDelegateFunction : public UFunction
{
	HOST_INTRINSIC_CLASS(UDelegateFunction, UFunction)

	UDelegateFunction(const FObjectInitializer& ObjectInitializer);
	UDelegateFunction(EStaticConstructor, EObjectFlags InFlags);
};
