#include "Host/ObjectAsset.h"

#include "Host/JsonDocument.h"
#include "Host/ObjectCopier.h"
#include "Host/PropertyJson.h"
#include "UObject/Class.h"
#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UnrealType.h"

namespace Host
{
	namespace
	{
		/** False, after a line in the log, when the file is no JSON object. */
		bool OpenDocument(const FAssetRequest& Request, FJsonDocument& Document)
		{
			const bool bRead = Document.LoadFile(Request.Filename);
			for (const FString& Error : Document.GetErrors())
			{
				UE_LOG(LogAssets, Error, TEXT("%s"), *Error);
			}
			if (bRead && !Document.GetRoot().IsObject())
			{
				UE_LOG(LogAssets, Error, TEXT("%s: expected an object with \"Class\" and \"Properties\", found %s"),
					*Document.GetRoot().Where(), DescribeJsonKind(Document.GetRoot().GetKind()));
				return false;
			}
			return bRead;
		}

		void ReportUnknownMembers(const FJsonNode& Root)
		{
			for (const FJsonNode Member : Root)
			{
				const FStringView Key = Member.GetKey();
				if (Key != TEXT("Class") && Key != TEXT("Properties"))
				{
					UE_LOG(LogAssets, Error, TEXT("%s: \"%s\" is unknown here; an asset has \"Class\" and \"Properties\""),
						*Member.Where(), *FString(Key));
				}
			}
		}
	}

	UClass* FObjectAsset::FindClass(const FJsonNode& Root)
	{
		const FJsonNode Node = Root.Find(TEXT("Class"));
		FString Path;
		if (!Node.TryGetString(Path))
		{
			UE_LOG(LogAssets, Error, TEXT("%s: expected \"Class\" with the path of a class such as \"/Script/Module.Class\""),
				Node ? *Node.Where() : *Root.Where());
			return nullptr;
		}
		UClass* Class = StaticLoadClass(UObject::StaticClass(), nullptr, *Path, nullptr, LOAD_Quiet);
		if (!Class)
		{
			UE_LOG(LogAssets, Error, TEXT("%s: there is no class %s"), *Node.Where(), *Path);
			return nullptr;
		}
		if (Class->HasAnyClassFlags(CLASS_Abstract | CLASS_Interface))
		{
			UE_LOG(LogAssets, Error, TEXT("%s: class %s is abstract"), *Node.Where(), *Path);
			return nullptr;
		}
		return Class;
	}

	bool FObjectAsset::Read(UObject* Object, const FJsonNode& Root, const FAssetRequest& Request)
	{
		if (const FAssetReader* Reader = FindReader(Object->GetClass()))
		{
			return FAssetReader(*Reader)(Object, Root, Request);
		}
		ReportUnknownMembers(Root);
		if (const FJsonNode Properties = Root.Find(TEXT("Properties")))
		{
			FPropertyJson::ReadObject(Properties, Object);
		}
		return true;
	}

	UObject* FObjectAsset::Load(const FAssetRequest& Request)
	{
		FJsonDocument Document;
		if (!OpenDocument(Request, Document))
		{
			return nullptr;
		}
		UClass* Class = FindClass(Document.GetRoot());
		if (!Class)
		{
			return nullptr;
		}
		UObject* Object = NewObject<UObject>(Request.Package, Class, Request.AssetName, RF_Public | RF_Standalone | RF_WasLoaded | RF_NeedPostLoad);
		if (!Read(Object, Document.GetRoot(), Request))
		{
			Object->Rename(*MakeUniqueObjectName(GetTransientPackage(), Class).ToString(), GetTransientPackage());
			Object->ClearFlags(RF_Public | RF_Standalone);
			Object->MarkAsGarbage();
			return nullptr;
		}
		Object->SetFlags(RF_LoadCompleted);
		Object->ConditionalPostLoad();
		return Object;
	}

	bool FObjectAsset::Reload(UObject* Object, const FAssetRequest& Request)
	{
		FJsonDocument Document;
		if (!OpenDocument(Request, Document))
		{
			return false;
		}
		if (FindClass(Document.GetRoot()) != Object->GetClass())
		{
			UE_LOG(LogAssets, Error, TEXT("%s: the class of an asset that is in use cannot change; %s stays as it is"),
				*Document.GetRoot().Where(), *Object->GetPathName());
			return false;
		}
#if WITH_EDITOR
		Object->PreEditChange(nullptr);
#endif
		CopyProperties(Object, Object->GetClass()->GetDefaultObject(), CPF_InstancedReference | CPF_ContainsInstancedReference | CPF_Transient);
		const bool bRead = Read(Object, Document.GetRoot(), Request);
		Object->PostLoad();
#if WITH_EDITOR
		Object->PostEditChange();
#endif
		return bRead;
	}
}
