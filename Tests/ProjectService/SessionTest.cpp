#include "CoreMinimal.h"
#include "ExpectedLog.h"
#include "HAL/PlatformMisc.h"
#include "Host/LogSink.h"
#include "ServiceFolder.h"
#include "gtest/gtest.h"

#include <set>
#include <thread>
#include <vector>

namespace
{
	class FSessionTest : public testing::Test
	{
	protected:
		std::string GetUser(const std::string& Token) { return Describe(Service.Send("GET", "/api/user", "", Token)); }
		static std::string Describe(const Host::FServiceResponse& Response) { return FTestService::Describe(Response); }
		static std::string Get(const Host::FServiceResponse& Response, const char* Member) { return FTestService::Get(Response, Member); }

		const FServiceFolder Folder;
		FTestService Service = FTestService(Folder);
	};

	/** Keeps all that is logged, whatever it is. */
	class FEverythingLogged final : public Host::FLogSink
	{
	public:
		FEverythingLogged() { Host::FLogSinks::Add(*this); }
		virtual ~FEverythingLogged() override { Host::FLogSinks::Remove(*this); }
		virtual void Write(const FName&, ELogVerbosity::Type, const FString& Message, const char*, int32) override { Text += TCHAR_TO_UTF8(*Message); }

		std::string Text;
	};
}

TEST_F(FSessionTest, TheRightPasswordGivesATokenAndTheUser)
{
	const Host::FServiceResponse Answer = Service.SignIn("Anna", "right-password");
	EXPECT_EQ("200", Describe(Answer));
	EXPECT_EQ("100", Get(Answer, "expiresIn"));
	EXPECT_EQ("false", Get(Answer, "guest"));
	EXPECT_EQ("(none)", Get(Answer, "refreshToken"));
	EXPECT_EQ("u1", Get(Answer, "user.id"));
	EXPECT_EQ("Anna", Get(Answer, "user.userName"));
	EXPECT_EQ("Anna Ström", Get(Answer, "user.displayName"));
	EXPECT_EQ("anna@example.org", Get(Answer, "user.email"));
	EXPECT_EQ("anna", Get(Answer, "user.picture.id"));
	EXPECT_EQ("Portraits/anna.png", Get(Answer, "user.picture.address"));
	EXPECT_EQ("no-store", std::string(TCHAR_TO_UTF8(*Answer.GetHeader(TEXT("cache-control")))));

	const Host::FServiceResponse User = Service.Send("GET", "/api/user", "", Get(Answer, "token"));
	EXPECT_EQ("200", Describe(User));
	EXPECT_EQ("u1", Get(User, "user.id"));
	EXPECT_EQ("false", Get(User, "guest"));
}

TEST_F(FSessionTest, TheCaseOfANameDoesNotCountThatOfAPasswordDoes)
{
	EXPECT_EQ("200", Describe(Service.SignIn("aNNA", "right-password")));
	EXPECT_EQ("401 invalid_credentials", Describe(Service.SignIn("Anna", "Right-password")));
}

TEST_F(FSessionTest, AUserWithoutPictureHasNone)
{
	const Host::FServiceResponse Answer = Service.SignIn("ben", "other-password");
	EXPECT_EQ("200", Describe(Answer));
	EXPECT_EQ("(none)", Get(Answer, "user.picture.address"));
}

TEST_F(FSessionTest, AWrongPasswordAndAnUnknownUserAreAnsweredAlike)
{
	const Host::FServiceResponse Wrong = Service.SignIn("Anna", "other-password");
	const Host::FServiceResponse Unknown = Service.SignIn("nobody", "other-password");
	EXPECT_EQ("401 invalid_credentials", Describe(Wrong));
	EXPECT_EQ(FTestService::GetBody(Wrong), FTestService::GetBody(Unknown));
	// The one whose hash stands in for that of somebody unknown does not let him in.
	EXPECT_EQ("401 invalid_credentials", Describe(Service.SignIn("nobody", "right-password")));
}

