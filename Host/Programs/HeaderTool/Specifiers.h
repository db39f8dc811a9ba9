#pragma once

#include "Diagnostics.h"
#include "SourceFile.h"

#include <optional>

namespace HeaderTool
{
	/** One entry of a macro's arguments: Key, Key=Value or Key=(Entries). */
	struct FSpecifier
	{
		std::string Key;
		std::optional<std::string> Value;
		std::vector<FSpecifier> Entries;
		FLocation Location;
	};

	/** Arguments of a reflection macro; meta=(...) and top-level entries apart. */
	class FSpecifiers
	{
	public:
		std::vector<FSpecifier> Entries;
		std::vector<FSpecifier> Meta;

		/** Null when there is none of that name; names compare without case. */
		const FSpecifier* Find(std::string_view Key) const;
		const FSpecifier* FindMeta(std::string_view Key) const;
		bool Has(std::string_view Key) const { return Find(Key) != nullptr; }
		bool HasMeta(std::string_view Key) const { return FindMeta(Key) != nullptr; }
		/** Value of a metadata key; empty when it has none. */
		std::string GetMeta(std::string_view Key) const;
	};

	/** Reads the arguments of the macro at an offset; complains about what cannot be read. */
	FSpecifiers ReadSpecifiers(const FSourceFile& File, size_t MacroOffset, FDiagnostics& Diagnostics);

	bool EqualsIgnoreCase(std::string_view A, std::string_view B);

	/** The value as metadata: "true" for a bare key; entries in parentheses joined by blanks. */
	std::string GetValueText(const FSpecifier& Specifier);
} // namespace HeaderTool
