#include "HAL/ConsoleVariable.h"
#include "HAL/IConsoleManager.h"
#include "HAL/StandardCommands.h"
#include "Host/ConsoleConfig.h"
#include "Logging/LogMacros.h"
#include "Misc/Char.h"
#include "Misc/ConfigCacheIni.h"
#include "Misc/Parse.h"

#include <map>
#include <memory>
#include <vector>

namespace
{
	template <typename DelegateType>
	class TConsoleCommand final : public IConsoleCommand
	{
	public:
		TConsoleCommand(const TCHAR* InHelp, const DelegateType& InDelegate, uint32 InFlags)
			: Help(InHelp)
			, Flags(EConsoleVariableFlags(InFlags))
			, Delegate(InDelegate)
		{
		}

		virtual const TCHAR* GetHelp() const override { return *Help; }
		virtual void SetHelp(const TCHAR* Value) override { Help = Value; }
		virtual EConsoleVariableFlags GetFlags() const override { return Flags; }
		virtual void SetFlags(EConsoleVariableFlags Value) override { Flags = Value; }

		virtual bool Execute(const TArray<FString>& Args, UWorld*, FOutputDevice& OutputDevice) override
		{
			// The command may unregister itself.
			const DelegateType Called = Delegate;
			if constexpr (std::is_same_v<DelegateType, FConsoleCommandDelegate>)
			{
				return Called.ExecuteIfBound();
			}
			else if constexpr (std::is_same_v<DelegateType, FConsoleCommandWithArgsDelegate>)
			{
				return Called.ExecuteIfBound(Args);
			}
			else
			{
				return Called.ExecuteIfBound(Args, OutputDevice);
			}
		}

	private:
		FString Help;
		EConsoleVariableFlags Flags;
		DelegateType Delegate;
	};

	/** Alphabetical, without regard to case. */
	struct FNameOrder
	{
		bool operator()(const FString& A, const FString& B) const { return A.Compare(B, ESearchCase::IgnoreCase) < 0; }
	};

	/** What a variable gets when it is registered: its value from before it was unregistered, or from a configuration. */
	struct FKeptState
	{
		FString Value;
		EConsoleVariableFlags SetBy;
	};

	class FHostConsoleManager final : public IConsoleManager
	{
	public:
		FHostConsoleManager()
		{
			Host::RegisterStandardCommands(*this);
		}

		virtual IConsoleVariable* RegisterConsoleVariable(const TCHAR* Name, bool DefaultValue, const TCHAR* Help, uint32 Flags) override { return AddVariable<bool>(Name, Name, DefaultValue, Help, Flags); }
		virtual IConsoleVariable* RegisterConsoleVariable(const TCHAR* Name, int32 DefaultValue, const TCHAR* Help, uint32 Flags) override { return AddVariable<int32>(Name, Name, DefaultValue, Help, Flags); }
		virtual IConsoleVariable* RegisterConsoleVariable(const TCHAR* Name, float DefaultValue, const TCHAR* Help, uint32 Flags) override { return AddVariable<float>(Name, Name, DefaultValue, Help, Flags); }
		virtual IConsoleVariable* RegisterConsoleVariable(const TCHAR* Name, const TCHAR* DefaultValue, const TCHAR* Help, uint32 Flags) override { return AddVariable<FString>(Name, Name, FString(DefaultValue), Help, Flags); }
		virtual IConsoleVariable* RegisterConsoleVariable(const TCHAR* Name, const FString& DefaultValue, const TCHAR* Help, uint32 Flags) override { return AddVariable<FString>(Name, Name, DefaultValue, Help, Flags); }

		virtual IConsoleVariable* RegisterConsoleVariableRef(const TCHAR* Name, bool& RefValue, const TCHAR* Help, uint32 Flags) override { return AddVariable<bool>(Name, RefValue, Name, Help, Flags); }
		virtual IConsoleVariable* RegisterConsoleVariableRef(const TCHAR* Name, int32& RefValue, const TCHAR* Help, uint32 Flags) override { return AddVariable<int32>(Name, RefValue, Name, Help, Flags); }
		virtual IConsoleVariable* RegisterConsoleVariableRef(const TCHAR* Name, float& RefValue, const TCHAR* Help, uint32 Flags) override { return AddVariable<float>(Name, RefValue, Name, Help, Flags); }
		virtual IConsoleVariable* RegisterConsoleVariableRef(const TCHAR* Name, FString& RefValue, const TCHAR* Help, uint32 Flags) override { return AddVariable<FString>(Name, RefValue, Name, Help, Flags); }

