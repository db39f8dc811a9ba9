#pragma once

#include "CoreMinimal.h"
#include "HAL/FileManager.h"
#include "HAL/PlatformProcess.h"
#include "Host/Files.h"
#include "Misc/FileHelper.h"
#include "Misc/Guid.h"
#include "gtest/gtest.h"

/** A folder of the test's own, gone at its end. */
class FTemporaryFolder
{
public:
	FTemporaryFolder()
		: Path(Host::FFiles::Resolve(FPlatformProcess::UserTempDir()) / FGuid::NewGuid().ToString())
	{
		EXPECT_TRUE(IFileManager::Get().MakeDirectory(*Path, true));
	}

	~FTemporaryFolder()
	{
		EXPECT_TRUE(IFileManager::Get().DeleteDirectory(*Path, true, true));
	}

	FTemporaryFolder(const FTemporaryFolder&) = delete;
	FTemporaryFolder& operator=(const FTemporaryFolder&) = delete;

	/** Without a slash at the end. */
	const FString Path;

	FString operator/(const TCHAR* Name) const { return Path / Name; }

	/** Writes a file, and returns its path. */
	FString Write(const TCHAR* Name, const char* Content) const
	{
		return Write(Name, Content, int64(std::strlen(Content)));
	}

	FString Write(const TCHAR* Name, const char* Content, int64 Size) const
	{
		FString Reason;
		EXPECT_TRUE(Host::FFiles::Write(Path / Name, Content, Size, Reason)) << TCHAR_TO_UTF8(*Reason);
		return Path / Name;
	}

	std::string Read(const TCHAR* Name) const
	{
		TArray<uint8> Bytes;
		FString Reason;
		EXPECT_TRUE(Host::FFiles::Read(Path / Name, MAX_int32, Bytes, Reason)) << TCHAR_TO_UTF8(*Reason);
		return std::string(reinterpret_cast<const char*>(Bytes.GetData()), SIZE_T(Bytes.Num()));
	}
};
