#include "HxAreaTest.h"

#include "Components/CanvasPanel.h"
#include "Components/CanvasPanelSlot.h"
#include "GenericPlatform/ICursor.h"
#include "KitReflection.h"
#include "UObject/GarbageCollection.h"
#include "Widgets/HxBorder.h"
#include "Widgets/HxButton.h"
#include "Widgets/HxZoomyArea.h"

namespace
{
	using namespace KitReflection;

	/** A cursor that is elsewhere than the events say. */
	class FFixedCursor final : public ICursor
	{
	public:
		virtual FVector2D GetPosition() const override { return Position; }
		virtual void SetPosition(const int32 X, const int32 Y) override { Position = FVector2D(X, Y); }
		virtual void SetType(const EMouseCursor::Type InNewCursor) override { Type = InNewCursor; }
		virtual EMouseCursor::Type GetType() const override { return Type; }
		virtual void Show(bool) override {}

		FVector2D Position = FVector2D::ZeroVector;

	private:
		EMouseCursor::Type Type = EMouseCursor::Default;
	};

	/** An area of 400 x 300 at (100, 100) with a border in it. */
	class FHxZoomyAreaTest : public FHxAreaTest
	{
	protected:
		void MakeArea(bool bSmooth, bool bWithContent = true)
		{
			Area = Make<UHxZoomyArea>(TEXT("Area"));
			Area->bEnableSmoothTransition = bSmooth;
			Area->OnZoomValueChanged.AddDynamic(Recorder.Get(), &UKitTestRecorder::OnZoomValueChanged);
			Area->OnStartCaptureMouse.AddDynamic(Recorder.Get(), &UKitTestRecorder::OnStartCaptureMouse);
			Area->OnStopCaptureMouse.AddDynamic(Recorder.Get(), &UKitTestRecorder::OnStopCaptureMouse);
			if (bWithContent)
			{
				Content = Make<UHxBorder>(TEXT("Content"));
				Area->SetContent(Content);
			}
			Place(*Area, 100.0, 100.0, FVector2D(400.0, 300.0));
		}

		void ShowArea(bool bSmooth, bool bWithContent = true)
		{
			MakeArea(bSmooth, bWithContent);
			Show();
			MoveMouse(Middle);
		}

		FVector2D GetTranslation() const { return Content->GetRenderTransform().Translation; }
		double GetScale() const { return Content->GetRenderTransform().Scale.X; }

		/** One step of the easing, as the formula has it. */
		static double Ease(double From, double To, float Speed = 5.0f) { return From + (To - From) * FMath::Clamp(0.01f * Speed, 0.0f, 1.0f); }

		const FVector2D Middle = FVector2D(300.0, 250.0);
		UHxZoomyArea* Area = nullptr;
		UHxBorder* Content = nullptr;
	};

	// What designers and blueprints see.

	TEST_F(FHxZoomyAreaTest, PropertiesStandInTheirOrderWithTheirTypes)
	{
		const UClass* Class = UHxZoomyArea::StaticClass();
		EXPECT_EQ(Class->GetSuperClass(), UContentWidget::StaticClass());
		EXPECT_EQ(ListNames(Class), "bEnableSmoothTransition SmoothTransitionSpeed ZoomStep ZoomMinMax OnZoomValueChanged OnStartCaptureMouse OnStopCaptureMouse");
		EXPECT_EQ(ListOutsideCategory(Class, TEXT("HxZoomyArea")), "");
		EXPECT_EQ(GetType(Class, TEXT("bEnableSmoothTransition")), "bool");
		EXPECT_EQ(GetType(Class, TEXT("SmoothTransitionSpeed")), "float");
		EXPECT_EQ(GetType(Class, TEXT("ZoomStep")), "float");
		EXPECT_EQ(GetType(Class, TEXT("ZoomMinMax")), "FVector2D");
		for (const TCHAR* Name : { TEXT("bEnableSmoothTransition"), TEXT("SmoothTransitionSpeed"), TEXT("ZoomStep"), TEXT("ZoomMinMax") })
		{
			EXPECT_TRUE(GetMember(Class, Name).HasAllPropertyFlags(CPF_Edit | CPF_BlueprintVisible)) << Host::ToStd(FString(Name));
		}
	}

