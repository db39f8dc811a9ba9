#include "User/HalvexUserMessages.h"

#include "Serialization/JsonSerializer.h"
#include "Service/HalvexServiceConnection.h"
#include "User/HalvexUserInformation.h"

namespace
{
	FString Write(const TSharedRef<FJsonObject>& Object)
	{
		FString Text;
		FJsonSerializer::Serialize(Object, TJsonWriterFactory<TCHAR>::Create(&Text));
		return Text;
	}

	TSharedPtr<FJsonObject> Read(const FHalvexServiceReply& Reply)
	{
		TSharedPtr<FJsonObject> Object;
		FString Type = Reply.ContentType.ToLower();
		int32 Parameters = INDEX_NONE;
		if (Type.FindChar(TEXT(';'), Parameters))
		{
			Type.LeftInline(Parameters);
		}
		if (Type.TrimStartAndEnd() == TEXT("application/json"))
		{
			FJsonSerializer::Deserialize(TJsonReaderFactory<TCHAR>::Create(Reply.Body), Object);
		}
		return Object;
	}

	/** Whether a token can stand in a header: visible characters of ASCII alone. */
	bool IsToken(const FString& Text)
	{
		for (const TCHAR Unit : Text)
		{
			if (Unit <= TEXT(' ') || Unit > TEXT('~'))
			{
				return false;
			}
		}
		return !Text.IsEmpty();
	}

	bool ReadPerson(const FJsonObject& Object, const IHalvexServiceConnection& Connection, FLoginInfo& OutLoginInfo, FString& OutReason)
	{
		const TSharedPtr<FJsonObject>* User = nullptr;
		const bool bUser = Object.TryGetObjectField(TEXT("user"), User) && (*User)->TryGetStringField(TEXT("id"), OutLoginInfo.UserId)
			&& (*User)->TryGetStringField(TEXT("userName"), OutLoginInfo.UserName) && !OutLoginInfo.UserId.IsEmpty() && !OutLoginInfo.UserName.IsEmpty();
		if (!bUser)
		{
			OutReason = TEXT("it names no user");
			return false;
		}
		Object.TryGetBoolField(TEXT("guest"), OutLoginInfo.bIsGuest);
		(*User)->TryGetStringField(TEXT("email"), OutLoginInfo.Email);
		(*User)->TryGetStringField(TEXT("displayName"), OutLoginInfo.DisplayName);
		if (OutLoginInfo.DisplayName.IsEmpty())
		{
			OutLoginInfo.DisplayName = OutLoginInfo.UserName;
		}
		const TSharedPtr<FJsonObject>* Picture = nullptr;
		FString Address;
		if ((*User)->TryGetObjectField(TEXT("picture"), Picture) && (*Picture)->TryGetStringField(TEXT("address"), Address))
		{
			(*Picture)->TryGetStringField(TEXT("id"), OutLoginInfo.UserImage.ImageName);
			OutLoginInfo.UserImage.Address = Connection.ResolveAddress(Address);
		}
		return true;
	}

	/** The sense of a status, and of the code that an answer with an error has. */
	EHalvexLoginError ReadError(const FHalvexServiceReply& Reply, const EHalvexLoginError Refused, FString& OutReason)
	{
		FString Code;
		const TSharedPtr<FJsonObject> Object = Read(Reply);
		const TSharedPtr<FJsonObject>* Error = nullptr;
		if (Object.IsValid() && Object->TryGetObjectField(TEXT("error"), Error))
		{
			(*Error)->TryGetStringField(TEXT("code"), Code);
		}
		if (Reply.Status == 429 || Code == TEXT("too_many_attempts"))
		{
			return EHalvexLoginError::TooManyAttempts;
		}
		if (Code == TEXT("invalid_token"))
		{
			return EHalvexLoginError::SessionEnded;
		}
		if (Reply.Status == 401 || Code == TEXT("invalid_credentials"))
		{
			return Refused;
		}
		OutReason = FString::Printf(TEXT("it answered %d"), Reply.Status);
		return Reply.Status >= 500 ? EHalvexLoginError::ServerFault : EHalvexLoginError::BadAnswer;
	}

