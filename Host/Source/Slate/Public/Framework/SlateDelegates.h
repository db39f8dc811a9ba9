#pragma once

#include "CoreMinimal.h"
#include "Delegates/Delegate.h"
#include "Input/Events.h"
#include "Input/Reply.h"
#include "Layout/Geometry.h"
#include "Styling/SlateTypes.h"
#include "Types/SlateEnums.h"

class SWidget;

/** A button was clicked. */
DECLARE_DELEGATE_RetVal(FReply, FOnClicked);

/** Makes content when it is needed. */
DECLARE_DELEGATE_RetVal(TSharedRef<SWidget>, FOnGetContent);

DECLARE_DELEGATE_OneParam(FOnTextChanged, const FText&);
DECLARE_DELEGATE_TwoParams(FOnTextCommitted, const FText&, ETextCommit::Type);
/** Whether a character may be typed. */
DECLARE_DELEGATE_RetVal_OneParam(bool, FOnIsTypedCharValid, const TCHAR);

/** The user checked or unchecked something. */
DECLARE_DELEGATE_OneParam(FOnCheckStateChanged, ECheckBoxState);

DECLARE_DELEGATE_OneParam(FOnInt32ValueChanged, int32);
DECLARE_DELEGATE_OneParam(FOnFloatValueChanged, float);

DECLARE_DELEGATE_RetVal_TwoParams(FReply, FOnKeyDown, const FGeometry&, const FKeyEvent&);
DECLARE_DELEGATE_RetVal_TwoParams(FReply, FOnKeyChar, const FGeometry&, const FCharacterEvent&);
