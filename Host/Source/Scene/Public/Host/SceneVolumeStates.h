#pragma once

#include "CoreMinimal.h"
#include "Host/SceneContent.h"

namespace Host
{
	/** What is particular about a volume; several may hold at once. */
	enum class ESceneVolumeState : uint8
	{
		None = 0,
		Hovered = 1 << 0,
		Selected = 1 << 1,
		/** Shown as a ghost. */
		FilteredOut = 1 << 2,
		/** Not shown at all. */
		Hidden = 1 << 3,
	};
	ENUM_CLASS_FLAGS(ESceneVolumeState)

	/** The colours of states, in linear light. */
	struct FSceneVolumePalette
	{
		/** Half of this, half of what the volume had. */
		FLinearColor Hovered = FLinearColor(1.0f, 1.0f, 1.0f);
		FLinearColor Selected = FLinearColor(0.02f, 0.30f, 0.85f);
		/** Alpha: how much of the ghost is to be seen, below 1. */
		FLinearColor FilteredOut = FLinearColor(0.75f, 0.78f, 0.80f, 0.14f);
		/** By the number of the status. */
		TArray<FLinearColor> Statuses;
	};

	/**
	 * Colours the volumes of a scene by their states. Only what differs is changed, so it may be told again and again.
	 * A hidden volume is not drawn, whatever else holds; a selected one shows that, as a ghost when it is filtered out.
	 */
	class FSceneVolumeStates
	{
	public:
		/** Volumes without state or status keep the colour that they have when they are first told of. */
		explicit FSceneVolumeStates(const TSharedRef<FSceneContent>& InContent);

		/** Replaces all that held for the volume. */
		void SetVolumeState(int32 Volume, ESceneVolumeState State);
		/** Adds to what holds for the volume, or takes away. */
		void SetVolumeFlag(int32 Volume, ESceneVolumeState Flag, bool bSet);
		ESceneVolumeState GetVolumeState(int32 Volume) const;

		/** @param Status	place in the palette; INDEX_NONE, or one that the palette does not have, for the volume's own colour */
		void SetVolumeStatus(int32 Volume, int32 Status);

		/** Colours all volumes anew. */
		void SetPalette(const FSceneVolumePalette& InPalette);

		/** Forgets all volumes, which get no colours back: to be called when the content was emptied. */
		void Reset();

	private:
		struct FEntry
		{
			FColor Own = FColor(0, 0, 0, 0);
			int16 Status = INDEX_NONE;
			ESceneVolumeState State = ESceneVolumeState::None;
			bool bKnown = false;
		};

		FEntry& GetEntry(int32 Volume);
		void Apply(int32 Volume, const FEntry& Entry);
		FColor Resolve(const FEntry& Entry) const;

		TSharedRef<FSceneContent> Content;
		TArray<FEntry> Entries;
		FSceneVolumePalette Palette;
		/** The palette as sRGB. */
		TArray<FColor> Statuses;
		FColor Selected;
		FColor FilteredOut;
		FColor SelectedGhost;
	};
}
