#include "Images/HalvexImageAddress.h"

#include "HAL/PlatformFileManager.h"
#include "Images/HalvexImageSettings.h"
#include "Misc/PackageName.h"
#include "Misc/Parse.h"
#include "Misc/Paths.h"

namespace
{
	struct FSizeName
	{
		const TCHAR* Name;
		const TCHAR* Pixels;
	};

	/** In the order of the enumeration. */
	constexpr FSizeName SizeNames[] = {
		{ TEXT("thumbnail"), TEXT("128") },
		{ TEXT("small"), TEXT("256") },
		{ TEXT("medium"), TEXT("512") },
		{ TEXT("large"), TEXT("1024") },
		{ TEXT("original"), TEXT("0") },
	};

	const FHalvexImageRendition* FindRendition(const FImageObjectData& Data, const EImageRequestSize Size)
	{
		return Data.Renditions.FindByPredicate([Size](const FHalvexImageRendition& Rendition)
		{
			return Rendition.Size == Size && !Rendition.Address.IsEmpty();
		});
	}

	FString ChooseOtherRendition(const FImageObjectData& Data, const EImageRequestSize Size)
	{
		for (int32 Larger = Size + 1; Larger <= EIRS_Original; ++Larger)
		{
			if (const FHalvexImageRendition* Rendition = FindRendition(Data, static_cast<EImageRequestSize>(Larger)))
			{
				return Rendition->Address;
			}
		}
		for (int32 Smaller = Size - 1; Smaller >= EIRS_Thumbnail; --Smaller)
		{
			if (const FHalvexImageRendition* Rendition = FindRendition(Data, static_cast<EImageRequestSize>(Smaller)))
			{
				return Rendition->Address;
			}
		}
		return FString();
	}

	/** Replaces %XX by the byte. False for what is no such escape, and for a zero byte, at which paths would end. */
	bool DecodePercent(const FString& Text, FString& OutText)
	{
		const FTCHARToUTF8 Source(*Text);
		TArray<ANSICHAR> Bytes;
		for (int32 Index = 0; Index < Source.Length(); ++Index)
		{
			ANSICHAR Byte = Source.Get()[Index];
			if (Byte == '%')
			{
				const bool bEscape = Index + 2 < Source.Length() && FChar::IsHexDigit(Source.Get()[Index + 1]) && FChar::IsHexDigit(Source.Get()[Index + 2]);
				if (!bEscape)
				{
					return false;
				}
				Byte = static_cast<ANSICHAR>(FParse::HexDigit(Source.Get()[Index + 1]) * 16 + FParse::HexDigit(Source.Get()[Index + 2]));
				Index += 2;
			}
			if (Byte == '\0')
			{
				return false;
			}
			Bytes.Add(Byte);
		}
		Bytes.Add('\0');
		OutText = FString(UTF8_TO_TCHAR(Bytes.GetData()));
		return true;
	}

	/** The path of an address of file: relative, or from the root. False for one on another machine. */
	bool FindPath(const FString& Address, FString& OutPath)
	{
		FString Path = Address.Mid(5);
		if (Path.StartsWith(TEXT("//")))
		{
			Path.RightChopInline(2);
			if (Path.StartsWith(TEXT("localhost/")))
			{
				Path.RightChopInline(9);
			}
			if (!Path.StartsWith(TEXT("/")))
			{
				return false;
			}
		}
		return DecodePercent(Path, OutPath);
	}

	FString FindFolder(const FString& Setting)
	{
		FString Folder;
		if (!FPackageName::TryConvertLongPackageNameToFilename(Setting, Folder))
		{
			Folder = FPaths::ConvertRelativePathToFull(FPaths::ProjectDir(), Setting);
		}
		Folder = FPaths::ConvertRelativePathToFull(Folder);
		FPaths::NormalizeDirectoryName(Folder);
		return Folder;
	}

