#include "Images/HalvexImageDiskCache.h"

#include "HAL/FileManager.h"
#include "Images/HalvexImageLog.h"
#include "Misc/FileHelper.h"
#include "Misc/Guid.h"
#include "Misc/Paths.h"
#include "Misc/ScopeLock.h"
#include "Misc/SecureHash.h"

namespace
{
	/*
	 * A file: the mark, the digest of all that follows, the length of the text, the text, the picture. The text has one line a
	 * property. A change of the format changes the mark, and so drops all older files.
	 */
	constexpr uint8 Mark[] = { 'H', 'X', 'I', '1' };
	constexpr int32 DigestSize = sizeof(FSHAHash::Hash);
	constexpr int32 LengthSize = 4;
	constexpr int32 HeadSize = sizeof(Mark) + DigestSize + LengthSize;
	const TCHAR* const Suffix = TEXT(".image");

	FSHAHash Digest(const TArray<uint8>& Bytes)
	{
		const int32 Start = sizeof(Mark) + DigestSize;
		return FSHA1::HashBuffer(Bytes.GetData() + Start, static_cast<uint64>(Bytes.Num() - Start));
	}

	void AppendLength(TArray<uint8>& Bytes, const int32 Length)
	{
		for (int32 Shift = 0; Shift < 32; Shift += 8)
		{
			Bytes.Add(static_cast<uint8>(static_cast<uint32>(Length) >> Shift));
		}
	}

	int64 ReadLength(const uint8* Bytes)
	{
		int64 Length = 0;
		for (int32 Index = 0; Index < LengthSize; ++Index)
		{
			Length |= static_cast<int64>(Bytes[Index]) << (8 * Index);
		}
		return Length;
	}

	TArray<uint8> Pack(const FHalvexStoredImage& Image)
	{
		const FString Text = FString::Printf(TEXT("%lld\n%s\n%s\n"), static_cast<long long>(Image.Freshness.FreshUntil.ToUnixTimestamp()),
			*Image.Freshness.ETag, *Image.Freshness.LastModified);
		const FTCHARToUTF8 Utf8(*Text);
		TArray<uint8> Bytes;
		Bytes.Reserve(HeadSize + Utf8.Length() + Image.Content.Num());
		Bytes.Append(Mark, sizeof(Mark));
		Bytes.AddZeroed(DigestSize);
		AppendLength(Bytes, Utf8.Length());
		Bytes.Append(reinterpret_cast<const uint8*>(Utf8.Get()), Utf8.Length());
		Bytes.Append(Image.Content);
		const FSHAHash Hash = Digest(Bytes);
		FMemory::Memcpy(Bytes.GetData() + sizeof(Mark), Hash.Hash, DigestSize);
		return Bytes;
	}

	bool Unpack(const TArray<uint8>& Bytes, FHalvexStoredImage& OutImage)
	{
		if (Bytes.Num() < HeadSize || FMemory::Memcmp(Bytes.GetData(), Mark, sizeof(Mark)) != 0
			|| FMemory::Memcmp(Bytes.GetData() + sizeof(Mark), Digest(Bytes).Hash, DigestSize) != 0)
		{
			return false;
		}
		const int64 TextLength = ReadLength(Bytes.GetData() + sizeof(Mark) + DigestSize);
		if (TextLength > Bytes.Num() - HeadSize)
		{
			return false;
		}
		FString Text;
		FFileHelper::BufferToString(Text, Bytes.GetData() + HeadSize, static_cast<int32>(TextLength));
		TArray<FString> Lines;
		Text.ParseIntoArray(Lines, TEXT("\n"), false);
		if (Lines.Num() < 3)
		{
			return false;
		}
		OutImage.Freshness.FreshUntil = FDateTime::FromUnixTimestamp(FCString::Atoi64(*Lines[0]));
		OutImage.Freshness.ETag = Lines[1];
		OutImage.Freshness.LastModified = Lines[2];
		const int32 Start = HeadSize + static_cast<int32>(TextLength);
		OutImage.Content = TArray<uint8>(Bytes.GetData() + Start, Bytes.Num() - Start);
		return true;
	}

