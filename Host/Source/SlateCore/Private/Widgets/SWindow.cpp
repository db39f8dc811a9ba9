#include "Widgets/SWindow.h"

#include "Application/SlateApplicationBase.h"

SWindow::SWindow() : Title(*this)
{
	Root.SetWidget(this);
}

SWindow::~SWindow()
{
	Root.SetWidget(nullptr);
}

void SWindow::Construct(const FArguments& InArgs)
{
	Title.Assign(*this, InArgs._Title);
	bInitiallyMaximized = InArgs._IsInitiallyMaximized;
	ChildSlot
	[
		SAssignNew(Layers, SOverlay)
		+ SOverlay::Slot(0).Expose(ContentSlot)
		[
			InArgs._Content.Widget
		]
	];
	SetCachedSize(InArgs._ClientSize);
}

void SWindow::SetTitle(const FText& InTitle)
{
	Title.Set(*this, InTitle);
	if (NativeWindow.IsValid())
	{
		NativeWindow->SetText(*InTitle.ToString());
	}
}

void SWindow::SetContent(TSharedRef<SWidget> InContent)
{
	ContentSlot->AttachWidget(InContent);
}

TSharedRef<const SWidget> SWindow::GetContent() const
{
	return ContentSlot->GetWidget();
}

TSharedRef<SWidget> SWindow::GetContent()
{
	return ContentSlot->GetWidget();
}

SOverlay::FScopedWidgetSlotArguments SWindow::AddOverlaySlot(const int32 ZOrder)
{
	return Layers->AddSlot(ZOrder);
}

bool SWindow::RemoveOverlaySlot(const TSharedRef<SWidget>& InContent)
{
	return Layers->RemoveSlot(InContent);
}

void SWindow::Resize(FVector2D NewClientSize)
{
	if (NativeWindow.IsValid())
	{
		NativeWindow->ReshapeWindow(0, 0, FMath::RoundToInt(NewClientSize.X), FMath::RoundToInt(NewClientSize.Y));
	}
	SetCachedSize(NewClientSize);
}

void SWindow::SetCachedSize(FVector2D NewClientSize)
{
	Root.SetSize(FIntPoint(FMath::Max(FMath::RoundToInt(NewClientSize.X), 0), FMath::Max(FMath::RoundToInt(NewClientSize.Y), 0)), Root.GetScale());
}

FVector2D SWindow::GetClientSizeInScreen() const
{
	return FVector2D(Root.GetSizePixels().X, Root.GetSizePixels().Y);
}

FSlateRect SWindow::GetClientRectInScreen() const
{
	return FSlateRect(0.0f, 0.0f, static_cast<float>(Root.GetSizePixels().X), static_cast<float>(Root.GetSizePixels().Y));
}

FGeometry SWindow::GetWindowGeometryInWindow() const
{
	return FGeometry::MakeRoot(GetClientSizeInScreen() / Root.GetScale(), FSlateLayoutTransform(Root.GetScale()));
}

void SWindow::SetDPIScaleFactor(float InFactor)
{
	checkf(InFactor > 0.0f, TEXT("a window's scale is positive"));
	Root.SetSize(Root.GetSizePixels(), InFactor);
}

void SWindow::SetWindowMode(EWindowMode::Type InWindowMode)
{
	WindowMode = InWindowMode;
	if (NativeWindow.IsValid())
	{
		NativeWindow->SetWindowMode(InWindowMode);
	}
}

void SWindow::SetNativeWindow(TSharedRef<FGenericWindow> InNativeWindow)
{
	NativeWindow = InNativeWindow;
}

bool SWindow::IsActive() const
{
	return FSlateApplicationBase::IsInitialized() && FSlateApplicationBase::Get().GetActiveTopLevelWindow().Get() == this;
}

void SWindow::BringToFront(bool bForce)
{
	if (NativeWindow.IsValid())
	{
		NativeWindow->BringToFront(bForce);
	}
}

void SWindow::Minimize()
{
	if (NativeWindow.IsValid())
	{
		NativeWindow->Minimize();
	}
}

void SWindow::Maximize()
{
	if (NativeWindow.IsValid())
	{
		NativeWindow->Maximize();
	}
}

void SWindow::Restore()
{
	if (NativeWindow.IsValid())
	{
		NativeWindow->Restore();
	}
}

void SWindow::ShowWindow()
{
	if (NativeWindow.IsValid())
	{
		NativeWindow->Show();
	}
}

void SWindow::HideWindow()
{
	if (NativeWindow.IsValid())
	{
		NativeWindow->Hide();
	}
}

void SWindow::RequestDestroyWindow()
{
	const TSharedRef<SWindow> This = StaticCastSharedRef<SWindow>(AsShared());
	if (RequestDestroyWindowOverride.IsBound())
	{
		RequestDestroyWindowOverride.Execute(This);
	}
	else if (FSlateApplicationBase::IsInitialized())
	{
		FSlateApplicationBase::Get().RequestDestroyWindow(This);
	}
}

void SWindow::NotifyWindowBeingDestroyed()
{
	OnWindowClosed.Broadcast(StaticCastSharedRef<SWindow>(AsShared()));
	if (NativeWindow.IsValid())
	{
		NativeWindow->Destroy();
		NativeWindow.Reset();
	}
}
