#include "Host/ProjectLoader.h"

#include "Blueprint/UserWidget.h"
#include "Components/Button.h"
#include "Components/TextBlock.h"
#include "Engine/Engine.h"
#include "Engine/GameInstance.h"
#include "Engine/GameViewportClient.h"
#include "Framework/Application/SlateApplication.h"
#include "InputCoreTypes.h"
#include "Widgets/SCompoundWidget.h"

using namespace Host;

namespace
{
	/** Around the screen, with the keyboard: Escape is for it. */
	class SLoadingLayer : public SCompoundWidget
	{
	public:
		SLATE_BEGIN_ARGS(SLoadingLayer) {}
			SLATE_DEFAULT_SLOT(FArguments, Content)
			SLATE_EVENT(FSimpleDelegate, OnEscape)
		SLATE_END_ARGS()

		void Construct(const FArguments& InArgs)
		{
			OnEscape = InArgs._OnEscape;
			ChildSlot[InArgs._Content.Widget];
		}

		virtual bool SupportsKeyboardFocus() const override { return true; }

		virtual FReply OnKeyDown(const FGeometry&, const FKeyEvent& InKeyEvent) override
		{
			if (InKeyEvent.GetKey() != EKeys::Escape)
			{
				return FReply::Unhandled();
			}
			OnEscape.ExecuteIfBound();
			return FReply::Handled();
		}

	private:
		FSimpleDelegate OnEscape;
	};

	FString DescribeBytes(uint64 Bytes)
	{
		constexpr double Kilo = 1024.0;
		return Bytes < Kilo * Kilo ? FString::Printf(TEXT("%.0f KiB"), Bytes / Kilo) : FString::Printf(TEXT("%.1f MiB"), Bytes / (Kilo * Kilo));
	}
}

const TCHAR* const UProjectLoader::ScreenClassPath = TEXT("/HalvexPro/Projects/Loading.Loading_C");

void UProjectLoader::Load(const FString& Address, FOnProjectLoaded InOnLoaded)
{
	OnLoaded = MoveTemp(InOnLoaded);
	Fetch = MakeUnique<FProjectFetch>(Address, FSimpleDelegate::CreateUObject(this, &UProjectLoader::Update));
	ShowScreen();
	Fetch->Start();
}

void UProjectLoader::Close()
{
	HideScreen();
	Fetch.Reset();
	OnLoaded.Unbind();
}

void UProjectLoader::ReceivedCancel()
{
	Fetch->Cancel();
}

void UProjectLoader::ReceivedRetry()
{
	Fetch->Start();
}

void UProjectLoader::ShowScreen()
{
	UClass* const Class = LoadObject<UClass>(nullptr, ScreenClassPath);
	Screen = Class ? CreateWidget<UUserWidget>(GEngine->GetGameInstance(), Class) : nullptr;
	if (!Screen)
	{
		return;
	}
	if (UButton* const Cancel = Cast<UButton>(Screen->GetWidgetFromName(TEXT("Cancel"))))
	{
		Cancel->OnClicked.AddDynamic(this, &UProjectLoader::ReceivedCancel);
	}
	if (UButton* const Retry = Cast<UButton>(Screen->GetWidgetFromName(TEXT("Retry"))))
	{
		Retry->OnClicked.AddDynamic(this, &UProjectLoader::ReceivedRetry);
	}
	Layer = SNew(SLoadingLayer)
		.OnEscape(FSimpleDelegate::CreateUObject(this, &UProjectLoader::ReceivedCancel))
		[
			Screen->TakeWidget()
		];
	GEngine->GameViewport->AddViewportWidgetContent(Layer.ToSharedRef());
}

void UProjectLoader::HideScreen()
{
	if (Layer)
	{
		GEngine->GameViewport->RemoveViewportWidgetContent(Layer.ToSharedRef());
		Layer.Reset();
		Screen = nullptr;
	}
}

void UProjectLoader::Update()
{
	if (Fetch->GetState() == FProjectFetch::EState::Done)
	{
		HideScreen();
		OnLoaded.ExecuteIfBound(Fetch->GetProject());
		return;
	}
	if (!Screen)
	{
		return;
	}
	const bool bLoading = IsLoading();
	const auto Show = [this](const TCHAR* Name, bool bShow, ESlateVisibility Shown)
	{
		if (UWidget* const Widget = Screen->GetWidgetFromName(Name))
		{
			Widget->SetVisibility(bShow ? Shown : ESlateVisibility::Collapsed);
		}
	};
	const auto SetText = [this](const TCHAR* Name, const FString& Text)
	{
		if (UTextBlock* const Block = Cast<UTextBlock>(Screen->GetWidgetFromName(Name)))
		{
			Block->SetText(FText::AsCultureInvariant(Text));
		}
	};
	Show(TEXT("Bar"), bLoading, ESlateVisibility::HitTestInvisible);
	Show(TEXT("Cancel"), bLoading, ESlateVisibility::Visible);
	Show(TEXT("Retry"), !bLoading, ESlateVisibility::Visible);
	SetText(TEXT("TitleText"), bLoading ? TEXT("Loading the project") : TEXT("The project cannot be shown"));
	SetText(TEXT("AddressText"), Fetch->GetName());
	const FString Progress = Fetch->GetNumBytes() > 0 ? DescribeBytes(Fetch->GetNumBytes()) + TEXT(" received") : FString(TEXT("Waiting for the server"));
	SetText(TEXT("DetailText"), bLoading ? Progress : Fetch->GetError());
	if (bLoading && !Layer->HasUserFocusedDescendants(0))
	{
		FSlateApplication::Get().SetKeyboardFocus(Layer, EFocusCause::SetDirectly);
	}
	if (UWidget* const Retry = bLoading ? nullptr : Screen->GetWidgetFromName(TEXT("Retry")))
	{
		Retry->SetKeyboardFocus();
	}
}
