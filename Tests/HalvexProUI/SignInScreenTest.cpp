#include "SignInScreenTest.h"

#include "Host/DumpWidgetTree.h"
#include "Host/LogSink.h"
#include "Host/PictureCompare.h"
#include "Images/HalvexImageSubsystem.h"
#include "Misc/Paths.h"

#include <filesystem>
#include <fstream>
#include <iterator>

using Host::EServerFault;
using Host::FExpectedLog;
using Host::FServerReply;

namespace
{
	const TCHAR* const BoundAlready = TEXT("is bound already");

	TEST_F(FSignInScreenTest, TypedNameAndPasswordSignIn)
	{
		ShowScreen();
		ServeAda();
		EXPECT_TRUE(HasFocus(TEXT("NameBox"))) << "typing can begin at once";
		Driver.Type(TEXT("ada"));
		Driver.PressKey(EKeys::Tab);
		Driver.Type(TEXT("harbour-5678"));
		Enter();
		const std::string Body = Service.Server.GetLastRequest("/api/session").Body;
		EXPECT_NE(Body.find("\"user\": \"ada\""), std::string::npos);
		EXPECT_NE(Body.find("\"password\": \"harbour-5678\""), std::string::npos);
		EXPECT_NE(Body.find("\"remember\": false"), std::string::npos);
		EXPECT_FALSE(IsShown(TEXT("Panel")));
		EXPECT_TRUE(IsShown(TEXT("BadgeButton/text:Ada Quay")));
		EXPECT_TRUE(IsShown(TEXT("text:AQ")));
	}

	TEST_F(FSignInScreenTest, ButtonSignsInToo)
	{
		ShowScreen();
		ServeAda();
		Fill();
		Click(TEXT("SignIn"));
		WaitForAnswer();
		EXPECT_TRUE(IsShown(TEXT("BadgeButton")));
	}

	TEST_F(FSignInScreenTest, EnterInTheNameGoesOnToThePassword)
	{
		ShowScreen();
		Driver.Type(TEXT("ada"));
		Enter();
		EXPECT_TRUE(HasFocus(TEXT("PasswordBox")));
		EXPECT_FALSE(IsShown(TEXT("MessageBar")));
		EXPECT_EQ(Service.Server.GetVisits("/api/session"), 0);
	}

	TEST_F(FSignInScreenTest, EmptyFieldsAreAskedFor)
	{
		ShowScreen();
		Click(TEXT("SignIn"));
		Driver.Wait(0.1);
		EXPECT_TRUE(IsShown(TEXT("text:Enter your user name.")));
		EXPECT_TRUE(HasFocus(TEXT("NameBox")));
		Driver.Type(TEXT("ada"));
		Click(TEXT("SignIn"));
		Driver.Wait(0.1);
		EXPECT_TRUE(IsShown(TEXT("text:Enter your password.")));
		EXPECT_TRUE(HasFocus(TEXT("PasswordBox")));
		EXPECT_EQ(Service.Server.GetVisits("/api/session"), 0);
	}

	TEST_F(FSignInScreenTest, TabGoesThroughTheFormInItsOrder)
	{
		ShowScreen();
		for (const TCHAR* Name : { TEXT("NameBox"), TEXT("PasswordBox"), TEXT("ShowPassword"), TEXT("RememberBox"), TEXT("SignIn/Button"), TEXT("Guest/Button") })
		{
			EXPECT_TRUE(HasFocus(Name)) << Host::ToStd(FString(Name));
			Driver.PressKey(EKeys::Tab);
		}
	}

