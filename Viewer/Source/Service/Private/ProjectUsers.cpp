#include "Host/ProjectUsers.h"

#include "Containers/StringConv.h"
#include "Crypto.h"
#include "Host/Files.h"
#include "Host/JsonDocument.h"
#include "Misc/Guid.h"
#include "Misc/Paths.h"
#include "ServiceLog.h"
#include "UserMembers.h"

#include <fcntl.h>
#include <unistd.h>

const TCHAR* const Host::FProjectUsers::FileName = TEXT("users.json");

namespace
{
	using Host::FJsonNode;
	using Host::FProjectUser;
	using Host::FProjectUsers;

	Host::FJsonLimits GetLimits()
	{
		Host::FJsonLimits Limits;
		Limits.MaxBytes = 4 * 1024 * 1024;
		return Limits;
	}

	void Report(const FJsonNode& Node, const FString& Problem)
	{
		UE_LOG(LogService, Warning, TEXT("%s: %s; the user is left out"), *Node.Where(), *Problem);
	}

	/** Reads a text; one that is not there leaves the output alone. False when it is of another kind. */
	bool ReadText(const FJsonNode& User, const TCHAR* Member, FString& OutText)
	{
		const FJsonNode Node = User.Find(Member);
		if (Node.IsValid() && !Node.TryGetString(OutText))
		{
			Report(Node, FString::Printf(TEXT("%s: expected a text, found %s"), Member, Host::DescribeJsonKind(Node.GetKind())));
			return false;
		}
		return true;
	}

	bool ReadUser(const FJsonNode& Node, const TArray<FProjectUser>& Others, FProjectUser& OutUser)
	{
		if (!Node.IsObject())
		{
			Report(Node, FString::Printf(TEXT("expected an object, found %s"), Host::DescribeJsonKind(Node.GetKind())));
			return false;
		}
		if (!ReadText(Node, TEXT("id"), OutUser.Id) || !ReadText(Node, TEXT("userName"), OutUser.UserName) || !ReadText(Node, TEXT("displayName"), OutUser.DisplayName)
			|| !ReadText(Node, TEXT("email"), OutUser.Email) || !ReadText(Node, TEXT("picture"), OutUser.Picture) || !ReadText(Node, TEXT("passwordHash"), OutUser.PasswordHash))
		{
			return false;
		}
		if (OutUser.Id.IsEmpty() || OutUser.UserName.IsEmpty() || OutUser.UserName.Len() > FProjectUsers::MaxUserNameLength)
		{
			Report(Node, TEXT("expected an id and a userName of at most 256 characters"));
			return false;
		}
		if (!Host::FCrypto::IsPasswordHash(OutUser.PasswordHash))
		{
			Report(Node, TEXT("passwordHash: expected an argon2id hash of at most 1 GiB and 16 rounds"));
			return false;
		}
		if (Others.ContainsByPredicate([&OutUser](const FProjectUser& Other) { return Other.Id.Equals(OutUser.Id); }) || FProjectUsers::FindByName(Others, OutUser.UserName))
		{
			Report(Node, TEXT("another user has this id or userName"));
			return false;
		}
		return true;
	}

	void Copy(const FJsonNode& Node, Host::FJsonWriter& Writer)
	{
		int64 Whole = 0;
		double Number = 0.0;
		bool bValue = false;
		switch (Node.GetKind())
		{
		case Host::EJsonKind::Null:
			Writer.Null();
			break;
		case Host::EJsonKind::Boolean:
			Node.TryGetBool(bValue);
			Writer.Bool(bValue);
			break;
		case Host::EJsonKind::Number:
			Node.TryGetNumber(Number);
			Node.TryGetInteger(Whole) ? Writer.Integer(Whole) : Writer.Number(Number);
			break;
		case Host::EJsonKind::String:
			Writer.String(Node.GetString());
			break;
		case Host::EJsonKind::Array:
			Writer.BeginArray();
			for (const FJsonNode Child : Node)
			{
				Copy(Child, Writer);
			}
			Writer.EndArray();
			break;
		case Host::EJsonKind::Object:
			Writer.BeginObject();
			for (const FJsonNode Child : Node)
			{
				Writer.Key(Child.GetKey());
				Copy(Child, Writer);
			}
			Writer.EndObject();
			break;
		}
	}

	void WriteUser(const FProjectUser& User, Host::FJsonWriter& Writer)
	{
		Writer.BeginObject();
		Host::WriteUserMembers(User, Writer);
		Writer.Key(TEXT("passwordHash"));
		Writer.String(User.PasswordHash);
		Writer.EndObject();
	}

