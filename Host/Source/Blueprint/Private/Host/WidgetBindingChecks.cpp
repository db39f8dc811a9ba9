#include "Host/WidgetBindingChecks.h"

#include "Blueprint/WidgetBlueprintGeneratedClass.h"
#include "Blueprint/WidgetTree.h"
#include "Components/Widget.h"
#include "Host/BlueprintReport.h"
#include "UObject/UnrealType.h"

namespace Host
{
	void CheckWidgetBindings(const UWidgetBlueprintGeneratedClass& Class, const FJsonNode& Root)
	{
		const UWidgetTree* Tree = Class.FindTreeTemplate();
		for (TFieldIterator<FObjectProperty> It(&Class); It; ++It)
		{
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