	TEST_F(FSignInScreenTest, WrongPasswordIsToldAndTypedAnew)
	{
		ShowScreen();
		Refuse();
		Fill();
		Enter();
		EXPECT_TRUE(IsShown(TEXT("text:The user name or the password is not right.")));
		EXPECT_EQ(ReadText(TEXT("NameBox")), "ada");
		EXPECT_EQ(ReadText(TEXT("PasswordBox")), "");
		EXPECT_TRUE(HasFocus(TEXT("PasswordBox")));
		ServeAda();
		const FExpectedLog Report(BoundAlready);
		Driver.Type(TEXT("harbour-5678"));
		Enter();
		EXPECT_TRUE(IsShown(TEXT("BadgeButton")));
	}

	TEST_F(FSignInScreenTest, MissingAnswerIsToldAndNothingIsLost)
	{
		ShowScreen();
		FServerReply Broken;
		Broken.Fault = EServerFault::CloseAtOnce;
		Service.Server.Serve("/api/session", Broken);
		const FExpectedLog Line(TEXT("the connection failed or was lost"));
		Fill();
		Enter();
		EXPECT_TRUE(IsShown(TEXT("text:The service does not answer. Check the connection and try again.")));
		EXPECT_EQ(ReadText(TEXT("PasswordBox")), "harbour-5678") << "Enter tries again";
		EXPECT_TRUE(HasFocus(TEXT("PasswordBox")));
	}

	TEST_F(FSignInScreenTest, SlowServiceIsWaitedForUntilTheTimeout)
	{
		Service.Settings->RequestTimeout = 0.2f;
		ShowScreen();
		FServerReply Silent;
		Silent.Fault = EServerFault::Silence;
		Service.Server.Serve("/api/session", Silent);
		const FExpectedLog Line(TEXT("it took too long"));
		Fill();
		Enter();
		EXPECT_TRUE(IsShown(TEXT("text:The service does not answer. Check the connection and try again.")));
	}

	TEST_F(FSignInScreenTest, EveryOtherFailureHasItsWords)
	{
		const struct
		{
			FServerReply Reply;
			const TCHAR* Text;
			int32 NumLines;
		} Cases[] = {
			{ FService::Error(500, "internal"), TEXT("text:The service has a fault. Try again later."), 1 },
			{ FService::Json(200, "no json"), TEXT("text:The service gave an answer that is of no use. Try again later."), 1 },
			{ FService::Json(200, std::string(300 * 1024, ' ')), TEXT("text:The service gave an answer that is of no use. Try again later."), 1 },
			{ FService::Error(429, "too_many_attempts"), TEXT("text:Too many attempts. Try again in a while."), 0 },
		};
		for (const auto& Case : Cases)
		{
			ShowScreen();
			Service.Server.Serve("/api/session", Case.Reply);
			const FExpectedLog Line(TEXT("The sign-in at the service"), Case.NumLines);
			Fill();
			Enter();
			EXPECT_TRUE(IsShown(Case.Text)) << Host::ToStd(FString(Case.Text));
			HideScreen();
		}
		ShowScreen();
		FServerReply Often = FService::Error(429, "too_many_attempts");
		Often.Headers.emplace_back("Retry-After", "45");
		Service.Server.Serve("/api/session", Often);
		Fill();
		Enter();
		EXPECT_TRUE(IsShown(TEXT("text:Too many attempts. Try again in 45 seconds.")));
	}

	TEST_F(FSignInScreenTest, RequestInProcessShowsProgressAndCanBeCancelled)
	{
		ShowScreen();
		ServeAda();
		Service.Server.Hold();
		Fill();
		Driver.PressKey(EKeys::Enter);
		EXPECT_TRUE(IsShown(TEXT("text:Signing in ...")));
		EXPECT_FALSE(IsShown(TEXT("Guest")));
		EXPECT_FALSE(Driver.Find(TEXT("Fields"))->GetIsEnabled());
		Click(TEXT("Cancel"));
		Service.Server.Release();
		WaitForAnswer();
		EXPECT_FALSE(FService::GetUser().HasValidToken()) << "the late answer changes nothing";
		EXPECT_TRUE(IsShown(TEXT("text:Continue as a guest")));
		EXPECT_TRUE(Driver.Find(TEXT("Fields"))->GetIsEnabled());
		EXPECT_FALSE(IsShown(TEXT("MessageBar"))) << "who cancels knows why";
		EXPECT_TRUE(HasFocus(TEXT("PasswordBox")));
	}

