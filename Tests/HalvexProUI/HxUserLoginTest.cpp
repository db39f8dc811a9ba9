#include "UserWidgetTest.h"

#include "KitReflection.h"
#include "UserWidget/User/HxUserLogin.h"

using Host::FExpectedLog;
using Host::FServerReply;

namespace
{
	class FHxUserLoginTest : public FUserWidgetTest
	{
	protected:
		void ShowLogin()
		{
			WriteBlueprint(TEXT("Login"), "HxUserLogin",
				"local function Write(self, Text) self.Events = self.Events .. Text .. '; ' end\n"
				"local function Outcome(Success, Info) return Success and Info.DisplayName or Info.Error end\n"
				"function OnInitialized(self) self.OnLoginResult:Add(function(Success, Info) Write(self, 'told ' .. Outcome(Success, Info)) end) end\n"
				"function OnLoginInProcess(self, InProgress) Write(self, 'progress ' .. tostring(InProgress)) end\n"
				"function OnReceivedLoginResult(self, Success, Info) Write(self, 'result ' .. Outcome(Success, Info)) end\n"
				"function OnLoadRememberOptions(self, Known) Write(self, 'remembered ' .. Known.UserName .. ' ' .. tostring(Known.bRememberMe) .. ' [' .. Known.Password .. ']') end");
			Login = CastChecked<UHxUserLogin>(ShowPanel(TEXT("Login")));
		}

		std::string Events() { return TakeEvents(*Login); }

		void ServeAda() { Service.Server.Serve("/api/session", FService::Grant("t1", 3600)); }
		void Refuse() { Service.Server.Serve("/api/session", FService::Error(401, "invalid_credentials")); }

		void SignIn()
		{
			Login->RequestUserLogin(TEXT("ada"), TEXT("harbour-5678"));
			WaitForQuiet();
		}

		bool IsBound() const { return FService::GetUser().OnLoginResult.Contains(Login, TEXT("Received_LoginResult")); }

		UHxUserLogin* Login = nullptr;
	};

	TEST_F(FHxUserLoginTest, SuccessIsToldToTheGraphThenToListeners)
	{
		ShowLogin();
		ServeAda();
		Login->RequestUserLogin(TEXT("ada"), TEXT("harbour-5678"));
		EXPECT_EQ(Events(), "progress true; ");
		EXPECT_TRUE(IsBound());
		WaitForQuiet();
		EXPECT_EQ(Events(), "progress false; result Ada Quay; told Ada Quay; ");
		EXPECT_FALSE(IsBound()) << "a success unbinds";
	}

	TEST_F(FHxUserLoginTest, FailureIsToldAndStaysBound)
	{
		ShowLogin();
		Refuse();
		SignIn();
		EXPECT_EQ(Events(), "progress true; progress false; result InvalidCredentials; told InvalidCredentials; ");
		EXPECT_TRUE(IsBound());
	}

	TEST_F(FHxUserLoginTest, RetryAfterAFailureIsDeliveredOncePerBinding)
	{
		ShowLogin();
		Refuse();
		SignIn();
		Events();
		ServeAda();
		{
			const FExpectedLog Report(TEXT("is bound already"));
			SignIn();
		}
		EXPECT_EQ(Events(), "progress true; progress false; result Ada Quay; told Ada Quay; progress false; result Ada Quay; told Ada Quay; ");
		EXPECT_FALSE(IsBound()) << "each delivery took one binding away";
		SignIn();
		EXPECT_EQ(Events(), "progress true; progress false; result Ada Quay; told Ada Quay; ");
	}

	TEST_F(FHxUserLoginTest, OneSuccessTakesOneBindingAway)
	{
		ShowLogin();
		Refuse();
		SignIn();
		const FExpectedLog Report(TEXT("is bound already"));
		Login->RequestUserLogin(TEXT("ada"), TEXT("x"));
		struct
		{
			bool bSuccessful = true;
			FLoginInfo UserLogInfo;
		} Parms;
		Login->ProcessEvent(Login->FindFunctionChecked(TEXT("Received_LoginResult")), &Parms);
		EXPECT_TRUE(IsBound());
		FService::GetUser().Abandon();
	}

	TEST_F(FHxUserLoginTest, GuestReportsThroughTheSameEvents)
	{
		ShowLogin();
		Service.Server.Serve("/api/session/guest", FService::GrantGuest("g1", 60));
		Login->RequestGuestLogin();
		EXPECT_EQ(Events(), "progress true; ");
		WaitForQuiet();
		EXPECT_EQ(Events(), "progress false; result Guest; told Guest; ");
	}

