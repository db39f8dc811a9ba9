#pragma once

#include "CoreMinimal.h"
#include "UObject/Class.h"
#include "WidgetBlueprintGeneratedClass.generated.h"

class UUserWidget;
class UWidgetAnimation;
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

	/** What instances can play; each is called as the variable that holds it. */
	UPROPERTY()
	TArray<TObjectPtr<UWidgetAnimation>> Animations;

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

	/** The animation of that name, of this blueprint or of one that it derives from; null when there is none. */
	UMG_API UWidgetAnimation* FindAnimation(FName Name) const;

private:
	void BindWidgets(UUserWidget& UserWidget) const;
	void BindAnimations(UUserWidget& UserWidget) const;
};
