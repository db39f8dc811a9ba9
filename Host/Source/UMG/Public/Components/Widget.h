#pragma once

#include "CoreMinimal.h"
#include "Binding/States/WidgetStateBitfield.h"
#include "Components/SlateWrapperTypes.h"
#include "Components/Visual.h"
#include "GenericPlatform/ICursor.h"
#include "Layout/Clipping.h"
#include "Layout/Geometry.h"
#include "Slate/WidgetTransform.h"
#include "Templates/Casts.h"
#include "Widgets/SWidget.h"
#include "Widget.generated.h"

class APlayerController;
class SObjectWidget;
class ULocalPlayer;
class UPanelSlot;
class UPanelWidget;
class UWidget;

/** What the designer does with a widget. */
UENUM()
enum class EWidgetDesignFlags : uint8
{
	None = 0,
	/** The widget is shown in a designer, not in a game. */
	Designing = 1 << 0,
};
ENUM_CLASS_FLAGS(EWidgetDesignFlags)

/** Binds a Slate attribute to a reflected or plain method of this object, by a weak reference. */
#define BIND_UOBJECT_ATTRIBUTE(Type, Function) TAttribute<Type>::Create(TAttribute<Type>::FGetter::CreateUObject(this, &ThisClass::Function))

/** Binds a Slate delegate to a method of this object, by a weak reference. */
#define BIND_UOBJECT_DELEGATE(Type, Function) Type::CreateUObject(this, &ThisClass::Function)

/** Tells of a widget that came into a state or left it: the states that it is in now, of those that are reported. */
DECLARE_MULTICAST_DELEGATE_TwoParams(FOnWidgetStateBroadcast, UWidget* /*Widget*/, const FWidgetStateBitfield& /*States*/);

/** Base of all widgets: an object that designers place and that makes its Slate counterpart when it is first shown. */
UCLASS(Abstract, BlueprintType, Blueprintable, MinimalAPI)
class UWidget : public UVisual
{
	GENERATED_BODY()

public:
	/** The place of this widget in its parent; null without a parent. */
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Layout")
	TObjectPtr<UPanelSlot> Slot;

	UMG_API UWidget(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get());

	/** True when the designer makes this widget a variable of its blueprint. */
	UPROPERTY()
	uint8 bIsVariable : 1;

	/** Sets the render transform. */
	UFUNCTION(BlueprintCallable, Category = "Widget|Transform")
	UMG_API void SetRenderTransform(FWidgetTransform InTransform);

	UMG_API const FWidgetTransform& GetRenderTransform() const { return RenderTransform; }

	UFUNCTION(BlueprintCallable, Category = "Widget|Transform")
	UMG_API void SetRenderScale(FVector2D Scale);

	UFUNCTION(BlueprintCallable, Category = "Widget|Transform")
	UMG_API void SetRenderShear(FVector2D Shear);

	/** Sets the clockwise rotation in degrees. */
	UFUNCTION(BlueprintCallable, Category = "Widget|Transform")
	UMG_API void SetRenderTransformAngle(float Angle);

	UFUNCTION(BlueprintCallable, Category = "Widget|Transform")
	UMG_API float GetRenderTransformAngle() const { return RenderTransform.Angle; }

	UFUNCTION(BlueprintCallable, Category = "Widget|Transform")
	UMG_API void SetRenderTranslation(FVector2D Translation);

	/** Sets the point that scale, shear and rotation leave in place, as shares of the widget's size. */
	UFUNCTION(BlueprintCallable, Category = "Widget|Transform")
	UMG_API void SetRenderTransformPivot(FVector2D Pivot);

	UMG_API FVector2D GetRenderTransformPivot() const { return RenderTransformPivot; }

	UFUNCTION(BlueprintCallable, Category = "Widget")
	UMG_API bool GetIsEnabled() const { return bIsEnabled; }

	UFUNCTION(BlueprintCallable, Category = "Widget")
	UMG_API virtual void SetIsEnabled(bool bInIsEnabled);

	UFUNCTION(BlueprintCallable, Category = "Widget")
	UMG_API void SetToolTipText(const FText& InToolTipText);

