#pragma once

#include "EngineTest.h"

#include "Host/HttpLimits.h"
#include "ScriptedService.h"
#include "UObject/StrongObjectPtr.h"
#include "UserListener.h"
#include "WaitUntil.h"

/** The user of the program at a server of this machine. */
class FUserTest : public Host::FEngineTest
{
protected:
	using FService = Host::FScriptedService;

	virtual void SetUp() override
	{
		Host::FEngineTest::SetUp();
		Listener.Reset(NewObject<UUserListener>());
		Listener->ListenTo(User);
	}

	virtual void TearDown() override
	{
		FService::GetUser().Abandon();
		Listener.Reset();
		EXPECT_TRUE(Host::WaitUntil(Loop, [] { return Host::FHttpActivity::GetNumActiveRequests() == 0; }));
		Host::FEngineTest::TearDown();
	}

	std::string Events() { return Host::ToStd(Listener->Take()); }

	/** Waits for the result of a request; true when somebody is signed in by it. */
	bool WaitForResult()
	{
		const int32 Before = NumResultsSeen;
		EXPECT_TRUE(Host::WaitUntil(Loop, [&] { return Listener->NumResults > Before; })) << "the request did not end";
		NumResultsSeen = Listener->NumResults;
		return Listener->LastResult.Error == EHalvexLoginError::None;
	}

	bool SignIn(bool bRemember = false, const TCHAR* Name = TEXT("ada"), const TCHAR* Password = TEXT("harbour-5678"))
	{
		NumResultsSeen = Listener->NumResults;
		User.RequestUserLogin(FHalvexUserInformation(bRemember, Name, Password));
		return WaitForResult();
	}

	/** Lets the clock go, in frames of a second. */
	void Pass(double Seconds)
	{
		for (double Passed = 0.0; Passed < Seconds; Passed += 1.0)
		{
			Loop.RunFrame(1.0);
		}
	}

	/** Waits for others, while the clock all but stands still. */
	bool WaitAtOnce(const std::function<bool()>& Condition) { return Host::WaitUntil(Loop, Condition, 1e-5); }

	bool WaitForVisits(const char* Path, int Count)
	{
		return WaitAtOnce([&] { return Service.Server.GetVisits(Path) >= Count; });
	}

	/** Waits until no request is on its way. */
	void WaitForQuiet()
	{
		EXPECT_TRUE(WaitAtOnce([] { return Host::FHttpActivity::GetNumActiveRequests() == 0; }));
	}

	void ServeAda(int Seconds = 3600, const std::string& RefreshToken = "")
	{
		Service.Server.Serve("/api/session", FService::Grant("t1", Seconds, RefreshToken));
	}

	FService Service;
	UHalvexUser& User = FService::GetUser();
	TStrongObjectPtr<UUserListener> Listener;
	int32 NumResultsSeen = 0;
};
