#pragma once

#include "CoreMinimal.h"
#include "Host/SceneCamera.h"
#include "Host/SceneContent.h"
#include "Host/SceneMotionQuality.h"
#include "Host/ScenePicture.h"
#include "Host/SceneQualityVariables.h"
#include "Host/SceneRayCaster.h"
#include "Math/Box2D.h"
#include "Widgets/SLeafWidget.h"

namespace Host
{
	/** A volume of the scene, or INDEX_NONE. */
	DECLARE_DELEGATE_OneParam(FOnSceneVolume, int32);
	DECLARE_DELEGATE_TwoParams(FOnSceneVolumeClicked, int32, const FPointerEvent&);

	/** Whether a place of the scene is to be seen. */
	enum class ESceneSpot : uint8
	{
		InSight,
		/** A solid volume stands before it. */
		Hidden,
		/** Beside the picture, covered at its sides, or behind the eye. */
		OutOfView,
	};

	/**
	 * Shows a scene over its whole area, in the quality that the console variables ask for. It is drawn when the camera, the
	 * scene, the size or the quality changed, and else costs nothing. While the camera moves it is drawn faster where that is slow. Where OpenGL cannot be used there is a plain background.
	 *
	 * Dragging with the left button turns about the target, with the right or the middle one moves it; the wheel comes nearer to
	 * what is under the cursor; a double click looks at a volume of the subject, or beside all of them, at the whole subject. What
	 * lies over the viewport takes its input before.
	 */
	class SSceneViewport : public SLeafWidget
	{
	public:
		/** Place among what the game's viewport shows: below everything. */
		static constexpr int32 ViewportOrder = -1000000;

		SLATE_BEGIN_ARGS(SSceneViewport) : _WindowRenderer(nullptr) {}
			SLATE_ARGUMENT(TSharedPtr<FSceneContent>, Content)
			/** What draws the windows, which must outlive the widget; null for none. */
			SLATE_ARGUMENT(FSlateRenderer*, WindowRenderer)
			/** The solid volume under the cursor is another one. */
			SLATE_EVENT(FOnSceneVolume, OnVolumeHovered)
			/** The left button was pressed and released at one place. INDEX_NONE beside all volumes. */
			SLATE_EVENT(FOnSceneVolumeClicked, OnVolumeClicked)
		SLATE_END_ARGS()

		SSceneViewport();
		void Construct(const FArguments& InArgs);

		/** To be called after the content was changed. */
		void ContentChanged();

		/** What the scene is about, without its surroundings: the camera keeps to it. Invalid, as at first, for all there is. */
		void SetSubject(const FBox& InSubject);

		/** Lets the function send the camera elsewhere, and eases toward there. */
		void MoveCamera(TFunctionRef<void(FSceneCamera&)> Move);
		const FSceneCamera& GetCamera() const { return Camera; }

		/** How much of the picture is covered at its sides, in local units: FrameAll shows the subject beside that. */
		void SetCoveredSides(double Left, double Right);

		/**
		 * Turns the camera about its target, by as little as it takes, to where the volume is to be seen behind others; not at all
		 * when a part of it is seen already, or from nowhere.
		 */
		void RevealVolume(int32 Volume);

		/** Sends the camera to where it sees the whole subject. */
		void FrameAll();

		/** Called when the camera moved or the content changed, for what follows places of the scene. */
		FSimpleMulticastDelegate& OnViewChanged() { return ViewChanged; }

		/** The part of a picture of that size that nothing covers at its sides, in local units; empty when all is covered. */
		FBox2D GetFreeArea(const FVector2D& Size) const;

		/** False when a place is behind the eye, or a solid volume stands before it. */
		bool IsInSight(const FVector& Place);

		/**
		 * Where a place of the scene is seen.
		 * @param OutPosition	in local units from the top left; unset when it is behind the eye
		 */
		ESceneSpot Locate(const FVector& Place, FVector2D& OutPosition);

		/** What is seen at a position, in local units. False when it is no solid volume. */
		bool Pick(const FVector2D& Position, FSceneHit& OutHit);

		/** Width of the picture for a height of 1, as laid out last. */
		double GetAspectRatio() const;

		const FScenePicture& GetPicture() const { return *Picture; }

		virtual FVector2D ComputeDesiredSize(float LayoutScaleMultiplier) const override;
		virtual int32 OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect, FSlateWindowElementList& OutDrawElements,
			int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const override;

		virtual FReply OnMouseButtonDown(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
		virtual FReply OnMouseButtonUp(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
		virtual FReply OnMouseMove(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
		virtual FReply OnMouseWheel(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
		virtual FReply OnMouseButtonDoubleClick(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
		virtual void OnMouseLeave(const FPointerEvent& MouseEvent) override;
		virtual void OnMouseCaptureLost(const FCaptureLostEvent& CaptureLostEvent) override;

	private:
		/** A button that is held down. */
		struct FPress
		{
			FKey Button;
			/** Where it went down, then where the cursor was last, in local units. */
			FVector2D Position = FVector2D(0.0, 0.0);
			bool bDragged = false;
		};

		/** How many of some places all over a volume are seen, in the free area and with nothing before them. */
		int32 CountSeenPlaces(const FSceneView& View, int32 Volume);
		const FBox& GetSubject() const { return Subject.IsValid ? Subject : Content->GetBounds(); }
		EActiveTimerReturnType Ease(double CurrentTime, float DeltaTime);
		void Drag(const FVector2D& Way);
		void Hover(int32 Volume);
		void HoverAt(const FVector2D& Position);
		FVector2D GetViewSize() const { return FVector2D(GetCachedGeometry().GetLocalSize()); }

		TSharedPtr<FSceneContent> Content;
		FBox Subject = FBox(ForceInit);
		double CoveredLeft = 0.0;
		double CoveredRight = 0.0;
		FSceneCamera Camera;
		TUniquePtr<FScenePicture> Picture;
		FSceneQualityVariables Quality;
		FSceneMotionQuality MotionQuality;
		/** The camera has been moving in the frame before. */
		bool bEasing = false;
		TWeakPtr<FActiveTimerHandle> EasingTimer;
		TUniquePtr<FSceneRayCaster> RayCaster;
		FSimpleMulticastDelegate ViewChanged;
		FOnSceneVolume OnVolumeHovered;
		FOnSceneVolumeClicked OnVolumeClicked;
		TOptional<FPress> Press;
		/** Where the cursor is over the scene. */
		TOptional<FVector2D> Cursor;
		int32 HoveredVolume = INDEX_NONE;
	};
}