	UMG_API FText GetToolTipText() const { return ToolTipText; }

	/** Sets the shape of the pointer over the widget. */
	UFUNCTION(BlueprintCallable, Category = "Widget")
	UMG_API void SetCursor(EMouseCursor::Type InCursor);

	UMG_API EMouseCursor::Type GetCursor() const { return Cursor; }

	/** True when the widget itself is not hidden; it may still be inside something that is. */
	UFUNCTION(BlueprintCallable, Category = "Widget")
	UMG_API bool IsVisible() const;

	/** True when the widget and everything above it is visible. */
	UFUNCTION(BlueprintCallable, Category = "Widget")
	UMG_API bool IsRendered() const;

	UFUNCTION(BlueprintCallable, Category = "Widget")
	UMG_API ESlateVisibility GetVisibility() const;

	UFUNCTION(BlueprintCallable, Category = "Widget")
	UMG_API virtual void SetVisibility(ESlateVisibility InVisibility);

	UFUNCTION(BlueprintCallable, Category = "Widget")
	UMG_API float GetRenderOpacity() const { return RenderOpacity; }

	/** Sets the opacity of the widget and everything in it, from 0 to 1. */
	UFUNCTION(BlueprintCallable, Category = "Widget")
	UMG_API void SetRenderOpacity(float InOpacity);

	UFUNCTION(BlueprintCallable, Category = "Widget")
	UMG_API EWidgetClipping GetClipping() const { return Clipping; }

	UFUNCTION(BlueprintCallable, Category = "Widget")
	UMG_API void SetClipping(EWidgetClipping InClipping);

	UFUNCTION(BlueprintCallable, Category = "Widget")
	UMG_API bool IsHovered() const;

	UFUNCTION(BlueprintCallable, Category = "Widget")
	UMG_API bool HasKeyboardFocus() const;

	UFUNCTION(BlueprintCallable, Category = "Widget")
	UMG_API bool HasMouseCapture() const;

	/** Gives the widget the keyboard. */
	UFUNCTION(BlueprintCallable, Category = "Widget")
	UMG_API void SetKeyboardFocus();

	UFUNCTION(BlueprintCallable, Category = "Widget")
	UMG_API void SetFocus();

	/** Measures the widget now instead of in the next frame. */
	UFUNCTION(BlueprintCallable, Category = "Widget")
	UMG_API void ForceLayoutPrepass();

	/** Lays the widget out and paints it anew in the next frame. */
	UFUNCTION(BlueprintCallable, Category = "Widget")
	UMG_API void InvalidateLayoutAndVolatility();

	/** The size that the widget asks for, in Slate units; zero before it was measured. */
	UFUNCTION(BlueprintCallable, Category = "Widget")
	UMG_API FVector2D GetDesiredSize() const;

	UFUNCTION(BlueprintCallable, Category = "Widget")
	UMG_API UPanelWidget* GetParent() const;

	/** Takes the widget out of its parent panel, or a user widget out of the viewport. */
	UFUNCTION(BlueprintCallable, Category = "Widget")
	UMG_API virtual void RemoveFromParent();

	/** Where the widget was painted last. */
	UFUNCTION(BlueprintCallable, Category = "Widget")
	UMG_API const FGeometry& GetCachedGeometry() const;

	UFUNCTION(BlueprintCallable, Category = "Widget")
	UMG_API virtual APlayerController* GetOwningPlayer() const;

	UMG_API virtual ULocalPlayer* GetOwningLocalPlayer() const;

	UMG_API virtual UWorld* GetWorld() const override;

	/** The Slate side, made when it is not there yet. */
	UMG_API TSharedRef<SWidget> TakeWidget();

	/** The Slate side, if it was made. */
	UMG_API TSharedPtr<SWidget> GetCachedWidget() const;

	UMG_API bool IsConstructed() const { return GetCachedWidget().IsValid(); }

	UMG_API virtual void ReleaseSlateResources(bool bReleaseChildren) override;

	/**
	 * Hands all properties to the Slate side. Called after each rebuild and after each edit in the designer; may be called
	 * at any time, with or without a Slate side.
	 */
	UMG_API virtual void SynchronizeProperties();

