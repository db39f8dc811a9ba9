#include "Widgets/Text/STextBlock.h"

#include "Fonts/CompositeFont.h"
#include "Fonts/FontMeasure.h"
#include "Host/AttributeBindings.h"
#include "Host/DrawElement.h"
#include "Host/DumpWidgetTree.h"
#include "Host/FontServices.h"
#include "Host/SlateCounters.h"
#include "Host/SlateRoot.h"
#include "Widgets/Layout/SBox.h"

#include <gtest/gtest.h>

using namespace Host;

class TextBlockTest : public testing::Test
{
protected:
	TextBlockTest()
	{
		const FString Folder(TEXT(HALVEX_SOURCE_DIR "/HalvexPro/Content/Widgets/Fonts/Monserrat/"));
		const TSharedRef<FCompositeFont> Font = MakeShared<FCompositeFont>(TEXT("regular"), Folder + TEXT("Montserrat-Regular.ttf"),
			EFontHinting::Default, EFontLoadingPolicy::LazyLoad);
		Font->DefaultTypeface.AppendFont(TEXT("bold"), Folder + TEXT("Montserrat-Bold.ttf"), EFontHinting::Default, EFontLoadingPolicy::LazyLoad);
		Info = FSlateFontInfo(Font, 15.0f);
		LineHeight = static_cast<float>(FSlateFontMeasure::Get()->GetMaxCharacterHeight(Info));
	}

	/** Shows a widget in a picture of 400 by 300 pixels. */
	void Show(const TSharedRef<SWidget>& Widget, float Scale = 1.0f)
	{
		Shown = Widget;
		Root.SetSize(FIntPoint(400, 300), Scale);
		Root.SetWidget(Shown.Get());
		RunFrame();
	}

	void RunFrame()
	{
		// A width that is only known after arranging is taken into account on the second frame.
		Root.RunFrame(0.0, 0.0f);
		Root.RunFrame(0.0, 0.0f);
	}

	virtual void TearDown() override
	{
		Root.SetWidget(nullptr);
		Shown.Reset();
	}

	TArray<FDrawElement> GetElements() const
	{
		TArray<FDrawElement> Result;
		Root.ForEachElement(FPixelRect::Everything(),
			[&Result](TConstArrayView<FDrawElement> Elements)
			{
				for (const FDrawElement& Element : Elements)
				{
					Result.Add(Element);
				}
			});
		return Result;
	}

	/** The texts of the runs that were painted, from the lowest up. */
	TArray<FString> GetPaintedTexts() const
	{
		TArray<FString> Result;
		for (const FDrawElement& Element : GetElements())
		{
			if (Element.GetRun())
			{
				Result.Add(FString(Element.GetRun()->GetText()));
			}
		}
		return Result;
	}

	float GetWidth(const TCHAR* Text, float Scale = 1.0f) const
	{
		return FSlateFontMeasure::Get()->Measure(FStringView(Text), Info, Scale).X;
	}

	FVector2f Measure(const TSharedRef<SWidget>& Widget, float Scale = 1.0f)
	{
		Widget->SlatePrepass(Scale);
		return Widget->GetDesiredSize();
	}

	static FText Make(const TCHAR* Text) { return FText::FromString(Text); }

	FSlateFontInfo Info;
	float LineHeight;
	FSlateRoot Root;
	TSharedPtr<SWidget> Shown;
};

TEST_F(TextBlockTest, DesiredSizeIsThatOfTheLine)
{
	const FVector2f Size = Measure(SNew(STextBlock).Text(Make(TEXT("Living room"))).Font(Info));
	EXPECT_FLOAT_EQ(Size.X, FMath::CeilToFloat(GetWidth(TEXT("Living room"))));
	EXPECT_FLOAT_EQ(Size.Y, LineHeight);
}

TEST_F(TextBlockTest, EmptyTextIsOneLineHigh)
{
	EXPECT_EQ(Measure(SNew(STextBlock).Font(Info)), FVector2f(0.0f, LineHeight));
}

