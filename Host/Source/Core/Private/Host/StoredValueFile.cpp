#include "Host/StoredValueFile.h"

#include "Containers/StringConv.h"
#include "Host/JsonDocument.h"
#include "Host/JsonWriter.h"
#include "Host/PrivateFolder.h"
#include "Logging/LogMacros.h"

namespace
{
	constexpr int64 FileFormat = 1;
	constexpr int64 MaxFileBytes = 1024 * 1024;

	/** The name of a store as that of a file: whatever is no plain letter, digit, hyphen or underscore stands as its code. */
	FString MakeFilename(const FString& Store)
	{
		FString Filename;
		const FTCHARToUTF8 Utf8(*Store, Store.Len());
		for (int32 Index = 0; Index < Utf8.Length(); ++Index)
		{
			const uint8 Byte = uint8(Utf8.Get()[Index]);
			const bool bPlain = (Byte >= '0' && Byte <= '9') || (Byte >= 'A' && Byte <= 'Z') || (Byte >= 'a' && Byte <= 'z') || Byte == '-' || Byte == '_';
			Filename += bPlain ? FString::Printf(TEXT("%c"), TCHAR(Byte)) : FString::Printf(TEXT("%%%02X"), uint32(Byte));
		}
		return Filename + TEXT(".json");
	}
}

Host::FStoredValueFile::FStoredValueFile(const FString& InFolder, const FStoredValueName& InName)
	: FolderPath(InFolder)
	, Filename(MakeFilename(InName.Store))
	, Name(InName)
{
}

Host::FStoredValueFile::EEntry Host::FStoredValueFile::Find()
{
	FPrivateFolder Folder;
	FString Reason;
	const FPrivateFolder::EOpen Opened = Folder.Open(FolderPath, false, Reason);
	if (Opened != FPrivateFolder::EOpen::Opened)
	{
		if (Opened == FPrivateFolder::EOpen::Failed)
		{
			Fail(Reason);
		}
		return EEntry::None;
	}
	// Reading needs no lock: what is there is whole. A damaged file is looked at again under it, as another program may have
	// set it aside meanwhile.
	const EReadResult Result = Read(Folder, Reason);
	if (Result == EReadResult::Failed)
	{
		Fail(Reason);
		return EEntry::None;
	}
	if (Result == EReadResult::Damaged && !ReadToChange(Folder))
	{
		return EEntry::None;
	}
	const int32 Index = FindEntry();
	if (Index == INDEX_NONE)
	{
		return EEntry::None;
	}
	if (!Entries[Index].Value.IsSet())
	{
		return EEntry::Gone;
	}
	Value = Entries[Index].Value.GetValue();
	return EEntry::Value;
}

bool Host::FStoredValueFile::SetValue(const FString& NewValue)
{
	return Change(FEntry{ Name.Section, Name.Key, NewValue });
}

bool Host::FStoredValueFile::MarkGone()
{
	return Change(FEntry{ Name.Section, Name.Key, TOptional<FString>() });
}

bool Host::FStoredValueFile::Remove()
{
	return Change(TOptional<FEntry>());
}

bool Host::FStoredValueFile::Change(const TOptional<FEntry>& Entry)
{
	FPrivateFolder Folder;
	FString Reason;
	if (Folder.Open(FolderPath, true, Reason) != FPrivateFolder::EOpen::Opened)
	{
		return Fail(Reason);
	}
	if (!ReadToChange(Folder))
	{
		return false;
	}
	const int32 Index = FindEntry();
	if (Index != INDEX_NONE)
	{
		Entries.RemoveAt(Index);
	}
	if (Entry.IsSet())
	{
		Entries.Add(Entry.GetValue());
	}
	return Write(Folder);
}

bool Host::FStoredValueFile::ReadToChange(FPrivateFolder& Folder)
{
	FString Reason;
	if (!Folder.Lock(Reason))
	{
		return Fail(Reason);
	}
	FString Damage;
	const EReadResult Result = Read(Folder, Damage);
	if (Result != EReadResult::Damaged)
	{
		return Result == EReadResult::Read || Fail(Damage);
	}
	FString Kept;
	if (!Folder.SetAside(Filename, TEXT(".damaged"), Kept, Reason))
	{
		return Fail(FString::Printf(TEXT("%s, and it cannot be set aside: %s"), *Damage, *Reason));
	}
	UE_LOG(LogCore, Warning, TEXT("%s/%s: %s; it is kept as %s, and its values count as not stored"), *FolderPath, *Filename, *Damage, *Kept);
	return true;
}

