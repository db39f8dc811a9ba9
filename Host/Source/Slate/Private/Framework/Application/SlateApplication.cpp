#include "Framework/Application/SlateApplication.h"

#include "Algo/Reverse.h"
#include "Framework/Application/FocusTracker.h"
#include "Framework/Application/MemoryCursor.h"
#include "Framework/Application/MenuStack.h"
#include "Framework/Application/PointerTracker.h"
#include "Framework/Application/TextInput.h"
#include "Framework/Application/ToolTipPresenter.h"
#include "Framework/Application/WindowSurfaces.h"
#include "Host/Clock.h"
#include "Host/SlateLoop.h"
#include "Host/WidgetActivity.h"
#include "Styling/CoreStyle.h"
#include "Widgets/SWindow.h"

DEFINE_LOG_CATEGORY_STATIC(LogSlate, Log, All);

FSlateApplication::FSlateApplication()
	: RememberedCursor(MakeShared<Host::FMemoryCursor>()), Cursor(RememberedCursor), Surfaces(MakeUnique<Host::FWindowSurfaces>()), Pointer(MakeUnique<Host::FPointerTracker>(*this))
	, Focus(MakeUnique<Host::FFocusTracker>(*this)), Menus(MakeUnique<Host::FMenuStack>(*this)), ToolTips(MakeUnique<Host::FToolTipPresenter>())
	, TextInput(MakeUnique<Host::FTextInput>())
	, CurrentTime(Host::FClock::Now())
{
}

FSlateApplication::~FSlateApplication() = default;

TSharedRef<FSlateApplication> FSlateApplication::Create()
{
	checkf(!IsInitialized(), TEXT("there is one Slate application"));
	const TSharedRef<FSlateApplication> Application = MakeShareable(new FSlateApplication);
	CurrentBaseApplication = Application;
	return Application;
}

void FSlateApplication::Shutdown()
{
	if (!IsInitialized())
	{
		return;
	}
	FSlateApplication& Application = Get();
	while (!Application.Windows.IsEmpty())
	{
		Application.DestroyWindowImmediately(Application.Windows.Last());
	}
	Application.Surfaces->Empty();
	if (Application.Renderer.IsValid())
	{
		Application.Renderer->Destroy();
		Application.Renderer.Reset();
	}
	CurrentBaseApplication.Reset();
}

bool FSlateApplication::InitializeRenderer(TSharedRef<FSlateRenderer> InRenderer)
{
	FString Error;
	if (!InRenderer->Initialize(Error))
	{
		UE_LOG(LogSlate, Error, TEXT("The renderer '%s' cannot be used: %s"), InRenderer->GetName(), *Error);
		return false;
	}
	Surfaces->Empty();
	Renderer = InRenderer;
	return true;
}

void FSlateApplication::Tick()
{
	CurrentTime = Host::FClock::Now();
	DeltaTime = static_cast<float>(Host::FClock::DeltaTime());
	DestroyRequestedWindows();
	Pointer->ValidateCapture();
	Focus->Validate();
	TextInput->Validate();
	Host::FWidgetActivity::BeginFrame(CurrentTime, DeltaTime);
	ToolTips->Tick();
	RefreshWindows();
	if (Menus->DismissOutdated())
	{
		RefreshWindows();
	}
	RefreshHovering();
	if (!Renderer.IsValid())
	{
		return;
	}
	for (const TSharedRef<SWindow>& Window : TArray<TSharedRef<SWindow>>(Windows))
	{
		Surfaces->Draw(Window.Get(), *Renderer);
	}
}

void FSlateApplication::RefreshWindows()
{
	for (const TSharedRef<SWindow>& Window : TArray<TSharedRef<SWindow>, TInlineAllocator<4>>(Windows))
	{
		Window->GetRoot().RunFrame(CurrentTime, DeltaTime);
	}
}

uint64 FSlateApplication::GetGeneration() const
{
	uint64 Generation = Windows.Num();
	for (const TSharedRef<SWindow>& Window : Windows)
	{
		Generation += Window->GetRoot().GetGeneration();
	}
	return Generation;
}

