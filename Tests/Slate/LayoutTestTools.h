#pragma once

#include <gtest/gtest.h>

#include <string>

#include "Brushes/SlateColorBrush.h"
#include "Host/DumpWidgetTree.h"
#include "Host/SlateCounters.h"
#include "Host/SlateRoot.h"
#include "Rendering/DrawElements.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SLeafWidget.h"

/** A white box that wants a size. */
class SPiece : public SLeafWidget
{
public:
	SLATE_BEGIN_ARGS(SPiece) : _Size(FVector2D(10.0, 10.0)) {}
		SLATE_ATTRIBUTE(FVector2D, Size)
	SLATE_END_ARGS()

	SPiece() : Size(*this, FVector2D::ZeroVector) {}

	void Construct(const FArguments& InArgs) { Size.Assign(*this, InArgs._Size); }
	void SetSize(const FVector2D& InSize) { Size.Set(*this, InSize); }

protected:
	virtual FVector2D ComputeDesiredSize(float) const override { return Size.Get(); }

	virtual int32 OnPaint(const FPaintArgs&, const FGeometry& AllottedGeometry, const FSlateRect&, FSlateWindowElementList& OutDrawElements, int32 LayerId,
		const FWidgetStyle& InWidgetStyle, bool) const override
	{
		static const FSlateColorBrush Brush(FLinearColor::White);
		FSlateDrawElement::MakeBox(OutDrawElements, LayerId, AllottedGeometry.ToPaintGeometry(), &Brush, ESlateDrawEffect::None, InWidgetStyle.GetColorAndOpacityTint());
		return LayerId;
	}

private:
	TSlateAttribute<FVector2D, EInvalidateWidgetReason::Layout> Size;
};

inline TSharedRef<SPiece> Piece(const ANSICHAR* Name, double Width, double Height)
{
	return SNew(SPiece).Tag(FName(Name)).Size(FVector2D(Width, Height));
}

/** What is within a widget, a line each. */
inline std::string DumpInside(const TSharedRef<SWidget>& Widget)
{
	const FString Text = Host::DumpWidgetTree(Widget);
	int32 FirstLineEnd = 0;
	Text.FindChar(TEXT('\n'), FirstLineEnd);
	FString Inside = Text.Mid(FirstLineEnd + 1);
	Inside.TrimEndInline();
	return TCHAR_TO_UTF8(*Inside);
}

/** Lays out one widget in a picture of its own. */
class FLayoutTest : public testing::Test
{
protected:
	virtual void TearDown() override
	{
		Root.SetWidget(nullptr);
		Shown.Reset();
	}

	void Show(const TSharedRef<SWidget>& Widget, int32 Width = 400, int32 Height = 300, float Scale = 1.0f)
	{
		Shown = Widget;
		Root.SetSize(FIntPoint(Width, Height), Scale);
		Root.SetWidget(Shown.Get());
		Frame();
	}

	/** Makes a frame, and notes the work that it took. */
	void Frame()
	{
		const Host::FSlateCounters Before = Host::FSlateCounters::Get();
		Root.RunFrame(0.0, 0.0f);
		Work = Host::FSlateCounters::Get() - Before;
	}

	/** Fails unless the last change costs exactly this much in the next frame. */
	void ExpectFrame(int64 Measured, int64 Arranged, int64 Painted)
	{
		Frame();
		EXPECT_EQ(Work.Measured, Measured) << "widgets measured";
		EXPECT_EQ(Work.Arranged, Arranged) << "widgets arranged";
		EXPECT_EQ(Work.Painted, Painted) << "widgets painted";
	}

	void ExpectNoWork()
	{
		EXPECT_FALSE(Root.NeedsFrame());
		ExpectFrame(0, 0, 0);
	}

	/** What is within the shown widget, a line each. */
	std::string Dump() const { return DumpInside(Shown.ToSharedRef()); }

	FVector2f GetDesiredSize() const { return Shown->GetDesiredSize(); }

	TSharedPtr<SWidget> Shown;
	Host::FSlateRoot Root;
	Host::FSlateCounters Work;
};
