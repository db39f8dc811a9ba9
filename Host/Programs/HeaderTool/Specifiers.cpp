#include "Specifiers.h"

#include <algorithm>
#include <cctype>

namespace HeaderTool
{
	bool EqualsIgnoreCase(std::string_view A, std::string_view B)
	{
		return std::equal(A.begin(), A.end(), B.begin(), B.end(),
			[](unsigned char Left, unsigned char Right) { return std::tolower(Left) == std::tolower(Right); });
	}

	static const FSpecifier* FindIn(const std::vector<FSpecifier>& Entries, std::string_view Key)
	{
		const auto Found = std::find_if(
			Entries.begin(), Entries.end(), [&](const FSpecifier& Entry) { return EqualsIgnoreCase(Entry.Key, Key); });
		return Found == Entries.end() ? nullptr : &*Found;
	}

	const FSpecifier* FSpecifiers::Find(std::string_view Key) const
	{
		return FindIn(Entries, Key);
	}

	const FSpecifier* FSpecifiers::FindMeta(std::string_view Key) const
	{
		return FindIn(Meta, Key);
	}

	std::string FSpecifiers::GetMeta(std::string_view Key) const
	{
		const FSpecifier* Entry = FindMeta(Key);
		return Entry && Entry->Value ? *Entry->Value : std::string();
	}

	std::string GetValueText(const FSpecifier& Specifier)
	{
		if (Specifier.Entries.empty())
		{
			return Specifier.Value.value_or("true");
		}
		std::string Result;
		for (const FSpecifier& Entry : Specifier.Entries)
		{
			Result += (Result.empty() ? "" : " ") + Entry.Key;
		}
		return Result;
	}

	namespace
	{
		/** Reads "Key, Key=Value, Key=(...)" from a part of a header. */
		class FReader
		{
		public:
			FReader(const FSourceFile& InFile, std::string_view InText, size_t InOffset, FDiagnostics& InDiagnostics)
				: File(InFile)
				, Text(InText)
				, Offset(InOffset)
				, Diagnostics(InDiagnostics)
			{
			}

			std::vector<FSpecifier> ReadList(bool bNested)
			{
				std::vector<FSpecifier> Result;
				Skip();
				while (Cursor < Text.size() && !(bNested && Text[Cursor] == ')'))
				{
					FSpecifier Entry;
					if (!ReadEntry(Entry))
					{
						return Result;
					}
					Result.push_back(std::move(Entry));
					Skip();
					if (Cursor < Text.size() && Text[Cursor] == ',')
					{
						++Cursor;
						Skip();
					}
					else if (Cursor < Text.size() && !(bNested && Text[Cursor] == ')'))
					{
						return Fail("expected ',' ahead of '" + std::string(Text.substr(Cursor, 1)) + "'"), Result;
					}
				}
				return Result;
			}

		private:
			bool ReadEntry(FSpecifier& Out)
			{
				Out.Location = {File.GetPath(), File.GetLine(Offset + Cursor)};
				if (!ReadKey(Out.Key))
				{
					Fail("expected a specifier, found '" + std::string(Text.substr(Cursor, 1)) + "'");
					return false;
				}
				Skip();
				if (Cursor >= Text.size() || Text[Cursor] != '=')
				{
					return true;
				}
				++Cursor;
				Skip();
				if (Cursor < Text.size() && Text[Cursor] == '(')
				{
					return ReadParenthesis(Out);
				}
				std::string Value;
				if (!ReadValue(Value))
				{
					Fail("expected a value behind '" + Out.Key + "='");
					return false;
				}
				Out.Value = std::move(Value);
				return true;
			}

			bool ReadParenthesis(FSpecifier& Out)
			{
				// Specifiers nest two deep; what is deeper is a mistake.
				if (++Depth > 4)
				{
					Fail("parentheses nest too deep");
					return false;
				}
				++Cursor;
				Out.Entries = ReadList(true);
				--Depth;
				if (Cursor >= Text.size() || Text[Cursor] != ')')
				{
					if (!bFailed)
					{
						Fail("expected ')' behind '" + Out.Key + "=('");
					}
					return false;
				}
				++Cursor;
				return true;
			}

