#include "UserTest.h"

#include "Host/StoredValues.h"
#include "Misc/FileHelper.h"
#include "Misc/Paths.h"

#include <filesystem>
#include <fstream>
#include <iterator>

using Host::EServerFault;
using Host::FExpectedLog;
using Host::FServerReply;
using Host::FServerRequest;

namespace
{
	/** How long sessions last, and what is remembered of them. */
	class FHalvexUserSessionTest : public FUserTest
	{
	protected:
		void SignInRemembered(int Seconds = 100)
		{
			ServeAda(Seconds, "r1");
			ASSERT_TRUE(SignIn(true));
			Events();
		}

		/** Makes the user of the next start. */
		void Restart()
		{
			Listener.Reset();
			UHalvexSDKEngineSubsystem* const Subsystem = UHalvexSDKEngineSubsystem::Get();
			Subsystem->SetHalvexUser(NewObject<UHalvexUser>(Subsystem));
			CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
			Listener.Reset(NewObject<UUserListener>());
			Listener->ListenTo(Now());
			NumResultsSeen = 0;
		}

		static UHalvexUser& Now() { return FService::GetUser(); }

		/** Goes on as who is remembered. */
		bool Continue(bool bRemember = true)
		{
			FHalvexUserInformation Known = Now().GetUserInfo();
			Known.bRememberMe = bRemember;
			NumResultsSeen = Listener->NumResults;
			Now().RequestUserLogin(Known);
			return WaitForResult();
		}

		bool SignInNow(const TCHAR* Name, const TCHAR* Password)
		{
			NumResultsSeen = Listener->NumResults;
			Now().RequestUserLogin(FHalvexUserInformation(true, Name, Password));
			return WaitForResult();
		}

		/** All that the program has saved, names of files included. */
		static std::string ReadSaved()
		{
			std::string Text;
			for (const auto& Entry : std::filesystem::recursive_directory_iterator(TCHAR_TO_UTF8(*FPaths::ProjectSavedDir())))
			{
				Text += Entry.path().string() + "\n";
				if (Entry.is_regular_file())
				{
					std::ifstream Stream(Entry.path(), std::ios::binary);
					Text.append(std::istreambuf_iterator<char>(Stream), std::istreambuf_iterator<char>());
				}
			}
			return Text;
		}
	};

	TEST_F(FHalvexUserSessionTest, TokenRunsOutOnTheEnginesClock)
	{
		ServeAda(10);
		ASSERT_TRUE(SignIn());
		Events();
		Pass(8.0);
		EXPECT_TRUE(User.HasValidToken());
		Pass(3.0);
		EXPECT_FALSE(User.HasValidToken());
		EXPECT_EQ(Events(), "logout; ");
		EXPECT_EQ(Host::ToStd(User.GetUserLoginInfo().UserId), "");
		EXPECT_EQ(Service.Server.GetVisits("/api/session/refresh"), 0) << "there is nothing to renew it with";
	}

	TEST_F(FHalvexUserSessionTest, TokenIsRenewedBeforeItRunsOut)
	{
		SignInRemembered(100);
		Service.Server.Serve("/api/session/refresh", FService::Grant("t2", 100, "r2"));
		Pass(75.0);
		EXPECT_EQ(Service.Server.GetVisits("/api/session/refresh"), 0);
		Pass(10.0);
		ASSERT_TRUE(WaitForVisits("/api/session/refresh", 1));
		WaitForQuiet();
		EXPECT_EQ(Host::ToStd(User.GetToken()), "t2");
		EXPECT_NE(Service.Server.GetLastRequest("/api/session/refresh").Body.find("\"r1\""), std::string::npos);
		Pass(50.0);
		EXPECT_TRUE(User.HasValidToken());
		EXPECT_EQ(Events(), "") << "nobody notices";
		Pass(35.0);
		ASSERT_TRUE(WaitForVisits("/api/session/refresh", 2));
		EXPECT_NE(Service.Server.GetLastRequest("/api/session/refresh").Body.find("\"r2\""), std::string::npos) << "each is used once";
	}

