#include "HAL/PlatformFileManager.h"

#include "HAL/NativePath.h"

#include <filesystem>

namespace
{
	class FPhysicalPlatformFile final : public IPlatformFile
	{
	public:
		virtual ESymlinkResult IsSymlink(const TCHAR* Filename) override
		{
			std::error_code Error;
			return std::filesystem::is_symlink(Host::ToNativePath(Filename), Error) ? ESymlinkResult::Symlink : ESymlinkResult::NonSymlink;
		}
	};
}

FPlatformFileManager& FPlatformFileManager::Get()
{
	static FPlatformFileManager Manager;
	return Manager;
}

IPlatformFile& FPlatformFileManager::GetPlatformFile()
{
	static FPhysicalPlatformFile PlatformFile;
	return PlatformFile;
}