TEST_F(FSessionTest, WithoutUsersNobodySignsInButGuests)
{
	std::filesystem::remove(Folder.Path / "users.json");
	EXPECT_EQ("401 invalid_credentials", Describe(Service.SignIn("Anna", "right-password")));
	EXPECT_EQ("200", Describe(Service.Send("POST", "/api/session/guest", "{}")));
}

TEST_F(FSessionTest, AGuestHasNoPictureAndIsNeverRemembered)
{
	const Host::FServiceResponse Answer = Service.Send("POST", "/api/session/guest", R"({"remember": true})");
	EXPECT_EQ("200", Describe(Answer));
	EXPECT_EQ("true", Get(Answer, "guest"));
	EXPECT_EQ("guest", Get(Answer, "user.id"));
	EXPECT_EQ("(none)", Get(Answer, "user.picture.address"));
	EXPECT_EQ("(none)", Get(Answer, "refreshToken"));
	EXPECT_EQ("true", Get(Service.Send("GET", "/api/user", "", Get(Answer, "token")), "guest"));
}

TEST_F(FSessionTest, ATokenRunsOut)
{
	const std::string Token = Get(Service.SignIn("Anna", "right-password"), "token");
	Service.Now += 99.0;
	EXPECT_EQ("200", GetUser(Token));
	Service.Now += 1.0;
	EXPECT_EQ("401 invalid_token", GetUser(Token));
}

TEST_F(FSessionTest, WhatIsNoTokenIsRefused)
{
	const std::string Token = Get(Service.SignIn("Anna", "right-password"), "token");
	for (const std::string& Wrong : { std::string(), std::string("x"), Token + "A", Token.substr(1), std::string(43, 'A'), std::string(5000, 'A'), std::string("ä\n") })
	{
		EXPECT_EQ("401 invalid_token", GetUser(Wrong)) << Wrong;
	}
	EXPECT_EQ("200", GetUser(Token));
}

TEST_F(FSessionTest, TokensAreLongAndNeverTheSame)
{
	std::set<std::string> Tokens;
	for (int Index = 0; Index < 20; ++Index)
	{
		const Host::FServiceResponse Answer = Service.SignIn("Anna", "right-password", true);
		// 256 and 384 bits, six a letter.
		EXPECT_EQ(43u, Get(Answer, "token").size());
		EXPECT_EQ(64u, Get(Answer, "refreshToken").size());
		Tokens.insert(Get(Answer, "token"));
		Tokens.insert(Get(Answer, "refreshToken"));
	}
	EXPECT_EQ(40u, Tokens.size());
}

TEST_F(FSessionTest, ARefreshTokenGivesTheNextOne)
{
	const Host::FServiceResponse First = Service.SignIn("Anna", "right-password", true);
	Service.Now += 200.0;
	const Host::FServiceResponse Second = Service.Refresh(Get(First, "refreshToken"));
	EXPECT_EQ("200", Describe(Second));
	EXPECT_EQ("u1", Get(Second, "user.id"));
	EXPECT_NE(Get(First, "refreshToken"), Get(Second, "refreshToken"));
	EXPECT_EQ("200", GetUser(Get(Second, "token")));
	EXPECT_EQ("200", Describe(Service.Refresh(Get(Second, "refreshToken"))));
}

TEST_F(FSessionTest, ARefreshTokenUsedTwiceEndsItsFamily)
{
	const Host::FServiceResponse Other = Service.SignIn("Anna", "right-password", true);
	const Host::FServiceResponse First = Service.SignIn("Anna", "right-password", true);
	const Host::FServiceResponse Second = Service.Refresh(Get(First, "refreshToken"));
	EXPECT_EQ("401 invalid_token", Describe(Service.Refresh(Get(First, "refreshToken"))));
	EXPECT_EQ("401 invalid_token", Describe(Service.Refresh(Get(Second, "refreshToken"))));
	EXPECT_EQ("401 invalid_token", GetUser(Get(First, "token")));
	EXPECT_EQ("401 invalid_token", GetUser(Get(Second, "token")));
	// Another sign-in of the same user is another family.
	EXPECT_EQ("200", GetUser(Get(Other, "token")));
	EXPECT_EQ("200", Describe(Service.Refresh(Get(Other, "refreshToken"))));
}

