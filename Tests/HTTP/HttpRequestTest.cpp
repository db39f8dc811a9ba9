#include "EngineTest.h"

#include "CoreGlobals.h"
#include "Host/GameThreadQueue.h"
#include "Host/HttpLimits.h"
#include "HttpModule.h"
#include "LoopbackServer.h"
#include "WaitUntil.h"
#include "gmock/gmock.h"

#include <sys/resource.h>

using Host::EServerFault;
using Host::FServerReply;
using Host::FServerRequest;
using testing::HasSubstr;

namespace
{
	class FHttpRequestTest : public Host::FEngineTest
	{
	protected:
		/** How a request ended. */
		struct FResult
		{
			int32 Calls = 0;
			bool bConnected = false;
			bool bOnGameThread = false;
			FHttpResponsePtr Response;
			EHttpFailureReason Reason = EHttpFailureReason::None;
		};

		FHttpRequestRef Make(const FString& Url)
		{
			const FHttpRequestRef Request = FHttpModule::Get().CreateRequest();
			Request->SetURL(Url);
			Results.Add(&*Request);
			Request->OnProcessRequestComplete().BindLambda([this](FHttpRequestPtr Ended, FHttpResponsePtr Response, bool bConnected)
			{
				FResult& Result = Results[Ended.Get()];
				++Result.Calls;
				Result.bConnected = bConnected;
				Result.bOnGameThread = IsInGameThread();
				Result.Response = Response;
				Result.Reason = Ended->GetFailureReason();
			});
			return Request;
		}

		FHttpRequestRef MakeFor(const char* Path) { return Make(Server.GetUrl(Path)); }

		/** Processes the request and waits for its end. */
		const FResult& Process(const FHttpRequestRef& Request)
		{
			Request->ProcessRequest();
			return WaitFor(Request);
		}

		const FResult& WaitFor(const FHttpRequestRef& Request)
		{
			const FResult& Result = Results[&*Request];
			EXPECT_TRUE(Host::WaitUntil(Loop, [&] { return Result.Calls > 0; })) << "the request did not end";
			return Result;
		}

		const FResult& Get(const char* Path) { return Process(MakeFor(Path)); }

		void ExpectFailure(const char* Path, EHttpFailureReason Reason)
		{
			const FResult& Result = Get(Path);
			EXPECT_EQ(Result.Calls, 1);
			EXPECT_FALSE(Result.bConnected);
			EXPECT_FALSE(Result.Response);
			EXPECT_EQ(Result.Reason, Reason);
		}

		static FServerReply Faulty(EServerFault Fault, std::string Body = std::string(1000, 'b'))
		{
			FServerReply Reply;
			Reply.Fault = Fault;
			Reply.Body = std::move(Body);
			return Reply;
		}

		static FServerReply Redirect(const std::string& Target)
		{
			FServerReply Reply;
			Reply.Status = 302;
			Reply.Headers = { { "Location", Target } };
			return Reply;
		}

		Host::FLoopbackServer Server;
		TMap<IHttpRequest*, FResult> Results;
		TArray<FHttpRequestPtr> Kept;
	};

	TEST_F(FHttpRequestTest, ResponseHasCodeHeadersAndContent)
	{
		FServerReply Reply;
		Reply.Headers = { { "Content-Type", "text/plain" }, { "X-Part", "one" }, { "X-Part", "two" } };
		Reply.Body = "Zo\xc3\xab";
		Server.Serve("/text", Reply);
		const FResult& Result = Get("/text?q=1");
		EXPECT_EQ(Result.Calls, 1);
		EXPECT_TRUE(Result.bConnected);
		EXPECT_TRUE(Result.bOnGameThread);
		ASSERT_TRUE(Result.Response);
		EXPECT_EQ(Result.Response->GetResponseCode(), 200);
		EXPECT_EQ(Host::ToStd(Result.Response->GetContentAsString()), "Zo\xc3\xab");
		EXPECT_EQ(Result.Response->GetContentLength(), 4u);
		EXPECT_EQ(Host::ToStd(Result.Response->GetContentType()), "text/plain");
		EXPECT_EQ(Host::ToStd(Result.Response->GetHeader(TEXT("x-part"))), "one, two");
		EXPECT_EQ(Host::ToStd(Result.Response->GetURL()), Host::ToStd(Server.GetUrl("/text?q=1")));
		EXPECT_EQ(Server.GetLastRequest("/text").Method, "GET");
		EXPECT_EQ(Server.GetLastRequest("/text").Path, "/text?q=1");
	}

