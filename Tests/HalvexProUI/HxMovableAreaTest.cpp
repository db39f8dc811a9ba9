#include "HxAreaTest.h"

#include "Components/CanvasPanel.h"
#include "Components/CanvasPanelSlot.h"
#include "Host/PropertyEdit.h"
#include "Host/SlateLoop.h"
#include "KitReflection.h"
#include "UObject/GarbageCollection.h"
#include "Widgets/HxBorder.h"
#include "Widgets/HxButton.h"
#include "Widgets/HxMovableArea.h"
#include "Widgets/Layout/SBorder.h"

namespace
{
	using namespace KitReflection;

	/** An area of 300 x 200 at (100, 100) with a border in it. */
	class FHxMovableAreaTest : public FHxAreaTest
	{
	protected:
		void MakeArea()
		{
			Area = Make<UHxMovableArea>(TEXT("Area"));
			Area->OnStartCaptureMouse.AddDynamic(Recorder.Get(), &UKitTestRecorder::OnStartCaptureMouse);
			Area->OnStopCaptureMouse.AddDynamic(Recorder.Get(), &UKitTestRecorder::OnStopCaptureMouse);
			Content = Make<UHxBorder>(TEXT("Content"));
			Area->SetContent(Content);
			Place(*Area, 100.0, 100.0, FVector2D(300.0, 200.0));
		}

		void ShowArea()
		{
			MakeArea();
			Show();
		}

		FVector2D GetTranslation() const { return Area->GetRenderTransform().Translation; }

		/** Slate's parts of the area: content, grip and highlight, in their drawing order. */
		TSharedRef<SWidget> GetPart(int32 Index) const { return Area->GetCachedWidget()->GetChildren()->GetChildAt(Index); }
		TSharedRef<SWidget> GetGrip() const { return GetPart(1)->GetChildren()->GetChildAt(0); }

		std::string GetPlace(const SWidget& Widget) const
		{
			const FVector2D Origin(Area->GetCachedGeometry().LocalToAbsolute(FVector2D(0.0, 0.0)));
			const FVector2D Size(Widget.GetCachedGeometry().GetLocalSize());
			return Print(FVector2D(Widget.GetCachedGeometry().LocalToAbsolute(FVector2D(0.0, 0.0))) - Origin) + " " + Print(Size);
		}

		bool IsHighlighted() const { return GetPart(2)->GetVisibility() == EVisibility::HitTestInvisible; }
		bool IsHighlightCollapsed() const { return GetPart(2)->GetVisibility() == EVisibility::Collapsed; }

		void Edit(const TCHAR* Property, const TCHAR* Value)
		{
			FString Error;
			EXPECT_TRUE(Host::FPropertyEdit::SetFromText(Area, Property, Value, Error)) << Host::ToStd(Error);
			Settle();
		}

		const FVector2D Grip = FVector2D(250.0, 110.0);
		UHxMovableArea* Area = nullptr;
		UHxBorder* Content = nullptr;
	};

	// What designers and blueprints see.

	TEST_F(FHxMovableAreaTest, PropertiesStandInTheirOrderWithTheirTypes)
	{
		const UClass* Class = UHxMovableArea::StaticClass();
		EXPECT_EQ(Class->GetSuperClass(), UNamedSlot::StaticClass());
		EXPECT_EQ(ListNames(Class),
			"ClickableZoneHeight bOverlapZone bUseSelectableBorder BrushHighlight bDebugArea bPreviewHighlight BorderBrush OnStartCaptureMouse OnStopCaptureMouse");
		EXPECT_EQ(ListOutsideCategory(Class, TEXT("HxMovableArea")), "bDebugArea");
		EXPECT_EQ(GetMeta(Class, TEXT("bDebugArea"), TEXT("Category")), "HxMovableArea|Debug");
		EXPECT_EQ(GetType(Class, TEXT("ClickableZoneHeight")), "float");
		EXPECT_EQ(GetType(Class, TEXT("BrushHighlight")), "FSlateBrush");
		EXPECT_EQ(GetType(Class, TEXT("BorderBrush")), "FSlateBrush");
		for (const TCHAR* Name : { TEXT("ClickableZoneHeight"), TEXT("bOverlapZone"), TEXT("bUseSelectableBorder"), TEXT("BrushHighlight"), TEXT("bDebugArea"), TEXT("bPreviewHighlight"), TEXT("BorderBrush") })
		{
			EXPECT_TRUE(GetMember(Class, Name).HasAllPropertyFlags(CPF_Edit | CPF_BlueprintVisible));
			EXPECT_FALSE(GetMember(Class, Name).HasAnyPropertyFlags(CPF_BlueprintReadOnly));
		}
	}

