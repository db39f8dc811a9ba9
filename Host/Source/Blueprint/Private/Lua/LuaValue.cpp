#include "Lua/LuaValue.h"

#include "Lua/LuaApi.h"
#include "Lua/LuaObject.h"
#include "UObject/BaseStructures.h"
#include "UObject/UnrealType.h"

namespace Host
{
	namespace
	{
		/** One value outside any container, for keys and elements that must be read before they are added. */
		class FLooseLuaValue
		{
		public:
			explicit FLooseLuaValue(const FProperty& InProperty)
				: Property(InProperty)
				, Memory(FMemory::Malloc(static_cast<SIZE_T>(InProperty.GetSize()), static_cast<uint32>(InProperty.GetMinAlignment())))
			{
				Property.InitializeValue(Memory);
			}
			~FLooseLuaValue()
			{
				Property.DestroyValue(Memory);
				FMemory::Free(Memory);
			}
			FLooseLuaValue(const FLooseLuaValue&) = delete;
			FLooseLuaValue& operator=(const FLooseLuaValue&) = delete;

			void* Get() const { return Memory; }

		private:
			const FProperty& Property;
			void* Memory;
		};

		bool Refuse(lua_State* State, int Index, const TCHAR* Expected, FString& OutReason)
		{
			OutReason = FString::Printf(TEXT("%s expected, got %s"), Expected, UTF8_TO_TCHAR(luaL_typename(State, Index)));
			return false;
		}

		bool ReadStructText(lua_State* State, int Index, const FStructProperty& Property, void* Value, FString& OutReason)
		{
			const FString Text = ToFString(State, Index);
			if (Text.StartsWith(TEXT("#")) && Property.Struct == TBaseStructure<FLinearColor>::Get())
			{
				*static_cast<FLinearColor*>(Value) = FLinearColor(FColor::FromHex(Text));
				return true;
			}
			if (Property.ImportText_Direct(*Text, Value, nullptr, PPF_None))
			{
				return true;
			}
			OutReason = FString::Printf(TEXT("'%s' is no %s"), *Text, *Property.Struct->GetName());
			return false;
		}

		bool ReadStruct(lua_State* State, int Index, const FStructProperty& Property, void* Value, FString& OutReason)
		{
			if (lua_type(State, Index) == LUA_TSTRING)
			{
				return ReadStructText(State, Index, Property, Value, OutReason);
			}
			if (!lua_istable(State, Index))
			{
				return Refuse(State, Index, TEXT("a table"), OutReason);
			}
			Index = lua_absindex(State, Index);
			for (lua_pushnil(State); lua_next(State, Index) != 0; lua_pop(State, 1))
			{
				// The key is looked at as a copy: converting it in place would confuse the walk.
				lua_pushvalue(State, -2);
				const FString Member = lua_isstring(State, -1) ? ToFString(State, -1) : FString();
				lua_pop(State, 1);
				const FProperty* MemberProperty = Property.Struct->FindPropertyByName(FName(*Member));
				if (!MemberProperty)
				{
					OutReason = FString::Printf(TEXT("%s has no member '%s'"), *Property.Struct->GetName(), *Member);
				}
				else if (ReadLuaValue(State, -1, *MemberProperty, MemberProperty->ContainerPtrToValuePtr<void>(Value), OutReason))
				{
					continue;
				}
				else
				{
					OutReason = Member + TEXT(": ") + OutReason;
				}
				lua_pop(State, 2);
				return false;
			}
			return true;
		}

		bool ReadArray(lua_State* State, int Index, const FArrayProperty& Property, void* Value, FString& OutReason)
		{
			if (!lua_istable(State, Index))
			{
				return Refuse(State, Index, TEXT("a table"), OutReason);
			}
			Index = lua_absindex(State, Index);
			const FScriptArrayHelper Array(&Property, Value);
			Array.EmptyAndAddValues(static_cast<int32>(luaL_len(State, Index)));
			for (int32 Element = 0; Element < Array.Num(); ++Element)
			{
				lua_geti(State, Index, Element + 1);
				const bool bRead = ReadLuaValue(State, -1, *Property.Inner, Array.GetRawPtr(Element), OutReason);
				lua_pop(State, 1);
				if (!bRead)
				{
					OutReason = FString::Printf(TEXT("[%d]: %s"), Element + 1, *OutReason);
					return false;
				}
			}
			return true;
		}

