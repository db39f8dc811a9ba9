#include "KitTest.h"

#include "Components/CanvasPanelSlot.h"
#include "Host/PropertyEdit.h"
#include "KitReflection.h"
#include "Widgets/HxBorder.h"
#include "Widgets/HxText.h"

namespace
{
	using namespace KitReflection;

	class FHxBorderTest : public FKitTest
	{
	protected:
		void MakeBorder(FVector2D Size = FVector2D(200.0, 60.0))
		{
			Border = Make<UHxBorder>(TEXT("Border"));
			Place(*Border, 100.0, 100.0, Size);
		}

		void ShowBorder()
		{
			MakeBorder();
			Show();
		}

		std::string GetColour() const { return Host::ToStd(Border->GetBrushColor().ToFColor(true).ToHex()); }

		UHxBorder* Border = nullptr;
	};

	TEST_F(FHxBorderTest, PropertiesStandInTheirOrderWithTheirTypes)
	{
		const UClass* Class = UHxBorder::StaticClass();
		EXPECT_EQ(Class->GetSuperClass(), UBorder::StaticClass());
		EXPECT_EQ(ListNames(Class), "ColorID CornerStyle SizeOverride");
		EXPECT_EQ(ListOutsideCategory(Class, TEXT("HalvexBorder")), "");
		EXPECT_EQ(GetType(Class, TEXT("ColorID")), "FHalvexColorHandler");
		EXPECT_EQ(GetType(Class, TEXT("CornerStyle")), "FHalvexCornerStyle");
		EXPECT_EQ(GetType(Class, TEXT("SizeOverride")), "FHalvexSizeOverride");
		for (const TCHAR* Name : { TEXT("ColorID"), TEXT("CornerStyle"), TEXT("SizeOverride") })
		{
			EXPECT_TRUE(GetMember(Class, Name).HasAnyPropertyFlags(CPF_Edit));
		}
	}

	TEST_F(FHxBorderTest, DefaultIsSecondaryWithRoundCornersOfFive)
	{
		const UHxBorder* Default = GetDefault<UHxBorder>();
		EXPECT_EQ(Default->ColorID.ColorMode, EColorHandlerMode::ECHM_ColorStyle);
		EXPECT_EQ(Default->ColorID.ColorID, FName(TEXT("Secondary")));
		EXPECT_FALSE(Default->ColorID.bUseContrast);
		EXPECT_FALSE(Default->ColorID.bOverrideOpacity);
		EXPECT_TRUE(Default->CornerStyle.bUseUniformCorner);
		EXPECT_EQ(Default->CornerStyle.UniformCorner, 5.0f);
		EXPECT_EQ(Default->CornerStyle.CornerRadius, FVector4(5.0, 5.0, 5.0, 5.0));
		EXPECT_EQ(Default->CornerStyle.RoundingType.GetValue(), ESlateBrushRoundingType::FixedRadius);
		EXPECT_TRUE(Default->SizeOverride.bUseOverride);
		EXPECT_EQ(Default->SizeOverride.SizeOverride, FVector2D(0.0, 0.0));
		EXPECT_FALSE(Default->SizeOverride.bUseAspectRatio);
		EXPECT_EQ(Default->SizeOverride.AspectRatio, 1.0f);
	}

	TEST_F(FHxBorderTest, FunctionsAreThoseThatBlueprintsCall)
	{
		EXPECT_EQ(Describe(UHxBorder::StaticClass(), TEXT("UpdateStyle")), "callable void UpdateStyle() in HalvexBorder");
		EXPECT_EQ(Describe(UHxBorder::StaticClass(), TEXT("SetColorByHandler")), "callable void SetColorByHandler(FHalvexColorHandler InColor) in HalvexBorder");
	}

	TEST_F(FHxBorderTest, PaletteListsItUnderTheProductsHeading)
	{
		EXPECT_EQ(DescribeText(Make<UHxBorder>()->GetPaletteCategory()), "HalvexWidget/HalvexWidget: Halvex Widget");
	}