TEST_F(TextBlockTest, DesiredSizeIsInSlateUnitsAtEveryScale)
{
	const TSharedRef<STextBlock> Block = SNew(STextBlock).Text(Make(TEXT("Living room"))).Font(Info);
	EXPECT_NEAR(Measure(Block, 2.0f).X, GetWidth(TEXT("Living room")), 0.51f);
	EXPECT_FLOAT_EQ(Measure(Block, 2.0f).X, FMath::CeilToFloat(GetWidth(TEXT("Living room"), 2.0f)) / 2.0f);
}

TEST_F(TextBlockTest, LineBreaksMakeLines)
{
	const FVector2f Size = Measure(SNew(STextBlock).Text(Make(TEXT("Living\nroom"))).Font(Info));
	EXPECT_FLOAT_EQ(Size.X, FMath::CeilToFloat(GetWidth(TEXT("Living"))));
	EXPECT_FLOAT_EQ(Size.Y, 2.0f * LineHeight);
}

TEST_F(TextBlockTest, ALeastWidthIsKept)
{
	EXPECT_FLOAT_EQ(Measure(SNew(STextBlock).Text(Make(TEXT("a"))).Font(Info).MinDesiredWidth(70.0f)).X, 70.0f);
}

TEST_F(TextBlockTest, TheMarginIsPartOfTheSize)
{
	const TSharedRef<STextBlock> Block = SNew(STextBlock).Text(Make(TEXT("Room"))).Font(Info);
	const FVector2f Bare = Measure(Block);
	Block->SetMargin(FMargin(1.0f, 2.0f, 3.0f, 4.0f));
	EXPECT_EQ(Measure(Block), Bare + FVector2f(4.0f, 6.0f));
}

TEST_F(TextBlockTest, TextIsWrappedAtAWidth)
{
	const TSharedRef<STextBlock> Block = SNew(STextBlock).Text(Make(TEXT("The quick brown fox"))).Font(Info).WrapTextAt(GetWidth(TEXT("The quick brown")) + 1.0f);
	EXPECT_FLOAT_EQ(Measure(Block).Y, 2.0f * LineHeight);
	Show(Block);
	const TArray<FString> Expected = { TEXT("The quick brown "), TEXT("fox") };
	EXPECT_EQ(GetPaintedTexts(), Expected);
}

TEST_F(TextBlockTest, AutomaticWrappingTakesTheWidthThatTheWidgetIsGiven)
{
	const TSharedRef<STextBlock> Block = SNew(STextBlock).Text(Make(TEXT("The quick brown fox"))).Font(Info).AutoWrapText(true);
	const float Width = GetWidth(TEXT("The quick brown")) + 5.0f;
	Show(SNew(SBox).HAlign(HAlign_Left).VAlign(VAlign_Top)[SNew(SBox).WidthOverride(Width)[Block]]);
	EXPECT_FLOAT_EQ(FVector2f(Block->GetDesiredSize()).Y, 2.0f * LineHeight);
	EXPECT_EQ(GetPaintedTexts().Num(), 2);
	EXPECT_FALSE(Root.NeedsFrame());
}

TEST_F(TextBlockTest, AutomaticallyWrappedTextThatFitsComesToRest)
{
	Show(SNew(SBox).HAlign(HAlign_Left).VAlign(VAlign_Top)[SNew(STextBlock).Text(Make(TEXT("The quick brown fox"))).Font(Info).AutoWrapText(true)]);
	RunFrame();
	EXPECT_FALSE(Root.NeedsFrame());
	EXPECT_EQ(GetPaintedTexts().Num(), 1);
}

TEST_F(TextBlockTest, LongWordsAreBrokenIfThePolicyAllows)
{
	const TSharedRef<STextBlock> Block = SNew(STextBlock).Text(Make(TEXT("Donaudampfschiff"))).Font(Info).WrapTextAt(50.0f);
	EXPECT_FLOAT_EQ(Measure(Block).Y, LineHeight);
	Block->SetWrappingPolicy(ETextWrappingPolicy::AllowPerCharacterWrapping);
	EXPECT_GT(Measure(Block).Y, LineHeight);
	EXPECT_LE(Measure(Block).X, 50.0f);
}

