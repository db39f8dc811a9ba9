#include "Host/BlueprintFile.h"

#include "Host/AssetLoaders.h"
#include "Host/BlueprintReport.h"
#include "Host/BlueprintVariables.h"
#include "Host/PropertyJson.h"
#include "UObject/Class.h"

namespace Host
{
	FJsonNode ReadBlueprintFile(FJsonDocument& Document, const FAssetRequest& Request, const TCHAR* What)
	{
		const bool bRead = Document.LoadFile(Request.Filename);
		for (const FString& Error : Document.GetErrors())
		{
			ReportBlueprintError(Error);
		}
		if (!bRead)
		{
			return FJsonNode();
		}
		const FJsonNode Root = Document.GetRoot();
		if (!Root.IsObject())
		{
			ReportBlueprintError(Root, FString::Printf(TEXT("%s must be an object, not %s."), What, DescribeJsonKind(Root.GetKind())));
			return FJsonNode();
		}
		return Root;
	}

	void ReadBlueprintDefaults(UClass& Class, const FJsonNode& Root)
	{
		UObject* Defaults = Class.GetDefaultObject();
		ReadVariableDefaults(Class, Root.Find(TEXT("Variables")), *Defaults);
		if (const FJsonNode DefaultsNode = Root.Find(TEXT("Defaults")))
		{
			FPropertyJson::ReadObject(DefaultsNode, Defaults, [](const FString& Message) { ReportBlueprintError(Message); });
		}
	}
}
