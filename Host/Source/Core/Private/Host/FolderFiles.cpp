#include "Host/FolderFiles.h"

#include "HAL/NativeFile.h"
#include "Misc/AssertionMacros.h"

#include <fcntl.h>
#include <sys/stat.h>

Host::FFolderFiles::ERead Host::FFolderFiles::Read(const FString& Folder, TConstArrayView<FString> Names, int64 MaxBytes, TArray<uint8>& OutBytes, FString& OutReason)
{
	FDescriptor Place(open(ToNativePath(Folder).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
	for (int32 Index = 0; Index < Names.Num() && Place.IsValid(); ++Index)
	{
		check(!Names[Index].IsEmpty() && !Names[Index].Contains(TEXT("/")) && !Names[Index].Equals(TEXT(".")) && !Names[Index].Equals(TEXT("..")));
		// The file without waiting, as a pipe in its place would let one.
		const int Kind = Index + 1 < Names.Num() ? O_DIRECTORY : O_NONBLOCK;
		Place.Reset(openat(Place.Get(), ToNativePath(Names[Index]).c_str(), O_RDONLY | O_NOFOLLOW | O_CLOEXEC | Kind));
	}
	struct stat Status;
	if (!Place.IsValid() || fstat(Place.Get(), &Status) != 0 || !S_ISREG(Status.st_mode))
	{
		OutReason = TEXT("there is no such file");
		return ERead::Absent;
	}
	if (int64(Status.st_size) > MaxBytes)
	{
		OutReason = FString::Printf(TEXT("has %lld bytes, at most %lld are accepted"), int64(Status.st_size), MaxBytes);
		return ERead::Failed;
	}
	TArray<uint8> Bytes;
	Bytes.SetNumUninitialized(int32(Status.st_size));
	if (!ReadAll(Place.Get(), Bytes))
	{
		OutReason = DescribeError(errno);
		return ERead::Failed;
	}
	OutBytes = MoveTemp(Bytes);
	return ERead::Read;
}