	TEST_F(FSignInScreenTest, ImpatientUserSendsOneRequest)
	{
		ShowScreen();
		ServeAda();
		Service.Server.Hold();
		Fill();
		Driver.PressKey(EKeys::Enter);
		Driver.PressKey(EKeys::Enter);
		Service.Server.Release();
		WaitForAnswer();
		EXPECT_EQ(Service.Server.GetVisits("/api/session"), 1);
		EXPECT_TRUE(IsShown(TEXT("BadgeButton")));
	}

	TEST_F(FSignInScreenTest, GuestGoesOnAndMaySignInLater)
	{
		ShowScreen();
		Service.Server.Serve("/api/session/guest", FService::GrantGuest("g1", 3600));
		Click(TEXT("Guest"));
		WaitForAnswer();
		EXPECT_TRUE(IsShown(TEXT("BadgeButton/text:Guest")));
		Click(TEXT("BadgeButton"));
		EXPECT_TRUE(IsShown(TEXT("text:Signed in as a guest")));
		Click(TEXT("Menu/SignIn"));
		Driver.Wait(0.1);
		EXPECT_TRUE(HasFocus(TEXT("NameBox")));
		ServeAda();
		Driver.Type(TEXT("ada"));
		Driver.PressKey(EKeys::Tab);
		Driver.Type(TEXT("x"));
		Enter();
		EXPECT_TRUE(IsShown(TEXT("BadgeButton/text:Ada Quay")));
	}

	TEST_F(FSignInScreenTest, RememberedUserContinuesWithoutAPassword)
	{
		ShowScreen();
		ServeAda("r1");
		Click(TEXT("RememberBox"));
		Fill();
		Enter();
		Restart();
		EXPECT_TRUE(IsShown(TEXT("text:Continue as ada")));
		EXPECT_FALSE(IsShown(TEXT("PasswordBox")));
		Driver.PressKey(EKeys::Tab);
		EXPECT_TRUE(HasFocus(TEXT("Continue/Button"))) << "the first that the keys come to";
		Service.Server.Serve("/api/session/refresh", FService::Grant("t2", 3600, "r2"));
		Enter();
		EXPECT_TRUE(IsShown(TEXT("BadgeButton/text:Ada Quay")));
		EXPECT_EQ(Service.Server.GetVisits("/api/session"), 1);
		EXPECT_TRUE(FService::GetUser().HasRememberedCredentials());
	}

	TEST_F(FSignInScreenTest, RememberedSignInThatRanOutAsksForThePassword)
	{
		ShowScreen();
		ServeAda("r1");
		Click(TEXT("RememberBox"));
		Fill();
		Enter();
		Restart();
		Service.Server.Serve("/api/session/refresh", FService::Error(401, "invalid_token"));
		Click(TEXT("Continue"));
		WaitForAnswer();
		EXPECT_TRUE(IsShown(TEXT("text:The remembered sign-in has run out. Please enter the password.")));
		EXPECT_EQ(ReadText(TEXT("NameBox")), "ada");
		EXPECT_TRUE(HasFocus(TEXT("PasswordBox")));
		const FExpectedLog Report(BoundAlready);
		Driver.Type(TEXT("harbour-5678"));
		Enter();
		EXPECT_NE(Service.Server.GetLastRequest("/api/session").Body.find("\"remember\": true"), std::string::npos) << "the wish is as it was";
	}

