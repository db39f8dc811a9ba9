#include <random>
#include <sstream>

#include "Host/DrawElement.h"
#include "LayoutTestTools.h"
#include "Widgets/Layout/SBorder.h"
#include "Widgets/Layout/SBox.h"
#include "Widgets/Layout/SConstraintCanvas.h"
#include "Widgets/Layout/SGridPanel.h"
#include "Widgets/Layout/SScaleBox.h"
#include "Widgets/Layout/SScrollBox.h"
#include "Widgets/Layout/SUniformGridPanel.h"
#include "Widgets/Layout/SWrapBox.h"
#include "Widgets/SBoxPanel.h"

/**
 * Changes a tree of all kinds of panels at random, and compares what is laid out and painted for the changes alone with what
 * comes out when everything is done anew.
 */
class LayoutAgreementTest : public FLayoutTest
{
protected:
	int32 Pick(int32 Count) { return static_cast<int32>(Random() % static_cast<uint32>(Count)); }
	float PickLength() { return static_cast<float>(Pick(80)); }
	FVector2D PickSize() { return FVector2D(PickLength(), PickLength()); }
	FMargin PickMargin() { return FMargin(static_cast<float>(Pick(10)), static_cast<float>(Pick(10)), static_cast<float>(Pick(10)), static_cast<float>(Pick(10))); }

	TSharedRef<SPiece> MakePiece()
	{
		Pieces.Add(SNew(SPiece).Size(PickSize()));
		return Pieces.Last();
	}

	TSharedRef<SWidget> MakeTree()
	{
		SAssignNew(Grid, SGridPanel).FillColumn(1, 1.0f)
			+ SGridPanel::Slot(0, 0).Padding(3.0f)[MakePiece()]
			+ SGridPanel::Slot(1, 1).Expose(GridSlot)[MakePiece()]
			+ SGridPanel::Slot(0, 2).ColumnSpan(2)[MakePiece()];
		SAssignNew(Uniform, SUniformGridPanel)
			+ SUniformGridPanel::Slot(0, 0)[MakePiece()]
			+ SUniformGridPanel::Slot(1, 0)[MakePiece()];
		SAssignNew(Wrap, SWrapBox).UseAllottedSize(true)
			+ SWrapBox::Slot()[MakePiece()]
			+ SWrapBox::Slot().Expose(WrapSlot)[MakePiece()]
			+ SWrapBox::Slot()[MakePiece()]
			+ SWrapBox::Slot()[MakePiece()];
		SAssignNew(Canvas, SConstraintCanvas)
			+ SConstraintCanvas::Slot().Anchors(FAnchors(0.0f, 0.0f, 1.0f, 1.0f))[MakePiece()]
			+ SConstraintCanvas::Slot().Expose(CanvasSlot).AutoSize(true)[MakePiece()];
		SAssignNew(Scale, SScaleBox).Stretch(EStretch::ScaleToFit)[MakePiece()];
		SAssignNew(Border, SBorder)[Uniform.ToSharedRef()];
		SAssignNew(Box, SBox)[Grid.ToSharedRef()];
		SAssignNew(Scroll, SScrollBox)
			+ SScrollBox::Slot()[Box.ToSharedRef()]
			+ SScrollBox::Slot()[Border.ToSharedRef()]
			+ SScrollBox::Slot()[MakePiece()]
			+ SScrollBox::Slot()[Wrap.ToSharedRef()];
		return SNew(SHorizontalBox)
			+ SHorizontalBox::Slot().FillWidth(1.0f)[Scroll.ToSharedRef()]
			+ SHorizontalBox::Slot().FillWidth(1.0f)
			[
				SNew(SVerticalBox)
				+ SVerticalBox::Slot().FillHeight(1.0f)[Canvas.ToSharedRef()]
				+ SVerticalBox::Slot().FillHeight(1.0f)[Scale.ToSharedRef()]
			];
	}

