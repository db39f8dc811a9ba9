#pragma once

#include "Containers/Array.h"
#include "Containers/UnrealString.h"
#include "Delegates/Delegate.h"
#include "Misc/OutputDevice.h"

class IConsoleCommand;
class IConsoleVariable;
class UWorld;

/** What a console object is, and who set its value last. A value gives way only to a setter of the same or a higher rank. */
enum EConsoleVariableFlags
{
	ECVF_FlagMask = 0x0000ffff,
	ECVF_Default = 0x0,
	/** Not for a shipped program. */
	ECVF_Cheat = 0x1,
	/** Set by the program alone, not from the console. */
	ECVF_ReadOnly = 0x4,
	/** The variable was unregistered; its value is kept for when it is registered again. */
	ECVF_Unregistered = 0x8,
	ECVF_RenderThreadSafe = 0x20,
	ECVF_Scalability = 0x40,
	ECVF_ScalabilityGroup = 0x80,

	ECVF_SetByMask = 0xff000000,
	ECVF_SetByConstructor = 0x00000000,
	ECVF_SetByScalability = 0x01000000,
	ECVF_SetByGameSetting = 0x02000000,
	ECVF_SetByProjectSetting = 0x03000000,
	ECVF_SetBySystemSettingsIni = 0x04000000,
	ECVF_SetByDeviceProfile = 0x05000000,
	ECVF_SetByGameOverride = 0x06000000,
	ECVF_SetByConsoleVariablesIni = 0x07000000,
	ECVF_SetByCommandline = 0x08000000,
	ECVF_SetByCode = 0x09000000,
	ECVF_SetByConsole = 0x0A000000
};

/** The name of a setter's rank, without its prefix: "Code", "Console". */
CORE_API const TCHAR* GetConsoleVariableSetByName(EConsoleVariableFlags InSetBy);

DECLARE_DELEGATE(FConsoleCommandDelegate);
DECLARE_DELEGATE_OneParam(FConsoleCommandWithArgsDelegate, const TArray<FString>&);
DECLARE_DELEGATE_TwoParams(FConsoleCommandWithArgsAndOutputDeviceDelegate, const TArray<FString>&, FOutputDevice&);
DECLARE_DELEGATE_OneParam(FConsoleVariableDelegate, IConsoleVariable*);
DECLARE_MULTICAST_DELEGATE_OneParam(FConsoleVariableMulticastDelegate, IConsoleVariable*);
DECLARE_DELEGATE_TwoParams(FConsoleObjectVisitor, const TCHAR*, class IConsoleObject*);

/** A variable or a command of the console. Owned by the console manager. */
class IConsoleObject
{
public:
	virtual ~IConsoleObject() = default;

	/** What it does, as shown to the user. */
	virtual const TCHAR* GetHelp() const = 0;
	virtual void SetHelp(const TCHAR* Value) = 0;
	virtual EConsoleVariableFlags GetFlags() const = 0;
	/** Replaces the flags, the rank of the last setter included. */
	virtual void SetFlags(EConsoleVariableFlags Value) = 0;

	void ClearFlags(EConsoleVariableFlags Value) { SetFlags(EConsoleVariableFlags(uint32(GetFlags()) & ~uint32(Value))); }
	bool TestFlags(EConsoleVariableFlags Value) const { return (uint32(GetFlags()) & uint32(Value)) != 0; }

	/** This as a variable, or null. */
	virtual IConsoleVariable* AsVariable() { return nullptr; }
	/** This as a command, or null. */
	virtual IConsoleCommand* AsCommand() { return nullptr; }
};

/** A value that the console, files and code can change. */
class IConsoleVariable : public IConsoleObject
{
public:
	/** Reads the text as the variable's type. A rank below the last setter's is refused with a warning, and so is text that is no such value. */
	virtual void Set(const TCHAR* InValue, EConsoleVariableFlags SetBy = ECVF_SetByCode) = 0;
	CORE_API void Set(bool InValue, EConsoleVariableFlags SetBy = ECVF_SetByCode);
	CORE_API void Set(int32 InValue, EConsoleVariableFlags SetBy = ECVF_SetByCode);
	CORE_API void Set(float InValue, EConsoleVariableFlags SetBy = ECVF_SetByCode);

	/** Sets whatever the last setter's rank, which stays as it is. */
	CORE_API void SetWithCurrentPriority(const TCHAR* InValue);

	virtual bool GetBool() const = 0;
	virtual int32 GetInt() const = 0;
	virtual float GetFloat() const = 0;
	virtual FString GetString() const = 0;
	/** The value that the variable was registered with. */
	virtual FString GetDefaultValue() const = 0;

