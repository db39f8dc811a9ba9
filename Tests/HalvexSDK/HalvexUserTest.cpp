#include "UserTest.h"

#include "Serialization/JsonSerializer.h"

using Host::EServerFault;
using Host::FExpectedLog;
using Host::FServerReply;
using Host::FServerRequest;

namespace
{
	class FHalvexUserTest : public FUserTest
	{
	protected:
		static TSharedPtr<FJsonObject> ReadBody(const FServerRequest& Request)
		{
			TSharedPtr<FJsonObject> Object;
			FJsonSerializer::Deserialize(TJsonReaderFactory<TCHAR>::Create(FString(UTF8_TO_TCHAR(Request.Body.c_str()))), Object);
			return Object;
		}

		/** The error of a sign-in that is answered so. */
		EHalvexLoginError FailWith(const FServerReply& Reply)
		{
			Service.Server.Serve("/api/session", Reply);
			EXPECT_FALSE(SignIn());
			EXPECT_FALSE(User.HasValidToken());
			return Listener->LastResult.Error;
		}
	};

	TEST_F(FHalvexUserTest, SignInSendsNameAndPasswordAndTakesTheUser)
	{
		Service.Server.Serve("/api/session", FService::Grant("t1", 60, "", FService::MakeAda(R"(, "picture": {"id": "p1", "address": "People/ada.png"})")));
		EXPECT_FALSE(User.HasValidToken());
		User.RequestUserLogin(FHalvexUserInformation(false, TEXT("ada"), TEXT("pass \"word\" ü")));
		EXPECT_TRUE(User.IsLoginInProcess());
		EXPECT_EQ(Events(), "") << "the result comes later";
		ASSERT_TRUE(WaitForResult());
		EXPECT_FALSE(User.IsLoginInProcess());
		EXPECT_EQ(Events(), "result Ada Quay; logged Ada Quay; ");
		const FServerRequest Request = Service.Server.GetLastRequest("/api/session");
		EXPECT_EQ(Request.Method, "POST");
		EXPECT_EQ(Request.Headers.at("content-type"), "application/json; charset=utf-8");
		const TSharedPtr<FJsonObject> Body = ReadBody(Request);
		ASSERT_TRUE(Body);
		EXPECT_EQ(Host::ToStd(Body->GetStringField(TEXT("user"))), "ada");
		EXPECT_EQ(Host::ToStd(Body->GetStringField(TEXT("password"))), "pass \"word\" ü");
		EXPECT_FALSE(Body->GetBoolField(TEXT("remember")));
		const FLoginInfo Info = User.GetUserLoginInfo();
		EXPECT_EQ(Host::ToStd(Info.UserId), "u1");
		EXPECT_EQ(Host::ToStd(Info.UserName), "ada");
		EXPECT_EQ(Host::ToStd(Info.Email), "ada@example.org");
		EXPECT_EQ(Host::ToStd(Info.UserImage.ImageName), "p1");
		EXPECT_EQ(Host::ToStd(Info.UserImage.Address), Host::ToStd(Service.Server.GetUrl("/People/ada.png")));
		EXPECT_TRUE(User.HasValidToken());
		EXPECT_FALSE(User.IsGuestUser());
	}

	TEST_F(FHalvexUserTest, GuestIsAUserToo)
	{
		Service.Server.Serve("/api/session/guest", FService::GrantGuest("g1", 60));
		User.RequestGuestUser();
		ASSERT_TRUE(WaitForResult());
		EXPECT_EQ(Events(), "result Guest; logged Guest; ");
		EXPECT_TRUE(User.IsGuestUser());
		EXPECT_TRUE(User.HasValidToken());
	}

	TEST_F(FHalvexUserTest, UserWithoutADisplayNameIsCalledByTheUserName)
	{
		Service.Server.Serve("/api/session", FService::Grant("t1", 60, "", R"("user": {"id": "u1", "userName": "ada"})"));
		ASSERT_TRUE(SignIn());
		EXPECT_EQ(Host::ToStd(User.GetUserLoginInfo().DisplayName), "ada");
		EXPECT_EQ(Host::ToStd(User.GetUserLoginInfo().UserImage.Address), "");
	}