	TEST_F(FHalvexUserSessionTest, LongTokenIsRenewedAMinuteBeforeItsEnd)
	{
		SignInRemembered(3600);
		Service.Server.Serve("/api/session/refresh", FService::Grant("t2", 3600, "r2"));
		Loop.RunFrame(3535.0);
		EXPECT_EQ(Service.Server.GetVisits("/api/session/refresh"), 0);
		Pass(6.0);
		EXPECT_TRUE(WaitForVisits("/api/session/refresh", 1));
	}

	TEST_F(FHalvexUserSessionTest, RefusedRenewalSignsOutAndForgets)
	{
		SignInRemembered();
		Service.Server.Serve("/api/session/refresh", FService::Error(401, "invalid_token"));
		Pass(82.0);
		ASSERT_TRUE(WaitAtOnce([&] { return !User.HasValidToken(); }));
		EXPECT_EQ(Events(), "logout; ");
		EXPECT_FALSE(User.HasRememberedCredentials());
	}

	TEST_F(FHalvexUserSessionTest, RenewalWithoutAnswerIsTriedAgainUntilTheEnd)
	{
		SignInRemembered();
		FServerReply Broken = FService::Grant("t2", 100, "r2");
		Broken.Fault = EServerFault::CloseAtOnce;
		Service.Server.Serve("/api/session/refresh", Broken);
		const FExpectedLog Lines(TEXT("The renewal of the session at the service"), FExpectedLog::AnyCount);
		Pass(82.0);
		ASSERT_TRUE(WaitForVisits("/api/session/refresh", 1));
		WaitForQuiet();
		EXPECT_TRUE(User.HasValidToken());
		Pass(6.0);
		ASSERT_TRUE(WaitForVisits("/api/session/refresh", 2));
		WaitForQuiet();
		for (int32 Second = 0; Second < 20; ++Second)
		{
			Pass(1.0);
			WaitForQuiet();
		}
		EXPECT_FALSE(User.HasValidToken());
		EXPECT_EQ(Events(), "logout; ");
		EXPECT_TRUE(User.HasRememberedCredentials()) << "they may be good when the server is back";
	}

	TEST_F(FHalvexUserSessionTest, TokenThatTheServiceForgotIsRenewedOrEndsTheSession)
	{
		SignInRemembered();
		Service.Server.Serve("/api/user", FService::Error(401, "invalid_token"));
		Service.Server.Serve("/api/session/refresh", FService::Grant("t2", 100, "r2"));
		User.RefreshUserData();
		ASSERT_TRUE(WaitAtOnce([&] { return User.GetToken() == TEXT("t2"); }));
		EXPECT_EQ(Events(), "");
		Service.Server.Serve("/api/session/refresh", FService::Error(401, "invalid_token"));
		User.RefreshUserData();
		ASSERT_TRUE(WaitAtOnce([&] { return !User.HasValidToken(); }));
		EXPECT_EQ(Events(), "logout; ");
	}

	TEST_F(FHalvexUserSessionTest, GuestWhoseTokenIsForgottenIsSignedOut)
	{
		Service.Server.Serve("/api/session/guest", FService::GrantGuest("g1", 60));
		Service.Server.Serve("/api/user", FService::Error(401, "invalid_token"));
		User.RequestGuestUser();
		ASSERT_TRUE(WaitForResult());
		Events();
		User.RefreshUserData();
		WaitForQuiet();
		EXPECT_EQ(Events(), "logout; ");
	}

	TEST_F(FHalvexUserSessionTest, SignOutDuringARenewalIsNotUndoneByItsAnswer)
	{
		SignInRemembered();
		Service.Server.Serve("/api/session/refresh", FService::Grant("t2", 100, "r2"));
		Service.Server.Hold();
		Pass(82.0);
		ASSERT_TRUE(WaitForVisits("/api/session/refresh", 1));
		User.RequestUserLogout();
		Service.Server.Release();
		WaitForQuiet();
		Pass(2.0);
		EXPECT_EQ(Events(), "logout; ");
		EXPECT_FALSE(User.HasValidToken());
		EXPECT_FALSE(User.HasRememberedCredentials());
	}

