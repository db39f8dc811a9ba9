#pragma once

#include "CoreMinimal.h"

/** Whether an event was dealt with. */
class FReplyBase
{
public:
	explicit FReplyBase(bool bInIsHandled) : bIsHandled(bInIsHandled) {}

	bool IsEventHandled() const { return bIsHandled; }

protected:
	bool bIsHandled;
};

/** Base of the kinds of replies. */
template <typename ReplyType>
class TReplyBase : public FReplyBase
{
public:
	explicit TReplyBase(bool bInIsHandled) : FReplyBase(bInIsHandled) {}
};
