#include "Rendering/DrawElements.h"

#include <cmath>

#include <gtest/gtest.h>

#include "Brushes/SlateColorBrush.h"
#include "Brushes/SlateNoResource.h"
#include "Brushes/SlateRoundedBoxBrush.h"
#include "ElementScene.h"
#include "Fonts/SlateFontInfo.h"
#include "Host/BrushTextures.h"
#include "Host/FontServices.h"
#include "Host/Texture.h"
#include "Layout/Clipping.h"
#include "Layout/PaintGeometry.h"
#include "Styling/CoreStyle.h"
#include "UObject/Class.h"

using namespace Host;

namespace
{
	const FLinearColor White(1.0f, 1.0f, 1.0f, 1.0f);
	const FLinearColor HalfBlack(0.0f, 0.0f, 0.0f, 0.5f);

	FPaintGeometry MakeGeometry(float X, float Y, float Width, float Height, float Scale = 1.0f)
	{
		const FSlateLayoutTransform Layout(Scale, FVector2f(X, Y));
		return FPaintGeometry(Layout, Layout.ToRenderTransform(), FVector2f(Width, Height), false);
	}

	FPaintGeometry MakeTurnedGeometry(float X, float Y, float Width, float Height, float Radians)
	{
		const FSlateLayoutTransform Layout(1.0f, FVector2f(X, Y));
		return FPaintGeometry(Layout, FSlateRenderTransform(FQuat2f(Radians), FVector2f(X, Y)), FVector2f(Width, Height), true);
	}

	class DrawElements : public testing::Test
	{
	protected:
		DrawElements() { List.BeginWidget(Elements); }
		~DrawElements() override { List.EndWidget(); }

		/** The one element that the brush makes. */
		const FDrawElement& MakeBox(const FSlateBrush& Brush, const FPaintGeometry& Geometry, const FLinearColor& Tint = FLinearColor::White, ESlateDrawEffect Effects = ESlateDrawEffect::None)
		{
			Elements.Reset();
			FSlateDrawElement::MakeBox(List, 0, Geometry, &Brush, Effects, Tint);
			EXPECT_EQ(Elements.Num(), 1);
			return Elements[0];
		}

		FSlateWindowElementList List{ nullptr };
		TArray<FDrawElement> Elements;
	};
}

TEST_F(DrawElements, BoxEdgesAreRoundedToWholePixels)
{
	const FDrawElement& Box = MakeBox(FSlateColorBrush(White), MakeGeometry(10.4f, 20.6f, 30.3f, 5.2f));

	EXPECT_EQ(Box.Bounds, FPixelRect::Make(10, 21, 41, 26));
	EXPECT_TRUE(Box.HasFlag(EDrawElementFlags::PixelAligned));
	EXPECT_EQ(Box.LocalSize, FVector2f(31.0f, 5.0f));
}

TEST_F(DrawElements, NeighbouringBoxesNeitherOverlapNorLeaveAGap)
{
	for (int32 Index = 0; Index < 50; ++Index)
	{
		const float Edge = 7.0f + 0.13f * static_cast<float>(Index);
		const FPixelRect First = MakeBox(FSlateColorBrush(White), MakeGeometry(0.0f, 0.0f, Edge, 5.0f)).Bounds;
		const FPixelRect Second = MakeBox(FSlateColorBrush(White), MakeGeometry(Edge, 0.0f, 20.0f, 5.0f)).Bounds;
		ASSERT_EQ(First.Right, Second.Left) << Edge;
	}
}

TEST_F(DrawElements, SnappingCanBeTurnedOff)
{
	const FDrawElement& Box = MakeBox(FSlateColorBrush(White), MakeGeometry(10.4f, 20.0f, 30.0f, 5.0f), FLinearColor::White, ESlateDrawEffect::NoPixelSnapping);

	EXPECT_FLOAT_EQ(Box.LocalToPixel.X, 10.4f);
	EXPECT_FALSE(Box.HasFlag(EDrawElementFlags::PixelAligned));
	EXPECT_TRUE(Box.HasFlag(EDrawElementFlags::Translated));
	EXPECT_EQ(Box.Bounds, FPixelRect::Make(10, 20, 41, 25));
}

