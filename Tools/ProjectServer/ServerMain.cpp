// Serves the folder of a project over HTTP/1.1 until it is told to end (SIGTERM, SIGINT).

#include "Containers/StringConv.h"
#include "Host/ProjectUsers.h"
#include "HttpServer.h"
#include "PasswordPrompt.h"
#include "ServerOptions.h"

#include <clocale>
#include <csignal>
#include <cstdio>

namespace
{
	/** The exit code for a wrong command line. */
	constexpr int BadArguments = 2;

	int AddUser(const FServerOptions& Options)
	{
		FString Password;
		FString Reason;
		if (!ReadPassword(Password, Reason) || !Host::FProjectUsers::Add(Options.Service.Folder, UTF8_TO_TCHAR(Options.NewUser.c_str()), Password, Reason))
		{
			std::fprintf(stderr, "HalvexProjectServer: the user is not added: %s\n", TCHAR_TO_UTF8(*Reason));
			return 1;
		}
		std::printf("The user %s is added.\n", Options.NewUser.c_str());
		return 0;
	}

	int Serve(const FServerOptions& Options)
	{
		// Blocked in all threads, so that this one alone hears of them.
		sigset_t Ends;
		sigemptyset(&Ends);
		sigaddset(&Ends, SIGTERM);
		sigaddset(&Ends, SIGINT);
		pthread_sigmask(SIG_BLOCK, &Ends, nullptr);
		std::signal(SIGPIPE, SIG_IGN);

		Host::FProjectService Service(Options.Service);
		FHttpServer Server;
		std::string Reason;
		if (!Server.Start(Service, Options.Address, Options.Port, Reason))
		{
			std::fprintf(stderr, "HalvexProjectServer: %s\n", Reason.c_str());
			return 1;
		}
		std::printf("Serving %s on %s\n", TCHAR_TO_UTF8(*Options.Service.Folder), Server.GetUrl().c_str());
		std::fflush(stdout);
		int Signal = 0;
		sigwait(&Ends, &Signal);
		Server.Stop();
		std::printf("Ended.\n");
		return 0;
	}
}

int main(int ArgumentCount, char** Arguments)
{
	std::setlocale(LC_CTYPE, "C.UTF-8");
	FServerOptions Options;
	switch (ReadServerOptions(ArgumentCount, Arguments, Options))
	{
	case EServerStart::Done:
		return 0;
	case EServerStart::Refused:
		return BadArguments;
	case EServerStart::Run:
		break;
	}
	return Options.NewUser.empty() ? Serve(Options) : AddUser(Options);
}