	TEST_F(FHttpRequestTest, VerbHeadersAndContentReachTheServer)
	{
		Server.Serve("/post", FServerReply());
		const FHttpRequestRef Request = MakeFor("/post");
		Request->SetVerb(TEXT("POST"));
		Request->SetHeader(TEXT("X-Kind"), TEXT("first"));
		Request->SetHeader(TEXT("x-kind"), TEXT("second"));
		Request->SetContentAsString(TEXT("čaj"));
		Process(Request);
		const FServerRequest Seen = Server.GetLastRequest("/post");
		EXPECT_EQ(Seen.Method, "POST");
		EXPECT_EQ(Seen.Headers.at("x-kind"), "second");
		EXPECT_EQ(Seen.Body, "\xc4\x8d" "aj");
	}

	TEST_F(FHttpRequestTest, HeaderWithALineBreakIsLeftOut)
	{
		Server.Serve("/", FServerReply());
		const FHttpRequestRef Request = MakeFor("/");
		const Host::FExpectedLog Refused(TEXT("holds a line break"));
		Request->SetHeader(TEXT("X-Kind"), TEXT("one\r\nX-Smuggled: two"));
		Process(Request);
		EXPECT_EQ(Server.GetLastRequest("/").Headers.count("x-smuggled"), 0u);
	}

	TEST_F(FHttpRequestTest, CodesOfFailureAreResponsesAllTheSame)
	{
		const FResult& Result = Get("/nowhere");
		EXPECT_TRUE(Result.bConnected);
		ASSERT_TRUE(Result.Response);
		EXPECT_EQ(Result.Response->GetResponseCode(), 404);
		EXPECT_FALSE(EHttpResponseCodes::IsOk(404));
		EXPECT_TRUE(EHttpResponseCodes::IsOk(206));
	}

	TEST_F(FHttpRequestTest, ChunkedContentIsPutTogether)
	{
		FServerReply Reply;
		Reply.bChunked = true;
		Reply.Body = std::string(5321, 'c');
		Server.Serve("/chunks", Reply);
		EXPECT_EQ(Get("/chunks").Response->GetContentLength(), 5321u);
	}

	TEST_F(FHttpRequestTest, CompletionIsNeverCalledDuringTheStart)
	{
		const FHttpRequestRef Refused = Make(TEXT("file:///etc/passwd"));
		EXPECT_FALSE(Refused->ProcessRequest());
		EXPECT_EQ(Results[&*Refused].Calls, 0);
		EXPECT_EQ(WaitFor(Refused).Calls, 1);
		EXPECT_FALSE(Results[&*Refused].bConnected);
	}

	TEST_F(FHttpRequestTest, OnlyAddressesOfHttpAndHttpsAreProcessed)
	{
		for (const TCHAR* Url : { TEXT("file:///etc/passwd"), TEXT("ftp://127.0.0.1/x"), TEXT("/etc/passwd"), TEXT(""), TEXT("http://"), TEXT("gopher://127.0.0.1") })
		{
			const FHttpRequestRef Request = Make(Url);
			EXPECT_FALSE(Request->ProcessRequest()) << TCHAR_TO_UTF8(Url);
			EXPECT_EQ(WaitFor(Request).Reason, EHttpFailureReason::Other) << TCHAR_TO_UTF8(Url);
		}
	}

	TEST_F(FHttpRequestTest, ConnectionIsUsedAgain)
	{
		Server.Serve("/", FServerReply());
		for (int32 Index = 0; Index < 5; ++Index)
		{
			Get("/");
		}
		EXPECT_EQ(Server.GetVisits("/"), 5);
		EXPECT_EQ(Server.GetNumConnections(), 1);
	}

