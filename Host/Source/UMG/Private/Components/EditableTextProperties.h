#pragma once

#include "CoreMinimal.h"

namespace Host
{
	/** Hands what the widgets for editable text have in common to their Slate side, besides the style. */
	template <typename ComponentType, typename SlateType>
	void PushEditableTextProperties(const ComponentType& Component, const FText& Text, SlateType& Slate)
	{
		Slate.SetIsPassword(Component.GetIsPassword());
		Slate.SetText(Text);
		Slate.SetHintText(Component.GetHintText());
		Slate.SetIsReadOnly(Component.GetIsReadOnly());
		Slate.SetMinDesiredWidth(Component.GetMinimumDesiredWidth());
		Slate.SetIsCaretMovedWhenGainFocus(Component.GetIsCaretMovedWhenGainFocus());
		Slate.SetSelectAllTextWhenFocused(Component.GetSelectAllTextWhenFocused());
		Slate.SetRevertTextOnEscape(Component.GetRevertTextOnEscape());
		Slate.SetClearKeyboardFocusOnCommit(Component.GetClearKeyboardFocusOnCommit());
		Slate.SetSelectAllTextOnCommit(Component.GetSelectAllTextOnCommit());
		Slate.SetAllowContextMenu(Component.GetAllowContextMenu());
		Slate.SetJustification(Component.GetJustification());
		Slate.SetOverflowPolicy(Component.GetTextOverflowPolicy());
	}

	/** Sets a property, and with it that of the Slate side if there is one. */
	template <typename ValueType, typename GivenType, typename SlateType, typename ParameterType>
	void SetEditableTextProperty(ValueType& Property, const GivenType& Value, const TSharedPtr<SlateType>& Slate, void (SlateType::*Setter)(ParameterType))
	{
		Property = Value;
		if (Slate)
		{
			(Slate.Get()->*Setter)(Value);
		}
	}
}