	struct FStoredFile
	{
		FString Path;
		int64 Size;
		FDateTime Time;
	};

	TArray<FStoredFile> ListFiles(const FString& Folder)
	{
		IFileManager& Files = IFileManager::Get();
		TArray<FString> Names;
		// Also what a crash left half written.
		Files.FindFiles(Names, *(Folder / TEXT("*")), true, false);
		TArray<FStoredFile> Result;
		for (const FString& Name : Names)
		{
			const FString Path = Folder / Name;
			Result.Add({ Path, FMath::Max<int64>(Files.FileSize(*Path), 0), Files.GetTimeStamp(*Path) });
		}
		return Result;
	}
}

FCriticalSection FHalvexImageDiskCache::Lock;

FHalvexImageDiskCache::FHalvexImageDiskCache(const FString& InFolder, const int64 InMaxBytes)
	: Folder(InFolder)
	, MaxBytes(InMaxBytes)
{
}

FString FHalvexImageDiskCache::GetName(const FString& Key)
{
	const FTCHARToUTF8 Utf8(*Key);
	return FSHA1::HashBuffer(Utf8.Get(), static_cast<uint64>(Utf8.Length())).ToString() + Suffix;
}

FString FHalvexImageDiskCache::GetPath(const FString& Key) const
{
	return Folder / GetName(Key);
}

bool FHalvexImageDiskCache::Read(const FString& Key, FHalvexStoredImage& OutImage)
{
	const FString Path = GetPath(Key);
	TArray<uint8> Bytes;
	FScopeLock Scope(&Lock);
	const int64 Size = IFileManager::Get().FileSize(*Path);
	if (Size < 0 || Size > MaxBytes || !FFileHelper::LoadFileToArray(Bytes, *Path, FILEREAD_Silent))
	{
		return false;
	}
	if (Unpack(Bytes, OutImage))
	{
		return true;
	}
	UE_LOG(LogHalvexImages, Warning, TEXT("The stored picture %s is damaged and is dropped."), *Path);
	Remove(Key);
	return false;
}

void FHalvexImageDiskCache::Write(const FString& Key, const FHalvexStoredImage& Image)
{
	const TArray<uint8> Bytes = Pack(Image);
	if (Bytes.Num() > MaxBytes)
	{
		return;
	}
	const FString Path = GetPath(Key);
	// Under a name of its own first, so that a reader sees the old or the new file, also after a crash.
	const FString Temporary = Folder / FGuid::NewGuid().ToString() + TEXT(".tmp");
	FScopeLock Scope(&Lock);
	IFileManager& Files = IFileManager::Get();
	const int64 OldSize = FMath::Max<int64>(Files.FileSize(*Path), 0);
	if (!Files.MakeDirectory(*Folder, true) || !FFileHelper::SaveArrayToFile(Bytes, *Temporary) || !Files.Move(*Path, *Temporary))
	{
		Files.Delete(*Temporary, false, false, true);
		return;
	}
	TotalBytes = TotalBytes < 0 ? -1 : TotalBytes + Bytes.Num() - OldSize;
	Trim();
}

void FHalvexImageDiskCache::Remove(const FString& Key)
{
	FScopeLock Scope(&Lock);
	IFileManager::Get().Delete(*GetPath(Key), false, false, true);
	TotalBytes = -1;
}

void FHalvexImageDiskCache::Clear()
{
	FScopeLock Scope(&Lock);
	IFileManager::Get().DeleteDirectory(*Folder, false, true);
	TotalBytes = -1;
}

void FHalvexImageDiskCache::Trim()
{
	if (TotalBytes >= 0 && TotalBytes <= MaxBytes)
	{
		return;
	}
	TArray<FStoredFile> Files = ListFiles(Folder);
	Files.Sort([](const FStoredFile& A, const FStoredFile& B) { return A.Time < B.Time; });
	TotalBytes = 0;
	for (const FStoredFile& File : Files)
	{
		TotalBytes += File.Size;
	}
	for (int32 Index = 0; Index < Files.Num() && TotalBytes > MaxBytes; ++Index)
	{
		IFileManager::Get().Delete(*Files[Index].Path, false, false, true);
		TotalBytes -= Files[Index].Size;
	}
}
