#include "HAL/FileManager.h"

#include "HAL/NativePath.h"
#include "Logging/LogMacros.h"
#include "Misc/Paths.h"

#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace
{
	bool Warn(const TCHAR* What, const TCHAR* Path, const std::error_code& Error)
	{
		UE_LOG(LogCore, Warning, TEXT("%s: %s: %s"), Path, What, *Host::FromNative(Error.message()));
		return false;
	}

	std::error_code MakeError(std::errc Error)
	{
		return std::make_error_code(Error);
	}

	/** Adds what a folder holds and fits a pattern; with bRecurse what the folders in it hold too. */
	void Collect(TArray<FString>& Found, const fs::path& Folder, const FString& Pattern, bool bFiles, bool bDirectories, bool bRecurse)
	{
		std::error_code Error;
		for (fs::directory_iterator Entry(Folder, Error), End; !Error && Entry != End; Entry.increment(Error))
		{
			std::error_code Gone;
			const bool bIsDirectory = Entry->is_directory(Gone);
			const FString Name = Host::FromNativePath(Entry->path().filename());
			if ((bIsDirectory ? bDirectories : bFiles) && Name.MatchesWildcard(Pattern))
			{
				Found.Add(bRecurse ? Host::FromNativePath(Entry->path()) : Name);
			}
			if (bRecurse && bIsDirectory && !Entry->is_symlink(Gone))
			{
				Collect(Found, Entry->path(), Pattern, bFiles, bDirectories, bRecurse);
			}
		}
	}

	void SortNames(TArray<FString>& Names)
	{
		Names.Sort([](const FString& A, const FString& B) { return A.Compare(B, ESearchCase::CaseSensitive) < 0; });
	}

	class FHostFileManager final : public IFileManager
	{
	public:
		virtual bool FileExists(const TCHAR* Filename) override
		{
			std::error_code Error;
			const fs::file_status Status = fs::status(Host::ToNativePath(Filename), Error);
			return fs::exists(Status) && !fs::is_directory(Status);
		}

		virtual bool DirectoryExists(const TCHAR* InDirectory) override
		{
			std::error_code Error;
			return fs::is_directory(Host::ToNativePath(InDirectory), Error);
		}

		virtual int64 FileSize(const TCHAR* Filename) override
		{
			struct stat Status;
			const bool bIsFile = stat(Host::ToNativePath(Filename).c_str(), &Status) == 0 && S_ISREG(Status.st_mode);
			return bIsFile ? int64(Status.st_size) : -1;
		}

		virtual FDateTime GetTimeStamp(const TCHAR* Path) override
		{
			struct stat Status;
			if (stat(Host::ToNativePath(Path).c_str(), &Status) != 0)
			{
				return FDateTime::MinValue();
			}
			return FDateTime::FromUnixTimestamp(Status.st_mtim.tv_sec) + FTimespan(Status.st_mtim.tv_nsec / 100);
		}

		virtual bool Delete(const TCHAR* Filename, bool RequireExists, bool EvenReadOnly, bool Quiet) override
		{
			const fs::path Path = Host::ToNativePath(Filename);
			std::error_code Error;
			const fs::file_status Status = fs::symlink_status(Path, Error);
			if (!fs::exists(Status))
			{
				return !RequireExists || (!Quiet && Warn(TEXT("cannot be deleted"), Filename, MakeError(std::errc::no_such_file_or_directory)));
			}
			if (fs::is_directory(Status))
			{
				return !Quiet && Warn(TEXT("cannot be deleted"), Filename, MakeError(std::errc::is_a_directory));
			}
			// The system would let the folder's owner delete it all the same.
			if (!EvenReadOnly && !fs::is_symlink(Status) && access(Path.c_str(), W_OK) != 0)
			{
				return !Quiet && Warn(TEXT("cannot be deleted"), Filename, MakeError(std::errc::permission_denied));
			}
			return fs::remove(Path, Error) || (!Quiet && Warn(TEXT("cannot be deleted"), Filename, Error));
		}

		virtual uint32 Copy(const TCHAR* Dest, const TCHAR* Src, bool Replace) override
		{
			const fs::path To = Host::ToNativePath(Dest);
			std::error_code Error;
			if (To.has_parent_path())
			{
				fs::create_directories(To.parent_path(), Error);
			}
			const fs::copy_options Options = Replace ? fs::copy_options::overwrite_existing : fs::copy_options::none;
			if (!Error && fs::copy_file(Host::ToNativePath(Src), To, Options, Error))
			{
				return COPY_OK;
			}
			Warn(*FString::Printf(TEXT("cannot be copied to %s"), Dest), Src, Error);
			return COPY_Fail;
		}

		virtual bool Move(const TCHAR* Dest, const TCHAR* Src, bool Replace) override
		{
			const fs::path From = Host::ToNativePath(Src);
			const fs::path To = Host::ToNativePath(Dest);
			std::error_code Error;
			if (!Replace && fs::exists(To, Error))
			{
				return Warn(*FString::Printf(TEXT("cannot be moved to %s"), Dest), Src, MakeError(std::errc::file_exists));
			}
			Error.clear();
			if (To.has_parent_path())
			{
				fs::create_directories(To.parent_path(), Error);
			}
			if (!Error)
			{
				fs::rename(From, To, Error);
			}
			if (Error == std::errc::cross_device_link && fs::copy_file(From, To, fs::copy_options::overwrite_existing, Error))
			{
				fs::remove(From, Error);
			}
			return !Error || Warn(*FString::Printf(TEXT("cannot be moved to %s"), Dest), Src, Error);
		}

		virtual bool MakeDirectory(const TCHAR* Path, bool Tree) override
		{
			const fs::path Native = Host::ToNativePath(Path);
			std::error_code Error;
			Tree ? fs::create_directories(Native, Error) : fs::create_directory(Native, Error);
			std::error_code Absent;
			return fs::is_directory(Native, Absent) || Warn(TEXT("the folder cannot be made"), Path, Error ? Error : MakeError(std::errc::file_exists));
		}

		virtual bool DeleteDirectory(const TCHAR* Path, bool RequireExists, bool Tree) override
		{
			const fs::path Native = Host::ToNativePath(Path);
			if (!DirectoryExists(Path))
			{
				return !RequireExists || Warn(TEXT("the folder cannot be deleted"), Path, MakeError(std::errc::no_such_file_or_directory));
			}
			std::error_code Error;
			Tree ? (void)fs::remove_all(Native, Error) : (void)fs::remove(Native, Error);
			return !Error || Warn(TEXT("the folder cannot be deleted"), Path, Error);
		}

		virtual void FindFiles(TArray<FString>& FileNames, const TCHAR* Filename, bool Files, bool Directories) override
		{
			const FString Folder = FPaths::GetPath(Filename);
			TArray<FString> Found;
			Collect(Found, Host::ToNativePath(Folder.IsEmpty() ? FString(TEXT(".")) : Folder), FPaths::GetCleanFilename(Filename), Files, Directories, false);
			SortNames(Found);
			FileNames.Append(Found);
		}

		virtual void FindFilesRecursive(TArray<FString>& FileNames, const TCHAR* StartDirectory, const TCHAR* Filename, bool Files, bool Directories, bool bClearFileNames) override
		{
			TArray<FString> Found;
			Collect(Found, Host::ToNativePath(StartDirectory), Filename, Files, Directories, true);
			SortNames(Found);
			if (bClearFileNames)
			{
				FileNames.Empty();
			}
			FileNames.Append(Found);
		}
	};
}

IFileManager& IFileManager::Get()
{
	static FHostFileManager Manager;
	return Manager;
}
