#pragma once

#include "CoreMinimal.h"
#include "Lua/LuaMachine.h"
#include "UObject/Object.h"
#include "GraphCallback.generated.h"

/** What a dynamic delegate is bound to when a script binds one of its functions. */
UCLASS(Transient)
class UGraphCallback : public UObject
{
	GENERATED_BODY()

public:
	/**
	 * Makes a callback that lives as long as its owner and calls the function on top of the stack, which is taken off.
	 * @param Signature the delegate's
	 */
	static UGraphCallback* Make(UObject& Owner, UFunction& Signature, lua_State* State);

	/** Name of the function to bind: it has the delegate's signature. */
	FName GetFunctionName() const { return FunctionName; }

private:
	Host::FLuaReference Script;
	FName FunctionName;
};
