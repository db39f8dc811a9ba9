#include "ApplicationTestTools.h"

#include <limits>

#include "Host/SlateCounters.h"
#include "Widgets/Images/SImage.h"
#include "Brushes/SlateColorBrush.h"

class ApplicationTest : public FApplicationTest
{
};

TEST_F(ApplicationTest, IdleApplicationNeedsNoFrame)
{
	Show(SNew(SOverlay));
	App().Tick();
	const Host::FSlateCounters Before = Host::FSlateCounters::Get();
	EXPECT_EQ(Host::FSlateLoop::GetNextWakeTime(), std::numeric_limits<double>::infinity());
	App().Tick();
	EXPECT_EQ((Host::FSlateCounters::Get() - Before).Visited, 0);
}

TEST_F(ApplicationTest, ChangeMakesAFrameDue)
{
	const TSharedRef<SOverlay> Content = SNew(SOverlay);
	Show(Content);
	Content->Invalidate(EInvalidateWidgetReason::Paint);
	EXPECT_EQ(Host::FSlateLoop::GetNextWakeTime(), Host::FClock::Now());
	App().Tick();
	EXPECT_EQ(Host::FSlateLoop::GetNextWakeTime(), std::numeric_limits<double>::infinity());
}

TEST_F(ApplicationTest, ActiveTimerWakesTheLoop)
{
	const TSharedRef<SOverlay> Content = SNew(SOverlay);
	Show(Content);
	int32 NumRuns = 0;
	Content->RegisterActiveTimer(2.0f, FWidgetActiveTimerDelegate::CreateLambda([&NumRuns](double, float)
	{
		++NumRuns;
		return EActiveTimerReturnType::Stop;
	}));
	EXPECT_DOUBLE_EQ(Host::FSlateLoop::GetNextWakeTime(), Host::FClock::Now() + 2.0);
	Wait(2.0);
	EXPECT_EQ(NumRuns, 1);
}

TEST_F(ApplicationTest, ContentFillsTheWindow)
{
	const TSharedRef<SOverlay> Content = SNew(SOverlay);
	Show(Content);
	EXPECT_EQ(Content->GetCachedGeometry().GetLocalSize(), FVector2f(400.0f, 300.0f));
	Window->SetDPIScaleFactor(2.0f);
	App().Tick();
	EXPECT_EQ(Content->GetCachedGeometry().GetLocalSize(), FVector2f(200.0f, 150.0f));
	Window->Resize(FVector2D(800.0, 600.0));
	App().Tick();
	EXPECT_EQ(Content->GetCachedGeometry().GetLocalSize(), FVector2f(400.0f, 300.0f));
}

TEST_F(ApplicationTest, PathLeadsFromTheWindowToTheWidget)
{
	const TSharedRef<SOverlay> Content = SNew(SOverlay);
	Show(Content);
	FWidgetPath Path;
	EXPECT_TRUE(App().FindPathToWidget(Content, Path));
	EXPECT_EQ(Path.Widgets[0].Widget, Window);
	EXPECT_EQ(Path.GetLastWidget(), Content);
	EXPECT_EQ(App().FindWidgetWindow(Content), Window);
	EXPECT_FALSE(App().FindPathToWidget(SNew(SOverlay), Path));
}

TEST_F(ApplicationTest, RequestedWindowIsDestroyedWithTheNextFrame)
{
	int32 NumClosed = 0;
	Window->GetOnWindowClosedEvent().AddLambda([&NumClosed](const TSharedRef<SWindow>&) { ++NumClosed; });
	Window->RequestDestroyWindow();
	EXPECT_EQ(App().GetTopLevelWindows().Num(), 1);
	App().Tick();
	EXPECT_EQ(App().GetTopLevelWindows().Num(), 0);
	EXPECT_EQ(NumClosed, 1);
	EXPECT_FALSE(App().GetActiveTopLevelWindow().IsValid());
}

TEST_F(ApplicationTest, OverrideDecidesWhetherTheWindowGoes)
{
	Window->SetRequestDestroyWindowOverride(FRequestDestroyWindowOverride::CreateLambda([](const TSharedRef<SWindow>&) {}));
	Window->RequestDestroyWindow();
	App().Tick();
	EXPECT_EQ(App().GetTopLevelWindows().Num(), 1);
}

