#pragma once

#include "CoreMinimal.h"

namespace Host
{
	/** Splits an object path into the names on the way: the package, the object in it, what is inside that. */
	class FObjectPathParts
	{
	public:
		/** The path with or without its class: "Class'/Mount/Dir/Asset.Asset'". */
		explicit FObjectPathParts(const TCHAR* InPath);

		bool HasMore() const { return Position <= Path.Len(); }
		FString Next();

	private:
		FString Path;
		int32 Position = 0;
	};

	/** Takes the class and the quotes off "Class'/Mount/Dir/Asset.Asset'". */
	FString StripExportText(const FString& Path);
}