		bool ReadMap(lua_State* State, int Index, const FMapProperty& Property, void* Value, FString& OutReason)
		{
			if (!lua_istable(State, Index))
			{
				return Refuse(State, Index, TEXT("a table"), OutReason);
			}
			Index = lua_absindex(State, Index);
			const FScriptMapHelper Map(&Property, Value);
			Map.EmptyValues();
			for (lua_pushnil(State); lua_next(State, Index) != 0; lua_pop(State, 1))
			{
				const FLooseLuaValue Key(*Property.KeyProp);
				const FLooseLuaValue PairValue(*Property.ValueProp);
				lua_pushvalue(State, -2);
				const bool bRead = ReadLuaValue(State, -1, *Property.KeyProp, Key.Get(), OutReason) && ReadLuaValue(State, -2, *Property.ValueProp, PairValue.Get(), OutReason);
				lua_pop(State, 1);
				if (!bRead)
				{
					lua_pop(State, 2);
					return false;
				}
				Map.AddPair(Key.Get(), PairValue.Get());
			}
			return true;
		}

		bool ReadSet(lua_State* State, int Index, const FSetProperty& Property, void* Value, FString& OutReason)
		{
			if (!lua_istable(State, Index))
			{
				return Refuse(State, Index, TEXT("a table"), OutReason);
			}
			Index = lua_absindex(State, Index);
			const FScriptSetHelper Set(&Property, Value);
			Set.EmptyElements();
			for (lua_Integer Element = 1, Count = luaL_len(State, Index); Element <= Count; ++Element)
			{
				const FLooseLuaValue Loose(*Property.ElementProp);
				lua_geti(State, Index, Element);
				const bool bRead = ReadLuaValue(State, -1, *Property.ElementProp, Loose.Get(), OutReason);
				lua_pop(State, 1);
				if (!bRead)
				{
					return false;
				}
				Set.AddElement(Loose.Get());
			}
			return true;
		}

		bool ReadEnum(lua_State* State, int Index, const UEnum& Enum, const FNumericProperty& Integer, void* Value, FString& OutReason)
		{
			if (lua_isinteger(State, Index))
			{
				Integer.SetIntPropertyValue(Value, lua_tointeger(State, Index));
				return true;
			}
			if (lua_type(State, Index) != LUA_TSTRING)
			{
				return Refuse(State, Index, TEXT("the name of an enumerator"), OutReason);
			}
			const FString Name = ToFString(State, Index);
			const int32 Enumerator = Enum.GetIndexByNameString(Name);
			if (Enumerator == INDEX_NONE)
			{
				OutReason = FString::Printf(TEXT("%s has no enumerator '%s'"), *Enum.GetName(), *Name);
				return false;
			}
			Integer.SetIntPropertyValue(Value, Enum.GetValueByIndex(Enumerator));
			return true;
		}

		bool ReadNumber(lua_State* State, int Index, const FNumericProperty& Property, void* Value, FString& OutReason)
		{
			if (lua_type(State, Index) != LUA_TNUMBER)
			{
				return Refuse(State, Index, TEXT("a number"), OutReason);
			}
			if (Property.IsInteger() && lua_isinteger(State, Index))
			{
				Property.SetIntPropertyValue(Value, lua_tointeger(State, Index));
			}
			else
			{
				Property.SetFloatingPointPropertyValue(Value, lua_tonumber(State, Index));
			}
			return true;
		}

		bool ReadObject(lua_State* State, int Index, const FObjectPropertyBase& Property, void* Value, FString& OutReason)
		{
			UObject* Object = nullptr;
			if (lua_type(State, Index) == LUA_TSTRING)
			{
				return Property.ImportText_Direct(*ToFString(State, Index), Value, nullptr, PPF_None) || (OutReason = FString::Printf(TEXT("'%s' is no %s"), *ToFString(State, Index), *Property.PropertyClass->GetName()), false);
			}
			if (!lua_isnil(State, Index) && !TryGetLuaObject(State, Index, Object))
			{
				return Refuse(State, Index, TEXT("an object"), OutReason);
			}
			if (!Property.CanHold(Object))
			{
				OutReason = FString::Printf(TEXT("%s expected, got %s"), *Property.PropertyClass->GetName(), *Object->GetClass()->GetName());
				return false;
			}
			Property.SetObjectPropertyValue(Value, Object);
			return true;
		}

		bool ReadInterface(lua_State* State, int Index, const FInterfaceProperty& Property, void* Value, FString& OutReason)
		{
			UObject* Object = nullptr;
			if (!lua_isnil(State, Index) && !TryGetLuaObject(State, Index, Object))
			{
				return Refuse(State, Index, TEXT("an object"), OutReason);
			}
			if (Object && !Object->GetClass()->ImplementsInterface(Property.InterfaceClass))
			{
				OutReason = FString::Printf(TEXT("%s does not implement %s"), *Object->GetClass()->GetName(), *Property.InterfaceClass->GetName());
				return false;
			}
			// Objects that implement it by a graph have no native part.
			FScriptInterface& Interface = *static_cast<FScriptInterface*>(Value);
			Interface.SetObject(Object);
			Interface.SetInterface(Object ? Object->GetInterfaceAddress(Property.InterfaceClass) : nullptr);
			return true;
		}
	}

