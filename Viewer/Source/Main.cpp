#include "Viewer.h"
#include "ViewerOptions.h"

#include <clocale>

namespace
{
	/** The exit code for a wrong command line. */
	constexpr int BadArguments = 2;
}

int main(int ArgumentCount, char** Arguments)
{
	std::setlocale(LC_CTYPE, "C.UTF-8");
	FViewerOptions Options;
	switch (ReadViewerOptions(ArgumentCount, Arguments, Options))
	{
	case EViewerStart::Done:
		return 0;
	case EViewerStart::Refused:
		return BadArguments;
	case EViewerStart::Run:
		break;
	}
	return FViewer(Options).Run();
}
