#include "StyledButton.h"

#include "Blueprint/WidgetTree.h"
#include "Components/Button.h"
#include "Components/HorizontalBox.h"
#include "Components/TextBlock.h"
#include "Style/HalvexStyleModels.h"

FStyledButton::FStyledButton(UWidgetTree& Tree, EButtonContent Content, int32 Number)
{
	Button = Tree.ConstructWidget<UButton>();
	Text = Tree.ConstructWidget<UTextBlock>();
	Text->SetText(FText::AsCultureInvariant(FString::Printf(TEXT("Unit %d"), Number)));
	if (Content == EButtonContent::Text)
	{
		Button->SetContent(Text);
	}
	else
	{
		Icon = Tree.ConstructWidget<UTextBlock>();
		UHorizontalBox* Box = Tree.ConstructWidget<UHorizontalBox>();
		Box->AddChild(Icon);
		Box->AddChild(Text);
		Button->SetContent(Box);
	}
	Restyle();
}

UWidget& FStyledButton::GetWidget() const
{
	return *Button;
}

void FStyledButton::SetText(const FText& NewText) const
{
	Text->SetText(NewText);
}

void FStyledButton::Restyle() const
{
	const FHalvexButtonStyle Face;
	FButtonStyle ButtonStyle = Button->GetStyle();
	Face.CornerStyle.SetCornerBrushButton(ButtonStyle);
	const FHalvexColorHandler FaceColor(TEXT("Primary"), false);
	ButtonStyle.Normal.TintColor = FaceColor.GetColorSlate();
	ButtonStyle.Hovered.TintColor = FaceColor.GetContrastColorSlate();
	ButtonStyle.Pressed.TintColor = FaceColor.GetContrastColorSlate();
	Button->SetStyle(ButtonStyle);

	FHalvexTextStyle TextStyle;
	TextStyle.ColorStyle = FHalvexColorHandler(TEXT("Primary"), true);
	TextStyle.FontSchema = TEXT("extra-small");
	UHalvexStyleModels::SetHalvexTextStyle(Text, TextStyle);
	if (Icon)
	{
		const FFontIconHandler Handler;
		Icon->SetFont(Handler.GenerateFontSlate(8));
		Icon->SetText(Handler.GetIconUnicode());
		Icon->SetColorAndOpacity(TextStyle.ColorStyle.GetColorSlate());
	}
}