	TEST_F(FHxMovableAreaTest, Defaults)
	{
		const UHxMovableArea* Default = GetDefault<UHxMovableArea>();
		EXPECT_EQ(Default->ClickableZoneHeight, 20.0f);
		EXPECT_TRUE(Default->bOverlapZone);
		EXPECT_FALSE(Default->bUseSelectableBorder);
		EXPECT_FALSE(Default->bDebugArea);
		EXPECT_FALSE(Default->bPreviewHighlight);
		for (const FSlateBrush* Brush : { &Default->BrushHighlight, &Default->BorderBrush })
		{
			EXPECT_EQ(Brush->DrawAs.GetValue(), ESlateBrushDrawType::RoundedBox);
			EXPECT_EQ(Brush->TintColor.GetSpecifiedColor(), FLinearColor::Transparent);
			EXPECT_EQ(Brush->OutlineSettings.Color.GetSpecifiedColor(), FLinearColor::White);
			EXPECT_EQ(Brush->OutlineSettings.RoundingType.GetValue(), ESlateBrushRoundingType::FixedRadius);
		}
		EXPECT_EQ(Default->BrushHighlight.OutlineSettings.Width, 1.5f);
		EXPECT_EQ(Default->BrushHighlight.OutlineSettings.CornerRadii, FVector4(0.0, 0.0, 0.0, 1.0)) << "the radii that the engine gives";
		EXPECT_EQ(Default->BorderBrush.OutlineSettings.Width, 1.0f);
		EXPECT_EQ(Default->BorderBrush.OutlineSettings.CornerRadii, FVector4(10.0, 10.0, 10.0, 10.0));
	}

	TEST_F(FHxMovableAreaTest, FunctionsAndEventsAreThoseThatBlueprintsUse)
	{
		const UClass* Class = UHxMovableArea::StaticClass();
		EXPECT_EQ(Describe(Class, TEXT("RestorePosition")), "callable void RestorePosition() in HxMovableArea");
		EXPECT_EQ(Describe(Class, TEXT("SetContentWidget")), "callable void SetContentWidget(UWidget* InContent) in HxMovableArea");
		EXPECT_EQ(Describe(Class, TEXT("SetHighlight")), "callable const void SetHighlight(bool Visible) in HxMovableArea");
		EXPECT_EQ(DescribeEvent(Class, TEXT("OnStartCaptureMouse")), "");
		EXPECT_EQ(DescribeEvent(Class, TEXT("OnStopCaptureMouse")), "");
	}

	TEST_F(FHxMovableAreaTest, PaletteListsItUnderTheProductsHeading)
	{
		EXPECT_EQ(DescribeText(Make<UHxMovableArea>()->GetPaletteCategory()), "HalvexWidget/HalvexWidget: Halvex Widget");
	}

	// What it is built of.

	TEST_F(FHxMovableAreaTest, OverlayHoldsContentGripAndHighlight)
	{
		ShowArea();
		const TSharedPtr<SWidget> Root = Area->GetCachedWidget();
		ASSERT_TRUE(Root);
		EXPECT_EQ(Root->GetType(), FName(TEXT("SOverlay")));
		ASSERT_EQ(Root->GetChildren()->Num(), 3);
		EXPECT_EQ(GetPart(0)->GetType(), FName(TEXT("SBox")));
		EXPECT_EQ(GetPart(0)->GetChildren()->GetChildAt(0), Content->GetCachedWidget());
		EXPECT_EQ(GetPart(1)->GetType(), FName(TEXT("SBox")));
		EXPECT_EQ(GetGrip()->GetType(), FName(TEXT("SBorder")));
		EXPECT_EQ(GetGrip()->GetVisibility(), EVisibility::Visible);
		EXPECT_EQ(StaticCastSharedRef<SBorder>(GetGrip())->GetBorderImage(), &Area->BorderBrush);
		EXPECT_EQ(GetPart(2)->GetType(), FName(TEXT("SBorder")));
		EXPECT_EQ(StaticCastSharedRef<SBorder>(GetPart(2))->GetBorderImage(), &Area->BrushHighlight);
	}

