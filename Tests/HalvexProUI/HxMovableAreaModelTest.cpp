#include "HxAreaModelTest.h"

#include "Widgets/HxBorder.h"
#include "Widgets/HxMovableArea.h"

namespace
{
	/** What the movable area promises, in the units of its parent. */
	struct FMoveModel
	{
		bool bDown = false;
		FVector2D DownLocal = FVector2D::ZeroVector;
		FVector2D Translation = FVector2D::ZeroVector;
		bool bHighlighted = false;
		bool bUsesHighlight = false;
		int32 Tracked = 0;
		std::string Events;

		void Press(FVector2D Local)
		{
			bDown = true;
			DownLocal = Local;
			bHighlighted = bUsesHighlight;
			Events += " start";
		}

		void Move(FVector2D Local)
		{
			if (bDown)
			{
				Translation = Local - DownLocal + Translation;
				++Tracked;
			}
		}

		void Release()
		{
			bDown = false;
			bHighlighted = false;
			Events += " stop";
		}
	};

	class FHxMovableAreaModelTest : public FHxAreaModelTest
	{
	protected:
		FHxMovableAreaModelTest() : FHxAreaModelTest(FVector2D(300.0, 200.0)) {}

		void ShowArea()
		{
			Area = Make<UHxMovableArea>(TEXT("Area"));
			Area->OnStartCaptureMouse.AddDynamic(Recorder.Get(), &UKitTestRecorder::OnStartCaptureMouse);
			Area->OnStopCaptureMouse.AddDynamic(Recorder.Get(), &UKitTestRecorder::OnStopCaptureMouse);
			Area->SetContent(Make<UHxBorder>());
			Area->bUseSelectableBorder = Model.bUsesHighlight = Chance(50);
			ShowIn(*Area);
		}

		void MoveBoth(FVector2D Position)
		{
			MoveMouse(Position);
			Model.Move(ToLocal(Position, Model.Translation));
		}

		void DoAnyStep()
		{
			switch (Roll(10))
			{
			case 0:
			case 1:
			{
				const FVector2D Local(20.0 + Roll(260), 3.0 + Roll(14));
				const FVector2D Position = ToWindow(Local, Model.Translation);
				const bool bIsSeen = Position.X > 2.0 && Position.X < 798.0 && Position.Y > 2.0 && Position.Y < 598.0;
				if (!Model.bDown && !bIsSeen)
				{
					History += " restore";
					Area->RestorePosition();
					Model.Translation = FVector2D::ZeroVector;
					break;
				}
				History += " press";
				const FKey Button = Chance(70) ? EKeys::LeftMouseButton : EKeys::RightMouseButton;
				Press(Position, Button);
				Model.Move(ToLocal(Position, Model.Translation));
				Model.Press(ToLocal(Position, Model.Translation));
				break;
			}
			case 2:
				if (Model.bDown)
				{
					History += " release";
					Release(Chance(50) ? EKeys::LeftMouseButton : EKeys::RightMouseButton);
					Model.Release();
				}
				break;
			case 3:
				if (Chance(20))
				{
					History += " restore";
					Area->RestorePosition();
					Model.Translation = FVector2D::ZeroVector;
				}
				break;
			case 4:
				History += " frame";
				Frame(AnyFrame());
				break;
			case 5:
				if (Chance(20))
				{
					History += " far";
					MoveBoth(WindowMiddle + AnyOffset(1500.0));
				}
				break;
			default:
				History += " move";
				MoveBoth(WindowMiddle + AnyOffset(250.0));
				break;
			}
		}

		bool Agree(int32 Tracked)
		{
			const FVector2D Translation = Area->GetRenderTransform().Translation;
			EXPECT_TRUE(Translation.Equals(Model.Translation, 0.01)) << Print(Translation) << " for " << Print(Model.Translation) << History;
			EXPECT_EQ(Tracked, Model.Tracked) << History;
			EXPECT_EQ(Area->GetCachedWidget()->GetChildren()->GetChildAt(2)->GetVisibility() == EVisibility::HitTestInvisible, Model.bHighlighted) << History;
			std::string Events = TakeEvents();
			EXPECT_EQ(Events.empty() ? Events : " " + Events, Model.Events) << History;
			Model.Events.clear();
			Model.Translation = Translation;
			return !HasFailure();
		}

		FMoveModel Model;
		UHxMovableArea* Area = nullptr;
	};

	TEST_P(FHxMovableAreaModelTest, AnyInputLeadsToWhatIsPromised)
	{
		ShowArea();
		Host::FExpectedLog Tracking(TEXT("Tracking"), Host::FExpectedLog::AnyCount);
		for (int32 Step = 0; Step < 400; ++Step)
		{
			DoAnyStep();
			ASSERT_TRUE(Agree(Tracking.GetCount()));
		}
	}

	INSTANTIATE_TEST_SUITE_P(Seeds, FHxMovableAreaModelTest, testing::Range(0, 20));
}
