#include "Lua/LuaLibrary.h"

#include "Blueprint/UserWidget.h"
#include "Blueprint/WidgetTree.h"
#include "Engine/DataTable.h"
#include "Engine/Engine.h"
#include "Engine/World.h"
#include "GameFramework/Actor.h"
#include "Host/Mounts.h"
#include "Host/WidgetClassNames.h"
#include "Lua/LuaApi.h"
#include "Lua/LuaMachine.h"
#include "Lua/LuaObject.h"
#include "Lua/LuaValue.h"
#include "Misc/FileHelper.h"
#include "TimerManager.h"
#include "UObject/UnrealType.h"

namespace Host
{
	namespace
	{
		UClass& CheckClass(lua_State* State, int Index)
		{
			luaL_checkstring(State, Index);
			const FString Path = ToFString(State, Index);
			UClass* Found = LoadObject<UClass>(nullptr, *Path, nullptr, LOAD_Quiet);
			if (!Found)
			{
				luaL_error(State, "there is no class '%s'", TCHAR_TO_UTF8(*Path));
			}
			return *Found;
		}

		int FindClass(lua_State* State)
		{
			PushLuaObject(State, &CheckClass(State, 1));
			return 1;
		}

		int FindDefault(lua_State* State)
		{
			PushLuaObject(State, CheckClass(State, 1).GetDefaultObject());
			return 1;
		}

		int Import(lua_State* State)
		{
			luaL_checkstring(State, 1);
			const FString Path = ToFString(State, 1);
			luaL_getsubtable(State, LUA_REGISTRYINDEX, ImportTableName);
			if (lua_getfield(State, -1, TCHAR_TO_UTF8(*Path)) == LUA_TTABLE)
			{
				return 1;
			}
			lua_pop(State, 1);
			FString Filename;
			FString Text;
			FString Reason;
			if (!FMounts::FindFile(Path, TEXT(".lua"), Filename, Reason) || !FFileHelper::LoadFileToString(Text, *Filename))
			{
				return luaL_error(State, "there is no script '%s'%s%s", TCHAR_TO_UTF8(*Path), Reason.IsEmpty() ? "" : ": ", TCHAR_TO_UTF8(*Reason));
			}
			if (!FLuaMachine::Get().RunChunk(Text, Path + TEXT(".lua")))
			{
				return luaL_error(State, "the script '%s' failed", TCHAR_TO_UTF8(*Path));
			}
			lua_pushvalue(State, -1);
			lua_setfield(State, -3, TCHAR_TO_UTF8(*Path));
			return 1;
		}

		int FindSubsystem(lua_State* State)
		{
			UClass& SubsystemClass = CheckClass(State, 1);
			PushLuaObject(State, GEngine && SubsystemClass.IsChildOf(UEngineSubsystem::StaticClass()) ? GEngine->GetEngineSubsystemBase(&SubsystemClass) : nullptr);
			return 1;
		}

		int Load(lua_State* State)
		{
			luaL_checkstring(State, 1);
			PushLuaObject(State, LoadObject<UObject>(nullptr, *ToFString(State, 1)));
			return 1;
		}

		int CreateWidgetOfClass(lua_State* State)
		{
			UWidget* Owner = Cast<UWidget>(&CheckLuaObject(State, 1));
			UUserWidget* UserWidget = Cast<UUserWidget>(Owner);
			if (Owner && !UserWidget)
			{
				UserWidget = Owner->GetTypedOuter<UUserWidget>();
			}
			if (!UserWidget || !UserWidget->WidgetTree)
			{
				return luaL_error(State, "only a widget of a screen can own a new one");
			}
			luaL_checkstring(State, 2);
			FString Reason;
			UClass* WidgetClass = FindWidgetClass(ToFString(State, 2), Reason);
			if (!WidgetClass)
			{
				return luaL_error(State, "%s", TCHAR_TO_UTF8(*Reason));
			}
			PushLuaObject(State, UserWidget->WidgetTree->ConstructWidget<UWidget>(WidgetClass));
			return 1;
		}

		int ConstructObject(lua_State* State)
		{
			UObject& Owner = CheckLuaObject(State, 1);
			UClass& ObjectClass = CheckClass(State, 2);
			if (ObjectClass.HasAnyClassFlags(CLASS_Abstract) || ObjectClass.IsChildOf(UWidget::StaticClass()) || ObjectClass.IsChildOf(AActor::StaticClass()))
			{
				return luaL_error(State, "no object of the class %s can be made", TCHAR_TO_UTF8(*ObjectClass.GetName()));
			}
			PushLuaObject(State, NewObject<UObject>(&Owner, &ObjectClass));
			return 1;
		}

