#pragma once

#include "Containers/Array.h"
#include "Containers/UnrealString.h"

namespace Host
{
	/** Somebody who may sign in to a project. */
	struct FProjectUser
	{
		FString Id;
		/** What is typed at the sign-in; the case of ASCII letters does not count. */
		FString UserName;
		FString DisplayName;
		FString Email;
		/** The picture's file, as a path from the project's folder; empty for none. */
		FString Picture;
		/** As libsodium's crypto_pwhash_str writes it (argon2id): with its salt and its cost. */
		FString PasswordHash;
	};

	/** The file with the users of a project. */
	class FProjectUsers
	{
	public:
		static constexpr int32 MaxUserNameLength = 256;
		/** In bytes of UTF-8. */
		static constexpr int32 MaxPasswordBytes = 1024;

		/** "users.json" */
		PROJECTSERVICE_API static const TCHAR* const FileName;

		/**
		 * Reads the users of a project's folder. What is wrong is one line in the log, and the user whom it is about is left out.
		 * A folder without the file has no users.
		 */
		PROJECTSERVICE_API static TArray<FProjectUser> Load(const FString& Folder);

		/**
		 * Adds a user to the file, keeping all else in it; makes a file that only this system's user can read when there is none.
		 * The cost of the hash is libsodium's for interactive use: 64 MiB and about 0.1 seconds.
		 * @return false, with the reason, when the name or the password will not do, the name is taken, or the file cannot be
		 *         read or written; it then is as it was
		 */
		PROJECTSERVICE_API static bool Add(const FString& Folder, const FString& UserName, const FString& Password, FString& OutReason);

		/** Case-insensitive, as at the sign-in. Null when there is none. */
		PROJECTSERVICE_API static const FProjectUser* FindByName(const TArray<FProjectUser>& Users, const FString& UserName);
	};
}
