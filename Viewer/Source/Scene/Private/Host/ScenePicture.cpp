#include "Host/ScenePicture.h"

#include "Host/Texture.h"

DEFINE_LOG_CATEGORY_STATIC(LogSceneView, Log, All);

namespace Host
{
	TSharedPtr<const FTexture> FScenePicture::Update(const FSceneContent& Content, const FSceneView& View, FIntPoint Size, const FSceneQuality& Quality)
	{
		if (bGivenUp)
		{
			return nullptr;
		}
		const bool bHadPicture = Renderer.IsValid();
		FString Error;
		bool bDrawn = TryDraw(Content, View, Size, Quality, Error);
		if (!bDrawn && bHadPicture)
		{
			UE_LOG(LogSceneView, Warning, TEXT("The 3D scene is begun anew: %s."), *Error);
			bDrawn = TryDraw(Content, View, Size, Quality, Error);
		}
		if (!bDrawn)
		{
			UE_LOG(LogSceneView, Warning, TEXT("The 3D scene is not shown, all else goes on: %s."), *Error);
			bGivenUp = true;
			return nullptr;
		}
		return Renderer->GetPicture();
	}

	bool FScenePicture::TryDraw(const FSceneContent& Content, const FSceneView& View, FIntPoint Size, const FSceneQuality& Quality, FString& OutError)
	{
		if (!Renderer.IsValid())
		{
			Renderer = FSceneRenderer::Make(WindowRenderer, OutError);
		}
		if (Renderer.IsValid() && !Renderer->Draw(Content, View, Size, Quality, OutError))
		{
			Renderer.Reset();
		}
		return Renderer.IsValid();
	}
}