		virtual IConsoleCommand* RegisterConsoleCommand(const TCHAR* Name, const TCHAR* Help, const FConsoleCommandDelegate& Command, uint32 Flags) override { return AddCommand(Name, Help, Command, Flags); }
		virtual IConsoleCommand* RegisterConsoleCommand(const TCHAR* Name, const TCHAR* Help, const FConsoleCommandWithArgsDelegate& Command, uint32 Flags) override { return AddCommand(Name, Help, Command, Flags); }
		virtual IConsoleCommand* RegisterConsoleCommand(const TCHAR* Name, const TCHAR* Help, const FConsoleCommandWithArgsAndOutputDeviceDelegate& Command, uint32 Flags) override { return AddCommand(Name, Help, Command, Flags); }

		virtual void UnregisterConsoleObject(IConsoleObject* Object, bool bKeepState) override
		{
			for (const auto& [Name, Registered] : Objects)
			{
				if (Registered.get() == Object)
				{
					UnregisterConsoleObject(*FString(Name), bKeepState);
					return;
				}
			}
		}

		virtual void UnregisterConsoleObject(const TCHAR* Name, bool bKeepState) override
		{
			const auto Found = Objects.find(Name);
			if (Found == Objects.end())
			{
				return;
			}
			IConsoleVariable* const Variable = Found->second->AsVariable();
			const auto SetBy = EConsoleVariableFlags(uint32(Found->second->GetFlags()) & ECVF_SetByMask);
			if (bKeepState && Variable != nullptr && SetBy != ECVF_SetByConstructor)
			{
				KeptStates[Name] = FKeptState{Variable->GetString(), SetBy};
			}
			Objects.erase(Found);
		}

		virtual IConsoleObject* FindConsoleObject(const TCHAR* Name, bool) const override
		{
			const auto Found = Objects.find(Name);
			return Found != Objects.end() ? Found->second.get() : nullptr;
		}

		virtual IConsoleVariable* FindConsoleVariable(const TCHAR* Name, bool bTrackFrequentCalls) const override
		{
			IConsoleObject* const Object = FindConsoleObject(Name, bTrackFrequentCalls);
			return Object != nullptr ? Object->AsVariable() : nullptr;
		}

		virtual void ForEachConsoleObjectThatStartsWith(const FConsoleObjectVisitor& Visitor, const TCHAR* ThatStartsWith) const override
		{
			Visit(Visitor, [&](const FString& Name) { return Name.StartsWith(ThatStartsWith, ESearchCase::IgnoreCase); });
		}

		virtual void ForEachConsoleObjectThatContains(const FConsoleObjectVisitor& Visitor, const TCHAR* ThatContains) const override
		{
			Visit(Visitor, [&](const FString& Name) { return Name.Contains(ThatContains, ESearchCase::IgnoreCase); });
		}

		/** Sets a variable now, or as soon as it is registered. False for the name of a command. */
		bool SetNowOrLater(const FString& Name, const FString& Value, EConsoleVariableFlags SetBy)
		{
			if (IConsoleObject* const Object = FindConsoleObject(*Name, false))
			{
				IConsoleVariable* const Variable = Object->AsVariable();
				if (Variable != nullptr)
				{
					Variable->Set(*Value, SetBy);
				}
				return Variable != nullptr;
			}
			const auto Kept = KeptStates.find(Name);
			if (Kept == KeptStates.end() || uint32(Kept->second.SetBy) <= uint32(SetBy))
			{
				KeptStates[Name] = FKeptState{Value, SetBy};
			}
			return true;
		}

		virtual bool ProcessUserConsoleInput(const TCHAR* Input, FOutputDevice& Ar, UWorld* InWorld) override
		{
			const TCHAR* Rest = Input;
			FString Name;
			if (!FParse::Token(Rest, Name, false))
			{
				return false;
			}
			const auto Found = Objects.find(Name);
			if (Found == Objects.end())
			{
				return false;
			}
			// As it was registered, whatever case was typed.
			Name = Found->first;
			IConsoleObject* const Object = Found->second.get();
			const FString Argument = FString(Rest).TrimStartAndEnd();
			if (Argument == TEXT("?"))
			{
				Ar.Logf(TEXT("%s: %s"), *Name, Object->GetHelp());
			}
			else if (IConsoleVariable* const Variable = Object->AsVariable())
			{
				ProcessVariable(*Name, *Variable, Argument, Ar);
			}
			else
			{
				RunCommand(*Name, *Object->AsCommand(), Rest, Ar, InWorld);
			}
			return true;
		}