	TEST_F(FHxUserLoginTest, WishToBeRememberedIsSentWithTheName)
	{
		ShowLogin();
		Refuse();
		SignIn();
		EXPECT_NE(Service.Server.GetLastRequest("/api/session").Body.find("\"remember\": false"), std::string::npos);
		Login->SetRememberMeOption(true);
		Events();
		const FExpectedLog Report(TEXT("is bound already"));
		SignIn();
		EXPECT_NE(Service.Server.GetLastRequest("/api/session").Body.find("\"remember\": true"), std::string::npos);
	}

	TEST_F(FHxUserLoginTest, WishToBeRememberedDoesNothingElse)
	{
		ShowLogin();
		Login->SetRememberMeOption(true);
		EXPECT_EQ(Events(), "");
		EXPECT_EQ(Read(*Login, TEXT("bRememberMe")), "True");
		EXPECT_FALSE(FService::GetUser().HasRememberedCredentials());
	}

	TEST_F(FHxUserLoginTest, SecondRequestIsNotHeldBackByTheFirst)
	{
		ShowLogin();
		ServeAda();
		Service.Server.Serve("/api/session/guest", FService::GrantGuest("g1", 60));
		Login->RequestUserLogin(TEXT("ada"), TEXT("x"));
		Events();
		{
			const FExpectedLog Report(TEXT("is bound already"));
			Login->RequestGuestLogin();
		}
		const std::string Cancelled = "progress false; result Cancelled; told Cancelled; ";
		EXPECT_EQ(Events(), Cancelled + Cancelled + "progress true; ") << "the progress goes on for the second";
		WaitForQuiet();
		const std::string Guest = "progress false; result Guest; told Guest; ";
		EXPECT_EQ(Events(), Guest + Guest);
		EXPECT_EQ(Service.Server.GetVisits("/api/session/guest"), 1);
	}

	TEST_F(FHxUserLoginTest, RememberedNameIsOfferedWithoutThePassword)
	{
		Service.Server.Serve("/api/session", FService::Grant("t1", 60, "r1"));
		FService::GetUser().RequestUserLogin(FHalvexUserInformation(true, TEXT("ada"), TEXT("harbour-5678")));
		WaitForQuiet();
		ShowLogin();
		EXPECT_EQ(Events(), "remembered ada true []; ");
	}

	TEST_F(FHxUserLoginTest, NothingIsOfferedWhenNothingIsRemembered)
	{
		ShowLogin();
		EXPECT_EQ(Events(), "");
	}

	TEST_F(FHxUserLoginTest, WithoutAUserItStaysInert)
	{
		const FWithoutUser Nobody;
		ShowLogin();
		Login->RequestUserLogin(TEXT("ada"), TEXT("x"));
		Login->RequestGuestLogin();
		EXPECT_EQ(Events(), "");
	}

	TEST_F(FHxUserLoginTest, ScreenThatIsGoneHearsNothing)
	{
		ShowLogin();
		ServeAda();
		Login->RequestUserLogin(TEXT("ada"), TEXT("x"));
		Login = nullptr;
		StartScreen();
		CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
		WaitForQuiet();
		EXPECT_TRUE(FService::GetUser().HasValidToken());
	}

	TEST_F(FHxUserLoginTest, BlueprintsFindWhatTheyArePromised)
	{
		using namespace KitReflection;
		const UClass* Class = UHxUserLogin::StaticClass();
		EXPECT_EQ(Describe(Class, TEXT("RequestUserLogin")), "callable void RequestUserLogin(FString InUserName, FString InUserPassword) in HxUserLogin");
		EXPECT_EQ(Describe(Class, TEXT("RequestGuestLogin")), "callable void RequestGuestLogin() in HxUserLogin");
		EXPECT_EQ(Describe(Class, TEXT("SetRememberMeOption")), "callable void SetRememberMeOption(bool InChecked) in HxUserLogin");
		EXPECT_EQ(Describe(Class, TEXT("OnLoadRememberOptions")), "event void OnLoadRememberOptions(FHalvexUserInformation LoginUser) in HxUserLogin");
		EXPECT_EQ(Describe(Class, TEXT("OnLoginInProcess")), "event void OnLoginInProcess(bool bInProgress) in HxUserLogin");
		EXPECT_EQ(Describe(Class, TEXT("OnReceivedLoginResult")), "event void OnReceivedLoginResult(bool bSuccessful, FLoginInfo UserLogInfo) in HxUserLogin");
		EXPECT_EQ(DescribeEvent(Class, TEXT("OnLoginResult")), "bool bSuccessful, FLoginInfo UserLogInfo");
	}
}