	namespace
	{
		/** Where the registry keeps, by structure, the names of its members. */
		constexpr char MemberNames = 0;

		/** Pushes the names of a structure's members in their order, made once: a text of a name costs more than most values. */
		void PushMemberNames(lua_State* State, const UScriptStruct& Struct)
		{
			if (lua_rawgetp(State, LUA_REGISTRYINDEX, &MemberNames) != LUA_TTABLE)
			{
				lua_pop(State, 1);
				lua_newtable(State);
				lua_pushvalue(State, -1);
				lua_rawsetp(State, LUA_REGISTRYINDEX, &MemberNames);
			}
			if (lua_rawgetp(State, -1, &Struct) != LUA_TTABLE)
			{
				lua_pop(State, 1);
				lua_newtable(State);
				lua_Integer Count = 0;
				for (TFieldIterator<FProperty> It(&Struct); It; ++It)
				{
					PushFString(State, It->GetName());
					lua_rawseti(State, -2, ++Count);
				}
				lua_pushvalue(State, -1);
				lua_rawsetp(State, -3, &Struct);
			}
			lua_remove(State, -2);
		}

		void PushName(lua_State* State, FName Name)
		{
			// Kept, so that a name needs no memory of its own.
			static FString Text;
			Text.Reset();
			Name.AppendString(Text);
			PushFString(State, Text);
		}
	}

	FString ToFString(lua_State* State, int Index)
	{
		std::size_t Length = 0;
		const char* Text = lua_tolstring(State, Index, &Length);
		return Text ? FString(UTF8_TO_TCHAR(Text)) : FString();
	}

	void PushFString(lua_State* State, const FString& Text)
	{
		const FTCHARToUTF8 Bytes(*Text);
		lua_pushlstring(State, Bytes.Get(), static_cast<std::size_t>(Bytes.Length()));
	}

	void PushLuaStruct(lua_State* State, const UScriptStruct& Struct, const void* Value)
	{
		/** The names, the table, a key, and what pushes them. */
		constexpr int NumSlots = 6;
		luaL_checkstack(State, NumSlots, nullptr);
		PushMemberNames(State, Struct);
		const int Names = lua_gettop(State);
		lua_createtable(State, 0, static_cast<int>(lua_rawlen(State, Names)));
		lua_Integer Member = 0;
		for (TFieldIterator<FProperty> It(&Struct); It; ++It)
		{
			lua_rawgeti(State, Names, ++Member);
			PushLuaValue(State, **It, It->ContainerPtrToValuePtr<void>(Value));
			lua_rawset(State, -3);
		}
		lua_remove(State, Names);
	}

	void PushLuaValue(lua_State* State, const FProperty& Property, const void* Value)
	{
		if (const FBoolProperty* Bool = CastField<FBoolProperty>(&Property))
		{
			lua_pushboolean(State, Bool->GetPropertyValue(Value));
		}
		else if (const FEnumProperty* Enum = CastField<FEnumProperty>(&Property))
		{
			PushFString(State, Enum->GetEnum()->GetNameStringByValue(Enum->GetUnderlyingProperty()->GetSignedIntPropertyValue(Value)));
		}
		else if (const FNumericProperty* Number = CastField<FNumericProperty>(&Property))
		{
			if (const UEnum* ByteEnum = Number->GetIntPropertyEnum())
			{
				PushFString(State, ByteEnum->GetNameStringByValue(Number->GetSignedIntPropertyValue(Value)));
			}
			else if (Number->IsInteger())
			{
				lua_pushinteger(State, Number->GetSignedIntPropertyValue(Value));
			}
			else
			{
				lua_pushnumber(State, Number->GetFloatingPointPropertyValue(Value));
			}
		}
		else if (const FStrProperty* String = CastField<FStrProperty>(&Property))
		{
			PushFString(State, String->GetPropertyValue(Value));
		}
		else if (const FNameProperty* Name = CastField<FNameProperty>(&Property))
		{
			PushName(State, Name->GetPropertyValue(Value));
		}
		else if (const FTextProperty* Text = CastField<FTextProperty>(&Property))
		{
			PushFString(State, Text->GetPropertyValue(Value).ToString());
		}
		else if (const FSoftObjectProperty* Soft = CastField<FSoftObjectProperty>(&Property))
		{
			PushFString(State, Soft->GetPropertyValue(Value).ToString());
		}
		else if (const FObjectPropertyBase* Object = CastField<FObjectPropertyBase>(&Property))
		{
			PushLuaObject(State, Object->GetObjectPropertyValue(Value));
		}
		else if (const FInterfaceProperty* Interface = CastField<FInterfaceProperty>(&Property))
		{
			PushLuaObject(State, Interface->GetPropertyValue(Value).GetObject());
		}
		else if (const FStructProperty* Struct = CastField<FStructProperty>(&Property))
		{
			PushLuaStruct(State, *Struct->Struct, Value);
		}
		else if (const FArrayProperty* Array = CastField<FArrayProperty>(&Property))
		{
			const FScriptArrayHelper Helper(Array, Value);
			lua_createtable(State, Helper.Num(), 0);
			for (int32 Index = 0; Index < Helper.Num(); ++Index)
			{
				PushLuaValue(State, *Array->Inner, Helper.GetRawPtr(Index));
				lua_rawseti(State, -2, Index + 1);
			}
		}
		else if (const FMapProperty* Map = CastField<FMapProperty>(&Property))
		{
			const FScriptMapHelper Helper(Map, Value);
			lua_createtable(State, 0, Helper.Num());
			for (int32 Index = 0; Index < Helper.GetMaxIndex(); ++Index)
			{
				if (Helper.IsValidIndex(Index))
				{
					PushLuaValue(State, *Map->KeyProp, Helper.GetKeyPtr(Index));
					PushLuaValue(State, *Map->ValueProp, Helper.GetValuePtr(Index));
					lua_rawset(State, -3);
				}
			}
		}
		else if (const FSetProperty* Set = CastField<FSetProperty>(&Property))
		{
			const FScriptSetHelper Helper(Set, Value);
			lua_createtable(State, Helper.Num(), 0);
			lua_Integer Count = 0;
			for (int32 Index = 0; Index < Helper.GetMaxIndex(); ++Index)
			{
				if (Helper.IsValidIndex(Index))
				{
					PushLuaValue(State, *Set->ElementProp, Helper.GetElementPtr(Index));
					lua_rawseti(State, -2, ++Count);
				}
			}
		}
		else
		{
			lua_pushnil(State);
		}
	}

