#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace HeaderTool
{
	/** A condition of the preprocessor that holds at some line. */
	struct FConditional
	{
		/** What follows #if, #ifdef and so on, blanks normalised; "!(...)" for an #else branch. */
		std::string Expression;
		unsigned Line = 0;
	};

	/** One #include line. */
	struct FInclude
	{
		std::string Path;
		unsigned Line = 0;
	};

	/** The text of a header, with what the syntax tree does not keep: comments, macro arguments, conditions, includes. */
	class FSourceFile
	{
	public:
		FSourceFile(std::string InPath, std::string InText);

		const std::string& GetPath() const { return Path; }
		std::string_view GetText() const { return Text; }

		/** Line of an offset, from 1. */
		unsigned GetLine(size_t Offset) const;

		/** The identifier that stands at an offset; empty when there is none. */
		std::string_view GetIdentifierAt(size_t Offset) const;

		/**
		 * What stands between the parentheses of the macro call at an offset. OutOffset is where it starts, OutEnd the offset
		 * behind the closing parenthesis. False when there is no complete call.
		 */
		bool GetMacroArguments(size_t Offset, std::string_view& OutArguments, size_t& OutOffset, size_t& OutEnd) const;

		/** The comment that ends right above (or on the line of) an offset, without its marks; empty when there is none. */
		std::string GetCommentBefore(size_t Offset) const;

		/** Conditions around a line, outermost first, without the include guard. */
		std::vector<FConditional> GetConditionals(unsigned Line) const;

		const std::vector<FInclude>& GetIncludes() const { return Includes; }

		/** Offset of the first character at or after Offset that is neither blank nor comment; the size of the text at its end.
		 */
		size_t SkipBlank(size_t Offset) const;

	private:
		struct FBranch
		{
			FConditional Conditional;
			unsigned FirstLine;
			unsigned LastLine;
		};

		struct FComment
		{
			size_t Begin;
			size_t End;
		};

		void Scan();
		void ScanDirective(size_t Begin, size_t End, std::vector<FBranch>& Open);

		std::string Path;
		std::string Text;
		std::vector<size_t> LineStarts;
		std::vector<FInclude> Includes;
		std::vector<FBranch> Branches;
		std::vector<FComment> Comments;
	};

	/** Offset behind the string, character literal or comment that starts at Offset; Offset itself when none does. */
	size_t SkipLiteralOrComment(std::string_view Text, size_t Offset);

	/** Arguments of a macro call: parts between commas outside of parentheses, without blanks at the ends. */
	std::vector<std::string> SplitMacroArguments(std::string_view Text);
} // namespace HeaderTool
