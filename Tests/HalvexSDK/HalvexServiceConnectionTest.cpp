#include "UserTest.h"

#include "Service/HalvexServiceConnection.h"

namespace
{
	/** A service inside the program: its answers wait until they are sent. */
	class FInsideConnection final : public IHalvexServiceConnection
	{
	public:
		class FExchange final : public IHalvexServiceExchange
		{
		public:
			FCallback Callback;
		};

		virtual TSharedRef<IHalvexServiceExchange> Send(const FHalvexServiceRequest& Request, FCallback Callback) override
		{
			const TSharedRef<FExchange> Exchange = MakeShared<FExchange>();
			Exchange->Callback = MoveTemp(Callback);
			Requests.Add(Request);
			Exchanges.Add(Exchange);
			return Exchange;
		}
		virtual FString GetServiceName() const override { return TEXT("inside"); }
		virtual FString ResolveAddress(const FString& Address) const override { return TEXT("file:") + Address; }

		/** Answers a request as the server would. */
		bool Answer(int32 Index, const Host::FServerReply& Says)
		{
			const TSharedPtr<FExchange> Exchange = Exchanges[Index].Pin();
			if (Exchange.IsValid())
			{
				FHalvexServiceReply Reply;
				Reply.Outcome = EHalvexServiceOutcome::Answered;
				Reply.Status = Says.Status;
				Reply.ContentType = TEXT("application/json");
				Reply.Body = FString(UTF8_TO_TCHAR(Says.Body.c_str()));
				Exchange->Callback(Reply);
			}
			return Exchange.IsValid();
		}

		TArray<FHalvexServiceRequest> Requests;
		TArray<TWeakPtr<FExchange>> Exchanges;
	};

	/** The user at a service that was put in place of the one of the settings. */
	class FHalvexServiceConnectionTest : public FUserTest
	{
	protected:
		virtual void SetUp() override
		{
			FUserTest::SetUp();
			Subsystem().SetServiceConnection(Inside);
		}

		virtual void TearDown() override
		{
			User.ForgetRememberedCredentials();
			Subsystem().SetServiceConnection(nullptr);
			FUserTest::TearDown();
		}

		static UHalvexSDKEngineSubsystem& Subsystem() { return *UHalvexSDKEngineSubsystem::Get(); }

		void SignInInside()
		{
			User.RequestUserLogin(FHalvexUserInformation(true, TEXT("ada"), TEXT("x")));
			ASSERT_TRUE(Inside->Answer(0, FService::Grant("t1", 3600, "r1", FService::MakeAda(R"(, "picture": {"address": "ada.png"})"))));
		}

		TSharedRef<FInsideConnection> Inside = MakeShared<FInsideConnection>();
	};

	TEST_F(FHalvexServiceConnectionTest, RequestsGoToTheOneThatWasSet)
	{
		SignInInside();
		EXPECT_EQ(Host::ToStd(Inside->Requests[0].Verb), "POST");
		EXPECT_EQ(Host::ToStd(Inside->Requests[0].Path), "api/session");
		EXPECT_EQ(Host::ToStd(Inside->Requests[0].Bearer), "");
		EXPECT_EQ(Events(), "result Ada Quay; logged Ada Quay; ");
		EXPECT_EQ(Host::ToStd(User.GetUserLoginInfo().UserImage.Address), "file:ada.png") << "it says where its pictures are";
		User.RefreshUserData();
		EXPECT_EQ(Host::ToStd(Inside->Requests[1].Bearer), "t1");
		EXPECT_EQ(Service.Server.GetNumConnections(), 0);
	}

	TEST_F(FHalvexServiceConnectionTest, RequestThatIsGivenUpIsLetGoOf)
	{
		User.RequestUserLogin(FHalvexUserInformation(false, TEXT("ada"), TEXT("x")));
		User.CancelLogin();
		EXPECT_FALSE(Inside->Answer(0, FService::Grant("t1", 3600)));
		EXPECT_FALSE(User.HasValidToken());
	}

	TEST_F(FHalvexServiceConnectionTest, WhatItGaveIsRememberedUnderItsName)
	{
		SignInInside();
		EXPECT_TRUE(User.HasRememberedCredentials());
		Subsystem().SetServiceConnection(nullptr);
		EXPECT_FALSE(User.HasRememberedCredentials()) << "the service of the settings is another one";
		Subsystem().SetServiceConnection(Inside);
		EXPECT_TRUE(User.HasRememberedCredentials());
	}

	TEST_F(FHalvexServiceConnectionTest, AnotherServiceEndsWhatIsOnItsWay)
	{
		User.RequestUserLogin(FHalvexUserInformation(false, TEXT("ada"), TEXT("x")));
		Subsystem().SetServiceConnection(nullptr);
		EXPECT_EQ(Events(), "result Cancelled; logged Cancelled; ");
		EXPECT_FALSE(Inside->Answer(0, FService::Grant("t1", 3600)));
	}
}
