#include "HxZoomyAreaTest.h"

#include "KitReflection.h"
#include "Layout/Children.h"
#include "Widgets/HxButton.h"

using namespace KitReflection;

namespace
{
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
}