	TEST_F(FHalvexUserTest, PictureOfAnotherSchemeIsLeftOut)
	{
		for (const char* Address : { "file:///etc/passwd", "javascript:alert(1)", "//elsewhere/a.png", "" })
		{
			Service.Server.Serve("/api/session", FService::Grant("t1", 60, "", FService::MakeAda(std::string(R"(, "picture": {"address": ")") + Address + "\"}")));
			ASSERT_TRUE(SignIn());
			EXPECT_EQ(Host::ToStd(User.GetUserLoginInfo().UserImage.Address), "") << Address;
		}
	}

	TEST_F(FHalvexUserTest, RefusalsOfTheServiceAreToldApart)
	{
		EXPECT_EQ(FailWith(FService::Error(401, "invalid_credentials")), EHalvexLoginError::InvalidCredentials);
		EXPECT_EQ(Events(), "result InvalidCredentials; logged InvalidCredentials; ");
		EXPECT_EQ(FailWith(FService::Error(401, "something_new")), EHalvexLoginError::InvalidCredentials);
		FServerReply Often = FService::Error(429, "too_many_attempts");
		Often.Headers.emplace_back("Retry-After", "30");
		EXPECT_EQ(FailWith(Often), EHalvexLoginError::TooManyAttempts);
		EXPECT_EQ(Listener->LastResult.RetryAfterSeconds, 30);
		EXPECT_EQ(Host::ToStd(Listener->LastResult.UserId), "") << "the result holds no user";
	}

	TEST_F(FHalvexUserTest, FaultsOfTheServiceAreToldWithOneLine)
	{
		{
			const FExpectedLog Line(TEXT("The sign-in at the service http://127.0.0.1"));
			EXPECT_EQ(FailWith(FService::Error(500, "internal")), EHalvexLoginError::ServerFault);
			EXPECT_NE(Line.GetLastLine().Find(TEXT("it answered 500")), INDEX_NONE);
		}
		const FExpectedLog Line(TEXT("it answered 404"));
		EXPECT_EQ(FailWith(FService::Error(404, "not_found")), EHalvexLoginError::BadAnswer);
	}

	TEST_F(FHalvexUserTest, AnswersThatMakeNoSenseSignNobodyIn)
	{
		const std::string Ada = FService::MakeAda();
		const std::string Bodies[] = {
			"", "null", "[]", "{", "{}", "\"token\"",
			"{\"token\": \"t\", " + Ada + "}",
			"{\"token\": \"t\", \"expiresIn\": 0, " + Ada + "}",
			"{\"token\": \"t\", \"expiresIn\": -5, " + Ada + "}",
			"{\"token\": \"t\", \"expiresIn\": \"soon\", " + Ada + "}",
			"{\"token\": \"\", \"expiresIn\": 60, " + Ada + "}",
			"{\"token\": [\"t\"], \"expiresIn\": 60, " + Ada + "}",
			"{\"token\": \"a\\r\\nX: y\", \"expiresIn\": 60, " + Ada + "}",
			"{\"token\": \"t\", \"expiresIn\": 60}",
			"{\"token\": \"t\", \"expiresIn\": 60, \"user\": \"ada\"}",
			"{\"token\": \"t\", \"expiresIn\": 60, \"user\": {\"id\": \"\", \"userName\": \"ada\"}}",
			"{\"token\": \"t\", \"expiresIn\": 60, \"user\": {\"id\": \"u1\"}}",
			"{\"token\": \"t\", \"expiresIn\": 60, " + Ada + "} and more",
		};
		for (const std::string& Body : Bodies)
		{
			const FExpectedLog Line(TEXT("The sign-in at the service"));
			EXPECT_EQ(FailWith(FService::Json(200, Body)), EHalvexLoginError::BadAnswer) << Body;
		}
		FServerReply Page = FService::Grant("t1", 60);
		Page.Headers = { { "Content-Type", "text/html" } };
		const FExpectedLog Line(TEXT("the answer is no JSON object"));
		EXPECT_EQ(FailWith(Page), EHalvexLoginError::BadAnswer) << "a page of some other server, such as one that wants to be paid";
	}

