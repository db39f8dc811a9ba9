#include "Host/Files.h"

#include "HAL/NativeFile.h"
#include "Math/UnrealMathUtility.h"
#include "Templates/UnrealTemplate.h"

#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <string>
#include <sys/stat.h>

namespace
{
	using Host::FDescriptor;

	/** The rights of a new file: those of the one it replaces, else those of any new file. */
	mode_t ChooseMode(const std::string& Replaced)
	{
		struct stat Status;
		if (stat(Replaced.c_str(), &Status) == 0)
		{
			return Status.st_mode & 07777;
		}
		const mode_t Mask = umask(0);
		umask(Mask);
		return 0666 & ~Mask;
	}

	/** What a path leads to, be it there or not. */
	std::filesystem::path FollowLinks(std::filesystem::path Path, std::error_code& OutError)
	{
		// As many as the system itself follows.
		constexpr int MostLinks = 40;
		std::error_code Absent;
		for (int Link = 0; std::filesystem::is_symlink(Path, Absent) && !OutError; ++Link)
		{
			if (Link == MostLinks)
			{
				OutError = std::make_error_code(std::errc::too_many_symbolic_link_levels);
				break;
			}
			Path = Path.parent_path() / std::filesystem::read_symlink(Path, OutError);
		}
		return Path;
	}

	/** Makes a rename in the folder last through a crash. */
	void SyncFolder(const std::filesystem::path& Folder)
	{
		const FDescriptor Descriptor(open(Folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
		if (Descriptor.IsValid())
		{
			// The content is in place whether or not the file system can promise this.
			(void)fsync(Descriptor.Get());
		}
	}

	/** Writes to a new file beside the target and moves it there. Returns 0 or the error. */
	int ReplaceFile(const std::filesystem::path& Target, const void* Bytes, SIZE_T Size)
	{
		std::string Temporary = Target.native() + ".XXXXXX";
		FDescriptor Descriptor(mkostemp(Temporary.data(), O_CLOEXEC));
		if (!Descriptor.IsValid())
		{
			return errno;
		}
		const bool bWritten = fchmod(Descriptor.Get(), ChooseMode(Target.native())) == 0
			&& Host::WriteAll(Descriptor.Get(), static_cast<const char*>(Bytes), Size)
			&& fsync(Descriptor.Get()) == 0
			&& Descriptor.Close()
			&& rename(Temporary.c_str(), Target.c_str()) == 0;
		if (!bWritten)
		{
			const int Error = errno;
			unlink(Temporary.c_str());
			return Error;
		}
		SyncFolder(Target.parent_path());
		return 0;
	}
}

bool Host::FFiles::Read(const FString& Filename, int64 MaxBytes, TArray<uint8>& OutBytes, FString& OutReason)
{
	// Without waiting, so that a pipe in place of a file stops nothing.
	const FDescriptor Descriptor(open(ToNativePath(Filename).c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
	struct stat Status;
	if (!Descriptor.IsValid() || fstat(Descriptor.Get(), &Status) != 0)
	{
		OutReason = DescribeError(errno);
		return false;
	}
	if (!S_ISREG(Status.st_mode))
	{
		OutReason = S_ISDIR(Status.st_mode) ? TEXT("is a folder, not a file") : TEXT("is no regular file");
		return false;
	}
	if (int64(Status.st_size) > FMath::Min<int64>(MaxBytes, MAX_int32))
	{
		OutReason = FString::Printf(TEXT("has %lld bytes, at most %lld are accepted"), int64(Status.st_size), FMath::Min<int64>(MaxBytes, MAX_int32));
		return false;
	}

	TArray<uint8> Bytes;
	Bytes.SetNumUninitialized(int32(Status.st_size));
	// Another program may have cut the file meanwhile.
	if (!ReadAll(Descriptor.Get(), Bytes))
	{
		OutReason = DescribeError(errno);
		return false;
	}
	OutBytes = MoveTemp(Bytes);
	return true;
}

bool Host::FFiles::Write(const FString& Filename, const void* Bytes, int64 Size, FString& OutReason)
{
	std::error_code Absent;
	std::error_code Error;
	std::filesystem::path Target = FollowLinks(ToNativePath(Filename), Error);
	if (!Error && Target.has_parent_path())
	{
		std::filesystem::create_directories(Target.parent_path(), Error);
	}
	if (const std::filesystem::file_status Status = std::filesystem::status(Target, Absent); std::filesystem::exists(Status) && !std::filesystem::is_regular_file(Status))
	{
		OutReason = std::filesystem::is_directory(Status) ? TEXT("is a folder, not a file") : TEXT("is no regular file");
		return false;
	}
	if (Error)
	{
		OutReason = DescribeError(Error.value());
		return false;
	}
	if (const int ReplaceError = ReplaceFile(Target, Bytes, SIZE_T(Size)); ReplaceError != 0)
	{
		OutReason = DescribeError(ReplaceError);
		return false;
	}
	return true;
}

bool Host::FFiles::SetAside(const FString& Filename, const TCHAR* Suffix, FString& OutName, FString& OutReason)
{
	std::error_code Error;
	const std::filesystem::path Target = std::filesystem::canonical(ToNativePath(Filename), Error);
	if (!Error && !std::filesystem::is_regular_file(Target, Error))
	{
		OutReason = TEXT("is no regular file");
		return false;
	}
	if (!Error)
	{
		const FString Wanted = FromNativePath(Target) + Suffix;
		OutName = Wanted;
		for (int32 Number = 2; !IsAbsent(OutName); ++Number)
		{
			OutName = FString::Printf(TEXT("%s%d"), *Wanted, Number);
		}
		std::filesystem::rename(Target, ToNativePath(OutName), Error);
	}
	if (Error)
	{
		OutReason = DescribeError(Error.value());
	}
	return !Error;
}

bool Host::FFiles::IsAbsent(const FString& Path)
{
	struct stat Status;
	return lstat(ToNativePath(Path).c_str(), &Status) != 0 && (errno == ENOENT || errno == ENOTDIR);
}

FString Host::FFiles::Resolve(const FString& Path)
{
	std::error_code Error;
	const std::filesystem::path Resolved = std::filesystem::canonical(ToNativePath(Path), Error);
	return Error ? FString() : FromNativePath(Resolved);
}
