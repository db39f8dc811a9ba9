#include "UserWidgetTest.h"

#include "Images/HalvexImageSubsystem.h"
#include "KitReflection.h"
#include "UserWidget/User/HxUserDataDisplay.h"

using Host::FExpectedLog;
using Host::FServerReply;

namespace
{
	/** A display whose graph asks for the picture in functions of two names. */
	class FHxUserDataDisplayTest : public FUserWidgetTest
	{
	protected:
		virtual void TearDown() override
		{
			FUserWidgetTest::TearDown();
			UHalvexImageSubsystem::Get()->ClearMemoryCache();
			UHalvexImageSubsystem::Get()->ClearDiskCache();
		}

		void ShowDisplay()
		{
			WriteBlueprint(TEXT("Display"), "HxUserDataDisplay",
				"local function Write(self, Text) self.Events = self.Events .. Text .. '; ' end\n"
				"function OnUserLogged(self, Info) Write(self, 'logged ' .. Info.DisplayName) end\n"
				"function OnUserLogout(self) Write(self, 'logout') end\n"
				"local function Ask(self, Name) self:GetUserImage(function(Success, Texture) Write(self, Name .. ' ' .. tostring(Success) .. ' ' .. (Texture and 'texture' or 'none')) end) end\n"
				"function AskFirst(self) Ask(self, 'first') end\n"
				"function AskSecond(self) Ask(self, 'second') end");
			Display = CastChecked<UHxUserDataDisplay>(ShowPanel(TEXT("Display")));
		}

		std::string Events() { return TakeEvents(*Display); }

		void Ask(const TCHAR* Function) { Display->ProcessEvent(Display->FindFunctionChecked(Function), nullptr); }

		void WaitForPictures()
		{
			EXPECT_TRUE(Host::WaitUntil(Loop, [] { return UHalvexImageSubsystem::Get()->GetNumTransfers() == 0; }));
			Settle();
		}

		void SignAdaWithPictureIn()
		{
			FServerReply Picture;
			Picture.Body = Host::TestPictures::Make(8, 8, FColor::Red);
			Service.Server.Serve("/ada.png", Picture);
			SignAdaIn(R"(, "picture": {"id": "p1", "address": "ada.png"})");
		}

		UHxUserDataDisplay* Display = nullptr;
	};

	TEST_F(FHxUserDataDisplayTest, FollowsTheUser)
	{
		ShowDisplay();
		FLoginInfo Data;
		EXPECT_FALSE(Display->GetUserData(Data));
		EXPECT_FALSE(Display->IsUserLogged());
		SignAdaIn();
		EXPECT_EQ(Events(), "logged Ada Quay; ");
		EXPECT_TRUE(Display->GetUserData(Data));
		EXPECT_EQ(Host::ToStd(Data.UserName), "ada");
		EXPECT_TRUE(Display->IsUserLogged());
		EXPECT_FALSE(Display->IsGuestUser());
	}

	TEST_F(FHxUserDataDisplayTest, DisplayMadeAfterTheSignInShowsTheUserAtOnce)
	{
		SignAdaIn();
		ShowDisplay();
		EXPECT_EQ(Events(), "logged Ada Quay; ");
		FLoginInfo Data;
		EXPECT_TRUE(Display->GetUserData(Data));
	}

	TEST_F(FHxUserDataDisplayTest, FailedSignInChangesNothing)
	{
		SignAdaIn();
		ShowDisplay();
		Events();
		Service.Server.Serve("/api/session", FService::Error(401, "invalid_credentials"));
		FService::GetUser().RequestUserLogin(FHalvexUserInformation(false, TEXT("bob"), TEXT("x")));
		WaitForQuiet();
		EXPECT_EQ(Events(), "");
		FLoginInfo Data;
		EXPECT_TRUE(Display->GetUserData(Data));
		EXPECT_EQ(Host::ToStd(Data.UserName), "ada");
	}

	TEST_F(FHxUserDataDisplayTest, DataIsKeptAfterTheSignOut)
	{
		ShowDisplay();
		SignAdaIn();
		Events();
		FService::GetUser().RequestUserLogout();
		EXPECT_EQ(Events(), "logout; ");
		FLoginInfo Data;
		EXPECT_TRUE(Display->GetUserData(Data)) << "a screen may still say who has left";
		EXPECT_EQ(Host::ToStd(Data.UserName), "ada");
		EXPECT_FALSE(Display->IsUserLogged());
	}