	/**
	 * Tells the listener each time the widget comes into a state or leaves it.
	 * @param bBroadcastCurrentState tells it of the states of now at once
	 */
	UMG_API FDelegateHandle RegisterPostStateListener(const FOnWidgetStateBroadcast::FDelegate& ListenerDelegate, bool bBroadcastCurrentState = true);
	UMG_API void UnregisterPostStateListener(const FDelegateHandle& ListenerDelegate);

	/** True while the widget is shown in a designer. */
	UMG_API bool IsDesignTime() const { return EnumHasAnyFlags(DesignerFlags, EWidgetDesignFlags::Designing); }

	UMG_API EWidgetDesignFlags GetDesignerFlags() const { return DesignerFlags; }

	/** Makes what is shown for an item. */
	DECLARE_DYNAMIC_DELEGATE_RetVal_OneParam(UWidget*, FGenerateWidgetForString, FString, Item);

	/** Tells the widget and what it is made of whether it is in a designer. */
	UMG_API virtual void SetDesignerFlags(EWidgetDesignFlags NewFlags);

#if WITH_EDITOR
	/** Heading under which the designer's palette lists the widget. */
	UMG_API virtual const FText GetPaletteCategory();

	UMG_API virtual void PostEditChangeProperty(FPropertyChangedEvent& PropertyChangedEvent) override;
#endif

	UMG_API static EVisibility ConvertSerializedVisibilityToRuntime(ESlateVisibility Input);
	UMG_API static ESlateVisibility ConvertRuntimeToSerializedVisibility(const EVisibility& Input);

protected:
	/** Makes the Slate side. An override keeps what it makes in a shared pointer member and returns the root of it. */
	UMG_API virtual TSharedRef<SWidget> RebuildWidget();

	/** Called after the Slate side was made and synchronised. */
	UMG_API virtual void OnWidgetRebuilt() {}

	/** Tells the listeners that the widget is in the state now, or is not any more. */
	UMG_API void BroadcastBinaryPostStateChange(const FWidgetStateBitfield& StateChange, bool bInValue);

	/** The Slate side of something that must be there. */
	TWeakPtr<SWidget> MyWidget;

	/** The wrapper around the Slate side of a user widget. */
	TWeakPtr<SObjectWidget> MyGCWidget;

private:
	friend class UUserWidget;

	void ApplyRenderTransform();
	FWidgetStateBitfield AskForStates() const;

	/** Who listens to changes of state; most widgets have none. */
	TUniquePtr<FOnWidgetStateBroadcast> PostStateListeners;

	/** Whether the widget can be used. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Behavior", meta = (AllowPrivateAccess = "true"))
	uint8 bIsEnabled : 1;

	/** Whether the widget shows, takes room and can be hit. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Behavior", meta = (AllowPrivateAccess = "true"))
	ESlateVisibility Visibility = ESlateVisibility::Visible;

	/** How the widget cuts off what is drawn outside of it. */
	UPROPERTY(EditAnywhere, Category = "Clipping")
	EWidgetClipping Clipping = EWidgetClipping::Inherit;

	/** Shape of the pointer over the widget. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Behavior", AdvancedDisplay, meta = (AllowPrivateAccess = "true"))
	TEnumAsByte<EMouseCursor::Type> Cursor = EMouseCursor::Default;

	EWidgetDesignFlags DesignerFlags = EWidgetDesignFlags::None;

	/** Opacity of the widget and everything in it. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Rendering", meta = (UIMin = "0", UIMax = "1", AllowPrivateAccess = "true"))
	float RenderOpacity = 1.0f;

	/** Text shown when the pointer rests on the widget. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Behavior", meta = (MultiLine = "true", AllowPrivateAccess = "true"))
	FText ToolTipText;

	/** How the widget is drawn apart from its layout. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Render Transform", meta = (AllowPrivateAccess = "true"))
	FWidgetTransform RenderTransform;

	/** Point that scale, shear and rotation leave in place, as shares of the widget's size. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Render Transform", meta = (AllowPrivateAccess = "true"))
	FVector2D RenderTransformPivot = FVector2D(0.5, 0.5);
};
