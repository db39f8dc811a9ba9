#include "HAL/PlatformProcess.h"

#include "HAL/NativePath.h"
#include "HAL/PlatformMisc.h"

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <pwd.h>
#include <sched.h>
#include <thread>
#include <unistd.h>

namespace
{
	FString WithSlash(FString Folder)
	{
		if (!Folder.EndsWith(TEXT("/")))
		{
			Folder += TEXT("/");
		}
		return Folder;
	}

	/** The value of a variable that must be a full path, as the desktop conventions ask; empty when it is not. */
	FString GetFolderVariable(const TCHAR* Name)
	{
		const FString Value = FPlatformMisc::GetEnvironmentVariable(Name);
		return Value.StartsWith(TEXT("/")) ? WithSlash(Value) : FString();
	}
}

FString FPlatformProcess::ExecutablePath()
{
	std::error_code Error;
	return Host::FromNativePath(std::filesystem::read_symlink("/proc/self/exe", Error));
}

FString FPlatformProcess::ExecutableName()
{
	return Host::FromNativePath(Host::ToNativePath(ExecutablePath()).filename());
}

FString FPlatformProcess::BaseDir()
{
	return WithSlash(Host::FromNativePath(Host::ToNativePath(ExecutablePath()).parent_path()));
}

uint32 FPlatformProcess::GetCurrentProcessId()
{
	return uint32(getpid());
}

FString FPlatformProcess::UserHomeDir()
{
	const FString Home = GetFolderVariable(TEXT("HOME"));
	if (!Home.IsEmpty())
	{
		return Home;
	}
	const passwd* const User = getpwuid(getuid());
	return User != nullptr && User->pw_dir != nullptr ? WithSlash(Host::FromNative(User->pw_dir)) : UserTempDir();
}

FString FPlatformProcess::UserSettingsDir()
{
	const FString Folder = GetFolderVariable(TEXT("XDG_CONFIG_HOME"));
	return Folder.IsEmpty() ? UserHomeDir() + TEXT(".config/") : Folder;
}

FString FPlatformProcess::ApplicationSettingsDir()
{
	const FString Folder = GetFolderVariable(TEXT("XDG_DATA_HOME"));
	return Folder.IsEmpty() ? UserHomeDir() + TEXT(".local/share/") : Folder;
}

FString FPlatformProcess::UserTempDir()
{
	const FString Folder = GetFolderVariable(TEXT("TMPDIR"));
	return Folder.IsEmpty() ? FString(TEXT("/tmp/")) : Folder;
}

void FPlatformProcess::Sleep(float Seconds)
{
	std::this_thread::sleep_for(std::chrono::duration<float>(Seconds));
}

FString FPlatformMisc::GetEnvironmentVariable(const TCHAR* VariableName)
{
	const char* const Value = std::getenv(FTCHARToUTF8(VariableName).Get());
	return Value != nullptr ? Host::FromNative(Value) : FString();
}

int32 FPlatformMisc::NumberOfCoresIncludingHyperthreads()
{
	cpu_set_t Allowed;
	CPU_ZERO(&Allowed);
	if (sched_getaffinity(0, sizeof(Allowed), &Allowed) != 0)
	{
		return 1;
	}
	return CPU_COUNT(&Allowed);
}