TEST_F(FSessionTest, ARefreshTokenRunsOutWhenItIsNotUsed)
{
	const std::string Token = Get(Service.SignIn("Anna", "right-password", true), "refreshToken");
	Service.Now += 999.0;
	const std::string Next = Get(Service.Refresh(Token), "refreshToken");
	Service.Now += 999.0;
	const std::string Last = Get(Service.Refresh(Next), "refreshToken");
	Service.Now += 1000.0;
	EXPECT_EQ("401 invalid_token", Describe(Service.Refresh(Last)));
}

TEST_F(FSessionTest, SigningOutMakesBothTokensVoid)
{
	const Host::FServiceResponse Answer = Service.SignIn("Anna", "right-password", true);
	const std::string Token = Get(Answer, "token");
	const Host::FServiceResponse Out = Service.Send("DELETE", "/api/session", "{\"refreshToken\": \"" + Get(Answer, "refreshToken") + "\"}", Token);
	EXPECT_EQ(204, Out.Status);
	EXPECT_EQ(0, Out.Body.Num());
	EXPECT_EQ("401 invalid_token", GetUser(Token));
	EXPECT_EQ("401 invalid_token", Describe(Service.Refresh(Get(Answer, "refreshToken"))));
}

TEST_F(FSessionTest, SigningOutWithATokenThatHasRunOutStillEndsTheRememberedSignIn)
{
	const Host::FServiceResponse Answer = Service.SignIn("Anna", "right-password", true);
	Service.Now += 500.0;
	EXPECT_EQ(204, Service.Send("DELETE", "/api/session", "{\"refreshToken\": \"" + Get(Answer, "refreshToken") + "\"}", Get(Answer, "token")).Status);
	EXPECT_EQ("401 invalid_token", Describe(Service.Refresh(Get(Answer, "refreshToken"))));
}

TEST_F(FSessionTest, SigningOutWithoutABodyEndsTheTokenAlone)
{
	const Host::FServiceResponse Answer = Service.SignIn("Anna", "right-password", true);
	EXPECT_EQ(204, Service.Send("DELETE", "/api/session", "", Get(Answer, "token")).Status);
	EXPECT_EQ("401 invalid_token", GetUser(Get(Answer, "token")));
	EXPECT_EQ("200", Describe(Service.Refresh(Get(Answer, "refreshToken"))));
	EXPECT_EQ("401 invalid_token", Describe(Service.Send("DELETE", "/api/session")));
}

TEST_F(FSessionTest, TooManyWrongPasswordsMustWait)
{
	for (int Index = 0; Index < 3; ++Index)
	{
		EXPECT_EQ("401 invalid_credentials", Describe(Service.SignIn("Anna", "wrong")));
		Service.Now += 1.0;
	}
	const Host::FServiceResponse Refused = Service.SignIn("Anna", "right-password");
	EXPECT_EQ("429 too_many_attempts", Describe(Refused));
	EXPECT_EQ("57", std::string(TCHAR_TO_UTF8(*Refused.GetHeader(TEXT("Retry-After")))));
	EXPECT_EQ("429 too_many_attempts", Describe(Service.SignIn("ANNA", "right-password")));
	EXPECT_EQ("200", Describe(Service.SignIn("ben", "other-password")));
	EXPECT_EQ("200", Describe(Service.SignIn("Anna", "right-password", false, "elsewhere")));
	Service.Now += 57.0;
	EXPECT_EQ("200", Describe(Service.SignIn("Anna", "right-password")));
}

TEST_F(FSessionTest, ARightPasswordMakesUpForWrongOnes)
{
	for (int Index = 0; Index < 3; ++Index)
	{
		EXPECT_EQ("401 invalid_credentials", Describe(Service.SignIn("Anna", "wrong")));
		EXPECT_EQ("200", Describe(Service.SignIn("Anna", "right-password")));
	}
}

