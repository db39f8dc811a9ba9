#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"
#include "KitTestRecorder.generated.h"

class UHalvexButtonUW;
class UHxButton;

/** Listens to the events of the kit and writes them down in one list, in the order in which they came. */
UCLASS()
class HALVEXPROUITESTTYPES_API UKitTestRecorder : public UObject
{
	GENERATED_BODY()

public:
	/** What came. */
	TArray<FString> Events;

	/** What else to write down with each event, as it is at that moment. */
	TFunction<FString()> Probe;

	void Note(const FString& Event);

	/** All that came since the last call, joined by blanks. */
	FString Take();

	UFUNCTION()
	void OnClickWithID(FName ButtonID);

	UFUNCTION()
	void OnButtonSelectionChange(UHxButton* ButtonChanged, bool bSelected);

	UFUNCTION()
	void OnClicked();

	UFUNCTION()
	void OnPressed();

	UFUNCTION()
	void OnReleased();

	UFUNCTION()
	void OnHovered();

	UFUNCTION()
	void OnUnhovered();

	UFUNCTION()
	void OnGroupCleared();

	UFUNCTION()
	void OnGroupChanged(bool bEmptySelection, const TArray<int32>& ChangeList);

	UFUNCTION()
	void OnMemberChanged(UHalvexButtonUW* ButtonReference);

	UFUNCTION()
	void OnMemberSelected(int32 SelectionIndex, FName ButtonSelected);

	UFUNCTION()
	void OnZoomValueChanged(float ZoomValue);

	UFUNCTION()
	void OnRangeChanged(float Lower, float Upper);

	UFUNCTION()
	void OnRangeCommitted(float Lower, float Upper);

	UFUNCTION()
	void OnStartCaptureMouse();

	UFUNCTION()
	void OnStopCaptureMouse();
};