void FSlateApplication::RefreshHovering()
{
	const uint64 Generation = GetGeneration();
	if (Generation != HoveredGeneration)
	{
		HoveredGeneration = Generation;
		Pointer->RefreshHovering();
		RefreshWindows();
	}
}

TSharedRef<SWindow> FSlateApplication::AddWindow(TSharedRef<SWindow> InSlateWindow, const bool bShowImmediately)
{
	Windows.AddUnique(InSlateWindow);
	if (bShowImmediately)
	{
		InSlateWindow->ShowWindow();
	}
	SetActiveWindow(InSlateWindow);
	return InSlateWindow;
}

void FSlateApplication::SetActiveWindow(const TSharedPtr<SWindow>& Window)
{
	ActiveWindow = Window;
	if (Window.IsValid() && Windows.Last() != Window)
	{
		Windows.Remove(Window.ToSharedRef());
		Windows.Add(Window.ToSharedRef());
	}
	const TSharedPtr<SWidget> Again = WidgetToFocusAgain.Pin();
	const bool bFocusAgain = Window.IsValid() && Again.IsValid() && !Focus->GetWidget().IsValid() && FindWidgetWindow(Again.ToSharedRef()) == Window;
	const TSharedPtr<SWidget> WidgetToFocus = Window.IsValid() ? Window->GetWidgetToFocusOnActivate().Pin() : nullptr;
	if (WidgetToFocus.IsValid() || bFocusAgain)
	{
		SetUserFocus(0, WidgetToFocus.IsValid() ? WidgetToFocus : Again, EFocusCause::WindowActivate);
	}
	WidgetToFocusAgain.Reset();
}

void FSlateApplication::RequestDestroyWindow(TSharedRef<SWindow> WindowToDestroy)
{
	WindowsToDestroy.AddUnique(WindowToDestroy);
}

void FSlateApplication::DestroyRequestedWindows()
{
	while (!WindowsToDestroy.IsEmpty())
	{
		DestroyWindowImmediately(WindowsToDestroy.Pop());
	}
}

void FSlateApplication::DestroyWindowImmediately(TSharedRef<SWindow> WindowToDestroy)
{
	if (!Windows.Contains(WindowToDestroy))
	{
		return;
	}
	Menus->DismissOf(WindowToDestroy.Get());
	ToolTips->Close();
	Surfaces->Remove(WindowToDestroy.Get());
	Windows.Remove(WindowToDestroy);
	WindowsToDestroy.Remove(WindowToDestroy);
	Pointer->ValidateCapture();
	Focus->Validate();
	if (ActiveWindow.HasSameObject(&WindowToDestroy.Get()))
	{
		SetActiveWindow(Windows.IsEmpty() ? TSharedPtr<SWindow>() : TSharedPtr<SWindow>(Windows.Last()));
	}
	WindowToDestroy->NotifyWindowBeingDestroyed();
}

TSharedPtr<SWindow> FSlateApplication::FindWindow(const FGenericWindow* PlatformWindow) const
{
	const TSharedRef<SWindow>* Found = Windows.FindByPredicate([PlatformWindow](const TSharedRef<SWindow>& Window)
	{
		return Window->GetNativeWindow().Get() == PlatformWindow;
	});
	return Found ? TSharedPtr<SWindow>(*Found) : nullptr;
}

TSharedPtr<SWindow> FSlateApplication::FindWidgetWindow(TSharedRef<const SWidget> InWidget) const
{
	TSharedPtr<const SWidget> Top = InWidget;
	while (const TSharedPtr<SWidget> Parent = Top->GetParentWidget())
	{
		Top = Parent;
	}
	const TSharedRef<SWindow>* Found = Windows.FindByPredicate([&Top](const TSharedRef<SWindow>& Window) { return &Window.Get() == Top.Get(); });
	return Found ? TSharedPtr<SWindow>(*Found) : nullptr;
}

