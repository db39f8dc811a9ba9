#pragma once

#include "CoreMinimal.h"

/** Addresses at which projects are. */
class HALVEXSDK_API FProjectAddress
{
public:
	/** Whether the text is an address of http or https, not a folder. */
	static bool IsAddress(const FString& Text);

	/** The address of the project's file: the given one when it leads to a file of JSON, else that of project.json in it. */
	static FString GetFile(const FString& Address);

	/** The address of the folder that a file is in, with "/" at its end. */
	static FString GetFolder(const FString& FileAddress);

	/** The address for people and logs: without user, password and query, which may be secret. */
	static FString ForPeople(const FString& Address);
};
