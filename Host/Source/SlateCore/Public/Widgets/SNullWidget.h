#pragma once

#include "CoreMinimal.h"
#include "Templates/SharedPointer.h"

class SWidget;

/** The empty widget, which stands wherever there is none. One serves all. */
class SLATECORE_API SNullWidget
{
public:
	static TSharedRef<SWidget> NullWidget;
};
