#pragma once

#include "CoreMinimal.h"
#include "Images/HalvexImageModels.h"

/** Addresses of pictures. */
namespace HalvexImageAddress
{
	/**
	 * The address of the rendition that fits a size best: one made for it, else the general address, else the next larger
	 * rendition, else the largest. Empty when there is none.
	 */
	FString Choose(const FImageObjectData& Data, EImageRequestSize Size);

	bool IsFile(const FString& Address);
	bool IsHttp(const FString& Address);

	/** The address without what may be secret, user and query, and short enough for a line of the log. */
	FString ForLog(const FString& Address);

	/**
	 * The file that an address of file means, in the project's folder of images.
	 * @param OutReason	why there is none: the address is malformed, or leads out of the folder by its text or by a link
	 */
	bool ResolveFile(const FString& Address, FString& OutFilename, FString& OutReason);
}
