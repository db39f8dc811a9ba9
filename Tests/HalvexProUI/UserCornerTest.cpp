#include "SignInScreenTest.h"

#include "GoldenPicture.h"
#include "ProjectStyle.h"

namespace
{
	/** What belongs to the user, at the corner of a screen. */
	class FUserCornerTest : public FSignInScreenTest
	{
	protected:
		virtual void SetUp() override
		{
			FSignInScreenTest::SetUp();
			ShowScreen(TEXT("/HalvexPro/User/UserCorner.UserCorner_C"));
		}

		void SignIn()
		{
			ServeAda();
			Click(TEXT("ToSignIn"));
			Driver.Wait(0.1);
			Fill();
			Enter();
		}
	};

	TEST_F(FUserCornerTest, PageToSignInGoesOnceSomebodyHas)
	{
		EXPECT_FALSE(IsShown(TEXT("NameBox")));
		SignIn();
		EXPECT_FALSE(IsShown(TEXT("NameBox")));
		EXPECT_TRUE(IsShown(TEXT("BadgeButton")));
		EXPECT_FALSE(IsShown(TEXT("ToSignIn")));
	}

	TEST_F(FUserCornerTest, RefusedSignInKeepsThePage)
	{
		Refuse();
		Click(TEXT("ToSignIn"));
		Driver.Wait(0.1);
		Fill();
		Enter();
		EXPECT_TRUE(IsShown(TEXT("NameBox")));
		EXPECT_TRUE(IsShown(TEXT("text:The user name or the password is not right.")));
	}

	TEST_F(FUserCornerTest, SignOutOffersTheSignInWithoutThePage)
	{
		SignIn();
		Service.Server.Serve("/api/session", FService::Error(204, ""));
		Click(TEXT("BadgeButton"));
		Click(TEXT("text:Sign out"));
		WaitForAnswer();
		EXPECT_TRUE(IsShown(TEXT("ToSignIn")));
		EXPECT_FALSE(IsShown(TEXT("NameBox")));
		EXPECT_FALSE(IsShown(TEXT("BadgeButton")));
	}

	TEST_F(FUserCornerTest, PageGoesByItsCross)
	{
		Click(TEXT("ToSignIn"));
		EXPECT_TRUE(IsShown(TEXT("NameBox")));
		Click(TEXT("Close"));
		EXPECT_FALSE(IsShown(TEXT("NameBox")));
		Click(TEXT("ToSignIn"));
		EXPECT_TRUE(IsShown(TEXT("NameBox")));
	}

	TEST_F(FUserCornerTest, SettingsComeAndGoByTheGearAndGoByTheirCross)
	{
		Click(TEXT("ToSettings"));
		EXPECT_TRUE(IsShown(TEXT("text:Settings")));
		Click(TEXT("ToSettings"));
		EXPECT_FALSE(IsShown(TEXT("text:Settings")));
		Click(TEXT("ToSettings"));
		Click(TEXT("Close"));
		EXPECT_FALSE(IsShown(TEXT("text:Settings")));
	}

	TEST_F(FUserCornerTest, PagesGoWithTheScreen)
	{
		Click(TEXT("ToSettings"));
		Widget->RemoveFromParent();
		Settle();
		EXPECT_FALSE(IsShown(TEXT("text:Settings")));
	}

	class FUserCornerPictureTest : public FUserCornerTest, public testing::WithParamInterface<const TCHAR*>
	{
	protected:
		virtual void SetUp() override
		{
			UseShippedStyle(GetParam());
			FUserCornerTest::SetUp();
		}

		virtual void TearDown() override
		{
			FUserCornerTest::TearDown();
			UseShippedStyle(TEXT("UIStyle_Hx_Light"));
		}

		void ExpectPicture()
		{
			Driver.MoveTo(FVector2D(0.0, 0.0));
			Host::FPicture Picture;
			ASSERT_TRUE(Driver.TakePictureOf(TEXT("Root#1"), Picture)) << Host::ToStd(Driver.GetError());
			Host::ExpectGolden(FString::Printf(TEXT("UserCorner-%s"), GetParam()), Picture);
		}
	};

	TEST_P(FUserCornerPictureTest, NobodySignedIn)
	{
		ExpectPicture();
	}

	INSTANTIATE_TEST_SUITE_P(Styles, FUserCornerPictureTest, testing::Values(TEXT("UIStyle_Hx_Light"), TEXT("UIStyle_Hx_Dark")),
		[](const testing::TestParamInfo<const TCHAR*>& Info) { return Host::ToStd(FString(Info.param)); });
}