	TEST_F(FHalvexUserSessionTest, WithoutTheWishNothingIsRemembered)
	{
		ServeAda();
		ASSERT_TRUE(SignIn(false));
		EXPECT_FALSE(User.HasRememberedCredentials());
		const FHalvexUserInformation Known = User.GetUserInfo();
		EXPECT_FALSE(Known.bRememberMe);
		EXPECT_EQ(Host::ToStd(Known.UserName), "");
	}

	TEST_F(FHalvexUserSessionTest, RememberedSignInGoesOnAtTheNextStartWithoutAPassword)
	{
		SignInRemembered();
		Restart();
		EXPECT_TRUE(Now().HasRememberedCredentials());
		EXPECT_FALSE(Now().HasValidToken()) << "remembered, not signed in";
		const FHalvexUserInformation Known = Now().GetUserInfo();
		EXPECT_TRUE(Known.bRememberMe);
		EXPECT_EQ(Host::ToStd(Known.UserName), "ada");
		EXPECT_EQ(Host::ToStd(Known.Password), "");
		Service.Server.Serve("/api/session/refresh", FService::Grant("t2", 100, "r2"));
		ASSERT_TRUE(Continue());
		EXPECT_EQ(Events(), "result Ada Quay; logged Ada Quay; ");
		Restart();
		Service.Server.Serve("/api/session/refresh", FService::Grant("t3", 100, "r3"));
		ASSERT_TRUE(Continue());
		EXPECT_NE(Service.Server.GetLastRequest("/api/session/refresh").Body.find("\"r2\""), std::string::npos) << "the new one was remembered";
		EXPECT_EQ(Service.Server.GetVisits("/api/session"), 1);
	}

	TEST_F(FHalvexUserSessionTest, RememberedSignInThatIsRefusedIsForgotten)
	{
		SignInRemembered();
		Restart();
		Service.Server.Serve("/api/session/refresh", FService::Error(401, "invalid_token"));
		EXPECT_FALSE(Continue());
		EXPECT_EQ(Events(), "result SessionEnded; logged SessionEnded; ");
		EXPECT_FALSE(Now().HasRememberedCredentials());
	}

	TEST_F(FHalvexUserSessionTest, RememberedSignInSurvivesAServerThatIsDown)
	{
		SignInRemembered();
		Restart();
		FServerReply Broken;
		Broken.Fault = EServerFault::CloseAtOnce;
		Service.Server.Serve("/api/session/refresh", Broken);
		const FExpectedLog Line(TEXT("the connection failed or was lost"));
		EXPECT_FALSE(Continue());
		EXPECT_EQ(Listener->LastResult.Error, EHalvexLoginError::NoAnswer);
		EXPECT_TRUE(Now().HasRememberedCredentials());
	}

	TEST_F(FHalvexUserSessionTest, ContinuingTwiceSpendsTheRefreshTokenOnce)
	{
		SignInRemembered();
		Restart();
		Service.Server.Serve("/api/session/refresh", FService::Grant("t2", 100, "r2"));
		Service.Server.Hold();
		Now().RequestUserLogin(Now().GetUserInfo());
		ASSERT_TRUE(WaitForVisits("/api/session/refresh", 1));
		Now().RequestUserLogin(Now().GetUserInfo());
		EXPECT_EQ(Events(), "result Cancelled; logged Cancelled; ");
		Service.Server.Release();
		NumResultsSeen = Listener->NumResults;
		ASSERT_TRUE(WaitForResult());
		WaitForQuiet();
		EXPECT_EQ(Events(), "result Ada Quay; logged Ada Quay; ");
		EXPECT_EQ(Service.Server.GetVisits("/api/session/refresh"), 1);
	}