	TEST_F(FHttpRequestTest, NoMoreThanTheLimitAreUnderWayAtOnce)
	{
		Server.Serve("/", FServerReply());
		Server.Hold();
		const int32 Limit = FHttpModule::Get().GetHttpMaxConnectionsPerServer();
		for (int32 Index = 0; Index < Limit * 3; ++Index)
		{
			const FHttpRequestRef Request = MakeFor("/");
			Kept.Add(Request);
			Request->ProcessRequest();
		}
		EXPECT_TRUE(Host::WaitUntil(Loop, [&] { return Server.GetNumHeld() == Limit; }));
		Server.Release();
		for (const FHttpRequestPtr& Request : Kept)
		{
			EXPECT_EQ(WaitFor(Request.ToSharedRef()).Calls, 1);
			EXPECT_TRUE(Results[Request.Get()].bConnected);
		}
		EXPECT_EQ(Server.GetMostAtOnce(), Limit);
	}

	TEST_F(FHttpRequestTest, RedirectsAreFollowed)
	{
		Server.Serve("/old", Redirect("/new"));
		FServerReply Reply;
		Reply.Body = "here";
		Server.Serve("/new", Reply);
		const FResult& Result = Get("/old");
		ASSERT_TRUE(Result.Response);
		EXPECT_EQ(Host::ToStd(Result.Response->GetContentAsString()), "here");
		EXPECT_EQ(Host::ToStd(Result.Response->GetEffectiveURL()), Host::ToStd(Server.GetUrl("/new")));
	}

	TEST_F(FHttpRequestTest, RedirectLoopEndsAfterTheLimit)
	{
		Server.Serve("/loop", Redirect("/loop"));
		ExpectFailure("/loop", EHttpFailureReason::Other);
		EXPECT_EQ(Server.GetVisits("/loop"), Host::FHttpLimits::MaxRedirects + 1);
	}

	TEST_F(FHttpRequestTest, RedirectNeverLeadsToAFile)
	{
		Server.Serve("/trap", Redirect("file:///etc/passwd"));
		ExpectFailure("/trap", EHttpFailureReason::Other);
	}

	TEST_F(FHttpRequestTest, RedirectToAnotherServerTakesNeitherContentNorAuthorizationAlong)
	{
		Host::FLoopbackServer Other;
		Other.Serve("/other", FServerReply());
		for (const int Status : { 301, 302, 303, 307, 308 })
		{
			FServerReply Away = Redirect(Host::ToStd(Other.GetUrl("/other")));
			Away.Status = Status;
			Server.Serve("/away", Away);
			const FHttpRequestRef Request = MakeFor("/away");
			Request->SetVerb(TEXT("POST"));
			Request->SetHeader(TEXT("Authorization"), TEXT("Bearer secret"));
			Request->SetContentAsString(TEXT("password"));
			const FResult& Result = Process(Request);
			const bool bKeepsContent = Status >= 307;
			EXPECT_EQ(Result.bConnected, !bKeepsContent) << Status;
			EXPECT_EQ(Other.GetLastRequest("/other").Body, "") << Status;
			EXPECT_EQ(Other.GetLastRequest("/other").Headers.count("authorization"), 0u) << Status;
		}
		EXPECT_EQ(Other.GetVisits("/other"), 3);
	}

	TEST_F(FHttpRequestTest, RedirectAtTheSameServerTakesTheContentAlong)
	{
		Server.Serve("/new", FServerReply());
		for (const std::string& Target : { std::string("/new"), Host::ToStd(Server.GetUrl("/new")) })
		{
			FServerReply Moved = Redirect(Target);
			Moved.Status = 308;
			Server.Serve("/moved", Moved);
			const FHttpRequestRef Request = MakeFor("/moved");
			Request->SetVerb(TEXT("POST"));
			Request->SetContentAsString(TEXT("password"));
			EXPECT_TRUE(Process(Request).bConnected);
			EXPECT_EQ(Server.GetLastRequest("/new").Body, "password");
		}
	}

	TEST_F(FHttpRequestTest, LostConnectionsAreFailures)
	{
		for (const EServerFault Fault : { EServerFault::CloseAtOnce, EServerFault::CloseInHeaders, EServerFault::CloseInBody })
		{
			Server.Serve("/lost", Faulty(Fault));
			const FResult Result = Get("/lost");
			EXPECT_FALSE(Result.bConnected) << static_cast<int>(Fault);
			EXPECT_EQ(Result.Reason, EHttpFailureReason::ConnectionError) << static_cast<int>(Fault);
		}
	}

