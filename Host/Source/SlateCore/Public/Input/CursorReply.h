#pragma once

#include "GenericPlatform/ICursor.h"
#include "Input/ReplyBase.h"

/** Which mouse cursor a widget wants over it. */
class FCursorReply : public TReplyBase<FCursorReply>
{
public:
	/** This shape; ancestors are not asked. */
	static FCursorReply Cursor(EMouseCursor::Type InCursor) { return FCursorReply(InCursor); }
	/** The parent decides. */
	static FCursorReply Unhandled() { return FCursorReply(); }

	EMouseCursor::Type GetCursorType() const { return MouseCursor; }

private:
	FCursorReply() : TReplyBase<FCursorReply>(false) {}
	explicit FCursorReply(EMouseCursor::Type InCursor) : TReplyBase<FCursorReply>(true), MouseCursor(InCursor) {}

	EMouseCursor::Type MouseCursor = EMouseCursor::Default;
};
