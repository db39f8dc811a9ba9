#include "EditableTextTools.h"

#include "Host/DumpWidgetTree.h"
#include "Widgets/Input/SButton.h"
#include "Widgets/SBoxPanel.h"

/** The menu of a text, opened and used by the mouse and by keys. */
class EditableTextMenuTest : public FEditableTextTest
{
protected:
	void OpenAt(float X)
	{
		Move(X, 15.0f);
		Press(EKeys::RightMouseButton);
		Release(EKeys::RightMouseButton);
		App().Tick();
	}

	/** The entry of the menu that shows the label. */
	TSharedPtr<SWidget> FindEntry(const TCHAR* Label) { return FindIn(Window.ToSharedRef(), Label); }

	void Choose(const TCHAR* Label)
	{
		const TSharedPtr<SWidget> Entry = FindEntry(Label);
		ASSERT_TRUE(Entry.IsValid());
		Click(Entry.ToSharedRef());
		App().Tick();
	}

private:
	static TSharedPtr<SWidget> FindIn(const TSharedRef<SWidget>& Widget, const FString& Label)
	{
		if (Host::GetWidgetText(Widget.Get()) == Label)
		{
			return Widget;
		}
		FChildren* const Children = Widget->GetChildren();
		for (int32 Index = 0; Index < Children->Num(); ++Index)
		{
			if (const TSharedPtr<SWidget> Found = FindIn(Children->GetChildAt(Index), Label))
			{
				return Found;
			}
		}
		return nullptr;
	}
};

TEST_F(EditableTextMenuTest, RightButtonOpensItAndPutsTheCaret)
{
	ShowText(Arguments(TEXT("abc")));
	OpenAt(1.0f);
	EXPECT_TRUE(App().AnyMenusVisible());
	Stroke(EKeys::Escape);
	EXPECT_FALSE(App().AnyMenusVisible());
	EXPECT_TRUE(Text->HasKeyboardFocus());
	Type(TEXT("x"));
	EXPECT_EQ(Content(), "xabc");
}

TEST_F(EditableTextMenuTest, PressOnTheSelectionKeepsItAndNothingIsCommitted)
{
	ShowFocused(Arguments(TEXT("abc")));
	Stroke(EKeys::A, true);
	OpenAt(5.0f);
	EXPECT_FALSE(Text->HasKeyboardFocus());
	EXPECT_EQ(Selected(), "abc");
	EXPECT_EQ(FindBoxes(Selection).Num(), 1);
	EXPECT_LOG("");
}

TEST_F(EditableTextMenuTest, EntriesDoWhatTheySay)
{
	ShowFocused(Arguments(TEXT("abc")));
	OpenAt(199.0f);
	Choose(TEXT("Select All"));
	EXPECT_FALSE(App().AnyMenusVisible());
	EXPECT_TRUE(Text->HasKeyboardFocus());
	EXPECT_EQ(Selected(), "abc");
	OpenAt(5.0f);
	Choose(TEXT("Cut"));
	EXPECT_EQ(Content(), "");
	EXPECT_EQ(GetClipboard(), TEXT("abc"));
	OpenAt(5.0f);
	Choose(TEXT("Paste"));
	OpenAt(199.0f);
	Choose(TEXT("Paste"));
	EXPECT_EQ(Content(), "abcabc");
	OpenAt(5.0f);
	Choose(TEXT("Undo"));
	EXPECT_EQ(Content(), "abc");
	OpenAt(5.0f);
	Choose(TEXT("Select All"));
	OpenAt(5.0f);
	Choose(TEXT("Copy"));
	OpenAt(5.0f);
	Choose(TEXT("Delete"));
	EXPECT_EQ(Content(), "");
	EXPECT_LOG("Changed: Changed:abc Changed:abcabc Changed:abc Changed:");
}

TEST_F(EditableTextMenuTest, WhatCannotBeDoneIsDisabled)
{
	FPlatformApplicationMisc::ClipboardCopy(TEXT("x"));
	ShowFocused(Arguments(TEXT("abc")).IsReadOnly(true));
	Stroke(EKeys::A, true);
	OpenAt(5.0f);
	const auto IsOffered = [this](const TCHAR* Label)
	{
		// The label stands in a button.
		return FindEntry(Label)->GetParentWidget()->IsEnabled();
	};
	EXPECT_TRUE(IsOffered(TEXT("Copy")));
	EXPECT_TRUE(IsOffered(TEXT("Select All")));
	for (const TCHAR* const Label : {TEXT("Undo"), TEXT("Cut"), TEXT("Paste"), TEXT("Delete")})
	{
		EXPECT_FALSE(IsOffered(Label)) << TCHAR_TO_UTF8(Label);
	}
}

