#include "Tool.h"

#include <cstdio>

int main(int ArgumentCount, char** Arguments)
{
	std::string Messages;
	const int Result = HeaderTool::Run(std::vector<std::string>(Arguments + 1, Arguments + ArgumentCount), Messages);
	std::fwrite(Messages.data(), 1, Messages.size(), stderr);
	return Result;
}
