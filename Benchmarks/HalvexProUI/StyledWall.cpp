#include "StyledWall.h"

#include "Blueprint/WidgetTree.h"
#include "Components/HorizontalBox.h"
#include "Components/VerticalBox.h"
#include "Engine/Engine.h"
#include "Engine/GameViewportClient.h"
#include "EngineBenchmark.h"
#include "Framework/Application/SlateApplication.h"
#include "HalvexProUISettings.h"
#include "HalvexUISubsystem.h"
#include "Host/SlateLoop.h"
#include "Style/HalvexUIStyleConfiguration.h"
#include "UObject/GarbageCollection.h"
#include "UObject/Package.h"
#include "Widgets/SWindow.h"

namespace
{
	constexpr int32 NumColumns = 20;
	constexpr int32 NumRowsOfAScreen = 50;
}

FStyledWall::FStyledWall(int32 InNumButtons, EButtonContent InContent)
	: NumButtons(InNumButtons)
	, Content(InContent)
{
	// What does not fit on one screen gets a higher one: every widget is in view.
	const int32 NumScreens = FMath::DivideAndRoundUp(NumButtons, NumColumns * NumRowsOfAScreen);
	GetBenchmarkLoop().GetWindow()->SetCachedSize(FVector2D(1920.0, 1080.0 * NumScreens));
	Fill();
	Paint();
}

FStyledWall::~FStyledWall()
{
	Clear();
}

void FStyledWall::Fill()
{
	Tree.Reset(NewObject<UWidgetTree>());
	UVerticalBox* Column = Tree->ConstructWidget<UVerticalBox>();
	Tree->RootWidget = Column;
	UHorizontalBox* Row = nullptr;
	Buttons.Reserve(NumButtons);
	for (int32 Index = 0; Index < NumButtons; ++Index)
	{
		if (Index % NumColumns == 0)
		{
			Row = Tree->ConstructWidget<UHorizontalBox>();
			Column->AddChild(Row);
		}
		Buttons.Emplace(*Tree, Content, Index);
		Row->AddChild(&Buttons.Last().GetWidget());
	}
	Shown = Column->TakeWidget();
	GEngine->GameViewport->AddViewportWidgetContent(Shown.ToSharedRef());
}

void FStyledWall::Clear()
{
	GEngine->GameViewport->RemoveAllViewportWidgets();
	Tree->RootWidget->ReleaseSlateResources(true);
	Shown.Reset();
	Buttons.Empty();
	Tree.Reset();
	Paint();
	CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
}

void FStyledWall::Paint()
{
	Host::FSlateLoop::Refresh();
	GetBenchmarkLoop().GetWindow()->GetRoot().ClearDamage();
}

void FStyledWall::RunFrame()
{
	GetBenchmarkLoop().RunFrame(0.0);
}

void FStyledWall::HoverOver(int32 Index)
{
	const FGeometry& Geometry = Buttons[Index].GetWidget().GetCachedGeometry();
	const FVector2f Middle(Geometry.LocalToAbsolute(Geometry.GetLocalSize() / 2.0f));
	FSlateApplication::Get().ProcessMouseMoveEvent(FPointerEvent(0, Middle, Mouse, TSet<FKey>(), EKeys::Invalid, 0.0f, FModifierKeysState()));
	Mouse = Middle;
}

void FStyledWall::Click()
{
	FSlateApplication& Application = FSlateApplication::Get();
	const TSet<FKey> Pressed = { EKeys::LeftMouseButton };
	Application.ProcessMouseButtonDownEvent(nullptr, FPointerEvent(0, Mouse, Mouse, Pressed, EKeys::LeftMouseButton, 0.0f, FModifierKeysState()));
	Application.ProcessMouseButtonUpEvent(FPointerEvent(0, Mouse, Mouse, TSet<FKey>(), EKeys::LeftMouseButton, 0.0f, FModifierKeysState()));
}

int32 FStyledWall::GetNumWidgets() const
{
	return Buttons.IsEmpty() ? 0 : Buttons.Num() * Buttons[0].GetNumWidgets();
}

void SwitchProjectStyle()
{
	static const TStrongObjectPtr<UHalvexUIStyleConfiguration> First(NewObject<UHalvexUIStyleConfiguration>(GetTransientPackage(), TEXT("FirstStyle")));
	static const TStrongObjectPtr<UHalvexUIStyleConfiguration> Second = []
	{
		UHalvexUIStyleConfiguration* Style = NewObject<UHalvexUIStyleConfiguration>(GetTransientPackage(), TEXT("SecondStyle"));
		Style->ColorStyleMap.FindChecked(TEXT("Primary")) = FColorKeyValues(FLinearColor::Black, FLinearColor::Yellow);
		Style->FontStyle.FontSizing.FindChecked(TEXT("extra-small")).FontSize = 7;
		return TStrongObjectPtr<UHalvexUIStyleConfiguration>(Style);
	}();
	static bool bSecond = false;
	bSecond = !bSecond;
	GetMutableDefault<UHalvexProUISettings>()->ProjectUIConfiguration = (bSecond ? Second : First).Get();
	UHalvexUISubsystem::Get()->RefreshSettingsReferences();
}