	TEST_F(FHxMovableAreaTest, GripLiesOverTheTopOfTheContent)
	{
		ShowArea();
		EXPECT_EQ(GetPlace(*GetPart(0)), "0 0 300 200");
		EXPECT_EQ(GetPlace(*GetGrip()), "0 0 300 20");
	}

	TEST_F(FHxMovableAreaTest, WithoutTheOverlapContentAndHighlightStartBelowTheGrip)
	{
		MakeArea();
		Area->bOverlapZone = false;
		Area->bUseSelectableBorder = true;
		Area->ClickableZoneHeight = 32.0f;
		Show();
		Press(Grip);
		Settle();
		EXPECT_EQ(GetPlace(*GetPart(0)), "0 32 300 168");
		EXPECT_EQ(GetPlace(*GetGrip()), "0 0 300 32");
		EXPECT_EQ(GetPlace(*GetPart(2)), "0 32 300 168");
		Release();
	}

	TEST_F(FHxMovableAreaTest, HeightOfTheGripFollowsWhenSynchronised)
	{
		ShowArea();
		Area->ClickableZoneHeight = 50.0f;
		Area->SynchronizeProperties();
		Settle();
		EXPECT_EQ(GetPlace(*GetGrip()), "0 0 300 50");
	}

	TEST_F(FHxMovableAreaTest, SynchronisingTakesThePaddingOfTheContentAwayButDoesNotGiveIt)
	{
		MakeArea();
		Area->bOverlapZone = false;
		Area->bUseSelectableBorder = true;
		Show();
		Area->bOverlapZone = true;
		Area->SynchronizeProperties();
		Area->SetHighlight(true);
		Settle();
		EXPECT_EQ(GetPlace(*GetPart(0)), "0 0 300 200");
		EXPECT_EQ(GetPlace(*GetPart(2)), "0 20 300 180") << "that of the highlight stays";
		Area->bOverlapZone = false;
		Area->SynchronizeProperties();
		Settle();
		EXPECT_EQ(GetPlace(*GetPart(0)), "0 0 300 200");
	}

	TEST_F(FHxMovableAreaTest, ContentIsReplaced)
	{
		ShowArea();
		UHxBorder* Other = Make<UHxBorder>();
		Area->SetContentWidget(Other);
		Settle();
		EXPECT_EQ(Area->GetContent(), Other);
		EXPECT_EQ(GetPart(0)->GetChildren()->GetChildAt(0), Other->GetCachedWidget());
		EXPECT_EQ(Content->GetParent(), nullptr);
		Area->SetContentWidget(nullptr);
		Settle();
		EXPECT_EQ(Area->GetContent(), nullptr);
	}

	TEST_F(FHxMovableAreaTest, SlateSideGoesWhenItIsReleased)
	{
		ShowArea();
		const TWeakPtr<SWidget> Root = Area->GetCachedWidget();
		Area->RemoveFromParent();
		Settle();
		EXPECT_FALSE(Root.IsValid());
		Area->SynchronizeProperties();
		Area->RestorePosition();
	}

	TEST_F(FHxMovableAreaTest, CanBeSynchronisedWhenItsOverlayIsGone)
	{
		Area = Make<UHxMovableArea>();
		TSharedPtr<SWidget> Root = Area->TakeWidget();
		Root.Reset();
		// Some of the parts are still held, the slots are not.
		Area->SynchronizeProperties();
		EXPECT_FALSE(Area->GetCachedWidget());
	}

	// The highlight and the faces.

	TEST_F(FHxMovableAreaTest, HighlightShowsWhileItIsDragged)
	{
		MakeArea();
		Area->bUseSelectableBorder = true;
		Show();
		EXPECT_TRUE(IsHighlightCollapsed());
		Press(Grip);
		EXPECT_TRUE(IsHighlighted());
		Settle();
		EXPECT_EQ(GetPlace(*GetPart(2)), "0 0 300 200");
		Release();
		EXPECT_TRUE(IsHighlightCollapsed());
	}

