#include "DefaultArgument.h"

#include <algorithm>
#include <charconv>
#include <cctype>
#include <optional>
#include <span>

namespace HeaderTool
{
	static std::string Trim(std::string_view Text)
	{
		const size_t First = Text.find_first_not_of(" \t\r\n");
		return First == std::string_view::npos ? std::string()
											   : std::string(Text.substr(First, Text.find_last_not_of(" \t\r\n") - First + 1));
	}

	static std::optional<std::string> ReadNumber(std::string Text)
	{
		const bool bHex = Text.starts_with("0x") || Text.starts_with("0X");
		while (!Text.empty() && std::string_view(bHex ? "uUlL" : "fFuUlL").find(Text.back()) != std::string_view::npos)
		{
			Text.pop_back();
		}
		std::erase(Text, '\'');
		if (bHex)
		{
			uint64_t Value = 0;
			const auto [End, Error] = std::from_chars(Text.data() + 2, Text.data() + Text.size(), Value, 16);
			return Error == std::errc() && End == Text.data() + Text.size() ? std::optional(std::to_string(Value)) : std::nullopt;
		}
		double Value = 0;
		const char* Start = Text.data() + (Text.starts_with("+") ? 1 : 0);
		const auto [End, Error] = std::from_chars(Start, Text.data() + Text.size(), Value);
		if (Text.empty() || Error != std::errc() || End != Text.data() + Text.size())
		{
			return std::nullopt;
		}
		return std::string(Start, End);
	}

	/** Content of TEXT("..."), "..." or FName/FText/FString("..."). */
	static std::optional<std::string> ReadText(std::string Text)
	{
		static constexpr std::string_view Wrappers[] = {"TEXT", "FName", "FString", "FText::FromString", "INVTEXT"};
		for (bool bUnwrapped = true; bUnwrapped;)
		{
			bUnwrapped = false;
			for (const std::string_view Wrapper : Wrappers)
			{
				if (Text.starts_with(Wrapper) && Text.size() > Wrapper.size() + 1 && Text[Wrapper.size()] == '(' &&
					Text.back() == ')')
				{
					Text = Trim(std::string_view(Text).substr(Wrapper.size() + 1, Text.size() - Wrapper.size() - 2));
					bUnwrapped = true;
				}
			}
		}
		const bool bLiteral = Text.size() >= 2 && Text.front() == '"' && SkipLiteralOrComment(Text, 0) == Text.size();
		if (!bLiteral)
		{
			return std::nullopt;
		}
		std::string Result;
		for (size_t Index = 1; Index + 1 < Text.size(); ++Index)
		{
			const bool bEscape = Text[Index] == '\\' && Index + 2 < Text.size();
			Index += bEscape ? 1 : 0;
			Result += bEscape && Text[Index] == 'n' ? '\n' : bEscape && Text[Index] == 't' ? '\t' : Text[Index];
		}
		return Result;
	}

	struct FMathType
	{
		std::string_view Name;
		std::string_view Members[4];
		int NumMembers;
		/** Value of a last member that the constructor may leave out. */
		std::string_view LastDefault;
	};

	static constexpr FMathType MathTypes[] = {
		{"FVector2D", {"X", "Y"}, 2, ""},
		{"FVector", {"X", "Y", "Z"}, 3, ""},
		{"FVector4", {"X", "Y", "Z", "W"}, 4, "1.0"},
		{"FLinearColor", {"R", "G", "B", "A"}, 4, "1.0"},
		{"FColor", {"R", "G", "B", "A"}, 4, "255"},
		{"FIntPoint", {"X", "Y"}, 2, ""},
		{"FRotator", {"Pitch", "Yaw", "Roll"}, 3, ""},
	};

	struct FMathConstant
	{
		std::string_view Name;
		std::string_view Text;
	};

	static constexpr FMathConstant MathConstants[] = {
		{"FVector2D::ZeroVector", "(X=0.0,Y=0.0)"},
		{"FVector2D::UnitVector", "(X=1.0,Y=1.0)"},
		{"FVector::ZeroVector", "(X=0.0,Y=0.0,Z=0.0)"},
		{"FVector::OneVector", "(X=1.0,Y=1.0,Z=1.0)"},
		{"FVector::UpVector", "(X=0.0,Y=0.0,Z=1.0)"},
		{"FVector::ForwardVector", "(X=1.0,Y=0.0,Z=0.0)"},
		{"FLinearColor::White", "(R=1.0,G=1.0,B=1.0,A=1.0)"},
		{"FLinearColor::Black", "(R=0.0,G=0.0,B=0.0,A=1.0)"},
		{"FLinearColor::Transparent", "(R=0.0,G=0.0,B=0.0,A=0.0)"},
		{"FLinearColor::Red", "(R=1.0,G=0.0,B=0.0,A=1.0)"},
		{"FLinearColor::Green", "(R=0.0,G=1.0,B=0.0,A=1.0)"},
		{"FLinearColor::Blue", "(R=0.0,G=0.0,B=1.0,A=1.0)"},
		{"FColor::White", "(R=255,G=255,B=255,A=255)"},
		{"FColor::Black", "(R=0,G=0,B=0,A=255)"},
		{"FColor::Transparent", "(R=0,G=0,B=0,A=0)"},
		{"FIntPoint::ZeroValue", "(X=0,Y=0)"},
		{"FRotator::ZeroRotator", "(Pitch=0.0,Yaw=0.0,Roll=0.0)"},
	};

