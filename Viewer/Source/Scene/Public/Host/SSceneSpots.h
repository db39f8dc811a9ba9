#pragma once

#include "CoreMinimal.h"
#include "Math/Box2D.h"
#include "Widgets/SPanel.h"

namespace Host
{
	class SSceneViewport;

	/**
	 * Keeps widgets over a scene view where places of the scene are seen, in the frame in which the camera moves. Those whose place
	 * is behind the eye or behind something solid are collapsed. Nearer ones lie over farther ones; one that would cover a nearer
	 * one is put beside that, with a line to its place. While the view stands still nothing is done.
	 *
	 * One widget may be open: it lies on top, above or below its place, and inside the part of the view that is free.
	 *
	 * Lies over the viewport, with the same geometry.
	 */
	class SSceneSpots : public SPanel
	{
	public:
		SLATE_BEGIN_ARGS(SSceneSpots)
			: _LineColour(FLinearColor::White)
		{
			_Visibility = EVisibility::SelfHitTestInvisible;
		}
			/** The view of the scene; not null. */
			SLATE_ARGUMENT(TSharedPtr<SSceneViewport>, Viewport)
			SLATE_ARGUMENT(FLinearColor, LineColour)
			/** Escape was pressed in one of the widgets. */
			SLATE_EVENT(FSimpleDelegate, OnEscape)
		SLATE_END_ARGS()

		SSceneSpots();
		virtual ~SSceneSpots() override;
		void Construct(const FArguments& InArgs);

		/** Adds a widget for a place. @return its index */
		int32 Add(const FVector& Place, const TSharedRef<SWidget>& Widget);

		/** Opens a widget in place of the one before; INDEX_NONE for none. */
		void SetOpen(int32 Index);
		int32 GetOpen() const { return Open; }

		/** Whether the place of a widget is in sight, in or beside the picture. */
		bool IsShown(int32 Index) const;

		/** How often the widgets were sorted and looked for behind what is solid. */
		int64 GetNumUpdates() const { return NumUpdates; }

		virtual FChildren* GetChildren() override { return &Slots; }
		virtual FReply OnKeyDown(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent) override;

	protected:
		virtual bool CustomPrepass(float LayoutScaleMultiplier) override;
		virtual FVector2D ComputeDesiredSize(float LayoutScaleMultiplier) const override;
		virtual void OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const override;
		virtual int32 OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect, FSlateWindowElementList& OutDrawElements,
			int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const override;

	private:
		class FSlot : public TSlotBase<FSlot>
		{
		public:
			struct FSlotArguments : public TSlotBase<FSlot>::FSlotArguments
			{
				using TSlotBase<FSlot>::FSlotArguments::FSlotArguments;
				FSlotArguments(FSlotArguments&&) = default;

				FVector Place = FVector::ZeroVector;
			};

			void Construct(const FChildren& SlotOwner, FSlotArguments&& InArgs);

			FVector Place = FVector::ZeroVector;
			/** Along the view, in centimetres, as of the last update. */
			double Depth = 0.0;
			bool bInSight = false;
		};

		/** A widget in the picture, in local units. */
		struct FPlaced
		{
			int32 Index;
			/** Where its place is seen. */
			FVector2D Point;
			FBox2D Box;
		};

		/** To be called when the camera or the scene is another. */
		void Update();
		FBox2D PlaceOpen(const FVector2D& Point, const FVector2D& Size, const FVector2D& Room) const;
		/** Finds what is in the picture. */
		void FindPlaced(const FVector2D& Room) const;
		void KeepAllApart(const FVector2D& Room) const;
		/** Puts one of those in the picture beside nearer ones that it would cover. */
		void KeepApart(int32 Own) const;
		void LinkToCell(int32 PlacedIndex, const FVector2D& Centre) const;

		TPanelChildren<FSlot> Slots;
		TSharedPtr<SSceneViewport> Viewport;
		FDelegateHandle ViewChangedHandle;
		FLinearColor LineColour = FLinearColor::White;
		FSimpleDelegate OnEscape;
		int32 Open = INDEX_NONE;
		int64 NumUpdates = 0;
		/** Of the slots, from far to near. */
		TArray<int32> Order;

		// Of the last arrangement. Kept for painting, and so that no memory is taken anew.

		/** Nearest first. */
		mutable TArray<FPlaced> Placed;
		/** By cell of the picture: the last one placed in it, and for each one placed the one before it; INDEX_NONE for none. */
		mutable TArray<int32> LastInCell;
		mutable TArray<int32> BeforeInCell;
		mutable FIntPoint NumCells = FIntPoint(0, 0);
		mutable double CellSize = 1.0;
	};
}