TEST_F(FSessionTest, AnAddressThatTriesManyUsersMustWait)
{
	for (int Index = 0; Index < 6; ++Index)
	{
		EXPECT_EQ("401 invalid_credentials", Describe(Service.SignIn("user" + std::to_string(Index), "wrong")));
	}
	EXPECT_EQ("429 too_many_attempts", Describe(Service.SignIn("ben", "other-password")));
	EXPECT_EQ("200", Describe(Service.SignIn("ben", "other-password", false, "elsewhere")));
}

TEST_F(FSessionTest, BodiesThatAreNotAsTheyShouldBeAreMalformed)
{
	const char* const Bodies[] = {
		"", "null", "[]", "\"x\"", "{", "\xFF", R"({"user": "Anna", "password": "right-password"})", R"({"user": "Anna", "remember": true})",
		R"({"user": 1, "password": "right-password", "remember": true})", R"({"user": "Anna", "password": ["right-password"], "remember": true})",
		R"({"user": "Anna", "password": "right-password", "remember": "true"})", R"({"user": "", "password": "right-password", "remember": true})",
		R"({"user": "Anna", "password": "", "remember": true})", R"({"user": "Anna", "user": "ben", "password": "right-password", "remember": true})",
		R"({"user": "Anna", "password": "right-password", "remember": true} x)", "[[[[[[[[[[[[[[[[[[[[",
	};
	for (const char* Body : Bodies)
	{
		EXPECT_EQ("400 malformed", Describe(Service.Send("POST", "/api/session", Body))) << Body;
	}
	EXPECT_EQ("400 malformed", Describe(Service.SignIn(std::string(257, 'a'), "right-password")));
	EXPECT_EQ("400 malformed", Describe(Service.SignIn("Anna", std::string(1025, 'a'))));
	for (const char* Body : { "", "[]", "{", R"({"refreshToken": 5})", R"({"refreshToken": ""})", "{}" })
	{
		EXPECT_EQ("400 malformed", Describe(Service.Send("POST", "/api/session/refresh", Body))) << Body;
	}
	for (const char* Body : { "", "[]", "{" })
	{
		EXPECT_EQ("400 malformed", Describe(Service.Send("POST", "/api/session/guest", Body))) << Body;
	}
	for (const char* Body : { "[]", "{", R"({"refreshToken": 5})" })
	{
		EXPECT_EQ("400 malformed", Describe(Service.Send("DELETE", "/api/session", Body, "x"))) << Body;
	}
}

TEST_F(FSessionTest, MembersThatNobodyKnowsAreNoHarm)
{
	EXPECT_EQ("200", Describe(Service.Send("POST", "/api/session", R"({"user": "Anna", "password": "right-password", "remember": false, "device": {"kind": "wall"}})")));
}

TEST_F(FSessionTest, ABodyOf64KibIsReadAndOneByteMoreIsTooLarge)
{
	const std::string Body = R"({"user": "Anna", "password": "right-password", "remember": false})";
	EXPECT_EQ("200", Describe(Service.Send("POST", "/api/session", Body + std::string(64 * 1024 - Body.size(), ' '))));
	EXPECT_EQ("413 too_large", Describe(Service.Send("POST", "/api/session", Body + std::string(64 * 1024 - Body.size() + 1, ' '))));
}

TEST_F(FSessionTest, OtherMethodsAreNotAllowedAndTheAnswerNamesThoseThatAre)
{
	const Host::FServiceResponse Answer = Service.Send("PUT", "/api/session", "{}");
	EXPECT_EQ("405 method_not_allowed", Describe(Answer));
	EXPECT_EQ("POST, DELETE", std::string(TCHAR_TO_UTF8(*Answer.GetHeader(TEXT("Allow")))));
	EXPECT_EQ("405 method_not_allowed", Describe(Service.Send("GET", "/api/session/guest")));
	EXPECT_EQ("405 method_not_allowed", Describe(Service.Send("HEAD", "/api/session")));
	EXPECT_EQ("405 method_not_allowed", Describe(Service.Send("DELETE", "/api/user")));
	EXPECT_EQ("405 method_not_allowed", Describe(Service.Send("get", "/api/user")));
	EXPECT_EQ("404 not_found", Describe(Service.Send("GET", "/api/users")));
	EXPECT_EQ("404 not_found", Describe(Service.Send("GET", "/api/session/")));
}

