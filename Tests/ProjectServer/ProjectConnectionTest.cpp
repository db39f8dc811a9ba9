#include "EngineTest.h"

#include "HalvexSDKEngineSubsystem.h"
#include "Host/ProjectConnection.h"
#include "Images/HalvexImageSettings.h"
#include "ServerProcess.h"
#include "Service/HalvexServiceConnection.h"
#include "Service/HalvexServiceSettings.h"
#include "ServiceFolder.h"
#include "User/HalvexUser.h"
#include "WaitUntil.h"
#include "gmock/gmock.h"

#include <csignal>

using Host::FProjectConnection;
using testing::HasSubstr;
using testing::Not;

namespace
{
	/** A project whose users sign in at a server, or inside the program. */
	class FProjectConnectionTest : public Host::FEngineTest
	{
	protected:
		virtual void TearDown() override
		{
			GetUser().Abandon();
			GetUser().ForgetRememberedCredentials();
			FEngineTest::TearDown();
		}

		static UHalvexUser& GetUser() { return *UHalvexSDKEngineSubsystem::Get()->GetHalvexUser(); }

		std::string StartServer(const std::vector<std::string>& More = {})
		{
			std::vector<std::string> Arguments = { "--project", Folder.Path.string(), "--port", "0" };
			Arguments.insert(Arguments.end(), More.begin(), More.end());
			Server = std::make_unique<FServerProcess>(Home.Path, Arguments);
			return Server->WaitForUrl();
		}

		/** Signs in and waits for the end of it. Whether somebody is signed in then. */
		bool SignIn(const TCHAR* Name, const TCHAR* Password, bool bRemember = false)
		{
			GetUser().RequestUserLogin(FHalvexUserInformation(bRemember, Name, Password));
			EXPECT_TRUE(Host::WaitUntil(Loop, [] { return !GetUser().IsLoginInProcess(); }, 0.0));
			return GetUser().HasValidToken();
		}

		const FServiceFolder Folder;
		const FServiceFolder Home;
		std::unique_ptr<FServerProcess> Server;
	};
}

TEST_F(FProjectConnectionTest, UsersSignInInsideTheProgram)
{
	const FProjectConnection Connection(Folder.GetPath());
	EXPECT_FALSE(SignIn(TEXT("Anna"), TEXT("wrong")));
	EXPECT_TRUE(SignIn(TEXT("Anna"), TEXT("right-password")));
	EXPECT_EQ("Anna Ström", Host::ToStd(GetUser().GetUserLoginInfo().DisplayName));
	EXPECT_FALSE(GetUser().IsGuestUser());
	GetUser().RequestUserLogout();
	EXPECT_FALSE(GetUser().HasValidToken());
	GetUser().RequestGuestUser();
	EXPECT_TRUE(Host::WaitUntil(Loop, [] { return GetUser().HasValidToken(); }, 0.0));
	EXPECT_TRUE(GetUser().IsGuestUser());
}

TEST_F(FProjectConnectionTest, ARememberedSignInInsideTheProgramLastsUntilTheNextStart)
{
	{
		const FProjectConnection Connection(Folder.GetPath());
		EXPECT_TRUE(SignIn(TEXT("Anna"), TEXT("right-password"), true));
	}
	EXPECT_FALSE(GetUser().HasValidToken());
	const FProjectConnection Connection(Folder.GetPath());
	EXPECT_TRUE(GetUser().HasRememberedCredentials());
	EXPECT_EQ("Anna", Host::ToStd(GetUser().GetUserInfo().UserName));
	EXPECT_TRUE(SignIn(TEXT("Anna"), TEXT("")));
}

TEST_F(FProjectConnectionTest, WhatIsRememberedOfOneProjectIsNotOfAnother)
{
	{
		const FProjectConnection Connection(Folder.GetPath());
		EXPECT_TRUE(SignIn(TEXT("Anna"), TEXT("right-password"), true));
	}
	{
		const FServiceFolder Other;
		const FProjectConnection Connection(Other.GetPath());
		EXPECT_FALSE(GetUser().HasRememberedCredentials());
	}
	const FProjectConnection Connection(Folder.GetPath());
	EXPECT_TRUE(GetUser().HasRememberedCredentials());
}

TEST_F(FProjectConnectionTest, AnAnswerThatNobodyWaitsForAnyMoreTellsNobody)
{
	const FProjectConnection Connection(Folder.GetPath());
	GetUser().RequestUserLogin(FHalvexUserInformation(false, TEXT("Anna"), TEXT("right-password")));
	GetUser().Abandon();
	// The one behind it has come when that one has.
	EXPECT_TRUE(SignIn(TEXT("ben"), TEXT("other-password")));
	EXPECT_EQ("ben", Host::ToStd(GetUser().GetUserLoginInfo().UserName));
}