bool FSlateApplication::FindPathToWidget(TSharedRef<const SWidget> InWidget, FWidgetPath& OutWidgetPath) const
{
	OutWidgetPath = FWidgetPath();
	const TSharedPtr<SWindow> Window = FindWidgetWindow(InWidget);
	if (!Window.IsValid())
	{
		return false;
	}
	for (TSharedPtr<SWidget> Widget = ConstCastSharedRef<SWidget>(InWidget); Widget.IsValid(); Widget = Widget->GetParentWidget())
	{
		if (!Widget->GetVisibility().IsVisible())
		{
			OutWidgetPath = FWidgetPath();
			return false;
		}
		OutWidgetPath.Widgets.Add(FArrangedWidget(Widget.ToSharedRef(), Widget->GetCachedGeometry()));
	}
	Algo::Reverse(OutWidgetPath.Widgets);
	OutWidgetPath.TopLevelWindow = Window;
	return true;
}

FWidgetPath FSlateApplication::LocateWindowUnderMouse(FVector2D ScreenspaceMouseCoordinate, const TArray<TSharedRef<SWindow>>& InWindows, bool bIgnoreEnabledStatus)
{
	for (int32 Index = InWindows.Num() - 1; Index >= 0; --Index)
	{
		FWidgetPath Path(InWindows[Index], InWindows[Index]->GetRoot().HitTest(FVector2f(ScreenspaceMouseCoordinate)));
		if (!Path.IsValid())
		{
			continue;
		}
		const int32 FirstDisabled = bIgnoreEnabledStatus ? INDEX_NONE
			: Path.Widgets.IndexOfByPredicate([](const FArrangedWidget& Arranged) { return !Arranged.Widget->IsEnabled(); });
		if (FirstDisabled != INDEX_NONE)
		{
			Path.Widgets.RemoveAt(FirstDisabled, Path.Widgets.Num() - FirstDisabled);
		}
		return Path;
	}
	return FWidgetPath();
}

void FSlateApplication::OnWindowClose(const TSharedRef<FGenericWindow>& PlatformWindow)
{
	if (const TSharedPtr<SWindow> Window = FindWindow(&PlatformWindow.Get()))
	{
		Window->RequestDestroyWindow();
	}
}

bool FSlateApplication::OnSizeChanged(const TSharedRef<FGenericWindow>& PlatformWindow, const int32 Width, const int32 Height, bool bWasMinimized)
{
	const TSharedPtr<SWindow> Window = FindWindow(&PlatformWindow.Get());
	if (!Window.IsValid())
	{
		return false;
	}
	if (!bWasMinimized)
	{
		Menus->DismissOf(*Window);
		Window->SetCachedSize(FVector2D(Width, Height));
	}
	return true;
}

double Host::FSlateLoop::GetNextWakeTime()
{
	const FSlateApplication& Application = FSlateApplication::Get();
	const bool bFrameDue = !Application.WindowsToDestroy.IsEmpty()
		|| Application.Windows.ContainsByPredicate([&Application](const TSharedRef<SWindow>& Window)
		{
			const FSlateRoot& Root = Window->GetRoot();
			return Root.NeedsFrame() || (Application.Renderer.IsValid() && !Root.GetDamage().IsEmpty());
		});
	return bFrameDue ? FClock::Now() : FMath::Min(FWidgetActivity::GetNextTimerTime(), Application.ToolTips->GetShowTime());
}

void Host::FSlateLoop::Refresh()
{
	FSlateApplication::Get().RefreshWindows();
}

Host::FWindowSurface* Host::FSlateLoop::FindSurface(const SWindow& Window)
{
	return FSlateApplication::Get().Surfaces->Find(Window);
}

void Host::FSlateLoop::MouseLeft()
{
	FSlateApplication::Get().Pointer->Leave();
}

void Host::FSlateLoop::SetTextInputDevice(FTextInputDevice* Device)
{
	FSlateApplication::Get().TextInput->SetDevice(Device);
}

bool Host::FSlateLoop::ProcessComposition(const FString& Text, int32 CaretPosition)
{
	FSlateApplication& Application = FSlateApplication::Get();
	Application.RefreshWindows();
	return Application.TextInput->Compose(Text, FMath::Clamp(CaretPosition, 0, Text.Len()));
}
