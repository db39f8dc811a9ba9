#include "Host/PrivateFolder.h"

#include "HAL/PlatformTime.h"

#include <fcntl.h>
#include <string>
#include <sys/file.h>
#include <sys/stat.h>

namespace
{
	constexpr mode_t FolderMode = 0700;
	constexpr mode_t FileMode = 0600;
	constexpr mode_t OthersMask = 0077;
	constexpr double LockSeconds = 2.0;
	constexpr useconds_t LockPauseMicroseconds = 2000;

	std::string ToName(const FString& File)
	{
		return Host::ToNativePath(File).native();
	}

	bool MakeFolder(const std::filesystem::path& Path)
	{
		if (mkdir(Path.c_str(), FolderMode) == 0)
		{
			// The mask for new files may have taken rights from the user.
			return fchmodat(AT_FDCWD, Path.c_str(), FolderMode, AT_SYMLINK_NOFOLLOW) == 0;
		}
		return errno == EEXIST;
	}

	/** Makes a folder and those on the way to it, for the user alone, as the desktop's conventions ask. */
	bool MakeFolders(const std::filesystem::path& Path)
	{
		return MakeFolder(Path) || (errno == ENOENT && Path.has_parent_path() && Path.parent_path() != Path && MakeFolders(Path.parent_path()) && MakeFolder(Path));
	}
}

Host::FPrivateFolder::EOpen Host::FPrivateFolder::Open(const FString& Path, bool bMake, FString& OutReason)
{
	const std::filesystem::path Native = ToNativePath(Path);
	if (bMake && !MakeFolders(Native))
	{
		OutReason = DescribeError(errno);
		return EOpen::Failed;
	}
	Descriptor.Reset(open(Native.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
	if (!Descriptor.IsValid())
	{
		const int Error = errno;
		std::error_code Absent;
		OutReason = std::filesystem::is_symlink(Native, Absent) ? FString(TEXT("the folder is a link")) : DescribeError(Error);
		return Error == ENOENT ? EOpen::Absent : EOpen::Failed;
	}
	struct stat Status;
	if (fstat(Descriptor.Get(), &Status) != 0)
	{
		OutReason = DescribeError(errno);
		return EOpen::Failed;
	}
	if (Status.st_uid != geteuid())
	{
		OutReason = TEXT("the folder is another user's");
		return EOpen::Failed;
	}
	if ((Status.st_mode & 07777) != FolderMode && fchmod(Descriptor.Get(), FolderMode) != 0)
	{
		OutReason = DescribeError(errno);
		return EOpen::Failed;
	}
	return EOpen::Opened;
}

bool Host::FPrivateFolder::Lock(FString& OutReason)
{
	const double End = FPlatformTime::Seconds() + LockSeconds;
	while (flock(Descriptor.Get(), LOCK_EX | LOCK_NB) != 0)
	{
		if (errno != EWOULDBLOCK && errno != EINTR)
		{
			OutReason = DescribeError(errno);
			return false;
		}
		if (FPlatformTime::Seconds() > End)
		{
			OutReason = TEXT("another program does not let go of it");
			return false;
		}
		usleep(LockPauseMicroseconds);
	}
	return true;
}

Host::FPrivateFolder::ERead Host::FPrivateFolder::Read(const FString& File, int64 MaxBytes, TArray<uint8>& OutBytes, bool& bOutExposed, FString& OutReason) const
{
	bOutExposed = false;
	// Without waiting, so that a pipe in place of a file stops nothing.
	const FDescriptor Opened(openat(Descriptor.Get(), ToName(File).c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
	if (!Opened.IsValid())
	{
		const int Error = errno;
		OutReason = Error == ELOOP ? FString(TEXT("is a link")) : DescribeError(Error);
		return Error == ENOENT ? ERead::Absent : Error == ELOOP || Error == ENXIO ? ERead::Unfit : ERead::Failed;
	}
	struct stat Status;
	if (fstat(Opened.Get(), &Status) != 0)
	{
		OutReason = DescribeError(errno);
		return ERead::Failed;
	}
	if (!S_ISREG(Status.st_mode) || Status.st_uid != geteuid())
	{
		OutReason = TEXT("is no file of this user");
		return ERead::Unfit;
	}
	if (int64(Status.st_size) > MaxBytes)
	{
		OutReason = FString::Printf(TEXT("has %lld bytes, at most %lld are accepted"), int64(Status.st_size), MaxBytes);
		return ERead::Unfit;
	}
	bOutExposed = (Status.st_mode & OthersMask) != 0;
	TArray<uint8> Bytes;
	Bytes.SetNumUninitialized(int32(Status.st_size));
	if ((bOutExposed && fchmod(Opened.Get(), FileMode) != 0) || !ReadAll(Opened.Get(), Bytes))
	{
		OutReason = DescribeError(errno);
		return ERead::Failed;
	}
	OutBytes = MoveTemp(Bytes);
	return ERead::Read;
}

bool Host::FPrivateFolder::Write(const FString& File, const void* Bytes, SIZE_T Size, FString& OutReason) const
{
	const std::string Target = ToName(File);
	const std::string Temporary = Target + ".new";
	// What a program that died has left; whoever writes holds the lock.
	unlinkat(Descriptor.Get(), Temporary.c_str(), 0);
	FDescriptor Opened(openat(Descriptor.Get(), Temporary.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, FileMode));
	if (!Opened.IsValid())
	{
		OutReason = DescribeError(errno);
		return false;
	}
	// The rights as with folders.
	const bool bWritten = fchmod(Opened.Get(), FileMode) == 0
		&& WriteAll(Opened.Get(), static_cast<const char*>(Bytes), Size)
		&& fsync(Opened.Get()) == 0
		&& Opened.Close()
		&& renameat(Descriptor.Get(), Temporary.c_str(), Descriptor.Get(), Target.c_str()) == 0;
	if (!bWritten)
	{
		OutReason = DescribeError(errno);
		unlinkat(Descriptor.Get(), Temporary.c_str(), 0);
		return false;
	}
	// The content is in place whether or not the file system can promise that it stays through a crash.
	(void)fsync(Descriptor.Get());
	return true;
}

bool Host::FPrivateFolder::SetAside(const FString& File, const TCHAR* Suffix, FString& OutName, FString& OutReason) const
{
	OutName = File + Suffix;
	struct stat Status;
	for (int32 Number = 2; fstatat(Descriptor.Get(), ToName(OutName).c_str(), &Status, AT_SYMLINK_NOFOLLOW) == 0; ++Number)
	{
		OutName = FString::Printf(TEXT("%s%s%d"), *File, Suffix, Number);
	}
	if (renameat(Descriptor.Get(), ToName(File).c_str(), Descriptor.Get(), ToName(OutName).c_str()) != 0)
	{
		OutReason = DescribeError(errno);
		return false;
	}
	return true;
}
