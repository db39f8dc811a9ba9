#include "SourceFile.h"

#include "CommentText.h"

#include <algorithm>
#include <cctype>

namespace HeaderTool
{
	static bool IsIdentifierCharacter(char Character)
	{
		return std::isalnum(static_cast<unsigned char>(Character)) || Character == '_';
	}

	static bool IsBlank(char Character)
	{
		return std::isspace(static_cast<unsigned char>(Character)) != 0;
	}

	static size_t SkipQuoted(std::string_view Text, size_t Offset)
	{
		const char Quote = Text[Offset];
		for (size_t Index = Offset + 1; Index < Text.size(); ++Index)
		{
			if (Text[Index] == '\\')
			{
				++Index;
			}
			else if (Text[Index] == Quote || Text[Index] == '\n')
			{
				return Index + 1;
			}
		}
		return Text.size();
	}

	static size_t SkipRawString(std::string_view Text, size_t Quote)
	{
		const size_t Open = Text.find('(', Quote);
		if (Open == std::string_view::npos)
		{
			return Text.size();
		}
		const std::string Close = ")" + std::string(Text.substr(Quote + 1, Open - Quote - 1)) + "\"";
		const size_t End = Text.find(Close, Open);
		return End == std::string_view::npos ? Text.size() : End + Close.size();
	}

	size_t SkipLiteralOrComment(std::string_view Text, size_t Offset)
	{
		const char Character = Text[Offset];
		const char Next = Offset + 1 < Text.size() ? Text[Offset + 1] : '\0';
		if (Character == '/' && Next == '/')
		{
			return std::min(Text.find('\n', Offset), Text.size());
		}
		if (Character == '/' && Next == '*')
		{
			const size_t End = Text.find("*/", Offset + 2);
			return End == std::string_view::npos ? Text.size() : End + 2;
		}
		if (Character == '"')
		{
			const bool bRaw = Offset > 0 && Text[Offset - 1] == 'R';
			return bRaw ? SkipRawString(Text, Offset) : SkipQuoted(Text, Offset);
		}
		// An apostrophe inside a number separates digits.
		if (Character == '\'' && (Offset == 0 || !std::isalnum(static_cast<unsigned char>(Text[Offset - 1]))))
		{
			return SkipQuoted(Text, Offset);
		}
		return Offset;
	}

	FSourceFile::FSourceFile(std::string InPath, std::string InText)
		: Path(std::move(InPath))
		, Text(std::move(InText))
	{
		Scan();
	}

	void FSourceFile::Scan()
	{
		LineStarts.push_back(0);
		for (size_t Index = 0; Index < Text.size(); ++Index)
		{
			if (Text[Index] == '\n')
			{
				LineStarts.push_back(Index + 1);
			}
		}
		std::vector<FBranch> Open;
		bool bLineStart = true;
		for (size_t Index = 0; Index < Text.size();)
		{
			const char Character = Text[Index];
			if (bLineStart && Character == '#')
			{
				size_t End = Index;
				while (End < Text.size() && !(Text[End] == '\n' && Text[End - 1] != '\\'))
				{
					++End;
				}
				ScanDirective(Index, End, Open);
				Index = End;
				continue;
			}
			const size_t Skipped = SkipLiteralOrComment(Text, Index);
			if (Skipped > Index)
			{
				if (Character == '/')
				{
					Comments.push_back({Index, Skipped});
				}
				Index = Skipped;
				continue;
			}
			bLineStart = Character == '\n' || (bLineStart && IsBlank(Character));
			++Index;
		}
	}

	static std::string NormalizeBlanks(std::string_view Expression)
	{
		std::string Result;
		for (size_t Index = 0; Index < Expression.size(); ++Index)
		{
			const bool bComment = Expression[Index] == '/' && Index + 1 < Expression.size() &&
								  (Expression[Index + 1] == '/' || Expression[Index + 1] == '*');
			if (bComment)
			{
				break;
			}
			if (!IsBlank(Expression[Index]) && Expression[Index] != '\\')
			{
				Result += Expression[Index];
			}
			else if (!Result.empty() && Result.back() != ' ')
			{
				Result += ' ';
			}
		}
		while (!Result.empty() && Result.back() == ' ')
		{
			Result.pop_back();
		}
		return Result;
	}

	void FSourceFile::ScanDirective(size_t Begin, size_t End, std::vector<FBranch>& Open)
	{
		size_t Word = Begin + 1;
		while (Word < End && IsBlank(Text[Word]))
		{
			++Word;
		}
		size_t WordEnd = Word;
		while (WordEnd < End && IsIdentifierCharacter(Text[WordEnd]))
		{
			++WordEnd;
		}
		const std::string_view Directive = std::string_view(Text).substr(Word, WordEnd - Word);
		const std::string Rest = NormalizeBlanks(std::string_view(Text).substr(WordEnd, End - WordEnd));
		const unsigned Line = GetLine(Begin);
		if (Directive == "include")
		{
			const size_t First = Rest.find_first_of("\"<");
			const size_t Last = Rest.find_last_of("\">");
			if (First != std::string::npos && Last > First)
			{
				Includes.push_back({Rest.substr(First + 1, Last - First - 1), Line});
			}
		}
		else if (Directive == "if" || Directive == "ifdef" || Directive == "ifndef")
		{
			const std::string Prefix = Directive == "if" ? "" : Directive == "ifdef" ? "defined " : "!defined ";
			Open.push_back({{Prefix + Rest, Line}, Line, Line});
		}
		else if ((Directive == "else" || Directive == "elif" || Directive == "endif") && !Open.empty())
		{
			FBranch Branch = Open.back();
			Open.pop_back();
			Branch.LastLine = Line;
			Branches.push_back(Branch);
			if (Directive != "endif")
			{
				const std::string Expression = Directive == "else" ? "!(" + Branch.Conditional.Expression + ")" : Rest;
				Open.push_back({{Expression, Line}, Line, Line});
			}
		}
	}

