#include "Host/SceneVolumeStates.h"

namespace Host
{
	namespace
	{
		/** A selected ghost is to be found among the others. */
		constexpr float SelectedGhostOpacity = 0.45f;
		constexpr float HoverShare = 0.5f;

		bool Has(ESceneVolumeState State, ESceneVolumeState Flag)
		{
			return EnumHasAnyFlags(State, Flag);
		}
	}

	FSceneVolumeStates::FSceneVolumeStates(const TSharedRef<FSceneContent>& InContent)
		: Content(InContent)
	{
		SetPalette(FSceneVolumePalette());
	}

	FSceneVolumeStates::FEntry& FSceneVolumeStates::GetEntry(int32 Volume)
	{
		if (Volume >= Entries.Num())
		{
			Entries.SetNum(Content->Num());
		}
		FEntry& Entry = Entries[Volume];
		if (!Entry.bKnown)
		{
			Entry.bKnown = true;
			Entry.Own = Content->GetColours()[Volume];
		}
		return Entry;
	}

	void FSceneVolumeStates::SetVolumeState(int32 Volume, ESceneVolumeState State)
	{
		FEntry& Entry = GetEntry(Volume);
		if (Entry.State != State)
		{
			Entry.State = State;
			Apply(Volume, Entry);
		}
	}

	void FSceneVolumeStates::SetVolumeFlag(int32 Volume, ESceneVolumeState Flag, bool bSet)
	{
		const ESceneVolumeState State = GetVolumeState(Volume);
		SetVolumeState(Volume, bSet ? State | Flag : State & ~Flag);
	}

	ESceneVolumeState FSceneVolumeStates::GetVolumeState(int32 Volume) const
	{
		return Volume < Entries.Num() ? Entries[Volume].State : ESceneVolumeState::None;
	}

	void FSceneVolumeStates::SetVolumeStatus(int32 Volume, int32 Status)
	{
		FEntry& Entry = GetEntry(Volume);
		const int16 Kept = static_cast<int16>(Status >= 0 && Status <= MAX_int16 ? Status : INDEX_NONE);
		if (Entry.Status != Kept)
		{
			Entry.Status = Kept;
			Apply(Volume, Entry);
		}
	}

	void FSceneVolumeStates::SetPalette(const FSceneVolumePalette& InPalette)
	{
		Palette = InPalette;
		Statuses.Reset();
		for (const FLinearColor& Status : Palette.Statuses)
		{
			Statuses.Add(Status.ToFColorSRGB());
		}
		Selected = Palette.Selected.ToFColorSRGB();
		FilteredOut = Palette.FilteredOut.ToFColorSRGB();
		SelectedGhost = Palette.Selected.CopyWithNewOpacity(SelectedGhostOpacity).ToFColorSRGB();
		for (int32 Volume = 0; Volume < Entries.Num(); ++Volume)
		{
			if (Entries[Volume].bKnown)
			{
				Apply(Volume, Entries[Volume]);
			}
		}
	}

	void FSceneVolumeStates::Reset()
	{
		Entries.Reset();
	}

	void FSceneVolumeStates::Apply(int32 Volume, const FEntry& Entry)
	{
		Content->SetColour(Volume, Resolve(Entry));
	}

	FColor FSceneVolumeStates::Resolve(const FEntry& Entry) const
	{
		if (Has(Entry.State, ESceneVolumeState::Hidden))
		{
			return FColor(0, 0, 0, 0);
		}
		const bool bSelected = Has(Entry.State, ESceneVolumeState::Selected);
		FColor Colour = Statuses.IsValidIndex(Entry.Status) ? Statuses[Entry.Status] : Entry.Own;
		if (Has(Entry.State, ESceneVolumeState::FilteredOut))
		{
			Colour = bSelected ? SelectedGhost : FilteredOut;
		}
		else if (bSelected)
		{
			Colour = Selected;
		}
		if (Has(Entry.State, ESceneVolumeState::Hovered))
		{
			const uint8 Alpha = Colour.A;
			const FLinearColor Plain(Colour);
			Colour = (Plain + (Palette.Hovered - Plain) * HoverShare).ToFColorSRGB().WithAlpha(Alpha);
		}
		return Colour;
	}
}
