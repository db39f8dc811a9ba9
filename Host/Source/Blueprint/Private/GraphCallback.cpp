#include "GraphCallback.h"

#include "Host/FunctionCopy.h"
#include "Host/GraphOwner.h"
#include "Lua/LuaFunctionCall.h"
#include "UObject/UnrealType.h"

UGraphCallback* UGraphCallback::Make(UObject& Owner, UFunction& Signature, lua_State* State)
{
	UGraphCallback* Callback = NewObject<UGraphCallback>(&Owner);
	Callback->Script = Host::FLuaReference(State);
	Callback->FunctionName = FName(*(TEXT("Call_") + Signature.GetPathName().Replace(TEXT("/"), TEXT("_")).Replace(TEXT("."), TEXT("_")).Replace(TEXT(":"), TEXT("_"))));
	Host::KeepWithOwner(Owner, *Callback);

	// One function for each signature, shared by all callbacks.
	UClass* Class = StaticClass();
	if (!Class->FindFunctionByName(Callback->FunctionName))
	{
		UFunction* Function = Host::CopySignature(*Class, Signature, Callback->FunctionName);
		Function->SetScriptBody([Function](UObject* Context, void* Parms)
		{
			Host::CallScriptedFunction(static_cast<UGraphCallback*>(Context)->Script, nullptr, *Function, Parms);
		});
	}
	return Callback;
}