	TEST_F(FHxZoomyAreaTest, Defaults)
	{
		const UHxZoomyArea* Default = GetDefault<UHxZoomyArea>();
		EXPECT_TRUE(Default->bEnableSmoothTransition);
		EXPECT_EQ(Default->SmoothTransitionSpeed, 5.0f);
		EXPECT_EQ(Default->ZoomStep, 0.1f);
		EXPECT_EQ(Default->ZoomMinMax, FVector2D(0.3, 5.0));
		EXPECT_EQ(Default->GetClipping(), EWidgetClipping::ClipToBounds);
		EXPECT_EQ(Default->GetZoomValue(), 1.0f);
	}

	TEST_F(FHxZoomyAreaTest, FunctionsAndEventsAreThoseThatBlueprintsUse)
	{
		const UClass* Class = UHxZoomyArea::StaticClass();
		EXPECT_EQ(Describe(Class, TEXT("GetZoomValue")), "pure const float GetZoomValue() in HxZoomyArea");
		EXPECT_EQ(Describe(Class, TEXT("SetZoomValue")), "callable void SetZoomValue(float NewZoom) in HxZoomyArea");
		for (const char* Name : { "ZoomIn", "ZoomOut", "ResetPosition", "ResetScale", "ResetTransformation" })
		{
			EXPECT_EQ(Describe(Class, UTF8_TO_TCHAR(Name)), "callable void " + std::string(Name) + "() in HxZoomyArea");
		}
		EXPECT_EQ(DescribeEvent(Class, TEXT("OnZoomValueChanged")), "float ZoomValue");
		EXPECT_EQ(DescribeEvent(Class, TEXT("OnStartCaptureMouse")), "");
		EXPECT_EQ(DescribeEvent(Class, TEXT("OnStopCaptureMouse")), "");
		for (const TCHAR* Name : { TEXT("OnZoomValueChanged"), TEXT("OnStartCaptureMouse"), TEXT("OnStopCaptureMouse") })
		{
			EXPECT_TRUE(GetMember(Class, Name).HasAnyPropertyFlags(CPF_BlueprintAssignable));
		}
	}

	TEST_F(FHxZoomyAreaTest, PaletteListsItUnderTheProductsHeading)
	{
		EXPECT_EQ(DescribeText(Make<UHxZoomyArea>()->GetPaletteCategory()), "HalvexWidget/HalvexWidget: Halvex Widget");
	}

	TEST_F(FHxZoomyAreaTest, SlateSideIsABoxWithTheContentInIt)
	{
		ShowArea(false);
		const TSharedPtr<SWidget> Root = Area->GetCachedWidget();
		ASSERT_TRUE(Root);
		EXPECT_EQ(Root->GetType(), FName(TEXT("SBoxWithWheel")));
		EXPECT_EQ(Root->GetChildren()->GetChildAt(0), Content->GetCachedWidget());
		EXPECT_EQ(Root->GetClipping(), EWidgetClipping::ClipToBounds);
	}

	TEST_F(FHxZoomyAreaTest, SlateSideGoesWhenItIsReleased)
	{
		ShowArea(false);
		const TWeakPtr<SWidget> Root = Area->GetCachedWidget();
		Area->RemoveFromParent();
		Settle();
		EXPECT_FALSE(Root.IsValid());
	}

	TEST_F(FHxZoomyAreaTest, ContentSetWhileItIsShownAppearsWhenItIsBuiltAnew)
	{
		ShowArea(false, false);
		Content = Make<UHxBorder>();
		Area->SetContent(Content);
		Settle();
		EXPECT_FALSE(Content->GetCachedWidget());
		Screen->RemoveFromParent();
		Show();
		EXPECT_TRUE(Content->GetCachedWidget());
	}

	// The wheel and the zoom.

	TEST_F(FHxZoomyAreaTest, TenNotchesUpGiveTwoAndTheLimitsHold)
	{
		ShowArea(false);
		for (int32 Notch = 1; Notch <= 10; ++Notch)
		{
			EXPECT_TRUE(TurnWheel(1.0f));
			EXPECT_NEAR(GetScale(), 1.0 + 0.1 * Notch, 1.0e-6) << "each adds the same";
		}
		for (int32 Notch = 0; Notch < 40; ++Notch)
		{
			TurnWheel(1.0f);
		}
		EXPECT_EQ(GetScale(), 5.0);
		for (int32 Notch = 0; Notch < 60; ++Notch)
		{
			TurnWheel(-1.0f);
		}
		EXPECT_EQ(GetScale(), 0.3);
		EXPECT_EQ(Content->GetRenderTransform().Scale, FVector2D(0.3, 0.3));
	}

	TEST_F(FHxZoomyAreaTest, NotchIsOneStepHoweverFarTheWheelWent)
	{
		ShowArea(false);
		TurnWheel(7.5f);
		EXPECT_EQ(TakeEvents(), "zoom(1.1)");
		TurnWheel(-0.01f);
		EXPECT_EQ(TakeEvents(), "zoom(1)");
	}

