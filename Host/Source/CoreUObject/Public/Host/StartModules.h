#pragma once

namespace Host
{
	/**
	 * Registers and starts the modules linked into the program, lowest first: their reflected types, the class default objects,
	 * then the modules themselves. Modules that were stopped are started again.
	 */
	COREUOBJECT_API void StartLinkedModules();
}