	void ChangeSomething()
	{
		static const EVisibility Visibilities[] = {EVisibility::Visible, EVisibility::Hidden, EVisibility::Collapsed};
		switch (Pick(18))
		{
		case 0: Pieces[Pick(Pieces.Num())]->SetSize(PickSize()); break;
		case 1: Pieces[Pick(Pieces.Num())]->SetVisibility(Visibilities[Pick(3)]); break;
		case 2: Pieces[Pick(Pieces.Num())]->SetRenderOpacity(Pick(2) ? 1.0f : 0.5f); break;
		case 3: Box->SetPadding(PickMargin()); break;
		case 4: Box->SetHeightOverride(Pick(2) ? FOptionalSize(PickLength()) : FOptionalSize()); break;
		case 5: Box->SetMaxAspectRatio(Pick(2) ? FOptionalSize(1.5f) : FOptionalSize()); break;
		case 6: Border->SetPadding(PickMargin()); break;
		case 7: Border->SetVisibility(Visibilities[Pick(3)]); break;
		case 8: Scroll->SetScrollOffset(PickLength() * 4.0f); break;
		case 9: Scroll->AddSlot()[MakePiece()]; break;
		case 10: Scale->SetStretch(static_cast<EStretch::Type>(Pick(9))); break;
		case 11: Scale->SetUserSpecifiedScale(0.5f + static_cast<float>(Pick(4))); break;
		case 12: GridSlot->SetColumn(Pick(4)); break;
		case 13: GridSlot->SetRowSpan(1 + Pick(3)); break;
		case 14: WrapSlot->SetFillEmptySpace(Pick(2) == 0); break;
		case 15: Wrap->SetInnerSlotPadding(FVector2D(Pick(10), Pick(10))); break;
		case 16: CanvasSlot->SetOffset(PickMargin()); break;
		default: Uniform->SetSlotPadding(PickMargin()); break;
		}
	}

	/** Where everything is that shows, and the elements in the picture. */
	std::string Describe() const
	{
		std::ostringstream Text;
		Root.ForEachElement(Host::FPixelRect::Everything(), [&Text](TConstArrayView<Host::FDrawElement> Elements)
		{
			for (const Host::FDrawElement& Element : Elements)
			{
				const Host::FPixelTransform& To = Element.LocalToPixel;
				Text << Element.Bounds.Left << ' ' << Element.Bounds.Top << ' ' << Element.Bounds.Right << ' ' << Element.Bounds.Bottom << " | " << To.Xx << ' ' << To.X
					<< ' ' << To.Y << " | " << Element.LocalSize.X << ' ' << Element.LocalSize.Y << ' ' << static_cast<int32>(Element.Colour.A) << '\n';
			}
		});
		return Text.str();
	}

	virtual void TearDown() override
	{
		FLayoutTest::TearDown();
		Pieces.Reset();
	}

	std::mt19937 Random{20240501};
	TArray<TSharedRef<SPiece>> Pieces;
	TSharedPtr<SGridPanel> Grid;
	TSharedPtr<SUniformGridPanel> Uniform;
	TSharedPtr<SWrapBox> Wrap;
	TSharedPtr<SConstraintCanvas> Canvas;
	TSharedPtr<SScaleBox> Scale;
	TSharedPtr<SBorder> Border;
	TSharedPtr<SBox> Box;
	TSharedPtr<SScrollBox> Scroll;
	SGridPanel::FSlot* GridSlot = nullptr;
	SWrapBox::FSlot* WrapSlot = nullptr;
	SConstraintCanvas::FSlot* CanvasSlot = nullptr;
};

TEST_F(LayoutAgreementTest, ChangesAloneGiveWhatEverythingAnewGives)
{
	Show(MakeTree());
	EXPECT_FALSE(Describe().empty());
	for (int32 Step = 0; Step < 1500; ++Step)
	{
		for (int32 Count = 1 + Pick(3); Count > 0; --Count)
		{
			ChangeSomething();
		}
		Frame();
		const std::string Incremental = Describe();
		Shown->Invalidate(EInvalidateWidgetReason::Prepass);
		Frame();
		ASSERT_EQ(Incremental, Describe()) << "after step " << Step << "\n" << Dump();
	}
}
