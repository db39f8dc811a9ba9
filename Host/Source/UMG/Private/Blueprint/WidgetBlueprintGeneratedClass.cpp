#include "Blueprint/WidgetBlueprintGeneratedClass.h"

#include "Animation/WidgetAnimation.h"
#include "Blueprint/UserWidget.h"
#include "Blueprint/WidgetTree.h"
#include "UObject/UnrealType.h"

const UWidgetBlueprintGeneratedClass* UWidgetBlueprintGeneratedClass::FindFor(const UClass* Class)
{
	for (; Class && !Class->HasAnyClassFlags(CLASS_Native); Class = Class->GetSuperClass())
	{
		if (const UWidgetBlueprintGeneratedClass* BlueprintClass = Cast<UWidgetBlueprintGeneratedClass>(Class))
		{
			return BlueprintClass;
		}
	}
	return nullptr;
}

void UWidgetBlueprintGeneratedClass::InitializeWidget(UUserWidget* UserWidget) const
{
	if (const UWidgetTree* Template = FindTreeTemplate())
	{
		UserWidget->WidgetTree = DuplicateObject<UWidgetTree>(Template, UserWidget, TEXT("WidgetTree"));
		UserWidget->WidgetTree->SetFlags(RF_Transient);
	}
	BindWidgets(*UserWidget);

	// Parents first, so that a derived blueprint finds what its parent set up.
	TArray<const UWidgetBlueprintGeneratedClass*> Line;
	for (const UWidgetBlueprintGeneratedClass* Class = this; Class; Class = FindFor(Class->GetSuperClass()))
	{
		Line.Insert(Class, 0);
	}
	for (const UWidgetBlueprintGeneratedClass* Class : Line)
	{
		Class->BindAnimations(*UserWidget);
		if (Class->OnInstanceInitialized)
		{
			Class->OnInstanceInitialized(*UserWidget);
		}
	}
}

const UWidgetTree* UWidgetBlueprintGeneratedClass::FindTreeTemplate() const
{
	for (const UWidgetBlueprintGeneratedClass* Class = this; Class; Class = FindFor(Class->GetSuperClass()))
	{
		if (Class->WidgetTreeTemplate && Class->WidgetTreeTemplate->RootWidget)
		{
			return Class->WidgetTreeTemplate;
		}
	}
	return nullptr;
}

void UWidgetBlueprintGeneratedClass::BindWidgets(UUserWidget& UserWidget) const
{
	if (!UserWidget.WidgetTree)
	{
		return;
	}
	UserWidget.WidgetTree->ForEachWidget([&UserWidget](UWidget* Widget)
	{
		const FObjectPropertyBase* Property = FindFProperty<FObjectPropertyBase>(UserWidget.GetClass(), Widget->GetFName());
		if (Property && Widget->IsA(Property->PropertyClass))
		{
			Property->SetObjectPropertyValue_InContainer(&UserWidget, Widget);
		}
	});
}

UWidgetAnimation* UWidgetBlueprintGeneratedClass::FindAnimation(FName Name) const
{
	for (const UWidgetBlueprintGeneratedClass* Class = this; Class; Class = FindFor(Class->GetSuperClass()))
	{
		if (const TObjectPtr<UWidgetAnimation>* Found = Class->Animations.FindByPredicate([Name](const UWidgetAnimation* Animation) { return Animation->GetFName() == Name; }))
		{
			return *Found;
		}
	}
	return nullptr;
}

void UWidgetBlueprintGeneratedClass::BindAnimations(UUserWidget& UserWidget) const
{
	for (UWidgetAnimation* Animation : Animations)
	{
		const FObjectPropertyBase* Property = FindFProperty<FObjectPropertyBase>(UserWidget.GetClass(), Animation->GetFName());
		if (Property && Animation->IsA(Property->PropertyClass))
		{
			Property->SetObjectPropertyValue_InContainer(&UserWidget, Animation);
		}
	}
}
