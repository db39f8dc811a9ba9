#pragma once

#include "KitTest.h"

#include "Components/CanvasPanelSlot.h"
#include "Components/HorizontalBox.h"
#include "Widgets/HxButton.h"
#include "Widgets/HxFontIcon.h"
#include "Widgets/HxText.h"

/** One button with a text and an icon that follow it. */
class FHxButtonTestBase : public FKitTest
{
protected:
	void MakeButton(EButtonSelectionMode Mode)
	{
		Button = Make<UHxButton>(TEXT("Button"));
		Button->ButtonID = TEXT("ID");
		Button->SelectionMode = Mode;
		Text = Make<UHxText>(TEXT("Text"));
		Text->SetText(FText::FromString(TEXT("Text")));
		Icon = Make<UHxFontIcon>(TEXT("Icon"));
		Icon->IconContrast.IconColor.ColorID = TEXT("Success");
		Icon->IconHover.IconColor.ColorID = TEXT("Danger");
		Button->ResponsiveText.Add(Text);
		Button->ResponsiveIcons.Add(Icon);
		UHorizontalBox* Content = Make<UHorizontalBox>();
		Content->AddChild(Text);
		Content->AddChild(Icon);
		Button->AddChild(Content);
		Place(*Button, 100.0, 100.0, FVector2D(200.0, 60.0));
		Listen(*Button);
	}

	void ShowButton(EButtonSelectionMode Mode)
	{
		MakeButton(Mode);
		Show();
	}

	static std::string ToHex(const FLinearColor& Color) { return Host::ToStd(Color.ToFColor(true).ToHex()); }
	std::string GetBackground() const { return ToHex(Button->GetBackgroundColor()); }
	std::string GetTextColour() const { return ToHex(Text->GetColorAndOpacity().GetSpecifiedColor()); }
	std::string GetIconColour() const { return ToHex(Icon->GetColorAndOpacity().GetSpecifiedColor()); }

	UHxButton* Button = nullptr;
	UHxText* Text = nullptr;
	UHxFontIcon* Icon = nullptr;

	const std::string PlainText = "4B465CFF";
	const std::string ContrastText = "FBFBFBFF";
	const std::string PlainIcon = "7367F0FF";
	const std::string ContrastIcon = "28C76FFF";
	const std::string HoverIcon = "EA5455FF";
};
