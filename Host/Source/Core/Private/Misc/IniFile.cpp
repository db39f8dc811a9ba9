#include "Misc/IniFile.h"

#include "Containers/StringConv.h"
#include "Host/Files.h"
#include "Logging/LogMacros.h"
#include "Misc/FileHelper.h"
#include "Misc/Paths.h"

#include <algorithm>

namespace
{
	bool HasUtf16Mark(const TArray<uint8>& Bytes)
	{
		return Bytes.Num() >= 2 && ((Bytes[0] == 0xFF && Bytes[1] == 0xFE) || (Bytes[0] == 0xFE && Bytes[1] == 0xFF));
	}

	/** Whether nothing of the bytes was lost on the way to the text. */
	bool IsFaithful(const TArray<uint8>& Bytes, const FString& Text)
	{
		const FTCHARToUTF8 Utf8(*Text, Text.Len());
		if (HasUtf16Mark(Bytes))
		{
			const FUTF8ToTCHAR Again(Utf8.Get(), Utf8.Length());
			return Bytes.Num() % 2 == 0 && Text.Equals(FStringView(Again.Get(), Again.Length()), ESearchCase::CaseSensitive);
		}
		// Both ends, so that a byte order mark in front does not count.
		return Utf8.Length() <= Bytes.Num() && Bytes.Num() - Utf8.Length() <= 3
			&& std::equal(Utf8.Get(), Utf8.Get() + Utf8.Length(), reinterpret_cast<const ANSICHAR*>(Bytes.GetData()) + (Bytes.Num() - Utf8.Length()));
	}

	/** The text of a file. Returns false, with the reason, when the bytes are no text. */
	bool Decode(const TArray<uint8>& Bytes, FString& OutText, FString& OutReason)
	{
		FFileHelper::BufferToString(OutText, Bytes.GetData(), Bytes.Num());
		for (const TCHAR Unit : OutText)
		{
			if (Unit < 0x20 && Unit != TEXT('\t') && Unit != TEXT('\n') && Unit != TEXT('\r'))
			{
				OutReason = FString::Printf(TEXT("it is no text: it holds the control character 0x%02X"), uint32(Unit));
				return false;
			}
		}
		if (!IsFaithful(Bytes, OutText))
		{
			OutReason = TEXT("it is no text: it holds malformed characters");
			return false;
		}
		return true;
	}

	bool IsEntryOf(const Host::FIniLine& Line, const FString& Section, const FString& Key)
	{
		return Line.Kind == Host::EIniLine::Entry && Line.Key == Key && Line.Section == Section;
	}
}

void Host::FIniFile::Load(const FString& Filename)
{
	Lines.Empty();
	bLeftOut = false;
	if (FFiles::IsAbsent(Filename))
	{
		return;
	}
	TArray<uint8> Bytes;
	FString Text;
	FString Reason;
	if (!FFiles::Read(Filename, MaxBytes, Bytes, Reason) || !Decode(Bytes, Text, Reason))
	{
		UE_LOG(LogCore, Warning, TEXT("%s: the configuration file is left out: %s"), *Filename, *Reason);
		bLeftOut = true;
		return;
	}
	ReadLines(Text);
	ReportFaults(Filename);
}

void Host::FIniFile::ReadLines(const FString& Text)
{
	FString Section;
	bool bInSection = false;
	bool bBelowFault = false;
	for (FStringView Rest = Text; !Rest.IsEmpty();)
	{
		int32 End = INDEX_NONE;
		const bool bEnded = Rest.FindChar(TEXT('\n'), End);
		FIniLine Line = ParseIniLine(bEnded ? Rest.Left(End) : Rest);
		Rest = bEnded ? Rest.RightChop(End + 1) : FStringView();

		if (Line.Kind == EIniLine::Section)
		{
			Section = Line.Section;
			bInSection = true;
			bBelowFault = false;
		}
		else if (Line.Kind == EIniLine::Fault && Line.Text.TrimStart().StartsWith(TEXT("[")))
		{
			// What follows would count for the section above.
			bInSection = false;
			bBelowFault = true;
		}
		else if (Line.Kind == EIniLine::Entry && !bInSection)
		{
			// Below a broken section the lines are remarked on once, by the section's fault.
			Line.Kind = bBelowFault ? EIniLine::Remark : EIniLine::Fault;
			Line.Reason = TEXT("expected a [Section] before the first key");
		}
		else
		{
			Line.Section = bInSection ? Section : FString();
		}
		Lines.Add(MoveTemp(Line));
	}
}