	TEST_F(FHalvexUserTest, BrokenConnectionsAreNoAnswer)
	{
		for (const EServerFault Fault : { EServerFault::CloseAtOnce, EServerFault::CloseInHeaders, EServerFault::CloseInBody })
		{
			FServerReply Broken = FService::Grant("t1", 60);
			Broken.Fault = Fault;
			const FExpectedLog Line(TEXT("the connection failed or was lost"));
			EXPECT_EQ(FailWith(Broken), EHalvexLoginError::NoAnswer);
		}
	}

	TEST_F(FHalvexUserTest, WhatIsNoHttpIsOfNoUse)
	{
		for (const EServerFault Fault : { EServerFault::Garbage, EServerFault::EndlessHeaders })
		{
			FServerReply Broken = FService::Grant("t1", 60);
			Broken.Fault = Fault;
			const FExpectedLog Line(TEXT("its address, its redirects or the size of the answer are not accepted"));
			EXPECT_EQ(FailWith(Broken), EHalvexLoginError::BadAnswer);
		}
	}

	TEST_F(FHalvexUserTest, AnswerThatDripsIsWaitedFor)
	{
		FServerReply Slow = FService::Grant("t1", 60);
		Slow.Fault = EServerFault::Drip;
		Service.Server.Serve("/api/session", Slow);
		EXPECT_TRUE(SignIn());
	}

	TEST_F(FHalvexUserTest, ServerThatIsDownIsNoAnswer)
	{
		FString Gone;
		{
			const Host::FLoopbackServer Other;
			Gone = Other.GetUrl("");
		}
		Service.Settings->ServiceAddress = Gone;
		const FExpectedLog Line(TEXT("the connection failed or was lost"));
		EXPECT_FALSE(SignIn());
		EXPECT_EQ(Listener->LastResult.Error, EHalvexLoginError::NoAnswer);
	}

	TEST_F(FHalvexUserTest, SilentServerIsNoAnswerAfterTheTimeout)
	{
		Service.Settings->RequestTimeout = 0.1f;
		for (const EServerFault Fault : { EServerFault::Silence, EServerFault::SilenceAfterHeaders })
		{
			FServerReply Silent = FService::Grant("t1", 60);
			Silent.Fault = Fault;
			const FExpectedLog Line(TEXT("it took too long"));
			EXPECT_EQ(FailWith(Silent), EHalvexLoginError::NoAnswer);
		}
	}

	TEST_F(FHalvexUserTest, OversizedAnswersAreRefused)
	{
		Service.Settings->MaxReplyBytes = 1000;
		const std::string Padding(2000, ' ');
		FServerReply Large = FService::Grant("t1", 60);
		Large.Body += Padding;
		{
			const FExpectedLog Line(TEXT("the answer is larger than the 1000 bytes that are accepted"));
			EXPECT_EQ(FailWith(Large), EHalvexLoginError::BadAnswer);
		}
		Large.Fault = EServerFault::EndlessBody;
		const FExpectedLog Line(TEXT("the answer is larger than the 1000 bytes that are accepted"));
		EXPECT_EQ(FailWith(Large), EHalvexLoginError::BadAnswer);
	}

	TEST_F(FHalvexUserTest, WithoutAnAddressThereIsNoService)
	{
		for (const TCHAR* Address : { TEXT(""), TEXT("ftp://127.0.0.1"), TEXT("not an address") })
		{
			Service.Settings->ServiceAddress = Address;
			const FExpectedLog Line(TEXT("the settings have no address of http or https for it"));
			User.RequestUserLogin(FHalvexUserInformation(false, TEXT("ada"), TEXT("x")));
			EXPECT_EQ(Events(), "");
			EXPECT_FALSE(WaitForResult());
			EXPECT_EQ(Events(), "result NoAnswer; logged NoAnswer; ");
		}
		Service.Settings->ServiceAddress = Service.Server.GetUrl("");
	}

	TEST_F(FHalvexUserTest, PathOfTheAddressIsKept)
	{
		Service.Settings->ServiceAddress = Service.Server.GetUrl("/quayside/");
		Service.Server.Serve("/quayside/api/session", FService::Grant("t1", 60));
		EXPECT_TRUE(SignIn());
	}

