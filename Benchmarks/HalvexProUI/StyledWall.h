#pragma once

#include "CoreMinimal.h"
#include "StyledButton.h"
#include "UObject/StrongObjectPtr.h"
#include "Widgets/SWidget.h"

class UWidgetTree;

/** A window full of styled buttons, all in view. */
class FStyledWall
{
public:
	FStyledWall(int32 InNumButtons, EButtonContent InContent);
	~FStyledWall();

	/** Makes objects and Slate side and shows them; nothing is laid out yet. */
	void Fill();
	/** Takes all away again, objects too. */
	void Clear();

	/** Lays out and paints what changed, without pixels. */
	void Paint();
	/** A whole frame, with pixels. */
	void RunFrame();

	/** The mouse comes to the middle of the button. */
	void HoverOver(int32 Index);
	/** Presses and releases the left mouse button where the mouse is. */
	void Click();

	int32 GetNumWidgets() const;
	const TArray<FStyledButton>& GetButtons() const { return Buttons; }

private:
	int32 NumButtons;
	EButtonContent Content;
	TStrongObjectPtr<UWidgetTree> Tree;
	TSharedPtr<SWidget> Shown;
	TArray<FStyledButton> Buttons;
	FVector2f Mouse = FVector2f(0.0f, 0.0f);
};

/** Gives the project another style: of the two, the one that it does not have now. They differ in colours and font sizes. */
void SwitchProjectStyle();