			bool ReadKey(std::string& Out)
			{
				if (Cursor < Text.size() && Text[Cursor] == '"')
				{
					return ReadString(Out);
				}
				const size_t Start = Cursor;
				while (Cursor < Text.size() && (std::isalnum(static_cast<unsigned char>(Text[Cursor])) ||
												   std::string_view("_.:|/").find(Text[Cursor]) != std::string_view::npos))
				{
					++Cursor;
				}
				Out = Text.substr(Start, Cursor - Start);
				return !Out.empty();
			}

			bool ReadValue(std::string& Out)
			{
				if (Cursor < Text.size() && Text[Cursor] == '"')
				{
					return ReadString(Out);
				}
				const size_t Start = Cursor;
				while (Cursor < Text.size() && Text[Cursor] != ',' && Text[Cursor] != ')' && Text[Cursor] != '"')
				{
					++Cursor;
				}
				size_t End = Cursor;
				while (End > Start && std::isspace(static_cast<unsigned char>(Text[End - 1])))
				{
					--End;
				}
				Out = Text.substr(Start, End - Start);
				return !Out.empty();
			}

			/** One or more literals; neighbours join as in C++. */
			bool ReadString(std::string& Out)
			{
				while (Cursor < Text.size() && Text[Cursor] == '"')
				{
					const size_t End = SkipLiteralOrComment(Text, Cursor);
					if (End < Cursor + 2 || Text[End - 1] != '"')
					{
						return false;
					}
					AppendUnescaped(Text.substr(Cursor + 1, End - Cursor - 2), Out);
					Cursor = End;
					Skip();
				}
				return true;
			}

			static void AppendUnescaped(std::string_view Literal, std::string& Out)
			{
				for (size_t Index = 0; Index < Literal.size(); ++Index)
				{
					if (Literal[Index] != '\\' || Index + 1 == Literal.size())
					{
						Out += Literal[Index];
						continue;
					}
					const char Escape = Literal[++Index];
					Out += Escape == 'n' ? '\n' : Escape == 't' ? '\t' : Escape == 'r' ? '\r' : Escape;
				}
			}

			void Skip()
			{
				while (Cursor < Text.size())
				{
					const bool bComment = Text[Cursor] == '/' && SkipLiteralOrComment(Text, Cursor) > Cursor;
					if (bComment)
					{
						Cursor = SkipLiteralOrComment(Text, Cursor);
					}
					else if (std::isspace(static_cast<unsigned char>(Text[Cursor])) || Text[Cursor] == '\\')
					{
						++Cursor;
					}
					else
					{
						return;
					}
				}
			}

			void Fail(const std::string& Message)
			{
				bFailed = true;
				Diagnostics.Error({File.GetPath(), File.GetLine(Offset + std::min(Cursor, Text.size()))}, Message);
			}

			const FSourceFile& File;
			std::string_view Text;
			size_t Offset;
			FDiagnostics& Diagnostics;
			size_t Cursor = 0;
			int Depth = 0;
			bool bFailed = false;
		};
	} // namespace

	FSpecifiers ReadSpecifiers(const FSourceFile& File, size_t MacroOffset, FDiagnostics& Diagnostics)
	{
		FSpecifiers Result;
		std::string_view Arguments;
		size_t Offset = 0;
		size_t End = 0;
		if (!File.GetMacroArguments(MacroOffset, Arguments, Offset, End))
		{
			Diagnostics.Error({File.GetPath(), File.GetLine(MacroOffset)}, "the macro's parentheses are not closed");
			return Result;
		}
		for (FSpecifier& Entry : FReader(File, Arguments, Offset, Diagnostics).ReadList(false))
		{
			if (EqualsIgnoreCase(Entry.Key, "meta"))
			{
				std::move(Entry.Entries.begin(), Entry.Entries.end(), std::back_inserter(Result.Meta));
			}
			else
			{
				Result.Entries.push_back(std::move(Entry));
			}
		}
		return Result;
	}
} // namespace HeaderTool
