#include "Widgets/Input/STextMenu.h"

#include "Styling/CoreStyle.h"
#include "Widgets/Images/SImage.h"
#include "Widgets/Input/SButton.h"
#include "Widgets/Layout/SBorder.h"
#include "Widgets/Layout/SBox.h"
#include "Widgets/SBoxPanel.h"

#define LOCTEXT_NAMESPACE "GenericCommands"

using Host::ETextCommand;

namespace
{
	TSharedRef<SWidget> MakeSeparator()
	{
		return SNew(SBox).HeightOverride(1.0f)
		[
			SNew(SImage).Image(FCoreStyle::Get().GetBrush("WhiteBrush")).ColorAndOpacity(FLinearColor(1.0f, 1.0f, 1.0f, 0.15f))
		];
	}
}

void STextMenu::Construct(const FArguments& InArgs)
{
	const TSharedRef<SVerticalBox> Entries = SNew(SVerticalBox);
	const auto Add = [&](ETextCommand Command, const FText& Label) { Entries->AddSlot().AutoHeight()[MakeEntry(Command, Label, InArgs)]; };
	const auto AddSeparator = [&Entries]() { Entries->AddSlot().AutoHeight().Padding(FMargin(6.0f, 3.0f))[MakeSeparator()]; };
	Add(ETextCommand::Undo, LOCTEXT("Undo", "Undo"));
	AddSeparator();
	Add(ETextCommand::Cut, LOCTEXT("Cut", "Cut"));
	Add(ETextCommand::Copy, LOCTEXT("Copy", "Copy"));
	Add(ETextCommand::Paste, LOCTEXT("Paste", "Paste"));
	Add(ETextCommand::Delete, LOCTEXT("Delete", "Delete"));
	AddSeparator();
	Add(ETextCommand::SelectAll, LOCTEXT("SelectAll", "Select All"));
	ChildSlot
	[
		SNew(SBorder).BorderImage(FCoreStyle::Get().GetBrush("Menu.Background")).Padding(3.0f)[Entries]
	];
}

TSharedRef<SWidget> STextMenu::MakeEntry(ETextCommand Command, const FText& Label, const FArguments& InArgs)
{
	const bool bEnabled = InArgs._CanExecute.IsBound() && InArgs._CanExecute.Execute(Command);
	const TSharedRef<SWidget> Entry = SNew(SButton)
		.ButtonStyle(&FCoreStyle::Get().GetWidgetStyle<FButtonStyle>("Menu.Button"))
		.TextStyle(&FCoreStyle::Get().GetWidgetStyle<FTextBlockStyle>("NormalText"))
		.ContentPadding(FMargin(4.0f, 1.0f))
		.Text(Label)
		.IsEnabled(bEnabled)
		.OnClicked(FOnClicked::CreateLambda([OnCommand = InArgs._OnCommand, Command]()
		{
			// It closes the menu, and this delegate goes with it.
			const FOnTextCommand Handler = OnCommand;
			Handler.ExecuteIfBound(Command);
			return FReply::Handled();
		}));
	if (bEnabled && !FirstEntry.IsValid())
	{
		FirstEntry = Entry;
	}
	return Entry;
}

FNavigationReply STextMenu::OnNavigation(const FGeometry&, const FNavigationEvent&)
{
	return FNavigationReply::Wrap();
}

#undef LOCTEXT_NAMESPACE