	unsigned FSourceFile::GetLine(size_t Offset) const
	{
		const auto Next = std::upper_bound(LineStarts.begin(), LineStarts.end(), Offset);
		return static_cast<unsigned>(Next - LineStarts.begin());
	}

	std::string_view FSourceFile::GetIdentifierAt(size_t Offset) const
	{
		size_t End = Offset;
		while (End < Text.size() && IsIdentifierCharacter(Text[End]))
		{
			++End;
		}
		return Offset <= Text.size() ? std::string_view(Text).substr(Offset, End - Offset) : std::string_view();
	}

	bool FSourceFile::GetMacroArguments(size_t Offset, std::string_view& OutArguments, size_t& OutOffset, size_t& OutEnd) const
	{
		const size_t Open = SkipBlank(Offset + GetIdentifierAt(Offset).size());
		if (Open >= Text.size() || Text[Open] != '(')
		{
			return false;
		}
		int Depth = 0;
		for (size_t Index = Open; Index < Text.size();)
		{
			const size_t Skipped = SkipLiteralOrComment(Text, Index);
			if (Skipped > Index)
			{
				Index = Skipped;
				continue;
			}
			Depth += Text[Index] == '(' ? 1 : Text[Index] == ')' ? -1 : 0;
			++Index;
			if (Depth == 0)
			{
				OutOffset = Open + 1;
				OutEnd = Index;
				OutArguments = std::string_view(Text).substr(OutOffset, Index - 1 - OutOffset);
				return true;
			}
		}
		return false;
	}

	size_t FSourceFile::SkipBlank(size_t Offset) const
	{
		while (Offset < Text.size())
		{
			if (IsBlank(Text[Offset]))
			{
				++Offset;
				continue;
			}
			const size_t Skipped = Text[Offset] == '/' ? SkipLiteralOrComment(Text, Offset) : Offset;
			if (Skipped == Offset)
			{
				return Offset;
			}
			Offset = Skipped;
		}
		return Text.size();
	}

	std::string FSourceFile::GetCommentBefore(size_t Offset) const
	{
		const auto Behind = std::lower_bound(
			Comments.begin(), Comments.end(), Offset, [](const FComment& Comment, size_t Value) { return Comment.End <= Value; });
		size_t Index = static_cast<size_t>(Behind - Comments.begin());
		size_t Cursor = Offset;
		std::string Result;
		bool bLineComments = false;
		while (Index > 0)
		{
			const FComment& Comment = Comments[--Index];
			const std::string_view Gap = std::string_view(Text).substr(Comment.End, Cursor - Comment.End);
			const bool bBlankGap = std::all_of(Gap.begin(), Gap.end(), IsBlank);
			const auto NewLines = std::count(Gap.begin(), Gap.end(), '\n');
			const bool bLine = Text[Comment.Begin + 1] == '/';
			// A comment behind code on its line speaks of that code.
			const size_t LineStart = LineStarts[GetLine(Comment.Begin) - 1];
			const std::string_view Ahead = std::string_view(Text).substr(LineStart, Comment.Begin - LineStart);
			const bool bOwnLine = std::all_of(Ahead.begin(), Ahead.end(), IsBlank);
			if (!bBlankGap || NewLines > 1 || !bOwnLine || (bLineComments && !bLine))
			{
				break;
			}
			const std::string_view Raw = std::string_view(Text).substr(Comment.Begin, Comment.End - Comment.Begin);
			if (!bLine)
			{
				return StripCommentMarks(Raw);
			}
			bLineComments = true;
			Result = Result.empty() ? std::string(Raw) : std::string(Raw) + "\n" + Result;
			Cursor = Comment.Begin;
		}
		return StripCommentMarks(Result);
	}

	std::vector<FConditional> FSourceFile::GetConditionals(unsigned Line) const
	{
		std::vector<FConditional> Result;
		for (const FBranch& Branch : Branches)
		{
			if (Branch.FirstLine < Line && Line < Branch.LastLine)
			{
				Result.push_back(Branch.Conditional);
			}
		}
		std::sort(Result.begin(), Result.end(), [](const FConditional& A, const FConditional& B) { return A.Line < B.Line; });
		return Result;
	}

	std::vector<std::string> SplitMacroArguments(std::string_view Text)
	{
		std::vector<std::string> Result(1);
		int Depth = 0;
		for (size_t Index = 0; Index < Text.size();)
		{
			const size_t Skipped = SkipLiteralOrComment(Text, Index);
			if (Skipped > Index)
			{
				if (Text[Index] != '/')
				{
					Result.back() += Text.substr(Index, Skipped - Index);
				}
				Index = Skipped;
				continue;
			}
			const char Character = Text[Index++];
			Depth += Character == '(' ? 1 : Character == ')' ? -1 : 0;
			if (Character == ',' && Depth == 0)
			{
				Result.emplace_back();
			}
			else
			{
				Result.back() += Character;
			}
		}
		for (std::string& Argument : Result)
		{
			const size_t First = Argument.find_first_not_of(" \t\r\n\\");
			const size_t Last = Argument.find_last_not_of(" \t\r\n\\");
			Argument = First == std::string::npos ? std::string() : Argument.substr(First, Last - First + 1);
		}
		return Result;
	}
} // namespace HeaderTool