	TEST_F(FHxMovableAreaTest, HighlightThatIsNotUsedNeverShows)
	{
		ShowArea();
		Press(Grip);
		EXPECT_TRUE(IsHighlightCollapsed());
		Release();
		Area->SetHighlight(true);
		EXPECT_TRUE(IsHighlightCollapsed());
		Area->bPreviewHighlight = true;
		Area->SynchronizeProperties();
		EXPECT_TRUE(IsHighlightCollapsed()) << "the preview is for the designer";
	}

	TEST_F(FHxMovableAreaTest, HighlightIsShownAndHiddenByCall)
	{
		MakeArea();
		Area->bUseSelectableBorder = true;
		Show();
		Area->SetHighlight(true);
		EXPECT_TRUE(IsHighlighted());
		Area->SetHighlight(false);
		EXPECT_TRUE(IsHighlightCollapsed());
		Area->SetHighlight(true);
		Area->SynchronizeProperties();
		EXPECT_TRUE(IsHighlightCollapsed()) << "synchronising hides it";
	}

	TEST_F(FHxMovableAreaTest, HighlightTakesNoInput)
	{
		MakeArea();
		Area->bUseSelectableBorder = true;
		UHxButton* Button = Make<UHxButton>(TEXT("Inside"));
		Button->ButtonID = TEXT("ID");
		Listen(*Button);
		Area->SetContent(Button);
		Show();
		Area->SetHighlight(true);
		Settle();
		Press(Driver.GetMiddle(*Button));
		Release();
		EXPECT_EQ(TakeEvents(), "click(ID)");
	}

	TEST_F(FHxMovableAreaTest, OutlineOfTheGripShowsInTheDesignerOnly)
	{
		MakeArea();
		Area->bDebugArea = true;
		Show();
		EXPECT_TRUE(Area->BorderBrush.OutlineSettings.bUseBrushTransparency);
		const auto CountOutlines = [this]
		{
			int32 Count = 0;
			for (const Host::FDrawElement& Element : GetPainted(*Area))
			{
				Count += Element.OutlineWidth > 0.0f && Element.OutlineColour.A > 0 ? 1 : 0;
			}
			return Count;
		};
		EXPECT_EQ(CountOutlines(), 0);
		Screen->RemoveFromParent();
		ShowInDesigner();
		EXPECT_FALSE(Area->BorderBrush.OutlineSettings.bUseBrushTransparency);
		EXPECT_EQ(CountOutlines(), 1);
		Edit(TEXT("bDebugArea"), TEXT("false"));
		EXPECT_TRUE(Area->BorderBrush.OutlineSettings.bUseBrushTransparency);
		EXPECT_EQ(CountOutlines(), 0);
	}

	TEST_F(FHxMovableAreaTest, DesignerShowsTheHighlightOnRequest)
	{
		MakeArea();
		Area->bUseSelectableBorder = true;
		ShowInDesigner();
		EXPECT_TRUE(IsHighlightCollapsed());
		Edit(TEXT("bPreviewHighlight"), TEXT("true"));
		EXPECT_TRUE(IsHighlighted());
		Edit(TEXT("bUseSelectableBorder"), TEXT("false"));
		EXPECT_TRUE(IsHighlightCollapsed());
	}

	TEST_F(FHxMovableAreaTest, EditsOfGripAndOverlapSetThePaddings)
	{
		MakeArea();
		Area->bUseSelectableBorder = true;
		Area->bPreviewHighlight = true;
		ShowInDesigner();
		EXPECT_EQ(GetPlace(*GetPart(0)), "0 0 300 200");
		Edit(TEXT("bOverlapZone"), TEXT("false"));
		EXPECT_EQ(GetPlace(*GetPart(0)), "0 20 300 180");
		EXPECT_EQ(GetPlace(*GetPart(2)), "0 20 300 180");
		Edit(TEXT("ClickableZoneHeight"), TEXT("44"));
		EXPECT_EQ(GetPlace(*GetPart(0)), "0 44 300 156");
		EXPECT_EQ(GetPlace(*GetPart(2)), "0 44 300 156");
		EXPECT_EQ(GetPlace(*GetGrip()), "0 0 300 44");
		Edit(TEXT("bOverlapZone"), TEXT("true"));
		EXPECT_EQ(GetPlace(*GetPart(0)), "0 0 300 200");
		EXPECT_EQ(GetPlace(*GetPart(2)), "0 0 300 200");
	}

