#include "Host/UnitSceneBinding.h"

#include "Filters/UnitsFilterManager.h"
#include "Host/ProjectSurroundings.h"
#include "Host/UnitScenePalette.h"
#include "UnitVolumes/UnitVolumeActor.h"
#include "UnitVolumes/UnitVolumesManager.h"

using namespace Host;

namespace
{
	/** Radii of a unit that are seen about it when the camera turns to it. */
	constexpr double RadiiInView = 8.0;
}

TSharedRef<SSceneViewport> UUnitSceneBinding::Bind(AUnitVolumesManager& InManager, FSlateRenderer* WindowRenderer)
{
	Manager = &InManager;
	Content = MakeShared<FSceneContent>();
	States = MakeUnique<FSceneVolumeStates>(Content.ToSharedRef());
	States->SetPalette(MakeUnitScenePalette());
	Viewport = SNew(SSceneViewport)
		.Content(Content)
		.WindowRenderer(WindowRenderer)
		.OnVolumeHovered(FOnSceneVolume::CreateUObject(this, &UUnitSceneBinding::Hovered))
		.OnVolumeClicked(FOnSceneVolumeClicked::CreateUObject(this, &UUnitSceneBinding::Clicked));
	InManager.OnUnitDataUpdated.AddDynamic(this, &UUnitSceneBinding::ReceivedUnitData);
	InManager.OnUnitVolumeSelectionChanged.AddDynamic(this, &UUnitSceneBinding::ReceivedSelection);
	InManager.OnUnitVolumeSelectionCleared.AddDynamic(this, &UUnitSceneBinding::ReceivedSelectionCleared);
	InManager.OnUnitVolumeHighlightChanged.AddDynamic(this, &UUnitSceneBinding::ReceivedHighlight);
	InManager.GetUnitFilterManager()->OnFilterResult.AddDynamic(this, &UUnitSceneBinding::ReceivedFilterResult);
	MakeVolumes(InManager.GetUnitVolumes());
	return Viewport.ToSharedRef();
}

void UUnitSceneBinding::Unbind()
{
	if (AUnitVolumesManager* const Bound = Manager.Get())
	{
		Bound->OnUnitDataUpdated.RemoveAll(this);
		Bound->OnUnitVolumeSelectionChanged.RemoveAll(this);
		Bound->OnUnitVolumeSelectionCleared.RemoveAll(this);
		Bound->OnUnitVolumeHighlightChanged.RemoveAll(this);
		Bound->GetUnitFilterManager()->OnFilterResult.RemoveAll(this);
	}
	Manager = nullptr;
	Viewport.Reset();
	States.Reset();
	Content.Reset();
}

void UUnitSceneBinding::RefreshColours()
{
	States->SetPalette(MakeUnitScenePalette());
	DrawChanges();
}

int32 UUnitSceneBinding::FindVolume(const AUnitVolumeActor* UnitVolume) const
{
	const int32* const Found = UnitVolume ? VolumeOfUnit.Find(UnitVolume) : nullptr;
	return Found && GetUnit(*Found) == UnitVolume ? *Found : INDEX_NONE;
}

AUnitVolumeActor* UUnitSceneBinding::GetUnit(int32 Volume) const
{
	const int32 Place = Volume - FirstUnitVolume;
	return UnitOfVolume.IsValidIndex(Place) ? UnitOfVolume[Place].Get() : nullptr;
}

void UUnitSceneBinding::ReceivedUnitData(const TArray<FUnitData>&)
{
	const TArray<AUnitVolumeActor*> Now = Manager->GetUnitVolumes();
	bool bSame = Now.Num() == Units.Num();
	for (int32 Index = 0; bSame && Index < Now.Num(); ++Index)
	{
		bSame = Units[Index].Get() == Now[Index];
	}
	if (bSame)
	{
		ShowAllUnits();
		DrawChanges();
	}
	else
	{
		MakeVolumes(Now);
	}
}

void UUnitSceneBinding::ReceivedSelection(const TArray<AUnitVolumeActor*>& UnitVolumes)
{
	TArray<int32> Changed = MoveTemp(SelectedVolumes);
	const TArray<int32> Before = Changed;
	SelectedVolumes.Reset();
	for (const AUnitVolumeActor* UnitVolume : UnitVolumes)
	{
		const int32 Volume = FindVolume(UnitVolume);
		if (Volume != INDEX_NONE)
		{
			SelectedVolumes.Add(Volume);
		}
	}
	Changed.Append(SelectedVolumes);
	for (const int32 Volume : Changed)
	{
		const AUnitVolumeActor* const UnitVolume = GetUnit(Volume);
		States->SetVolumeFlag(Volume, ESceneVolumeState::Selected, UnitVolume && UnitVolume->IsSelected());
	}
	DrawChanges();
	const int32 Last = UnitVolumes.IsEmpty() ? INDEX_NONE : FindVolume(UnitVolumes.Last());
	if (Last != INDEX_NONE && !Before.Contains(Last) && !bClicking)
	{
		BringIntoView(Last);
	}
}

void UUnitSceneBinding::ReceivedSelectionCleared()
{
	ReceivedSelection(TArray<AUnitVolumeActor*>());
}

void UUnitSceneBinding::ReceivedHighlight(AUnitVolumeActor* UnitVolume)
{
	const int32 Before = HighlightedVolume;
	HighlightedVolume = FindVolume(UnitVolume);
	if (Before != INDEX_NONE)
	{
		States->SetVolumeFlag(Before, ESceneVolumeState::Hovered, false);
	}
	if (HighlightedVolume != INDEX_NONE)
	{
		States->SetVolumeFlag(HighlightedVolume, ESceneVolumeState::Hovered, true);
	}
	DrawChanges();
}

