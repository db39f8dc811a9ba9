#include "Project/ProjectAddress.h"

#include "Images/HalvexImageAddress.h"
#include "Project/ProjectReader.h"

namespace
{
	/** Where the query or the fragment begins; the length when there is neither. */
	int32 FindPathEnd(const FString& Address)
	{
		for (int32 Index = 0; Index < Address.Len(); ++Index)
		{
			if (Address[Index] == '?' || Address[Index] == '#')
			{
				return Index;
			}
		}
		return Address.Len();
	}
}

bool FProjectAddress::IsAddress(const FString& Text)
{
	return HalvexImageAddress::IsHttp(Text.ToLower());
}

FString FProjectAddress::GetFile(const FString& Address)
{
	const int32 PathEnd = FindPathEnd(Address);
	const FString Path = Address.Left(PathEnd);
	return Path.EndsWith(TEXT(".json")) ? Address : Path / FProjectReader::FileName + Address.Mid(PathEnd);
}

FString FProjectAddress::GetFolder(const FString& FileAddress)
{
	const FString Path = FileAddress.Left(FindPathEnd(FileAddress));
	int32 LastSlash = INDEX_NONE;
	Path.FindLastChar('/', LastSlash);
	return Path.Left(LastSlash + 1);
}

FString FProjectAddress::ForPeople(const FString& Address)
{
	return HalvexImageAddress::ForLog(Address);
}