	TEST_F(FHxBorderTest, IsPaintedInItsColourWithItsCornersOnTheFirstFrame)
	{
		ShowBorder();
		const TArray<Host::FDrawElement> Painted = GetPainted(*Border);
		ASSERT_EQ(Painted.Num(), 1);
		EXPECT_EQ(Painted[0].Kind, Host::EDrawElementKind::Box);
		EXPECT_EQ(Painted[0].Radii, (Host::FCornerRadii{ 5.0f, 5.0f, 5.0f, 5.0f }));
		EXPECT_EQ(Painted[0].LocalSize, FVector2f(200.0f, 60.0f));
		EXPECT_EQ(GetPaintedBoxColour(*Border), "FBFBFBFF");
	}

	TEST_F(FHxBorderTest, UpdateTakesOverColourAndCorners)
	{
		ShowBorder();
		Border->ColorID = FHalvexColorHandler(TEXT("Primary"), false);
		Border->CornerStyle.bUseUniformCorner = false;
		Border->CornerStyle.CornerRadius = FVector4(1.0, 2.0, 3.0, 4.0);
		Border->UpdateStyle();
		Settle();
		EXPECT_EQ(GetPaintedBoxColour(*Border), "7367F0FF");
		EXPECT_EQ(GetPainted(*Border)[0].Radii, (Host::FCornerRadii{ 1.0f, 2.0f, 3.0f, 4.0f }));
		Border->CornerStyle.RoundingType = ESlateBrushRoundingType::HalfHeightRadius;
		Border->UpdateStyle();
		Settle();
		EXPECT_EQ(GetPainted(*Border)[0].Radii, (Host::FCornerRadii{ 30.0f, 30.0f, 30.0f, 30.0f }));
		Border->CornerStyle.RoundingType = ESlateBrushRoundingType::FixedRadius;
		Border->CornerStyle.bUseUniformCorner = true;
		Border->CornerStyle.UniformCorner = 7.0f;
		Border->SynchronizeProperties();
		Settle();
		EXPECT_EQ(GetPainted(*Border)[0].Radii, (Host::FCornerRadii{ 7.0f, 7.0f, 7.0f, 7.0f }));
	}

	TEST_F(FHxBorderTest, BrushKeepsItsTint)
	{
		MakeBorder();
		Border->Background.TintColor = FSlateColor(FLinearColor::Green);
		Show();
		EXPECT_EQ(Border->Background.TintColor.GetSpecifiedColor(), FLinearColor::Green);
		EXPECT_EQ(Border->Background.DrawAs.GetValue(), ESlateBrushDrawType::RoundedBox);
	}

	TEST_F(FHxBorderTest, ColourByHandlerShowsAtOnce)
	{
		ShowBorder();
		Border->SetColorByHandler(FHalvexColorHandler(TEXT("Third"), true));
		EXPECT_EQ(Border->ColorID.ColorID, FName(TEXT("Third")));
		EXPECT_EQ(GetColour(), "7367F0FF");
		Settle();
		EXPECT_EQ(GetPaintedBoxColour(*Border), "7367F0FF");
	}

	TEST_F(FHxBorderTest, CustomColourAndOpacityOverride)
	{
		ShowBorder();
		FHalvexColorHandler Color;
		Color.ColorMode = EColorHandlerMode::ECHM_ColorCustom;
		Color.ColorCustom = FLinearColor(0.0f, 1.0f, 0.0f, 1.0f);
		Border->SetColorByHandler(Color);
		EXPECT_EQ(GetColour(), "00FF00FF");
		Color.bOverrideOpacity = true;
		Color.OpacityOverride = 0.5f;
		Border->SetColorByHandler(Color);
		EXPECT_EQ(GetColour(), "00FF0080");
	}

	TEST_F(FHxBorderTest, DisabledColourResolvesLikeAStyleColour)
	{
		ShowBorder();
		FHalvexColorHandler Color(TEXT("Danger"), false);
		Color.ColorMode = EColorHandlerMode::ECHM_Disable;
		Border->SetColorByHandler(Color);
		EXPECT_EQ(GetColour(), "EA5455FF");
	}