TEST_F(FSessionTest, AUserWhoIsTakenOutOfTheFileIsOutAtOnce)
{
	const Host::FServiceResponse Answer = Service.SignIn("Anna", "right-password", true);
	Folder.Write("users.json", R"({"users": []})");
	EXPECT_EQ("401 invalid_token", GetUser(Get(Answer, "token")));
	EXPECT_EQ("401 invalid_token", Describe(Service.Refresh(Get(Answer, "refreshToken"))));
	EXPECT_EQ("401 invalid_credentials", Describe(Service.SignIn("Anna", "right-password")));
}

TEST_F(FSessionTest, ARememberedSignInIsKnownToTheNextServiceWhenAsked)
{
	FTestService Before(Folder, true);
	const Host::FServiceResponse Answer = Before.SignIn("Anna", "right-password", true);
	const std::string RefreshToken = Get(Answer, "refreshToken");
	FTestService After(Folder, true);
	EXPECT_EQ("401 invalid_token", Describe(After.Send("GET", "/api/user", "", Get(Answer, "token"))));
	const Host::FServiceResponse Next = After.Refresh(RefreshToken);
	EXPECT_EQ("200", Describe(Next));
	FTestService Later(Folder, true);
	EXPECT_EQ("401 invalid_token", Describe(Later.Refresh(RefreshToken)));
	FTestService Last(Folder, true);
	EXPECT_EQ("401 invalid_token", Describe(Last.Refresh(Get(Next, "refreshToken"))));

	FString Kept;
	const FString Section = FString(UTF8_TO_TCHAR(std::filesystem::canonical(Folder.Path).c_str()));
	EXPECT_TRUE(FPlatformMisc::GetStoredValue(TEXT("HalvexService"), Section, TEXT("Sessions"), Kept));
	EXPECT_FALSE(Kept.Contains(UTF8_TO_TCHAR(RefreshToken.c_str())));
}

TEST_F(FSessionTest, ServicesThatKeepTheirSessionsInOnePlaceLoseNone)
{
	FTestService One(Folder, true);
	FTestService Other(Folder, true);
	const std::string OfOne = Get(One.SignIn("Anna", "right-password", true), "refreshToken");
	const std::string OfOther = Get(Other.SignIn("ben", "other-password", true), "refreshToken");
	EXPECT_EQ("200", Describe(Other.Refresh(OfOne)));
	EXPECT_EQ("200", Describe(One.Refresh(OfOther)));
}

TEST_F(FSessionTest, NothingSecretIsLogged)
{
	FEverythingLogged Log;
	const Host::FServiceResponse Answer = Service.SignIn("Anna", "right-password", true);
	Service.SignIn("Anna", "wrong-password");
	Service.Send("POST", "/api/session", R"({"user": "Anna", "password": "half)");
	Service.Refresh(Get(Answer, "refreshToken"));
	Service.Refresh(Get(Answer, "refreshToken"));
	for (const std::string& Secret : { std::string("right-password"), std::string("wrong-password"), std::string("half"), Get(Answer, "token"), Get(Answer, "refreshToken") })
	{
		EXPECT_EQ(std::string::npos, Log.Text.find(Secret)) << Secret;
	}
}

TEST_F(FSessionTest, ManyThreadsAreAnsweredAtOnce)
{
	std::vector<std::thread> Threads;
	std::atomic<int> NumRight = 0;
	for (int Index = 0; Index < 8; ++Index)
	{
		Threads.emplace_back([this, &NumRight]
		{
			for (int Round = 0; Round < 10; ++Round)
			{
				const Host::FServiceResponse Answer = Service.SignIn("Anna", "right-password", true);
				NumRight += Answer.Status == 200 && GetUser(Get(Answer, "token")) == "200" && Service.Refresh(Get(Answer, "refreshToken")).Status == 200;
			}
		});
	}
	for (std::thread& Thread : Threads)
	{
		Thread.join();
	}
	EXPECT_EQ(80, NumRight);
}
