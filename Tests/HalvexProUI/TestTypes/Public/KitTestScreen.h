#pragma once

#include "CoreMinimal.h"
#include "Blueprint/UserWidget.h"
#include "KitTestScreen.generated.h"

/** A user widget to put widgets of the kit on. */
UCLASS()
class HALVEXPROUITESTTYPES_API UKitTestScreen : public UUserWidget
{
	GENERATED_BODY()
};