	TEST_F(FHalvexUserTest, RedirectToAnotherServerIsRefusedAndGetsNoToken)
	{
		ServeAda();
		ASSERT_TRUE(SignIn());
		Host::FLoopbackServer Other;
		Other.Serve("/api/user", FService::Json(200, "{\"guest\": false, " + FService::MakeAda() + "}"));
		FServerReply Redirect = FService::Json(302, "");
		Redirect.Headers.emplace_back("Location", Host::ToStd(Other.GetUrl("/api/user")));
		Service.Server.Serve("/api/user", Redirect);
		const FExpectedLog Line(TEXT("it was redirected to another server"));
		User.RefreshUserData();
		WaitForQuiet();
		EXPECT_EQ(Service.Server.GetLastRequest("/api/user").Headers.at("authorization"), "Bearer t1");
		ASSERT_EQ(Other.GetVisits("/api/user"), 1);
		EXPECT_EQ(Other.GetLastRequest("/api/user").Headers.count("authorization"), 0u);
		EXPECT_TRUE(User.HasValidToken()) << "nothing is known of the session";
	}

	TEST_F(FHalvexUserTest, RedirectToAnotherServerGetsNoPassword)
	{
		Host::FLoopbackServer Other;
		Other.Serve("/api/session", FService::Grant("t1", 60));
		FServerReply Redirect = FService::Json(307, "");
		Redirect.Headers.emplace_back("Location", Host::ToStd(Other.GetUrl("/api/session")));
		const FExpectedLog Line(TEXT("its address, its redirects or the size of the answer are not accepted"));
		EXPECT_EQ(FailWith(Redirect), EHalvexLoginError::BadAnswer);
		EXPECT_EQ(Other.GetVisits("/api/session"), 0);
	}

	TEST_F(FHalvexUserTest, LaterOfTwoRequestsCountsAndTheEarlierEndsAsCancelled)
	{
		Service.Server.Serve("/api/session", FService::Grant("t1", 60));
		Service.Server.Serve("/api/session/guest", FService::GrantGuest("g1", 60));
		Service.Server.Hold();
		User.RequestUserLogin(FHalvexUserInformation(false, TEXT("ada"), TEXT("x")));
		ASSERT_TRUE(WaitForVisits("/api/session", 1));
		User.RequestGuestUser();
		EXPECT_EQ(Events(), "result Cancelled; logged Cancelled; ");
		EXPECT_TRUE(User.IsLoginInProcess());
		ASSERT_TRUE(WaitForVisits("/api/session/guest", 1));
		Service.Server.Release();
		NumResultsSeen = Listener->NumResults;
		ASSERT_TRUE(WaitForResult());
		WaitForQuiet();
		EXPECT_EQ(Events(), "result Guest; logged Guest; ");
		EXPECT_TRUE(User.IsGuestUser());
	}

	TEST_F(FHalvexUserTest, SignOutDuringARequestEndsItAndALateAnswerChangesNothing)
	{
		ServeAda(60, "r1");
		Service.Server.Hold();
		User.RequestUserLogin(FHalvexUserInformation(true, TEXT("ada"), TEXT("x")));
		ASSERT_TRUE(WaitForVisits("/api/session", 1));
		User.RequestUserLogout();
		EXPECT_EQ(Events(), "result Cancelled; logged Cancelled; ") << "and no logout, as nobody was signed in";
		Service.Server.Release();
		WaitForQuiet();
		Pass(2.0);
		EXPECT_EQ(Events(), "");
		EXPECT_FALSE(User.HasValidToken());
		EXPECT_FALSE(User.HasRememberedCredentials());
	}

	TEST_F(FHalvexUserTest, CancelledSignInLeavesTheOneBefore)
	{
		ServeAda();
		ASSERT_TRUE(SignIn());
		User.CancelLogin();
		EXPECT_EQ(Events(), "result Ada Quay; logged Ada Quay; ") << "there is nothing to cancel";
		Service.Server.Hold();
		User.RequestUserLogin(FHalvexUserInformation(false, TEXT("bob"), TEXT("x")));
		User.CancelLogin();
		EXPECT_EQ(Events(), "result Cancelled; logged Cancelled; ");
		Service.Server.Release();
		WaitForQuiet();
		EXPECT_EQ(Events(), "");
		EXPECT_EQ(Host::ToStd(User.GetUserLoginInfo().UserName), "ada");
	}

