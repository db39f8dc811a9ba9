#include "Engine/Texture2D.h"
#include "Host/BrushTextures.h"
#include "Host/DataTableLoader.h"
#include "Host/Texture.h"
#include "Host/TextureLoader.h"
#include "Modules/ModuleManager.h"
#include "Templates/Casts.h"

namespace
{
	const TCHAR* const ImageSuffixes[] = { TEXT(".png"), TEXT(".jpg"), TEXT(".jpeg"), TEXT(".webp") };
	const TCHAR* const TableSuffix = TEXT(".table.json");

	TSharedPtr<const Host::FTexture> FindTextureOfObject(UObject& Resource)
	{
		const UTexture* Texture = Cast<UTexture>(&Resource);
		return Texture ? Texture->GetSlateTexture() : nullptr;
	}

	/** Tells the lower floors about the assets and pictures of this one. */
	class FEngineModule final : public FDefaultModuleImpl
	{
	public:
		virtual void StartupModule() override
		{
			Host::FAssetLoaders::Add(TableSuffix, &Host::LoadDataTable);
			for (const TCHAR* Suffix : ImageSuffixes)
			{
				Host::FAssetLoaders::Add(Suffix, &Host::LoadTexture);
			}
			Host::FBrushTextures::Register(&FindTextureOfObject);
		}

		virtual void ShutdownModule() override
		{
			Host::FBrushTextures::Unregister(&FindTextureOfObject);
			for (const TCHAR* Suffix : ImageSuffixes)
			{
				Host::FAssetLoaders::Remove(Suffix);
			}
			Host::FAssetLoaders::Remove(TableSuffix);
		}
	};
}

IMPLEMENT_MODULE(FEngineModule, Engine)
