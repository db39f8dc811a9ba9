#include "EngineTest.h"

#include "Components/TextBlock.h"
#include "Host/HttpLimits.h"
#include "Host/ProjectLoader.h"
#include "LoopbackServer.h"
#include "UObject/StrongObjectPtr.h"
#include "WaitUntil.h"

using namespace Host;

namespace
{
	const char* const ProjectText = R"({ "format": 1, "images": [{ "id": "plan", "address": "Pictures/plan.png" }], "units": [{ "id": "A" }, { "id": "B" }] })";

	/** Loads projects from a server of this machine, with the screen that tells of it. */
	class FProjectLoaderTest : public FEngineTest
	{
	protected:
		virtual void TearDown() override
		{
			Loader->Close();
			Loader.Reset();
			FEngineTest::TearDown();
		}

		static FServerReply MakeReply(int Status, const std::string& Body)
		{
			FServerReply Reply;
			Reply.Status = Status;
			Reply.Body = Body;
			return Reply;
		}

		static FServerReply MakeFault(EServerFault Fault)
		{
			FServerReply Reply = MakeReply(200, ProjectText);
			Reply.Fault = Fault;
			return Reply;
		}

		void Begin(const FString& Address)
		{
			if (Loader)
			{
				Loader->Close();
			}
			Loader.Reset(NewObject<UProjectLoader>());
			Loader->Load(Address, FOnProjectLoaded::CreateLambda([this](const FProjectData& Project) { Loaded.Add(Project); }));
		}

		/** Loads to the end. */
		void Load(const FString& Address)
		{
			Begin(Address);
			EXPECT_TRUE(WaitUntil(Loop, [this] { return !Loader->IsLoading(); }));
			Loop.RunUntilIdle(0.1);
		}

		/** Loads what fails, with this text in the window and in the log. */
		void ExpectFailure(const FString& Address, const TCHAR* Text)
		{
			const FExpectedLog Line(Text);
			Load(Address);
			EXPECT_TRUE(Driver.Find(FString(TEXT("text:")) + Text)) << ToStd(FString(Text));
			EXPECT_TRUE(Driver.Find(TEXT("Retry")));
			EXPECT_EQ(Loaded.Num(), 0);
		}

		FLoopbackServer Server;
		TStrongObjectPtr<UProjectLoader> Loader;
		TArray<FProjectData> Loaded;
	};
}

TEST_F(FProjectLoaderTest, AProjectIsReadFromItsAddressAndTheScreenGoes)
{
	Server.Serve("/quay/project.json", MakeReply(200, ProjectText));
	Load(Server.GetUrl("/quay/project.json"));
	ASSERT_EQ(Loaded.Num(), 1);
	EXPECT_EQ(Loaded[0].Units.Num(), 2);
	EXPECT_EQ(ToStd(Loaded[0].Source), ToStd(Server.GetUrl("/quay/"))) << "its pictures lie there";
	EXPECT_FALSE(Driver.Find(TEXT("TitleText")));
}

TEST_F(FProjectLoaderTest, TheAddressOfItsFolderWillDo)
{
	Server.Serve("/quay/project.json", MakeReply(200, ProjectText));
	Load(Server.GetUrl("/quay"));
	Load(Server.GetUrl("/quay/"));
	Load(Server.GetUrl("/quay?user=1"));
	EXPECT_EQ(Loaded.Num(), 3);
	EXPECT_EQ(Server.GetVisits("/quay/project.json"), 3);
	EXPECT_EQ(ToStd(Loaded[2].Source), ToStd(Server.GetUrl("/quay/")));
}

TEST_F(FProjectLoaderTest, AfterRedirectsPicturesLieWhereTheFileReallyIs)
{
	FServerReply Moved = MakeReply(302, "");
	Moved.Headers.emplace_back("Location", "/new/place/project.json");
	Server.Serve("/old/project.json", Moved);
	Server.Serve("/new/place/project.json", MakeReply(200, ProjectText));
	Load(Server.GetUrl("/old/"));
	ASSERT_EQ(Loaded.Num(), 1);
	EXPECT_EQ(ToStd(Loaded[0].Source), ToStd(Server.GetUrl("/new/place/")));
}

TEST_F(FProjectLoaderTest, TheScreenTellsWhatHasCome)
{
	FServerReply Slow = MakeReply(200, ProjectText + std::string(100000, ' '));
	Slow.Fault = EServerFault::Drip;
	Server.Serve("/project.json", Slow);
	Begin(Server.GetUrl("/"));
	EXPECT_TRUE(Driver.Find(TEXT("text:Loading the project")));
	EXPECT_TRUE(Driver.Find(TEXT("text:Waiting for the server")));
	EXPECT_TRUE(Driver.Find(TEXT("Bar")));
	EXPECT_TRUE(WaitUntil(Loop, [this] { return Driver.Find(TEXT("text:0 KiB received")) || Driver.Find(TEXT("text:1 KiB received")); }));
}

TEST_F(FProjectLoaderTest, WithoutAProjectThereTheWindowSaysSoAndTriesAgain)
{
	Server.Serve("/project.json", [](const FServerRequest&, int Visit) { return Visit == 1 ? MakeReply(404, "no") : MakeReply(200, ProjectText); });
	ExpectFailure(Server.GetUrl("/"), TEXT("There is no project at this address (404)."));
	EXPECT_FALSE(Driver.Find(TEXT("Cancel")));
	ASSERT_TRUE(Driver.Click(TEXT("Retry"))) << ToStd(Driver.GetError());
	EXPECT_TRUE(WaitUntil(Loop, [this] { return Loaded.Num() == 1; }));
}