	/** The object of an answer that tells of success; none, with the reason, for any other answer. */
	TSharedPtr<FJsonObject> ReadSuccess(const FHalvexServiceReply& Reply, const EHalvexLoginError Refused, EHalvexLoginError& OutError, FString& OutReason)
	{
		if (Reply.Outcome != EHalvexServiceOutcome::Answered)
		{
			OutReason = Reply.Reason;
			OutError = Reply.Outcome == EHalvexServiceOutcome::NoAnswer ? EHalvexLoginError::NoAnswer : EHalvexLoginError::BadAnswer;
			return nullptr;
		}
		if (Reply.Status != 200)
		{
			OutError = ReadError(Reply, Refused, OutReason);
			return nullptr;
		}
		const TSharedPtr<FJsonObject> Object = Read(Reply);
		if (!Object.IsValid())
		{
			OutReason = TEXT("the answer is no JSON object");
			OutError = EHalvexLoginError::BadAnswer;
		}
		return Object;
	}
}

FString HalvexUserMessages::MakeSignIn(const FHalvexUserInformation& UserInformation)
{
	const TSharedRef<FJsonObject> Object = MakeShared<FJsonObject>();
	Object->SetStringField(TEXT("user"), UserInformation.UserName);
	Object->SetStringField(TEXT("password"), UserInformation.Password);
	Object->SetBoolField(TEXT("remember"), UserInformation.bRememberMe);
	return Write(Object);
}

FString HalvexUserMessages::MakeRefresh(const FString& RefreshToken)
{
	const TSharedRef<FJsonObject> Object = MakeShared<FJsonObject>();
	Object->SetStringField(TEXT("refreshToken"), RefreshToken);
	return Write(Object);
}

EHalvexLoginError HalvexUserMessages::ReadGrant(const FHalvexServiceReply& Reply, const IHalvexServiceConnection& Connection, const EHalvexLoginError Refused, FHalvexSessionGrant& OutGrant, FString& OutReason)
{
	EHalvexLoginError Error = EHalvexLoginError::None;
	const TSharedPtr<FJsonObject> Object = ReadSuccess(Reply, Refused, Error, OutReason);
	if (!Object.IsValid())
	{
		return Error;
	}
	if (!Object->TryGetStringField(TEXT("token"), OutGrant.Token) || !IsToken(OutGrant.Token))
	{
		OutReason = TEXT("it gives no token");
		return EHalvexLoginError::BadAnswer;
	}
	// Longer than anyone stays, and short enough to count with.
	constexpr double MaxExpiresIn = 10.0 * 365.0 * 24.0 * 3600.0;
	if (!Object->TryGetNumberField(TEXT("expiresIn"), OutGrant.ExpiresIn) || !(OutGrant.ExpiresIn > 0.0))
	{
		OutReason = TEXT("it does not tell for how many seconds the token is good");
		return EHalvexLoginError::BadAnswer;
	}
	OutGrant.ExpiresIn = FMath::Min(OutGrant.ExpiresIn, MaxExpiresIn);
	Object->TryGetStringField(TEXT("refreshToken"), OutGrant.RefreshToken);
	return ReadPerson(*Object, Connection, OutGrant.LoginInfo, OutReason) ? EHalvexLoginError::None : EHalvexLoginError::BadAnswer;
}

EHalvexLoginError HalvexUserMessages::ReadUser(const FHalvexServiceReply& Reply, const IHalvexServiceConnection& Connection, FLoginInfo& OutLoginInfo, FString& OutReason)
{
	EHalvexLoginError Error = EHalvexLoginError::None;
	const TSharedPtr<FJsonObject> Object = ReadSuccess(Reply, EHalvexLoginError::SessionEnded, Error, OutReason);
	if (!Object.IsValid())
	{
		return Error;
	}
	return ReadPerson(*Object, Connection, OutLoginInfo, OutReason) ? EHalvexLoginError::None : EHalvexLoginError::BadAnswer;
}
