#include "Host/ProjectService.h"

#include "Containers/StringConv.h"
#include "Crypto.h"
#include "HAL/FileManager.h"
#include "HAL/PlatformMisc.h"
#include "Host/Files.h"
#include "Host/ProjectUsers.h"
#include "Misc/Paths.h"
#include "ProjectFiles.h"
#include "ServiceAnswers.h"
#include "ServiceLog.h"
#include "ServiceSessions.h"
#include "SignInAttempts.h"
#include "UserMembers.h"

#include <chrono>
#include <mutex>

using Host::FProjectUser;
using Host::FServiceRequest;
using Host::FServiceResponse;
using Host::FServiceSessions;
namespace ServiceAnswers = Host::ServiceAnswers;

namespace
{
	constexpr int32 MaxTargetLength = 4096;

	/** Of what the service keeps beyond its end. */
	const TCHAR* const StoreId = TEXT("HalvexService");
	const TCHAR* const SessionsKey = TEXT("Sessions");

	double GetSystemTime()
	{
		return std::chrono::duration<double>(std::chrono::system_clock::now().time_since_epoch()).count();
	}

	FString RemoveQuery(const FString& Target)
	{
		int32 Query = INDEX_NONE;
		return Target.FindChar(TEXT('?'), Query) ? Target.Left(Query) : Target;
	}

	/** The token of "Bearer TOKEN"; empty for anything else. */
	FString GetBearerToken(const FString& Authorization)
	{
		const FString Scheme = TEXT("Bearer ");
		return Authorization.StartsWith(Scheme, ESearchCase::IgnoreCase) ? Authorization.RightChop(Scheme.Len()).TrimStartAndEnd() : FString();
	}

	FProjectUser MakeGuest()
	{
		FProjectUser Guest;
		Guest.Id = TEXT("guest");
		Guest.UserName = TEXT("guest");
		Guest.DisplayName = TEXT("Guest");
		return Guest;
	}

	void WriteUser(const FProjectUser& User, bool bGuest, Host::FJsonWriter& Writer)
	{
		Writer.Key(TEXT("guest"));
		Writer.Bool(bGuest);
		Writer.Key(TEXT("user"));
		Writer.BeginObject();
		Host::WriteUserMembers(User, Writer);
		if (!User.Picture.IsEmpty())
		{
			Writer.Key(TEXT("picture"));
			Writer.BeginObject();
			Writer.Key(TEXT("id"));
			Writer.String(FPaths::GetBaseFilename(User.Picture));
			Writer.Key(TEXT("address"));
			Writer.String(User.Picture);
			Writer.EndObject();
		}
		Writer.EndObject();
	}

	/** Whether a list of tags in a request holds the tag, or stands for all. */
	bool HoldsTag(const FString& List, const FString& Tag)
	{
		TArray<FString> Tags;
		List.ParseIntoArray(Tags, TEXT(","), true);
		for (FString& Entry : Tags)
		{
			Entry.TrimStartAndEndInline();
			Entry.RemoveFromStart(TEXT("W/"));
			if (Entry.Equals(TEXT("*")) || Entry.Equals(Tag))
			{
				return true;
			}
		}
		return false;
	}
}

struct Host::FProjectService::FImplementation
{
	explicit FImplementation(const FProjectServiceSettings& InSettings)
		: Settings(InSettings)
		, Folder(FFiles::Resolve(InSettings.Folder))
		, Sessions(InSettings.TokenSeconds, InSettings.RefreshSeconds)
		, Attempts(InSettings.MaxAttemptsForUser, InSettings.MaxAttemptsFromAddress, InSettings.AttemptSeconds)
	{
	}

	double GetTime() const { return Settings.Clock ? Settings.Clock() : GetSystemTime(); }
	FString GetSection() const { return Folder.IsEmpty() ? Settings.Folder : Folder; }

	FServiceResponse Handle(const FServiceRequest& Request);
	FServiceResponse SignIn(const FServiceRequest& Request);
	FServiceResponse SignInGuest(const FServiceRequest& Request);
	FServiceResponse Refresh(const FServiceRequest& Request);
	FServiceResponse SignOut(const FServiceRequest& Request);
	FServiceResponse GetUser(const FServiceRequest& Request);
	FServiceResponse GetFile(const FServiceRequest& Request, const FString& Path);

