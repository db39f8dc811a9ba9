#include "SignInScreenTest.h"

#include "GoldenPicture.h"
#include "Images/HalvexImageSubsystem.h"
#include "ProjectStyle.h"

using Host::EServerFault;
using Host::FExpectedLog;
using Host::FServerReply;

namespace
{
	/** The states of the screen to sign in on, in a shipped style. */
	class FSignInScreenPictureTest : public FSignInScreenTest, public testing::WithParamInterface<const TCHAR*>
	{
	protected:
		virtual void SetUp() override
		{
			FSignInScreenTest::SetUp();
			UseShippedStyle(GetParam());
			ShowScreen();
		}

		virtual void TearDown() override
		{
			FSignInScreenTest::TearDown();
			UseShippedStyle(TEXT("UIStyle_Hx_Light"));
		}

		void ExpectPicture(const TCHAR* State, const TCHAR* Locator)
		{
			Driver.MoveTo(FVector2D(0.0, 0.0));
			Host::FPicture Picture;
			ASSERT_TRUE(Driver.TakePictureOf(Locator, Picture)) << Host::ToStd(Driver.GetError());
			Host::ExpectGolden(FString::Printf(TEXT("SignIn%s-%s"), State, GetParam()), Picture);
		}

		void SignInFromTheForm()
		{
			Fill();
			Enter();
			ASSERT_TRUE(IsShown(TEXT("BadgeButton")));
		}
	};

	TEST_P(FSignInScreenPictureTest, Empty)
	{
		ExpectPicture(TEXT("Empty"), TEXT("Page"));
	}

	TEST_P(FSignInScreenPictureTest, Filled)
	{
		Click(TEXT("RememberBox"));
		Fill();
		ExpectPicture(TEXT("Filled"), TEXT("Panel"));
	}

	TEST_P(FSignInScreenPictureTest, InProgress)
	{
		ServeAda();
		Service.Server.Hold();
		Fill();
		Driver.PressKey(EKeys::Enter);
		Driver.Wait(0.3);
		ExpectPicture(TEXT("InProgress"), TEXT("Panel"));
		Service.Server.Release();
		WaitForAnswer();
	}

	TEST_P(FSignInScreenPictureTest, WrongPassword)
	{
		Refuse();
		Fill();
		Enter();
		ExpectPicture(TEXT("WrongPassword"), TEXT("Panel"));
	}

	TEST_P(FSignInScreenPictureTest, ServerDown)
	{
		FServerReply Broken;
		Broken.Fault = EServerFault::CloseAtOnce;
		Service.Server.Serve("/api/session", Broken);
		const FExpectedLog Line(TEXT("the connection failed or was lost"));
		Fill();
		Enter();
		ExpectPicture(TEXT("ServerDown"), TEXT("Panel"));
	}

	TEST_P(FSignInScreenPictureTest, Remembered)
	{
		ServeAda("r1");
		Click(TEXT("RememberBox"));
		SignInFromTheForm();
		Restart();
		ExpectPicture(TEXT("Remembered"), TEXT("Panel"));
	}

	TEST_P(FSignInScreenPictureTest, Badge)
	{
		ServeAda();
		SignInFromTheForm();
		ExpectPicture(TEXT("Badge"), TEXT("BadgeButton"));
	}

	TEST_P(FSignInScreenPictureTest, BadgeWithAPicture)
	{
		FServerReply Portrait;
		Portrait.Body = Host::TestPictures::Make(64, 64, FColor(40, 160, 140));
		Service.Server.Serve("/ada.png", Portrait);
		Service.Server.Serve("/api/session", FService::Grant("t1", 3600, "", FService::MakeAda(R"(, "picture": {"id": "p1", "address": "ada.png"})")));
		SignInFromTheForm();
		EXPECT_TRUE(Host::WaitUntil(Loop, [&] { return IsShown(TEXT("Picture")); }));
		ExpectPicture(TEXT("BadgeWithAPicture"), TEXT("BadgeButton"));
		UHalvexImageSubsystem::Get()->ClearMemoryCache();
		UHalvexImageSubsystem::Get()->ClearDiskCache();
	}

	TEST_P(FSignInScreenPictureTest, GuestsMenu)
	{
		Service.Server.Serve("/api/session/guest", FService::GrantGuest("g1", 3600));
		Click(TEXT("Guest"));
		WaitForAnswer();
		Click(TEXT("BadgeButton"));
		ExpectPicture(TEXT("GuestsMenu"), TEXT("Stack"));
	}

	TEST_P(FSignInScreenPictureTest, MenuOpen)
	{
		ServeAda();
		SignInFromTheForm();
		Click(TEXT("BadgeButton"));
		ExpectPicture(TEXT("MenuOpen"), TEXT("Stack"));
	}

	INSTANTIATE_TEST_SUITE_P(Styles, FSignInScreenPictureTest, testing::Values(TEXT("UIStyle_Hx_Light"), TEXT("UIStyle_Hx_Dark")),
		[](const testing::TestParamInfo<const TCHAR*>& Info) { return Host::ToStd(FString(Info.param)); });
}