TEST_F(FProjectConnectionTest, PicturesOfUsersLieInTheProjectsFolderOrAtAServer)
{
	const FProjectConnection Connection(Folder.GetPath());
	const IHalvexServiceConnection& Service = *UHalvexSDKEngineSubsystem::Get()->GetServiceConnection();
	EXPECT_EQ("file://" + Folder.Path.string() + "/Portraits/anna.png", Host::ToStd(Service.ResolveAddress(TEXT("Portraits/anna.png"))));
	EXPECT_EQ("https://example.org/x.png", Host::ToStd(Service.ResolveAddress(TEXT("https://example.org/x.png"))));
	for (const TCHAR* Address : { TEXT(""), TEXT("../x.png"), TEXT("/etc/passwd"), TEXT("file:///etc/passwd"), TEXT("Portraits/../../x.png") })
	{
		EXPECT_EQ("", Host::ToStd(Service.ResolveAddress(Address))) << Host::ToStd(FString(Address));
	}
}

TEST_F(FProjectConnectionTest, TheProjectsFolderIsOneOfImagesAsLongAsItsUsersSignIn)
{
	const TArray<FString>& Folders = GetDefault<UHalvexImageSettings>()->FurtherImageFolders;
	const TArray<FString> Before = Folders;
	{
		const FProjectConnection Connection(Folder.GetPath());
		EXPECT_TRUE(Folders.Contains(Folder.GetPath()));
	}
	{
		// A sales list has its users beside it.
		const FProjectConnection Connection(Folder.GetPath() / TEXT("project.json"));
		EXPECT_TRUE(Folders.Contains(Folder.GetPath()));
	}
	EXPECT_TRUE(Folders == Before);
}

TEST_F(FProjectConnectionTest, UsersSignInAtAServer)
{
	const std::string Url = StartServer();
	const FString Before = GetDefault<UHalvexServiceSettings>()->ServiceAddress;
	{
		const FProjectConnection Connection(UTF8_TO_TCHAR(Url.c_str()));
		EXPECT_TRUE(SignIn(TEXT("Anna"), TEXT("right-password")));
		EXPECT_EQ(Url + "/Portraits/anna.png", Host::ToStd(GetUser().GetUserLoginInfo().UserImage.Address));
		GetUser().RequestUserLogout();
	}
	EXPECT_TRUE(GetDefault<UHalvexServiceSettings>()->ServiceAddress.Equals(Before));
}

TEST_F(FProjectConnectionTest, ARememberedSignInAtAServerOutlastsItsToken)
{
	const std::string Url = StartServer({ "--token-seconds", "1" });
	const FProjectConnection Connection(UTF8_TO_TCHAR(Url.c_str()));
	EXPECT_TRUE(SignIn(TEXT("Anna"), TEXT("right-password"), true));
	const FString Token = GetUser().GetToken();
	EXPECT_TRUE(Host::WaitUntil(Loop, [&Token] { return GetUser().HasValidToken() && !GetUser().GetToken().Equals(Token); }));
}

TEST_F(FProjectConnectionTest, TheViewerShowsAProjectOfAServer)
{
	Folder.Write("project.json", R"({"format": 1, "units": [{"id": "A-1", "name": "From far away", "volume": {"min": [0, 0, 0], "max": [500, 500, 300]}}]})");
	const std::string Url = StartServer();
	FServerProcess Viewer(Home.Path, { "--headless", "--renderer", "cpu", "--project", Url, "--dump-tree" }, std::string(), HALVEX_VIEWER);
	EXPECT_EQ(0, Viewer.Finish()) << Viewer.GetOutput();
	EXPECT_THAT(Viewer.GetOutput(), HasSubstr("From far away"));
	Server->Signal(SIGTERM);
	EXPECT_EQ(0, Server->Finish());
	EXPECT_THAT(Server->GetOutput(), HasSubstr("GET /project.json 200 "));
}

TEST_F(FProjectConnectionTest, TheViewerSignsInAndRemembersOnItsNextStart)
{
	Folder.Write("project.json", R"({"format": 1, "units": [{"id": "A-1"}]})");
	std::filesystem::copy_file(HALVEX_SOURCE_DIR "/Viewer/Projects/Quayside/Portraits/mara-lind.png", Folder.Path / "Portraits/anna.png", std::filesystem::copy_options::overwrite_existing);
	const std::string Url = StartServer();
	const auto Drive = [this](const std::string& Project, const std::string& Script)
	{
		FServerProcess Viewer(Home.Path, { "--headless", "--renderer", "cpu", "--screen", "SignIn", "--project", Project,
			"--script", HALVEX_SOURCE_DIR "/Tests/ProjectServer/Scripts/" + Script }, std::string(), HALVEX_VIEWER);
		EXPECT_EQ(0, Viewer.Finish()) << Project << " " << Script << "\n" << Viewer.GetOutput();
		EXPECT_THAT(Viewer.GetOutput(), Not(HasSubstr("right-password")));
	};
	for (const std::string& Project : { Folder.Path.string(), Url })
	{
		Drive(Project, "SignIn.lua");
		for (const std::filesystem::directory_entry& File : std::filesystem::recursive_directory_iterator(Home.Path))
		{
			const std::string Name = std::filesystem::relative(File.path(), Home.Path).string();
			EXPECT_TRUE(File.is_directory() || Home.Read(Name).find("right-password") == std::string::npos) << Name;
		}
		Drive(Project, "Continue.lua");
	}
}