	// The lock must be held for these.
	/** Reads the users again when their file was written. */
	void RefreshUsers();
	/** The user behind a session; false when there is none any more. */
	bool FindUser(const FServiceSessions::FUser& Session, FProjectUser& OutUser);
	FServiceResponse MakeSession(const FProjectUser& User, bool bGuest, const FServiceSessions::FTokens& Tokens) const;
	/** Takes over what is kept of remembered sign-ins, which another program over the same project may have changed. */
	void ReadSessions();
	void KeepSessions();

	const FProjectServiceSettings Settings;
	/** With every link followed. */
	const FString Folder;

	std::mutex Mutex;
	FServiceSessions Sessions;
	FSignInAttempts Attempts;
	TArray<FProjectUser> Users;
	bool bUsersRead = false;
	FDateTime UsersTime;
	int64 UsersSize = -1;
	/** What the password of somebody unknown is compared with when there are no users. */
	FString StandInHash;
};

Host::FProjectService::FProjectService(const FProjectServiceSettings& Settings)
	: Implementation(std::make_unique<FImplementation>(Settings))
{
}

Host::FProjectService::~FProjectService() = default;

FServiceResponse Host::FProjectService::Handle(const FServiceRequest& Request)
{
	return Implementation->Handle(Request);
}

FServiceResponse Host::FProjectService::FImplementation::Handle(const FServiceRequest& Request)
{
	struct FRoute
	{
		const TCHAR* Path;
		const TCHAR* Method;
		FServiceResponse (FImplementation::*Answer)(const FServiceRequest&);
		/** All methods of the path. */
		const TCHAR* Allowed;
	};
	static const FRoute Routes[] = {
		{ TEXT("/api/session"), TEXT("POST"), &FImplementation::SignIn, TEXT("POST, DELETE") },
		{ TEXT("/api/session"), TEXT("DELETE"), &FImplementation::SignOut, TEXT("POST, DELETE") },
		{ TEXT("/api/session/guest"), TEXT("POST"), &FImplementation::SignInGuest, TEXT("POST") },
		{ TEXT("/api/session/refresh"), TEXT("POST"), &FImplementation::Refresh, TEXT("POST") },
		{ TEXT("/api/user"), TEXT("GET"), &FImplementation::GetUser, TEXT("GET, HEAD") },
		{ TEXT("/api/user"), TEXT("HEAD"), &FImplementation::GetUser, TEXT("GET, HEAD") },
	};
	if (Request.Body.Num() > MaxBodyBytes)
	{
		return ServiceAnswers::MakeError(413, TEXT("too_large"), FString::Printf(TEXT("A body has at most %d bytes."), MaxBodyBytes));
	}
	if (Request.Target.Len() > MaxTargetLength)
	{
		return ServiceAnswers::MakeMalformed(FString::Printf(TEXT("An address has at most %d characters."), MaxTargetLength));
	}
	const FString Path = RemoveQuery(Request.Target);
	const TCHAR* Allowed = nullptr;
	for (const FRoute& Route : Routes)
	{
		if (!Path.Equals(Route.Path))
		{
			continue;
		}
		if (Request.Method.Equals(Route.Method))
		{
			return (this->*Route.Answer)(Request);
		}
		Allowed = Route.Allowed;
	}
	if (Allowed)
	{
		return ServiceAnswers::MakeMethodNotAllowed(Allowed);
	}
	if (!Request.Method.Equals(TEXT("GET")) && !Request.Method.Equals(TEXT("HEAD")))
	{
		return ServiceAnswers::MakeMethodNotAllowed(TEXT("GET, HEAD"));
	}
	return GetFile(Request, Path);
}

