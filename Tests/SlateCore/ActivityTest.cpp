#include "Host/WidgetActivity.h"

#include <limits>

#include "TestWidgets.h"

namespace
{
	class STickingLeaf : public STestLeaf
	{
	public:
		virtual void Tick(const FGeometry& AllottedGeometry, const double, const float) override { Widths.Add(AllottedGeometry.GetLocalSize().X); }

		TArray<float> Widths;
	};
}

TEST(ActiveTimerTest, RunsWhenDueUntilItStops)
{
	const TSharedRef<STestLeaf> Leaf = SNew(STestLeaf);
	const double Start = Host::FWidgetActivity::GetCurrentTime();
	TArray<float> Elapsed;
	const TSharedRef<FActiveTimerHandle> Timer = Leaf->RegisterActiveTimer(1.0f, FWidgetActiveTimerDelegate::CreateLambda([&Elapsed](double, float DeltaTime)
	{
		Elapsed.Add(DeltaTime);
		return Elapsed.Num() == 2 ? EActiveTimerReturnType::Stop : EActiveTimerReturnType::Continue;
	}));
	EXPECT_TRUE(Leaf->HasActiveTimers());
	EXPECT_DOUBLE_EQ(Host::FWidgetActivity::GetNextTimerTime(), Timer->GetNextTime());
	Host::FWidgetActivity::BeginFrame(Start + 0.5, 0.0f);
	EXPECT_EQ(Elapsed.Num(), 0);
	Host::FWidgetActivity::BeginFrame(Start + 1.5, 0.0f);
	ASSERT_EQ(Elapsed.Num(), 1);
	EXPECT_NEAR(Elapsed[0], 1.5f, 0.01f);
	EXPECT_TRUE(Timer->IsActive());
	Host::FWidgetActivity::BeginFrame(Start + 2.1, 0.0f);
	ASSERT_EQ(Elapsed.Num(), 2);
	EXPECT_FALSE(Timer->IsActive());
	EXPECT_FALSE(Leaf->HasActiveTimers());
	Host::FWidgetActivity::BeginFrame(Start + 9.0, 0.0f);
	EXPECT_EQ(Elapsed.Num(), 2);
}

TEST(ActiveTimerTest, RemovedTimerDoesNotRun)
{
	const TSharedRef<STestLeaf> Leaf = SNew(STestLeaf);
	int32 NumRuns = 0;
	const TSharedRef<FActiveTimerHandle> Timer = Leaf->RegisterActiveTimer(0.0f, FWidgetActiveTimerDelegate::CreateLambda([&NumRuns](double, float)
	{
		++NumRuns;
		return EActiveTimerReturnType::Continue;
	}));
	Leaf->UnRegisterActiveTimer(Timer);
	Host::FWidgetActivity::BeginFrame(1.0e9, 0.0f);
	EXPECT_EQ(NumRuns, 0);
	EXPECT_EQ(Host::FWidgetActivity::GetNextTimerTime(), std::numeric_limits<double>::infinity());
}

TEST(ActiveTimerTest, TimerEndsWithItsWidget)
{
	TSharedPtr<STestLeaf> Leaf = SNew(STestLeaf);
	const TSharedRef<FActiveTimerHandle> Timer = Leaf->RegisterActiveTimer(0.0f, FWidgetActiveTimerDelegate::CreateLambda([](double, float) { return EActiveTimerReturnType::Continue; }));
	Leaf.Reset();
	EXPECT_FALSE(Timer->IsActive());
	EXPECT_EQ(Host::FWidgetActivity::GetNextTimerTime(), std::numeric_limits<double>::infinity());
}

TEST(TickTest, OnlyWidgetsThatAskAreTicked)
{
	const TSharedRef<STickingLeaf> Leaf = SNew(STickingLeaf);
	FTestTree Tree(Leaf);
	Tree.Run();
	Host::FWidgetActivity::BeginFrame(0.0, 0.0f);
	EXPECT_EQ(Leaf->Widths.Num(), 0);
	Leaf->SetCanTick(true);
	Host::FWidgetActivity::BeginFrame(0.0, 0.0f);
	EXPECT_EQ(Leaf->Widths.Num(), 1);
	EXPECT_EQ(Leaf->Widths.Last(), 400.0f);
}

TEST(TickTest, NewGeometryIsTickedWithinTheFrame)
{
	const TSharedRef<STickingLeaf> Leaf = SNew(STickingLeaf);
	Leaf->SetCanTick(true);
	FTestTree Tree(Leaf);
	Tree.Run();
	ASSERT_EQ(Leaf->Widths.Num(), 1);
	EXPECT_EQ(Leaf->Widths[0], 400.0f);
	Tree.Root.SetSize(FIntPoint(500, 300), 1.0f);
	Tree.Run();
	ASSERT_EQ(Leaf->Widths.Num(), 2);
	EXPECT_EQ(Leaf->Widths[1], 500.0f);
	Tree.Run();
	EXPECT_EQ(Leaf->Widths.Num(), 2);
}

TEST(TickTest, HiddenWidgetsAreNotTicked)
{
	const TSharedRef<STickingLeaf> Leaf = SNew(STickingLeaf);
	Leaf->SetCanTick(true);
	FTestTree Tree(SNew(SOverlay) + SOverlay::Slot()[Leaf]);
	Tree.Run();
	Leaf->Widths.Reset();
	Leaf->SetVisibility(EVisibility::Hidden);
	Tree.Run();
	Host::FWidgetActivity::BeginFrame(0.0, 0.0f);
	EXPECT_EQ(Leaf->Widths.Num(), 0);
}
