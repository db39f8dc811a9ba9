#include "ApplicationTestTools.h"

class HoverTest : public FApplicationTest
{
protected:
	/** A and B side by side, each half of the window, in Both. */
	void ShowHalves()
	{
		Show(SNew(SEventRecorder).Name(TEXT("Both")).Log(&Log)
		[
			SAssignNew(Row, SHorizontalBox)
			+ SHorizontalBox::Slot()[SAssignNew(A, SEventRecorder).Name(TEXT("A")).Log(&Log)]
			+ SHorizontalBox::Slot()[SAssignNew(B, SEventRecorder).Name(TEXT("B")).Log(&Log)]
		]);
		Log.Reset();
	}

	TSharedPtr<SHorizontalBox> Row;
	TSharedPtr<SEventRecorder> A;
	TSharedPtr<SEventRecorder> B;
};

TEST_F(HoverTest, EntersFromTheTopDownAndLeavesFromTheLowestUp)
{
	ShowHalves();
	Move(10.0f, 10.0f);
	EXPECT_LOG("Both.Enter A.Enter");
	EXPECT_TRUE(A->IsHovered());
	EXPECT_TRUE(A->IsDirectlyHovered());
	Move(20.0f, 10.0f);
	EXPECT_LOG("");
	Move(300.0f, 10.0f);
	EXPECT_LOG("A.Leave B.Enter");
	EXPECT_FALSE(A->IsHovered());
	Move(-5.0f, 10.0f);
	EXPECT_LOG("B.Leave Both.Leave");
}

TEST_F(HoverTest, MouseThatLeavesTheWindowHoversNothing)
{
	ShowHalves();
	Move(10.0f, 10.0f);
	TakeLog();
	Host::FSlateLoop::MouseLeft();
	EXPECT_LOG("A.Leave Both.Leave");
}

TEST_F(HoverTest, WidgetThatComesUnderARestingMouseIsHovered)
{
	ShowHalves();
	Move(10.0f, 10.0f);
	TakeLog();
	A->SetVisibility(EVisibility::Collapsed);
	App().Tick();
	EXPECT_LOG("A.Leave B.Enter");
}

TEST_F(HoverTest, RemovedWidgetIsLeft)
{
	ShowHalves();
	Move(10.0f, 10.0f);
	TakeLog();
	Row->RemoveSlot(A.ToSharedRef());
	App().Tick();
	EXPECT_LOG("A.Leave B.Enter");
}

TEST_F(HoverTest, WhileCapturedOnlyTheCaptorIsHovered)
{
	ShowHalves();
	Move(10.0f, 10.0f);
	A->Handles = TEXT("Down Up");
	A->NextReply = FReply::Handled().CaptureMouse(A.ToSharedRef());
	Press();
	TakeLog();
	Move(300.0f, 10.0f);
	EXPECT_LOG("A.Leave");
	EXPECT_FALSE(B->IsHovered());
	Move(10.0f, 10.0f);
	EXPECT_LOG("A.Enter");
	Move(300.0f, 10.0f);
	TakeLog();
	A->NextReply = FReply::Handled().ReleaseMouseCapture();
	Release();
	EXPECT_LOG("A.Up A.CaptureLost B.Enter");
}

TEST_F(HoverTest, ToolTipComesAfterTheDelayAndGoesWithTheMouse)
{
	ShowHalves();
	A->SetToolTipText(FText::FromString(TEXT("Help")));
	Move(10.0f, 10.0f);
	App().Tick();
	const int32 NumLayers = Window->GetChildren()->GetChildAt(0)->GetChildren()->Num();
	EXPECT_DOUBLE_EQ(Host::FSlateLoop::GetNextWakeTime(), Host::FClock::Now() + App().GetToolTipDelay());
	Wait(App().GetToolTipDelay());
	EXPECT_EQ(Window->GetChildren()->GetChildAt(0)->GetChildren()->Num(), NumLayers + 1);
	Move(300.0f, 10.0f);
	EXPECT_EQ(Window->GetChildren()->GetChildAt(0)->GetChildren()->Num(), NumLayers);
}

TEST_F(HoverTest, PressTakesTheToolTipAway)
{
	ShowHalves();
	A->SetToolTipText(FText::FromString(TEXT("Help")));
	Move(10.0f, 10.0f);
	Wait(App().GetToolTipDelay());
	EXPECT_EQ(Window->GetChildren()->GetChildAt(0)->GetChildren()->Num(), 2);
	Press();
	EXPECT_EQ(Window->GetChildren()->GetChildAt(0)->GetChildren()->Num(), 1);
}
