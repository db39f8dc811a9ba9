#include "Host/ObjectBlueprint.h"

#include "Components/Widget.h"
#include "GameFramework/Actor.h"
#include "Host/AssetLoaders.h"
#include "Host/BlueprintFile.h"
#include "Host/BlueprintMembers.h"
#include "Host/BlueprintReport.h"
#include "Host/BlueprintVariables.h"
#include "UObject/Class.h"
#include "UObject/Package.h"

namespace Host
{
	namespace
	{
		UClass* ReadParent(const FJsonNode& Root)
		{
			const FJsonNode ParentNode = Root.Find(TEXT("Parent"));
			FString Path;
			UClass* Parent = ParentNode.TryGetString(Path) ? LoadObject<UClass>(nullptr, *Path, nullptr, LOAD_Quiet) : UObject::StaticClass();
			if (Parent && !Parent->IsChildOf(UWidget::StaticClass()) && !Parent->IsChildOf(AActor::StaticClass()))
			{
				return Parent;
			}
			ReportBlueprintError(ParentNode, FString::Printf(TEXT("'%s' is no class of plain objects."), *Path));
			return UObject::StaticClass();
		}
	}

	UObject* LoadObjectBlueprint(const FAssetRequest& Request)
	{
		FJsonDocument Document;
		const FJsonNode Root = ReadBlueprintFile(Document, Request, TEXT("an object blueprint"));
		if (!Root)
		{
			return nullptr;
		}
		static const TCHAR* const Known[] = { TEXT("Parent"), TEXT("Defaults"), TEXT("Variables") };
		ReportUnknownMembers(Root, Known, TEXT("an object blueprint"));
		const FName ClassName(*(Request.AssetName.ToString() + TEXT("_C")));
		UClass* Class = NewObject<UClass>(Request.Package, ClassName, RF_Public | RF_Standalone);
		Class->SetSuperStruct(ReadParent(Root));
		Class->ClassFlags &= ~CLASS_Abstract;
		AddBlueprintVariables(*Class, Root.Find(TEXT("Variables")));
		Class->StaticLink();
		ReadBlueprintDefaults(*Class, Root);
		return Class;
	}
}
