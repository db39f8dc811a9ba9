// Reads any bytes as a user's configuration file, changes it, saves it, and expects the rest to be as before.

#include "CoreMinimal.h"
#include "HAL/FileManager.h"
#include "HAL/PlatformProcess.h"
#include "Host/PathRoots.h"
#include "Misc/ConfigCacheIni.h"
#include "Misc/Guid.h"
#include "Misc/Paths.h"

#include <cstdio>

namespace
{
	/** A user's folder for the life of the program. */
	struct FUserFolder
	{
		const FString Path = FPlatformProcess::UserTempDir() / FGuid::NewGuid().ToString();
		const FString File = Path / TEXT("Config/Fuzz.ini");

		FUserFolder()
		{
			Host::FPathRoots::SetSavedDir(Path);
			verify(IFileManager::Get().MakeDirectory(*(Path / TEXT("Config")), true));
		}

		~FUserFolder()
		{
			IFileManager::Get().DeleteDirectory(*Path, false, true);
		}

		void Write(const uint8* Data, std::size_t Size) const
		{
			// Straight, for speed: it is the reader that is tested.
			std::FILE* const Handle = std::fopen(TCHAR_TO_UTF8(*File), "wb");
			check(Handle != nullptr);
			verify(std::fwrite(Data, 1, Size, Handle) == Size);
			verify(std::fclose(Handle) == 0);
		}
	};

	TArray<FString> ReadAll()
	{
		TArray<FString> Lines;
		TArray<FString> Sections;
		GConfig->GetSectionNames(TEXT("Fuzz"), Sections);
		for (const FString& Section : Sections)
		{
			TArray<FString> Values;
			GConfig->GetSection(*Section, Values, TEXT("Fuzz"));
			for (const FString& Value : Values)
			{
				Lines.Add(Section + TEXT("|") + Value);
			}
		}
		return Lines;
	}
}

extern "C" int LLVMFuzzerTestOneInput(const uint8* Data, std::size_t Size)
{
	static const FUserFolder Folder;
	Folder.Write(Data, Size);
	GConfig->Flush(true, TEXT("Fuzz"));
	GConfig->SetString(TEXT("Fuzz section"), TEXT("Key"), TEXT(" \"value\"\n"), TEXT("Fuzz"));
	const TArray<FString> Before = ReadAll();
	GConfig->Flush(true, TEXT("Fuzz"));
	const TArray<FString> After = ReadAll();
	check(Before.Num() == After.Num());
	for (const FString& Line : Before)
	{
		check(After.ContainsByPredicate([&](const FString& Other) { return Other.Equals(Line); }));
	}
	return 0;
}