TEST_F(TextBlockTest, LettersAreTransformed)
{
	const TSharedRef<STextBlock> Block = SNew(STextBlock).Text(Make(TEXT("Stra\u00DFe"))).Font(Info).TransformPolicy(ETextTransformPolicy::ToUpper);
	Show(Block);
	EXPECT_EQ(GetPaintedTexts()[0].Compare(TEXT("STRASSE")), 0);
	EXPECT_EQ(Block->GetText().ToString().Compare(TEXT("Stra\u00DFe")), 0);
	Block->SetTransformPolicy(ETextTransformPolicy::ToLower);
	RunFrame();
	EXPECT_EQ(GetPaintedTexts()[0].Compare(TEXT("stra\u00DFe")), 0);
}

TEST_F(TextBlockTest, LineHeightIsAShareOfTheFonts)
{
	const TSharedRef<STextBlock> Block = SNew(STextBlock).Text(Make(TEXT("a\nb"))).Font(Info).LineHeightPercentage(1.5f);
	EXPECT_FLOAT_EQ(Measure(Block).Y, 2.0f * FMath::RoundToFloat(1.5f * LineHeight));
	Block->SetText(Make(TEXT("a")));
	EXPECT_FLOAT_EQ(Measure(Block).Y, FMath::RoundToFloat(1.5f * LineHeight));
}

TEST_F(TextBlockTest, TextIsPaintedOnItsBaseline)
{
	Show(SNew(STextBlock).Text(Make(TEXT("Room"))).Font(Info));
	const TArray<FDrawElement> Elements = GetElements();
	ASSERT_EQ(Elements.Num(), 1);
	EXPECT_EQ(Elements[0].Kind, EDrawElementKind::Glyphs);
	EXPECT_FLOAT_EQ(Elements[0].LocalToPixel.X, 0.0f);
	EXPECT_FLOAT_EQ(Elements[0].LocalToPixel.Y, Elements[0].GetRun()->GetFont().GetMetrics().Baseline);
	EXPECT_TRUE(Elements[0].HasFlag(EDrawElementFlags::Translated));
}

TEST_F(TextBlockTest, JustificationPlacesTheLine)
{
	const TSharedRef<STextBlock> Block = SNew(STextBlock).Text(Make(TEXT("Room"))).Font(Info).Justification(ETextJustify::Center);
	Show(Block);
	EXPECT_NEAR(GetElements()[0].LocalToPixel.X, (400.0f - GetWidth(TEXT("Room"))) / 2.0f, 0.01f);
	Block->SetJustification(ETextJustify::Right);
	RunFrame();
	EXPECT_NEAR(GetElements()[0].LocalToPixel.X, 400.0f - GetWidth(TEXT("Room")), 0.01f);
}

TEST_F(TextBlockTest, EachLineIsJustifiedByItself)
{
	Show(SNew(STextBlock).Text(Make(TEXT("Living\nroom"))).Font(Info).Justification(ETextJustify::Right));
	const TArray<FDrawElement> Elements = GetElements();
	ASSERT_EQ(Elements.Num(), 2);
	EXPECT_NEAR(Elements[0].LocalToPixel.X, 400.0f - GetWidth(TEXT("Living")), 0.01f);
	EXPECT_NEAR(Elements[1].LocalToPixel.X, 400.0f - GetWidth(TEXT("room")), 0.01f);
	EXPECT_FLOAT_EQ(Elements[1].LocalToPixel.Y - Elements[0].LocalToPixel.Y, LineHeight);
}

TEST_F(TextBlockTest, HebrewIsJustifiedInReadingDirection)
{
	Show(SNew(STextBlock).Text(Make(TEXT("\u05D0\u05D1"))).Font(Info));
	const FDrawElement Element = GetElements()[0];
	EXPECT_NEAR(Element.LocalToPixel.X, 400.0f - Element.GetRun()->GetWidth(), 0.01f);
}

