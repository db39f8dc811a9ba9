#pragma once

#include "Engine/Engine.h"
#include "HalvexSDKEngineSubsystem.h"
#include "LoopbackServer.h"
#include "Service/HalvexServiceSettings.h"
#include "User/HalvexUser.h"

namespace Host
{
	/**
	 * A server of this machine that signs people in as a test tells it, and the service of the settings as long as it lives. The
	 * user is signed out at its begin and its end, and nothing is remembered.
	 */
	class FScriptedService
	{
	public:
		FScriptedService()
			: SavedAddress(Settings->ServiceAddress)
			, SavedTimeout(Settings->RequestTimeout)
			, SavedMaxBytes(Settings->MaxReplyBytes)
		{
			Settings->ServiceAddress = Server.GetUrl("");
		}

		~FScriptedService()
		{
			GetUser().Abandon();
			GetUser().ForgetRememberedCredentials();
			Settings->ServiceAddress = SavedAddress;
			Settings->RequestTimeout = SavedTimeout;
			Settings->MaxReplyBytes = SavedMaxBytes;
		}

		FScriptedService(const FScriptedService&) = delete;
		FScriptedService& operator=(const FScriptedService&) = delete;

		static UHalvexUser& GetUser() { return *UHalvexSDKEngineSubsystem::Get()->GetHalvexUser(); }

		static FServerReply Json(int Status, const std::string& Body)
		{
			FServerReply Reply;
			Reply.Status = Status;
			Reply.Headers = { { "Content-Type", "application/json; charset=utf-8" } };
			Reply.Body = Body;
			return Reply;
		}

		static FServerReply Error(int Status, const char* Code)
		{
			return Json(Status, std::string("{\"error\": {\"code\": \"") + Code + "\", \"message\": \"no\"}}");
		}

		/** What the service says of Ada, with a further member. */
		static std::string MakeAda(const std::string& More = "")
		{
			return R"("user": {"id": "u1", "userName": "ada", "displayName": "Ada Quay", "email": "ada@example.org")" + More + "}";
		}

		/** Signs Ada in for so many seconds; without a name of a refresh token there is none. */
		static FServerReply Grant(const std::string& Token, int Seconds, const std::string& RefreshToken = "", const std::string& User = MakeAda())
		{
			std::string Body = "{\"token\": \"" + Token + "\", \"expiresIn\": " + std::to_string(Seconds) + ", \"guest\": false, " + User;
			Body += RefreshToken.empty() ? "}" : ", \"refreshToken\": \"" + RefreshToken + "\"}";
			return Json(200, Body);
		}

		static FServerReply GrantGuest(const std::string& Token, int Seconds)
		{
			return Json(200, "{\"token\": \"" + Token + "\", \"expiresIn\": " + std::to_string(Seconds)
				+ R"(, "guest": true, "user": {"id": "g1", "userName": "guest", "displayName": "Guest", "email": ""}})");
		}

		UHalvexServiceSettings* const Settings = GetMutableDefault<UHalvexServiceSettings>();
		FLoopbackServer Server;

	private:
		FString SavedAddress;
		float SavedTimeout;
		int32 SavedMaxBytes;
	};
}
