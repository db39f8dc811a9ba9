#pragma once

#include "CoreMinimal.h"

namespace Host
{
	/**
	 * Where the users of a project sign in, as long as this lives: at a server when the project is named by an address of http or
	 * https, else inside the program, from the project's folder. It must go before the engine does.
	 */
	class FProjectConnection
	{
	public:
		/** @param Project a folder, a file in it, or an address as FProjectAddress knows them */
		explicit FProjectConnection(const FString& Project);
		~FProjectConnection();
		FProjectConnection(const FProjectConnection&) = delete;
		FProjectConnection& operator=(const FProjectConnection&) = delete;

	private:
		/** What the settings say without it. */
		FString ServiceAddress;
		/** The folder of the users' pictures; empty at a server. */
		FString ImageFolder;
	};
}
