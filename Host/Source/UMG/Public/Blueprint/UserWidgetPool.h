#pragma once

#include "CoreMinimal.h"
#include "Blueprint/UserWidget.h"
#include "UserWidgetPool.generated.h"

/**
 * User widgets that are used again: those that are in use, and those that wait. A widget that waits keeps its Slate side if
 * its user does, so that it comes back without being built and constructed anew.
 */
USTRUCT()
struct FUserWidgetPool
{
	GENERATED_BODY()

public:
	FUserWidgetPool() = default;
	/** The widget that owns those that the pool makes. */
	explicit FUserWidgetPool(UWidget& InOwningWidget) : OwningWidget(&InOwningWidget) {}

	/** A widget of exactly that class: the one that waits shortest, else a new one. Null when none can be made. */
	template <typename UserWidgetT = UUserWidget>
	UserWidgetT* GetOrCreateInstance(TSubclassOf<UserWidgetT> WidgetClass)
	{
		return Cast<UserWidgetT>(AddActiveWidgetInternal(WidgetClass));
	}

	/** The widget waits from now on. */
	UMG_API void Release(UUserWidget* Widget);
	/** All widgets wait from now on. */
	UMG_API void ReleaseAll();
	/** Forgets about all widgets. */
	UMG_API void ResetPool();

	const TArray<UUserWidget*>& GetActiveWidgets() const { return ObjectPtrDecay(ActiveWidgets); }
	int32 GetNumInactiveWidgets() const { return InactiveWidgets.Num(); }

private:
	UMG_API UUserWidget* AddActiveWidgetInternal(UClass* WidgetClass);

	UPROPERTY(Transient)
	TArray<TObjectPtr<UUserWidget>> ActiveWidgets;

	UPROPERTY(Transient)
	TArray<TObjectPtr<UUserWidget>> InactiveWidgets;

	TWeakObjectPtr<UWidget> OwningWidget;
};