	static std::optional<std::string> ReadMathConstructor(const std::string& Text, const FMathType& Type)
	{
		const bool bForm =
			Text.starts_with(Type.Name) && Text.size() > Type.Name.size() + 1 &&
			((Text[Type.Name.size()] == '(' && Text.back() == ')') || (Text[Type.Name.size()] == '{' && Text.back() == '}'));
		if (!bForm)
		{
			return std::nullopt;
		}
		std::vector<std::string> Values;
		const std::string_view Arguments =
			std::string_view(Text).substr(Type.Name.size() + 1, Text.size() - Type.Name.size() - 2);
		size_t Start = 0;
		while (Start <= Arguments.size() && !Trim(Arguments).empty())
		{
			const size_t End = std::min(Arguments.find(',', Start), Arguments.size());
			const std::optional<std::string> Number = ReadNumber(Trim(Arguments.substr(Start, End - Start)));
			if (!Number)
			{
				return std::nullopt;
			}
			Values.push_back(*Number);
			Start = End + 1;
		}
		const size_t Wanted = static_cast<size_t>(Type.NumMembers);
		if (Values.size() == 1)
		{
			// One number fills all members.
			Values.resize(Wanted, Values[0]);
		}
		if (Values.size() + 1 == Wanted && !Type.LastDefault.empty())
		{
			Values.emplace_back(Type.LastDefault);
		}
		if (Values.size() != Wanted)
		{
			return std::nullopt;
		}
		std::string Result = "(";
		for (size_t Index = 0; Index < Wanted; ++Index)
		{
			Result += (Index > 0 ? "," : "") + std::string(Type.Members[Index]) + "=" + Values[Index];
		}
		return Result + ")";
	}

	static std::optional<std::string> ReadMath(const std::string& Text)
	{
		for (const FMathConstant& Constant : MathConstants)
		{
			if (Constant.Name == Text)
			{
				return std::string(Constant.Text);
			}
		}
		for (const FMathType& Type : MathTypes)
		{
			if (std::optional<std::string> Result = ReadMathConstructor(Text, Type))
			{
				return Result;
			}
		}
		return std::nullopt;
	}

	static bool IsQualifiedName(const std::string& Text)
	{
		return !Text.empty() && !std::isdigit(static_cast<unsigned char>(Text[0])) &&
			   std::all_of(Text.begin(), Text.end(),
				   [](unsigned char Character) { return std::isalnum(Character) || Character == '_' || Character == ':'; });
	}

	static std::optional<std::string> Convert(const FParameter& Parameter, const std::string& Text)
	{
		switch (Parameter.Type.Kind)
		{
		case ETypeKind::Bool:
			return Text == "true" || Text == "false" ? std::optional(Text) : std::nullopt;
		case ETypeKind::PlainEnum:
		case ETypeKind::EnumAsByte:
		case ETypeKind::EnumClass:
			return IsQualifiedName(Text)
					   ? std::optional(Text.substr(Text.rfind(':') == std::string::npos ? 0 : Text.rfind(':') + 1))
					   : std::nullopt;
		case ETypeKind::String:
			return Text == "FString()" || Text == "{}" ? std::optional(std::string()) : ReadText(Text);
		case ETypeKind::Name:
			return Text == "NAME_None" || Text == "FName()" || Text == "{}" ? std::optional(std::string("None")) : ReadText(Text);
		case ETypeKind::Text:
			return Text == "FText()" || Text == "FText::GetEmpty()" || Text == "{}" ? std::optional(std::string())
																					: ReadText(Text);
		case ETypeKind::Struct:
			return ReadMath(Text);
		case ETypeKind::Object:
		case ETypeKind::Class:
		case ETypeKind::SubclassOf:
		case ETypeKind::Interface:
		case ETypeKind::SoftObject:
		case ETypeKind::SoftClass:
		case ETypeKind::WeakObject:
			return Text == "nullptr" || Text == "NULL" || Text == "{}" ? std::optional(std::string("None")) : std::nullopt;
		case ETypeKind::Array:
		case ETypeKind::Set:
		case ETypeKind::Map:
		case ETypeKind::Delegate:
		case ETypeKind::MulticastDelegate:
			return std::nullopt;
		default:
			return Text == "INDEX_NONE" ? std::optional(std::string("-1")) : ReadNumber(Text);
		}
	}

	bool ConvertDefaultArgument(const FParameter& Parameter, std::string& OutText, std::string& OutComplaint)
	{
		if (const std::optional<std::string> Text = Convert(Parameter, Trim(Parameter.Default)))
		{
			OutText = *Text;
			return true;
		}
		OutComplaint =
			"the default argument '" + Parameter.Default + "' of '" + Parameter.Name +
			"' cannot be reflected: write a literal, an enumerator, nullptr, or a constructor of a maths type with numbers";
		return false;
	}
} // namespace HeaderTool