	TEST_F(FHxZoomyAreaTest, WheelThatDidNotTurnZoomsOut)
	{
		ShowArea(false);
		EXPECT_TRUE(TurnWheel(0.0f));
		EXPECT_EQ(TakeEvents(), "zoom(0.9)");
	}

	TEST_F(FHxZoomyAreaTest, WheelLeavesAnAreaWithoutContentAlone)
	{
		ShowArea(false, false);
		EXPECT_FALSE(TurnWheel(1.0f));
		EXPECT_EQ(TakeEvents(), "");
	}

	TEST_F(FHxZoomyAreaTest, WheelGoesToTheAreaThroughItsContent)
	{
		MakeArea(false);
		UHxButton* Button = Make<UHxButton>();
		Content->SetContent(Button);
		Show();
		MoveMouse(Driver.GetMiddle(*Button));
		EXPECT_TRUE(Button->IsHovered());
		EXPECT_TRUE(TurnWheel(1.0f));
		EXPECT_EQ(TakeEvents(), "zoom(1.1)");
	}

	TEST_F(FHxZoomyAreaTest, ZoomIsHeldWithinTheLimitsAndAlwaysTold)
	{
		ShowArea(false);
		Area->SetZoomValue(7.0f);
		EXPECT_EQ(Area->GetZoomValue(), 5.0f);
		EXPECT_EQ(TakeEvents(), "zoom(5)");
		Area->SetZoomValue(7.0f);
		EXPECT_EQ(TakeEvents(), "zoom(5)") << "also when nothing changes";
		Area->SetZoomValue(-1.0f);
		EXPECT_EQ(TakeEvents(), "zoom(0.3)");
		EXPECT_EQ(GetScale(), 0.3);
	}

	TEST_F(FHxZoomyAreaTest, MinimumWinsOverAMaximumBelowIt)
	{
		ShowArea(false);
		Area->ZoomMinMax = FVector2D(2.0, 1.0);
		for (const float Zoom : { 0.5f, 1.0f, 1.5f, 2.0f, 9.0f })
		{
			Area->SetZoomValue(Zoom);
			EXPECT_EQ(Area->GetZoomValue(), 2.0f) << Zoom;
		}
		EXPECT_EQ(TakeEvents(), "zoom(2) zoom(2) zoom(2) zoom(2) zoom(2)");
	}

	TEST_F(FHxZoomyAreaTest, ContentIsZoomedBeforeItIsTold)
	{
		ShowArea(false);
		Recorder->Probe = [this] { return FString::Printf(TEXT("%g,%g"), GetScale(), Area->GetZoomValue()); };
		Area->SetZoomValue(2.0f);
		EXPECT_EQ(TakeEvents(), "zoom(2)|2,2");
	}

	TEST_F(FHxZoomyAreaTest, StepsGoFromTheScaleOfTheContent)
	{
		ShowArea(false);
		Area->ZoomStep = 0.25f;
		Content->SetRenderScale(FVector2D(2.0, 3.0));
		Area->ZoomIn();
		EXPECT_EQ(Content->GetRenderTransform().Scale, FVector2D(2.25, 2.25)) << "both sides follow the first";
		Area->ZoomOut();
		Area->ZoomOut();
		EXPECT_EQ(GetScale(), 1.75);
		EXPECT_EQ(TakeEvents(), "zoom(2.25) zoom(2) zoom(1.75)");
	}

	TEST_F(FHxZoomyAreaTest, ZoomLeavesThePivotOfTheContentInPlace)
	{
		ShowArea(false);
		MoveMouse(FVector2D(110.0, 110.0));
		const FVector2D Size(Content->GetCachedGeometry().GetLocalSize());
		Area->SetZoomValue(2.0f);
		Settle();
		EXPECT_EQ(Driver.GetMiddle(*Content), Middle) << "not what is under the mouse";
		EXPECT_EQ(FVector2D(Content->GetCachedGeometry().GetLocalSize()), Size) << "the layout stays";
		Content->SetRenderTransformPivot(FVector2D(0.0, 0.0));
		Settle();
		EXPECT_EQ(FVector2D(Content->GetCachedGeometry().LocalToAbsolute(FVector2D(0.0, 0.0))), FVector2D(100.0, 100.0));
		EXPECT_EQ(Driver.GetMiddle(*Content), FVector2D(500.0, 400.0));
	}

