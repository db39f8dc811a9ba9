#pragma once

#include "KitTest.h"

#include "KitTestButtonUW.h"
#include "TemporaryContent.h"
#include "UserWidget/HalvexButtonGroupSelectionUW.h"
#include "Widgets/HxButton.h"

/** Widget blueprints of the button user widgets: a button, and a group of three of them with a text in between. */
class FButtonUserWidgetTest : public FKitTest
{
protected:
	virtual void SetUp() override
	{
		FKitTest::SetUp();
		Content.Write(TEXT("Member.widget.json"), R"({
			"Parent": "/Script/HalvexProUITestTypes.KitTestButtonUW",
			"Root": { "Class": "HxButton", "Name": "SelectableButton", "Properties": { "SizeOverride": { "SizeOverride": { "X": 80, "Y": 40 } } } } })");
		Content.Write(TEXT("Member.lua"), "function OnSelectionButtonChanged(self, Selected) self:NoteHook(Selected) end");
		Content.Write(TEXT("Members.widget.json"), R"({
			"Parent": "/Script/HalvexProUI.HalvexButtonGroupSelectionUW",
			"Root": { "Class": "HorizontalBox", "Name": "ButtonsContainer", "Children": [
				{ "Class": "/KitScreens/Member.Member", "Name": "M0", "Properties": { "ButtonID": "ID0", "ButtonSelectionMode": "EBSM_Toggle" } },
				{ "Class": "TextBlock", "Properties": { "Text": "no button" } },
				{ "Class": "/KitScreens/Member.Member", "Name": "M1", "Properties": { "ButtonID": "ID1", "ButtonSelectionMode": "EBSM_Toggle" } },
				{ "Class": "VerticalBox", "Children": [ { "Class": "/KitScreens/Member.Member", "Name": "Deeper" } ] },
				{ "Class": "/KitScreens/Member.Member", "Name": "M2", "Properties": { "ButtonID": "ID2", "ButtonSelectionMode": "EBSM_Toggle" } } ] } })");
	}

	/** Makes a widget of a blueprint in the screen's tree. */
	template <typename T>
	T* MakeOf(const TCHAR* Blueprint, const TCHAR* Name)
	{
		UClass* Class = LoadObject<UClass>(nullptr, *FString::Printf(TEXT("/KitScreens/%s.%s_C"), Blueprint, Blueprint));
		return CastChecked<T>(CreateWidget<UUserWidget>(Screen->WidgetTree, Class, FName(Name)));
	}

	/** Binds the recorder to the events of a button user widget. */
	void Listen(UKitTestButtonUW& Member)
	{
		Member.Recorder = Recorder.Get();
		Member.OnButtonSelectionChange.AddDynamic(Recorder.Get(), &UKitTestRecorder::OnMemberChanged);
	}

	Host::FTemporaryContent Content{ TEXT("/KitScreens/") };
};
