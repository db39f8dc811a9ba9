#pragma once

#include "CoreMinimal.h"
#include "Components/NamedSlotInterface.h"
#include "Components/SlateWrapperTypes.h"
#include "Components/Widget.h"
#include "Input/Events.h"
#include "Templates/SubclassOf.h"
#include "UserWidget.generated.h"

class APlayerController;
class UGameInstance;
class UWidgetTree;

/** When a user widget is ticked. */
UENUM()
enum class EWidgetTickFrequency : uint8
{
	/** Never. */
	Never = 0,
	/** When its class implements the tick. */
	Auto = 1
};

/** What fills one hole of a user widget. */
USTRUCT()
struct UMG_API FNamedSlotBinding
{
	GENERATED_BODY()

	/** Name of the hole. */
	UPROPERTY()
	FName Name;

	/** What fills it. */
	UPROPERTY(Instanced)
	TObjectPtr<UWidget> Content;
};

/**
 * A widget that designers compose of others. It is initialised once; its Slate side may come and go several times, each time
 * with PreConstruct, Construct and Destruct.
 */
UCLASS(Abstract, EditInlineNew, BlueprintType, Blueprintable, MinimalAPI)
class UUserWidget : public UWidget, public INamedSlotInterface
{
	GENERATED_BODY()

public:
	/** What the widget is made of; null before it is initialised, for a class without a blueprint. */
	UPROPERTY(Transient)
	TObjectPtr<UWidgetTree> WidgetTree;

	/** What fills the widget's holes; kept here until the widget has its tree, and for widgets made from this one. */
	UPROPERTY()
	TArray<FNamedSlotBinding> NamedSlotBindings;

	/** Whether the widget ticks. */
	UPROPERTY(EditDefaultsOnly, Category = "Performance")
	EWidgetTickFrequency TickFrequency = EWidgetTickFrequency::Auto;

	UMG_API UUserWidget(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get());

	/** Builds the widget tree, fills the bound properties and initialises child user widgets. True the first time only. */
	UMG_API virtual bool Initialize();

	UMG_API virtual UWorld* GetWorld() const override;
	UMG_API virtual APlayerController* GetOwningPlayer() const override;
	UMG_API void SetOwningPlayer(APlayerController* LocalPlayerController);

	/** Shows the widget over the whole viewport, above those of a lower order. */
	UFUNCTION(BlueprintCallable, Category = "User Interface|Viewport")
	UMG_API void AddToViewport(int32 ZOrder = 0);

	/** As AddToViewport, for the owning player's part of the viewport. False without an owning player. */
	UFUNCTION(BlueprintCallable, Category = "User Interface|Viewport")
	UMG_API bool AddToPlayerScreen(int32 ZOrder = 0);

	UFUNCTION(BlueprintCallable, Category = "User Interface|Viewport")
	UMG_API bool IsInViewport() const;

	UMG_API virtual void RemoveFromParent() override;

	UMG_API UWidget* GetRootWidget() const;

	/** The widget of that name in this widget's own tree; null when there is none. */
	UMG_API UWidget* GetWidgetFromName(const FName& Name) const;

	UMG_API virtual void GetSlotNames(TArray<FName>& SlotNames) const override;
	UMG_API virtual UWidget* GetContentForSlot(FName SlotName) const override;
	UMG_API virtual void SetContentForSlot(FName SlotName, UWidget* Content) override;

	UMG_API virtual void ReleaseSlateResources(bool bReleaseChildren) override;
	UMG_API virtual void SetDesignerFlags(EWidgetDesignFlags NewFlags) override;

	UFUNCTION(BlueprintCallable, Category = "User Interface")
	UMG_API bool IsFocusable() const { return bIsFocusable; }

	UMG_API void SetIsFocusable(bool bInIsFocusable) { bIsFocusable = bInIsFocusable; }

	/** Called once, when the widget is initialised for play. */
	UFUNCTION(BlueprintImplementableEvent, BlueprintCosmetic, Category = "User Interface")
	void OnInitialized();