	TEST_F(FHalvexUserTest, SignOutTellsTheServiceAndEverybody)
	{
		ServeAda(60, "r1");
		ASSERT_TRUE(SignIn(true));
		Events();
		Service.Server.Serve("/api/session", FService::Json(204, ""));
		User.RequestUserLogout();
		EXPECT_EQ(Events(), "logout; ");
		EXPECT_FALSE(User.HasValidToken());
		EXPECT_EQ(Host::ToStd(User.GetUserLoginInfo().UserId), "");
		WaitForQuiet();
		const FServerRequest Request = Service.Server.GetLastRequest("/api/session");
		EXPECT_EQ(Request.Method, "DELETE");
		EXPECT_EQ(Request.Headers.at("authorization"), "Bearer t1");
		EXPECT_EQ(Host::ToStd(ReadBody(Request)->GetStringField(TEXT("refreshToken"))), "r1");
		User.RequestUserLogout();
		EXPECT_EQ(Events(), "") << "a second time there is nobody";
	}

	TEST_F(FHalvexUserTest, SignOutByWhoHearsOfTheResultIsTheLastWord)
	{
		ServeAda();
		Listener->bSignOutAtOnce = true;
		ASSERT_TRUE(SignIn());
		EXPECT_EQ(Events(), "result Ada Quay; logout; ");
		EXPECT_FALSE(User.HasValidToken());
		WaitForQuiet();
	}

	TEST_F(FHalvexUserTest, FailedSignInLeavesTheOneBefore)
	{
		ServeAda();
		ASSERT_TRUE(SignIn());
		Service.Server.Serve("/api/session", FService::Error(401, "invalid_credentials"));
		EXPECT_FALSE(SignIn(false, TEXT("bob")));
		EXPECT_TRUE(User.HasValidToken());
		EXPECT_EQ(Host::ToStd(User.GetUserLoginInfo().UserName), "ada");
	}

	TEST_F(FHalvexUserTest, SessionThatIsReplacedIsEndedAtTheService)
	{
		Service.Server.Serve("/api/session/guest", FService::GrantGuest("g1", 60));
		User.RequestGuestUser();
		ASSERT_TRUE(WaitForResult());
		ServeAda();
		ASSERT_TRUE(SignIn());
		WaitForQuiet();
		const FServerRequest Request = Service.Server.GetLastRequest("/api/session");
		EXPECT_EQ(Request.Method, "DELETE");
		EXPECT_EQ(Request.Headers.at("authorization"), "Bearer g1");
		EXPECT_EQ(Host::ToStd(User.GetToken()), "t1");
	}

	TEST_F(FHalvexUserTest, AnotherServiceEndsTheSession)
	{
		ServeAda();
		ASSERT_TRUE(SignIn());
		Events();
		UHalvexSDKEngineSubsystem::Get()->SetServiceConnection(nullptr);
		EXPECT_EQ(Events(), "logout; ");
		EXPECT_FALSE(User.HasValidToken());
	}

	TEST_F(FHalvexUserTest, ChangedDataOfTheUserIsTold)
	{
		ServeAda();
		ASSERT_TRUE(SignIn());
		Events();
		Service.Server.Serve("/api/user", FService::Json(200, "{\"guest\": false, " + FService::MakeAda() + "}"));
		User.RefreshUserData();
		WaitForQuiet();
		EXPECT_EQ(Events(), "") << "nothing has changed";
		Service.Server.Serve("/api/user", FService::Json(200, R"({"guest": false, "user": {"id": "u1", "userName": "ada", "displayName": "Ada Pier", "email": ""}})"));
		User.RefreshUserData();
		WaitForQuiet();
		EXPECT_EQ(Events(), "logged Ada Pier; ");
	}

	TEST_F(FHalvexUserTest, NothingSecretIsInTheLog)
	{
		ServeAda(60, "refresh-secret");
		for (const int Status : { 200, 401, 500 })
		{
			const FExpectedLog Lines(TEXT("The sign-in at the service"), FExpectedLog::AnyCount);
			Service.Server.Serve("/api/session", Status == 200 ? FService::Json(200, "{\"token\": \"token-secret\"}") : FService::Error(Status, "any"));
			SignIn(true, TEXT("ada"), TEXT("password-secret"));
			EXPECT_EQ(Lines.GetLastLine().Find(TEXT("secret")), INDEX_NONE);
		}
	}
}
