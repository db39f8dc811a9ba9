#include "Blueprint/UserWidget.h"

#include "Blueprint/WidgetBlueprintGeneratedClass.h"
#include "Blueprint/WidgetTree.h"
#include "Components/NamedSlot.h"
#include "Engine/Engine.h"
#include "Engine/GameInstance.h"
#include "Engine/GameViewportClient.h"
#include "Engine/LocalPlayer.h"
#include "Engine/World.h"
#include "GameFramework/PlayerController.h"
#include "Slate/SObjectWidget.h"
#include "UMGLog.h"
#include "Widgets/Layout/SSpacer.h"

UUserWidget::UUserWidget(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
	, bIsFocusable(false)
	, bInitialized(false)
	, bConstructed(false)
	, bStoppingAllAnimations(false)
{
	// The designer's root fills its screen and lets what lies below be hit where it is empty.
	SetVisibility(ESlateVisibility::SelfHitTestInvisible);
}

bool UUserWidget::Initialize()
{
	if (bInitialized || IsTemplate())
	{
		return false;
	}
	bInitialized = true;

	if (const UWidgetBlueprintGeneratedClass* BlueprintClass = UWidgetBlueprintGeneratedClass::FindFor(GetClass()))
	{
		BlueprintClass->InitializeWidget(this);
	}
	if (!WidgetTree)
	{
		WidgetTree = NewObject<UWidgetTree>(this, TEXT("WidgetTree"), RF_Transient);
	}
	ApplyNamedSlotBindings();
	InitializeChildUserWidgets();

	// Without a player the widget may stand in a tool: what it does for play waits for one.
	if (!IsDesignTime() && HasPlayerContext())
	{
		NativeOnInitialized();
	}
	return true;
}

void UUserWidget::InitializeChildUserWidgets()
{
	WidgetTree->ForEachWidget([this](UWidget* Widget)
	{
		Widget->SetDesignerFlags(GetDesignerFlags());
		if (UUserWidget* Child = Cast<UUserWidget>(Widget))
		{
			Child->OwningPlayer = OwningPlayer;
			Child->OwningWorld = OwningWorld;
			Child->Initialize();
		}
	});
}

bool UUserWidget::HasPlayerContext() const
{
	return GetOwningPlayer() != nullptr;
}

UWorld* UUserWidget::GetWorld() const
{
	if (UWorld* World = OwningWorld.Get())
	{
		return World;
	}
	if (const APlayerController* Player = OwningPlayer.Get())
	{
		return Player->GetWorld();
	}
	return GetOuter() ? GetOuter()->GetWorld() : nullptr;
}

APlayerController* UUserWidget::GetOwningPlayer() const
{
	if (APlayerController* Player = OwningPlayer.Get())
	{
		return Player;
	}
	const UWorld* World = GetWorld();
	return World ? World->GetFirstPlayerController() : nullptr;
}

void UUserWidget::SetOwningPlayer(APlayerController* LocalPlayerController)
{
	OwningPlayer = LocalPlayerController;
}

void UUserWidget::AddToViewport(int32 ZOrder)
{
	const UWorld* World = GetWorld();
	UGameViewportClient* Viewport = World && World->GetGameInstance() ? World->GetGameInstance()->GetGameViewportClient() : nullptr;
	if (!Viewport)
	{
		UE_LOG(LogUMG, Error, TEXT("%s cannot be added to the viewport: its world has none."), *GetPathName());
		return;
	}
	if (IsInViewport())
	{
		UE_LOG(LogUMG, Warning, TEXT("%s is in the viewport already."), *GetPathName());
		return;
	}
	if (UPanelWidget* CurrentParent = GetParent())
	{
		CurrentParent->RemoveChild(this);
	}
	const TSharedRef<SWidget> Content = TakeWidget();
	ViewportContent = Content;
	Viewport->AddViewportWidgetContent(Content, ZOrder);
}

bool UUserWidget::AddToPlayerScreen(int32 ZOrder)
{
	if (!GetOwningLocalPlayer())
	{
		UE_LOG(LogUMG, Error, TEXT("%s cannot be added to a player's screen: it has no owning player."), *GetPathName());
		return false;
	}
	AddToViewport(ZOrder);
	return IsInViewport();
}

bool UUserWidget::IsInViewport() const
{
	return ViewportContent.IsValid();
}

void UUserWidget::RemoveFromParent()
{
	if (const TSharedPtr<SWidget> Content = ViewportContent.Pin())
	{
		ViewportContent.Reset();
		const UWorld* World = GetWorld();
		if (UGameViewportClient* Viewport = World && World->GetGameInstance() ? World->GetGameInstance()->GetGameViewportClient() : nullptr)
		{
			Viewport->RemoveViewportWidgetContent(Content.ToSharedRef());
		}
		return;
	}
	Super::RemoveFromParent();
}

UWidget* UUserWidget::GetRootWidget() const
{
	return WidgetTree ? WidgetTree->RootWidget : nullptr;
}

UWidget* UUserWidget::GetWidgetFromName(const FName& Name) const
{
	return WidgetTree ? WidgetTree->FindWidget(Name) : nullptr;
}

void UUserWidget::GetSlotNames(TArray<FName>& SlotNames) const
{
	if (const UWidgetBlueprintGeneratedClass* BlueprintClass = UWidgetBlueprintGeneratedClass::FindFor(GetClass()))
	{
		SlotNames.Append(BlueprintClass->NamedSlots);
	}
}

UWidget* UUserWidget::GetContentForSlot(FName SlotName) const
{
	const FNamedSlotBinding* Binding = NamedSlotBindings.FindByPredicate([SlotName](const FNamedSlotBinding& Candidate) { return Candidate.Name == SlotName; });
	return Binding ? Binding->Content : nullptr;
}

void UUserWidget::SetContentForSlot(FName SlotName, UWidget* Content)
{
	NamedSlotBindings.RemoveAll([SlotName](const FNamedSlotBinding& Binding) { return Binding.Name == SlotName; });
	if (Content)
	{
		FNamedSlotBinding& Binding = NamedSlotBindings.AddDefaulted_GetRef();
		Binding.Name = SlotName;
		Binding.Content = Content;
	}
	if (UNamedSlot* NamedSlot = Cast<UNamedSlot>(GetWidgetFromName(SlotName)))
	{
		NamedSlot->ClearChildren();
		if (Content)
		{
			NamedSlot->AddChild(Content);
		}
	}
}

void UUserWidget::ApplyNamedSlotBindings()
{
	// A copy: filling a hole writes the list again.
	const TArray<FNamedSlotBinding> Bindings = NamedSlotBindings;
	for (const FNamedSlotBinding& Binding : Bindings)
	{
		SetContentForSlot(Binding.Name, Binding.Content);
	}
}

void UUserWidget::ReleaseSlateResources(bool bReleaseChildren)
{
	Super::ReleaseSlateResources(bReleaseChildren);
	if (UWidget* Root = GetRootWidget(); Root && bReleaseChildren)
	{
		Root->ReleaseSlateResources(bReleaseChildren);
	}
}

void UUserWidget::SetDesignerFlags(EWidgetDesignFlags NewFlags)
{
	Super::SetDesignerFlags(NewFlags);
	if (WidgetTree)
	{
		WidgetTree->ForEachWidget([NewFlags](UWidget* Widget) { Widget->SetDesignerFlags(NewFlags); });
	}
}

TSharedRef<SWidget> UUserWidget::RebuildWidget()
{
	check(!IsTemplate());
	Initialize();
	UWidget* Root = GetRootWidget();
	return Root ? Root->TakeWidget() : TSharedRef<SWidget>(SNew(SSpacer));
}

void UUserWidget::OnWidgetRebuilt()
{
	NativePreConstruct();
	if (!IsDesignTime())
	{
		bConstructed = true;
		NativeConstruct();
	}
	UpdateAnimationTimer();
}

void UUserWidget::OnSlateWidgetReleased()
{
	if (bConstructed)
	{
		bConstructed = false;
		NativeDestruct();
	}
	AnimationTimer.Reset();
	DropAnimationsUnlessShown();
	// Dropped so that the next time it is shown everything is built and constructed anew.
	ReleaseSlateResources(true);
}

void UUserWidget::NativeOnInitialized()
{
	OnInitialized();
}

void UUserWidget::NativePreConstruct()
{
	PreConstruct(IsDesignTime());
}

void UUserWidget::NativeConstruct()
{
	Construct();
}

void UUserWidget::NativeDestruct()
{
	Destruct();
}

void UUserWidget::NativeTick(const FGeometry& MyGeometry, float InDeltaTime)
{
	Tick(MyGeometry, InDeltaTime);
}

bool UUserWidget::WantsNativeTick() const
{
	if (TickFrequency == EWidgetTickFrequency::Never)
	{
		return false;
	}
	const UFunction* TickFunction = FindFunction(TEXT("Tick"));
	return TickFunction && !TickFunction->GetOuterUClass()->HasAnyClassFlags(CLASS_Native);
}

FReply UUserWidget::NativeOnFocusReceived(const FGeometry&, const FFocusEvent&)
{
	return FReply::Unhandled();
}

void UUserWidget::NativeOnFocusLost(const FFocusEvent&)
{
}

FReply UUserWidget::NativeOnKeyChar(const FGeometry&, const FCharacterEvent&)
{
	return FReply::Unhandled();
}

FReply UUserWidget::NativeOnPreviewKeyDown(const FGeometry&, const FKeyEvent&)
{
	return FReply::Unhandled();
}

FReply UUserWidget::NativeOnKeyDown(const FGeometry& InGeometry, const FKeyEvent& InKeyEvent)
{
	return OnKeyDown(InGeometry, InKeyEvent).NativeReply;
}

FReply UUserWidget::NativeOnKeyUp(const FGeometry& InGeometry, const FKeyEvent& InKeyEvent)
{
	return OnKeyUp(InGeometry, InKeyEvent).NativeReply;
}

FReply UUserWidget::NativeOnPreviewMouseButtonDown(const FGeometry&, const FPointerEvent&)
{
	return FReply::Unhandled();
}

FReply UUserWidget::NativeOnMouseButtonDown(const FGeometry& InGeometry, const FPointerEvent& InMouseEvent)
{
	return OnMouseButtonDown(InGeometry, InMouseEvent).NativeReply;
}

FReply UUserWidget::NativeOnMouseButtonUp(const FGeometry& InGeometry, const FPointerEvent& InMouseEvent)
{
	return OnMouseButtonUp(InGeometry, InMouseEvent).NativeReply;
}

FReply UUserWidget::NativeOnMouseMove(const FGeometry& InGeometry, const FPointerEvent& InMouseEvent)
{
	return OnMouseMove(InGeometry, InMouseEvent).NativeReply;
}

void UUserWidget::NativeOnMouseEnter(const FGeometry& InGeometry, const FPointerEvent& InMouseEvent)
{
	OnMouseEnter(InGeometry, InMouseEvent);
}

void UUserWidget::NativeOnMouseLeave(const FPointerEvent& InMouseEvent)
{
	OnMouseLeave(InMouseEvent);
}

FReply UUserWidget::NativeOnMouseWheel(const FGeometry& InGeometry, const FPointerEvent& InMouseEvent)
{
	return OnMouseWheel(InGeometry, InMouseEvent).NativeReply;
}

FReply UUserWidget::NativeOnMouseButtonDoubleClick(const FGeometry& InGeometry, const FPointerEvent& InMouseEvent)
{
	return OnMouseButtonDoubleClick(InGeometry, InMouseEvent).NativeReply;
}

void UUserWidget::NativeOnMouseCaptureLost(const FCaptureLostEvent&)
{
}

UUserWidget* UUserWidget::CreateWidgetInstance(UWidget& OwningWidget, TSubclassOf<UUserWidget> UserWidgetClass, FName WidgetName)
{
	UUserWidget* Parent = Cast<UUserWidget>(&OwningWidget);
	if (!Parent)
	{
		Parent = OwningWidget.GetTypedOuter<UUserWidget>();
	}
	if (!Parent || !Parent->WidgetTree)
	{
		UE_LOG(LogUMG, Error, TEXT("%s cannot own a new widget: it is not part of an initialised user widget."), *OwningWidget.GetPathName());
		return nullptr;
	}
	return CreateWidgetInstance(*Parent->WidgetTree, UserWidgetClass, WidgetName);
}

UUserWidget* UUserWidget::CreateWidgetInstance(UWidgetTree& OwningWidgetTree, TSubclassOf<UUserWidget> UserWidgetClass, FName WidgetName)
{
	UUserWidget* Parent = Cast<UUserWidget>(OwningWidgetTree.GetOuter());
	APlayerController* Player = Parent ? Parent->GetOwningPlayer() : nullptr;
	return CreateInstanceInternal(OwningWidgetTree, UserWidgetClass, WidgetName, OwningWidgetTree.GetWorld(), Player);
}

UUserWidget* UUserWidget::CreateWidgetInstance(APlayerController& OwnerPC, TSubclassOf<UUserWidget> UserWidgetClass, FName WidgetName)
{
	UWorld* World = OwnerPC.GetWorld();
	UObject* Outer = World && World->GetGameInstance() ? static_cast<UObject*>(World->GetGameInstance()) : &OwnerPC;
	return CreateInstanceInternal(*Outer, UserWidgetClass, WidgetName, World, &OwnerPC);
}

UUserWidget* UUserWidget::CreateWidgetInstance(UGameInstance& GameInstance, TSubclassOf<UUserWidget> UserWidgetClass, FName WidgetName)
{
	return CreateInstanceInternal(GameInstance, UserWidgetClass, WidgetName, GameInstance.GetWorld(), GameInstance.GetFirstLocalPlayerController());
}

UUserWidget* UUserWidget::CreateWidgetInstance(UWorld& World, TSubclassOf<UUserWidget> UserWidgetClass, FName WidgetName)
{
	if (UGameInstance* GameInstance = World.GetGameInstance())
	{
		return CreateWidgetInstance(*GameInstance, UserWidgetClass, WidgetName);
	}
	return CreateInstanceInternal(World, UserWidgetClass, WidgetName, &World, World.GetFirstPlayerController());
}

UUserWidget* UUserWidget::CreateInstanceInternal(UObject& Outer, UClass* UserWidgetClass, FName WidgetName, UWorld* World, APlayerController* Player)
{
	if (!UserWidgetClass || UserWidgetClass->HasAnyClassFlags(CLASS_Abstract))
	{
		UE_LOG(LogUMG, Error, TEXT("A widget cannot be created: %s"), UserWidgetClass ? *FString::Printf(TEXT("the class %s is abstract."), *UserWidgetClass->GetPathName()) : TEXT("no class was given."));
		return nullptr;
	}
	UUserWidget* NewWidget = NewObject<UUserWidget>(&Outer, UserWidgetClass, WidgetName, RF_Transactional);
	NewWidget->OwningPlayer = Player;
	NewWidget->OwningWorld = World;
	// What a preview makes is part of it.
	if (const UUserWidget* Parent = Cast<UWidgetTree>(&Outer) ? Cast<UUserWidget>(Outer.GetOuter()) : nullptr)
	{
		NewWidget->SetDesignerFlags(Parent->GetDesignerFlags());
	}
	NewWidget->Initialize();
	return NewWidget;
}