	bool ReadLuaValue(lua_State* State, int Index, const FProperty& Property, void* Value, FString& OutReason)
	{
		if (const FBoolProperty* Bool = CastField<FBoolProperty>(&Property))
		{
			if (!lua_isboolean(State, Index))
			{
				return Refuse(State, Index, TEXT("a boolean"), OutReason);
			}
			Bool->SetPropertyValue(Value, lua_toboolean(State, Index) != 0);
			return true;
		}
		if (const FEnumProperty* Enum = CastField<FEnumProperty>(&Property))
		{
			return ReadEnum(State, Index, *Enum->GetEnum(), *Enum->GetUnderlyingProperty(), Value, OutReason);
		}
		if (const FNumericProperty* Number = CastField<FNumericProperty>(&Property))
		{
			const UEnum* ByteEnum = Number->GetIntPropertyEnum();
			return ByteEnum ? ReadEnum(State, Index, *ByteEnum, *Number, Value, OutReason) : ReadNumber(State, Index, *Number, Value, OutReason);
		}
		if (const FStructProperty* Struct = CastField<FStructProperty>(&Property))
		{
			return ReadStruct(State, Index, *Struct, Value, OutReason);
		}
		if (const FArrayProperty* Array = CastField<FArrayProperty>(&Property))
		{
			return ReadArray(State, Index, *Array, Value, OutReason);
		}
		if (const FMapProperty* Map = CastField<FMapProperty>(&Property))
		{
			return ReadMap(State, Index, *Map, Value, OutReason);
		}
		if (const FSetProperty* Set = CastField<FSetProperty>(&Property))
		{
			return ReadSet(State, Index, *Set, Value, OutReason);
		}
		const FSoftObjectProperty* Soft = CastField<FSoftObjectProperty>(&Property);
		if (const FObjectPropertyBase* Object = Soft ? nullptr : CastField<FObjectPropertyBase>(&Property))
		{
			return ReadObject(State, Index, *Object, Value, OutReason);
		}
		if (const FInterfaceProperty* Interface = CastField<FInterfaceProperty>(&Property))
		{
			return ReadInterface(State, Index, *Interface, Value, OutReason);
		}
		if (!lua_isstring(State, Index))
		{
			return Refuse(State, Index, TEXT("a string"), OutReason);
		}
		const FString Text = ToFString(State, Index);
		if (const FTextProperty* TextProperty = CastField<FTextProperty>(&Property))
		{
			// As it is: what a script shows is no text form of the engine.
			TextProperty->SetPropertyValue(Value, FText::FromString(Text));
			return true;
		}
		if (!Property.ImportText_Direct(*Text, Value, nullptr, PPF_None))
		{
			OutReason = FString::Printf(TEXT("'%s' is no %s"), *Text, *Property.GetCPPType());
			return false;
		}
		return true;
	}
}