TEST_F(TextBlockTest, TextThatDoesNotFitEndsInAnEllipsisIfThePolicySaysSo)
{
	const TSharedRef<STextBlock> Block = SNew(STextBlock).Text(Make(TEXT("A rather long name"))).Font(Info);
	Show(SNew(SBox).HAlign(HAlign_Left).VAlign(VAlign_Top)[SNew(SBox).WidthOverride(100.0f)[Block]]);
	EXPECT_EQ(GetPaintedTexts()[0], TEXT("A rather long name"));
	const FVector2f Wanted = Block->GetDesiredSize();
	Block->SetOverflowPolicy(ETextOverflowPolicy::Ellipsis);
	RunFrame();
	ASSERT_EQ(GetPaintedTexts().Num(), 1);
	EXPECT_TRUE(GetPaintedTexts()[0].EndsWith(TEXT("\u2026")));
	EXPECT_LE(GetElements()[0].GetRun()->GetWidth(), 100.0f);
	EXPECT_EQ(FVector2f(Block->GetDesiredSize()), Wanted);
}

TEST_F(TextBlockTest, ColoursAreMultipliedByTheStyleOfTheAncestors)
{
	const TSharedRef<STextBlock> Block = SNew(STextBlock).Text(Make(TEXT("Room"))).Font(Info).ColorAndOpacity(FLinearColor(1.0f, 0.0f, 0.0f, 0.5f));
	Show(Block);
	EXPECT_EQ(GetElements()[0].Colour, FColor(255, 0, 0, 128));
	Block->SetColorAndOpacity(FSlateColor::UseForeground());
	RunFrame();
	EXPECT_EQ(GetElements()[0].Colour, FColor(255, 255, 255, 255));
}

TEST_F(TextBlockTest, AShadowIsPaintedBelowTheText)
{
	const TSharedRef<STextBlock> Block = SNew(STextBlock).Text(Make(TEXT("Room"))).Font(Info)
		.ShadowOffset(FVector2D(2.0, 3.0)).ShadowColorAndOpacity(FLinearColor::Black);
	const FVector2f Bare = Measure(SNew(STextBlock).Text(Make(TEXT("Room"))).Font(Info));
	Show(Block);
	const TArray<FDrawElement> Elements = GetElements();
	ASSERT_EQ(Elements.Num(), 2);
	EXPECT_EQ(Elements[0].Colour, FColor(0, 0, 0, 255));
	EXPECT_FLOAT_EQ(Elements[0].LocalToPixel.X - Elements[1].LocalToPixel.X, 2.0f);
	EXPECT_FLOAT_EQ(Elements[0].LocalToPixel.Y - Elements[1].LocalToPixel.Y, 3.0f);
	EXPECT_EQ(FVector2f(Block->GetDesiredSize()), Bare + FVector2f(2.0f, 3.0f));
}

TEST_F(TextBlockTest, ATransparentShadowIsNotPainted)
{
	Show(SNew(STextBlock).Text(Make(TEXT("Room"))).Font(Info).ShadowOffset(FVector2D(2.0, 3.0)).ShadowColorAndOpacity(FLinearColor(0.0f, 0.0f, 0.0f, 0.0f)));
	EXPECT_EQ(GetElements().Num(), 1);
}

TEST_F(TextBlockTest, TheShadowHasAnOutlineOnlyIfAskedFor)
{
	Info.OutlineSettings = FFontOutlineSettings(1, FLinearColor::White);
	const TSharedRef<STextBlock> Block = SNew(STextBlock).Text(Make(TEXT("Room"))).Font(Info).ShadowOffset(FVector2D(2.0, 3.0));
	Show(Block);
	ASSERT_EQ(GetElements().Num(), 2);
	EXPECT_EQ(GetElements()[0].OutlineColour.A, 0);
	EXPECT_EQ(GetElements()[1].OutlineColour, FColor(255, 255, 255, 255));
	Info.OutlineSettings.bApplyOutlineToDropShadows = true;
	Block->SetFont(Info);
	RunFrame();
	EXPECT_EQ(GetElements()[0].OutlineColour, FColor(0, 0, 0, 255));
}

TEST_F(TextBlockTest, AnotherTextIsMeasuredAndPaintedAnew)
{
	const TSharedRef<STextBlock> Block = SNew(STextBlock).Text(Make(TEXT("Room"))).Font(Info);
	Show(Block);
	Block->SetText(Make(TEXT("Kitchen")));
	EXPECT_TRUE(Root.NeedsFrame());
	RunFrame();
	EXPECT_EQ(GetPaintedTexts()[0], TEXT("Kitchen"));
	EXPECT_FLOAT_EQ(FVector2f(Block->GetDesiredSize()).X, FMath::CeilToFloat(GetWidth(TEXT("Kitchen"))));
}

