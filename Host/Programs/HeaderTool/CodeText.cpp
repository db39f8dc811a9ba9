#include "CodeText.h"

#include <cstdio>

namespace HeaderTool
{
	/** Length of the UTF-8 sequence at Index; 0 when there is no valid one. */
	static size_t GetSequenceLength(std::string_view Text, size_t Index)
	{
		const unsigned char Lead = static_cast<unsigned char>(Text[Index]);
		const size_t Length = Lead < 0x80					? 1
							  : Lead >= 0xC2 && Lead < 0xE0 ? 2
							  : Lead >= 0xE0 && Lead < 0xF0 ? 3
							  : Lead >= 0xF0 && Lead < 0xF5 ? 4
															: 0;
		if (Length == 0 || Index + Length > Text.size())
		{
			return 0;
		}
		for (size_t Next = 1; Next < Length; ++Next)
		{
			if ((static_cast<unsigned char>(Text[Index + Next]) & 0xC0) != 0x80)
			{
				return 0;
			}
		}
		return Length;
	}

	std::string MakeLiteral(std::string_view Text)
	{
		std::string Result = "u\"";
		for (size_t Index = 0; Index < Text.size();)
		{
			const size_t Length = GetSequenceLength(Text, Index);
			const char Character = Text[Index];
			if (Length != 1)
			{
				Result += Length == 0 ? "?" : std::string(Text.substr(Index, Length));
				Index += Length == 0 ? 1 : Length;
				continue;
			}
			++Index;
			if (Character == '"' || Character == '\\')
			{
				Result += '\\';
				Result += Character;
			}
			else if (Character == '\n')
			{
				Result += "\\n";
			}
			else if (Character != '\r' && static_cast<unsigned char>(Character) < 0x20)
			{
				char Escape[8];
				std::snprintf(Escape, sizeof(Escape), "\\%03o", static_cast<unsigned>(static_cast<unsigned char>(Character)));
				Result += Escape;
			}
			else if (Character != '\r')
			{
				Result += Character;
			}
		}
		return Result + "\"";
	}

	std::string GetDeclaredType(const FType& Type)
	{
		return (Type.bConst ? "const " : "") + Type.Cpp + (Type.bReference ? "&" : "");
	}

	std::string GetStoredType(const FType& Type)
	{
		// Reflection keeps a plain enumeration in one byte.
		return Type.Kind == ETypeKind::PlainEnum ? "TEnumAsByte<" + Type.Cpp + ">" : Type.Cpp;
	}

	std::string GetParameterList(const FFunction& Function, bool bNamed)
	{
		std::string Result;
		for (const FParameter& Parameter : Function.Parameters)
		{
			Result += (Result.empty() ? "" : ", ") + GetDeclaredType(Parameter.Type) + (bNamed ? " " + Parameter.Name : "");
		}
		return Result;
	}

	std::string GetArgumentList(const FFunction& Function, const std::string& Prefix)
	{
		std::string Result;
		for (const FParameter& Parameter : Function.Parameters)
		{
			Result += (Result.empty() ? "" : ", ") + Prefix + Parameter.Name;
		}
		return Result;
	}

	bool HasResult(const FFunction& Function)
	{
		return Function.Result.Kind != ETypeKind::Void;
	}

	bool IsOutput(const FParameter& Parameter)
	{
		return Parameter.Type.bReference && !Parameter.Type.bConst;
	}
} // namespace HeaderTool
