#pragma once

#include "CoreMinimal.h"

class UHxButton;
class UHxFontIcon;
class UHxText;
class UWidget;
class UWidgetTree;

/** What a styled button shows besides its face. */
enum class EButtonContent : uint8
{
	Text,
	IconAndText,
};

/**
 * A button in the project's style: the one place that says which widgets the benchmarks of buttons are made of. The widgets
 * belong to the tree.
 */
class FStyledButton
{
public:
	/** @param Number makes its text one that no other button has */
	FStyledButton(UWidgetTree& Tree, EButtonContent Content, int32 Number);

	UWidget& GetWidget() const;
	UHxButton& GetButton() const { return *Button; }
	UHxText& GetText() const { return *Text; }

	/** Objects that the button is made of, slots apart. */
	int32 GetNumWidgets() const { return Icon ? 4 : 2; }

	void SetText(const FText& NewText) const;

	/** Takes on the project's style as it is now; the button must be shown. */
	void Restyle() const;

private:
	UHxButton* Button = nullptr;
	UHxFontIcon* Icon = nullptr;
	UHxText* Text = nullptr;
};
