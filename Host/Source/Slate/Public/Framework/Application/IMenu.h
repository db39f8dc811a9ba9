#pragma once

#include "CoreMinimal.h"
#include "Delegates/Delegate.h"
#include "Templates/SharedPointer.h"

class SWidget;
class SWindow;

/** Content that stands above a window until something outside of it is pressed, or it is dismissed. */
class IMenu
{
public:
	DECLARE_MULTICAST_DELEGATE_OneParam(FOnMenuDismissed, TSharedRef<IMenu>);

	virtual ~IMenu() = default;

	virtual TSharedPtr<SWidget> GetContent() const = 0;
	/** The window above which it stands. */
	virtual TSharedPtr<SWindow> GetParentWindow() const = 0;
	/** Takes it away, with the menus that were opened from it. */
	virtual void Dismiss() = 0;
	/** Told when it has been taken away. */
	virtual FOnMenuDismissed& GetOnMenuDismissed() = 0;
};