	TEST_F(FHttpRequestTest, RefusedConnectionIsAFailure)
	{
		FString Url;
		{
			const Host::FLoopbackServer Gone;
			Url = Gone.GetUrl("/");
		}
		EXPECT_EQ(Process(Make(Url)).Reason, EHttpFailureReason::ConnectionError);
	}

	TEST_F(FHttpRequestTest, ContentShorterThanSaidIsAFailure)
	{
		FServerReply Reply;
		Reply.Body = "short";
		Reply.ClaimedLength = 500;
		Server.Serve("/short", Reply);
		ExpectFailure("/short", EHttpFailureReason::ConnectionError);
	}

	TEST_F(FHttpRequestTest, AnnouncedGigabyteIsRefusedBeforeTheFirstByte)
	{
		FServerReply Reply;
		Reply.ClaimedLength = 1024ll * 1024 * 1024;
		Reply.Fault = EServerFault::SilenceAfterHeaders;
		Server.Serve("/huge", Reply);
		ExpectFailure("/huge", EHttpFailureReason::Other);
	}

	TEST_F(FHttpRequestTest, EndlessContentEndsAtTheLimit)
	{
		Server.Serve("/endless", Faulty(EServerFault::EndlessBody));
		ExpectFailure("/endless", EHttpFailureReason::Other);
		rusage Usage = {};
		getrusage(RUSAGE_SELF, &Usage);
		EXPECT_LT(Usage.ru_maxrss, 1024 * 1024) << "kilobytes";
	}

	TEST_F(FHttpRequestTest, EndlessHeadersEndAtTheLimit)
	{
		Server.Serve("/headers", Faulty(EServerFault::EndlessHeaders));
		const FResult& Result = Get("/headers");
		EXPECT_FALSE(Result.bConnected);
	}

	TEST_F(FHttpRequestTest, AnswerThatIsNoneIsAFailure)
	{
		Server.Serve("/garbage", Faulty(EServerFault::Garbage));
		EXPECT_FALSE(Get("/garbage").bConnected);
	}

	TEST_F(FHttpRequestTest, WholeRequestMayTakeNoLongerThanItsTime)
	{
		Server.Serve("/drip", Faulty(EServerFault::Drip, std::string(100000, 'd')));
		const FHttpRequestRef Request = MakeFor("/drip");
		Request->SetTimeout(0.2f);
		EXPECT_EQ(Process(Request).Reason, EHttpFailureReason::TimedOut);
	}

	TEST_F(FHttpRequestTest, SilentServerIsGivenUp)
	{
		Server.Serve("/silence", Faulty(EServerFault::SilenceAfterHeaders));
		const FHttpRequestRef Request = MakeFor("/silence");
		Request->SetActivityTimeout(1.0f);
		EXPECT_EQ(Process(Request).Reason, EHttpFailureReason::ConnectionError);
	}

	TEST_F(FHttpRequestTest, CancelledRequestEndsOnceAsCancelled)
	{
		Server.Serve("/", FServerReply());
		Server.Hold();
		const FHttpRequestRef Request = MakeFor("/");
		Request->ProcessRequest();
		ASSERT_TRUE(Host::WaitUntil(Loop, [&] { return Server.GetNumHeld() == 1; }));
		Request->CancelRequest();
		Request->CancelRequest();
		EXPECT_EQ(Results[&*Request].Calls, 0) << "not during the call";
		EXPECT_EQ(WaitFor(Request).Reason, EHttpFailureReason::Cancelled);
		Server.Release();
		Get("/");
		EXPECT_EQ(Results[&*Request].Calls, 1);
	}

	TEST_F(FHttpRequestTest, RequestThatWaitsForItsTurnCanBeCancelled)
	{
		Server.Serve("/", FServerReply());
		Server.Hold();
		const int32 Limit = FHttpModule::Get().GetHttpMaxConnectionsPerServer();
		for (int32 Index = 0; Index <= Limit; ++Index)
		{
			Kept.Add(MakeFor("/"));
			Kept.Last()->ProcessRequest();
		}
		ASSERT_TRUE(Host::WaitUntil(Loop, [&] { return Server.GetNumHeld() == Limit; }));
		Kept.Last()->CancelRequest();
		EXPECT_EQ(WaitFor(Kept.Last().ToSharedRef()).Reason, EHttpFailureReason::Cancelled);
		Server.Release();
		for (int32 Index = 0; Index < Limit; ++Index)
		{
			EXPECT_TRUE(WaitFor(Kept[Index].ToSharedRef()).bConnected);
		}
		EXPECT_EQ(Server.GetVisits("/"), Limit);
	}

