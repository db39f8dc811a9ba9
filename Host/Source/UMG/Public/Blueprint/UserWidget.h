#pragma once

#include "CoreMinimal.h"
#include "Animation/UMGSequencePlayMode.h"
#include "Animation/WidgetAnimationEvents.h"
#include "Components/NamedSlotInterface.h"
#include "Components/SlateWrapperTypes.h"
#include "Components/Widget.h"
#include "Input/Events.h"
#include "Templates/SubclassOf.h"
#include "Widgets/ActiveTimerHandle.h"
#include "UserWidget.generated.h"

class APlayerController;
class UGameInstance;
class UUMGSequencePlayer;
class UWidgetAnimation;
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

	/** Called when an animation begins to play. */
	UFUNCTION(BlueprintNativeEvent, BlueprintCosmetic, Category = "User Interface|Animation")
	UMG_API void OnAnimationStarted(const UWidgetAnimation* Animation);

	/** Called when an animation has played to its end, or was stopped. */
	UFUNCTION(BlueprintNativeEvent, BlueprintCosmetic, Category = "User Interface|Animation")
	UMG_API void OnAnimationFinished(const UWidgetAnimation* Animation);

	/**
	 * Plays an animation. What it changes is set in the next frame, or by FlushAnimations. It goes on while the widget is shown,
	 * waits when it was not shown yet, and ends without an event when the widget is shown no longer.
	 * @param StartAtTime		seconds from the animation's start (in reverse, back from its end) where the first loop starts
	 * @param NumLoopsToPlay	how often it plays, 0 for no end
	 * @param PlaybackSpeed		seconds of the animation a second
	 * @param bRestoreState		gives the widgets back what they were before, once the animation stops
	 * @return what plays it, the one that played it before if it was playing; null without an animation
	 */
	UFUNCTION(BlueprintCallable, BlueprintCosmetic, Category = "User Interface|Animation")
	UMG_API UUMGSequencePlayer* PlayAnimation(UWidgetAnimation* InAnimation, float StartAtTime = 0.0f, int32 NumLoopsToPlay = 1, EUMGSequencePlayMode::Type PlayMode = EUMGSequencePlayMode::Forward, float PlaybackSpeed = 1.0f, bool bRestoreState = false);

	/**
	 * As PlayAnimation, for a part of the animation.
	 * @param EndAtTime seconds from the animation's start where the last loop ends
	 */
	UFUNCTION(BlueprintCallable, BlueprintCosmetic, Category = "User Interface|Animation")
	UMG_API UUMGSequencePlayer* PlayAnimationTimeRange(UWidgetAnimation* InAnimation, float StartAtTime = 0.0f, float EndAtTime = 0.0f, int32 NumLoopsToPlay = 1, EUMGSequencePlayMode::Type PlayMode = EUMGSequencePlayMode::Forward, float PlaybackSpeed = 1.0f, bool bRestoreState = false);

	/** Plays an animation forward from where it is: one that plays in reverse turns round, one that does not play starts. */
	UFUNCTION(BlueprintCallable, BlueprintCosmetic, Category = "User Interface|Animation")
	UMG_API UUMGSequencePlayer* PlayAnimationForward(UWidgetAnimation* InAnimation, float PlaybackSpeed = 1.0f, bool bRestoreState = false);

	/** Plays an animation in reverse from where it is: one that plays forward turns round, one that does not play starts at its end. */
	UFUNCTION(BlueprintCallable, BlueprintCosmetic, Category = "User Interface|Animation")
	UMG_API UUMGSequencePlayer* PlayAnimationReverse(UWidgetAnimation* InAnimation, float PlaybackSpeed = 1.0f, bool bRestoreState = false);

	/** Ends an animation where it is. Nothing happens when it is not playing. */
	UFUNCTION(BlueprintCallable, BlueprintCosmetic, Category = "User Interface|Animation")
	UMG_API void StopAnimation(const UWidgetAnimation* InAnimation);

	/** Ends all animations where they are. What listens for their end cannot play one meanwhile. */
	UFUNCTION(BlueprintCallable, BlueprintCosmetic, Category = "User Interface|Animation")
	UMG_API void StopAllAnimations();

	/** Halts an animation. Returns the seconds from its start where it is, to play it on from there; 0 when it is not playing. */
	UFUNCTION(BlueprintCallable, BlueprintCosmetic, Category = "User Interface|Animation")
	UMG_API float PauseAnimation(const UWidgetAnimation* InAnimation);

	/** Seconds from the animation's start where it is; 0 when it is neither playing nor paused. */
	UFUNCTION(BlueprintCallable, BlueprintCosmetic, Category = "User Interface|Animation")
	UMG_API float GetAnimationCurrentTime(const UWidgetAnimation* InAnimation) const;

	/** Moves an animation that is playing or paused to a time, and leaves it playing or paused. */
	UFUNCTION(BlueprintCallable, BlueprintCosmetic, Category = "User Interface|Animation")
	UMG_API void SetAnimationCurrentTime(const UWidgetAnimation* InAnimation, float InTime);

	/** Whether the animation is playing; a paused one is not. */
	UFUNCTION(BlueprintCallable, BlueprintPure, BlueprintCosmetic, Category = "User Interface|Animation")
	UMG_API bool IsAnimationPlaying(const UWidgetAnimation* InAnimation) const;

	/** Whether any animation of the widget is playing. */
	UFUNCTION(BlueprintCallable, BlueprintPure, BlueprintCosmetic, Category = "User Interface|Animation")
	UMG_API bool IsAnyAnimationPlaying() const;

	/** Changes how often a playing animation plays, counted from its start; 0 for no end. */
	UFUNCTION(BlueprintCallable, BlueprintCosmetic, Category = "User Interface|Animation")
	UMG_API void SetNumLoopsToPlay(const UWidgetAnimation* InAnimation, int32 NumLoopsToPlay);

	/** Changes the speed of a playing animation, in seconds of the animation a second. */
	UFUNCTION(BlueprintCallable, BlueprintCosmetic, Category = "User Interface|Animation")
	UMG_API void SetPlaybackSpeed(const UWidgetAnimation* InAnimation, float PlaybackSpeed = 1.0f);

	/** Turns a playing animation round. */
	UFUNCTION(BlueprintCallable, BlueprintCosmetic, Category = "User Interface|Animation")
	UMG_API void ReverseAnimation(const UWidgetAnimation* InAnimation);

	/** True when the animation is playing, towards its end. */
	UFUNCTION(BlueprintCallable, BlueprintPure, BlueprintCosmetic, Category = "User Interface|Animation")
	UMG_API bool IsAnimationPlayingForward(const UWidgetAnimation* InAnimation) const;

	/** Sets what the widget's animations are to set in the next frame now. */
	UFUNCTION(BlueprintCallable, BlueprintCosmetic, Category = "User Interface|Animation")
	UMG_API void FlushAnimations();

	/** Calls the delegate whenever the animation begins to play. */
	UFUNCTION(BlueprintCallable, BlueprintCosmetic, Category = "User Interface|Animation")
	UMG_API void BindToAnimationStarted(UWidgetAnimation* Animation, FWidgetAnimationDynamicEvent Delegate);

	UFUNCTION(BlueprintCallable, BlueprintCosmetic, Category = "User Interface|Animation")
	UMG_API void UnbindFromAnimationStarted(UWidgetAnimation* Animation, FWidgetAnimationDynamicEvent Delegate);

	UFUNCTION(BlueprintCallable, BlueprintCosmetic, Category = "User Interface|Animation")
	UMG_API void UnbindAllFromAnimationStarted(UWidgetAnimation* Animation);

	/** Calls the delegate whenever the animation has played to its end, or was stopped. */
	UFUNCTION(BlueprintCallable, BlueprintCosmetic, Category = "User Interface|Animation")
	UMG_API void BindToAnimationFinished(UWidgetAnimation* Animation, FWidgetAnimationDynamicEvent Delegate);

	UFUNCTION(BlueprintCallable, BlueprintCosmetic, Category = "User Interface|Animation")
	UMG_API void UnbindFromAnimationFinished(UWidgetAnimation* Animation, FWidgetAnimationDynamicEvent Delegate);

	UFUNCTION(BlueprintCallable, BlueprintCosmetic, Category = "User Interface|Animation")
	UMG_API void UnbindAllFromAnimationFinished(UWidgetAnimation* Animation);

	/**
	 * Calls the delegate at an event of the animation.
	 * @param UserTag only for what plays it under that tag (UUMGSequencePlayer::SetUserTag); none for any
	 */
	UFUNCTION(BlueprintCallable, BlueprintCosmetic, Category = "User Interface|Animation")
	UMG_API void BindToAnimationEvent(UWidgetAnimation* Animation, FWidgetAnimationDynamicEvent Delegate, EWidgetAnimationEvent AnimationEvent, FName UserTag = NAME_None);

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

	UMG_API virtual void OnAnimationStarted_Implementation(const UWidgetAnimation* Animation);
	UMG_API virtual void OnAnimationFinished_Implementation(const UWidgetAnimation* Animation);
	/** Raises the events of an animation that begins to play. */
	UMG_API virtual void OnAnimationStartedPlaying(UUMGSequencePlayer& Player);
	/** Raises the events of an animation that has come to its end, or was stopped. */
	UMG_API virtual void OnAnimationFinishedPlaying(UUMGSequencePlayer& Player);

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

	UUMGSequencePlayer* FindSequencePlayer(const UWidgetAnimation* InAnimation) const;
	UUMGSequencePlayer* FindOrAddSequencePlayer(UWidgetAnimation& InAnimation);
	UUMGSequencePlayer* StartAnimation(UWidgetAnimation* InAnimation, float StartAtTime, TOptional<double> EndAtTime, int32 NumLoopsToPlay, EUMGSequencePlayMode::Type PlayMode, float PlaybackSpeed, bool bRestoreState);
	/** Plays on in a direction, or starts in the mode of that direction. */
	UUMGSequencePlayer* PlayAnimationTowards(UWidgetAnimation* InAnimation, EUMGSequencePlayMode::Type Direction, float PlaybackSpeed, bool bRestoreState);
	void FinishAnimation(UUMGSequencePlayer& Player);
	/** Asks the Slate side for frames while animations need them. */
	void UpdateAnimationTimer();
	bool NeedsAnimationTick() const;
	EActiveTimerReturnType TickAnimations(double CurrentTime, float DeltaTime);
	/** Ends all animations, unless the widget is shown again by the next frame. */
	void DropAnimationsUnlessShown();
	void BroadcastAnimationEvent(const UUMGSequencePlayer& Player, EWidgetAnimationEvent AnimationEvent);
	void UnbindAllFromAnimationEvent(const UWidgetAnimation* Animation, EWidgetAnimationEvent AnimationEvent);
	void UnbindFromAnimationEvent(const UWidgetAnimation* Animation, const FWidgetAnimationDynamicEvent& Delegate, EWidgetAnimationEvent AnimationEvent);

	/** What plays or is paused, in the order of starting. */
	UPROPERTY(Transient)
	TArray<TObjectPtr<UUMGSequencePlayer>> ActiveSequencePlayers;

	/** Who listens for animations. */
	UPROPERTY(Transient)
	TArray<FAnimationEventBinding> AnimationCallbacks;

	/** Whether the widget can have the keyboard. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Interaction", meta = (AllowPrivateAccess = "true"))
	uint8 bIsFocusable : 1;

	uint8 bInitialized : 1;
	uint8 bConstructed : 1;
	uint8 bStoppingAllAnimations : 1;

	/** Makes the frames of animations; the Slate side owns it. */
	TWeakPtr<FActiveTimerHandle> AnimationTimer;

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
