#include "Engine/Font.h"

#include "Host/AssetLoaders.h"
#include "Misc/Paths.h"

namespace
{
	void ResolveFilenames(FTypeface& Typeface, const FString& Folder)
	{
		for (FTypefaceEntry& Entry : Typeface.Fonts)
		{
			const FString& Filename = Entry.Font.GetFontFilename();
			if (!Filename.IsEmpty() && FPaths::IsRelative(Filename))
			{
				Entry.Font.SetFontFilename(FPaths::Combine(Folder, Filename));
			}
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
		const FString Folder = FPaths::GetPath(AssetFile);
		ResolveFilenames(CompositeFont.DefaultTypeface, Folder);
		ResolveFilenames(CompositeFont.FallbackTypeface.Typeface, Folder);
		for (FCompositeSubFont& SubFont : CompositeFont.SubTypefaces)
		{
			ResolveFilenames(SubFont.Typeface, Folder);
		}
	}
	CompositeFont.MakeDirty();
}
