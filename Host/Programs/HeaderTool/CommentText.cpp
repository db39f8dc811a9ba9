#include "CommentText.h"

#include <vector>

namespace HeaderTool
{
	static std::string_view Trim(std::string_view Text)
	{
		const size_t First = Text.find_first_not_of(" \t\r\n");
		if (First == std::string_view::npos)
		{
			return {};
		}
		return Text.substr(First, Text.find_last_not_of(" \t\r\n") - First + 1);
	}

	static std::string_view StripLine(std::string_view Line, bool bFirst, bool bLast)
	{
		Line = Trim(Line);
		const bool bLineComment = Line.starts_with("//");
		if (bLineComment || (bFirst && Line.starts_with("/*")))
		{
			Line.remove_prefix(2);
		}
		if (bLast && !bLineComment && Line.ends_with("*/"))
		{
			Line.remove_suffix(2);
		}
		// Further marks: the second asterisk of a documentation comment, the asterisks down its side, "///" and "<".
		while (!Line.empty() && (Line.front() == '*' || Line.front() == '/'))
		{
			Line.remove_prefix(1);
		}
		while (bLast && !Line.empty() && Line.back() == '*')
		{
			Line.remove_suffix(1);
		}
		return Trim(Line);
	}

	std::string StripCommentMarks(std::string_view Comment)
	{
		std::vector<std::string_view> Lines;
		size_t Start = 0;
		while (Start <= Comment.size())
		{
			const size_t End = std::min(Comment.find('\n', Start), Comment.size());
			const std::string_view Line = Comment.substr(Start, End - Start);
			Lines.push_back(StripLine(Line, Start == 0, End == Comment.size()));
			Start = End + 1;
		}
		while (!Lines.empty() && Lines.front().empty())
		{
			Lines.erase(Lines.begin());
		}
		while (!Lines.empty() && Lines.back().empty())
		{
			Lines.pop_back();
		}
		std::string Result;
		for (const std::string_view Line : Lines)
		{
			Result += (Result.empty() ? "" : "\n") + std::string(Line);
		}
		return Result;
	}
} // namespace HeaderTool
