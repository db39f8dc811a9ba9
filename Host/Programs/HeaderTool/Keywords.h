#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace HeaderTool
{
	/** What a list of keywords belongs to. */
	enum class EMacro
	{
		Class,
		Interface,
		Struct,
		Enum,
		Property,
		Function,
		Delegate,
		Enumerator,
		Parameter,
	};

	/** Name of the macro, for messages. */
	const char* GetMacroName(EMacro Macro);

	/** True when the word is a specifier of the macro; spelling is case-insensitive. */
	bool IsSpecifier(EMacro Macro, std::string_view Word);

	/** The specifier that was probably meant; empty when none is near. */
	std::string SuggestSpecifier(EMacro Macro, std::string_view Word);

	/** True when the word is a metadata key of the engine. */
	bool IsMetadataKey(std::string_view Word);

	/**
	 * The metadata key that was probably meant; empty when none is near. Keys are open-ended: one that resembles nothing
	 * is somebody's own.
	 */
	std::string SuggestMetadataKey(std::string_view Word);
} // namespace HeaderTool