	TEST_F(FHxMovableAreaTest, EditsOfOtherPropertiesLeaveThePaddings)
	{
		MakeArea();
		Area->bUseSelectableBorder = true;
		Area->bPreviewHighlight = true;
		ShowInDesigner();
		Area->ClickableZoneHeight = 44.0f;
		Area->bOverlapZone = false;
		Edit(TEXT("bDebugArea"), TEXT("true"));
		EXPECT_EQ(GetPlace(*GetPart(0)), "0 0 300 200");
		EXPECT_EQ(GetPlace(*GetPart(2)), "0 0 300 200");
		EXPECT_EQ(GetPlace(*GetGrip()), "0 0 300 44");
	}

	TEST_F(FHxMovableAreaTest, EditsOfAnAreaThatIsNotShownAreKept)
	{
		MakeArea();
		FString Error;
		EXPECT_TRUE(Host::FPropertyEdit::SetFromText(Area, TEXT("bOverlapZone"), TEXT("false"), Error));
		Show();
		EXPECT_EQ(GetPlace(*GetPart(0)), "0 20 300 180");
	}

	// Dragging.

	TEST_F(FHxMovableAreaTest, DragMovesTheAreaByAsMuchAndSaysSo)
	{
		ShowArea();
		EXPECT_TRUE(Press(Grip));
		EXPECT_TRUE(IsMouseCaptured());
		Host::FExpectedLog Tracking(TEXT("Tracking"), 2);
		EXPECT_TRUE(MoveMouse(Grip + FVector2D(1.0, 0.0)));
		EXPECT_EQ(GetTranslation(), FVector2D(1.0, 0.0)) << "the first move counts, however short";
		EXPECT_EQ(Tracking.GetCount(), 1);
		EXPECT_TRUE(MoveMouse(Grip + FVector2D(70.0, -45.0)));
		EXPECT_EQ(GetTranslation(), FVector2D(70.0, -45.0));
		EXPECT_EQ(Host::ToStd(Tracking.GetLastLine()), "Tracking");
		EXPECT_TRUE(Release());
		EXPECT_FALSE(IsMouseCaptured());
		EXPECT_FALSE(MoveMouse(Grip));
		EXPECT_EQ(GetTranslation(), FVector2D(70.0, -45.0));
		EXPECT_EQ(TakeEvents(), "start stop");
	}

	TEST_F(FHxMovableAreaTest, MovesBetweenTwoFramesAllCount)
	{
		ShowArea();
		Host::FExpectedLog Tracking(TEXT("Tracking"), 20);
		Press(Grip);
		for (int32 Step = 1; Step <= 20; ++Step)
		{
			MoveMouse(Grip + FVector2D(3.0 * Step, 2.0 * Step));
			EXPECT_EQ(GetTranslation(), FVector2D(3.0 * Step, 2.0 * Step));
		}
		Release();
	}

	TEST_F(FHxMovableAreaTest, LayoutParentAndSlotAreLeftAlone)
	{
		ShowArea();
		const UCanvasPanelSlot* Slot = CastChecked<UCanvasPanelSlot>(Area->Slot);
		Host::FExpectedLog Tracking(TEXT("Tracking"));
		PressAndMove(Grip, Grip + FVector2D(50.0, 60.0));
		Release();
		Settle();
		EXPECT_EQ(Slot->GetPosition(), FVector2D(100.0, 100.0));
		EXPECT_EQ(Slot->GetSize(), FVector2D(300.0, 200.0));
		EXPECT_EQ(Area->GetParent(), Screen->WidgetTree->RootWidget);
		EXPECT_EQ(Print(FVector2D(Area->GetCachedGeometry().LocalToAbsolute(FVector2D(0.0, 0.0)))), "150 160");
	}