TEST_F(FProjectLoaderTest, ServersThatFailAreNamed)
{
	Server.Serve("/project.json", MakeReply(503, ""));
	ExpectFailure(Server.GetUrl("/"), TEXT("The server answered with an error (503)."));
}

TEST_F(FProjectLoaderTest, WithoutAnAnswerTheWindowSaysSo)
{
	Server.Serve("/project.json", MakeFault(EServerFault::CloseAtOnce));
	ExpectFailure(Server.GetUrl("/"), TEXT("The server does not answer, or the connection was lost."));
	Server.Serve("/cut/project.json", MakeFault(EServerFault::CloseInBody));
	ExpectFailure(Server.GetUrl("/cut/"), TEXT("The server does not answer, or the connection was lost."));
}

TEST_F(FProjectLoaderTest, WhatIsNoProjectIsNamedWithItsPlace)
{
	Server.Serve("/project.json", MakeReply(200, "<html>"));
	const FExpectedLog Line(TEXT("What came is no project."));
	Load(Server.GetUrl("/"));
	UTextBlock* const Detail = Cast<UTextBlock>(Driver.Find(TEXT("DetailText")));
	ASSERT_TRUE(Detail);
	EXPECT_TRUE(Detail->GetText().ToString().StartsWith(TEXT("What came is no project. 1:1"))) << ToStd(Detail->GetText());
}

TEST_F(FProjectLoaderTest, AProjectWithoutUnitsShowsNothing)
{
	Server.Serve("/project.json", MakeReply(200, R"({ "format": 1 })"));
	ExpectFailure(Server.GetUrl("/"), TEXT("The project has no units: there is nothing to show."));
}

TEST_F(FProjectLoaderTest, OfATextThatEndsEarlyWhatCameIsShown)
{
	Server.Serve("/project.json", MakeReply(200, R"({ "format": 1, "units": [{ "id": "A" }, { "id": )"));
	const FExpectedLog Line(TEXT("/project.json:1:"), FExpectedLog::AnyCount);
	Load(Server.GetUrl("/"));
	ASSERT_EQ(Loaded.Num(), 1);
	EXPECT_EQ(Loaded[0].Units.Num(), 1);
}

TEST_F(FProjectLoaderTest, WhatIsTooLargeIsRefused)
{
	FServerReply Large = MakeReply(200, ProjectText);
	Large.ClaimedLength = FHttpLimits::MaxContentBytes + 1;
	Server.Serve("/project.json", Large);
	ExpectFailure(Server.GetUrl("/"), TEXT("The answer is not accepted: it is larger than 64 MiB, or leads on and on."));
}

TEST_F(FProjectLoaderTest, EscapeCancelsASlowServer)
{
	Server.Serve("/project.json", MakeFault(EServerFault::Silence));
	Begin(Server.GetUrl("/"));
	Loop.RunFrame(0.1);
	const FExpectedLog Line(TEXT("Loading was cancelled."));
	Driver.PressKey(EKeys::Escape);
	EXPECT_TRUE(WaitUntil(Loop, [this] { return !Loader->IsLoading(); }));
	Loop.RunUntilIdle(0.1);
	EXPECT_TRUE(Driver.Find(TEXT("text:Loading was cancelled.")));
	Server.Serve("/project.json", MakeReply(200, ProjectText));
	// The button has the keyboard now.
	Driver.PressKey(EKeys::Enter);
	EXPECT_TRUE(WaitUntil(Loop, [this] { return Loaded.Num() == 1; }));
}

TEST_F(FProjectLoaderTest, TheButtonCancelsToo)
{
	Server.Serve("/project.json", MakeFault(EServerFault::SilenceAfterHeaders));
	Begin(Server.GetUrl("/"));
	Loop.RunFrame(0.1);
	const FExpectedLog Line(TEXT("Loading was cancelled."));
	EXPECT_TRUE(Driver.Click(TEXT("Cancel"))) << ToStd(Driver.GetError());
	EXPECT_TRUE(WaitUntil(Loop, [this] { return !Loader->IsLoading(); }));
}

TEST_F(FProjectLoaderTest, NothingComesAfterTheLoaderWasClosed)
{
	Server.Serve("/project.json", MakeReply(200, ProjectText));
	Server.Hold();
	Begin(Server.GetUrl("/"));
	EXPECT_TRUE(WaitUntil(Loop, [this] { return Server.GetNumHeld() == 1; }));
	Loader->Close();
	Server.Release();
	EXPECT_TRUE(WaitUntil(Loop, [] { return FHttpActivity::GetNumActiveRequests() == 0; }));
	EXPECT_EQ(Loaded.Num(), 0);
	EXPECT_FALSE(Driver.Find(TEXT("TitleText")));
}

TEST_F(FProjectLoaderTest, SecretsOfTheAddressAreNotShown)
{
	FString Address = Server.GetUrl("/?key=secret");
	Address.ReplaceInline(TEXT("http://"), TEXT("http://anna:word@"));
	const FExpectedLog Line(TEXT("There is no project at this address (404)."));
	Load(Address);
	UTextBlock* const Shown = Cast<UTextBlock>(Driver.Find(TEXT("AddressText")));
	ASSERT_TRUE(Shown);
	EXPECT_EQ(ToStd(Shown->GetText()), ToStd(Server.GetUrl("/project.json")));
}