FServiceResponse Host::FProjectService::FImplementation::SignIn(const FServiceRequest& Request)
{
	FServiceResponse Error;
	FJsonDocument Body;
	FString UserName;
	FString Password;
	bool bRemember = false;
	if (!ServiceAnswers::ReadObject(Request.Body, Body, Error) || !ServiceAnswers::ReadText(Body, TEXT("user"), UserName, Error)
		|| !ServiceAnswers::ReadText(Body, TEXT("password"), Password, Error) || !ServiceAnswers::ReadBool(Body, TEXT("remember"), bRemember, Error))
	{
		return Error;
	}
	if (UserName.Len() > FProjectUsers::MaxUserNameLength || FTCHARToUTF8(*Password, Password.Len()).Length() > FProjectUsers::MaxPasswordBytes)
	{
		return ServiceAnswers::MakeMalformed(FString::Printf(TEXT("A user name has at most %d characters, a password %d bytes."), FProjectUsers::MaxUserNameLength, FProjectUsers::MaxPasswordBytes));
	}

	FProjectUser User;
	FString PasswordHash;
	{
		const std::scoped_lock Lock(Mutex);
		const int32 Wait = Attempts.GetWait(UserName, Request.ClientAddress, GetTime());
		if (Wait > 0)
		{
			FServiceResponse TooMany = ServiceAnswers::MakeError(429, TEXT("too_many_attempts"), TEXT("Too many wrong passwords; try again later."));
			TooMany.Headers.Add({ TEXT("Retry-After"), FString::FromInt(Wait) });
			return TooMany;
		}
		RefreshUsers();
		const FProjectUser* const Found = FProjectUsers::FindByName(Users, UserName);
		User = Found ? *Found : FProjectUser();
		// Somebody unknown costs as much time as a wrong password, so that time does not tell who is known.
		PasswordHash = Found ? Found->PasswordHash : Users.Num() > 0 ? Users[0].PasswordHash : StandInHash;
	}
	// Without the lock: others need not wait for it.
	const bool bRight = FCrypto::VerifyPassword(PasswordHash, Password) && !User.Id.IsEmpty();

	const std::scoped_lock Lock(Mutex);
	if (!bRight)
	{
		Attempts.CountFailure(UserName, Request.ClientAddress, GetTime());
		return ServiceAnswers::MakeError(401, TEXT("invalid_credentials"), TEXT("The user name or the password is wrong."));
	}
	Attempts.Forgive(UserName, Request.ClientAddress);
	ReadSessions();
	const FServiceSessions::FTokens Tokens = Sessions.Begin({ User.Id, false }, bRemember, GetTime());
	KeepSessions();
	return MakeSession(User, false, Tokens);
}

FServiceResponse Host::FProjectService::FImplementation::SignInGuest(const FServiceRequest& Request)
{
	FServiceResponse Error;
	FJsonDocument Body;
	if (!ServiceAnswers::ReadObject(Request.Body, Body, Error))
	{
		return Error;
	}
	const std::scoped_lock Lock(Mutex);
	return MakeSession(MakeGuest(), true, Sessions.Begin({ FString(), true }, false, GetTime()));
}

FServiceResponse Host::FProjectService::FImplementation::Refresh(const FServiceRequest& Request)
{
	FServiceResponse Error;
	FJsonDocument Body;
	FString RefreshToken;
	if (!ServiceAnswers::ReadObject(Request.Body, Body, Error) || !ServiceAnswers::ReadText(Body, TEXT("refreshToken"), RefreshToken, Error))
	{
		return Error;
	}
	const std::scoped_lock Lock(Mutex);
	FServiceSessions::FUser Session;
	FServiceSessions::FTokens Tokens;
	FProjectUser User;
	ReadSessions();
	const bool bRefreshed = Sessions.Refresh(RefreshToken, GetTime(), Session, Tokens);
	const bool bKnown = bRefreshed && FindUser(Session, User);
	if (bRefreshed && !bKnown)
	{
		Sessions.End(Tokens.Token, Tokens.RefreshToken);
	}
	KeepSessions();
	return bKnown ? MakeSession(User, false, Tokens) : ServiceAnswers::MakeInvalidToken();
}

FServiceResponse Host::FProjectService::FImplementation::SignOut(const FServiceRequest& Request)
{
	const FString Token = GetBearerToken(Request.Authorization);
	if (Token.IsEmpty())
	{
		return ServiceAnswers::MakeInvalidToken();
	}
	FServiceResponse Response;
	FJsonDocument Body;
	FString RefreshToken;
	if (Request.Body.Num() > 0)
	{
		if (!ServiceAnswers::ReadObject(Request.Body, Body, Response)
			|| (Body.GetRoot().Find(TEXT("refreshToken")).IsValid() && !ServiceAnswers::ReadText(Body, TEXT("refreshToken"), RefreshToken, Response)))
		{
			return Response;
		}
	}
	// A token that has run out meanwhile is as void as was asked for, and what else came with it still must become so.
	const std::scoped_lock Lock(Mutex);
	ReadSessions();
	Sessions.End(Token, RefreshToken);
	KeepSessions();
	Response.Status = 204;
	return Response;
}

