#include "HxAreaModelTest.h"

#include "Widgets/HxBorder.h"
#include "Widgets/HxZoomyArea.h"

namespace
{
	/** What the zoom area promises. */
	struct FZoomModel
	{
		static constexpr double Period = static_cast<double>(0.01f);

		bool bSmooth = true;
		double Speed = 5.0;
		double Step = 0.1;
		double Min = 0.3;
		double Max = 5.0;
		FVector2D Own = FVector2D::ZeroVector;

		bool bDown = false;
		FVector2D DownLocal = FVector2D::ZeroVector;
		FVector2D Start = FVector2D::ZeroVector;
		FVector2D TargetTranslation = FVector2D::ZeroVector;
		double TargetScale = 1.0;
		FVector2D Translation = FVector2D::ZeroVector;
		double Scale = 1.0;

		double Now = 0.0;
		bool bEasing = false;
		double Due = 0.0;
		std::string Events;

		void Tell(const char* Event) { Events += (Events.empty() ? "" : " ") + std::string(Event); }

		void Target()
		{
			if (!bEasing)
			{
				bEasing = true;
				Due = Now + Period;
			}
		}

		void SetZoom(double Zoom)
		{
			TargetScale = std::max(std::min(Max, Zoom), Min);
			if (bSmooth)
			{
				Target();
			}
			else
			{
				Scale = TargetScale;
			}
			Tell("zoom");
		}

		void Wheel(double Delta) { SetZoom(Delta > 0.0 ? Scale + Step : Scale - Step); }

		void Press(FVector2D Local)
		{
			bDown = true;
			DownLocal = Local;
			Start = Translation;
			Tell("start");
		}

		void Move(FVector2D Local)
		{
			if (!bDown)
			{
				return;
			}
			TargetTranslation = Local - DownLocal + Own + Start;
			if (bSmooth)
			{
				Target();
			}
			else
			{
				Translation = TargetTranslation;
			}
		}

		void Release()
		{
			Tell("stop");
			bDown = false;
		}

		void ResetPosition() { Translation = FVector2D::ZeroVector; }

		static double Approach(double From, double To, double Share) { return From + (To - From) * Share; }

		void EaseOnce()
		{
			const double Share = std::min(std::max(static_cast<double>(0.01f * static_cast<float>(Speed)), 0.0), 1.0);
			const bool bJump = Speed <= 0.0;
			if (bJump || (TargetTranslation - Translation).SizeSquared() < 1.0e-4)
			{
				Translation = TargetTranslation;
			}
			else
			{
				Translation = FVector2D(Approach(Translation.X, TargetTranslation.X, Share), Approach(Translation.Y, TargetTranslation.Y, Share));
			}
			const double Left = TargetScale - Scale;
			Scale = bJump || 2.0 * Left * Left < 1.0e-4 ? TargetScale : Approach(Scale, TargetScale, Share);
			bEasing = (TargetTranslation - Translation).Size() >= 1.0e-4 || std::abs(TargetScale - Scale) * std::sqrt(2.0) >= 1.0e-4;
		}

		void Pass(double Seconds)
		{
			Now += static_cast<double>(static_cast<float>(Seconds));
			while (bEasing && Due <= Now)
			{
				Due += Period;
				EaseOnce();
			}
		}
	};

	class FHxZoomyAreaModelTest : public FHxAreaModelTest
	{
	protected:
		FHxZoomyAreaModelTest() : FHxAreaModelTest(FVector2D(400.0, 300.0)) {}

		void ShowArea()
		{
			Area = Make<UHxZoomyArea>(TEXT("Area"));
			Area->OnZoomValueChanged.AddDynamic(Recorder.Get(), &UKitTestRecorder::OnZoomValueChanged);
			Area->OnStartCaptureMouse.AddDynamic(Recorder.Get(), &UKitTestRecorder::OnStartCaptureMouse);
			Area->OnStopCaptureMouse.AddDynamic(Recorder.Get(), &UKitTestRecorder::OnStopCaptureMouse);
			Content = Make<UHxBorder>(TEXT("Content"));
			Area->SetContent(Content);
			ShowIn(*Area);
			MoveBoth(WindowMiddle);
		}

		void MoveBoth(FVector2D Position)
		{
			MoveMouse(Position);
			Model.Move(ToLocal(Position, Model.Own));
		}

		/** A place over the area. */
		FVector2D AnyPlace() { return ToWindow(Size / 2.0 + FVector2D(AnyWithin(190.0), AnyWithin(140.0)), Model.Own); }

