#pragma once

#include "Containers/StringConv.h"
#include "Containers/UnrealString.h"

#include <filesystem>
#include <string_view>

namespace Host
{
	/** A path as the system takes it: UTF-8. */
	inline std::filesystem::path ToNativePath(const TCHAR* Path)
	{
		return std::filesystem::path(FTCHARToUTF8(Path).Get());
	}

	inline std::filesystem::path ToNativePath(const FString& Path)
	{
		return ToNativePath(*Path);
	}

	inline FString FromNative(std::string_view Text)
	{
		return FString(FUTF8ToTCHAR(Text.data(), int32(Text.size())).Get());
	}

	inline FString FromNativePath(const std::filesystem::path& Path)
	{
		return FromNative(Path.native());
	}
}
