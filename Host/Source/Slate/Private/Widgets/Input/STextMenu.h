#pragma once

#include "CoreMinimal.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SCompoundWidget.h"

namespace Host
{
	/** What can be done with a text that is edited, by keys and by its menu. */
	enum class ETextCommand : uint8
	{
		Undo,
		Redo,
		Cut,
		Copy,
		Paste,
		Delete,
		SelectAll,
	};
}

DECLARE_DELEGATE_OneParam(FOnTextCommand, Host::ETextCommand);
DECLARE_DELEGATE_RetVal_OneParam(bool, FCanExecuteTextCommand, Host::ETextCommand);

/** The menu of a text that is edited. */
class STextMenu : public SCompoundWidget
{
public:
	SLATE_BEGIN_ARGS(STextMenu) {}
		/** Asked for each command when the menu is made. */
		SLATE_EVENT(FCanExecuteTextCommand, CanExecute)
		SLATE_EVENT(FOnTextCommand, OnCommand)
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs);

	/** What has the focus when the menu opens; null when nothing can be done. */
	TSharedPtr<SWidget> GetFirstEntry() const { return FirstEntry; }

	/** The focus stays in the menu. */
	virtual FNavigationReply OnNavigation(const FGeometry& MyGeometry, const FNavigationEvent& InNavigationEvent) override;

private:
	TSharedRef<SWidget> MakeEntry(Host::ETextCommand Command, const FText& Label, const FArguments& InArgs);

	TSharedPtr<SWidget> FirstEntry;
};