	TEST_F(FHxBorderTest, BoxOfTheSizeIsTheRootAndHoldsTheBorder)
	{
		ShowBorder();
		const TSharedPtr<SWidget> Root = Border->GetCachedWidget();
		ASSERT_TRUE(Root);
		EXPECT_EQ(Root->GetType(), FName(TEXT("SBox")));
		EXPECT_EQ(Root->GetChildren()->GetChildAt(0)->GetType(), FName(TEXT("SBorder")));
	}

	TEST_F(FHxBorderTest, SizeOverrideFixesTheDimensionsAboveZero)
	{
		UBorder* Engines = Make<UBorder>();
		Place(*Engines, 10.0, 10.0);
		MakeBorder(FVector2D(0.0, 0.0));
		Border->SizeOverride.SizeOverride = FVector2D(0.0, 120.0);
		Show();
		const FVector2D Content = Engines->GetDesiredSize();
		EXPECT_GT(Content.Y, 0.0);
		EXPECT_EQ(Border->GetDesiredSize(), FVector2D(Content.X, 120.0));
		Border->SizeOverride.SizeOverride = FVector2D(150.0, -20.0);
		Border->UpdateStyle();
		Settle();
		EXPECT_EQ(Border->GetDesiredSize(), FVector2D(150.0, Content.Y));
		Border->SizeOverride.bUseOverride = false;
		Border->UpdateStyle();
		Settle();
		EXPECT_EQ(Border->GetDesiredSize(), Content);
	}

	TEST_F(FHxBorderTest, AspectRatioStaysWhenItIsNoLongerUsed)
	{
		MakeBorder(FVector2D(100.0, 100.0));
		Border->SizeOverride.bUseAspectRatio = true;
		Border->SizeOverride.AspectRatio = 2.0f;
		Show();
		EXPECT_EQ(GetPaintedBoxSize(*Border), FVector2D(100.0, 50.0));
		Border->SizeOverride.bUseAspectRatio = false;
		Border->UpdateStyle();
		Settle();
		EXPECT_EQ(GetPaintedBoxSize(*Border), FVector2D(100.0, 50.0));
	}

	TEST_F(FHxBorderTest, HoldsContentThatComesAndGoes)
	{
		ShowBorder();
		UHxText* Text = Make<UHxText>();
		Text->SetText(FText::FromString(TEXT("Inside")));
		Border->SetContent(Text);
		Settle();
		EXPECT_EQ(GetPaintedText(*Border), "Inside");
		Border->SetContent(nullptr);
		Settle();
		EXPECT_EQ(GetPaintedText(*Border), "");
	}

	TEST_F(FHxBorderTest, CanBeStyledBeforeItIsShown)
	{
		MakeBorder();
		Border->SetColorByHandler(FHalvexColorHandler(TEXT("Primary"), false));
		EXPECT_EQ(GetColour(), "7367F0FF");
		Show();
		EXPECT_EQ(GetPaintedBoxColour(*Border), "7367F0FF");
	}

	TEST_F(FHxBorderTest, SlateSideGoesWhenItIsReleased)
	{
		ShowBorder();
		const TWeakPtr<SWidget> Root = Border->GetCachedWidget();
		Border->RemoveFromParent();
		Settle();
		EXPECT_FALSE(Root.IsValid());
		Border->UpdateStyle();
	}

	TEST_F(FHxBorderTest, EditingInTheDesignerRestyles)
	{
		MakeBorder();
		ShowInDesigner();
		FString Error;
		ASSERT_TRUE(Host::FPropertyEdit::SetFromText(Border, TEXT("ColorID.ColorID"), TEXT("Danger"), Error)) << Host::ToStd(Error);
		ASSERT_TRUE(Host::FPropertyEdit::SetFromText(Border, TEXT("CornerStyle.UniformCorner"), TEXT("11"), Error)) << Host::ToStd(Error);
		Settle();
		EXPECT_EQ(GetPaintedBoxColour(*Border), "EA5455FF");
		EXPECT_EQ(GetPainted(*Border)[0].Radii.TopLeft, 11.0f);
	}
}