	virtual bool IsVariableBool() const { return false; }
	virtual bool IsVariableInt() const { return false; }
	virtual bool IsVariableFloat() const { return false; }
	virtual bool IsVariableString() const { return false; }

	/** Called after each accepted Set, whether or not the value differs; replaces the callback before it. */
	virtual void SetOnChangedCallback(const FConsoleVariableDelegate& Callback) = 0;
	/** As the callback, for any number of listeners. */
	virtual FConsoleVariableMulticastDelegate& OnChangedDelegate() = 0;

	virtual IConsoleVariable* AsVariable() override { return this; }
};

/** Something that the console can do. */
class IConsoleCommand : public IConsoleObject
{
public:
	/** Returns false when there is nothing bound to it. */
	virtual bool Execute(const TArray<FString>& Args, UWorld* InWorld, FOutputDevice& OutputDevice) = 0;

	virtual IConsoleCommand* AsCommand() override { return this; }
};

/** All variables and commands, by name without regard to case. */
class IConsoleManager
{
public:
	virtual ~IConsoleManager() = default;

	CORE_API static IConsoleManager& Get();

	/** Registers a variable that holds its value itself. A name that is taken by a variable gives that one, by a command null, each with a warning. */
	virtual IConsoleVariable* RegisterConsoleVariable(const TCHAR* Name, bool DefaultValue, const TCHAR* Help, uint32 Flags = ECVF_Default) = 0;
	virtual IConsoleVariable* RegisterConsoleVariable(const TCHAR* Name, int32 DefaultValue, const TCHAR* Help, uint32 Flags = ECVF_Default) = 0;
	virtual IConsoleVariable* RegisterConsoleVariable(const TCHAR* Name, float DefaultValue, const TCHAR* Help, uint32 Flags = ECVF_Default) = 0;
	virtual IConsoleVariable* RegisterConsoleVariable(const TCHAR* Name, const TCHAR* DefaultValue, const TCHAR* Help, uint32 Flags = ECVF_Default) = 0;
	virtual IConsoleVariable* RegisterConsoleVariable(const TCHAR* Name, const FString& DefaultValue, const TCHAR* Help, uint32 Flags = ECVF_Default) = 0;

	/** Registers a variable over a value that lives elsewhere, and must outlive the registration. */
	virtual IConsoleVariable* RegisterConsoleVariableRef(const TCHAR* Name, bool& RefValue, const TCHAR* Help, uint32 Flags = ECVF_Default) = 0;
	virtual IConsoleVariable* RegisterConsoleVariableRef(const TCHAR* Name, int32& RefValue, const TCHAR* Help, uint32 Flags = ECVF_Default) = 0;
	virtual IConsoleVariable* RegisterConsoleVariableRef(const TCHAR* Name, float& RefValue, const TCHAR* Help, uint32 Flags = ECVF_Default) = 0;
	virtual IConsoleVariable* RegisterConsoleVariableRef(const TCHAR* Name, FString& RefValue, const TCHAR* Help, uint32 Flags = ECVF_Default) = 0;

	/** Registers a command; null, with a warning, when the name is taken. */
	virtual IConsoleCommand* RegisterConsoleCommand(const TCHAR* Name, const TCHAR* Help, const FConsoleCommandDelegate& Command, uint32 Flags = ECVF_Default) = 0;
	virtual IConsoleCommand* RegisterConsoleCommand(const TCHAR* Name, const TCHAR* Help, const FConsoleCommandWithArgsDelegate& Command, uint32 Flags = ECVF_Default) = 0;
	virtual IConsoleCommand* RegisterConsoleCommand(const TCHAR* Name, const TCHAR* Help, const FConsoleCommandWithArgsAndOutputDeviceDelegate& Command, uint32 Flags = ECVF_Default) = 0;

	/** Destroys the object. With bKeepState a variable's value comes back when its name is registered again. */
	virtual void UnregisterConsoleObject(IConsoleObject* Object, bool bKeepState = true) = 0;
	virtual void UnregisterConsoleObject(const TCHAR* Name, bool bKeepState = true) = 0;

	/** Null when there is no such object, or when it is of the other kind. */
	virtual IConsoleObject* FindConsoleObject(const TCHAR* Name, bool bTrackFrequentCalls = true) const = 0;
	virtual IConsoleVariable* FindConsoleVariable(const TCHAR* Name, bool bTrackFrequentCalls = true) const = 0;

	/** Visits in alphabetical order. */
	virtual void ForEachConsoleObjectThatStartsWith(const FConsoleObjectVisitor& Visitor, const TCHAR* ThatStartsWith = TEXT("")) const = 0;
	virtual void ForEachConsoleObjectThatContains(const FConsoleObjectVisitor& Visitor, const TCHAR* ThatContains) const = 0;

