#pragma once

#include <map>
#include <string>
#include <vector>

/** Runs the real program over headers that a test writes into a folder of its own. */
class FToolRun
{
public:
	FToolRun();
	~FToolRun();
	FToolRun(const FToolRun&) = delete;
	FToolRun& operator=(const FToolRun&) = delete;

	/** Writes a header "<Name>.h". Text is the whole of it. */
	void AddHeader(const std::string& Name, const std::string& Text);

	/** Writes a header with the customary includes ahead of the body, its generated one last. */
	void AddBody(const std::string& Name, const std::string& Body);

	/** Runs the tool over all headers. Returns the exit code. */
	int Run();

	/** What the run printed. */
	const std::string& GetMessages() const { return Messages; }

	/** The messages about one header, without its path: "12: error: ...". */
	std::vector<std::string> GetMessagesOf(const std::string& Name) const;

	/** A written file; empty when there is none. */
	std::string ReadOutput(const std::string& FileName) const;
	std::string GetOutputPath(const std::string& FileName) const { return Dir + "/Out/" + FileName; }
	std::string GetHeaderPath(const std::string& Name) const { return Dir + "/Public/" + Name + ".h"; }

	/** Number of lines that AddBody puts ahead of the body. */
	static constexpr int NumPrologueLines = 9;

private:
	std::string Dir;
	std::vector<std::string> Headers;
	std::string Messages;
};
