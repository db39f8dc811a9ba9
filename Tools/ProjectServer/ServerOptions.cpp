// First: it has functions whose name is an engine macro's.
#include <CLI/CLI.hpp>

#include "ServerOptions.h"

#include "Containers/StringConv.h"

#include <iostream>

#undef check

EServerStart ReadServerOptions(int ArgumentCount, char** Arguments, FServerOptions& OutOptions)
{
	CLI::App App("Serves the folder of a project over HTTP: its users sign in, and its files are given out.", "HalvexProjectServer");
	App.set_version_flag("--version", std::string("HalvexProjectServer " HALVEX_VERSION));
	App.failure_message([](const CLI::App*, const CLI::Error& Error) { return std::string("HalvexProjectServer: ") + Error.what() + " (--help lists the arguments)\n"; });

	std::string Folder;
	constexpr int LongestSeconds = 10 * 365 * 24 * 3600;
	App.add_option("--project", Folder, "Folder of the project")->type_name("FOLDER")->required()->check(CLI::ExistingDirectory);
	App.add_option("--bind", OutOptions.Address, "Address of this machine to listen on; all but the default can be reached from others, unencrypted")->type_name("ADDRESS")->capture_default_str();
	App.add_option("--port", OutOptions.Port, "Port to listen on, or 0 for any that is free, which is printed")->type_name("N")->capture_default_str();
	App.add_option("--token-seconds", OutOptions.Service.TokenSeconds, "How long a token is good for")->type_name("N")->capture_default_str()->check(CLI::Range(1, LongestSeconds));
	App.add_option("--refresh-seconds", OutOptions.Service.RefreshSeconds, "How long a remembered sign-in is good for")->type_name("N")->capture_default_str()->check(CLI::Range(1, LongestSeconds));
	App.add_flag("--keep-sessions", OutOptions.Service.bKeepSessions, "Keep remembered sign-ins, as hashes, beyond the end of the program");
	App.add_option("--add-user", OutOptions.NewUser, "Add a user to the project, with the password from the standard input, and end")->type_name("NAME");
	try
	{
		App.parse(ArgumentCount, Arguments);
	}
	catch (const CLI::ParseError& Error)
	{
		return App.exit(Error, std::cout, std::cerr) == 0 ? EServerStart::Done : EServerStart::Refused;
	}
	OutOptions.Service.Folder = UTF8_TO_TCHAR(Folder.c_str());
	return EServerStart::Run;
}
