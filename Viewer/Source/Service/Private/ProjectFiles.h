#pragma once

#include "Containers/Array.h"
#include "Containers/UnrealString.h"

namespace Host
{
	/** The files of a project that anybody may have. */
	class FProjectFiles
	{
	public:
		enum class EFind : uint8
		{
			Found,
			/** The path is no path: a percent sign without a code behind it. */
			Malformed,
			/** There is none, or none that is given out. */
			Absent,
			/** One line in the log says why. */
			Failed,
		};

		/**
		 * Reads the file that the path of an address leads to. Given out are regular files below the folder; links are not
		 * followed, and names that begin with a dot, or with that of the users' file, do not exist.
		 * @param Target	as in a request, without a query
		 * @param OutName	the file's own name
		 */
		static EFind Read(const FString& Folder, const FString& Target, FString& OutName, TArray<uint8>& OutBytes);

		/** The type of content for a name's ending. */
		static const TCHAR* GetContentType(const FString& Name);
	};
}