void Host::FIniFile::ReportFaults(const FString& Filename) const
{
	int32 First = INDEX_NONE;
	int32 Count = 0;
	for (int32 Index = 0; Index < Lines.Num(); ++Index)
	{
		if (Lines[Index].Kind == EIniLine::Fault)
		{
			First = Count++ == 0 ? Index : First;
		}
	}
	if (Count == 1)
	{
		UE_LOG(LogCore, Warning, TEXT("%s:%d: %s"), *Filename, First + 1, Lines[First].Reason);
	}
	else if (Count > 1)
	{
		UE_LOG(LogCore, Warning, TEXT("%s:%d: %s (and %d more faulty lines)"), *Filename, First + 1, Lines[First].Reason, Count - 1);
	}
}

int32 Host::FIniFile::FindEndOfSection(const FString& Section)
{
	// Behind its last entry, so that remarks above the next section stay there.
	for (int32 Index = Lines.Num() - 1; Index >= 0; --Index)
	{
		const FIniLine& Line = Lines[Index];
		if ((Line.Kind == EIniLine::Entry || Line.Kind == EIniLine::Section) && Line.Section == Section)
		{
			return Index + 1;
		}
	}
	if (!Lines.IsEmpty())
	{
		Lines.AddDefaulted();
	}
	Lines.Add(MakeIniSection(Section));
	return Lines.Num();
}

void Host::FIniFile::SetValues(const FString& Section, const FString& Key, const TArray<FString>& Values)
{
	int32 Place = Lines.IndexOfByPredicate([&](const FIniLine& Line) { return IsEntryOf(Line, Section, Key); });
	if (Place == INDEX_NONE)
	{
		Place = FindEndOfSection(Section);
	}
	else
	{
		RemoveKey(Section, Key);
	}
	for (const FString& Value : Values)
	{
		Lines.Insert(MakeIniEntry(Section, Key, Value), Place++);
	}
	if (Values.IsEmpty())
	{
		Lines.Insert(MakeIniEntry(Section, Key, TEXT("ClearArray"), TEXT('!')), Place);
	}
}

bool Host::FIniFile::RemoveKey(const FString& Section, const FString& Key)
{
	return Lines.RemoveAll([&](const FIniLine& Line) { return IsEntryOf(Line, Section, Key); }) > 0;
}

bool Host::FIniFile::RemoveSection(const FString& Section)
{
	return Lines.RemoveAll([&](const FIniLine& Line)
	{
		return (Line.Kind == EIniLine::Section || Line.Kind == EIniLine::Entry) && Line.Section == Section;
	}) > 0;
}

bool Host::FIniFile::Save(const FString& Filename)
{
	FString Reason;
	// What was left out may be gone meanwhile.
	if (bLeftOut && FPaths::FileExists(Filename))
	{
		FString Kept;
		if (!FFiles::SetAside(Filename, TEXT(".damaged"), Kept, Reason))
		{
			UE_LOG(LogCore, Warning, TEXT("%s: the configuration cannot be saved: what is there cannot be read, nor kept under another name: %s"), *Filename, *Reason);
			return false;
		}
		UE_LOG(LogCore, Log, TEXT("%s: what could not be read is kept as %s"), *Filename, *Kept);
	}
	bLeftOut = false;
	FString Text;
	for (const FIniLine& Line : Lines)
	{
		Text += Line.Text;
		Text += TEXT("\n");
	}
	const FTCHARToUTF8 Utf8(*Text, Text.Len());
	if (!FFiles::Write(Filename, Utf8.Get(), Utf8.Length(), Reason))
	{
		UE_LOG(LogCore, Warning, TEXT("%s: the configuration cannot be saved: %s"), *Filename, *Reason);
		return false;
	}
	return true;
}
