#pragma once

#include <vector>

/** A header with one mistake. */
struct FRefusalCase
{
	/** Name of the header and of the test. */
	const char* Name;
	/** "//!" marks the line that the message must name. */
	const char* Text;
	/** The whole message. */
	const char* Message;
	/** Text is the whole header rather than what follows the includes. */
	bool bWholeHeader = false;
};

std::vector<FRefusalCase> GetFileRefusals();
std::vector<FRefusalCase> GetClassRefusals();
std::vector<FRefusalCase> GetStructRefusals();
std::vector<FRefusalCase> GetPropertyRefusals();
std::vector<FRefusalCase> GetFunctionRefusals();
std::vector<FRefusalCase> GetEventRefusals();
std::vector<FRefusalCase> GetDelegateRefusals();
std::vector<FRefusalCase> GetSpecifierRefusals();