class MenuTest : public FApplicationTest
{
protected:
	TSharedRef<SWidget> MakeMenu()
	{
		static const FSlateColorBrush Brush(FLinearColor::White);
		return SNew(SImage).Image(&Brush).DesiredSizeOverride(TOptional<FVector2D>(FVector2D(100.0, 80.0)));
	}

	TSharedPtr<IMenu> Push(const TSharedRef<SWidget>& Content, FVector2f Place, FVector2f AnchorSize = FVector2f(0.0f, 0.0f))
	{
		const TSharedPtr<IMenu> Menu = App().PushMenu(Window->GetContent(), FWidgetPath(), Content, Place, FPopupTransitionEffect(FPopupTransitionEffect::ComboButton), true, AnchorSize);
		App().Tick();
		return Menu;
	}
};

TEST_F(MenuTest, StandsAtItsPlaceAsLargeAsItWantsToBe)
{
	Show(SNew(SOverlay));
	const TSharedRef<SWidget> Content = MakeMenu();
	Push(Content, FVector2f(50.0f, 60.0f), FVector2f(80.0f, 20.0f));
	EXPECT_EQ(Content->GetCachedGeometry().GetAbsolutePosition(), FVector2f(50.0f, 80.0f));
	EXPECT_EQ(Content->GetCachedGeometry().GetLocalSize(), FVector2f(100.0f, 80.0f));
	EXPECT_TRUE(App().AnyMenusVisible());
}

TEST_F(MenuTest, GoesAboveItsAnchorWhenThereIsNoRoomBelow)
{
	Show(SNew(SOverlay));
	const TSharedRef<SWidget> Content = MakeMenu();
	Push(Content, FVector2f(350.0f, 260.0f), FVector2f(40.0f, 20.0f));
	EXPECT_EQ(Content->GetCachedGeometry().GetAbsolutePosition(), FVector2f(300.0f, 180.0f));
}

TEST_F(MenuTest, PressOutsideDismissesAndGoesOn)
{
	TSharedPtr<SEventRecorder> Below;
	Show(SAssignNew(Below, SEventRecorder).Name(TEXT("Below")).Handles(TEXT("Down")).Log(&Log));
	const TSharedPtr<IMenu> Menu = Push(MakeMenu(), FVector2f(50.0f, 60.0f));
	int32 NumDismissed = 0;
	Menu->GetOnMenuDismissed().AddLambda([&NumDismissed](TSharedRef<IMenu>) { ++NumDismissed; });
	Move(60.0f, 70.0f);
	Press();
	EXPECT_EQ(NumDismissed, 0);
	Release();
	Move(300.0f, 200.0f);
	TakeLog();
	Press();
	EXPECT_EQ(NumDismissed, 1);
	EXPECT_FALSE(App().AnyMenusVisible());
	EXPECT_LOG("Below.PreviewDown Below.Down");
}

TEST_F(MenuTest, EscapeDismissesTheTopmost)
{
	Show(SNew(SOverlay));
	const TSharedRef<SWidget> First = MakeMenu();
	Push(First, FVector2f(50.0f, 60.0f));
	App().PushMenu(First, FWidgetPath(), MakeMenu(), FVector2f(150.0f, 60.0f), FPopupTransitionEffect(FPopupTransitionEffect::SubMenu));
	App().Tick();
	Key(EKeys::Escape);
	EXPECT_TRUE(App().AnyMenusVisible());
	Key(EKeys::Escape);
	EXPECT_FALSE(App().AnyMenusVisible());
}

TEST_F(MenuTest, AnotherMenuOfTheContentTakesThePlaceOfTheFirst)
{
	Show(SNew(SOverlay));
	const TSharedPtr<IMenu> First = Push(MakeMenu(), FVector2f(50.0f, 60.0f));
	bool bDismissed = false;
	First->GetOnMenuDismissed().AddLambda([&bDismissed](TSharedRef<IMenu>) { bDismissed = true; });
	Push(MakeMenu(), FVector2f(60.0f, 60.0f));
	EXPECT_TRUE(bDismissed);
	EXPECT_TRUE(App().AnyMenusVisible());
	App().DismissAllMenus();
	EXPECT_FALSE(App().AnyMenusVisible());
}
