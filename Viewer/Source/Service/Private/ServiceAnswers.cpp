#include "ServiceAnswers.h"

#include "Containers/StringConv.h"

namespace Host
{
	namespace
	{
		/** A body of a request needs no more. */
		constexpr int32 MaxBodyDepth = 8;
		constexpr int32 MaxBodyNodes = 64;

		FServiceResponse MakeText(int32 Status, const FJsonWriter& Writer)
		{
			FServiceResponse Response;
			Response.Status = Status;
			Response.Headers.Add({ TEXT("Content-Type"), TEXT("application/json") });
			Response.Headers.Add({ TEXT("Cache-Control"), TEXT("no-store") });
			const FString Text = Writer.ToString();
			const FTCHARToUTF8 Utf8(*Text, Text.Len());
			Response.Body.Append(reinterpret_cast<const uint8*>(Utf8.Get()), Utf8.Length());
			return Response;
		}
	}

	FString FServiceResponse::GetHeader(const FString& Name) const
	{
		const FServiceHeader* const Found = Headers.FindByPredicate([&Name](const FServiceHeader& Header) { return Header.Name.Equals(Name, ESearchCase::IgnoreCase); });
		return Found ? Found->Value : FString();
	}

	FServiceResponse ServiceAnswers::MakeError(int32 Status, const TCHAR* Code, const FString& Message)
	{
		FJsonWriter Writer;
		Writer.BeginObject();
		Writer.Key(TEXT("error"));
		Writer.BeginObject();
		Writer.Key(TEXT("code"));
		Writer.String(Code);
		Writer.Key(TEXT("message"));
		Writer.String(Message);
		Writer.EndObject();
		Writer.EndObject();
		return MakeText(Status, Writer);
	}

	FServiceResponse ServiceAnswers::MakeMalformed(const FString& Message)
	{
		return MakeError(400, TEXT("malformed"), Message);
	}

	FServiceResponse ServiceAnswers::MakeInvalidToken()
	{
		FServiceResponse Response = MakeError(401, TEXT("invalid_token"), TEXT("The token is unknown or has run out."));
		Response.Headers.Add({ TEXT("WWW-Authenticate"), TEXT("Bearer") });
		return Response;
	}

	FServiceResponse ServiceAnswers::MakeNotFound()
	{
		return MakeError(404, TEXT("not_found"), TEXT("There is nothing at this address."));
	}

	FServiceResponse ServiceAnswers::MakeMethodNotAllowed(const TCHAR* Allowed)
	{
		FServiceResponse Response = MakeError(405, TEXT("method_not_allowed"), FString::Printf(TEXT("This address answers %s."), Allowed));
		Response.Headers.Add({ TEXT("Allow"), Allowed });
		return Response;
	}

	FServiceResponse ServiceAnswers::MakeJson(const FJsonWriter& Writer)
	{
		return MakeText(200, Writer);
	}

	bool ServiceAnswers::ReadObject(const TArray<uint8>& Body, FJsonDocument& OutDocument, FServiceResponse& OutError)
	{
		FJsonLimits Limits;
		Limits.MaxDepth = MaxBodyDepth;
		Limits.MaxNodes = MaxBodyNodes;
		if (!OutDocument.Parse(Body.GetData(), Body.Num(), TEXT("body"), Limits) || OutDocument.GetErrors().Num() > 0)
		{
			OutError = MakeMalformed(OutDocument.GetErrors()[0]);
			return false;
		}
		if (!OutDocument.GetRoot().IsObject())
		{
			OutError = MakeMalformed(FString::Printf(TEXT("body:1:1: expected an object, found %s"), DescribeJsonKind(OutDocument.GetRoot().GetKind())));
			return false;
		}
		return true;
	}

	bool ServiceAnswers::ReadText(const FJsonDocument& Document, const TCHAR* Member, FString& OutText, FServiceResponse& OutError)
	{
		if (!Document.GetRoot().Find(Member).TryGetString(OutText) || OutText.IsEmpty())
		{
			OutError = MakeMalformed(FString::Printf(TEXT("body: %s: expected a text"), Member));
			return false;
		}
		return true;
	}

	bool ServiceAnswers::ReadBool(const FJsonDocument& Document, const TCHAR* Member, bool& bOutValue, FServiceResponse& OutError)
	{
		if (!Document.GetRoot().Find(Member).TryGetBool(bOutValue))
		{
			OutError = MakeMalformed(FString::Printf(TEXT("body: %s: expected true or false"), Member));
			return false;
		}
		return true;
	}
}