TEST_F(EditableTextMenuTest, PasswordIsNotCopiedOutOfIt)
{
	ShowFocused(Arguments(TEXT("abc")).IsPassword(true));
	Stroke(EKeys::A, true);
	OpenAt(5.0f);
	EXPECT_FALSE(FindEntry(TEXT("Copy"))->GetParentWidget()->IsEnabled());
	EXPECT_FALSE(FindEntry(TEXT("Cut"))->GetParentWidget()->IsEnabled());
}

TEST_F(EditableTextMenuTest, KeysMoveWithinItAndChoose)
{
	ShowFocused(Arguments(TEXT("abc")));
	Stroke(EKeys::A, true);
	OpenAt(5.0f);
	// Cut is the first that can be done; behind the last one comes the first.
	Stroke(EKeys::Down);
	EXPECT_EQ(App().GetKeyboardFocusedWidget(), FindEntry(TEXT("Copy"))->GetParentWidget());
	Stroke(EKeys::Up);
	EXPECT_EQ(App().GetKeyboardFocusedWidget(), FindEntry(TEXT("Cut"))->GetParentWidget());
	Stroke(EKeys::Up);
	EXPECT_EQ(App().GetKeyboardFocusedWidget(), FindEntry(TEXT("Select All"))->GetParentWidget());
	Stroke(EKeys::Down);
	Stroke(EKeys::Enter);
	EXPECT_EQ(Content(), "");
	EXPECT_TRUE(Text->HasKeyboardFocus());
}

TEST_F(EditableTextMenuTest, PressElsewhereClosesItAndLeavesTheText)
{
	Text = SArgumentNew(Arguments(TEXT("abc")), SEditableText);
	TSharedPtr<SButton> Button;
	Show(SNew(SVerticalBox)
		+ SVerticalBox::Slot().AutoHeight()[SNew(SBox).HeightOverride(30.0f)[Text.ToSharedRef()]]
		+ SVerticalBox::Slot().FillHeight(1.0f)[SNew(SBox)]
		+ SVerticalBox::Slot().AutoHeight()[SAssignNew(Button, SButton)]);
	OpenAt(5.0f);
	Click(Button.ToSharedRef());
	EXPECT_FALSE(App().AnyMenusVisible());
	EXPECT_TRUE(Button->HasKeyboardFocus());
	EXPECT_LOG("MovedFocus:abc");
}

TEST_F(EditableTextMenuTest, FocusGivenElsewhereWhileItIsOpenEndsTheEditingWithIt)
{
	Text = SArgumentNew(Arguments(TEXT("abc")), SEditableText);
	TSharedPtr<SButton> Button;
	Show(SNew(SVerticalBox)
		+ SVerticalBox::Slot().AutoHeight()[SNew(SBox).HeightOverride(30.0f)[Text.ToSharedRef()]]
		+ SVerticalBox::Slot().AutoHeight()[SAssignNew(Button, SButton)]);
	OpenAt(5.0f);
	App().SetKeyboardFocus(Button);
	App().DismissAllMenus();
	EXPECT_TRUE(Button->HasKeyboardFocus());
	EXPECT_LOG("Default:abc");
}

TEST_F(EditableTextMenuTest, TextThatDoesNotAllowItLeavesTheButtonToOthers)
{
	ShowFocused(Arguments(TEXT("abc")).AllowContextMenu(false));
	Move(5.0f, 15.0f);
	EXPECT_FALSE(Press(EKeys::RightMouseButton));
	Release(EKeys::RightMouseButton);
	EXPECT_FALSE(App().AnyMenusVisible());
}

TEST_F(EditableTextMenuTest, GoesInTheNextFrameWhenItsTextGoes)
{
	ShowFocused(Arguments(TEXT("abc")));
	OpenAt(5.0f);
	Text.Reset();
	Window->SetContent(SNew(SBox));
	Click(FindEntry(TEXT("Select All")).ToSharedRef());
	App().Tick();
	EXPECT_FALSE(App().AnyMenusVisible());
}
