#pragma once

#include "CoreMinimal.h"
#include "Templates/SharedPointer.h"

class SWidget;

/** What is shown beside the cursor when it rests on a widget. */
class IToolTip
{
public:
	virtual ~IToolTip() = default;

	virtual TSharedRef<SWidget> AsWidget() = 0;
	/** True when there is nothing to show. */
	virtual bool IsEmpty() const = 0;
	virtual void OnOpening() {}
	virtual void OnClosed() {}
};
