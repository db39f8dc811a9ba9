#pragma once

#include "CoreMinimal.h"
#include "Host/SceneCamera.h"
#include "Host/SceneContent.h"
#include "Host/ScenePicture.h"
#include "Host/SceneQualityVariables.h"
#include "Widgets/SLeafWidget.h"

namespace Host
{
	/**
	 * Shows a scene over its whole area, in the quality that the console variables ask for. It is drawn when the camera, the
	 * scene, the size or the quality changed, and else costs nothing. Where OpenGL cannot be used there is a plain background.
	 */
	class SSceneViewport : public SLeafWidget
	{
	public:
		SLATE_BEGIN_ARGS(SSceneViewport) : _WindowRenderer(nullptr) {}
			SLATE_ARGUMENT(TSharedPtr<FSceneContent>, Content)
			/** What draws the windows, which must outlive the widget; null for none. */
			SLATE_ARGUMENT(FSlateRenderer*, WindowRenderer)
		SLATE_END_ARGS()

		SSceneViewport();
		void Construct(const FArguments& InArgs);

		/** To be called after the content was changed. */
		void ContentChanged();

		/** Lets the function send the camera elsewhere, and eases toward there. */
		void MoveCamera(TFunctionRef<void(FSceneCamera&)> Move);
		const FSceneCamera& GetCamera() const { return Camera; }

		/** Width of the picture for a height of 1, as laid out last. */
		double GetAspectRatio() const;

		const FScenePicture& GetPicture() const { return *Picture; }

		virtual FVector2D ComputeDesiredSize(float LayoutScaleMultiplier) const override;
		virtual int32 OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect, FSlateWindowElementList& OutDrawElements,
			int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const override;

	private:
		EActiveTimerReturnType Ease(double CurrentTime, float DeltaTime);

		TSharedPtr<FSceneContent> Content;
		FSceneCamera Camera;
		TUniquePtr<FScenePicture> Picture;
		FSceneQualityVariables Quality;
		TWeakPtr<FActiveTimerHandle> EasingTimer;
	};
}