	/** Called each time the Slate side is built, in the game and in the designer: sets up how the widget looks. */
	UFUNCTION(BlueprintImplementableEvent, BlueprintCosmetic, Category = "User Interface")
	void PreConstruct(bool IsDesignTime);

	/** Called each time the Slate side is built for play. */
	UFUNCTION(BlueprintImplementableEvent, BlueprintCosmetic, Category = "User Interface")
	void Construct();

	/** Called each time the Slate side goes. */
	UFUNCTION(BlueprintImplementableEvent, BlueprintCosmetic, Category = "User Interface")
	void Destruct();

	/** Called each frame while the widget is shown. */
	UFUNCTION(BlueprintImplementableEvent, BlueprintCosmetic, Category = "User Interface")
	void Tick(FGeometry MyGeometry, float InDeltaTime);

	/** A mouse button was pressed over the widget. */
	UFUNCTION(BlueprintImplementableEvent, BlueprintCosmetic, Category = "Mouse")
	FEventReply OnMouseButtonDown(FGeometry MyGeometry, const FPointerEvent& MouseEvent);

	/** A mouse button was released over the widget, or anywhere while the widget has the mouse. */
	UFUNCTION(BlueprintImplementableEvent, BlueprintCosmetic, Category = "Mouse")
	FEventReply OnMouseButtonUp(FGeometry MyGeometry, const FPointerEvent& MouseEvent);

	/** The mouse moved over the widget, or anywhere while the widget has the mouse. */
	UFUNCTION(BlueprintImplementableEvent, BlueprintCosmetic, Category = "Mouse")
	FEventReply OnMouseMove(FGeometry MyGeometry, const FPointerEvent& MouseEvent);

	/** The wheel turned over the widget. */
	UFUNCTION(BlueprintImplementableEvent, BlueprintCosmetic, Category = "Mouse")
	FEventReply OnMouseWheel(FGeometry MyGeometry, const FPointerEvent& MouseEvent);

	UFUNCTION(BlueprintImplementableEvent, BlueprintCosmetic, Category = "Mouse")
	FEventReply OnMouseButtonDoubleClick(FGeometry InMyGeometry, const FPointerEvent& InMouseEvent);

	UFUNCTION(BlueprintImplementableEvent, BlueprintCosmetic, Category = "Mouse")
	void OnMouseEnter(FGeometry MyGeometry, const FPointerEvent& MouseEvent);

	UFUNCTION(BlueprintImplementableEvent, BlueprintCosmetic, Category = "Mouse")
	void OnMouseLeave(const FPointerEvent& MouseEvent);

	/** A key was pressed while the widget or something in it has the keyboard. */
	UFUNCTION(BlueprintImplementableEvent, BlueprintCosmetic, Category = "Keyboard")
	FEventReply OnKeyDown(FGeometry MyGeometry, FKeyEvent InKeyEvent);

	UFUNCTION(BlueprintImplementableEvent, BlueprintCosmetic, Category = "Keyboard")
	FEventReply OnKeyUp(FGeometry MyGeometry, FKeyEvent InKeyEvent);

	/** Makes a user widget. The class must not be abstract; null, with an error, otherwise. */
	UMG_API static UUserWidget* CreateWidgetInstance(UWidget& OwningWidget, TSubclassOf<UUserWidget> UserWidgetClass, FName WidgetName);
	UMG_API static UUserWidget* CreateWidgetInstance(UWidgetTree& OwningWidgetTree, TSubclassOf<UUserWidget> UserWidgetClass, FName WidgetName);
	UMG_API static UUserWidget* CreateWidgetInstance(APlayerController& OwnerPC, TSubclassOf<UUserWidget> UserWidgetClass, FName WidgetName);
	UMG_API static UUserWidget* CreateWidgetInstance(UGameInstance& GameInstance, TSubclassOf<UUserWidget> UserWidgetClass, FName WidgetName);
	UMG_API static UUserWidget* CreateWidgetInstance(UWorld& World, TSubclassOf<UUserWidget> UserWidgetClass, FName WidgetName);

protected:
	UMG_API virtual TSharedRef<SWidget> RebuildWidget() override;
	UMG_API virtual void OnWidgetRebuilt() override;

