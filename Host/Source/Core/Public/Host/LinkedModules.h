#pragma once

class IModuleInterface;

namespace Host
{
	/** One module linked into this program. */
	struct FLinkedModule
	{
		/** Name of the module, as in its folder. */
		const char* Name;
		/** Registers the module's reflected types; null for a module without any. */
		void (*RegisterReflection)();
		/** Makes the module's interface; null for a module without start-up code. Defined by IMPLEMENT_MODULE. */
		IModuleInterface* (*Create)();
	};

	/** The modules linked into this program, lowest floor first. Defined by a source that the build writes for each program. */
	const FLinkedModule* GetLinkedModules(int& OutCount);
}