	TEST_F(FHxZoomyAreaTest, ZoomOfAnAreaWithoutContentIsKeptForGetters)
	{
		ShowArea(false, false);
		Area->SetZoomValue(3.0f);
		Area->ZoomIn();
		Area->ResetPosition();
		EXPECT_EQ(Area->GetZoomValue(), 3.0f);
		EXPECT_EQ(TakeEvents(), "zoom(3)");
	}

	TEST_F(FHxZoomyAreaTest, ResetsGoBackToTheDefaults)
	{
		ShowArea(false);
		Content->SetRenderTranslation(FVector2D(30.0, 40.0));
		Area->SetZoomValue(3.0f);
		Area->ResetScale();
		EXPECT_EQ(GetScale(), 1.0);
		EXPECT_EQ(Print(GetTranslation()), "30 40");
		Area->SetZoomValue(3.0f);
		Area->ResetPosition();
		EXPECT_EQ(Print(GetTranslation()), "0 0");
		EXPECT_EQ(GetScale(), 3.0);
		Content->SetRenderTranslation(FVector2D(30.0, 40.0));
		TakeEvents();
		Area->ResetTransformation();
		EXPECT_EQ(Print(GetTranslation()), "0 0");
		EXPECT_EQ(GetScale(), 1.0);
		EXPECT_EQ(TakeEvents(), "zoom(1)");
	}

	// Dragging.

	TEST_F(FHxZoomyAreaTest, DragMovesTheContentByAsMuch)
	{
		ShowArea(false);
		EXPECT_TRUE(Press(Middle));
		EXPECT_TRUE(Area->HasMouseCapture());
		EXPECT_TRUE(MoveMouse(Middle + FVector2D(100.0, 0.0)));
		EXPECT_EQ(GetTranslation(), FVector2D(100.0, 0.0));
		EXPECT_TRUE(MoveMouse(Middle + FVector2D(-30.0, 20.0)));
		EXPECT_EQ(GetTranslation(), FVector2D(-30.0, 20.0));
		EXPECT_TRUE(Release());
		EXPECT_FALSE(IsMouseCaptured());
		EXPECT_FALSE(MoveMouse(Middle));
		EXPECT_EQ(GetTranslation(), FVector2D(-30.0, 20.0));
		EXPECT_EQ(TakeEvents(), "start stop");
	}

	TEST_F(FHxZoomyAreaTest, DragGoesOnFromWhereTheContentIs)
	{
		ShowArea(false);
		PressAndMove(Middle, Middle + FVector2D(40.0, 10.0));
		Release();
		PressAndMove(Middle + FVector2D(-90.0, 50.0), Middle + FVector2D(-80.0, 55.0));
		Release();
		EXPECT_EQ(GetTranslation(), FVector2D(50.0, 15.0));
	}

	TEST_F(FHxZoomyAreaTest, EveryButtonDrags)
	{
		ShowArea(false);
		for (const FKey& Button : { EKeys::LeftMouseButton, EKeys::RightMouseButton, EKeys::MiddleMouseButton })
		{
			Press(Middle, Button);
			MoveMouse(Middle + FVector2D(10.0, 0.0));
			Release(Button);
		}
		EXPECT_EQ(GetTranslation(), FVector2D(30.0, 0.0));
		EXPECT_EQ(TakeEvents(), "start stop start stop start stop");
	}

	TEST_F(FHxZoomyAreaTest, QuickSecondPressDragsToo)
	{
		ShowArea(false);
		Press(Middle);
		Release();
		PressAndMove(Middle, Middle + FVector2D(25.0, 0.0));
		Release();
		EXPECT_EQ(GetTranslation(), FVector2D(25.0, 0.0));
		EXPECT_EQ(TakeEvents(), "start stop start stop");
	}

	TEST_F(FHxZoomyAreaTest, MovesBetweenTwoFramesAllCount)
	{
		ShowArea(false);
		Press(Middle);
		for (int32 Step = 1; Step <= 20; ++Step)
		{
			MoveMouse(Middle + FVector2D(3.0 * Step, -Step));
			EXPECT_EQ(GetTranslation(), FVector2D(3.0 * Step, -Step));
		}
		Release();
	}

	TEST_F(FHxZoomyAreaTest, DragGoesOnOutsideAndHasNoLimits)
	{
		ShowArea(false);
		EXPECT_FALSE(GetPainted(*Area).IsEmpty());
		PressAndMove(Middle, FVector2D(799.0, 599.0));
		EXPECT_EQ(GetTranslation(), FVector2D(499.0, 349.0));
		Settle();
		// The content is wholly out of the area, and outside of it nothing of it is painted.
		for (const Host::FDrawElement& Element : GetPainted(*Content))
		{
			EXPECT_TRUE(Element.Bounds.IsEmpty());
		}
		Release();
		EXPECT_EQ(TakeEvents(), "start stop");
	}

