#include "EngineTest.h"

#include "Engine/Engine.h"
#include "Engine/GameInstance.h"
#include "Engine/World.h"
#include "GameFramework/GameUserSettings.h"
#include "RestoredVariable.h"
#include "TimerManager.h"

namespace
{
	class FFrameRateTest : public Host::FEngineTest
	{
	protected:
		virtual void TearDown() override
		{
			Settings->SetFrameRateLimit(0.0f);
			Settings->ApplyNonResolutionSettings();
			FEngineTest::TearDown();
		}

		/** Runs as a program does, for some seconds. */
		int32 CountFrames(float Seconds)
		{
			FTimerManager& Timers = GEngine->GetGameInstance()->GetWorld()->GetTimerManager();
			FTimerHandle End;
			Timers.SetTimer(End, FTimerDelegate::CreateLambda([this] { Loop.RequestExit(); }), Seconds, false);
			NumFrames = 0;
			CountFrame();
			Loop.Run();
			Timers.ClearTimer(Next);
			return NumFrames;
		}

		void CountFrame()
		{
			++NumFrames;
			Next = GEngine->GetGameInstance()->GetWorld()->GetTimerManager().SetTimerForNextTick(FTimerDelegate::CreateLambda([this] { CountFrame(); }));
		}

		UGameUserSettings* const Settings = UGameUserSettings::GetGameUserSettings();
		FTimerHandle Next;
		int32 NumFrames = 0;
	};

	TEST_F(FFrameRateTest, NoMoreFramesAreMadeThanTheUserAllows)
	{
		Settings->SetFrameRateLimit(50.0f);
		EXPECT_EQ(GEngine->GetMaxFPS(), 0.0f) << "not applied yet";
		Settings->ApplyNonResolutionSettings();
		EXPECT_EQ(GEngine->GetMaxFPS(), 50.0f);
		// The first frame counts, and the one in which the time is over.
		EXPECT_LE(CountFrames(0.2f), 12);
	}

	TEST_F(FFrameRateTest, TheConsolesLimitOutranksTheUsers)
	{
		const Host::FRestoredVariable Limit(TEXT("t.MaxFPS"));
		Limit->Set(TEXT("20"), ECVF_SetByConsole);
		Settings->SetFrameRateLimit(50.0f);
		Settings->ApplyNonResolutionSettings();
		EXPECT_EQ(GEngine->GetMaxFPS(), 20.0f);
	}
}