TEST_F(DrawElements, HairlinesDoNotVanish)
{
	EXPECT_EQ(MakeBox(FSlateColorBrush(White), MakeGeometry(3.6f, 0.0f, 0.7f, 20.0f)).Bounds, FPixelRect::Make(4, 0, 5, 20));
}

TEST_F(DrawElements, RadiiAndOutlineFollowTheScale)
{
	FSlateRoundedBoxBrush Brush(FLinearColor::White, FVector4(1.0, 2.0, 3.0, 4.0), FLinearColor::Red, 1.5f);
	const FDrawElement& Box = MakeBox(Brush, MakeGeometry(0.0f, 0.0f, 100.0f, 50.0f, 2.0f));

	EXPECT_EQ(Box.Radii, (FCornerRadii{ 2.0f, 4.0f, 6.0f, 8.0f }));
	EXPECT_EQ(Box.OutlineWidth, 3.0f);
	EXPECT_EQ(Box.OutlineColour, FColor(255, 0, 0, 255));
	EXPECT_EQ(Box.LocalSize, FVector2f(200.0f, 100.0f));
}

TEST_F(DrawElements, RadiiStopAtHalfTheShorterSide)
{
	const FDrawElement& Box = MakeBox(FSlateRoundedBoxBrush(FLinearColor::White, 50.0f), MakeGeometry(0.0f, 0.0f, 100.0f, 30.0f));

	EXPECT_EQ(Box.Radii, (FCornerRadii{ 15.0f, 15.0f, 15.0f, 15.0f }));
}

TEST_F(DrawElements, HalfHeightRadiusIgnoresTheRadii)
{
	FSlateRoundedBoxBrush Brush(FLinearColor::White, 3.0f);
	Brush.OutlineSettings.RoundingType = ESlateBrushRoundingType::HalfHeightRadius;

	EXPECT_EQ(MakeBox(Brush, MakeGeometry(0.0f, 0.0f, 100.0f, 30.0f)).Radii, (FCornerRadii{ 15.0f, 15.0f, 15.0f, 15.0f }));
	EXPECT_EQ(MakeBox(Brush, MakeGeometry(0.0f, 0.0f, 100.0f, 41.0f)).Radii.TopLeft, 20.5f) << "the height that is drawn counts";
}

TEST_F(DrawElements, ThinOutlinesStayVisibleAtSmallScales)
{
	FSlateRoundedBoxBrush Brush(FLinearColor::White, 3.0f, FLinearColor::Red, 1.0f);

	EXPECT_EQ(MakeBox(Brush, MakeGeometry(0.0f, 0.0f, 100.0f, 30.0f, 0.3f)).OutlineWidth, 1.0f);
}

TEST_F(DrawElements, OutlineFollowsTheTintsAlphaOnlyWhenAskedTo)
{
	FSlateRoundedBoxBrush Brush(FLinearColor::White, 3.0f, FLinearColor::Red, 1.0f);
	EXPECT_EQ(MakeBox(Brush, MakeGeometry(0.0f, 0.0f, 100.0f, 30.0f), HalfBlack).OutlineColour.A, 255);

	Brush.OutlineSettings.bUseBrushTransparency = true;
	EXPECT_EQ(MakeBox(Brush, MakeGeometry(0.0f, 0.0f, 100.0f, 30.0f), HalfBlack).OutlineColour.A, 128);
}

TEST_F(DrawElements, TintIsTheWholeTint)
{
	FSlateColorBrush Brush(FLinearColor::Red);

	EXPECT_EQ(MakeBox(Brush, MakeGeometry(0.0f, 0.0f, 10.0f, 10.0f), FLinearColor::Green).Colour, FColor(0, 255, 0, 255)) << "the painter has multiplied the brush's own tint in";
}

