#pragma once

#include "KitTest.h"

#include "Widgets/HxButton.h"
#include "Widgets/HxButtonGroup.h"

/** A group and its buttons, B0, B1 and so on, with the identifiers ID0, ID1 and so on. */
class FHxButtonGroupTestBase : public FKitTest
{
protected:
	void MakeGroup(EButtonGroupControlMode Mode, bool bAllowNone, const TArray<int32>& Selected, int32 Num = 3)
	{
		Group = Make<UHxButtonGroup>(TEXT("Group"));
		Group->ButtonGroupControlMode = Mode;
		Group->bAllowNoneSelection = bAllowNone;
		Group->SelectedButtonsIndex = Selected;
		Listen(*Group);
		for (int32 Index = 0; Index < Num; ++Index)
		{
			Group->ButtonList.Add(MakeMember(Index));
			if (Mode == EButtonGroupControlMode::EBGM_MultiSelection)
			{
				Buttons[Index]->SelectionMode = EButtonSelectionMode::EBSM_Toggle;
			}
		}
		Place(*Group, 10.0, 10.0);
	}

	void ShowGroup(EButtonGroupControlMode Mode, bool bAllowNone, const TArray<int32>& Selected, int32 Num = 3)
	{
		MakeGroup(Mode, bAllowNone, Selected, Num);
		Show();
	}

	/** A button that the recorder listens to ahead of any group. */
	UHxButton* MakeMember(int32 Index)
	{
		UHxButton* Button = Make<UHxButton>(*FString::Printf(TEXT("B%d"), Index));
		Button->ButtonID = FName(FString::Printf(TEXT("ID%d"), Index));
		Button->OnButtonSelectionChange.AddDynamic(Recorder.Get(), &UKitTestRecorder::OnButtonSelectionChange);
		Place(*Button, 10.0 + 90.0 * Index, 100.0, FVector2D(80.0, 40.0));
		Buttons.Add(Button);
		return Button;
	}

	/** The group's record in its order: "index:button", joined by blanks. */
	std::string GetRecord() const
	{
		FString Text;
		for (const auto& Entry : Group->SelectionButtons)
		{
			Text += FString::Printf(TEXT("%s%d:%s"), Text.IsEmpty() ? TEXT("") : TEXT(" "), Entry.Key, *GetNameSafe(Entry.Value));
		}
		return Host::ToStd(Text);
	}

	/** Selection states of all buttons, "101". */
	std::string GetStates() const
	{
		std::string Text;
		for (const UHxButton* Button : Buttons)
		{
			Text += Button->bSelectedButton ? "1" : "0";
		}
		return Text;
	}

	/** Selection modes of all buttons: N, T or B. */
	std::string GetModes() const
	{
		std::string Text;
		for (const UHxButton* Button : Buttons)
		{
			Text += "NTB"[static_cast<int32>(Button->SelectionMode)];
		}
		return Text;
	}

	/** How often the group is bound to the button. */
	int32 CountBindings(const UHxButton& Button) const
	{
		return Button.OnButtonSelectionChange.GetAllObjects().FilterByPredicate([this](const UObject* Object) { return Object == Group; }).Num();
	}

	UHxButtonGroup* Group = nullptr;
	TArray<UHxButton*> Buttons;
};
