#include "ApplicationTestTools.h"

class CaptureTest : public FApplicationTest
{
protected:
	CaptureTest()
	{
		Show(SAssignNew(Row, SHorizontalBox)
			+ SHorizontalBox::Slot()[SAssignNew(A, SEventRecorder).Name(TEXT("A")).Handles(TEXT("Down Up Move Drag")).Log(&Log)]
			+ SHorizontalBox::Slot()[SAssignNew(B, SEventRecorder).Name(TEXT("B")).Handles(TEXT("Down Up Move")).Log(&Log)]);
		Move(10.0f, 10.0f);
		Log.Reset();
	}

	~CaptureTest() override
	{
		A.Reset();
		B.Reset();
		Row.Reset();
	}

	void CaptureByA()
	{
		A->NextReply = FReply::Handled().CaptureMouse(A.ToSharedRef());
		Press();
		Log.Reset();
	}

	TSharedPtr<SHorizontalBox> Row;
	TSharedPtr<SEventRecorder> A;
	TSharedPtr<SEventRecorder> B;
};

TEST_F(CaptureTest, CaptorGetsTheMouseWhereverItIs)
{
	CaptureByA();
	EXPECT_TRUE(A->HasMouseCapture());
	Move(300.0f, 10.0f);
	EXPECT_LOG("A.Leave A.Move");
	Release();
	EXPECT_LOG("A.Up");
	EXPECT_TRUE(A->HasMouseCapture()) << "until it is released";
}

TEST_F(CaptureTest, ReleaseTellsTheCaptor)
{
	CaptureByA();
	A->NextReply = FReply::Handled().ReleaseMouseCapture();
	Release();
	EXPECT_LOG("A.Up A.CaptureLost");
	EXPECT_FALSE(A->HasMouseCapture());
	EXPECT_FALSE(App().HasAnyMouseCaptor());
}

TEST_F(CaptureTest, AnotherCaptorTakesItOver)
{
	CaptureByA();
	A->NextReply = FReply::Handled().CaptureMouse(B.ToSharedRef());
	Move(20.0f, 10.0f);
	EXPECT_LOG("A.Move A.CaptureLost A.Leave");
	EXPECT_TRUE(B->HasMouseCapture());
}

TEST_F(CaptureTest, CaptorThatLeavesTheTreeLosesIt)
{
	CaptureByA();
	Row->RemoveSlot(A.ToSharedRef());
	App().Tick();
	EXPECT_EQ(Log[0], TEXT("A.CaptureLost"));
	EXPECT_FALSE(App().HasAnyMouseCaptor());
}

TEST_F(CaptureTest, HiddenCaptorLosesIt)
{
	CaptureByA();
	Row->SetVisibility(EVisibility::Collapsed);
	App().Tick();
	EXPECT_FALSE(App().HasAnyMouseCaptor());
}

TEST_F(CaptureTest, DeactivatedWindowEndsTheCapture)
{
	CaptureByA();
	App().ProcessWindowActivatedEvent(FWindowActivateEvent(FWindowActivateEvent::EA_Deactivate, Window.ToSharedRef()));
	EXPECT_LOG("A.CaptureLost");
}

TEST_F(CaptureTest, WidgetOutsideOfTheTreeCannotCapture)
{
	A->NextReply = FReply::Handled().CaptureMouse(SNew(SOverlay));
	Press();
	EXPECT_FALSE(App().HasAnyMouseCaptor());
}

TEST_F(CaptureTest, DragIsDetectedBeyondTheDistance)
{
	A->NextReply = FReply::Handled().DetectDrag(A.ToSharedRef(), EKeys::LeftMouseButton);
	Press();
	TakeLog();
	Move(13.0f, 10.0f);
	EXPECT_LOG("A.Move");
	Move(16.0f, 10.0f);
	EXPECT_LOG("A.Drag");
	Move(30.0f, 10.0f);
	EXPECT_LOG("A.Move");
}

TEST_F(CaptureTest, NoDragOnceTheButtonIsUp)
{
	A->NextReply = FReply::Handled().DetectDrag(A.ToSharedRef(), EKeys::LeftMouseButton);
	Press();
	Release();
	TakeLog();
	Move(40.0f, 10.0f);
	EXPECT_LOG("A.Move");
}
