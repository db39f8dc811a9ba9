#pragma once

#include <gtest/gtest.h>

#include "Brushes/SlateColorBrush.h"
#include "Host/SlateCounters.h"
#include "Host/SlateRoot.h"
#include "Rendering/DrawElements.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/SCompoundWidget.h"
#include "Widgets/SLeafWidget.h"
#include "Widgets/SOverlay.h"

/** A box of one colour that wants a size and counts what is done to it. */
class STestLeaf : public SLeafWidget
{
public:
	SLATE_BEGIN_ARGS(STestLeaf) : _Size(FVector2D(10.0, 10.0)), _Color(FLinearColor::White) {}
		SLATE_ATTRIBUTE(FVector2D, Size)
		SLATE_ATTRIBUTE(FLinearColor, Color)
	SLATE_END_ARGS()

	STestLeaf() : Size(*this, FVector2D(10.0, 10.0)), Color(*this, FLinearColor::White) {}

	void Construct(const FArguments& InArgs)
	{
		Size.Assign(*this, InArgs._Size);
		Color.Assign(*this, InArgs._Color);
	}

	void SetSize(FVector2D InSize) { Size.Set(*this, InSize); }
	void SetColor(FLinearColor InColor) { Color.Set(*this, InColor); }

	mutable int32 NumMeasured = 0;
	mutable int32 NumPainted = 0;
	mutable bool bPaintedEnabled = true;

protected:
	virtual FVector2D ComputeDesiredSize(float) const override
	{
		++NumMeasured;
		return Size.Get();
	}

	virtual int32 OnPaint(const FPaintArgs&, const FGeometry& AllottedGeometry, const FSlateRect&, FSlateWindowElementList& OutDrawElements, int32 LayerId,
		const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const override
	{
		static const FSlateColorBrush Brush(FLinearColor::White);
		++NumPainted;
		bPaintedEnabled = ShouldBeEnabled(bParentEnabled);
		FSlateDrawElement::MakeBox(OutDrawElements, LayerId, AllottedGeometry.ToPaintGeometry(), &Brush, ESlateDrawEffect::None,
			InWidgetStyle.GetColorAndOpacityTint() * Color.Get());
		return LayerId;
	}

private:
	TSlateAttribute<FVector2D, EInvalidateWidgetReason::Layout> Size;
	TSlateAttribute<FLinearColor, EInvalidateWidgetReason::Paint> Color;
};

/** One child, with a plain box below it and another above it. */
class STestFrame : public SCompoundWidget
{
public:
	SLATE_BEGIN_ARGS(STestFrame) : _Padding(FMargin(0.0f)), _HAlign(HAlign_Fill), _VAlign(VAlign_Fill), _DrawsUnder(true), _DrawsOver(false) {}
		SLATE_ATTRIBUTE(FMargin, Padding)
		SLATE_ARGUMENT(EHorizontalAlignment, HAlign)
		SLATE_ARGUMENT(EVerticalAlignment, VAlign)
		SLATE_ARGUMENT(bool, DrawsUnder)
		SLATE_ARGUMENT(bool, DrawsOver)
		SLATE_DEFAULT_SLOT(FArguments, Content)
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs)
	{
		bDrawsUnder = InArgs._DrawsUnder;
		bDrawsOver = InArgs._DrawsOver;
		ChildSlot.Padding(InArgs._Padding).HAlign(InArgs._HAlign).VAlign(InArgs._VAlign)[InArgs._Content.Widget];
	}

	void SetContent(const TSharedRef<SWidget>& Content) { ChildSlot[Content]; }
	TSharedPtr<SWidget> TakeContent() { return ChildSlot.DetachWidget(); }
	void SetPadding(const FMargin& Padding) { ChildSlot.SetPadding(Padding); }

