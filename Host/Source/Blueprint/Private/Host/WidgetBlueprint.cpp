#include "Host/WidgetBlueprint.h"

#include "Blueprint/UserWidget.h"
#include "Blueprint/WidgetBlueprintGeneratedClass.h"
#include "Blueprint/WidgetTree.h"
#include "Host/AnimationReader.h"
#include "Host/AssetLoaders.h"
#include "Host/BlueprintFile.h"
#include "Host/BlueprintInterfaces.h"
#include "Host/BlueprintMembers.h"
#include "Host/BlueprintReport.h"
#include "Host/BlueprintVariables.h"
#include "Host/JsonDocument.h"
#include "Host/WidgetBindingChecks.h"
#include "Host/WidgetClassNames.h"
#include "Host/WidgetGraph.h"
#include "Host/WidgetTreeReader.h"
#include "UObject/Package.h"

namespace Host
{
	namespace
	{
		/** The class that the blueprint derives from; UserWidget, after an error, when the file names no other. */
		UClass* ReadParent(const FJsonNode& Root)
		{
			const FJsonNode ParentNode = Root.Find(TEXT("Parent"));
			if (!ParentNode)
			{
				return UUserWidget::StaticClass();
			}
			FString Name;
			FString Reason = TEXT("\"Parent\" must be the path of a class.");
			UClass* Parent = ParentNode.TryGetString(Name) ? FindWidgetClass(Name, Reason) : nullptr;
			if (Parent && !Parent->IsChildOf(UUserWidget::StaticClass()))
			{
				Reason = FString::Printf(TEXT("'%s' is no class of user widgets."), *Name);
				Parent = nullptr;
			}
			if (!Parent)
			{
				ReportBlueprintError(ParentNode, Reason);
				return UUserWidget::StaticClass();
			}
			return Parent;
		}
	}

	UObject* LoadWidgetBlueprint(const FAssetRequest& Request)
	{
		FJsonDocument Document;
		const FJsonNode Root = ReadBlueprintFile(Document, Request, TEXT("a widget blueprint"));
		if (!Root)
		{
			return nullptr;
		}
		static const TCHAR* const Known[] = { TEXT("Parent"), TEXT("Interfaces"), TEXT("Defaults"), TEXT("Variables"), TEXT("Root"), TEXT("Animations") };
		ReportUnknownMembers(Root, Known, TEXT("a widget blueprint"));

		const FName ClassName(*(Request.AssetName.ToString() + TEXT("_C")));
		UWidgetBlueprintGeneratedClass* Class = NewObject<UWidgetBlueprintGeneratedClass>(Request.Package, ClassName, RF_Public | RF_Standalone);
		Class->SetSuperStruct(ReadParent(Root));
		Class->ClassFlags &= ~CLASS_Abstract;
		AddBlueprintInterfaces(*Class, Root.Find(TEXT("Interfaces")));
		AddBlueprintVariables(*Class, Root.Find(TEXT("Variables")));
		const FJsonNode Animations = Root.Find(TEXT("Animations"));
		AddAnimationVariables(*Class, Animations);
		LoadWidgetGraph(*Class, Request.Filename);
		Class->StaticLink();

		ReadBlueprintDefaults(*Class, Root);

		Class->WidgetTreeTemplate = NewObject<UWidgetTree>(Class, TEXT("WidgetTree"));
		FWidgetTreeReader Reader(*Class->WidgetTreeTemplate);
		Reader.Read(Root.Find(TEXT("Root")));
		Class->NamedSlots = Reader.GetNamedSlots();
		ReadAnimations(*Class, Animations);
		CheckWidgetBindings(*Class, Root);
		return Class;
	}
}
