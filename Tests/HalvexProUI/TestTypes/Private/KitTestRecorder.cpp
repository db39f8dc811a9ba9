#include "KitTestRecorder.h"

#include "UserWidget/HalvexButtonUW.h"
#include "Widgets/HxButton.h"

void UKitTestRecorder::Note(const FString& Event)
{
	Events.Add(Probe ? Event + TEXT("|") + Probe() : Event);
}

FString UKitTestRecorder::Take()
{
	const FString Joined = FString::Join(Events, TEXT(" "));
	Events.Empty();
	return Joined;
}

void UKitTestRecorder::OnClickWithID(FName ButtonID)
{
	Note(FString::Printf(TEXT("click(%s)"), *ButtonID.ToString()));
}

void UKitTestRecorder::OnButtonSelectionChange(UHxButton* ButtonChanged, bool bSelected)
{
	Note(FString::Printf(TEXT("%s=%d"), *GetNameSafe(ButtonChanged), bSelected ? 1 : 0));
}

void UKitTestRecorder::OnClicked()
{
	Note(TEXT("clicked"));
}

void UKitTestRecorder::OnPressed()
{
	Note(TEXT("pressed"));
}

void UKitTestRecorder::OnReleased()
{
	Note(TEXT("released"));
}

void UKitTestRecorder::OnHovered()
{
	Note(TEXT("hovered"));
}

void UKitTestRecorder::OnUnhovered()
{
	Note(TEXT("unhovered"));
}

void UKitTestRecorder::OnGroupCleared()
{
	Note(TEXT("cleared"));
}

void UKitTestRecorder::OnGroupChanged(bool bEmptySelection, const TArray<int32>& ChangeList)
{
	FString List;
	for (const int32 Index : ChangeList)
	{
		List += FString::Printf(TEXT("%s%d"), List.IsEmpty() ? TEXT("") : TEXT(","), Index);
	}
	Note(FString::Printf(TEXT("%s[%s]"), bEmptySelection ? TEXT("empty") : TEXT("some"), *List));
}

void UKitTestRecorder::OnMemberChanged(UHalvexButtonUW* ButtonReference)
{
	Note(FString::Printf(TEXT("member(%s)"), *GetNameSafe(ButtonReference)));
}

void UKitTestRecorder::OnMemberSelected(int32 SelectionIndex, FName ButtonSelected)
{
	Note(FString::Printf(TEXT("selected(%d,%s)"), SelectionIndex, *ButtonSelected.ToString()));
}

void UKitTestRecorder::OnZoomValueChanged(float ZoomValue)
{
	Note(FString::Printf(TEXT("zoom(%.6g)"), ZoomValue));
}

void UKitTestRecorder::OnRangeChanged(float Lower, float Upper)
{
	Note(FString::Printf(TEXT("%g-%g"), Lower, Upper));
}

void UKitTestRecorder::OnRangeCommitted(float Lower, float Upper)
{
	Note(FString::Printf(TEXT("commit(%g-%g)"), Lower, Upper));
}

void UKitTestRecorder::OnStartCaptureMouse()
{
	Note(TEXT("start"));
}

void UKitTestRecorder::OnStopCaptureMouse()
{
	Note(TEXT("stop"));
}
