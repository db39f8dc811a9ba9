#pragma once

#include <sys/types.h>

#include <filesystem>
#include <string>
#include <vector>

/** A display of its own, without anything on it, whose pixels lie in a file. */
class FVirtualScreen
{
public:
	FVirtualScreen(int Width, int Height);
	~FVirtualScreen();
	FVirtualScreen(const FVirtualScreen&) = delete;
	FVirtualScreen& operator=(const FVirtualScreen&) = delete;

	bool IsRunning() const { return !Display.empty(); }
	/** What programs know it by, such as ":5". */
	const std::string& GetDisplay() const { return Display; }

	/** "WxH at X, Y" of the pixels of a colour, 0xRRGGBB; "nowhere" without any, "scattered" when they fill no rectangle. */
	std::string FindRectangle(unsigned Colour) const;

private:
	std::filesystem::path Folder;
	std::string Display;
	pid_t Process = 0;
};