	TEST_F(FHttpRequestTest, ProgressIsToldOnTheGameThread)
	{
		FServerReply Reply;
		Reply.Body = std::string(3000000, 'p');
		Server.Serve("/large", Reply);
		const FHttpRequestRef Request = MakeFor("/large");
		uint64 Last = 0;
		bool bGrows = true;
		bool bOnGameThread = true;
		Request->OnRequestProgress64().BindLambda([&](FHttpRequestPtr, uint64, uint64 Received)
		{
			bGrows = bGrows && Received >= Last;
			bOnGameThread = bOnGameThread && IsInGameThread();
			Last = Received;
		});
		EXPECT_EQ(Process(Request).Response->GetContentLength(), 3000000u);
		EXPECT_GT(Last, 0u);
		EXPECT_TRUE(bGrows);
		EXPECT_TRUE(bOnGameThread);
	}

	TEST_F(FHttpRequestTest, RequestCanBeStartedAgainWhenItHasEnded)
	{
		Server.Serve("/", FServerReply());
		const FHttpRequestRef Request = MakeFor("/");
		Process(Request);
		Request->ProcessRequest();
		const Host::FExpectedLog Refused(TEXT("cannot be processed again"));
		EXPECT_FALSE(Request->ProcessRequest());
		EXPECT_TRUE(Host::WaitUntil(Loop, [&] { return Results[&*Request].Calls == 2; }));
	}

	TEST_F(FHttpRequestTest, NobodyNeedsToKeepTheRequest)
	{
		Server.Serve("/", FServerReply());
		int32 Calls = 0;
		{
			const FHttpRequestRef Request = FHttpModule::Get().CreateRequest();
			Request->SetURL(Server.GetUrl("/"));
			Request->OnProcessRequestComplete().BindLambda([&Calls](FHttpRequestPtr, FHttpResponsePtr, bool) { ++Calls; });
			Request->ProcessRequest();
		}
		EXPECT_TRUE(Host::WaitUntil(Loop, [&] { return Calls == 1; }));
		EXPECT_EQ(Host::FHttpActivity::GetNumActiveRequests(), 0);
	}

	TEST_F(FHttpRequestTest, ShutdownEndsWhatIsUnderWayAndLaterRequestsWork)
	{
		Server.Serve("/", FServerReply());
		Server.Hold();
		const FHttpRequestRef Request = MakeFor("/");
		Request->ProcessRequest();
		const FHttpRequestRef Unseen = MakeFor("/");
		Unseen->ProcessRequest();
		ASSERT_TRUE(Host::WaitUntil(Loop, [&] { return Server.GetNumHeld() == 2; }));
		FHttpModule::Get().ShutdownModule();
		EXPECT_EQ(Results[&*Request].Calls, 1);
		EXPECT_EQ(Results[&*Request].Reason, EHttpFailureReason::Cancelled);
		EXPECT_EQ(Results[&*Unseen].Calls, 1);
		EXPECT_EQ(Host::FHttpActivity::GetNumActiveRequests(), 0);
		FHttpModule::Get().StartupModule();
		Server.Release();
		EXPECT_TRUE(Get("/").bConnected);
	}

	TEST_F(FHttpRequestTest, SleepingProgramIsWokenByTheEndAndByNothingElse)
	{
		Server.Serve("/", FServerReply());
		Server.Hold();
		std::atomic<int32> WakeUps = 0;
		Host::FGameThreadQueue::SetWakeUp([&] { ++WakeUps; });
		const FHttpRequestRef Request = MakeFor("/");
		Request->ProcessRequest();
		ASSERT_TRUE(Host::WaitUntil(Loop, [&] { return Server.GetNumHeld() == 1; }));
		EXPECT_EQ(WakeUps, 0);
		Server.Release();
		WaitFor(Request);
		EXPECT_EQ(WakeUps, 1);
		Host::FGameThreadQueue::SetWakeUp(nullptr);
	}
}