	static FLinearColor UnderColor() { return FLinearColor(0.25f, 0.25f, 0.25f, 1.0f); }
	static FLinearColor OverColor() { return FLinearColor(0.75f, 0.75f, 0.75f, 1.0f); }

protected:
	virtual int32 OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect, FSlateWindowElementList& OutDrawElements,
		int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const override
	{
		static const FSlateColorBrush Brush(FLinearColor::White);
		if (bDrawsUnder)
		{
			FSlateDrawElement::MakeBox(OutDrawElements, LayerId, AllottedGeometry.ToPaintGeometry(), &Brush, ESlateDrawEffect::None, UnderColor());
		}
		LayerId = SCompoundWidget::OnPaint(Args, AllottedGeometry, MyCullingRect, OutDrawElements, LayerId, InWidgetStyle, bParentEnabled);
		if (bDrawsOver)
		{
			FSlateDrawElement::MakeBox(OutDrawElements, LayerId, AllottedGeometry.ToPaintGeometry(), &Brush, ESlateDrawEffect::None, OverColor());
		}
		return LayerId;
	}

private:
	bool bDrawsUnder = true;
	bool bDrawsOver = false;
};

/** A root of 400 x 300 pixels over a frame that holds what is tested, and the work that its last frame took. */
class FTestTree
{
public:
	explicit FTestTree(const TSharedRef<SWidget>& Content, float Scale = 1.0f)
	{
		SAssignNew(Top, STestFrame).DrawsUnder(false)[Content];
		Root.SetSize(FIntPoint(400, 300), Scale);
		Root.SetWidget(Top.Get());
	}

	~FTestTree() { Root.SetWidget(nullptr); }

	/** Makes a frame; true when the picture changed. */
	bool Run(double Time = 0.0)
	{
		Root.ClearDamage();
		return RunKeepingDamage(Time);
	}

	/** As Run, with the damage of what was removed since. */
	bool RunKeepingDamage(double Time = 0.0)
	{
		const Host::FSlateCounters Before = Host::FSlateCounters::Get();
		const bool bChanged = Root.RunFrame(Time, 0.0f);
		Work = Host::FSlateCounters::Get() - Before;
		return bChanged;
	}

	/** Fails unless the last frame did exactly this much. */
	void ExpectWork(int64 Measured, int64 Arranged, int64 Painted) const
	{
		EXPECT_EQ(Work.Measured, Measured) << "widgets measured";
		EXPECT_EQ(Work.Arranged, Arranged) << "widgets arranged";
		EXPECT_EQ(Work.Painted, Painted) << "widgets painted";
	}

	TArray<Host::FDrawElement> GetElements() const { return GetElements(Host::FPixelRect::Everything()); }

	TArray<Host::FDrawElement> GetElements(const Host::FPixelRect& Area) const
	{
		TArray<Host::FDrawElement> Elements;
		Root.ForEachElement(Area, [&Elements](TConstArrayView<Host::FDrawElement> Some)
		{
			for (const Host::FDrawElement& Element : Some)
			{
				Elements.Add(Element);
			}
		});
		return Elements;
	}

	/** The damage as one rectangle. */
	Host::FPixelRect GetDamageBounds() const
	{
		Host::FPixelRect Bounds;
		for (const Host::FPixelRect& Area : Root.GetDamage())
		{
			Bounds = Bounds.Union(Area);
		}
		return Bounds;
	}

	/** The lowest widget under a point; null when there is none. */
	TSharedPtr<SWidget> Hit(float X, float Y) const
	{
		const TArray<FArrangedWidget> Path = Root.HitTest(FVector2f(X, Y));
		return Path.IsEmpty() ? TSharedPtr<SWidget>() : TSharedPtr<SWidget>(Path.Last().Widget);
	}

	TSharedPtr<STestFrame> Top;
	Host::FSlateRoot Root;
	Host::FSlateCounters Work;
};

inline Host::FPixelRect MakePixelRect(int32 Left, int32 Top, int32 Right, int32 Bottom)
{
	return Host::FPixelRect::Make(Left, Top, Right, Bottom);
}