Host::FStoredValueFile::EReadResult Host::FStoredValueFile::Read(const FPrivateFolder& Folder, FString& OutReason)
{
	Entries.Reset();
	TArray<uint8> Bytes;
	bool bExposed = false;
	switch (Folder.Read(Filename, MaxFileBytes, Bytes, bExposed, OutReason))
	{
	case FPrivateFolder::ERead::Absent:
		return EReadResult::Read;
	case FPrivateFolder::ERead::Unfit:
		return EReadResult::Damaged;
	case FPrivateFolder::ERead::Failed:
		return EReadResult::Failed;
	case FPrivateFolder::ERead::Read:
		break;
	}
	if (bExposed)
	{
		UE_LOG(LogCore, Warning, TEXT("%s/%s: other users could read this file of secrets; they cannot any more"), *FolderPath, *Filename);
	}
	if (!Parse(Bytes, OutReason))
	{
		Entries.Reset();
		return EReadResult::Damaged;
	}
	return EReadResult::Read;
}

bool Host::FStoredValueFile::Parse(const TArray<uint8>& Bytes, FString& OutDamage)
{
	FJsonDocument Document;
	if (!Document.Parse(Bytes.GetData(), Bytes.Num(), TEXT("damaged")))
	{
		OutDamage = Document.GetErrors()[0];
		return false;
	}
	int64 Format = 0;
	const FJsonNode Values = Document.GetRoot().Find(TEXT("values"));
	if (!Document.GetRoot().Find(TEXT("format")).TryGetInteger(Format) || Format != FileFormat || !Values.IsArray())
	{
		OutDamage = FString::Printf(TEXT("is no file of stored values of format %lld"), FileFormat);
		return false;
	}
	for (const FJsonNode Node : Values)
	{
		FEntry Entry;
		FString Text;
		const FJsonNode ValueNode = Node.Find(TEXT("value"));
		const bool bHasText = ValueNode.TryGetString(Text);
		if (!Node.Find(TEXT("section")).TryGetString(Entry.Section) || !Node.Find(TEXT("key")).TryGetString(Entry.Key) || !ValueNode.IsValid() || (!bHasText && !ValueNode.IsNull()))
		{
			OutDamage = Node.Where() + TEXT(": is no stored value");
			return false;
		}
		if (bHasText)
		{
			Entry.Value = Text;
		}
		Entries.Add(Entry);
	}
	return true;
}

bool Host::FStoredValueFile::Write(const FPrivateFolder& Folder)
{
	FJsonWriter Writer;
	Writer.BeginObject();
	Writer.Key(TEXT("format"));
	Writer.Integer(FileFormat);
	Writer.Key(TEXT("values"));
	Writer.BeginArray();
	for (const FEntry& Entry : Entries)
	{
		Writer.BeginObject();
		Writer.Key(TEXT("section"));
		Writer.String(Entry.Section);
		Writer.Key(TEXT("key"));
		Writer.String(Entry.Key);
		Writer.Key(TEXT("value"));
		Entry.Value.IsSet() ? Writer.String(Entry.Value.GetValue()) : Writer.Null();
		Writer.EndObject();
	}
	Writer.EndArray();
	Writer.EndObject();
	const FString Text = Writer.ToString();
	const FTCHARToUTF8 Utf8(*Text, Text.Len());
	FString Reason;
	if (int64(Utf8.Length()) > MaxFileBytes)
	{
		return Fail(FString::Printf(TEXT("would have %d bytes, at most %lld are accepted"), Utf8.Length(), MaxFileBytes));
	}
	return Folder.Write(Filename, Utf8.Get(), SIZE_T(Utf8.Length()), Reason) || Fail(Reason);
}

int32 Host::FStoredValueFile::FindEntry() const
{
	return Entries.IndexOfByPredicate([this](const FEntry& Entry)
	{
		return Entry.Section.Equals(Name.Section, ESearchCase::CaseSensitive) && Entry.Key.Equals(Name.Key, ESearchCase::CaseSensitive);
	});
}

bool Host::FStoredValueFile::Fail(const FString& Reason) const
{
	UE_LOG(LogCore, Warning, TEXT("%s/%s: stored values cannot be read or written: %s"), *FolderPath, *Filename, *Reason);
	return false;
}
