#include "ExpectedLog.h"
#include "ScenePictureTools.h"

#include "Host/RendererChoice.h"
#include "Host/ScenePicture.h"

#include "gtest/gtest.h"

using namespace Host;

namespace
{
	/** Draws with OpenGL until the context is lost. */
	class FLosingRenderer final : public FSlateRenderer
	{
	public:
		FLosingRenderer()
		{
			FString Error;
			Renderer = MakeRenderer(ERendererChoice::Gl, true, Error);
			checkf(Renderer.IsValid(), TEXT("%s"), *Error);
		}

		virtual bool Initialize(FString& OutError) override { return Renderer->Initialize(OutError); }
		virtual void Destroy() override { Renderer->Destroy(); }
		virtual const TCHAR* GetName() const override { return Renderer->GetName(); }
		virtual TUniquePtr<FWindowSurface> CreateSurface(FIntPoint Size, void* NativeWindow) override { return Renderer->CreateSurface(Size, NativeWindow); }
		virtual bool BeginNativeDrawing() override { return !bLost && Renderer->BeginNativeDrawing(); }

		bool bLost = false;

	private:
		TSharedPtr<FSlateRenderer> Renderer;
	};
}

TEST(SceneLoss, SharesTheContextOfTheWindowsWithoutReadingBack)
{
	FLosingRenderer Windows;
	FSceneContent Content;
	BuildCube(Content);
	FScenePicture Picture(&Windows);

	const TSharedPtr<const FTexture> Texture = Picture.Update(Content, MakeView(), FIntPoint(64, 48), FSceneQuality());

	ASSERT_TRUE(Texture.IsValid());
	EXPECT_NE(Texture->GetNativeHandle(), 0u);
	EXPECT_EQ(Picture.GetRenderer()->GetCounters().ReadBacks, 0);
}

TEST(SceneLoss, ALostContextIsReplaced)
{
	FLosingRenderer Windows;
	FSceneContent Content;
	BuildCube(Content);
	FSceneView View = MakeView();
	FScenePicture Picture(&Windows);
	ASSERT_TRUE(Picture.Update(Content, View, FIntPoint(64, 48), FSceneQuality()).IsValid());

	Windows.bLost = true;
	View.Location.X += 1.0;
	FExpectedLog Line(TEXT("The 3D scene is begun anew"));
	const TSharedPtr<const FTexture> Texture = Picture.Update(Content, View, FIntPoint(64, 48), FSceneQuality());

	ASSERT_TRUE(Texture.IsValid());
	EXPECT_NE(Texture->GetPixels(), nullptr) << "in a context of its own, it is read back";
	EXPECT_LT(FPictureReader(*Picture.GetRenderer()).At(View, FVector(0.0, 0.0, 1000.0)).G, 10);
}

TEST(SceneLoss, WhatIsUpToDateDoesNotNeedTheContext)
{
	FLosingRenderer Windows;
	FSceneContent Content;
	FScenePicture Picture(&Windows);
	const TSharedPtr<const FTexture> Texture = Picture.Update(Content, MakeView(), FIntPoint(64, 48), FSceneQuality());

	Windows.bLost = true;

	EXPECT_EQ(Picture.Update(Content, MakeView(), FIntPoint(64, 48), FSceneQuality()), Texture);
	Windows.bLost = false;
}
