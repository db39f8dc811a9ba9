#pragma once

#include "Host/JsonWriter.h"
#include "Host/ProjectUsers.h"

namespace Host
{
	/** Writes what the file of users and answers say alike of a user, into the object that is open. */
	inline void WriteUserMembers(const FProjectUser& User, FJsonWriter& Writer)
	{
		Writer.Key(TEXT("id"));
		Writer.String(User.Id);
		Writer.Key(TEXT("userName"));
		Writer.String(User.UserName);
		Writer.Key(TEXT("displayName"));
		Writer.String(User.DisplayName);
		Writer.Key(TEXT("email"));
		Writer.String(User.Email);
	}
}
