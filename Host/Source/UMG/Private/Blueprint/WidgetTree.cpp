#include "Blueprint/WidgetTree.h"

#include "Blueprint/UserWidget.h"
#include "Components/NamedSlotInterface.h"
#include "Components/PanelWidget.h"

namespace
{
	/** Visits what stands directly under a widget: the children of a panel and what fills named slots. */
	void ForEachDirectChild(UWidget* Widget, TFunctionRef<void(UWidget*)> Visit)
	{
		if (const INamedSlotInterface* NamedSlots = Cast<INamedSlotInterface>(Widget))
		{
			TArray<FName> SlotNames;
			NamedSlots->GetSlotNames(SlotNames);
			for (const FName& SlotName : SlotNames)
			{
				if (UWidget* Content = NamedSlots->GetContentForSlot(SlotName))
				{
					Visit(Content);
				}
			}
		}
		if (const UPanelWidget* Panel = Cast<UPanelWidget>(Widget))
		{
			for (int32 Index = 0; Index < Panel->GetChildrenCount(); ++Index)
			{
				if (UWidget* Child = Panel->GetChildAt(Index))
				{
					Visit(Child);
				}
			}
		}
	}
}

UWidgetTree::UWidgetTree(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
{
}

UWidget* UWidgetTree::FindWidget(const FName& Name) const
{
	return static_cast<UWidget*>(StaticFindObjectFast(UWidget::StaticClass(), const_cast<UWidgetTree*>(this), Name));
}

void UWidgetTree::GetAllWidgets(TArray<UWidget*>& Widgets) const
{
	ForEachWidget([&Widgets](UWidget* Widget) { Widgets.Add(Widget); });
}

void UWidgetTree::ForEachWidget(TFunctionRef<void(UWidget*)> Predicate) const
{
	if (RootWidget)
	{
		Predicate(RootWidget);
		ForWidgetAndChildren(RootWidget, Predicate);
	}
}

void UWidgetTree::ForEachWidgetAndDescendants(TFunctionRef<void(UWidget*)> Predicate) const
{
	ForEachWidget([&Predicate](UWidget* Widget)
	{
		Predicate(Widget);
		if (const UUserWidget* UserWidget = Cast<UUserWidget>(Widget); UserWidget && UserWidget->WidgetTree)
		{
			UserWidget->WidgetTree->ForEachWidgetAndDescendants(Predicate);
		}
	});
}

void UWidgetTree::ForWidgetAndChildren(UWidget* Widget, TFunctionRef<void(UWidget*)> Predicate)
{
	ForEachDirectChild(Widget, [&Predicate](UWidget* Child)
	{
		Predicate(Child);
		ForWidgetAndChildren(Child, Predicate);
	});
}

UWorld* UWidgetTree::GetWorld() const
{
	const UUserWidget* UserWidget = Cast<UUserWidget>(GetOuter());
	return UserWidget ? UserWidget->GetWorld() : nullptr;
}

UWidget* UWidgetTree::ConstructWidgetOfClass(UClass* WidgetClass, FName WidgetName)
{
	if (!WidgetClass)
	{
		return nullptr;
	}
	if (WidgetClass->IsChildOf(UUserWidget::StaticClass()))
	{
		return UUserWidget::CreateWidgetInstance(*this, WidgetClass, WidgetName);
	}
	UWidget* NewWidget = NewObject<UWidget>(this, WidgetClass, WidgetName);
	if (const UUserWidget* Owner = Cast<UUserWidget>(GetOuter()))
	{
		NewWidget->SetDesignerFlags(Owner->GetDesignerFlags());
	}
	return NewWidget;
}