TEST_F(DrawElements, LinearTintsBecomeSrgb)
{
	EXPECT_EQ(MakeBox(FSlateColorBrush(White), MakeGeometry(0.0f, 0.0f, 10.0f, 10.0f), FLinearColor(0.2140411f, 0.0f, 1.0f, 0.5f)).Colour, FColor(127, 0, 255, 128));
}

TEST_F(DrawElements, DisabledEffectFadesAndGreys)
{
	const FColor Colour = MakeBox(FSlateColorBrush(White), MakeGeometry(0.0f, 0.0f, 10.0f, 10.0f), FLinearColor::Red, ESlateDrawEffect::DisabledEffect).Colour;

	EXPECT_LT(Colour.A, 160);
	EXPECT_GT(Colour.G, 60);
}

TEST_F(DrawElements, NothingIsMadeOfWhatCannotBeSeen)
{
	const FSlateNoResource Nothing;
	const FSlateColorBrush Brush(White);
	const FSlateRoundedBoxBrush Rounded(FLinearColor::White, 3.0f);
	const FPaintGeometry Geometry = MakeGeometry(0.0f, 0.0f, 10.0f, 10.0f);

	FSlateDrawElement::MakeBox(List, 0, Geometry, nullptr);
	FSlateDrawElement::MakeBox(List, 0, Geometry, &Nothing);
	FSlateDrawElement::MakeBox(List, 0, Geometry, &Brush, ESlateDrawEffect::None, FLinearColor::Transparent);
	FSlateDrawElement::MakeBox(List, 0, Geometry, &Rounded, ESlateDrawEffect::None, FLinearColor::Transparent);
	FSlateDrawElement::MakeBox(List, 0, MakeGeometry(0.0f, 0.0f, 0.0f, 10.0f), &Brush);
	FSlateDrawElement::MakeBox(List, 0, MakeGeometry(NAN, 0.0f, 10.0f, 10.0f), &Brush);
	FSlateDrawElement::MakeText(List, 0, Geometry, FString(), FSlateFontInfo());
	FSlateDrawElement::MakeLines(List, 0, Geometry, { FVector2f(1.0f, 1.0f), FVector2f(1.0f, 1.0f) });
	List.PushClip(FSlateClippingZone(FSlateRect(50.0f, 50.0f, 60.0f, 60.0f)));
	FSlateDrawElement::MakeBox(List, 0, Geometry, &Brush);
	List.PopClip();

	EXPECT_EQ(Elements.Num(), 0);
	EXPECT_EQ(List.GetNumAppended(), 0);
}

TEST_F(DrawElements, TransparentBoxWithAnOutlineIsMade)
{
	const FSlateRoundedBoxBrush Brush(FLinearColor::White, 3.0f, FLinearColor::Red, 1.0f);

	EXPECT_EQ(MakeBox(Brush, MakeGeometry(0.0f, 0.0f, 10.0f, 10.0f), FLinearColor::Transparent).OutlineColour, FColor(255, 0, 0, 255));
}

TEST_F(DrawElements, LayersOrderTheElementsOfAWidget)
{
	const FSlateColorBrush Brush(White);
	for (const uint32 Layer : { 3u, 1u, 2u, 1u })
	{
		FSlateDrawElement::MakeBox(List, Layer, MakeGeometry(static_cast<float>(Elements.Num()), 0.0f, 10.0f, 10.0f), &Brush);
	}

	ASSERT_EQ(Elements.Num(), 4);
	EXPECT_EQ(Elements[0].Layer, 1);
	EXPECT_EQ(Elements[1].Layer, 1);
	EXPECT_LT(Elements[0].Bounds.Left, Elements[1].Bounds.Left) << "equal layers keep their order";
	EXPECT_EQ(Elements[2].Layer, 2);
	EXPECT_EQ(Elements[3].Layer, 3);
}

