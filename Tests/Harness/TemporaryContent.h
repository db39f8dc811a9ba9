#pragma once

#include "CoreMinimal.h"
#include "Host/Files.h"
#include "Host/Mounts.h"
#include "gtest/gtest.h"

#include <cstdlib>
#include <filesystem>
#include <string>

namespace Host
{
	/** A folder of content that exists, and is mounted, as long as this. */
	class FTemporaryContent
	{
	public:
		/** @param InRoot "/Name/", where the folder is mounted */
		explicit FTemporaryContent(const TCHAR* InRoot) : Root(InRoot)
		{
			std::string Pattern = (std::filesystem::temp_directory_path() / "content-XXXXXX").string();
			check(mkdtemp(Pattern.data()));
			Path = Pattern;
			Folder = FString(UTF8_TO_TCHAR(Pattern.c_str()));
			EXPECT_TRUE(FMounts::Add(Root, Folder));
		}
		FTemporaryContent(const FTemporaryContent&) = delete;
		FTemporaryContent& operator=(const FTemporaryContent&) = delete;
		~FTemporaryContent()
		{
			FMounts::Remove(Root);
			std::filesystem::remove_all(Path);
		}

		/** Writes a file; returns its full path. */
		FString Write(const TCHAR* Name, const char* Text) const
		{
			const FString Filename = Folder + TEXT("/") + Name;
			FString Reason;
			EXPECT_TRUE(FFiles::Write(Filename, Text, static_cast<int64>(std::char_traits<char>::length(Text)), Reason));
			return Filename;
		}

		/** Makes a file look as if it had been written that many seconds later. */
		void Age(const TCHAR* Name, int Seconds) const
		{
			const std::filesystem::path File = Path / std::string(TCHAR_TO_UTF8(Name));
			std::filesystem::last_write_time(File, std::filesystem::last_write_time(File) + std::chrono::seconds(Seconds));
		}

		const FString& GetFolder() const { return Folder; }

	private:
		FString Root;
		FString Folder;
		std::filesystem::path Path;
	};
}