	private:
		static void ProcessVariable(const TCHAR* Name, IConsoleVariable& Variable, const FString& Argument, FOutputDevice& Ar)
		{
			if (!Argument.IsEmpty())
			{
				if (Variable.TestFlags(ECVF_ReadOnly))
				{
					Ar.Logf(TEXT("%s is read only"), Name);
					return;
				}
				Variable.Set(*Argument.TrimQuotes(), ECVF_SetByConsole);
			}
			Ar.Logf(TEXT("%s = \"%s\"  LastSetBy: %s"), Name, *Variable.GetString(), GetConsoleVariableSetByName(Variable.GetFlags()));
		}

		static void RunCommand(const TCHAR* Name, IConsoleCommand& Command, const TCHAR* Arguments, FOutputDevice& Ar, UWorld* InWorld)
		{
			TArray<FString> Args;
			FString Word;
			while (FParse::Token(Arguments, Word, true))
			{
				Args.Add(Word);
			}
			if (!Command.Execute(Args, InWorld, Ar))
			{
				Ar.Logf(TEXT("%s: nothing is bound to this command"), Name);
			}
		}

		template <typename PredicateType>
		void Visit(const FConsoleObjectVisitor& Visitor, PredicateType Predicate) const
		{
			// A visitor may register and unregister.
			std::vector<FString> Names;
			for (const auto& [Name, Object] : Objects)
			{
				if (Predicate(Name))
				{
					Names.push_back(Name);
				}
			}
			for (const FString& Name : Names)
			{
				if (IConsoleObject* const Object = FindConsoleObject(*Name, false))
				{
					Visitor.ExecuteIfBound(*Name, Object);
				}
			}
		}

		template <typename T, typename FirstType, typename SecondType>
		IConsoleVariable* AddVariable(const TCHAR* Name, FirstType&& First, SecondType&& Second, const TCHAR* Help, uint32 Flags)
		{
			if (IConsoleObject* const Taken = FindConsoleObject(Name, false))
			{
				UE_LOG(LogCore, Warning, TEXT("The console name '%s' is registered twice"), Name);
				return Taken->AsVariable();
			}
			auto Variable = std::make_unique<Host::TConsoleVariable<T>>(First, Second, Help, Flags);
			IConsoleVariable* const Registered = Variable.get();
			Objects[Name] = std::move(Variable);
			if (const auto Kept = KeptStates.find(Name); Kept != KeptStates.end())
			{
				const FKeptState State = Kept->second;
				KeptStates.erase(Kept);
				Registered->Set(*State.Value, State.SetBy);
			}
			return Registered;
		}

		template <typename DelegateType>
		IConsoleCommand* AddCommand(const TCHAR* Name, const TCHAR* Help, const DelegateType& Command, uint32 Flags)
		{
			if (FindConsoleObject(Name, false) != nullptr)
			{
				UE_LOG(LogCore, Warning, TEXT("The console name '%s' is registered twice"), Name);
				return nullptr;
			}
			auto Object = std::make_unique<TConsoleCommand<DelegateType>>(Help, Command, Flags);
			IConsoleCommand* const Registered = Object.get();
			Objects[Name] = std::move(Object);
			return Registered;
		}

		std::map<FString, std::unique_ptr<IConsoleObject>, FNameOrder> Objects;
		std::map<FString, FKeptState, FNameOrder> KeptStates;
	};

	FHostConsoleManager& GetManager()
	{
		// Never destroyed: variables that unregister themselves are globals of every module.
		static FHostConsoleManager& Manager = *new FHostConsoleManager;
		return Manager;
	}
}

IConsoleManager& IConsoleManager::Get()
{
	return GetManager();
}

void Host::ApplyConsoleVariables(const TCHAR* Section, const FString& Name, EConsoleVariableFlags SetBy)
{
	TArray<FString> Lines;
	GConfig->GetSection(Section, Lines, Name);
	for (const FString& Line : Lines)
	{
		FString Variable;
		FString Value;
		Line.Split(TEXT("="), &Variable, &Value);
		if (!GetManager().SetNowOrLater(Variable, Value, SetBy))
		{
			UE_LOG(LogCore, Warning, TEXT("[%s] of the configuration %s: '%s' is a command, not a variable"), Section, *Name, *Variable);
		}
	}
}
