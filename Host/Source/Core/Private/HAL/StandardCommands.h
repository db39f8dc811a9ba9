#pragma once

class IConsoleManager;

namespace Host
{
	/** Registers the commands that every program has: Help, DumpConsoleCommands, Log. */
	void RegisterStandardCommands(IConsoleManager& Manager);
}
