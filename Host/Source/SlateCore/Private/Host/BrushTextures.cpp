#include "Host/BrushTextures.h"

#include "Host/Texture.h"
#include "Styling/SlateBrush.h"

namespace Host
{
	namespace
	{
		TArray<FBrushTextures::FResolver>& GetResolvers()
		{
			static TArray<FBrushTextures::FResolver> Resolvers;
			return Resolvers;
		}
	}

	void FBrushTextures::Register(FResolver Resolver)
	{
		GetResolvers().AddUnique(Resolver);
	}

	void FBrushTextures::Unregister(FResolver Resolver)
	{
		GetResolvers().Remove(Resolver);
	}

	TSharedPtr<const FTexture> FBrushTextures::Find(const FSlateBrush& Brush)
	{
		UObject* Resource = Brush.GetResourceObject();
		if (!Resource)
		{
			return nullptr;
		}
		for (const FResolver Resolver : GetResolvers())
		{
			TSharedPtr<const FTexture> Texture = Resolver(*Resource);
			if (Texture.IsValid())
			{
				return Texture;
			}
		}
		return nullptr;
	}
}