TEST_F(DrawElements, ClipsAreNestedAndUndone)
{
	const FSlateColorBrush Brush(White);
	const FPaintGeometry Geometry = MakeGeometry(0.0f, 0.0f, 100.0f, 100.0f);
	List.PushClip(FSlateClippingZone(FSlateRect(10.0f, 10.0f, 60.0f, 60.0f)));
	List.PushClip(FSlateClippingZone(FSlateRect(20.4f, 0.0f, 90.0f, 30.6f)));

	EXPECT_EQ(MakeBox(Brush, Geometry).Bounds, FPixelRect::Make(20, 10, 60, 31));
	List.PopClip();
	EXPECT_EQ(MakeBox(Brush, Geometry).Bounds, FPixelRect::Make(10, 10, 60, 60));
	List.PopClip();
	EXPECT_EQ(MakeBox(Brush, Geometry).Bounds, FPixelRect::Make(0, 0, 100, 100));
}

TEST_F(DrawElements, RotatedClipsAreKeptWithTheElement)
{
	const FSlateColorBrush Brush(White);
	List.PushClip(FSlateClippingZone(FVector2f(50.0f, 0.0f), FVector2f(100.0f, 50.0f), FVector2f(0.0f, 50.0f), FVector2f(50.0f, 100.0f)));
	const FDrawElement Box = MakeBox(Brush, MakeGeometry(0.0f, 0.0f, 200.0f, 200.0f));
	List.PopClip();

	EXPECT_EQ(Box.Bounds, FPixelRect::Make(0, 0, 100, 100));
	ASSERT_TRUE(Box.ClipQuads.IsValid());
	EXPECT_EQ(Box.ClipQuads->Quads.Num(), 1);
	for (const FClipQuad::FEdge& Edge : Box.ClipQuads->Quads[0].Edges)
	{
		EXPECT_GT(Edge.A * 50.0f + Edge.B * 50.0f + Edge.C, 0.0f) << "the middle is inside";
		EXPECT_NEAR(Edge.A * Edge.A + Edge.B * Edge.B, 1.0f, 1e-5f);
	}
}

TEST_F(DrawElements, TurnedGeometryKeepsItsTransform)
{
	const FDrawElement& Box = MakeBox(FSlateRoundedBoxBrush(FLinearColor::White, 3.0f), MakeTurnedGeometry(50.0f, 20.0f, 10.0f, 30.0f, 1.5707963f));

	EXPECT_FALSE(Box.HasFlag(EDrawElementFlags::Translated));
	EXPECT_NEAR(Box.LocalToPixel.Xy, 1.0f, 1e-6f) << "local right points down";
	EXPECT_EQ(Box.LocalSize, FVector2f(10.0f, 30.0f));
	EXPECT_LE(Box.Bounds.Left, 20);
	EXPECT_GE(Box.Bounds.Right, 50);
	EXPECT_LE(Box.Bounds.Bottom, 31);
}

TEST_F(DrawElements, HugeBoxesCoverWhatIsVisibleOfThem)
{
	MakeBox(FSlateRoundedBoxBrush(FLinearColor::Red, 8.0f), MakeGeometry(-1.0e9f, -5.0e7f, 2.0e9f, 1.0e8f), FLinearColor::Red);

	const FPicture Picture = ElementScene::Draw(*ElementScene::MakeCpu(), FIntPoint(64, 48), Elements);

	for (const FColor& Pixel : Picture.Pixels)
	{
		ASSERT_EQ(Pixel, FColor(255, 0, 0, 255));
	}
}

