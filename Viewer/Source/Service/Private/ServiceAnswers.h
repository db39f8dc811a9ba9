#pragma once

#include "Host/JsonDocument.h"
#include "Host/JsonWriter.h"
#include "Host/ServiceMessages.h"

namespace Host
{
	/** The bodies of requests and answers of the service. */
	namespace ServiceAnswers
	{
		FServiceResponse MakeError(int32 Status, const TCHAR* Code, const FString& Message);
		FServiceResponse MakeMalformed(const FString& Message);
		FServiceResponse MakeInvalidToken();
		FServiceResponse MakeNotFound();
		/** @param Allowed the methods that there are, as the header names them */
		FServiceResponse MakeMethodNotAllowed(const TCHAR* Allowed);
		/** Status 200 with a text that no cache keeps. */
		FServiceResponse MakeJson(const FJsonWriter& Writer);

		/** Reads a body that must be an object without a member named twice. Otherwise the error is the answer. */
		bool ReadObject(const TArray<uint8>& Body, FJsonDocument& OutDocument, FServiceResponse& OutError);
		/** Reads a member that must be a text; at least one character. Otherwise the error is the answer. */
		bool ReadText(const FJsonDocument& Document, const TCHAR* Member, FString& OutText, FServiceResponse& OutError);
		bool ReadBool(const FJsonDocument& Document, const TCHAR* Member, bool& bOutValue, FServiceResponse& OutError);
	}
}
