#pragma once

#include <string>
#include <vector>

namespace HeaderTool
{
	/** A place in a header. */
	struct FLocation
	{
		std::string File;
		/** From 1. */
		unsigned Line = 0;
	};

	/** Gathers messages, so that one run shows all that is wrong. */
	class FDiagnostics
	{
	public:
		/** What is wrong, and what to write instead. */
		void Error(const FLocation& Location, const std::string& Message);

		bool HasErrors() const { return !Messages.empty(); }

		/** All messages as "file:line: error: text", by file and line, each once. */
		std::string Format() const;

	private:
		struct FMessage
		{
			FLocation Location;
			std::string Text;
		};

		std::vector<FMessage> Messages;
	};
} // namespace HeaderTool