TEST_F(DrawElements, ExtremeGeometryDoesNoHarm)
{
	const float Values[] = { 0.0f, 1.0f, -1.0f, 0.5f, 1.0e-30f, 1.0e-6f, 3.0e4f, -3.0e5f, 1.0e9f, -1.0e20f, 1.0e30f, 3.4e38f };
	constexpr uint32 NumValues = UE_ARRAY_COUNT(Values);
	const FSlateRoundedBoxBrush Rounded(FLinearColor::White, 8.0f, FLinearColor::Red, 2.0f);
	const FSlateColorBrush Plain(White);
	FSlateFontInfo Info;
	const TSharedRef<const FTexture> Texture = ElementScene::MakeTestTexture(8, 8);
	const TSharedPtr<FSlateRenderer> Cpu = ElementScene::MakeCpu();
	uint32 State = 1;
	const auto Pick = [&State, &Values]
	{
		State = State * 1664525u + 1013904223u;
		return Values[(State >> 16) % NumValues];
	};
	for (int32 Round = 0; Round < 400; ++Round)
	{
		const FMatrix2x2f Matrix(Pick(), Pick(), Pick(), Pick());
		const FVector2f Translation(Pick(), Pick());
		const FPaintGeometry Geometry(FSlateLayoutTransform(1.0f, Translation), FSlateRenderTransform(Matrix, Translation), FVector2f(Pick(), Pick()), true);
		Elements.Reset();
		List.PushClip(FSlateClippingZone(Geometry));
		FSlateDrawElement::MakeBox(List, 0, MakeGeometry(0.0f, 0.0f, 20.0f, 20.0f), &Rounded);
		List.PopClip();
		FSlateDrawElement::MakeBox(List, 0, Geometry, &Rounded);
		FSlateDrawElement::MakeBox(List, 0, Geometry, &Plain);
		FSlateDrawElement::MakeTexture(List, 0, Geometry, Texture);
		FSlateDrawElement::MakeText(List, 0, Geometry, FString(TEXT("Text")), Info);
		FSlateDrawElement::MakeLines(List, 0, Geometry, { FVector2f(Pick(), Pick()), FVector2f(Pick(), Pick()), FVector2f(Pick(), Pick()) });
		const FPicture Picture = ElementScene::Draw(*Cpu, FIntPoint(24, 16), Elements);
		ASSERT_EQ(Picture.Pixels.Num(), 24 * 16);
	}
}

TEST_F(DrawElements, WidgetsNest)
{
	const FSlateColorBrush Brush(White);
	TArray<FDrawElement> Inner;
	List.BeginWidget(Inner);
	FSlateDrawElement::MakeBox(List, 0, MakeGeometry(0.0f, 0.0f, 10.0f, 10.0f), &Brush);
	List.EndWidget();
	FSlateDrawElement::MakeBox(List, 0, MakeGeometry(0.0f, 0.0f, 10.0f, 10.0f), &Brush);

	EXPECT_EQ(Inner.Num(), 1);
	EXPECT_EQ(Elements.Num(), 1);
	EXPECT_EQ(List.GetNumAppended(), 2);
}

TEST_F(DrawElements, TextBaselineStandsOnAWholePixel)
{
	FSlateFontInfo Info;
	Info.Size = 12.0f;
	FSlateDrawElement::MakeText(List, 0, MakeGeometry(10.3f, 20.4f, 100.0f, 20.0f), FString(TEXT("Text")), Info);

	ASSERT_EQ(Elements.Num(), 1);
	EXPECT_EQ(Elements[0].LocalToPixel.Y, std::floor(Elements[0].LocalToPixel.Y));
	EXPECT_FLOAT_EQ(Elements[0].LocalToPixel.X, 10.3f);
	EXPECT_TRUE(Elements[0].HasFlag(EDrawElementFlags::Translated));
	EXPECT_NE(Elements[0].GetRun(), nullptr);
}