	TEST_F(FSignInScreenTest, AnotherAccountHasTheEmptyForm)
	{
		ShowScreen();
		ServeAda("r1");
		Click(TEXT("RememberBox"));
		Fill();
		Enter();
		Restart();
		Click(TEXT("OtherAccount"));
		Driver.Wait(0.1);
		EXPECT_TRUE(HasFocus(TEXT("NameBox")));
		EXPECT_EQ(ReadText(TEXT("NameBox")), "");
		EXPECT_TRUE(FService::GetUser().HasRememberedCredentials()) << "until somebody else is signed in";
	}

	TEST_F(FSignInScreenTest, SignOutLeadsBackToAnEmptyForm)
	{
		ShowScreen();
		ServeAda();
		Fill();
		Enter();
		Click(TEXT("BadgeButton"));
		EXPECT_TRUE(IsShown(TEXT("Menu/text:ada@example.org")));
		Click(TEXT("Menu/SignOut"));
		WaitForAnswer();
		EXPECT_EQ(Service.Server.GetLastRequest("/api/session").Method, "DELETE");
		EXPECT_FALSE(IsShown(TEXT("BadgeButton")));
		EXPECT_EQ(ReadText(TEXT("NameBox")), "");
		EXPECT_EQ(ReadText(TEXT("PasswordBox")), "");
		EXPECT_TRUE(HasFocus(TEXT("NameBox")));
	}

	TEST_F(FSignInScreenTest, SessionThatRanOutLeadsBackToo)
	{
		ShowScreen();
		Service.Server.Serve("/api/session", FService::Grant("t1", 10));
		Fill();
		Enter();
		ASSERT_TRUE(IsShown(TEXT("BadgeButton")));
		Driver.Wait(11.0);
		EXPECT_TRUE(IsShown(TEXT("NameBox")));
	}

	TEST_F(FSignInScreenTest, ClickBesideTheMenuClosesIt)
	{
		ShowScreen();
		ServeAda();
		Fill();
		Enter();
		Click(TEXT("BadgeButton"));
		EXPECT_TRUE(IsShown(TEXT("Menu")));
		Driver.ClickAt(FVector2D(200.0, 500.0));
		EXPECT_FALSE(IsShown(TEXT("Menu")));
		EXPECT_TRUE(FService::GetUser().HasValidToken());
	}

	TEST_F(FSignInScreenTest, SmallWindowShowsAllOfIt)
	{
		Loop.GetWindow()->Resize(FVector2D(380.0, 400.0));
		ShowScreen();
		const FGeometry& Panel = Driver.Find(TEXT("Panel"))->GetCachedGeometry();
		const FVector2D TopLeft(Panel.LocalToAbsolute(FVector2D::ZeroVector));
		const FVector2D BottomRight(Panel.LocalToAbsolute(FVector2D(Panel.GetLocalSize())));
		EXPECT_GE(FMath::Min(TopLeft.X, TopLeft.Y), 0.0);
		EXPECT_LE(BottomRight.X, 380.0);
		EXPECT_LE(BottomRight.Y, 400.0);
	}

	TEST_F(FSignInScreenTest, LongNamesStayInTheirPlace)
	{
		const std::string Name(200, 'w');
		Service.Server.Serve("/api/session", FService::Grant("t1", 3600, "r1",
			"\"user\": {\"id\": \"u1\", \"userName\": \"" + Name + "\", \"displayName\": \"" + Name + "\", \"email\": \"" + Name + "\"}"));
		ShowScreen();
		Click(TEXT("RememberBox"));
		Fill();
		Enter();
		Click(TEXT("BadgeButton"));
		const auto Width = [&](const TCHAR* Locator) { return Driver.Find(Locator)->GetCachedGeometry().GetLocalSize().X; };
		EXPECT_LE(Width(TEXT("BadgeButton")), 320.0);
		EXPECT_LE(Width(TEXT("Menu")), 320.0);
		Restart();
		EXPECT_LE(Width(TEXT("Continue/Label")), 336.0);
		EXPECT_LE(Width(TEXT("RememberedText")), 336.0);
	}

