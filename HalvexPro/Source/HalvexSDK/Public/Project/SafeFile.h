#pragma once

#include "CoreMinimal.h"
#include "Misc/FileHelper.h"

/** Writes files so that whatever happens on the way, the old content or the new one is there, never a part of it. */
class HALVEXSDK_API FSafeFile
{
public:
	/**
	 * Writes the text beside the file first, then puts it in the file's place; the folders on the way are made.
	 * @return false when that failed: one line in the log, and the file is as it was
	 */
	static bool SaveText(const FString& Filename, const FString& Text, FFileHelper::EEncodingOptions Encoding);
};