TEST_F(DrawElements, ScaledTextIsShapedForItsScale)
{
	FSlateFontInfo Info;
	Info.Size = 12.0f;
	FSlateDrawElement::MakeText(List, 0, MakeGeometry(0.0f, 0.0f, 100.0f, 20.0f, 2.0f), FString(TEXT("Text")), Info);

	ASSERT_EQ(Elements.Num(), 1);
	EXPECT_FLOAT_EQ(Elements[0].GetRun()->GetFont().GetPixelSize(), 32.0f);
	EXPECT_EQ(Elements[0].LocalToPixel.Xx, 1.0f);
}

TEST_F(DrawElements, LinesAreKeptInPixels)
{
	FSlateDrawElement::MakeLines(List, 0, MakeGeometry(10.0f, 20.0f, 100.0f, 100.0f, 2.0f), { FVector2f(0.0f, 0.0f), FVector2f(5.0f, 0.0f) }, ESlateDrawEffect::None, FLinearColor::Red, true, 3.0f);

	ASSERT_EQ(Elements.Num(), 1);
	ASSERT_NE(Elements[0].GetLines(), nullptr);
	EXPECT_EQ(Elements[0].GetLines()->Points[1], FVector2f(20.0f, 20.0f));
	EXPECT_EQ(Elements[0].GetLines()->Thickness, 6.0f);
	EXPECT_EQ(Elements[0].Bounds, FPixelRect::Make(6, 16, 24, 24));
}

TEST_F(DrawElements, TexturesShowThroughTheirOwnMaker)
{
	const TSharedRef<const FTexture> Texture = ElementScene::MakeTestTexture(8, 8);
	FSlateDrawElement::MakeTexture(List, 0, MakeGeometry(1.0f, 2.0f, 16.0f, 16.0f), Texture);

	ASSERT_EQ(Elements.Num(), 1);
	EXPECT_EQ(Elements[0].GetTexture(), &*Texture);
	EXPECT_EQ(Elements[0].Kind, EDrawElementKind::Image);
}

namespace
{
	TSharedPtr<const FTexture> PictureOfEverything;

	/** A brush whose resource is some object, with a resolver that gives every object the same picture. */
	class BrushPictures : public DrawElements
	{
	protected:
		BrushPictures()
		{
			PictureOfEverything = ElementScene::MakeTestTexture(20, 10);
			FBrushTextures::Register(&Resolve);
			Brush.SetResourceObject(UObject::StaticClass());
			Brush.ImageSize = FVector2f(20.0f, 10.0f);
		}

		~BrushPictures() override
		{
			FBrushTextures::Unregister(&Resolve);
			PictureOfEverything.Reset();
		}

		static TSharedPtr<const FTexture> Resolve(UObject&) { return PictureOfEverything; }

		FSlateBrush Brush;
	};
}

TEST_F(BrushPictures, ImageBrushStretchesItsPicture)
{
	const FDrawElement& Image = MakeBox(Brush, MakeGeometry(0.0f, 0.0f, 50.0f, 40.0f));

	EXPECT_EQ(Image.Kind, EDrawElementKind::Image);
	EXPECT_EQ(Image.GetTexture(), PictureOfEverything.Get());
	EXPECT_EQ(Image.TextureArea, FTextureArea());
}

TEST_F(BrushPictures, TilingRepeatsByImageSize)
{
	Brush.Tiling = ESlateBrushTileType::Horizontal;
	const FDrawElement& Image = MakeBox(Brush, MakeGeometry(0.0f, 0.0f, 50.0f, 40.0f, 2.0f));

	EXPECT_TRUE(Image.HasFlag(EDrawElementFlags::Tiled));
	EXPECT_EQ(Image.TextureArea, (FTextureArea{ 0.0f, 0.0f, 2.5f, 1.0f }));
}

TEST_F(BrushPictures, MirroringTurnsThePictureRound)
{
	Brush.Mirroring = ESlateBrushMirrorType::Both;

	EXPECT_EQ(MakeBox(Brush, MakeGeometry(0.0f, 0.0f, 50.0f, 40.0f)).TextureArea, (FTextureArea{ 1.0f, 1.0f, 0.0f, 0.0f }));
}