	/**
	 * What a user typed: "Name" shows a variable or runs a command, "Name ?" shows its help, "Name Value" sets a variable,
	 * "Name Arguments" runs a command; arguments stand in quotes to hold spaces.
	 * @return false when the first word names nothing
	 */
	virtual bool ProcessUserConsoleInput(const TCHAR* Input, FOutputDevice& Ar, UWorld* InWorld) = 0;
};

/** Registers a console object for as long as it lives. */
class FAutoConsoleObject
{
public:
	FAutoConsoleObject(const FAutoConsoleObject&) = delete;
	FAutoConsoleObject& operator=(const FAutoConsoleObject&) = delete;

protected:
	explicit FAutoConsoleObject(IConsoleObject* InTarget)
		: Target(InTarget)
	{
		check(Target != nullptr);
	}

	virtual ~FAutoConsoleObject()
	{
		IConsoleManager::Get().UnregisterConsoleObject(Target);
	}

	IConsoleObject* Target;
};

/** A variable of type bool, int32, float or FString, registered for as long as it lives. */
template <typename T>
class TAutoConsoleVariable : public FAutoConsoleObject
{
	static_assert(std::is_same_v<T, bool> || std::is_same_v<T, int32> || std::is_same_v<T, float> || std::is_same_v<T, FString>,
		"A console variable is of type bool, int32, float or FString");

public:
	template <typename DefaultType>
	TAutoConsoleVariable(const TCHAR* Name, const DefaultType& DefaultValue, const TCHAR* Help, uint32 Flags = ECVF_Default)
		: FAutoConsoleObject(IConsoleManager::Get().RegisterConsoleVariable(Name, T(DefaultValue), Help, Flags))
	{
	}

	T GetValueOnGameThread() const
	{
		if constexpr (std::is_same_v<T, bool>)
		{
			return AsVariable()->GetBool();
		}
		else if constexpr (std::is_same_v<T, int32>)
		{
			return AsVariable()->GetInt();
		}
		else if constexpr (std::is_same_v<T, float>)
		{
			return AsVariable()->GetFloat();
		}
		else
		{
			return AsVariable()->GetString();
		}
	}

	T GetValueOnAnyThread() const { return GetValueOnGameThread(); }

	IConsoleVariable* AsVariable() const { return Target->AsVariable(); }
	IConsoleVariable& operator*() const { return *AsVariable(); }
	IConsoleVariable* operator->() const { return AsVariable(); }
};

/** A variable of the type of its default, registered for as long as it lives. */
class FAutoConsoleVariable : public FAutoConsoleObject
{
public:
	template <typename T>
	FAutoConsoleVariable(const TCHAR* Name, const T& DefaultValue, const TCHAR* Help, uint32 Flags = ECVF_Default)
		: FAutoConsoleObject(IConsoleManager::Get().RegisterConsoleVariable(Name, DefaultValue, Help, Flags))
	{
	}

	template <typename T>
	FAutoConsoleVariable(const TCHAR* Name, const T& DefaultValue, const TCHAR* Help, const FConsoleVariableDelegate& Callback, uint32 Flags = ECVF_Default)
		: FAutoConsoleVariable(Name, DefaultValue, Help, Flags)
	{
		AsVariable()->SetOnChangedCallback(Callback);
	}

	IConsoleVariable* AsVariable() const { return Target->AsVariable(); }
	IConsoleVariable& operator*() const { return *AsVariable(); }
	IConsoleVariable* operator->() const { return AsVariable(); }
};

/** A variable over a value that lives elsewhere. */
class FAutoConsoleVariableRef : public FAutoConsoleObject
{
public:
	template <typename T>
	FAutoConsoleVariableRef(const TCHAR* Name, T& RefValue, const TCHAR* Help, uint32 Flags = ECVF_Default)
		: FAutoConsoleObject(IConsoleManager::Get().RegisterConsoleVariableRef(Name, RefValue, Help, Flags))
	{
	}

	IConsoleVariable* AsVariable() const { return Target->AsVariable(); }
	IConsoleVariable* operator->() const { return AsVariable(); }
};

/** A command, registered for as long as it lives. */
class FAutoConsoleCommand : public FAutoConsoleObject
{
public:
	template <typename DelegateType>
	FAutoConsoleCommand(const TCHAR* Name, const TCHAR* Help, const DelegateType& Command, uint32 Flags = ECVF_Default)
		: FAutoConsoleObject(IConsoleManager::Get().RegisterConsoleCommand(Name, Help, Command, Flags))
	{
	}
};
