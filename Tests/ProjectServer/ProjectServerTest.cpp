#include "EngineTest.h"

#include "Host/JsonDocument.h"
#include "HttpModule.h"
#include "RawConnection.h"
#include "ServerProcess.h"
#include "ServiceFolder.h"
#include "WaitUntil.h"
#include "gmock/gmock.h"

#include <csignal>
#include <memory>
#include <vector>

using testing::HasSubstr;
using testing::Not;

namespace
{
	const char* const SignInBody = R"({"user": "Anna", "password": "right-password", "remember": true})";

	struct FHttpAnswer
	{
		int32 Status = 0;
		FHttpResponsePtr Response;
		/** As FTestService reads answers. */
		Host::FServiceResponse Body;

		std::string Describe() const { return FTestService::Describe(Body); }
		std::string Get(const char* Member) const { return FTestService::Get(Body, Member); }
		std::string Header(const TCHAR* Name) const { return Response ? Host::ToStd(Response->GetHeader(Name)) : std::string(); }
	};

	/** A server over a project's folder, asked by the engine's own client. */
	class FProjectServerTest : public Host::FEngineTest
	{
	protected:
		void Serve(const std::vector<std::string>& More = {})
		{
			std::vector<std::string> Arguments = { "--project", Folder.Path.string(), "--port", "0" };
			Arguments.insert(Arguments.end(), More.begin(), More.end());
			Server = std::make_unique<FServerProcess>(Home.Path, Arguments);
			Url = Server->WaitForUrl();
			ASSERT_FALSE(Url.empty()) << Server->GetOutput();
		}

		FHttpAnswer Send(const char* Verb, const std::string& Path, const std::string& Body = std::string(), const std::string& Token = std::string(), const std::string& KnownTag = std::string())
		{
			const FHttpRequestRef Request = FHttpModule::Get().CreateRequest();
			Request->SetVerb(UTF8_TO_TCHAR(Verb));
			Request->SetURL(UTF8_TO_TCHAR((Url + Path).c_str()));
			if (!Body.empty())
			{
				Request->SetContent(TArray<uint8>(reinterpret_cast<const uint8*>(Body.data()), int32(Body.size())));
			}
			if (!Token.empty())
			{
				Request->SetHeader(TEXT("Authorization"), FString(TEXT("Bearer ")) + UTF8_TO_TCHAR(Token.c_str()));
			}
			if (!KnownTag.empty())
			{
				Request->SetHeader(TEXT("If-None-Match"), UTF8_TO_TCHAR(KnownTag.c_str()));
			}
			FHttpAnswer Answer;
			bool bEnded = false;
			Request->OnProcessRequestComplete().BindLambda([&](FHttpRequestPtr, FHttpResponsePtr Response, bool)
			{
				bEnded = true;
				Answer.Response = Response;
			});
			Request->ProcessRequest();
			EXPECT_TRUE(Host::WaitUntil(Loop, [&bEnded] { return bEnded; }, 0.0));
			if (Answer.Response)
			{
				Answer.Status = Answer.Response->GetResponseCode();
				Answer.Body.Status = Answer.Status;
				Answer.Body.Body = Answer.Response->GetContent();
			}
			return Answer;
		}

		FHttpAnswer Refresh(const std::string& Token) { return Send("POST", "/api/session/refresh", "{\"refreshToken\": \"" + Token + "\"}"); }

		/** The first line of the answer to these bytes, on a connection of their own. */
		std::string SendRaw(const std::string& Head)
		{
			const FRawConnection Connection(Server->GetPort());
			Connection.Send(Head);
			const std::string Answer = Connection.Read("\r\n");
			return Answer.substr(0, Answer.find("\r\n"));
		}

		static std::string Ask(const std::string& Method, const std::string& Target) { return Method + " " + Target + " HTTP/1.1\r\nHost: here\r\nConnection: close\r\n\r\n"; }

		const FServiceFolder Folder;
		/** Of its user. */
		const FServiceFolder Home;
		std::unique_ptr<FServerProcess> Server;
		std::string Url;
	};
}