FServiceResponse Host::FProjectService::FImplementation::GetUser(const FServiceRequest& Request)
{
	const std::scoped_lock Lock(Mutex);
	FServiceSessions::FUser Session;
	FProjectUser User;
	if (!Sessions.Find(GetBearerToken(Request.Authorization), GetTime(), Session) || !FindUser(Session, User))
	{
		return ServiceAnswers::MakeInvalidToken();
	}
	FJsonWriter Writer;
	Writer.BeginObject();
	WriteUser(User, Session.bGuest, Writer);
	Writer.EndObject();
	return ServiceAnswers::MakeJson(Writer);
}

FServiceResponse Host::FProjectService::FImplementation::GetFile(const FServiceRequest& Request, const FString& Path)
{
	FServiceResponse Response;
	FString Name;
	switch (FProjectFiles::Read(Folder, Path, Name, Response.Body))
	{
	case FProjectFiles::EFind::Malformed:
		return ServiceAnswers::MakeMalformed(TEXT("A percent sign in an address needs two hexadecimal digits behind it."));
	case FProjectFiles::EFind::Absent:
		return ServiceAnswers::MakeNotFound();
	case FProjectFiles::EFind::Failed:
		return ServiceAnswers::MakeError(500, TEXT("internal"), TEXT("The file cannot be read."));
	case FProjectFiles::EFind::Found:
		break;
	}
	const FString Tag = TEXT("\"") + FCrypto::Hash(Response.Body).Left(32) + TEXT("\"");
	Response.Status = 200;
	Response.Headers.Add({ TEXT("ETag"), Tag });
	// May be kept, and is asked for again each time.
	Response.Headers.Add({ TEXT("Cache-Control"), TEXT("no-cache") });
	if (HoldsTag(Request.IfNoneMatch, Tag))
	{
		Response.Status = 304;
		Response.Body.Empty();
		return Response;
	}
	Response.Headers.Add({ TEXT("Content-Type"), FProjectFiles::GetContentType(Name) });
	Response.Headers.Add({ TEXT("X-Content-Type-Options"), TEXT("nosniff") });
	return Response;
}

void Host::FProjectService::FImplementation::RefreshUsers()
{
	const FString Filename = Folder / FProjectUsers::FileName;
	const FDateTime Time = IFileManager::Get().GetTimeStamp(*Filename);
	const int64 Size = IFileManager::Get().FileSize(*Filename);
	if (!bUsersRead || Time != UsersTime || Size != UsersSize)
	{
		Users = FProjectUsers::Load(Folder);
		bUsersRead = true;
		UsersTime = Time;
		UsersSize = Size;
	}
	if (Users.Num() == 0 && StandInHash.IsEmpty())
	{
		StandInHash = FCrypto::HashPassword(FCrypto::ToBase64(FCrypto::MakeRandom(32)));
	}
}

bool Host::FProjectService::FImplementation::FindUser(const FServiceSessions::FUser& Session, FProjectUser& OutUser)
{
	if (Session.bGuest)
	{
		OutUser = MakeGuest();
		return true;
	}
	RefreshUsers();
	const FProjectUser* const Found = Users.FindByPredicate([&Session](const FProjectUser& User) { return User.Id.Equals(Session.Id); });
	if (Found)
	{
		OutUser = *Found;
	}
	return Found != nullptr;
}

FServiceResponse Host::FProjectService::FImplementation::MakeSession(const FProjectUser& User, bool bGuest, const FServiceSessions::FTokens& Tokens) const
{
	FJsonWriter Writer;
	Writer.BeginObject();
	Writer.Key(TEXT("token"));
	Writer.String(Tokens.Token);
	Writer.Key(TEXT("expiresIn"));
	Writer.Integer(Settings.TokenSeconds);
	if (!Tokens.RefreshToken.IsEmpty())
	{
		Writer.Key(TEXT("refreshToken"));
		Writer.String(Tokens.RefreshToken);
	}
	WriteUser(User, bGuest, Writer);
	Writer.EndObject();
	return ServiceAnswers::MakeJson(Writer);
}

void Host::FProjectService::FImplementation::ReadSessions()
{
	FString Kept;
	if (Settings.bKeepSessions && FPlatformMisc::GetStoredValue(StoreId, GetSection(), SessionsKey, Kept))
	{
		Sessions.ReadRemembered(Kept, GetTime());
	}
}

void Host::FProjectService::FImplementation::KeepSessions()
{
	if (Sessions.TakeChange() && Settings.bKeepSessions)
	{
		FPlatformMisc::SetStoredValue(StoreId, GetSection(), SessionsKey, Sessions.WriteRemembered());
	}
}
