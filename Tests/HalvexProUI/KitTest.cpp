#include "KitTest.h"

#include "Components/CanvasPanel.h"
#include "Components/CanvasPanelSlot.h"
#include "Engine/Engine.h"
#include "Engine/GameInstance.h"
#include "Host/SlateRoot.h"
#include "Styling/SlateTypes.h"
#include "Widgets/HxButton.h"
#include "Widgets/HxButtonGroup.h"
#include "Widgets/SWindow.h"

namespace
{
	std::string ToHex(const FColor& Color)
	{
		return Host::ToStd(Color.ToHex());
	}

	FSlateBrush MakeTintedBox(const FLinearColor& Tint)
	{
		FSlateBrush Brush;
		Brush.DrawAs = ESlateBrushDrawType::RoundedBox;
		Brush.TintColor = FSlateColor(Tint);
		return Brush;
	}

	const Host::FDrawElement* FindKind(const TArray<Host::FDrawElement>& Elements, bool bText)
	{
		return Elements.FindByPredicate([bText](const Host::FDrawElement& Element) { return (Element.Kind == Host::EDrawElementKind::Glyphs) == bText; });
	}
}

void FKitTest::SetUp()
{
	Host::FEngineTest::SetUp();
	Recorder.Reset(NewObject<UKitTestRecorder>());
	StartScreen();
}

void FKitTest::TearDown()
{
	Screen.Reset();
	Recorder.Reset();
	Host::FEngineTest::TearDown();
}

void FKitTest::StartScreen()
{
	if (Screen && Screen->IsInViewport())
	{
		Screen->RemoveFromParent();
	}
	Screen.Reset(CreateWidget<UKitTestScreen>(GEngine->GetGameInstance()));
	Screen->WidgetTree->RootWidget = Make<UCanvasPanel>();
}

void FKitTest::Place(UWidget& Widget, double X, double Y, FVector2D Size)
{
	UCanvasPanelSlot* Slot = CastChecked<UCanvasPanel>(Screen->WidgetTree->RootWidget)->AddChildToCanvas(&Widget);
	Slot->SetPosition(FVector2D(X, Y));
	Slot->SetAutoSize(Size.IsZero());
	Slot->SetSize(Size);
}

void FKitTest::Show()
{
	Screen->AddToViewport();
	Settle();
}

void FKitTest::ShowInDesigner()
{
	Screen->SetDesignerFlags(EWidgetDesignFlags::Designing);
	Show();
}

void FKitTest::MoveAway()
{
	Driver.MoveTo(FVector2D(-10.0, -10.0));
}

void FKitTest::Listen(UHxButton& Button)
{
	Button.OnButtonSelectionChange.AddDynamic(Recorder.Get(), &UKitTestRecorder::OnButtonSelectionChange);
	Button.OnClickWithID.AddDynamic(Recorder.Get(), &UKitTestRecorder::OnClickWithID);
}

void FKitTest::ListenToHover(UButton& Button)
{
	Button.OnHovered.AddDynamic(Recorder.Get(), &UKitTestRecorder::OnHovered);
	Button.OnUnhovered.AddDynamic(Recorder.Get(), &UKitTestRecorder::OnUnhovered);
}

void FKitTest::Listen(UHxButtonGroup& Group)
{
	Group.OnClearSelection.AddDynamic(Recorder.Get(), &UKitTestRecorder::OnGroupCleared);
	Group.OnSelectionChange.AddDynamic(Recorder.Get(), &UKitTestRecorder::OnGroupChanged);
}

TArray<Host::FDrawElement> FKitTest::GetPainted(const UWidget& Widget) const
{
	const FGeometry& Geometry = Widget.GetCachedGeometry();
	const FVector2D TopLeft(Geometry.LocalToAbsolute(FVector2D(0.0, 0.0)));
	const FVector2D BottomRight(Geometry.LocalToAbsolute(FVector2D(Geometry.GetLocalSize())));
	// Antialiasing may touch one pixel more.
	const Host::FPixelRect Area = Host::FPixelRect::Around(TopLeft.X - 1.0, TopLeft.Y - 1.0, BottomRight.X + 1.0, BottomRight.Y + 1.0);
	TArray<Host::FDrawElement> Painted;
	Loop.GetWindow()->GetRoot().ForEachElement(Area, [&](TConstArrayView<Host::FDrawElement> Elements)
	{
		for (const Host::FDrawElement& Element : Elements)
		{
			// What reaches beyond lies behind; but the ink of a text may be larger than its line.
			const bool bText = Element.Kind == Host::EDrawElementKind::Glyphs;
			const int32 MiddleX = (Element.Bounds.Left + Element.Bounds.Right) / 2;
			const int32 MiddleY = (Element.Bounds.Top + Element.Bounds.Bottom) / 2;
			if (Area.Contains(bText ? Host::FPixelRect::Make(MiddleX, MiddleY, MiddleX + 1, MiddleY + 1) : Element.Bounds))
			{
				Painted.Add(Element);
			}
		}
	});
	return Painted;
}

std::string FKitTest::GetPaintedBoxColour(const UWidget& Widget) const
{
	const TArray<Host::FDrawElement> Painted = GetPainted(Widget);
	const Host::FDrawElement* Box = FindKind(Painted, false);
	return Box ? ToHex(Box->Colour) : "nothing";
}

std::string FKitTest::GetPaintedTextColour(const UWidget& Widget) const
{
	const TArray<Host::FDrawElement> Painted = GetPainted(Widget);
	const Host::FDrawElement* Text = FindKind(Painted, true);
	return Text ? ToHex(Text->Colour) : "nothing";
}

std::string FKitTest::GetPaintedText(const UWidget& Widget) const
{
	FString Text;
	for (const Host::FDrawElement& Element : GetPainted(Widget))
	{
		if (const Host::FShapedRun* Run = Element.GetRun())
		{
			Text += FString(Run->GetText());
		}
	}
	return Host::ToStd(Text);
}

FVector2D FKitTest::GetPaintedBoxSize(const UWidget& Widget) const
{
	const TArray<Host::FDrawElement> Painted = GetPainted(Widget);
	const Host::FDrawElement* Box = FindKind(Painted, false);
	return Box ? FVector2D(Box->LocalSize) : FVector2D(0.0, 0.0);
}

FButtonStyle FKitTest::MakeTellingStyle()
{
	return FButtonStyle()
		.SetNormal(MakeTintedBox(FLinearColor(0.0f, 0.0f, 1.0f)))
		.SetHovered(MakeTintedBox(FLinearColor(0.0f, 1.0f, 0.0f)))
		.SetPressed(MakeTintedBox(FLinearColor(1.0f, 0.0f, 0.0f)))
		.SetDisabled(MakeTintedBox(FLinearColor(1.0f, 1.0f, 0.0f)));
}

std::string FKitTest::GetLook(const UButton& Button) const
{
	const std::string Colour = GetPaintedBoxColour(Button);
	const std::string Opaque = Colour.substr(0, 6);
	return Opaque == "0000FF" ? "normal" : Opaque == "00FF00" ? "hovered" : Opaque == "FF0000" ? "pressed" : Opaque == "FFFF00" ? "disabled" : Colour;
}