TEST_F(TextBlockTest, TheSameTextChangesNothing)
{
	const TSharedRef<STextBlock> Block = SNew(STextBlock).Text(Make(TEXT("Room"))).Font(Info);
	Show(Block);
	Block->SetText(Make(TEXT("Room")));
	Block->SetFont(Info);
	Block->SetJustification(ETextJustify::Left);
	EXPECT_FALSE(Root.NeedsFrame());
}

TEST_F(TextBlockTest, AnotherColourMeasuresAndShapesNothing)
{
	const TSharedRef<STextBlock> Block = SNew(STextBlock).Text(Make(TEXT("Room"))).Font(Info);
	Show(Block);
	const FSlateCounters Before = FSlateCounters::Get();
	Block->SetColorAndOpacity(FLinearColor(0.0f, 1.0f, 0.0f));
	RunFrame();
	const FSlateCounters Work = FSlateCounters::Get() - Before;
	EXPECT_EQ(Work.Measured, 0);
	EXPECT_EQ(Work.ShapedRuns, 0);
	EXPECT_EQ(Work.Painted, 1);
}

TEST_F(TextBlockTest, ManyBlocksWithOneTextShapeItOnce)
{
	const FSlateCounters Before = FSlateCounters::Get();
	for (int32 Index = 0; Index < 20; ++Index)
	{
		Measure(SNew(STextBlock).Text(Make(TEXT("a text of many blocks"))).Font(Info));
	}
	EXPECT_EQ((FSlateCounters::Get() - Before).ShapedRuns, 1);
}

TEST_F(TextBlockTest, ATextGetterIsFollowed)
{
	FText Current = Make(TEXT("one"));
	const TSharedRef<STextBlock> Block = SNew(STextBlock).Text_Lambda([&Current]() { return Current; }).Font(Info);
	Show(Block);
	EXPECT_EQ(GetPaintedTexts()[0], TEXT("one"));
	Current = Make(TEXT("two"));
	FAttributeBindings::UpdateAll();
	RunFrame();
	EXPECT_EQ(GetPaintedTexts()[0], TEXT("two"));
}

TEST_F(TextBlockTest, TextIsShapedForTheScaleThatItIsPaintedAt)
{
	Show(SNew(STextBlock).Text(Make(TEXT("Room"))).Font(Info), 2.0f);
	EXPECT_FLOAT_EQ(GetElements()[0].GetRun()->GetFont().GetPixelSize(), 40.0f);
	EXPECT_TRUE(GetElements()[0].HasFlag(EDrawElementFlags::Translated));
}

TEST_F(TextBlockTest, BaselinesStandOnWholePixels)
{
	Show(SNew(SBox).Padding(FMargin(0.3f, 0.4f, 0.0f, 0.0f))[SNew(STextBlock).Text(Make(TEXT("Room"))).Font(Info)], 1.25f);
	const float Y = GetElements()[0].LocalToPixel.Y;
	EXPECT_FLOAT_EQ(Y, FMath::RoundToFloat(Y));
}

TEST_F(TextBlockTest, DumpsShowTheText)
{
	const TSharedRef<STextBlock> Block = SNew(STextBlock).Text(Make(TEXT("Room"))).Font(Info);
	EXPECT_EQ(GetWidgetText(*Block), TEXT("Room"));
}

TEST_F(TextBlockTest, AStyleGivesFontAndColours)
{
	FTextBlockStyle Style;
	Style.SetFont(Info).SetColorAndOpacity(FLinearColor(0.0f, 0.0f, 1.0f));
	const TSharedRef<STextBlock> Block = SNew(STextBlock).TextStyle(&Style).Text(Make(TEXT("Room")));
	EXPECT_EQ(Block->GetFont(), Info);
	EXPECT_EQ(Block->GetColorAndOpacity(), FSlateColor(FLinearColor(0.0f, 0.0f, 1.0f)));
	Block->SetTextStyle(nullptr);
	EXPECT_EQ(Block->GetColorAndOpacity(), FTextBlockStyle::GetDefault().ColorAndOpacity);
}