		/** The map property that a path of members leads to, and its address; null when there is none. */
		const FMapProperty* FindMap(const UObject& Object, const FString& Path, const void*& OutMap)
		{
			TArray<FString> Members;
			Path.ParseIntoArray(Members, TEXT("."));
			const UStruct* Struct = Object.GetClass();
			const void* Container = &Object;
			for (const FString& Member : Members)
			{
				const FProperty* Property = Struct ? Struct->FindPropertyByName(FName(*Member)) : nullptr;
				Container = Property ? Property->ContainerPtrToValuePtr<void>(Container) : nullptr;
				if (const FMapProperty* Map = CastField<FMapProperty>(Property))
				{
					OutMap = Container;
					return Map;
				}
				const FStructProperty* Inner = CastField<FStructProperty>(Property);
				Struct = Inner ? Inner->Struct : nullptr;
			}
			return nullptr;
		}

		int Keys(lua_State* State)
		{
			const UObject& Object = CheckLuaObject(State, 1);
			luaL_checkstring(State, 2);
			const void* Address = nullptr;
			const FMapProperty* Map = FindMap(Object, ToFString(State, 2), Address);
			if (!Map)
			{
				return luaL_error(State, "%s has no map '%s'", TCHAR_TO_UTF8(*Object.GetClass()->GetName()), lua_tostring(State, 2));
			}
			const FScriptMapHelper Helper(Map, Address);
			lua_createtable(State, Helper.Num(), 0);
			lua_Integer Count = 0;
			for (int32 Index = 0; Index < Helper.GetMaxIndex(); ++Index)
			{
				if (Helper.IsValidIndex(Index))
				{
					PushLuaValue(State, *Map->KeyProp, Helper.GetKeyPtr(Index));
					lua_rawseti(State, -2, ++Count);
				}
			}
			return 1;
		}

		UDataTable& CheckTable(lua_State* State)
		{
			UDataTable* Table = Cast<UDataTable>(&CheckLuaObject(State, 1));
			if (!Table)
			{
				luaL_error(State, "a data table expected");
			}
			return *Table;
		}

		int RowNames(lua_State* State)
		{
			const UDataTable& Table = CheckTable(State);
			lua_createtable(State, Table.GetRowMap().Num(), 0);
			lua_Integer Count = 0;
			for (const TPair<FName, uint8*>& Row : Table.GetRowMap())
			{
				PushFString(State, Row.Key.ToString());
				lua_rawseti(State, -2, ++Count);
			}
			return 1;
		}

		int FindRow(lua_State* State)
		{
			const UDataTable& Table = CheckTable(State);
			luaL_checkstring(State, 2);
			if (const uint8* Row = Table.FindRowUnchecked(FName(*ToFString(State, 2))))
			{
				PushLuaStruct(State, *Table.GetRowStruct(), Row);
			}
			else
			{
				lua_pushnil(State);
			}
			return 1;
		}

		int Delay(lua_State* State)
		{
			UObject& Owner = CheckLuaObject(State, 1);
			const lua_Number Seconds = luaL_checknumber(State, 2);
			luaL_checktype(State, 3, LUA_TFUNCTION);
			lua_settop(State, 3);
			UWorld* World = Owner.GetWorld();
			if (!World)
			{
				return luaL_error(State, "the owner of a delay must be in a world");
			}
			const TSharedRef<FLuaReference> Script = MakeShared<FLuaReference>(State);
			FTimerDelegate Callback = FTimerDelegate::CreateWeakLambda(&Owner, [Script]
			{
				if (FLuaMachine* Machine = FLuaMachine::GetIfRunning())
				{
					Script->Push(Machine->GetState());
					Machine->Call(0, 0);
				}
			});
			FTimerHandle Handle;
			World->GetTimerManager().SetTimer(Handle, Callback, FMath::Max(static_cast<float>(Seconds), UE_SMALL_NUMBER));
			return 0;
		}
	}

	void RegisterLuaLibrary(lua_State* State)
	{
		lua_register(State, "Class", &FindClass);
		lua_register(State, "Default", &FindDefault);
		lua_register(State, "Import", &Import);
		lua_register(State, "Subsystem", &FindSubsystem);
		lua_register(State, "Load", &Load);
		lua_register(State, "CreateWidget", &CreateWidgetOfClass);
		lua_register(State, "ConstructObject", &ConstructObject);
		lua_register(State, "Delay", &Delay);
		lua_register(State, "Keys", &Keys);
		lua_register(State, "RowNames", &RowNames);
		lua_register(State, "Row", &FindRow);
	}
}