void UUnitSceneBinding::ReceivedFilterResult(const FUnitsFilterResult&)
{
	ShowAllUnits();
	DrawChanges();
}

void UUnitSceneBinding::Hovered(int32 Volume)
{
	if (AUnitVolumesManager* const Bound = Manager.Get())
	{
		Bound->SetHighlightedUnitVolume(GetUnit(Volume));
	}
}

void UUnitSceneBinding::Clicked(int32 Volume, const FPointerEvent& MouseEvent)
{
	OnClicked.Broadcast();
	AUnitVolumesManager* const Bound = Manager.Get();
	if (!Bound)
	{
		return;
	}
	AUnitVolumeActor* const UnitVolume = GetUnit(Volume);
	// What was clicked is in view: the camera stays.
	TGuardValue<bool> Guard(bClicking, true);
	if (!MouseEvent.IsControlDown())
	{
		UnitVolume ? Bound->SelectUnitVolume(UnitVolume, false) : Bound->ClearSelection();
	}
	else if (UnitVolume)
	{
		UnitVolume->IsSelected() ? Bound->UnselectUnitVolume(UnitVolume) : Bound->SelectUnitVolume(UnitVolume, true);
	}
}

void UUnitSceneBinding::MakeVolumes(const TArray<AUnitVolumeActor*>& UnitVolumes)
{
	Content->Empty();
	States->Reset();
	Units.Reset(UnitVolumes.Num());
	UnitOfVolume.Reset(UnitVolumes.Num());
	VolumeOfUnit.Empty(UnitVolumes.Num());
	SelectedVolumes.Reset();
	HighlightedVolume = INDEX_NONE;
	UnitBounds = FBox(ForceInit);
	for (const AUnitVolumeActor* UnitVolume : UnitVolumes)
	{
		if (UnitVolume->GetVolume().HasVolume())
		{
			UnitBounds += UnitVolume->GetVolumeBounds();
		}
	}
	if (UnitBounds.IsValid)
	{
		ProjectSurroundings::Build(*Content, UnitBounds);
	}
	FirstUnitVolume = Content->Num();
	for (AUnitVolumeActor* UnitVolume : UnitVolumes)
	{
		Units.Add(UnitVolume);
		if (UnitVolume->GetVolume().HasVolume())
		{
			AddVolume(*UnitVolume);
		}
	}
	DrawnRevision = Content->GetRevision();
	Viewport->SetSubject(UnitBounds);
	Viewport->FrameAll();
}

void UUnitSceneBinding::AddVolume(AUnitVolumeActor& UnitVolume)
{
	const FUnitVolumeShape& Shape = UnitVolume.GetVolume();
	const FTransform Transform = UnitVolume.GetActorTransform();
	FSceneOutline Outline;
	for (const FVector2D& Corner : Shape.GetCorners())
	{
		Outline.Points.Add(FVector2D(Transform.TransformPosition(FVector(Corner, Shape.Min.Z))));
	}
	const FBox Bounds = UnitVolume.GetVolumeBounds();
	Outline.Bottom = Bounds.Min.Z;
	Outline.Top = Bounds.Max.Z;
	const int32 Volume = Content->AddOutline(Outline);
	if (Volume == INDEX_NONE)
	{
		return;
	}
	UnitOfVolume.Add(&UnitVolume);
	VolumeOfUnit.Add(&UnitVolume, Volume);
	if (UnitVolume.IsSelected())
	{
		SelectedVolumes.Add(Volume);
	}
	if (UnitVolume.IsHighlighted())
	{
		HighlightedVolume = Volume;
	}
	ShowUnit(Volume, UnitVolume);
}

void UUnitSceneBinding::ShowUnit(int32 Volume, const AUnitVolumeActor& UnitVolume)
{
	ESceneVolumeState State = ESceneVolumeState::None;
	State |= UnitVolume.IsSelected() ? ESceneVolumeState::Selected : ESceneVolumeState::None;
	State |= UnitVolume.IsHighlighted() ? ESceneVolumeState::Hovered : ESceneVolumeState::None;
	State |= UnitVolume.IsFilteredOut() ? ESceneVolumeState::FilteredOut : ESceneVolumeState::None;
	States->SetVolumeStatus(Volume, static_cast<int32>(UnitVolume.GetUnitData().Status));
	States->SetVolumeState(Volume, State);
}

void UUnitSceneBinding::ShowAllUnits()
{
	for (int32 Place = 0; Place < UnitOfVolume.Num(); ++Place)
	{
		if (const AUnitVolumeActor* const UnitVolume = UnitOfVolume[Place].Get())
		{
			ShowUnit(FirstUnitVolume + Place, *UnitVolume);
		}
	}
}

void UUnitSceneBinding::DrawChanges()
{
	if (DrawnRevision != Content->GetRevision())
	{
		DrawnRevision = Content->GetRevision();
		Viewport->ContentChanged();
	}
}

void UUnitSceneBinding::BringIntoView(int32 Volume)
{
	const FBox Bounds = Content->GetVolumeBounds(Volume);
	FVector2D Position;
	if (Viewport->Locate(Bounds.GetCenter(), Position) == ESceneSpot::OutOfView)
	{
		Viewport->MoveCamera([&](FSceneCamera& Camera) { Camera.Focus(Bounds.GetCenter(), RadiiInView * Bounds.GetExtent().Size(), Viewport->GetAspectRatio()); });
	}
	Viewport->RevealVolume(Volume);
}
