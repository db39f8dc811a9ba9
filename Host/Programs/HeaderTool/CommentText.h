#pragma once

#include <string>
#include <string_view>

namespace HeaderTool
{
	/** The text of a comment: without slashes, asterisks and the indentation that goes with them. */
	std::string StripCommentMarks(std::string_view Comment);
} // namespace HeaderTool