	TEST_F(FHxMovableAreaTest, NothingStopsItAtTheEdges)
	{
		ShowArea();
		Host::FExpectedLog Tracking(TEXT("Tracking"), 2);
		PressAndMove(Grip, Grip + FVector2D(-2000.0, -1500.0));
		EXPECT_EQ(GetTranslation(), FVector2D(-2000.0, -1500.0));
		Settle();
		MoveMouse(Grip + FVector2D(3000.0, 2500.0));
		EXPECT_EQ(GetTranslation(), FVector2D(3000.0, 2500.0)) << "also from where it cannot be seen";
		Release();
		Area->RestorePosition();
		EXPECT_EQ(GetTranslation(), FVector2D(0.0, 0.0));
	}

	TEST_F(FHxMovableAreaTest, EveryButtonDragsAndDragsAddUp)
	{
		ShowArea();
		Host::FExpectedLog Tracking(TEXT("Tracking"), 3);
		FVector2D At = Grip;
		for (const FKey& Button : { EKeys::LeftMouseButton, EKeys::RightMouseButton, EKeys::MiddleMouseButton })
		{
			Press(At, Button);
			At += FVector2D(10.0, 5.0);
			MoveMouse(At);
			Release(Button);
		}
		EXPECT_EQ(GetTranslation(), FVector2D(30.0, 15.0));
	}

	TEST_F(FHxMovableAreaTest, QuickSecondPressDragsToo)
	{
		ShowArea();
		Host::FExpectedLog Tracking(TEXT("Tracking"));
		Press(Grip);
		Release();
		PressAndMove(Grip, Grip + FVector2D(25.0, 0.0));
		Release();
		EXPECT_EQ(GetTranslation(), FVector2D(25.0, 0.0));
		EXPECT_EQ(TakeEvents(), "start stop start stop");
	}

	TEST_F(FHxMovableAreaTest, PressOnTheContentDoesNotDrag)
	{
		ShowArea();
		EXPECT_FALSE(Press(FVector2D(250.0, 121.0)));
		EXPECT_FALSE(MoveMouse(FVector2D(300.0, 150.0)));
		Release();
		EXPECT_EQ(GetTranslation(), FVector2D(0.0, 0.0));
		EXPECT_EQ(TakeEvents(), "");
		Press(FVector2D(250.0, 119.0));
		EXPECT_EQ(TakeEvents(), "start");
		Release();
	}

	TEST_F(FHxMovableAreaTest, MovesWithoutAPressAreLeftAlone)
	{
		ShowArea();
		EXPECT_FALSE(MoveMouse(Grip));
		EXPECT_FALSE(MoveMouse(Grip + FVector2D(5.0, 0.0)));
		EXPECT_EQ(GetTranslation(), FVector2D(0.0, 0.0));
	}

	TEST_F(FHxMovableAreaTest, ReleaseWithoutAPressIsToldAndHidesTheHighlight)
	{
		MakeArea();
		Area->bUseSelectableBorder = true;
		Show();
		Area->SetHighlight(true);
		MoveMouse(Grip);
		EXPECT_TRUE(Release());
		EXPECT_EQ(TakeEvents(), "stop");
		EXPECT_TRUE(IsHighlightCollapsed());
	}

	TEST_F(FHxMovableAreaTest, HighlightIsSetBeforeTheEventsAreRaised)
	{
		MakeArea();
		Area->bUseSelectableBorder = true;
		Show();
		Recorder->Probe = [this] { return FString(IsHighlighted() ? TEXT("on") : TEXT("off")); };
		Press(Grip);
		Release();
		EXPECT_EQ(TakeEvents(), "start|on stop|off");
	}

	TEST_F(FHxMovableAreaTest, DragIsInUnitsAtTwoPixelsAUnit)
	{
		MakeArea();
		Area->RemoveFromParent();
		Place(*Area, 50.0, 50.0, FVector2D(200.0, 100.0));
		Show();
		UseScale(2.0f);
		Host::FExpectedLog Tracking(TEXT("Tracking"), 2);
		Press(FVector2D(200.0, 110.0));
		MoveMouse(FVector2D(260.0, 120.0));
		MoveMouse(FVector2D(300.0, 90.0));
		EXPECT_EQ(GetTranslation(), FVector2D(50.0, -10.0));
		Settle();
		EXPECT_EQ(Print(FVector2D(Area->GetCachedGeometry().LocalToAbsolute(FVector2D(0.0, 0.0)))), "200 80");
		Release();
	}

