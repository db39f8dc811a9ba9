#include "Diagnostics.h"

#include <algorithm>
#include <tuple>

namespace HeaderTool
{
	void FDiagnostics::Error(const FLocation& Location, const std::string& Message)
	{
		Messages.push_back({Location, Message});
	}

	std::string FDiagnostics::Format() const
	{
		const auto Key = [](const FMessage& Message)
		{
			return std::tie(Message.Location.File, Message.Location.Line, Message.Text);
		};
		std::vector<FMessage> Sorted = Messages;
		std::stable_sort(Sorted.begin(), Sorted.end(), [&](const FMessage& A, const FMessage& B) { return Key(A) < Key(B); });
		Sorted.erase(
			std::unique(Sorted.begin(), Sorted.end(), [&](const FMessage& A, const FMessage& B) { return Key(A) == Key(B); }),
			Sorted.end());
		std::string Result;
		for (const FMessage& Message : Sorted)
		{
			Result += Message.Location.File + ":" + std::to_string(Message.Location.Line) + ": error: " + Message.Text + "\n";
		}
		return Result;
	}
} // namespace HeaderTool