	TEST_F(FHalvexUserSessionTest, RefreshTokenThatWasOvertakenIsNotLost)
	{
		SignInRemembered();
		Restart();
		Service.Server.Serve("/api/session/refresh", FService::Grant("t2", 100, "r2"));
		Service.Server.Serve("/api/session/guest", FService::GrantGuest("g1", 60));
		Service.Server.Hold();
		Now().RequestUserLogin(Now().GetUserInfo());
		ASSERT_TRUE(WaitForVisits("/api/session/refresh", 1));
		Now().RequestGuestUser();
		Service.Server.Release();
		NumResultsSeen = Listener->NumResults;
		ASSERT_TRUE(WaitForResult());
		WaitForQuiet();
		EXPECT_TRUE(Now().IsGuestUser());
		Restart();
		ASSERT_TRUE(Continue());
		EXPECT_NE(Service.Server.GetLastRequest("/api/session/refresh").Body.find("\"r2\""), std::string::npos);
	}

	TEST_F(FHalvexUserSessionTest, ContinuingWithoutTheWishForgets)
	{
		SignInRemembered();
		Restart();
		Service.Server.Serve("/api/session/refresh", FService::Grant("t2", 100, "r2"));
		ASSERT_TRUE(Continue(false));
		EXPECT_TRUE(Now().HasValidToken());
		EXPECT_FALSE(Now().HasRememberedCredentials());
	}

	TEST_F(FHalvexUserSessionTest, OtherNameOrAPasswordSignsInAnew)
	{
		SignInRemembered();
		Restart();
		Service.Server.Serve("/api/session", FService::Error(401, "invalid_credentials"));
		EXPECT_FALSE(SignInNow(TEXT("bob"), TEXT("")));
		EXPECT_FALSE(SignInNow(TEXT("Ada"), TEXT("")));
		EXPECT_FALSE(SignInNow(TEXT("ada"), TEXT("typed")));
		EXPECT_EQ(Service.Server.GetVisits("/api/session"), 4);
		EXPECT_EQ(Service.Server.GetVisits("/api/session/refresh"), 0);
		EXPECT_TRUE(Now().HasRememberedCredentials()) << "a failure forgets nothing";
	}

	TEST_F(FHalvexUserSessionTest, SignOutForgetsAndAGuestsDoesNot)
	{
		SignInRemembered();
		Service.Server.Serve("/api/session/guest", FService::GrantGuest("g1", 60));
		User.RequestGuestUser();
		ASSERT_TRUE(WaitForResult());
		WaitForQuiet();
		EXPECT_EQ(Service.Server.GetLastRequest("/api/session").Method, "POST") << "the session before is the one that is remembered";
		User.RequestUserLogout();
		EXPECT_TRUE(User.HasRememberedCredentials());
		ASSERT_TRUE(SignIn(true));
		User.RequestUserLogout();
		EXPECT_FALSE(User.HasRememberedCredentials());
		WaitForQuiet();
	}

	TEST_F(FHalvexUserSessionTest, WhatOneServiceGaveIsNotForAnother)
	{
		SignInRemembered();
		Host::FLoopbackServer Other;
		Service.Settings->ServiceAddress = Other.GetUrl("");
		EXPECT_FALSE(User.HasRememberedCredentials());
		Service.Settings->ServiceAddress = Service.Server.GetUrl("");
		EXPECT_TRUE(User.HasRememberedCredentials());
	}

	TEST_F(FHalvexUserSessionTest, NoFileHoldsThePasswordOrTheToken)
	{
		ServeAda(100, "refresh-of-ada");
		ASSERT_TRUE(SignIn(true, TEXT("ada"), TEXT("harbour-5678")));
		const std::string Saved = ReadSaved();
		EXPECT_NE(Saved.find("refresh-of-ada"), std::string::npos) << "what is looked for can be found";
		EXPECT_EQ(Saved.find("harbour-5678"), std::string::npos);
		EXPECT_EQ(Saved.find("\"t1\""), std::string::npos);
		User.ForgetRememberedCredentials();
		EXPECT_EQ(ReadSaved().find("refresh-of-ada"), std::string::npos);
	}
}