	UMG_API virtual void NativeOnInitialized();
	UMG_API virtual void NativePreConstruct();
	UMG_API virtual void NativeConstruct();
	UMG_API virtual void NativeDestruct();
	UMG_API virtual void NativeTick(const FGeometry& MyGeometry, float InDeltaTime);

	UMG_API virtual FReply NativeOnFocusReceived(const FGeometry& InGeometry, const FFocusEvent& InFocusEvent);
	UMG_API virtual void NativeOnFocusLost(const FFocusEvent& InFocusEvent);
	UMG_API virtual FReply NativeOnKeyChar(const FGeometry& InGeometry, const FCharacterEvent& InCharEvent);
	UMG_API virtual FReply NativeOnPreviewKeyDown(const FGeometry& InGeometry, const FKeyEvent& InKeyEvent);
	UMG_API virtual FReply NativeOnKeyDown(const FGeometry& InGeometry, const FKeyEvent& InKeyEvent);
	UMG_API virtual FReply NativeOnKeyUp(const FGeometry& InGeometry, const FKeyEvent& InKeyEvent);
	UMG_API virtual FReply NativeOnPreviewMouseButtonDown(const FGeometry& InGeometry, const FPointerEvent& InMouseEvent);
	UMG_API virtual FReply NativeOnMouseButtonDown(const FGeometry& InGeometry, const FPointerEvent& InMouseEvent);
	UMG_API virtual FReply NativeOnMouseButtonUp(const FGeometry& InGeometry, const FPointerEvent& InMouseEvent);
	UMG_API virtual FReply NativeOnMouseMove(const FGeometry& InGeometry, const FPointerEvent& InMouseEvent);
	UMG_API virtual void NativeOnMouseEnter(const FGeometry& InGeometry, const FPointerEvent& InMouseEvent);
	UMG_API virtual void NativeOnMouseLeave(const FPointerEvent& InMouseEvent);
	UMG_API virtual FReply NativeOnMouseWheel(const FGeometry& InGeometry, const FPointerEvent& InMouseEvent);
	UMG_API virtual FReply NativeOnMouseButtonDoubleClick(const FGeometry& InGeometry, const FPointerEvent& InMouseEvent);
	UMG_API virtual void NativeOnMouseCaptureLost(const FCaptureLostEvent& CaptureLostEvent);

	/** Whether NativeTick does anything for this class; asked when the Slate side is made. */
	UMG_API virtual bool WantsNativeTick() const;

private:
	friend class SObjectWidget;

	/** The wrapper of the Slate side went. */
	UMG_API void OnSlateWidgetReleased();

	void InitializeChildUserWidgets();
	void ApplyNamedSlotBindings();
	bool HasPlayerContext() const;
	static UUserWidget* CreateInstanceInternal(UObject& Outer, UClass* UserWidgetClass, FName WidgetName, UWorld* World, APlayerController* Player);

	/** Whether the widget can have the keyboard. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Interaction", meta = (AllowPrivateAccess = "true"))
	uint8 bIsFocusable : 1;

	uint8 bInitialized : 1;
	uint8 bConstructed : 1;

	/** What stands in the viewport, which owns it: a viewport that is emptied lets go of the widget. */
	TWeakPtr<SWidget> ViewportContent;

	TWeakObjectPtr<APlayerController> OwningPlayer;
	TWeakObjectPtr<UWorld> OwningWorld;
};

/** Makes a user widget for an owner: a widget, a widget tree, a player controller, a game instance or a world. */
template <typename WidgetT = UUserWidget, typename OwnerType = UObject>
WidgetT* CreateWidget(OwnerType OwningObject, TSubclassOf<UUserWidget> UserWidgetClass = WidgetT::StaticClass(), FName WidgetName = NAME_None)
{
	return OwningObject ? Cast<WidgetT>(UUserWidget::CreateWidgetInstance(*OwningObject, UserWidgetClass, WidgetName)) : nullptr;
}