	TEST_F(FHxMovableAreaTest, FollowsTheMouseInTurnedAndScaledParents)
	{
		MakeArea();
		UCanvasPanel* Outer = Make<UCanvasPanel>();
		UCanvasPanel* Inner = Make<UCanvasPanel>();
		Area->RemoveFromParent();
		UCanvasPanelSlot* AreaSlot = Inner->AddChildToCanvas(Area);
		AreaSlot->SetPosition(FVector2D(50.0, 40.0));
		AreaSlot->SetSize(FVector2D(150.0, 100.0));
		Outer->AddChildToCanvas(Inner)->SetSize(FVector2D(300.0, 300.0));
		Place(*Outer, 250.0, 150.0, FVector2D(300.0, 300.0));
		Outer->SetRenderTransformAngle(30.0f);
		Inner->SetRenderScale(FVector2D(1.5, 0.75));
		Show();
		const FVector2D Start(GetGrip()->GetCachedGeometry().LocalToAbsolute(FVector2D(75.0, 10.0)));
		Host::FExpectedLog Tracking(TEXT("Tracking"), 12);
		Press(Start);
		for (int32 Step = 1; Step <= 12; ++Step)
		{
			const FVector2D Mouse = Start + FVector2D(6.0 * Step, -4.0 * Step);
			MoveMouse(Mouse);
			Host::FSlateLoop::Refresh();
			const FVector2D Held(GetGrip()->GetCachedGeometry().LocalToAbsolute(FVector2D(75.0, 10.0)));
			EXPECT_TRUE(Held.Equals(Mouse, 0.02)) << "the mouse holds the grip where it took it: " << Print(Held) << " at " << Print(Mouse);
		}
		Release();
	}

	TEST_F(FHxMovableAreaTest, TranslationOutlivesARebuild)
	{
		ShowArea();
		Host::FExpectedLog Tracking(TEXT("Tracking"));
		PressAndMove(Grip, Grip + FVector2D(50.0, 0.0));
		Release();
		Screen->RemoveFromParent();
		Show();
		EXPECT_EQ(GetTranslation(), FVector2D(50.0, 0.0));
		EXPECT_EQ(Print(FVector2D(Area->GetCachedGeometry().LocalToAbsolute(FVector2D(0.0, 0.0)))), "150 100");
	}

	TEST_F(FHxMovableAreaTest, AreaOnTopTakesThePress)
	{
		MakeArea();
		UHxMovableArea* Top = Make<UHxMovableArea>(TEXT("Top"));
		Top->SetContent(Make<UHxBorder>());
		Place(*Top, 200.0, 90.0, FVector2D(300.0, 200.0));
		Show();
		Host::FExpectedLog Tracking(TEXT("Tracking"));
		PressAndMove(FVector2D(250.0, 105.0), FVector2D(255.0, 105.0));
		Release();
		EXPECT_EQ(GetTranslation(), FVector2D(0.0, 0.0));
		EXPECT_EQ(Top->GetRenderTransform().Translation, FVector2D(5.0, 0.0));
	}

	TEST_F(FHxMovableAreaTest, ListenerMayTakeTheAreaAwayWhenItIsPressed)
	{
		ShowArea();
		Recorder->Probe = [this]
		{
			Area->RemoveFromParent();
			return FString(TEXT("gone"));
		};
		Press(Grip);
		EXPECT_EQ(TakeEvents(), "start|gone");
		Recorder->Probe = nullptr;
		Settle();
		EXPECT_FALSE(IsMouseCaptured());
		EXPECT_FALSE(MoveMouse(Grip + FVector2D(10.0, 0.0)));
		Release();
	}

	TEST_F(FHxMovableAreaTest, AreaThatGoesDuringADragLetsTheMouseGo)
	{
		ShowArea();
		{
			Host::FExpectedLog Tracking(TEXT("Tracking"));
			PressAndMove(Grip, Grip + FVector2D(10.0, 0.0));
		}
		const TWeakObjectPtr<UHxMovableArea> Weak = Area;
		StartScreen();
		TakeEvents();
		CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
		EXPECT_FALSE(Weak.IsValid());
		MoveMouse(Grip + FVector2D(20.0, 0.0));
		Release();
		Settle();
		EXPECT_FALSE(IsMouseCaptured());
		EXPECT_EQ(TakeEvents(), "");
	}
}
