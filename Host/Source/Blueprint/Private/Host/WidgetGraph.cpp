#include "Host/WidgetGraph.h"

#include "Blueprint/WidgetBlueprintGeneratedClass.h"
#include "Host/BlueprintReport.h"
#include "Host/FunctionCopy.h"
#include "Host/GraphOwner.h"
#include "Lua/LuaApi.h"
#include "Lua/LuaFunctionCall.h"
#include "Lua/LuaMachine.h"
#include "Lua/LuaSuper.h"
#include "Lua/LuaValue.h"
#include "Misc/FileHelper.h"
#include "Misc/Paths.h"
#include "UObject/Package.h"

namespace Host
{
	namespace
	{
		const TCHAR* const BlueprintSuffix = TEXT(".widget.json");
		const TCHAR* const GraphSuffix = TEXT(".lua");

		/** Whether a script may take the place of the function. */
		bool CanOverride(const UFunction& Function)
		{
			return Function.HasAnyFunctionFlags(FUNC_BlueprintEvent) || Function.IsScript();
		}

		/** Adds the function on top of the stack, which is taken off. */
		void AddGraphFunction(UWidgetBlueprintGeneratedClass& Class, lua_State* State, const FString& Name, const FString& GraphName)
		{
			const TSharedRef<FLuaReference> Script = MakeShared<FLuaReference>(State);
			// Of the parent, or of an interface.
			UFunction* Inherited = Class.FindFunctionByName(FName(*Name));
			if (Inherited && !CanOverride(*Inherited))
			{
				ReportBlueprintError(FString::Printf(TEXT("%s: '%s' is a function of %s that cannot be replaced."), *GraphName, *Name, *Inherited->GetOuterUClass()->GetName()));
				return;
			}
			UFunction* Function = Inherited ? CopySignature(Class, *Inherited, FName(*Name)) : MakePlainFunction(Class, FName(*Name));
			Function->SetScriptBody([Script, Function](UObject* Context, void* Parms) { CallScriptedFunction(*Script, Context, *Function, Parms); });
		}
	}

	void LoadWidgetGraph(UWidgetBlueprintGeneratedClass& Class, const FString& BlueprintFile)
	{
		AddKeptObjectsVariable(Class);
		const FString GraphFile = BlueprintFile.LeftChop(FCString::Strlen(BlueprintSuffix)) + GraphSuffix;
		if (!FPaths::FileExists(GraphFile))
		{
			return;
		}
		const FString GraphName = Class.GetOutermost()->GetName() + GraphSuffix;
		FString Text;
		if (!FFileHelper::LoadFileToString(Text, *GraphFile))
		{
			ReportBlueprintError(FString::Printf(TEXT("%s: the file cannot be read."), *GraphName));
			return;
		}
		FLuaMachine& Machine = FLuaMachine::Get();
		lua_State* State = Machine.GetState();
		if (!Machine.RunChunk(Text, GraphName))
		{
			return;
		}
		const int Environment = lua_gettop(State);
		for (lua_pushnil(State); lua_next(State, Environment) != 0;)
		{
			if (lua_isfunction(State, -1) && lua_type(State, -2) == LUA_TSTRING)
			{
				const FString Name = ToFString(State, -2);
				AddGraphFunction(Class, State, Name, GraphName);
			}
			else
			{
				lua_pop(State, 1);
			}
		}
		PushLuaSuper(State, *Class.GetSuperClass());
		lua_setfield(State, Environment, "Super");
		lua_pop(State, 1);
	}
}
