#include "Host/WidgetDesigner.h"

#include "Blueprint/UserWidget.h"
#include "Blueprint/WidgetTree.h"
#include "Engine/Engine.h"
#include "Engine/GameViewportClient.h"
#include "Engine/World.h"
#include "Host/AssetLoaders.h"
#include "Host/BlueprintReload.h"
#include "Host/ContentWatch.h"
#include "Host/PropertyEdit.h"
#include "SDesignSurface.h"
#include "UObject/Package.h"

namespace Host
{
	namespace
	{
		const TCHAR* const RebuildKey = TEXT("DesignerRebuild");

		UGameViewportClient* FindViewport()
		{
			return GEngine ? GEngine->GameViewport.Get() : nullptr;
		}
	}

	FWidgetDesigner::FWidgetDesigner()
		: Surface(SNew(SDesignSurface))
		, Watch(MakeUnique<FContentWatch>())
	{
	}

	FWidgetDesigner::~FWidgetDesigner()
	{
		Close();
		Hide();
	}

	bool FWidgetDesigner::Open(const FString& ClassPath, FString& OutReason)
	{
		if (!Make(ClassPath, OutReason))
		{
			return false;
		}
		OpenedPath = ClassPath;
		Watch->Start();
		return true;
	}

	bool FWidgetDesigner::Make(const FString& ClassPath, FString& OutReason)
	{
		UClass* Class = LoadObject<UClass>(nullptr, *ClassPath);
		if (!Class || !Class->IsChildOf(UUserWidget::StaticClass()))
		{
			OutReason = FString::Printf(TEXT("'%s' is no class of user widgets."), *ClassPath);
			return false;
		}
		if (Class->HasAnyClassFlags(CLASS_Abstract))
		{
			OutReason = FString::Printf(TEXT("'%s' is abstract: name a class that derives from it."), *ClassPath);
			return false;
		}
		Release();
		World.Reset(NewObject<UWorld>(GetTransientPackage()));
		Preview.Reset(NewObject<UUserWidget>(World.Get(), Class, NAME_None, RF_Transactional));
		Preview->SetDesignerFlags(EWidgetDesignFlags::Designing);
		Preview->Initialize();
		Rebuild();
		return true;
	}

	void FWidgetDesigner::Release()
	{
		Surface->ClearContent();
		Preview.Reset();
		World.Reset();
	}

	void FWidgetDesigner::Close()
	{
		Release();
		OpenedPath.Empty();
	}

	void FWidgetDesigner::Show()
	{
		UGameViewportClient* Viewport = FindViewport();
		if (Viewport && !bShown)
		{
			Viewport->AddViewportWidgetContent(Surface.ToSharedRef());
			bShown = true;
		}
	}

	void FWidgetDesigner::Hide()
	{
		UGameViewportClient* Viewport = FindViewport();
		if (Viewport && bShown)
		{
			Viewport->RemoveViewportWidgetContent(Surface.ToSharedRef());
		}
		bShown = false;
	}

	UWidget* FWidgetDesigner::FindWidget(const FString& Name) const
	{
		if (!Preview.Get() || Name.IsEmpty())
		{
			return Preview.Get();
		}
		return Preview->GetWidgetFromName(FName(*Name));
	}

	template <typename EditType>
	bool FWidgetDesigner::EditWidget(const FString& WidgetName, const FString& Path, FString& OutReason, EditType&& EditNow)
	{
		UWidget* Widget = FindWidget(WidgetName);
		if (!Widget)
		{
			OutReason = Preview.Get() ? FString::Printf(TEXT("'%s' has no widget '%s'."), *Preview->GetClass()->GetName(), *WidgetName) : FString(TEXT("no preview is open."));
			return false;
		}
		if (!FPropertyEdit::CanEdit(Widget, Path, OutReason))
		{
			return false;
		}
		// Asked before the edit, after which the path may lead nowhere.
		const bool bRebuild = Widget->IsA<UUserWidget>() || FPropertyEdit::HasMetaData(Widget, Path, RebuildKey);
		if (!EditNow(*Widget))
		{
			return false;
		}
		if (bRebuild)
		{
			Rebuild();
		}
		else
		{
			Widget->SynchronizeProperties();
		}
		return true;
	}

	bool FWidgetDesigner::Edit(const FString& WidgetName, const FString& Path, const FString& Text, FString& OutReason)
	{
		return EditWidget(WidgetName, Path, OutReason, [&](UWidget& Widget) { return FPropertyEdit::SetFromText(&Widget, Path, Text, OutReason); });
	}

	bool FWidgetDesigner::EditJson(const FString& WidgetName, const FString& Path, const FJsonNode& Value, FString& OutReason)
	{
		return EditWidget(WidgetName, Path, OutReason, [&](UWidget& Widget) { return FPropertyEdit::SetFromJson(&Widget, Path, Value, OutReason); });
	}

	bool FWidgetDesigner::AddElement(const FString& WidgetName, const FString& ArrayPath, FString& OutReason)
	{
		return EditWidget(WidgetName, ArrayPath, OutReason, [&](UWidget& Widget) { return FPropertyEdit::AddElement(&Widget, ArrayPath, OutReason); });
	}

	bool FWidgetDesigner::RemoveElement(const FString& WidgetName, const FString& ElementPath, FString& OutReason)
	{
		return EditWidget(WidgetName, ElementPath, OutReason, [&](UWidget& Widget) { return FPropertyEdit::RemoveElement(&Widget, ElementPath, OutReason); });
	}

	void FWidgetDesigner::Rebuild()
	{
		if (Preview.Get())
		{
			Surface->SetContent([this] { return Preview->TakeWidget(); });
		}
	}

	bool FWidgetDesigner::ReloadIfChanged()
	{
		if (OpenedPath.IsEmpty())
		{
			return false;
		}
		const bool bAssetsChanged = FAssetLoaders::ReloadChangedFiles() > 0;
		if (!Watch->HasChanged())
		{
			if (bAssetsChanged)
			{
				Rebuild();
			}
			return bAssetsChanged;
		}
		ForgetWidgetBlueprints();
		FString Reason;
		if (!Make(OpenedPath, Reason))
		{
			return false;
		}
		return true;
	}
}