	TEST_F(FHxZoomyAreaTest, ButtonsInTheContentAreClickedNotDragged)
	{
		MakeArea(false);
		UHxButton* Button = Make<UHxButton>(TEXT("Inside"));
		Button->ButtonID = TEXT("ID");
		Listen(*Button);
		Content->SetContent(Button);
		Show();
		Press(Driver.GetMiddle(*Button));
		Release();
		EXPECT_EQ(TakeEvents(), "click(ID)");
		EXPECT_EQ(GetTranslation(), FVector2D(0.0, 0.0));
	}

	TEST_F(FHxZoomyAreaTest, MovesWithoutAPressAreLeftAlone)
	{
		ShowArea(false);
		EXPECT_FALSE(MoveMouse(Middle + FVector2D(30.0, 0.0)));
		EXPECT_EQ(GetTranslation(), FVector2D(0.0, 0.0));
	}

	TEST_F(FHxZoomyAreaTest, AreaWithoutContentTakesThePressAndLeavesTheMoves)
	{
		ShowArea(false, false);
		EXPECT_TRUE(Press(Middle));
		EXPECT_TRUE(Area->HasMouseCapture());
		EXPECT_FALSE(MoveMouse(Middle + FVector2D(30.0, 0.0)));
		EXPECT_TRUE(Release());
		EXPECT_EQ(TakeEvents(), "start stop");
	}

	TEST_F(FHxZoomyAreaTest, ReleaseWithoutAPressIsTold)
	{
		ShowArea(false);
		EXPECT_TRUE(Release());
		EXPECT_EQ(TakeEvents(), "stop");
	}

	TEST_F(FHxZoomyAreaTest, OwnTranslationOfTheAreaIsAddedOnPurpose)
	{
		ShowArea(false);
		Area->SetRenderTranslation(FVector2D(7.0, -5.0));
		PressAndMove(Middle, Middle + FVector2D(100.0, 0.0));
		EXPECT_EQ(GetTranslation(), FVector2D(107.0, -5.0));
		Release();
	}

	TEST_F(FHxZoomyAreaTest, MouseIsWhereThePlatformHasItNotWhereTheEventSays)
	{
		ShowArea(false);
		const TSharedRef<FFixedCursor> Cursor = MakeShared<FFixedCursor>();
		const TSharedPtr<ICursor> Before = FSlateApplication::Get().GetPlatformCursor();
		FSlateApplication::Get().SetPlatformCursor(Cursor);
		Cursor->Position = FVector2D(10.0, 20.0);
		Press(Middle);
		Cursor->Position = FVector2D(15.0, 40.0);
		MoveMouse(Middle + FVector2D(100.0, 0.0));
		EXPECT_EQ(GetTranslation(), FVector2D(5.0, 20.0));
		Release();
		FSlateApplication::Get().SetPlatformCursor(Before.ToSharedRef());
	}

	TEST_F(FHxZoomyAreaTest, DragIsInUnitsOfTheAreaAtTwoPixelsAUnit)
	{
		MakeArea(false);
		Area->RemoveFromParent();
		Place(*Area, 50.0, 50.0, FVector2D(300.0, 200.0));
		Show();
		UseScale(2.0f);
		PressAndMove(FVector2D(200.0, 200.0), FVector2D(300.0, 150.0));
		EXPECT_EQ(GetTranslation(), FVector2D(50.0, -25.0));
		Release();
	}

	TEST_F(FHxZoomyAreaTest, TurnedAndScaledParentsAreUndone)
	{
		MakeArea(false);
		UCanvasPanel* Outer = Make<UCanvasPanel>();
		UCanvasPanel* Inner = Make<UCanvasPanel>();
		Area->RemoveFromParent();
		UCanvasPanelSlot* AreaSlot = Inner->AddChildToCanvas(Area);
		AreaSlot->SetPosition(FVector2D(20.0, 30.0));
		AreaSlot->SetSize(FVector2D(200.0, 200.0));
		UCanvasPanelSlot* InnerSlot = Outer->AddChildToCanvas(Inner);
		InnerSlot->SetSize(FVector2D(300.0, 300.0));
		Place(*Outer, 200.0, 100.0, FVector2D(400.0, 400.0));
		Outer->SetRenderTransformAngle(90.0f);
		Inner->SetRenderScale(FVector2D(2.0, 0.5));
		Inner->SetRenderTranslation(FVector2D(15.0, -10.0));
		Show();
		const FVector2D Start = Driver.GetMiddle(*Area);
		PressAndMove(Start, Start + FVector2D(30.0, 80.0));
		// A quarter turn clockwise makes down out of right; then each side has a scale of its own.
		EXPECT_EQ(Print(GetTranslation()), "40 -60");
		Release();
	}

