#include "PasswordPrompt.h"

#include "Containers/StringConv.h"

#include <termios.h>
#include <unistd.h>

#include <cstdio>
#include <iostream>
#include <string>

namespace
{
	/** A terminal that does not show what is typed, until its end. */
	class FSilentTerminal
	{
	public:
		FSilentTerminal()
			: bSilent(isatty(STDIN_FILENO) && tcgetattr(STDIN_FILENO, &Before) == 0)
		{
			if (bSilent)
			{
				termios Silent = Before;
				Silent.c_lflag &= ~tcflag_t(ECHO);
				tcsetattr(STDIN_FILENO, TCSAFLUSH, &Silent);
			}
		}

		~FSilentTerminal()
		{
			if (bSilent)
			{
				tcsetattr(STDIN_FILENO, TCSAFLUSH, &Before);
			}
		}

		FSilentTerminal(const FSilentTerminal&) = delete;
		FSilentTerminal& operator=(const FSilentTerminal&) = delete;

		bool IsTerminal() const { return bSilent; }

	private:
		termios Before = {};
		bool bSilent;
	};

	bool ReadLine(bool bAsk, const char* Question, std::string& OutLine)
	{
		if (bAsk)
		{
			std::fputs(Question, stderr);
		}
		const bool bRead = bool(std::getline(std::cin, OutLine));
		if (bAsk)
		{
			std::fputc('\n', stderr);
		}
		return bRead;
	}
}

bool ReadPassword(FString& OutPassword, FString& OutReason)
{
	const FSilentTerminal Terminal;
	std::string First;
	std::string Second;
	if (!ReadLine(Terminal.IsTerminal(), "Password: ", First))
	{
		OutReason = TEXT("there is no password on the standard input");
		return false;
	}
	if (Terminal.IsTerminal() && (!ReadLine(true, "Again: ", Second) || First != Second))
	{
		OutReason = TEXT("the two passwords differ");
		return false;
	}
	OutPassword = UTF8_TO_TCHAR(First.c_str());
	return true;
}