	TEST_F(FSignInScreenTest, BadgeShowsThePictureInPlaceOfTheInitials)
	{
		FServerReply Picture;
		Picture.Body = Host::TestPictures::Make(64, 64, FColor::Red);
		Service.Server.Serve("/ada.png", Picture);
		ShowScreen();
		Service.Server.Serve("/api/session", FService::Grant("t1", 3600, "", FService::MakeAda(R"(, "picture": {"id": "p1", "address": "ada.png"})")));
		Fill();
		Enter();
		EXPECT_TRUE(Host::WaitUntil(Loop, [&] { return IsShown(TEXT("Picture")); }));
		UHalvexImageSubsystem::Get()->ClearMemoryCache();
		UHalvexImageSubsystem::Get()->ClearDiskCache();
	}

	TEST_F(FSignInScreenTest, PasswordIsDotsUnlessItIsShown)
	{
		ShowScreen();
		Fill(TEXT("ada"), TEXT("pier"));
		const auto Read = [&] { return GetPaintedText(*Driver.Find(TEXT("PasswordBox"))).substr(0, 12); };
		EXPECT_EQ(Read(), "\u2022\u2022\u2022\u2022") << "a dot has three bytes";
		Click(TEXT("ShowPassword"));
		EXPECT_EQ(Read().substr(0, 4), "pier");
		Click(TEXT("ShowPassword"));
		EXPECT_EQ(Read(), "\u2022\u2022\u2022\u2022");
	}

	/** Keeps every line of the log, of whatever importance. */
	class FWholeLog final : public Host::FLogSink
	{
	public:
		FWholeLog() { Host::FLogSinks::Add(*this); }
		virtual ~FWholeLog() override { Host::FLogSinks::Remove(*this); }
		virtual void Write(const FName&, ELogVerbosity::Type, const FString& Message, const char*, int32) override { Text += Host::ToStd(Message) + "\n"; }

		std::string Text;
	};

	std::string ReadSavedFiles()
	{
		std::string Text;
		// Made with the first file.
		const std::filesystem::path Folder = TCHAR_TO_UTF8(*FPaths::ProjectSavedDir());
		std::filesystem::create_directories(Folder);
		for (const auto& Entry : std::filesystem::recursive_directory_iterator(Folder))
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

	TEST_F(FSignInScreenTest, PasswordIsNowhereToBeFound)
	{
		const std::string Password = "harbour-5678";
		const FWholeLog Log;
		std::string Seen;
		const auto Look = [&]
		{
			const TSharedRef<SWindow> Window = Loop.GetWindow().ToSharedRef();
			Seen += Host::ToStd(Host::DumpWidgetTree(Window)) + GetPaintedText(*Widget) + ReadSavedFiles();
		};
		ShowScreen();
		Click(TEXT("RememberBox"));
		Refuse();
		Fill();
		Look();
		Enter();
		Look();
		{
			const FExpectedLog Line(TEXT("it answered 500"));
			const FExpectedLog Report(BoundAlready);
			Service.Server.Serve("/api/session", FService::Error(500, "internal"));
			Driver.Type(TEXT("harbour-5678"));
			Enter();
			Look();
		}
		ServeAda("refresh-of-ada");
		const FExpectedLog Report(BoundAlready);
		Enter();
		Look();
		EXPECT_TRUE(IsShown(TEXT("BadgeButton")));
		EXPECT_NE(Seen.find("The user name or the password is not right."), std::string::npos) << "what is looked at is the screen";
		EXPECT_NE(Seen.find("refresh-of-ada"), std::string::npos) << "and the files";
		EXPECT_EQ(Seen.find(Password), std::string::npos);
		EXPECT_NE(Log.Text.find("it answered 500"), std::string::npos);
		EXPECT_EQ(Log.Text.find(Password), std::string::npos);
		EXPECT_EQ(Log.Text.find("refresh-of-ada"), std::string::npos);
	}
}
