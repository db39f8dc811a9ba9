#include "Host/WidgetBindingChecks.h"

#include "Animation/WidgetAnimation.h"
#include "Blueprint/WidgetBlueprintGeneratedClass.h"
#include "Blueprint/WidgetTree.h"
#include "Components/Widget.h"
#include "Host/BlueprintReport.h"
#include "UObject/UnrealType.h"

namespace Host
{
	namespace
	{
		void CheckAnimationBinding(const UWidgetBlueprintGeneratedClass& Class, const FObjectProperty& Property, bool bOptional, const FJsonNode& Root)
		{
			const FString Name = Property.GetName();
			const FString Owner = Property.GetOwnerClass()->GetName();
			if (Property.PropertyClass != UWidgetAnimation::StaticClass())
			{
				ReportBlueprintError(Root, FString::Printf(TEXT("'%s' of %s is to be bound to an animation, but is a %s."), *Name, *Owner, *Property.PropertyClass->GetName()));
			}
			else if (!bOptional && !Class.FindAnimation(Property.GetFName()))
			{
				ReportBlueprintError(Root, FString::Printf(TEXT("an animation '%s' is required by %s."), *Name, *Owner));
			}
		}
	}

	void CheckWidgetBindings(const UWidgetBlueprintGeneratedClass& Class, const FJsonNode& Root)
	{
		const UWidgetTree* Tree = Class.FindTreeTemplate();
		for (TFieldIterator<FObjectProperty> It(&Class); It; ++It)
		{
			const bool bOptionalAnimation = It->HasMetaData(TEXT("BindWidgetAnimOptional"));
			if (bOptionalAnimation || It->HasMetaData(TEXT("BindWidgetAnim")))
			{
				CheckAnimationBinding(Class, **It, bOptionalAnimation, Root);
				continue;
			}
			const bool bOptional = It->HasMetaData(TEXT("BindWidgetOptional")) || It->GetBoolMetaData(TEXT("OptionalWidget"));
			if (!bOptional && !It->HasMetaData(TEXT("BindWidget")))
			{
				continue;
			}
			const UWidget* Widget = Tree ? Tree->FindWidget(It->GetFName()) : nullptr;
			if (!Widget && !bOptional)
			{
				ReportBlueprintError(Root, FString::Printf(TEXT("a widget '%s' of class %s is required by %s."), *It->GetName(), *It->PropertyClass->GetName(), *It->GetOwnerClass()->GetName()));
			}
			else if (Widget && !Widget->IsA(It->PropertyClass))
			{
				ReportBlueprintError(Root, FString::Printf(TEXT("the widget '%s' is a %s, but %s requires a %s."), *It->GetName(), *Widget->GetClass()->GetName(), *It->GetOwnerClass()->GetName(), *It->PropertyClass->GetName()));
			}
		}
	}
}
