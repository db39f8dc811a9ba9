#include "VirtualScreen.h"

#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstdint>
#include <cstdlib>
#include <fstream>

FVirtualScreen::FVirtualScreen(int Width, int Height)
{
	std::string Pattern = (std::filesystem::temp_directory_path() / "screen-XXXXXX").string();
	int Number[2] = {};
	if (!mkdtemp(Pattern.data()) || pipe(Number) != 0)
	{
		return;
	}
	Folder = Pattern;
	const std::string Size = std::to_string(Width) + "x" + std::to_string(Height) + "x24";
	const std::string NumberEnd = std::to_string(Number[1]);
	Process = fork();
	if (Process == 0)
	{
		close(Number[0]);
		(void)!freopen("/dev/null", "w", stderr);
		execlp("Xvfb", "Xvfb", "-displayfd", NumberEnd.c_str(), "-screen", "0", Size.c_str(), "-fbdir", Pattern.c_str(), "-nolisten", "tcp", static_cast<char*>(nullptr));
		_exit(127);
	}
	close(Number[1]);
	// It tells its number when it is ready, or nothing.
	std::string Digits;
	for (char Digit = 0; read(Number[0], &Digit, 1) == 1 && Digit != '\n';)
	{
		Digits += Digit;
	}
	close(Number[0]);
	Display = Digits.empty() ? "" : ":" + Digits;
}

FVirtualScreen::~FVirtualScreen()
{
	if (Process != 0)
	{
		kill(Process, SIGTERM);
		waitpid(Process, nullptr, 0);
	}
	std::filesystem::remove_all(Folder);
}

std::string FVirtualScreen::FindRectangle(unsigned Colour) const
{
	// An X window dump: numbers with the high byte first, the window's name, colours, then rows of pixels, four bytes each.
	std::ifstream Stream(Folder / "Xvfb_screen0", std::ios::binary);
	const std::string File((std::istreambuf_iterator<char>(Stream)), std::istreambuf_iterator<char>());
	const auto GetNumber = [&File](size_t Index)
	{
		uint32_t Number = 0;
		for (size_t Byte = 0; Byte < 4; ++Byte)
		{
			Number = Number << 8 | static_cast<unsigned char>(File[Index * 4 + Byte]);
		}
		return Number;
	};
	constexpr size_t NumHeaderNumbers = 25;
	if (File.size() < NumHeaderNumbers * 4)
	{
		return "nowhere";
	}
	const size_t Width = GetNumber(4);
	const size_t Height = GetNumber(5);
	const size_t BytesPerLine = GetNumber(12);
	const size_t Start = GetNumber(0) + GetNumber(19) * 12;
	size_t Left = Width;
	size_t Right = 0;
	size_t Top = Height;
	size_t Bottom = 0;
	size_t Count = 0;
	for (size_t Y = 0; Y < Height && Start + (Y + 1) * BytesPerLine <= File.size(); ++Y)
	{
		for (size_t X = 0; X < Width; ++X)
		{
			const size_t Place = Start + Y * BytesPerLine + X * 4;
			const auto GetByte = [&](size_t Byte) { return unsigned(static_cast<unsigned char>(File[Place + Byte])); };
			if ((GetByte(2) << 16 | GetByte(1) << 8 | GetByte(0)) == Colour)
			{
				++Count;
				Left = std::min(Left, X);
				Right = std::max(Right, X + 1);
				Top = std::min(Top, Y);
				Bottom = std::max(Bottom, Y + 1);
			}
		}
	}
	if (Count == 0)
	{
		return "nowhere";
	}
	if (Count != (Right - Left) * (Bottom - Top))
	{
		return "scattered";
	}
	return std::to_string(Right - Left) + "x" + std::to_string(Bottom - Top) + " at " + std::to_string(Left) + ", " + std::to_string(Top);
}