	TEST_F(FHxZoomyAreaTest, OwnTurnAndScaleOfTheAreaAreUndone)
	{
		ShowArea(false);
		Area->SetRenderTransformAngle(180.0f);
		Area->SetRenderScale(FVector2D(0.5, 0.5));
		PressAndMove(Middle, Middle + FVector2D(20.0, 10.0));
		EXPECT_EQ(Print(GetTranslation()), "-40 -20");
		Release();
	}

	TEST_F(FHxZoomyAreaTest, ZoomOfTheContentDoesNotChangeTheDrag)
	{
		ShowArea(false);
		Area->SetZoomValue(3.0f);
		PressAndMove(Middle, Middle + FVector2D(60.0, 30.0));
		EXPECT_EQ(GetTranslation(), FVector2D(60.0, 30.0));
		Release();
	}

	TEST_F(FHxZoomyAreaTest, ListenerMayTakeTheAreaAwayWhenItIsPressed)
	{
		ShowArea(false);
		Recorder->Probe = [this]
		{
			Area->RemoveFromParent();
			return FString(TEXT("gone"));
		};
		Press(Middle);
		EXPECT_EQ(TakeEvents(), "start|gone");
		Recorder->Probe = nullptr;
		Settle();
		EXPECT_FALSE(IsMouseCaptured());
		EXPECT_FALSE(MoveMouse(Middle + FVector2D(10.0, 0.0)));
		Release();
	}

	TEST_F(FHxZoomyAreaTest, AreaThatGoesDuringADragLetsTheMouseGo)
	{
		ShowArea(false);
		PressAndMove(Middle, Middle + FVector2D(10.0, 0.0));
		const TWeakObjectPtr<UHxZoomyArea> Weak = Area;
		StartScreen();
		Recorder->Take();
		CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
		EXPECT_FALSE(Weak.IsValid());
		MoveMouse(Middle + FVector2D(20.0, 0.0));
		Release();
		Settle();
		EXPECT_FALSE(IsMouseCaptured());
		EXPECT_EQ(TakeEvents(), "");
	}

	// Easing.

	TEST_F(FHxZoomyAreaTest, EasedZoomFollowsTheFormulaStepByStep)
	{
		ShowArea(true);
		Area->SetZoomValue(2.0f);
		EXPECT_EQ(GetScale(), 1.0);
		double Expected = 1.0;
		int32 Steps = 0;
		for (; GetTimers().GetNumTimers() > 0 && Steps < 1000; ++Steps)
		{
			Frame(0.01);
			// The distance is that of both sides together.
			Expected = 2.0 * FMath::Square(2.0 - Expected) < 1.0e-4 ? 2.0 : Ease(Expected, 2.0);
			ASSERT_NEAR(GetScale(), Expected, 1.0e-9) << "step " << Steps;
			EXPECT_EQ(Content->GetRenderTransform().Scale.Y, GetScale());
		}
		EXPECT_EQ(GetScale(), 2.0) << "the last step goes all the way";
		EXPECT_EQ(Steps, 98) << "after 97 steps of 5 % the distance, from the square root of two, is below 0.01";
	}

	TEST_F(FHxZoomyAreaTest, EasedDragFollowsTheFormulaStepByStep)
	{
		ShowArea(true);
		PressAndMove(Middle, Middle + FVector2D(100.0, -40.0));
		EXPECT_EQ(GetTranslation(), FVector2D(0.0, 0.0));
		FVector2D Expected(0.0, 0.0);
		const FVector2D Target(100.0, -40.0);
		for (int32 Step = 0; Step < 400 && GetTimers().GetNumTimers() > 0; ++Step)
		{
			Frame(0.01);
			const bool bSnaps = FVector2D::DistSquared(Expected, Target) < 1.0e-4;
			Expected = bSnaps ? Target : FVector2D(Ease(Expected.X, Target.X), Ease(Expected.Y, Target.Y));
			ASSERT_TRUE(GetTranslation().Equals(Expected, 1.0e-9)) << "step " << Step;
		}
		EXPECT_EQ(GetTranslation(), Target);
		EXPECT_EQ(GetTimers().GetNumTimers(), 0);
		Release();
	}