TEST_F(FProjectServerTest, ItSaysWhereItListensAndEndsWhenItIsTold)
{
	for (const int Number : { SIGTERM, SIGINT })
	{
		Serve();
		EXPECT_THAT(Url, HasSubstr("http://127.0.0.1:"));
		EXPECT_EQ(200, Send("GET", "/project.json").Status);
		Server->Signal(Number);
		EXPECT_EQ(0, Server->Finish());
		EXPECT_THAT(Server->GetOutput(), HasSubstr("Ended."));
		Server.reset();
	}
}

TEST_F(FProjectServerTest, UsersSignInAndOut)
{
	Serve();
	EXPECT_EQ("401 invalid_credentials", Send("POST", "/api/session", R"({"user": "Anna", "password": "wrong", "remember": false})").Describe());
	const FHttpAnswer Session = Send("POST", "/api/session", SignInBody);
	EXPECT_EQ("200", Session.Describe());
	EXPECT_EQ("3600", Session.Get("expiresIn"));
	EXPECT_EQ("Anna Ström", Session.Get("user.displayName"));
	EXPECT_EQ("application/json", Host::ToStd(Session.Response->GetContentType()));
	EXPECT_EQ("u1", Send("GET", "/api/user", "", Session.Get("token")).Get("user.id"));
	EXPECT_EQ("401 invalid_token", Send("GET", "/api/user").Describe());
	EXPECT_EQ(204, Send("DELETE", "/api/session", "{\"refreshToken\": \"" + Session.Get("refreshToken") + "\"}", Session.Get("token")).Status);
	EXPECT_EQ("401 invalid_token", Send("GET", "/api/user", "", Session.Get("token")).Describe());
	EXPECT_EQ("401 invalid_token", Refresh(Session.Get("refreshToken")).Describe());
	EXPECT_EQ("true", Send("POST", "/api/session/guest", "{}").Get("guest"));
}

TEST_F(FProjectServerTest, ATokenRunsOutAfterTheTimeOfTheOption)
{
	Serve({ "--token-seconds", "1" });
	const FHttpAnswer Session = Send("POST", "/api/session", SignInBody);
	EXPECT_EQ("1", Session.Get("expiresIn"));
	EXPECT_TRUE(Host::WaitUntil(Loop, [&] { return Send("GET", "/api/user", "", Session.Get("token")).Describe() == "401 invalid_token"; }, 0.0));
	EXPECT_EQ("200", Refresh(Session.Get("refreshToken")).Describe());
}

TEST_F(FProjectServerTest, ARefreshTokenUsedTwiceEndsItsFamily)
{
	Serve();
	const FHttpAnswer First = Send("POST", "/api/session", SignInBody);
	const FHttpAnswer Second = Refresh(First.Get("refreshToken"));
	EXPECT_EQ("200", Second.Describe());
	EXPECT_EQ("401 invalid_token", Refresh(First.Get("refreshToken")).Describe());
	EXPECT_EQ("401 invalid_token", Refresh(Second.Get("refreshToken")).Describe());
	EXPECT_EQ("401 invalid_token", Send("GET", "/api/user", "", Second.Get("token")).Describe());
}

TEST_F(FProjectServerTest, RememberedSignInsLastBeyondItsEndWhenAsked)
{
	for (const bool bKeep : { true, false })
	{
		const std::vector<std::string> Option = bKeep ? std::vector<std::string>{ "--keep-sessions" } : std::vector<std::string>();
		Serve(Option);
		const FHttpAnswer Session = Send("POST", "/api/session", SignInBody);
		Server.reset();
		Serve(Option);
		EXPECT_EQ("401 invalid_token", Send("GET", "/api/user", "", Session.Get("token")).Describe());
		EXPECT_EQ(bKeep ? "200" : "401 invalid_token", Refresh(Session.Get("refreshToken")).Describe());
		Server.reset();
	}
}

