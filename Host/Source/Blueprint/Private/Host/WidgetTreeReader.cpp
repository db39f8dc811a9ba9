#include "Host/WidgetTreeReader.h"

#include "Blueprint/UserWidget.h"
#include "Blueprint/WidgetTree.h"
#include "Components/NamedSlot.h"
#include "Components/PanelWidget.h"
#include "Host/BlueprintMembers.h"
#include "Host/BlueprintReport.h"
#include "Host/PropertyJson.h"
#include "Host/WidgetClassNames.h"

namespace Host
{
	void FWidgetTreeReader::Read(const FJsonNode& RootNode)
	{
		if (RootNode)
		{
			Tree.RootWidget = ReadWidget(RootNode);
		}
		for (const FUnreadProperties& Entry : Unread)
		{
			FPropertyJson::ReadObject(Entry.Properties, Entry.Object, [](const FString& Message) { ReportBlueprintError(Message); });
		}
	}

	UWidget* FWidgetTreeReader::ReadWidget(const FJsonNode& Node)
	{
		if (!Node.IsObject())
		{
			ReportBlueprintError(Node, FString::Printf(TEXT("a widget must be an object, not %s."), DescribeJsonKind(Node.GetKind())));
			return nullptr;
		}
		static const TCHAR* const Known[] = { TEXT("Class"), TEXT("Name"), TEXT("Properties"), TEXT("Slot"), TEXT("Children"), TEXT("NamedSlots") };
		ReportUnknownMembers(Node, Known, TEXT("a widget"));
		UClass* Class = ReadClass(Node);
		if (!Class)
		{
			return nullptr;
		}
		UWidget* Widget = NewObject<UWidget>(&Tree, Class, ReadName(Node, *Class));
		if (Widget->IsA<UNamedSlot>())
		{
			NamedSlots.Add(Widget->GetFName());
		}
		ReadPropertiesLater(Node.Find(TEXT("Properties")), *Widget);
		ReadChildren(Node.Find(TEXT("Children")), *Widget);
		ReadNamedSlots(Node.Find(TEXT("NamedSlots")), *Widget);
		return Widget;
	}

	UClass* FWidgetTreeReader::ReadClass(const FJsonNode& Node)
	{
		const FJsonNode ClassNode = Node.Find(TEXT("Class"));
		FString Name;
		if (!ClassNode.TryGetString(Name))
		{
			ReportBlueprintError(ClassNode ? ClassNode : Node, TEXT("a widget needs a \"Class\": the name or path of one."));
			return nullptr;
		}
		FString Reason;
		UClass* Class = FindWidgetClass(Name, Reason);
		if (Class && Class->HasAnyClassFlags(CLASS_Abstract))
		{
			Reason = FString::Printf(TEXT("'%s' is abstract: name a class that derives from it."), *Name);
			Class = nullptr;
		}
		if (!Class)
		{
			ReportBlueprintError(ClassNode, Reason);
		}
		return Class;
	}

	FName FWidgetTreeReader::ReadName(const FJsonNode& Node, const UClass& Class)
	{
		const FJsonNode NameNode = Node.Find(TEXT("Name"));
		FString Name;
		if (!NameNode)
		{
			return MakeUniqueObjectName(&Tree, const_cast<UClass*>(&Class));
		}
		if (!NameNode.TryGetString(Name) || Name.IsEmpty())
		{
			ReportBlueprintError(NameNode, TEXT("\"Name\" must be a text that is not empty."));
			return MakeUniqueObjectName(&Tree, const_cast<UClass*>(&Class));
		}
		if (Tree.FindWidget(FName(*Name)))
		{
			ReportBlueprintError(NameNode, FString::Printf(TEXT("there is a widget '%s' already; this one gets another name."), *Name));
			return MakeUniqueObjectName(&Tree, const_cast<UClass*>(&Class), FName(*Name));
		}
		return FName(*Name);
	}

	void FWidgetTreeReader::ReadPropertiesLater(const FJsonNode& Properties, UObject& Object)
	{
		if (Properties)
		{
			Unread.Add({ Properties, &Object });
		}
	}

	void FWidgetTreeReader::ReadChildren(const FJsonNode& Children, UWidget& Parent)
	{
		if (!Children)
		{
			return;
		}
		UPanelWidget* Panel = Cast<UPanelWidget>(&Parent);
		if (!Panel || !Children.IsArray())
		{
			ReportBlueprintError(Children, Panel ? FString(TEXT("\"Children\" must be an array of widgets.")) : FString::Printf(TEXT("a %s has no children."), *Parent.GetClass()->GetName()));
			return;
		}
		for (const FJsonNode ChildNode : Children)
		{
			UWidget* Child = ReadWidget(ChildNode);
			if (!Child)
			{
				continue;
			}
			UPanelSlot* ChildSlot = Panel->AddChild(Child);
			if (!ChildSlot)
			{
				ReportBlueprintError(ChildNode, FString::Printf(TEXT("a %s takes one child only."), *Parent.GetClass()->GetName()));
				continue;
			}
			ReadPropertiesLater(ChildNode.Find(TEXT("Slot")), *ChildSlot);
		}
	}

	void FWidgetTreeReader::ReadNamedSlots(const FJsonNode& Slots, UWidget& Widget)
	{
		if (!Slots)
		{
			return;
		}
		UUserWidget* UserWidget = Cast<UUserWidget>(&Widget);
		if (!UserWidget || !Slots.IsObject())
		{
			ReportBlueprintError(Slots, TEXT("\"NamedSlots\" must be an object of widgets by name, of a widget that is a blueprint."));
			return;
		}
		TArray<FName> Known;
		UserWidget->GetSlotNames(Known);
		for (const FJsonNode ContentNode : Slots)
		{
			const FName SlotName(ContentNode.GetKey());
			if (!Known.Contains(SlotName))
			{
				ReportBlueprintError(ContentNode, FString::Printf(TEXT("'%s' has no named slot '%s'."), *Widget.GetClass()->GetName(), *SlotName.ToString()));
			}
			else if (UWidget* Content = ReadWidget(ContentNode))
			{
				UserWidget->SetContentForSlot(SlotName, Content);
			}
		}
	}
}