		void DoAnyStep()
		{
			switch (Roll(16))
			{
			case 0:
			case 1:
			{
				MoveBoth(AnyPlace());
				const double Delta = Chance(10) ? 0.0 : AnyWithin(3.0);
				Note("wheel", Delta);
				TurnWheel(static_cast<float>(Delta));
				Model.Wheel(Delta);
				break;
			}
			case 2:
			case 3:
			{
				const FVector2D Position = AnyPlace();
				MoveBoth(Position);
				Note("press");
				Press(Position, Chance(50) ? EKeys::LeftMouseButton : EKeys::RightMouseButton);
				// The press brings the mouse along once more.
				Model.Move(ToLocal(Position, Model.Own));
				Model.Press(ToLocal(Position, Model.Own));
				break;
			}
			case 4:
			case 5:
			case 6:
			case 7:
			{
				const FVector2D Position = Chance(20) ? WindowMiddle + AnyOffset(900.0) : AnyPlace();
				Note("move");
				MoveBoth(Position);
				break;
			}
			case 8:
				MoveBoth(AnyPlace());
				Note("release");
				Release(Chance(50) ? EKeys::LeftMouseButton : EKeys::RightMouseButton);
				Model.Release();
				break;
			case 9:
				Note("in");
				Area->ZoomIn();
				Model.Wheel(1.0);
				break;
			case 10:
			{
				const double Zoom = AnyWithin(6.0);
				Note("zoom", Zoom);
				Area->SetZoomValue(static_cast<float>(Zoom));
				Model.SetZoom(static_cast<float>(Zoom));
				break;
			}
			case 11:
				Note("reset");
				Area->ResetTransformation();
				Model.ResetPosition();
				Model.SetZoom(1.0);
				break;
			case 12:
				Model.bSmooth = Area->bEnableSmoothTransition = Chance(60);
				Model.Speed = Area->SmoothTransitionSpeed = Chance(10) ? 0.0f : static_cast<float>(Roll(40));
				Note("speed", Model.bSmooth ? Model.Speed : -1.0);
				break;
			case 13:
				if (Chance(30))
				{
					Area->ZoomMinMax = FVector2D(0.2 + Roll(3), 1.0 + Roll(5));
					Model.Min = Area->ZoomMinMax.X;
					Model.Max = Area->ZoomMinMax.Y;
					Note("limits", Model.Min);
				}
				break;
			case 14:
				if (Chance(30))
				{
					Model.Own = AnyOffset(15.0);
					Area->SetRenderTranslation(Model.Own);
					Note("own");
				}
				break;
			default:
			{
				const double Seconds = AnyFrame();
				Note("frame", Seconds);
				Frame(Seconds);
				Model.Pass(Seconds);
				break;
			}
			}
		}

		void Note(const char* Step, double Value = 0.0) { History += std::string(" ") + Step + "(" + std::to_string(Value) + ")"; }

		/** Kinds of the events that the widget raised since the last call. */
		std::string TakeKinds()
		{
			std::string Kinds;
			for (const FString& Event : Recorder->Events)
			{
				Kinds += (Kinds.empty() ? "" : " ") + (Event.StartsWith(TEXT("zoom")) ? std::string("zoom") : Host::ToStd(Event));
			}
			Recorder->Events.Empty();
			return Kinds;
		}

		bool Agree()
		{
			const FWidgetTransform& Transform = Content->GetRenderTransform();
			const std::string Events = TakeKinds();
			const std::string Expected = MoveTemp(Model.Events);
			Model.Events.clear();
			EXPECT_EQ(Events, Expected) << History;
			EXPECT_TRUE(Transform.Translation.Equals(Model.Translation, 0.01)) << Print(Transform.Translation) << " for " << Print(Model.Translation) << History;
			EXPECT_NEAR(Transform.Scale.X, Model.Scale, 1.0e-4) << History;
			EXPECT_EQ(Transform.Scale.X, Transform.Scale.Y);
			EXPECT_NEAR(Area->GetZoomValue(), Model.TargetScale, 1.0e-4) << History;
			EXPECT_EQ(GetTimers().GetNumTimers(), Model.bEasing ? 1 : 0) << History;
			// The next steps start from the same figures: rounding shall not add up.
			Model.Translation = Transform.Translation;
			Model.Scale = Transform.Scale.X;
			return !HasFailure();
		}

		FZoomModel Model;
		UHxZoomyArea* Area = nullptr;
		UHxBorder* Content = nullptr;
	};

	TEST_P(FHxZoomyAreaModelTest, AnyInputLeadsToWhatIsPromised)
	{
		ShowArea();
		for (int32 Step = 0; Step < 400; ++Step)
		{
			DoAnyStep();
			ASSERT_TRUE(Agree());
		}
	}

	INSTANTIATE_TEST_SUITE_P(Seeds, FHxZoomyAreaModelTest, testing::Range(0, 20));
}
