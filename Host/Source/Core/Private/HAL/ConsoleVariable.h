#pragma once

#include "HAL/IConsoleManager.h"

namespace Host
{
	/** What variables of every type share: help, flags, listeners, and who may set them. */
	class FConsoleVariableBase : public IConsoleVariable
	{
	public:
		FConsoleVariableBase(const TCHAR* InName, const TCHAR* InHelp, uint32 InFlags);

		virtual const TCHAR* GetHelp() const override { return *Help; }
		virtual void SetHelp(const TCHAR* Value) override { Help = Value; }
		virtual EConsoleVariableFlags GetFlags() const override { return Flags; }
		virtual void SetFlags(EConsoleVariableFlags Value) override { Flags = Value; }
		virtual void Set(const TCHAR* InValue, EConsoleVariableFlags SetBy) override;
		virtual void SetOnChangedCallback(const FConsoleVariableDelegate& Callback) override { OnChanged = Callback; }
		virtual FConsoleVariableMulticastDelegate& OnChangedDelegate() override { return OnChangedMulticast; }

	protected:
		/** Takes the value from text. Returns false, leaving it alone, when the text is no such value. */
		virtual bool Read(const TCHAR* Text) = 0;
		/** "a number": what Read takes. */
		virtual const TCHAR* DescribeType() const = 0;

	private:
		const FString Name;
		FString Help;
		EConsoleVariableFlags Flags;
		FConsoleVariableDelegate OnChanged;
		FConsoleVariableMulticastDelegate OnChangedMulticast;
	};

	/** A variable over its own value or over one that lives elsewhere. */
	template <typename T>
	class TConsoleVariable final : public FConsoleVariableBase
	{
	public:
		/** Over its own value. */
		TConsoleVariable(const TCHAR* InName, const T& InDefault, const TCHAR* InHelp, uint32 InFlags)
			: FConsoleVariableBase(InName, InHelp, InFlags)
			, Own(InDefault)
			, Value(Own)
			, Default(InDefault)
		{
		}

		/** Over a value elsewhere. */
		TConsoleVariable(T& InValue, const TCHAR* InName, const TCHAR* InHelp, uint32 InFlags)
			: FConsoleVariableBase(InName, InHelp, InFlags)
			, Own()
			, Value(InValue)
			, Default(InValue)
		{
		}

		virtual bool GetBool() const override;
		virtual int32 GetInt() const override;
		virtual float GetFloat() const override;
		virtual FString GetString() const override { return ToText(Value); }
		virtual FString GetDefaultValue() const override { return ToText(Default); }
		virtual bool IsVariableBool() const override { return std::is_same_v<T, bool>; }
		virtual bool IsVariableInt() const override { return std::is_same_v<T, int32>; }
		virtual bool IsVariableFloat() const override { return std::is_same_v<T, float>; }
		virtual bool IsVariableString() const override { return std::is_same_v<T, FString>; }

	protected:
		virtual bool Read(const TCHAR* Text) override;
		virtual const TCHAR* DescribeType() const override;

	private:
		static FString ToText(const T& Value);

		T Own;
		T& Value;
		const T Default;
	};
}