	TEST_F(FHxZoomyAreaTest, StepsAreOfAHundredthOfASecondHoweverLongTheFrame)
	{
		ShowArea(true);
		Area->SetZoomValue(2.0f);
		Frame(0.105);
		double Expected = 1.0;
		for (int32 Step = 0; Step < 10; ++Step)
		{
			Expected = Ease(Expected, 2.0);
		}
		EXPECT_NEAR(GetScale(), Expected, 1.0e-9);
		Frame(0.003);
		EXPECT_NEAR(GetScale(), Expected, 1.0e-9);
		Frame(0.003);
		EXPECT_NEAR(GetScale(), Ease(Expected, 2.0), 1.0e-9);
		Frame(10.0);
		EXPECT_EQ(GetScale(), 2.0);
		EXPECT_EQ(GetTimers().GetNumTimers(), 0) << "a frame longer than the easing ends it";
	}

	TEST_F(FHxZoomyAreaTest, SpeedRulesTheStep)
	{
		ShowArea(true);
		Area->SmoothTransitionSpeed = 20.0f;
		Area->SetZoomValue(2.0f);
		Frame(0.01);
		EXPECT_NEAR(GetScale(), 1.2, 1.0e-6);
		Area->SmoothTransitionSpeed = 1000.0f;
		Frame(0.01);
		EXPECT_EQ(GetScale(), 2.0) << "not beyond the target";
		for (const float Speed : { 0.0f, -3.0f })
		{
			Area->SetZoomValue(1.0f);
			Frame(0.01);
			Area->SmoothTransitionSpeed = Speed;
			Area->SetZoomValue(4.0f);
			Frame(0.01);
			EXPECT_EQ(GetScale(), 4.0) << "no speed goes all the way at once";
			EXPECT_EQ(GetTimers().GetNumTimers(), 0);
		}
	}

	TEST_F(FHxZoomyAreaTest, ZoomAsksGiveTheTargetAndStepsGoFromTheMoment)
	{
		ShowArea(true);
		Area->SetZoomValue(2.0f);
		EXPECT_EQ(Area->GetZoomValue(), 2.0f);
		EXPECT_EQ(TakeEvents(), "zoom(2)") << "told at once";
		Frame(0.01);
		EXPECT_EQ(Area->GetZoomValue(), 2.0f);
		Area->ZoomIn();
		EXPECT_EQ(TakeEvents(), "zoom(1.15)") << "1.05 of the moment and the step";
		Area->SetZoomValue(2.0f);
		Frame(0.01);
		TakeEvents();
		EXPECT_TRUE(TurnWheel(-1.0f));
		EXPECT_EQ(TakeEvents(), "zoom(0.9975)") << "the wheel too";
	}

	TEST_F(FHxZoomyAreaTest, QuickNotchesAddUpToLessThanSlowOnes)
	{
		ShowArea(true);
		for (int32 Notch = 0; Notch < 5; ++Notch)
		{
			TurnWheel(1.0f);
		}
		EXPECT_EQ(TakeEvents(), "zoom(1.1) zoom(1.1) zoom(1.1) zoom(1.1) zoom(1.1)");
		Settle();
		TurnWheel(1.0f);
		Settle();
		EXPECT_NEAR(GetScale(), 1.2, 1.0e-6);
	}

	TEST_F(FHxZoomyAreaTest, OneTimerServesZoomAndDrag)
	{
		ShowArea(true);
		EXPECT_EQ(GetTimers().GetNumTimers(), 0);
		TurnWheel(1.0f);
		TurnWheel(1.0f);
		PressAndMove(Middle, Middle + FVector2D(10.0, 0.0));
		MoveMouse(Middle + FVector2D(20.0, 0.0));
		EXPECT_EQ(GetTimers().GetNumTimers(), 1);
		Frame(0.01);
		EXPECT_NEAR(GetTranslation().X, 1.0, 1.0e-6);
		EXPECT_NEAR(GetScale(), 1.005, 1.0e-6);
		Release();
		Settle();
		EXPECT_EQ(GetTranslation(), FVector2D(20.0, 0.0)) << "the release does not end the easing";
		EXPECT_EQ(GetTimers().GetNumTimers(), 0);
	}