TEST_F(BrushPictures, BoxBrushKeepsItsMarginsInPicturePixels)
{
	Brush.DrawAs = ESlateBrushDrawType::Box;
	Brush.Margin = FMargin(0.25f, 0.5f);
	const FDrawElement& Box = MakeBox(Brush, MakeGeometry(0.0f, 0.0f, 50.0f, 40.0f, 2.0f));

	EXPECT_EQ(Box.Kind, EDrawElementKind::Sliced);
	EXPECT_EQ(Box.Margins, (FSliceMargins{ 10.0f, 10.0f, 10.0f, 10.0f }));
	EXPECT_EQ(Box.TextureMargins, (FSliceMargins{ 0.25f, 0.5f, 0.25f, 0.5f }));
	EXPECT_FALSE(Box.HasFlag(EDrawElementFlags::Frame));
}

TEST_F(BrushPictures, MarginsThatDoNotFitAreScaledDown)
{
	Brush.DrawAs = ESlateBrushDrawType::Box;
	Brush.Margin = FMargin(0.5f, 0.5f, 0.25f, 0.5f);
	const FDrawElement& Box = MakeBox(Brush, MakeGeometry(0.0f, 0.0f, 6.0f, 40.0f));

	EXPECT_EQ(Box.Margins.Left, 4.0f);
	EXPECT_EQ(Box.Margins.Right, 2.0f);
}

TEST_F(BrushPictures, BorderBrushIsAFrame)
{
	Brush.DrawAs = ESlateBrushDrawType::Border;
	Brush.Margin = FMargin(0.25f);

	EXPECT_TRUE(MakeBox(Brush, MakeGeometry(0.0f, 0.0f, 60.0f, 40.0f)).HasFlag(EDrawElementFlags::Frame));
}

TEST_F(BrushPictures, RoundedBoxBrushShowsItsPictureWithinItsCorners)
{
	Brush.DrawAs = ESlateBrushDrawType::RoundedBox;
	Brush.OutlineSettings = FSlateBrushOutlineSettings(6.0f);
	const FDrawElement& Box = MakeBox(Brush, MakeGeometry(0.0f, 0.0f, 60.0f, 40.0f));

	EXPECT_EQ(Box.Kind, EDrawElementKind::Box);
	EXPECT_EQ(Box.Radii.TopLeft, 6.0f);
	EXPECT_EQ(Box.GetTexture(), PictureOfEverything.Get());
}

namespace
{
	/** What marks of check boxes and arrows of combo boxes are made of. */
	class Drawings : public DrawElements
	{
	protected:
		const FCheckBoxStyle& CheckBox = FCoreStyle::Get().GetWidgetStyle<FCheckBoxStyle>("Checkbox");
		const FSlateBrush& Arrow = FCoreStyle::Get().GetWidgetStyle<FComboBoxStyle>("ComboBox").ComboButtonStyle.DownArrowImage;

		void Make(const FSlateBrush& Brush, const FPaintGeometry& Geometry, const FLinearColor& Tint)
		{
			Elements.Reset();
			FSlateDrawElement::MakeBox(List, 0, Geometry, &Brush, ESlateDrawEffect::None, Tint);
		}

		/** The colour of the mark on a fill. */
		FColor GetMarkColour(const FLinearColor& Fill)
		{
			Make(CheckBox.CheckedImage, MakeGeometry(0.0f, 0.0f, 16.0f, 16.0f), Fill);
			return Elements.Last().Colour;
		}
	};
}

