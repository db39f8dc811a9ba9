#pragma once

#include "Input/ReplyBase.h"
#include "Templates/SharedPointer.h"
#include "Types/SlateEnums.h"

class SWidget;


/** What a widget does with a move of the focus that leaves it. */
class SLATECORE_API FNavigationReply : public TReplyBase<FNavigationReply>
{
public:
	/** The focus goes to the given widget; stays when there is none. */
	static FNavigationReply Explicit(TSharedPtr<SWidget> InFocusRecipient)
	{
		FNavigationReply Reply(EUINavigationRule::Explicit);
		Reply.FocusRecipient = MoveTemp(InFocusRecipient);
		return Reply;
	}
	/** The focus stays within the widget. */
	static FNavigationReply Stop() { return FNavigationReply(EUINavigationRule::Stop); }
	/** At the end of the widget it goes on at the beginning. */
	static FNavigationReply Wrap() { return FNavigationReply(EUINavigationRule::Wrap); }
	/** The focus may leave. */
	static FNavigationReply Escape() { return FNavigationReply(EUINavigationRule::Escape); }

	EUINavigationRule GetBoundaryRule() const { return BoundaryRule; }
	const TSharedPtr<SWidget>& GetFocusRecipient() const { return FocusRecipient; }

private:
	explicit FNavigationReply(EUINavigationRule InRule) : TReplyBase<FNavigationReply>(true), BoundaryRule(InRule) {}

	TSharedPtr<SWidget> FocusRecipient;
	EUINavigationRule BoundaryRule;
};