	TEST_F(FHxZoomyAreaTest, EasingLeavesShearAndAngleAlone)
	{
		ShowArea(true);
		Content->SetRenderTransformAngle(30.0f);
		Content->SetRenderShear(FVector2D(0.1, 0.2));
		Area->SetZoomValue(2.0f);
		Settle();
		EXPECT_EQ(Content->GetRenderTransformAngle(), 30.0f);
		EXPECT_EQ(Content->GetRenderTransform().Shear, FVector2D(0.1, 0.2));
		EXPECT_EQ(GetScale(), 2.0);
	}

	TEST_F(FHxZoomyAreaTest, ResetPositionIsAtOnceAndTheNextEasedZoomGoesBackToTheDrag)
	{
		ShowArea(true);
		PressAndMove(Middle, Middle + FVector2D(50.0, 0.0));
		Release();
		Settle();
		Area->ResetPosition();
		EXPECT_EQ(GetTranslation(), FVector2D(0.0, 0.0));
		Settle();
		EXPECT_EQ(GetTranslation(), FVector2D(0.0, 0.0));
		Area->ZoomIn();
		Settle();
		EXPECT_EQ(GetTranslation(), FVector2D(50.0, 0.0));
		Area->ResetTransformation();
		EXPECT_EQ(GetTranslation(), FVector2D(0.0, 0.0));
		Settle();
		EXPECT_EQ(GetTranslation(), FVector2D(50.0, 0.0)) << "its own zoom goes back too";
		EXPECT_EQ(GetScale(), 1.0);
	}

	TEST_F(FHxZoomyAreaTest, TargetsOutliveARebuild)
	{
		ShowArea(true);
		PressAndMove(Middle, Middle + FVector2D(50.0, 0.0));
		Release();
		Area->SetZoomValue(3.0f);
		Settle();
		Screen->RemoveFromParent();
		Show();
		EXPECT_EQ(Area->GetZoomValue(), 3.0f);
		EXPECT_EQ(GetScale(), 3.0);
		Area->ResetPosition();
		Area->SetZoomValue(3.0f);
		Settle();
		EXPECT_EQ(GetTranslation(), FVector2D(50.0, 0.0));
	}

	TEST_F(FHxZoomyAreaTest, EasingGoesOnWhileTheScreenIsAway)
	{
		ShowArea(true);
		Area->SetZoomValue(2.0f);
		Screen->RemoveFromParent();
		Settle();
		EXPECT_EQ(GetScale(), 2.0);
		EXPECT_EQ(GetTimers().GetNumTimers(), 0);
	}

	TEST_F(FHxZoomyAreaTest, EasingOfAnAreaThatIsGoneEndsSilently)
	{
		ShowArea(true);
		Area->SetZoomValue(2.0f);
		const TWeakObjectPtr<UHxZoomyArea> Weak = Area;
		StartScreen();
		CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
		EXPECT_FALSE(Weak.IsValid());
		Frame(0.1);
		EXPECT_EQ(GetTimers().GetNumTimers(), 0);
	}

	TEST_F(FHxZoomyAreaTest, EasingEndsWithItsContent)
	{
		ShowArea(true);
		Area->SetZoomValue(2.0f);
		Frame(0.01);
		Area->SetContent(nullptr);
		Frame(0.05);
		EXPECT_EQ(GetTimers().GetNumTimers(), 0);
	}

	TEST_F(FHxZoomyAreaTest, NothingRunsOnceTheTargetsAreReached)
	{
		ShowArea(true);
		Area->SetZoomValue(2.0f);
		Settle();
		Area->SetZoomValue(2.0f);
		EXPECT_EQ(GetTimers().GetNumTimers(), 1);
		Frame(0.01);
		EXPECT_EQ(GetTimers().GetNumTimers(), 0) << "the first step finds the content there";
	}

	TEST_F(FHxZoomyAreaTest, SmoothingTurnedOffActsAtOnce)
	{
		ShowArea(true);
		Area->SetZoomValue(2.0f);
		Frame(0.01);
		Area->bEnableSmoothTransition = false;
		Area->SetZoomValue(4.0f);
		EXPECT_EQ(GetScale(), 4.0);
		Settle();
		EXPECT_EQ(GetScale(), 4.0);
		EXPECT_EQ(GetTimers().GetNumTimers(), 0);
	}

	TEST_F(FHxZoomyAreaTest, AreaOutsideAScreenDoesNotEase)
	{
		UHxZoomyArea* Alone = NewObject<UHxZoomyArea>();
		Alone->SetContent(NewObject<UHxBorder>());
		Alone->SetZoomValue(2.0f);
		EXPECT_EQ(Alone->GetZoomValue(), 2.0f);
		EXPECT_EQ(GetTimers().GetNumTimers(), 0);
	}
}
