#include "UObject/ObjectPath.h"

namespace Host
{
	FString StripExportText(const FString& Path)
	{
		int32 FirstQuote = INDEX_NONE;
		if (!Path.EndsWith(TEXT("'")) || !Path.FindChar(TEXT('\''), FirstQuote) || FirstQuote == Path.Len() - 1)
		{
			return Path;
		}
		return Path.Mid(FirstQuote + 1, Path.Len() - FirstQuote - 2);
	}

	FObjectPathParts::FObjectPathParts(const TCHAR* InPath) : Path(StripExportText(FString(InPath)))
	{
		if (Path.IsEmpty())
		{
			Position = 1;
		}
	}

	FString FObjectPathParts::Next()
	{
		int32 End = Position;
		// Dots in the folders of a package are part of its name.
		const int32 LastSlash = Path.Find(TEXT("/"), ESearchCase::CaseSensitive, ESearchDir::FromEnd);
		while (End < Path.Len() && (End < LastSlash || (Path[End] != TEXT('.') && Path[End] != TEXT(':'))))
		{
			++End;
		}
		FString Part = Path.Mid(Position, End - Position);
		Position = End + 1;
		return Part;
	}
}
