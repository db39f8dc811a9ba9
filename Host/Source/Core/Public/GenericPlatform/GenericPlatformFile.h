#pragma once

#include "HAL/Platform.h"

/** What is known about a path that may be a link. */
enum class ESymlinkResult : int8
{
	Unimplemented = -1,
	NonSymlink = 0,
	Symlink = 1,
};

/** The files of the system, without the checks and the log of IFileManager. */
class IPlatformFile
{
public:
	virtual ~IPlatformFile() = default;

	/** Whether the last part of the path is a link; what is not there is none. */
	virtual ESymlinkResult IsSymlink(const TCHAR* Filename) = 0;
};
