#pragma once

#include "Host/ProjectService.h"

#include <string>

/** What the command line says. */
struct FServerOptions
{
	Host::FProjectServiceSettings Service;
	std::string Address = "127.0.0.1";
	/** 0 for any that is free. */
	uint16 Port = 8080;
	/** The user to add in place of serving; empty for none. */
	std::string NewUser;
};

/** What to do after the command line was read. */
enum class EServerStart : uint8
{
	Run,
	/** The answer was printed; the program ends well. */
	Done,
	/** The command line is wrong, which was said in one line. */
	Refused,
};

/** Reads the command line; prints help, version, or what is wrong. */
EServerStart ReadServerOptions(int ArgumentCount, char** Arguments, FServerOptions& OutOptions);