	/** The text of the file with one user more, and all else as it is. */
	FString AddToText(const FJsonNode& Root, const FProjectUser& User)
	{
		Host::FJsonWriter Writer;
		Writer.BeginObject();
		for (const FJsonNode Member : Root)
		{
			if (Member.GetKey() != TEXT("users"))
			{
				Writer.Key(Member.GetKey());
				Copy(Member, Writer);
			}
		}
		Writer.Key(TEXT("users"));
		Writer.BeginArray();
		for (const FJsonNode Other : Root.Find(TEXT("users")))
		{
			Copy(Other, Writer);
		}
		WriteUser(User, Writer);
		Writer.EndArray();
		Writer.EndObject();
		return Writer.ToString();
	}

	/** An empty file that only this system's user can read, for what is written over it keeps its rights. */
	bool MakePrivateFile(const FString& Filename)
	{
		const int File = open(TCHAR_TO_UTF8(*Filename), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0600);
		return File >= 0 && close(File) == 0;
	}
}

TArray<FProjectUser> Host::FProjectUsers::Load(const FString& Folder)
{
	TArray<FProjectUser> Users;
	const FString Filename = Folder / FileName;
	if (FFiles::IsAbsent(Filename))
	{
		return Users;
	}
	FJsonDocument Document;
	if (!Document.LoadFile(Filename, GetLimits()))
	{
		UE_LOG(LogService, Warning, TEXT("%s; nobody can sign in"), *Document.GetErrors()[0]);
		return Users;
	}
	const FJsonNode List = Document.GetRoot().Find(TEXT("users"));
	if (!List.IsArray())
	{
		UE_LOG(LogService, Warning, TEXT("%s: expected an object with an array \"users\"; nobody can sign in"), *Filename);
		return Users;
	}
	for (const FJsonNode Node : List)
	{
		FProjectUser User;
		if (ReadUser(Node, Users, User))
		{
			Users.Add(User);
		}
	}
	return Users;
}

bool Host::FProjectUsers::Add(const FString& Folder, const FString& UserName, const FString& Password, FString& OutReason)
{
	if (UserName.IsEmpty() || UserName.Len() > MaxUserNameLength || UserName.Contains(TEXT("\n")))
	{
		OutReason = TEXT("a user name has 1 to 256 characters, on one line");
		return false;
	}
	const int32 PasswordBytes = FTCHARToUTF8(*Password, Password.Len()).Length();
	if (PasswordBytes == 0 || PasswordBytes > MaxPasswordBytes)
	{
		OutReason = TEXT("a password has 1 to 1024 bytes");
		return false;
	}
	const FString Filename = Folder / FileName;
	FJsonDocument Document;
	const bool bNew = FFiles::IsAbsent(Filename);
	if (!bNew && !Document.LoadFile(Filename, GetLimits()))
	{
		OutReason = Document.GetErrors()[0];
		return false;
	}
	if (!bNew && !Document.GetRoot().Find(TEXT("users")).IsArray())
	{
		OutReason = Filename + TEXT(": expected an object with an array \"users\"");
		return false;
	}
	if (FindByName(bNew ? TArray<FProjectUser>() : Load(Folder), UserName))
	{
		OutReason = TEXT("there is a user of that name");
		return false;
	}
	FProjectUser User;
	User.Id = FGuid::NewGuid().ToString();
	User.UserName = UserName;
	User.DisplayName = UserName;
	User.PasswordHash = FCrypto::HashPassword(Password);
	if (User.PasswordHash.IsEmpty())
	{
		OutReason = TEXT("there is not enough memory to hash the password");
		return false;
	}
	const FString Text = AddToText(Document.GetRoot(), User);
	const FTCHARToUTF8 Utf8(*Text, Text.Len());
	if (bNew && !MakePrivateFile(Filename))
	{
		OutReason = Filename + TEXT(": the file cannot be made");
		return false;
	}
	if (!FFiles::Write(Filename, Utf8.Get(), Utf8.Length(), OutReason))
	{
		OutReason = Filename + TEXT(": ") + OutReason;
		if (bNew)
		{
			unlink(TCHAR_TO_UTF8(*Filename));
		}
		return false;
	}
	return true;
}

const FProjectUser* Host::FProjectUsers::FindByName(const TArray<FProjectUser>& Users, const FString& UserName)
{
	return Users.FindByPredicate([&UserName](const FProjectUser& User) { return User.UserName.Equals(UserName, ESearchCase::IgnoreCase); });
}
