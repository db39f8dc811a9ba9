#pragma once

#include "CoreMinimal.h"
#include "Gl/GlContext.h"
#include "Gl/GlObjects.h"
#include "Host/PictureCompare.h"
#include "Host/SceneRenderer.h"
#include "Host/SceneView.h"
#include "Scene/GlSceneShadows.h"
#include "Scene/GlSceneShapes.h"
#include "Scene/GlSceneTargets.h"

namespace Host
{
	struct FGlSceneFrame;

	/** The scene renderer: programs, what is drawn, and when. */
	class FGlSceneRenderer final : public FSceneRenderer
	{
	public:
		explicit FGlSceneRenderer(FSlateRenderer* InWindowRenderer)
			: WindowRenderer(InWindowRenderer)
		{
		}
		virtual ~FGlSceneRenderer() override;

		bool Create(FString& OutError);

		virtual bool Draw(const FSceneContent& Content, const FSceneView& View, FIntPoint Size, const FSceneQuality& Quality, FString& OutError) override;
		virtual TSharedPtr<const FTexture> GetPicture() const override { return Picture; }
		virtual const FSceneCounters& GetCounters() const override { return Counters; }

	private:
		/** All that a picture depends on. */
		struct FDrawn
		{
			uint64 Revision = 0;
			FSceneView View;
			FIntPoint Size = FIntPoint(0, 0);
			FSceneQuality Quality;

			bool operator==(const FDrawn&) const = default;
		};

		bool MakeCurrent(FString& OutError);
		bool MakePrograms(FString& OutError);
		bool DrawPicture(const FSceneContent& Content, const FSceneView& View, const FSceneQuality& Quality, FString& OutError);
		void WriteFrame(const FGlSceneFrame& Frame);
		void DrawBackground(const FSceneContent& Content);
		void DrawVolumes(const FSceneContent& Content);
		void DrawGhosts();
		void KeepPicture();

		FSlateRenderer* WindowRenderer;
		/** Only where the windows are not drawn with OpenGL. */
		TUniquePtr<FGlContext> OwnContext;
		FGlSceneShapes Shapes;
		FGlSceneShadows Shadows;
		FGlSceneShadows::FPrograms ShadowPrograms;
		FGlSceneTargets Targets;
		FGlObject FrameBuffer;
		FGlObject EmptyArray;
		FGlObject VolumeProgram;
		FGlObject GroundProgram;
		FGlObject SkyProgram;
		FGlObject ScaleProgram;
		GLint PassLocation = -1;
		GLint AnySmoothLocation = -1;
		GLint GroundSizeLocation = -1;
		GLint RatioLocation = -1;
		int32 MaxSamples = 1;
		int32 MaxSize = 1;
		FDrawn Drawn;
		TSharedPtr<const FTexture> Picture;
		/** The same texture, where the picture is read back. */
		TSharedPtr<FTexture> ReadBackPicture;
		TArray<FColor> Pixels;
		FSceneCounters Counters;
	};
}
