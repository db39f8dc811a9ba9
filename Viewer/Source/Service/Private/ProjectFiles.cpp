#include "ProjectFiles.h"

#include "Containers/StringConv.h"
#include "Host/FolderFiles.h"
#include "Host/ProjectUsers.h"
#include "Misc/Paths.h"
#include "ServiceLog.h"

#include <algorithm>
#include <string>

namespace
{
	/** Larger than any picture of a project. */
	constexpr int64 MaxFileBytes = 64 * 1024 * 1024;

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

	/** The names between the slashes; false when one of them leads nowhere. */
	bool Split(const std::string& Path, TArray<FString>& OutNames)
	{
		for (size_t Start = 1; Start <= Path.size();)
		{
			const size_t End = std::min(Path.find('/', Start), Path.size());
			const std::string Name = Path.substr(Start, End - Start);
			if (!IsGivenOut(Name))
			{
				return false;
			}
			OutNames.Add(UTF8_TO_TCHAR(Name.c_str()));
			Start = End + 1;
		}
		return !Path.empty() && Path[0] == '/' && OutNames.Num() > 0 && Path.back() != '/';
	}
}

Host::FProjectFiles::EFind Host::FProjectFiles::Read(const FString& Folder, const FString& Target, FString& OutName, TArray<uint8>& OutBytes)
{
	std::string Path;
	if (!Decode(TCHAR_TO_UTF8(*Target), Path))
	{
		return EFind::Malformed;
	}
	TArray<FString> Names;
	if (!Split(Path, Names))
	{
		return EFind::Absent;
	}
	OutName = Names.Last();
	FString Reason;
	switch (FFolderFiles::Read(Folder, Names, MaxFileBytes, OutBytes, Reason))
	{
	case FFolderFiles::ERead::Read:
		return EFind::Found;
	case FFolderFiles::ERead::Absent:
		return EFind::Absent;
	case FFolderFiles::ERead::Failed:
		break;
	}
	UE_LOG(LogService, Warning, TEXT("%s/%s: %s"), *Folder, *FString::Join(Names, TEXT("/")), *Reason);
	return EFind::Failed;
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
