#include "Project/SafeFile.h"

#include "HAL/FileManager.h"
#include "HalvexSDKLog.h"

bool FSafeFile::SaveText(const FString& Filename, const FString& Text, FFileHelper::EEncodingOptions Encoding)
{
	const FString Temporary = Filename + TEXT(".writing");
	if (FFileHelper::SaveStringToFile(Text, *Temporary, Encoding) && IFileManager::Get().Move(*Filename, *Temporary, true))
	{
		return true;
	}
	IFileManager::Get().Delete(*Temporary, false, false, true);
	UE_LOG(LogHalvexSDK, Warning, TEXT("%s: the file could not be written; what was there stays"), *Filename);
	return false;
}