TEST_F(FProjectServerTest, TooManyWrongPasswordsMustWait)
{
	Serve();
	for (int Index = 0; Index < 5; ++Index)
	{
		EXPECT_EQ("401 invalid_credentials", Send("POST", "/api/session", R"({"user": "Anna", "password": "wrong", "remember": false})").Describe());
	}
	const FHttpAnswer Refused = Send("POST", "/api/session", SignInBody);
	EXPECT_EQ("429 too_many_attempts", Refused.Describe());
	EXPECT_GT(std::atoi(Refused.Header(TEXT("Retry-After")).c_str()), 0);
}

TEST_F(FProjectServerTest, APictureThatIsKeptIsNotSentAgain)
{
	Serve();
	const FHttpAnswer First = Send("GET", "/Portraits/anna.png");
	EXPECT_EQ(200, First.Status);
	EXPECT_EQ("image/png", First.Header(TEXT("Content-Type")));
	EXPECT_EQ("portrait", FTestService::GetBody(First.Body));
	const FHttpAnswer Again = Send("GET", "/Portraits/anna.png", "", "", First.Header(TEXT("ETag")));
	EXPECT_EQ(304, Again.Status);
	EXPECT_EQ(0, Again.Body.Body.Num());
	EXPECT_EQ(First.Header(TEXT("ETag")), Again.Header(TEXT("ETag")));
}

TEST_F(FProjectServerTest, NoPathLeadsOutOfTheFolderOrToTheUsers)
{
	Serve();
	const std::string Absolute = Folder.Path.string() + "/project.json";
	for (const std::string& Target : { std::string("/users.json"), std::string("/%75sers.json"), std::string("/Portraits/../users.json"), std::string("/Portraits/%2e%2e/users.json"), std::string("/Portraits%2f..%2fusers.json"),
		std::string("/../../etc/passwd"), std::string("/%2e%2e/%2e%2e/etc/passwd"), std::string("/..%2f..%2fetc%2fpasswd"), std::string("/..%5c..%5cetc%5cpasswd"), std::string("//etc/passwd"), "/" + Absolute, std::string("/project.json%00"),
		std::string("/.hidden"), std::string("/%2fetc/passwd") })
	{
		EXPECT_THAT(SendRaw(Ask("GET", Target)), HasSubstr(" 404 ")) << Target;
	}
	EXPECT_THAT(SendRaw(Ask("GET", "/%zz")), HasSubstr(" 400 "));
	EXPECT_THAT(SendRaw(Ask("GET", "/%70roject.json")), HasSubstr(" 200 "));
}

TEST_F(FProjectServerTest, BodiesThatAreTooLargeAreRefusedAndTheServerGoesOn)
{
	Serve();
	EXPECT_EQ("413 too_large", Send("POST", "/api/session", std::string(64 * 1024 + 1, ' ')).Describe());
	EXPECT_EQ("413 too_large", Send("POST", "/api/session", std::string(1024 * 1024, ' ')).Describe());
	// Beyond what is let in at all, the connection ends.
	EXPECT_EQ(0, Send("POST", "/api/session", std::string(16 * 1024 * 1024, ' ')).Status);
	EXPECT_EQ("200", Send("POST", "/api/session", SignInBody + std::string(60 * 1024, ' ')).Describe());
}

TEST_F(FProjectServerTest, BodiesThatAreNoJsonAreMalformed)
{
	Serve();
	for (const std::string& Body : { std::string("{"), std::string("[]"), std::string("\xFF\xFE"), std::string("{\"user\": 1, \"password\": \"x\", \"remember\": true}"), std::string(3, '\0') })
	{
		EXPECT_EQ("400 malformed", Send("POST", "/api/session", Body).Describe());
	}
	EXPECT_EQ("400 malformed", Send("POST", "/api/session").Describe());
}