	TEST_F(FHxUserDataDisplayTest, GuestIsLoggedAsAGuest)
	{
		ShowDisplay();
		Service.Server.Serve("/api/session/guest", FService::GrantGuest("g1", 60));
		FService::GetUser().RequestGuestUser();
		WaitForQuiet();
		EXPECT_EQ(Events(), "logged Guest; ");
		EXPECT_TRUE(Display->IsGuestUser());
		EXPECT_TRUE(Display->IsUserLogged());
	}

	TEST_F(FHxUserDataDisplayTest, WithoutAUserNobodyIsLogged)
	{
		const FWithoutUser Nobody;
		ShowDisplay();
		EXPECT_FALSE(Display->IsUserLogged());
		EXPECT_FALSE(Display->IsGuestUser());
	}

	TEST_F(FHxUserDataDisplayTest, PictureArrivesAsATexture)
	{
		ShowDisplay();
		SignAdaWithPictureIn();
		Events();
		Ask(TEXT("AskFirst"));
		EXPECT_EQ(Events(), "");
		WaitForPictures();
		EXPECT_EQ(Events(), "first true texture; ");
	}

	TEST_F(FHxUserDataDisplayTest, PictureThatIsMissingIsToldOnce)
	{
		ShowDisplay();
		SignAdaIn(R"(, "picture": {"id": "p1", "address": "nowhere.png"})");
		Events();
		const FExpectedLog Line(TEXT("the server answered 404"));
		Ask(TEXT("AskFirst"));
		WaitForPictures();
		EXPECT_EQ(Events(), "first false none; ");
	}

	TEST_F(FHxUserDataDisplayTest, WithoutAPictureTheCallbackComesAtOnceAndAgainAtTheEnd)
	{
		ShowDisplay();
		SignAdaIn();
		Events();
		const FExpectedLog Line(TEXT("it has no address"));
		Ask(TEXT("AskFirst"));
		EXPECT_EQ(Events(), "first false none; ");
		WaitForPictures();
		EXPECT_EQ(Events(), "first false none; ");
	}

	TEST_F(FHxUserDataDisplayTest, LaterCallbackTakesThePlaceOfTheEarlier)
	{
		ShowDisplay();
		SignAdaWithPictureIn();
		Events();
		Ask(TEXT("AskFirst"));
		Ask(TEXT("AskSecond"));
		WaitForPictures();
		EXPECT_EQ(Events(), "second true texture; second true texture; ");
	}

	TEST_F(FHxUserDataDisplayTest, DisplayThatIsGoneGetsNoPicture)
	{
		ShowDisplay();
		SignAdaWithPictureIn();
		Ask(TEXT("AskFirst"));
		Display = nullptr;
		StartScreen();
		CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
		WaitForPictures();
		EXPECT_EQ(UHalvexImageSubsystem::Get()->GetNumTransfers(), 0);
	}

	TEST_F(FHxUserDataDisplayTest, BlueprintsFindWhatTheyArePromised)
	{
		using namespace KitReflection;
		const UClass* Class = UHxUserDataDisplay::StaticClass();
		EXPECT_EQ(Describe(Class, TEXT("GetUserData")), "callable bool GetUserData(FLoginInfo OutUserData) in HxUserDataDisplay");
		EXPECT_EQ(Describe(Class, TEXT("IsGuestUser")), "pure const bool IsGuestUser() in HxUserDataDisplay");
		EXPECT_EQ(Describe(Class, TEXT("IsUserLogged")), "pure const bool IsUserLogged() in HxUserDataDisplay");
		EXPECT_EQ(Describe(Class, TEXT("OnUserLogged")), "event void OnUserLogged(FLoginInfo UserInfo) in HxUserDataDisplay");
		EXPECT_EQ(Describe(Class, TEXT("OnUserLogout")), "event void OnUserLogout() in HxUserDataDisplay");
		EXPECT_NE(Describe(Class, TEXT("GetUserImage")), "none");
	}
}
