#include "ProjectFiles.h"

#include "Containers/StringConv.h"
#include "Host/ProjectUsers.h"
#include "Misc/Paths.h"
#include "ServiceLog.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <string>
#include <vector>

namespace
{
	/** Larger than any picture of a project. */
	constexpr off_t MaxFileBytes = 64 * 1024 * 1024;

	int ReadDigit(char Digit)
	{
		return Digit >= '0' && Digit <= '9' ? Digit - '0' : Digit >= 'a' && Digit <= 'f' ? Digit - 'a' + 10 : Digit >= 'A' && Digit <= 'F' ? Digit - 'A' + 10 : -1;
	}

	/** Puts bytes in place of percent codes. */
	bool Decode(const std::string& Text, std::string& OutText)
	{
		for (size_t Index = 0; Index < Text.size(); ++Index)
		{
			if (Text[Index] != '%')
			{
				OutText += Text[Index];
				continue;
			}
			const int High = Index + 2 < Text.size() ? ReadDigit(Text[Index + 1]) : -1;
			const int Low = Index + 2 < Text.size() ? ReadDigit(Text[Index + 2]) : -1;
			if (High < 0 || Low < 0)
			{
				return false;
			}
			OutText += char(High * 16 + Low);
			Index += 2;
		}
		return true;
	}

	/** Whether a name in a path may lead anywhere. */
	bool IsGivenOut(const std::string& Name)
	{
		if (Name.empty() || Name[0] == '.')
		{
			return false;
		}
		for (const char Byte : Name)
		{
			if (uint8(Byte) < 0x20 || Byte == 0x7F || Byte == '\\')
			{
				return false;
			}
		}
		// Also what lies beside it while it is written.
		return !FString(UTF8_TO_TCHAR(Name.c_str())).StartsWith(Host::FProjectUsers::FileName, ESearchCase::IgnoreCase);
	}

	std::vector<std::string> Split(const std::string& Path)
	{
		std::vector<std::string> Names;
		for (size_t Start = 1; Start <= Path.size();)
		{
			const size_t End = std::min(Path.find('/', Start), Path.size());
			Names.push_back(Path.substr(Start, End - Start));
			Start = End + 1;
		}
		return Names;
	}

	/** An open file or folder, closed at the end. */
	class FHandle
	{
	public:
		explicit FHandle(int InValue) : Value(InValue) {}
		~FHandle() { Reset(-1); }
		FHandle(const FHandle&) = delete;
		FHandle& operator=(const FHandle&) = delete;

		int Get() const { return Value; }
		void Reset(int NewValue)
		{
			if (Value >= 0)
			{
				close(Value);
			}
			Value = NewValue;
		}

	private:
		int Value;
	};

	bool ReadWhole(int File, TArray<uint8>& OutBytes)
	{
		int32 Count = 0;
		while (Count < OutBytes.Num())
		{
			const ssize_t Part = read(File, OutBytes.GetData() + Count, SIZE_T(OutBytes.Num() - Count));
			if (Part < 0 && errno != EINTR)
			{
				return false;
			}
			if (Part == 0)
			{
				break;
			}
			Count += Part > 0 ? int32(Part) : 0;
		}
		OutBytes.SetNum(Count);
		return true;
	}
}

Host::FProjectFiles::EFind Host::FProjectFiles::Read(const FString& Folder, const FString& Target, FString& OutName, TArray<uint8>& OutBytes)
{
	std::string Path;
	if (!Decode(TCHAR_TO_UTF8(*Target), Path))
	{
		return EFind::Malformed;
	}
	const std::vector<std::string> Names = Split(Path);
	if (Path.empty() || Path[0] != '/' || Names.empty())
	{
		return EFind::Absent;
	}
	FHandle Handle(open(TCHAR_TO_UTF8(*Folder), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
	for (size_t Index = 0; Index < Names.size(); ++Index)
	{
		if (!IsGivenOut(Names[Index]) || Handle.Get() < 0)
		{
			return EFind::Absent;
		}
		// Step by step, so that no link on the way leads out. Without waiting, as a pipe would.
		const int Kind = Index + 1 < Names.size() ? O_DIRECTORY : O_NONBLOCK;
		Handle.Reset(openat(Handle.Get(), Names[Index].c_str(), O_RDONLY | O_NOFOLLOW | O_CLOEXEC | Kind));
	}
	struct stat Status;
	if (Handle.Get() < 0 || fstat(Handle.Get(), &Status) != 0 || !S_ISREG(Status.st_mode))
	{
		return EFind::Absent;
	}
	OutName = FString(UTF8_TO_TCHAR(Names.back().c_str()));
	if (Status.st_size > MaxFileBytes)
	{
		UE_LOG(LogService, Warning, TEXT("%s: the file has %lld bytes, at most %lld are given out"), *(Folder / OutName), int64(Status.st_size), int64(MaxFileBytes));
		return EFind::Failed;
	}
	OutBytes.SetNumUninitialized(int32(Status.st_size));
	if (!ReadWhole(Handle.Get(), OutBytes))
	{
		UE_LOG(LogService, Warning, TEXT("%s: the file cannot be read: %s"), *(Folder / OutName), UTF8_TO_TCHAR(std::strerror(errno)));
		return EFind::Failed;
	}
	return EFind::Found;
}

const TCHAR* Host::FProjectFiles::GetContentType(const FString& Name)
{
	struct FType
	{
		const TCHAR* Extension;
		const TCHAR* Type;
	};
	static const FType Types[] = {
		{ TEXT("json"), TEXT("application/json") },
		{ TEXT("png"), TEXT("image/png") },
		{ TEXT("jpg"), TEXT("image/jpeg") },
		{ TEXT("jpeg"), TEXT("image/jpeg") },
		{ TEXT("webp"), TEXT("image/webp") },
		{ TEXT("csv"), TEXT("text/csv") },
	};
	const FString Extension = FPaths::GetExtension(Name);
	for (const FType& Type : Types)
	{
		if (Extension.Equals(Type.Extension, ESearchCase::IgnoreCase))
		{
			return Type.Type;
		}
	}
	return TEXT("application/octet-stream");
}
