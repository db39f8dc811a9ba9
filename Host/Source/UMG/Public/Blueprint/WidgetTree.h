#pragma once

#include "CoreMinimal.h"
#include "Templates/SubclassOf.h"
#include "UObject/Object.h"
#include "WidgetTree.generated.h"

class UWidget;

/** The widgets that a user widget is made of. */
UCLASS(MinimalAPI)
class UWidgetTree : public UObject
{
	GENERATED_BODY()

public:
	/** The root; null in an empty tree. */
	UPROPERTY(Instanced)
	TObjectPtr<UWidget> RootWidget;

	UMG_API UWidgetTree(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get());

	/** The widget of that name; null when there is none. */
	UMG_API UWidget* FindWidget(const FName& Name) const;

	template <class WidgetType>
	WidgetType* FindWidget(const FName& Name) const
	{
		return Cast<WidgetType>(FindWidget(Name));
	}

	UMG_API void GetAllWidgets(TArray<UWidget*>& Widgets) const;

	/**
	 * Visits the widgets of this tree, the root first, depth first, what fills named slots included. Does not go into the
	 * trees of child user widgets.
	 */
	UMG_API void ForEachWidget(TFunctionRef<void(UWidget*)> Predicate) const;

	/** As ForEachWidget, going into the trees of child user widgets too. */
	UMG_API void ForEachWidgetAndDescendants(TFunctionRef<void(UWidget*)> Predicate) const;

	/** As ForEachWidget, for the widgets under the given one, without it. */
	UMG_API static void ForWidgetAndChildren(UWidget* Widget, TFunctionRef<void(UWidget*)> Predicate);

	/** Makes a widget that belongs to this tree. It is shown once it is added to a panel or made the root. */
	template <typename WidgetT>
	WidgetT* ConstructWidget(TSubclassOf<UWidget> WidgetClass = WidgetT::StaticClass(), FName WidgetName = NAME_None)
	{
		return Cast<WidgetT>(ConstructWidgetOfClass(WidgetClass, WidgetName));
	}

	UMG_API virtual UWorld* GetWorld() const override;

private:
	UMG_API UWidget* ConstructWidgetOfClass(UClass* WidgetClass, FName WidgetName);
};