	/** Whether a part of the path below the folder is a link. */
	bool GoesThroughLink(const FString& Folder, const FString& Filename)
	{
		IPlatformFile& Files = FPlatformFileManager::Get().GetPlatformFile();
		for (FString Path = Filename; Path.Len() > Folder.Len(); Path = FPaths::GetPath(Path))
		{
			if (Files.IsSymlink(*Path) == ESymlinkResult::Symlink)
			{
				return true;
			}
		}
		return false;
	}
}

FString HalvexImageAddress::Choose(const FImageObjectData& Data, const EImageRequestSize Size)
{
	const int32 SizeIndex = FMath::Clamp<int32>(Size, EIRS_Thumbnail, EIRS_Original);
	if (const FHalvexImageRendition* Rendition = FindRendition(Data, Size))
	{
		return Rendition->Address.TrimStartAndEnd();
	}
	if (!Data.Address.IsEmpty())
	{
		return Data.Address.Replace(TEXT("{size}"), SizeNames[SizeIndex].Name).Replace(TEXT("{pixels}"), SizeNames[SizeIndex].Pixels).TrimStartAndEnd();
	}
	return ChooseOtherRendition(Data, Size).TrimStartAndEnd();
}

bool HalvexImageAddress::IsFile(const FString& Address)
{
	return Address.StartsWith(TEXT("file:"));
}

bool HalvexImageAddress::IsHttp(const FString& Address)
{
	return Address.StartsWith(TEXT("http://")) || Address.StartsWith(TEXT("https://"));
}

FString HalvexImageAddress::ForLog(const FString& Address)
{
	constexpr int32 MaxLength = 200;
	FString Result = Address;
	int32 End = INDEX_NONE;
	for (const TCHAR Separator : { TEXT('?'), TEXT('#') })
	{
		if (Result.FindChar(Separator, End))
		{
			Result.LeftInline(End);
		}
	}
	const int32 Scheme = Result.Find(TEXT("://"), ESearchCase::CaseSensitive);
	if (Scheme != INDEX_NONE)
	{
		const int32 Start = Scheme + 3;
		FString Authority = Result.Mid(Start);
		if (Authority.FindChar(TEXT('/'), End))
		{
			Authority.LeftInline(End);
		}
		int32 User = INDEX_NONE;
		if (Authority.FindLastChar(TEXT('@'), User))
		{
			Result = Result.Left(Start) + Result.Mid(Start + User + 1);
		}
	}
	for (TCHAR& Unit : Result.GetCharArray())
	{
		if (Unit != TEXT('\0') && Unit < TEXT(' '))
		{
			Unit = TEXT('?');
		}
	}
	return Result.Len() > MaxLength ? Result.Left(MaxLength) + TEXT("...") : Result;
}

bool HalvexImageAddress::ResolveFile(const FString& Address, FString& OutFilename, FString& OutReason)
{
	FString Path;
	if (!FindPath(Address, Path) || Path.IsEmpty())
	{
		OutReason = TEXT("the address is malformed");
		return false;
	}
	FPaths::NormalizeFilename(Path);
	const UHalvexImageSettings& Settings = *GetDefault<UHalvexImageSettings>();
	FString Folder = FindFolder(Settings.ImageFolder);
	const FString Filename = FPaths::ConvertRelativePathToFull(Folder, Path);
	for (int32 Index = 0; !FPaths::IsUnderDirectory(Filename, Folder) && !FPaths::IsRelative(Path) && Index < Settings.FurtherImageFolders.Num(); ++Index)
	{
		Folder = FindFolder(Settings.FurtherImageFolders[Index]);
	}
	if (!FPaths::IsUnderDirectory(Filename, Folder))
	{
		OutReason = TEXT("the address leads out of the project's folder of images");
		return false;
	}
	if (GoesThroughLink(Folder, Filename))
	{
		OutReason = TEXT("the address leads through a link, which could lead out of the project's folder of images");
		return false;
	}
	OutFilename = Filename;
	return true;
}
