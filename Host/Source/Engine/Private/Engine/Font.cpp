#include "Engine/Font.h"

#include "Host/AssetLoaders.h"
#include "Host/Mounts.h"
#include "Misc/Paths.h"

namespace
{
	/** Font files are named relative to their asset, and like every content path do not lead out of its mount. */
	void ResolveFilenames(FTypeface& Typeface, const FString& AssetPath, const FString& AssetFile)
	{
		for (FTypefaceEntry& Entry : Typeface.Fonts)
		{
			const FString Filename = Entry.Font.GetFontFilename();
			if (Filename.IsEmpty())
			{
				continue;
			}
			const FString Full = FPaths::IsRelative(Filename) ? FPaths::Combine(FPaths::GetPath(AssetFile), Filename) : Filename;
			if (Host::FMounts::IsInMountOf(AssetPath, Full))
			{
				Entry.Font.SetFontFilename(Full);
				continue;
			}
			UE_LOG(LogAssets, Error, TEXT("%s: the file '%s' of the typeface '%s' is refused: it leads out of the folder of its mount."), *AssetFile, *Filename, *Entry.Name.ToString());
			Entry.Font.SetFontFilename(FString());
		}
	}
}

UFont::UFont(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
{
}

const FCompositeFont* UFont::GetCompositeFont() const
{
	return FontCacheType == EFontCacheType::Runtime ? &CompositeFont : nullptr;
}

void UFont::PostLoad()
{
	Super::PostLoad();

	FString AssetFile;
	FString Suffix;
	if (Host::FAssetLoaders::FindFile(GetPathName(), AssetFile, Suffix))
	{
		const FString AssetPath = GetPathName();
		ResolveFilenames(CompositeFont.DefaultTypeface, AssetPath, AssetFile);
		ResolveFilenames(CompositeFont.FallbackTypeface.Typeface, AssetPath, AssetFile);
		for (FCompositeSubFont& SubFont : CompositeFont.SubTypefaces)
		{
			ResolveFilenames(SubFont.Typeface, AssetPath, AssetFile);
		}
	}
	CompositeFont.MakeDirty();
}