TEST_F(FProjectServerTest, WhatIsNoHttpIsRefusedAndTheServerGoesOn)
{
	Serve();
	EXPECT_THAT(SendRaw("nonsense\r\n\r\n"), Not(HasSubstr(" 200 ")));
	EXPECT_THAT(SendRaw("GET / HTTP/9.9\r\n\r\n"), Not(HasSubstr(" 200 ")));
	EXPECT_THAT(SendRaw(Ask("GET", "/" + std::string(100000, 'a'))), Not(HasSubstr(" 200 ")));
	EXPECT_THAT(SendRaw("GET /project.json HTTP/1.1\r\nHost: here\r\nX: " + std::string(100000, 'a') + "\r\n\r\n"), Not(HasSubstr(" 200 ")));
	EXPECT_THAT(SendRaw("POST /api/session HTTP/1.1\r\nHost: here\r\nContent-Length: -5\r\n\r\n"), Not(HasSubstr(" 200 ")));
	EXPECT_EQ(200, Send("GET", "/project.json").Status);
}

TEST_F(FProjectServerTest, HeadIsGetWithoutTheBody)
{
	Serve();
	const FRawConnection Connection(Server->GetPort());
	Connection.Send(Ask("HEAD", "/Portraits/anna.png"));
	const std::string Answer = Connection.Read();
	EXPECT_THAT(Answer, HasSubstr(" 200 "));
	EXPECT_THAT(Answer, HasSubstr("Content-Length: 8\r\n"));
	EXPECT_TRUE(Answer.ends_with("\r\n\r\n")) << Answer;
	EXPECT_THAT(SendRaw(Ask("HEAD", "/nothing")), HasSubstr(" 404 "));
	EXPECT_THAT(SendRaw(Ask("HEAD", "/api/session")), HasSubstr(" 405 "));
}

TEST_F(FProjectServerTest, MethodsThatNobodyKnowsAreNotAllowed)
{
	Serve();
	for (const char* Method : { "PUT", "PATCH", "OPTIONS", "BREW", "get" })
	{
		const FRawConnection Connection(Server->GetPort());
		Connection.Send(Ask(Method, "/api/session"));
		const std::string Answer = Connection.Read();
		EXPECT_THAT(Answer, HasSubstr(" 405 ")) << Method;
		EXPECT_THAT(Answer, HasSubstr("Allow: POST, DELETE\r\n")) << Method;
	}
}

TEST_F(FProjectServerTest, AConnectionCarriesSeveralRequests)
{
	Serve();
	const FRawConnection Connection(Server->GetPort());
	for (int Index = 0; Index < 3; ++Index)
	{
		Connection.Send("GET /Portraits/anna.png HTTP/1.1\r\nHost: here\r\n\r\n");
		EXPECT_THAT(Connection.Read("portrait"), HasSubstr(" 200 "));
	}
}

TEST_F(FProjectServerTest, TwoHundredRequestsAtOnceAreAllAnswered)
{
	Serve();
	const FHttpAnswer Session = Send("POST", "/api/session", SignInBody);
	const std::string Body = SignInBody;
	const std::string Requests[] = {
		Ask("GET", "/project.json"),
		"GET /api/user HTTP/1.1\r\nHost: here\r\nConnection: close\r\nAuthorization: Bearer " + Session.Get("token") + "\r\n\r\n",
		"POST /api/session HTTP/1.1\r\nHost: here\r\nConnection: close\r\nContent-Length: " + std::to_string(Body.size()) + "\r\n\r\n" + Body,
		Ask("GET", "/Portraits/anna.png"),
	};
	std::vector<std::unique_ptr<FRawConnection>> Connections;
	for (int Index = 0; Index < 200; ++Index)
	{
		Connections.push_back(std::make_unique<FRawConnection>(Server->GetPort()));
	}
	for (int Index = 0; Index < 200; ++Index)
	{
		EXPECT_TRUE(Connections[size_t(Index)]->Send(Requests[Index % 4]));
	}
	int NumRight = 0;
	for (const std::unique_ptr<FRawConnection>& Connection : Connections)
	{
		NumRight += Connection->Read().find("HTTP/1.1 200 ") == 0;
	}
	EXPECT_EQ(200, NumRight);
}

