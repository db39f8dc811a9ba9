#pragma once

#include "CoreMinimal.h"
#include "UObject/Class.h"
#include "WidgetBlueprintGeneratedClass.generated.h"

class UUserWidget;
class UWidgetTree;

/** The class that a widget blueprint makes: a native parent, and the tree of widgets that each instance gets a copy of. */
UCLASS(MinimalAPI)
class UWidgetBlueprintGeneratedClass : public UClass
{
	GENERATED_BODY()

public:
	/** The tree that instances copy; null for a blueprint that takes its parent's. */
	UPROPERTY()
	TObjectPtr<UWidgetTree> WidgetTreeTemplate;

	/** Names of the holes that users of the widget fill. */
	UPROPERTY()
	TArray<FName> NamedSlots;

	/** Runs for each new instance after its tree was copied and its properties bound, for what a graph sets up. */
	TFunction<void(UUserWidget&)> OnInstanceInitialized;

	/** The blueprint class of a class: itself, or the nearest one that it derives from; null for a native class. */
	UMG_API static const UWidgetBlueprintGeneratedClass* FindFor(const UClass* Class);

	/** Gives the instance its copy of the tree and sets its properties that are bound to widgets of it. */
	UMG_API void InitializeWidget(UUserWidget* UserWidget) const;

	/** The tree that instances copy: the blueprint's own, or its parent's; null when there is none. */
	UMG_API const UWidgetTree* FindTreeTemplate() const;

private:
	void BindWidgets(UUserWidget& UserWidget) const;
};
