#include "HAL/ConsoleVariable.h"

#include "Logging/LogMacros.h"

const TCHAR* GetConsoleVariableSetByName(EConsoleVariableFlags InSetBy)
{
	switch (uint32(InSetBy) & ECVF_SetByMask)
	{
	case ECVF_SetByConstructor: return TEXT("Constructor");
	case ECVF_SetByScalability: return TEXT("Scalability");
	case ECVF_SetByGameSetting: return TEXT("GameSetting");
	case ECVF_SetByProjectSetting: return TEXT("ProjectSetting");
	case ECVF_SetBySystemSettingsIni: return TEXT("SystemSettingsIni");
	case ECVF_SetByDeviceProfile: return TEXT("DeviceProfile");
	case ECVF_SetByGameOverride: return TEXT("GameOverride");
	case ECVF_SetByConsoleVariablesIni: return TEXT("ConsoleVariablesIni");
	case ECVF_SetByCommandline: return TEXT("Commandline");
	case ECVF_SetByCode: return TEXT("Code");
	case ECVF_SetByConsole: return TEXT("Console");
	default: return TEXT("Unknown");
	}
}

void IConsoleVariable::Set(bool InValue, EConsoleVariableFlags SetBy)
{
	Set(InValue ? TEXT("1") : TEXT("0"), SetBy);
}

void IConsoleVariable::Set(int32 InValue, EConsoleVariableFlags SetBy)
{
	Set(*FString::FromInt(InValue), SetBy);
}

void IConsoleVariable::Set(float InValue, EConsoleVariableFlags SetBy)
{
	Set(*FString::SanitizeFloat(InValue), SetBy);
}

void IConsoleVariable::SetWithCurrentPriority(const TCHAR* InValue)
{
	Set(InValue, EConsoleVariableFlags(uint32(GetFlags()) & ECVF_SetByMask));
}

namespace Host
{
	FConsoleVariableBase::FConsoleVariableBase(const TCHAR* InName, const TCHAR* InHelp, uint32 InFlags)
		: Name(InName)
		, Help(InHelp)
		, Flags(EConsoleVariableFlags(InFlags & ~uint32(ECVF_SetByMask)))
	{
	}

	void FConsoleVariableBase::Set(const TCHAR* InValue, EConsoleVariableFlags SetBy)
	{
		const uint32 OldRank = uint32(Flags) & ECVF_SetByMask;
		const uint32 NewRank = uint32(SetBy) & ECVF_SetByMask;
		if (NewRank < OldRank)
		{
			UE_LOG(LogCore, Warning, TEXT("Setting the console variable '%s' to '%s' by '%s' was ignored: it was set by '%s', which ranks higher. It remains '%s'"),
				*Name, InValue, GetConsoleVariableSetByName(SetBy), GetConsoleVariableSetByName(Flags), *GetString());
			return;
		}
		if (!Read(InValue))
		{
			UE_LOG(LogCore, Warning, TEXT("Setting the console variable '%s' to '%s' by '%s' was ignored: expected %s. It remains '%s'"),
				*Name, InValue, GetConsoleVariableSetByName(SetBy), DescribeType(), *GetString());
			return;
		}
		Flags = EConsoleVariableFlags((uint32(Flags) & ~uint32(ECVF_SetByMask)) | NewRank);
		OnChanged.ExecuteIfBound(this);
		OnChangedMulticast.Broadcast(this);
	}

	namespace
	{
		/** Reads the words for true and false. Returns false for any other text. */
		bool ReadBoolWord(const FString& Text, bool& OutValue)
		{
			for (const TCHAR* const Word : {TEXT("true"), TEXT("yes"), TEXT("on")})
			{
				if (Text == Word)
				{
					OutValue = true;
					return true;
				}
			}
			for (const TCHAR* const Word : {TEXT("false"), TEXT("no"), TEXT("off")})
			{
				if (Text == Word)
				{
					OutValue = false;
					return true;
				}
			}
			return false;
		}

		template <typename NumberType>
		bool ReadNumber(const FString& Text, NumberType& OutValue)
		{
			bool bWord = false;
			if (ReadBoolWord(Text, bWord))
			{
				OutValue = NumberType(bWord ? 1 : 0);
				return true;
			}
			if (!Text.IsNumeric())
			{
				return false;
			}
			if constexpr (std::is_same_v<NumberType, bool>)
			{
				OutValue = FCString::Atod(*Text) != 0.0;
			}
			else if constexpr (std::is_same_v<NumberType, int32>)
			{
				OutValue = FCString::Atoi(*Text);
			}
			else
			{
				OutValue = FCString::Atof(*Text);
			}
			return true;
		}
	}

	template <typename T>
	bool TConsoleVariable<T>::Read(const TCHAR* Text)
	{
		if constexpr (std::is_same_v<T, FString>)
		{
			Value = Text;
			return true;
		}
		else
		{
			return ReadNumber(FString(Text).TrimStartAndEnd(), Value);
		}
	}

	template <typename T>
	const TCHAR* TConsoleVariable<T>::DescribeType() const
	{
		return std::is_same_v<T, bool> ? TEXT("true or false") : TEXT("a number");
	}

	template <typename T>
	FString TConsoleVariable<T>::ToText(const T& Shown)
	{
		if constexpr (std::is_same_v<T, bool>)
		{
			return Shown ? TEXT("true") : TEXT("false");
		}
		else if constexpr (std::is_same_v<T, int32>)
		{
			return FString::FromInt(Shown);
		}
		else if constexpr (std::is_same_v<T, float>)
		{
			return FString::SanitizeFloat(Shown);
		}
		else
		{
			return Shown;
		}
	}

	template <typename T>
	bool TConsoleVariable<T>::GetBool() const
	{
		if constexpr (std::is_same_v<T, FString>)
		{
			return Value.ToBool();
		}
		else
		{
			return Value != T(0);
		}
	}

	template <typename T>
	int32 TConsoleVariable<T>::GetInt() const
	{
		if constexpr (std::is_same_v<T, FString>)
		{
			return FCString::Atoi(*Value);
		}
		else
		{
			return int32(Value);
		}
	}

	template <typename T>
	float TConsoleVariable<T>::GetFloat() const
	{
		if constexpr (std::is_same_v<T, FString>)
		{
			return FCString::Atof(*Value);
		}
		else
		{
			return float(Value);
		}
	}

	template class TConsoleVariable<bool>;
	template class TConsoleVariable<int32>;
	template class TConsoleVariable<float>;
	template class TConsoleVariable<FString>;
}