TEST_F(FProjectServerTest, ARequestThatHasBegunIsAnsweredBeforeTheEnd)
{
	Serve();
	const std::string Body = SignInBody;
	const FRawConnection Connection(Server->GetPort());
	Connection.Send("POST /api/session HTTP/1.1\r\nHost: here\r\nExpect: 100-continue\r\nContent-Length: " + std::to_string(Body.size()) + "\r\n\r\n");
	// It has taken note of the request when it asks for the body.
	EXPECT_THAT(Connection.Read("\r\n\r\n"), HasSubstr(" 100 "));
	Server->Signal(SIGTERM);
	Connection.Send(Body);
	EXPECT_THAT(Connection.Read("\"Anna\""), HasSubstr("HTTP/1.1 200 "));
}

TEST_F(FProjectServerTest, EachRequestIsOneLineWithoutSecrets)
{
	Serve();
	const FHttpAnswer Session = Send("POST", "/api/session", SignInBody);
	Send("GET", "/api/user?token=in-the-address", "", Session.Get("token"));
	SendRaw(Ask("GET", "/a%0d%0aforged"));
	Refresh(Session.Get("refreshToken"));
	Server->Signal(SIGTERM);
	EXPECT_EQ(0, Server->Finish());
	const std::string Output = Server->GetOutput();
	EXPECT_THAT(Output, HasSubstr("127.0.0.1 POST /api/session 200 "));
	EXPECT_THAT(Output, HasSubstr("127.0.0.1 GET /api/user 200 "));
	// Where it serves, four requests, and its end.
	EXPECT_EQ(6, std::count(Output.begin(), Output.end(), '\n')) << Output;
	for (const std::string& Secret : { std::string("right-password"), std::string("in-the-address"), Session.Get("token"), Session.Get("refreshToken") })
	{
		EXPECT_THAT(Output, Not(HasSubstr(Secret)));
	}
}

TEST_F(FProjectServerTest, AnAddedUserSignsIn)
{
	FServerProcess Adding(Home.Path, { "--project", Folder.Path.string(), "--add-user", "Clara" }, "a new password\n");
	EXPECT_EQ(0, Adding.Finish());
	EXPECT_THAT(Adding.GetOutput(), HasSubstr("The user Clara is added."));
	EXPECT_THAT(Adding.GetOutput(), Not(HasSubstr("a new password")));
	FServerProcess Twice(Home.Path, { "--project", Folder.Path.string(), "--add-user", "clara" }, "another\n");
	EXPECT_EQ(1, Twice.Finish());
	EXPECT_THAT(Twice.GetOutput(), HasSubstr("the user is not added: there is a user of that name"));
	FServerProcess WithoutPassword(Home.Path, { "--project", Folder.Path.string(), "--add-user", "dora" });
	EXPECT_EQ(1, WithoutPassword.Finish());
	Serve();
	EXPECT_EQ("200", Send("POST", "/api/session", R"({"user": "Clara", "password": "a new password", "remember": false})").Describe());
}

TEST_F(FProjectServerTest, WhatItCannotDoIsOneLine)
{
	Serve();
	const std::string Project = Folder.Path.string();
	struct FCase
	{
		std::vector<std::string> Arguments;
		int ExitCode;
		const char* Line;
	};
	const FCase Cases[] = {
		{ { "--project", Project, "--port", std::to_string(Server->GetPort()) }, 1, "Address already in use" },
		{ { "--project", Project, "--bind", "elsewhere" }, 1, "'elsewhere' is no IPv4 or IPv6 address" },
		{ { "--project", Project + "/nothing" }, 2, "--project" },
		{ {}, 2, "--project is required" },
		{ { "--project", Project, "--port", "70000" }, 2, "--port" },
		{ { "--project", Project, "--token-seconds", "0" }, 2, "--token-seconds" },
	};
	for (const FCase& Case : Cases)
	{
		FServerProcess Failing(Home.Path, Case.Arguments);
		EXPECT_EQ(Case.ExitCode, Failing.Finish()) << Failing.GetOutput();
		EXPECT_THAT(Failing.GetOutput(), HasSubstr(Case.Line));
		EXPECT_EQ(1, std::count(Failing.GetOutput().begin(), Failing.GetOutput().end(), '\n')) << Failing.GetOutput();
	}
}