TEST_F(Drawings, MarkLiesOverTheFillOfItsBox)
{
	for (const FSlateBrush* Brush : {&CheckBox.CheckedImage, &CheckBox.UndeterminedImage})
	{
		Make(*Brush, MakeGeometry(10.0f, 10.0f, 16.0f, 16.0f), Brush->TintColor.GetSpecifiedColor());
		ASSERT_EQ(Elements.Num(), 2);
		EXPECT_EQ(Elements[0].Kind, EDrawElementKind::Box);
		ASSERT_EQ(Elements[1].Kind, EDrawElementKind::Lines);
		EXPECT_EQ(Elements[1].Colour, FColor(255, 255, 255));
		EXPECT_TRUE(Elements[0].Bounds.Contains(Elements[1].Bounds));
	}
	Make(CheckBox.UncheckedImage, MakeGeometry(10.0f, 10.0f, 16.0f, 16.0f), White);
	EXPECT_EQ(Elements.Num(), 1);
}

TEST_F(Drawings, MarkStandsOutFromLightAndDarkFills)
{
	EXPECT_EQ(GetMarkColour(FLinearColor(0.1f, 0.1f, 0.1f)), FColor(255, 255, 255));
	EXPECT_EQ(GetMarkColour(FLinearColor(0.0f, 0.2f, 1.0f)), FColor(255, 255, 255));
	EXPECT_EQ(GetMarkColour(FLinearColor(0.9f, 0.9f, 0.9f)), FColor(0, 0, 0));
	EXPECT_EQ(GetMarkColour(FLinearColor(0.1f, 0.1f, 0.1f, 0.5f)).A, 128);
}

TEST_F(Drawings, ArrowIsAStrokeInTheTint)
{
	Make(Arrow, MakeGeometry(0.0f, 0.0f, 10.0f, 10.0f), FLinearColor(1.0f, 0.0f, 0.0f));
	ASSERT_EQ(Elements.Num(), 1);
	ASSERT_EQ(Elements[0].Kind, EDrawElementKind::Lines);
	EXPECT_EQ(Elements[0].Colour, FColor(255, 0, 0));
	const FLinePoints& Lines = *Elements[0].GetLines();
	ASSERT_EQ(Lines.Points.Num(), 3);
	// It points down, and is as wide on both sides.
	EXPECT_GT(Lines.Points[1].Y, Lines.Points[0].Y);
	EXPECT_EQ(Lines.Points[0].Y, Lines.Points[2].Y);
	EXPECT_FLOAT_EQ(Lines.Points[1].X - Lines.Points[0].X, Lines.Points[2].X - Lines.Points[1].X);
}

TEST_F(Drawings, StrokesGrowWithTheScaleAndKeepToTheirBox)
{
	for (const float Scale : {0.75f, 1.0f, 1.25f, 1.5f, 2.0f, 3.0f})
	{
		Make(Arrow, MakeGeometry(10.3f, 20.6f, 10.0f, 10.0f, Scale), White);
		const float Left = std::floor(10.3f + 0.5f);
		const float Side = std::floor(10.3f + 10.0f * Scale + 0.5f) - Left;
		const FLinePoints& Lines = *Elements[0].GetLines();
		EXPECT_NEAR(Lines.Thickness, 0.15f * Side, 0.15f) << Scale;
		EXPECT_GE(Lines.Points[0].X - 0.5f * Lines.Thickness, Left) << Scale;
		EXPECT_LE(Lines.Points[2].X + 0.5f * Lines.Thickness, Left + Side) << Scale;
		EXPECT_FLOAT_EQ(Lines.Points[1].X, Left + 0.5f * Side) << Scale;
	}
}

TEST_F(Drawings, TurnWithTheirGeometry)
{
	Make(Arrow, MakeTurnedGeometry(100.0f, 100.0f, 10.0f, 10.0f, static_cast<float>(UE_PI) * 0.5f), White);
	const FLinePoints& Lines = *Elements[0].GetLines();
	// A quarter turn clockwise: it points to the left.
	EXPECT_LT(Lines.Points[1].X, Lines.Points[0].X);
	EXPECT_NEAR(Lines.Points[0].X, Lines.Points[2].X, 0.001f);
	EXPECT_NEAR(Lines.Thickness, 1.5f, 0.01f);
}
